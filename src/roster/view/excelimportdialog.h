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

// Fills the roster from a workbook (path in appState().excelFile): pick a sheet, tick the
// columns that make the name, see three rows as they will be stored, then append or replace.
class ExcelImportDialog : public ImportDialog {
    Q_OBJECT
public:
    explicit ExcelImportDialog(QWidget *parent = nullptr);

    void chooseSheet(int index);
    void preview();
    void cmdStartClicked();

    QLabel *labFileName = nullptr;
    QListWidget *lstTable = nullptr;
    QTreeWidget *lstTitle = nullptr;
    QCheckBox *chkIsTitleLine = nullptr;
    QLineEdit *txtAndKey = nullptr;
    QRadioButton *opt1 = nullptr;
    QRadioButton *opt2 = nullptr;
    QGroupBox *Frame2 = nullptr;
    QTreeWidget *lstUser = nullptr;
    QPlainTextEdit *txtSame = nullptr;
    QLabel *labMsg = nullptr;
    QPushButton *cmdStart = nullptr;
    QPushButton *cmdCancel = nullptr;
    QPushButton *cmdOK = nullptr;
    QPushButton *cmdMB = nullptr;

protected:
    void jobFinished(RosterImport::Outcome outcome) override;

private:
    QList<bool> nameColumns() const;
    void setInputsEnabled(bool enabled);

    workbook::Workbook m_book;
    workbook::Sheet m_sheet;
};
