#pragma once

#include "roster/view/importdialog.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

// Fills the roster from the text file at path, one participant a line: name, remark, photo path
// and distinction number split by the separator.
class TextImportDialog : public ImportDialog {
    Q_OBJECT
public:
    explicit TextImportDialog(const QString &path, QWidget *parent = nullptr);

protected:
    void jobFinished(RosterImport::Outcome outcome) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void startImport();
    void setInputsEnabled(bool enabled);

    QString m_path;
    QLineEdit *m_separatorEdit = nullptr;
    QRadioButton *m_appendButton = nullptr;
    QRadioButton *m_replaceButton = nullptr;
    QGroupBox *m_resultBox = nullptr;
    QPlainTextEdit *m_duplicatesEdit = nullptr;
    QPushButton *m_startButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
    QPushButton *m_okButton = nullptr;
};
