#pragma once

#include <QDialog>

class QLineEdit;
class QPushButton;

// Asks for the management password before the settings panel or the password dialog opens.
// Accepted when the password is right; with loginFor "setpass" it opens ChangePasswordDialog
// itself.
class PasswordPromptDialog : public QDialog {
    Q_OBJECT
public:
    explicit PasswordPromptDialog(QWidget *parent = nullptr);

    QLineEdit *pwd = nullptr;
    QPushButton *cmdOk = nullptr;
    QPushButton *cmdEsc = nullptr;

private:
    void onOk();
};
