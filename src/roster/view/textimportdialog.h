#pragma once

#include "roster/view/importdialog.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

// Fills the roster from a text file (path in appState().txtFile), one participant a line:
// name, remark, photo path and distinction number split by the separator.
class TextImportDialog : public ImportDialog {
    Q_OBJECT
public:
    explicit TextImportDialog(QWidget *parent = nullptr);

    void cmdStartClicked();

    QLabel *labFileName = nullptr;
    QLineEdit *txtJG = nullptr;
    QRadioButton *opt1 = nullptr;
    QRadioButton *opt2 = nullptr;
    QGroupBox *frame = nullptr;
    QPlainTextEdit *txtSame = nullptr;
    QLabel *labMsg = nullptr;
    QPushButton *cmdStart = nullptr;
    QPushButton *cmdCancel = nullptr;
    QPushButton *cmdOK = nullptr;

protected:
    void jobFinished(RosterImport::Outcome outcome) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setInputsEnabled(bool enabled);
};
