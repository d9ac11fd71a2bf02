#pragma once

#include <QDialog>

class QLineEdit;

// Asks for the management password before a guarded screen opens. Accepted when the password is
// right; asked on the way to the password settings, it opens ChangePasswordDialog itself.
class PasswordPromptDialog : public QDialog {
    Q_OBJECT
public:
    // What the password unlocks.
    enum class Purpose { OpenSettings, ChangePassword };
    Q_ENUM(Purpose)

    explicit PasswordPromptDialog(Purpose purpose, QWidget *parent = nullptr);

private:
    void checkPassword();

    Purpose m_purpose;
    QLineEdit *m_passwordEdit = nullptr;
};
