#pragma once

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QPushButton;

// Switches the management password on or off and sets a new one. Empty fields keep the old
// password, so switching the guard on again revives it.
class ChangePasswordDialog : public QDialog {
    Q_OBJECT
public:
    explicit ChangePasswordDialog(QWidget *parent = nullptr);

    QCheckBox *chkIsPWD = nullptr;
    QLineEdit *pwd1 = nullptr;
    QLineEdit *pwd2 = nullptr;
    QPushButton *cmdOk = nullptr;
    QPushButton *cmdEsc = nullptr;

private:
    void onOk();
    void updateFields();
};
