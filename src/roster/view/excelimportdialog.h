#pragma once

#include <QThread>

#include <atomic>
#include <memory>

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
    ~ExcelImportDialog() override;

    bool isReadingSheet() const { return m_readThread != nullptr; }
    // Waits on the event loop until the sheet being read is there (tests, screenshots).
    void waitForSheet();

Q_SIGNALS:
    // A chosen sheet has been read (ok) or failed or was cancelled; only a read sheet can be
    // imported.
    void sheetReadFinished(bool ok);

protected:
    void jobFinished(RosterImport::Outcome outcome) override;

private:
    void buildLayout();
    void openWorkbook(const QString &path);
    // Reads the chosen sheet on a worker thread; the dialog keeps answering, shows the progress
    // and can cancel.
    void chooseSheet(int index);
    void sheetRead();
    void cancelRead();
    void listColumns();
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
    QPushButton *m_startButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
    QPushButton *m_okButton = nullptr;
    QPushButton *m_templateButton = nullptr;

    workbook::Workbook m_book;
    workbook::Sheet m_sheet;

    // The read in progress: the worker alone writes the three results until it has finished.
    std::unique_ptr<QThread> m_readThread;
    std::atomic_bool m_cancelRead{false};
    int m_readGeneration = 0;
    workbook::Sheet m_readSheet;
    QString m_readError;
    bool m_readOk = false;
};
