#pragma once

#include "roster/numbergen.h"
#include "roster/view/importdialog.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

// Replaces the whole roster with generated codes: prefix, counting number, suffix, leaving out
// codes that contain a masked digit group.
class NumberGeneratorDialog : public ImportDialog {
    Q_OBJECT
public:
    explicit NumberGeneratorDialog(QWidget *parent = nullptr);

    // Shows the first and the last code; false (after the message) when the range is wrong.
    bool showPreview();
    void cmdStartClicked();
    numbergen::Options options() const;

    QLineEdit *txtS1 = nullptr;
    QLineEdit *txtS2 = nullptr;
    QLineEdit *txtStart = nullptr;
    QLineEdit *txtEnd = nullptr;
    QCheckBox *chkB = nullptr;
    QLineEdit *txtB = nullptr;
    QLineEdit *txtMsk = nullptr;
    QLabel *labYS = nullptr;
    QPlainTextEdit *txtTJ = nullptr;
    QWidget *picShow = nullptr;
    QLabel *labMsg = nullptr;
    QPushButton *cmdStart = nullptr;
    QPushButton *cmdExit = nullptr;
    QPushButton *cmdOk = nullptr;

protected:
    void jobFinished(RosterImport::Outcome outcome) override;

private:
    void boundEdited(QLineEdit *edit, const QString &emptyMessage);
};
