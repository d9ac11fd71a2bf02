#pragma once

#include <QDialog>

class QCheckBox;
class QLineEdit;

// Switches the management password on or off and sets a new one. Empty fields keep the old
// password, so switching the guard on again revives it.
class ChangePasswordDialog : public QDialog {
    Q_OBJECT
public:
    explicit ChangePasswordDialog(QWidget *parent = nullptr);

private:
    void save();
    void enableFields();

    QCheckBox *m_guardCheck = nullptr;
    QLineEdit *m_passwordEdit = nullptr;
    QLineEdit *m_confirmEdit = nullptr;
};
