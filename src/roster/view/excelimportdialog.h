#pragma once

#include "roster/view/importdialog.h"
#include "roster/workbook.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QTreeWidget;

// Fills the roster from the workbook at path: pick a sheet, tick the columns that make the name,
// see three rows as they will be stored, then append or replace.
class ExcelImportDialog : public ImportDialog {
    Q_OBJECT
public:
    explicit ExcelImportDialog(const QString &path, QWidget *parent = nullptr);

protected:
    void jobFinished(RosterImport::Outcome outcome) override;

private:
    void buildLayout();
    void openWorkbook(const QString &path);
    void chooseSheet(int index);
    void preview();
    void startImport();
    QList<bool> nameColumns() const;
    void setInputsEnabled(bool enabled);

    QLabel *m_fileLabel = nullptr;
    QListWidget *m_sheetList = nullptr;
    QTreeWidget *m_columnList = nullptr;
    QCheckBox *m_headerRowBox = nullptr;
    QLabel *m_headerRowHint = nullptr;
    QLineEdit *m_separatorEdit = nullptr;
    QRadioButton *m_appendButton = nullptr;
    QRadioButton *m_replaceButton = nullptr;
    QGroupBox *m_previewBox = nullptr;
    QTreeWidget *m_previewList = nullptr;
    QPlainTextEdit *m_duplicatesEdit = nullptr;
    QLabel *m_resultLabel = nullptr;
    QPushButton *m_startButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
    QPushButton *m_okButton = nullptr;
    QPushButton *m_templateButton = nullptr;

    workbook::Workbook m_book;
    workbook::Sheet m_sheet;
};
