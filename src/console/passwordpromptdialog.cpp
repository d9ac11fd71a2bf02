#include "console/passwordpromptdialog.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "chrome/widgets.h"
#include "console/changepassworddialog.h"
#include "core/password.h"
#include "core/ui.h"

PasswordPromptDialog::PasswordPromptDialog(Purpose purpose, QWidget *parent)
    : QDialog(parent), m_purpose(purpose) {
    setWindowTitle(tr("密码验证"));
    auto *frame = new QGroupBox(tr("请输入管理密码"), this);
    m_passwordEdit = new QLineEdit(frame);
    m_passwordEdit->setObjectName(QStringLiteral("passwordEdit"));
    m_passwordEdit->setEchoMode(QLineEdit::Password);
    m_passwordEdit->setMinimumWidth(240);
    auto *factoryHint = new QLabel(tr("系统默认密码为 628413 "), frame);
    factoryHint->setProperty("role", QStringLiteral("hint"));
    auto *frameLayout = new QVBoxLayout(frame);
    frameLayout->addWidget(m_passwordEdit);
    frameLayout->addWidget(factoryHint);

    QPushButton *ok = nullptr;
    QPushButton *cancel = nullptr;
    QHBoxLayout *buttons = okEscButtons(this, &ok, &cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(frame);
    layout->addLayout(buttons);

    connect(ok, &QPushButton::clicked, this, &PasswordPromptDialog::checkPassword);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    adjustSize();
    centerForm(this);
}

void PasswordPromptDialog::checkPassword() {
    if (m_passwordEdit->text().trimmed().isEmpty()) {
        ui().message(tr("请输入密码!"), MsgStyle::Exclamation, titles::notice);
        m_passwordEdit->setFocus();
        return;
    }
    if (!password::matches(m_passwordEdit->text())) {
        ui().message(tr("密码错误"), MsgStyle::Critical, titles::notice);
        m_passwordEdit->clear();
        m_passwordEdit->setFocus();
        return;
    }
    accept();
    if (m_purpose == Purpose::ChangePassword) {
        ChangePasswordDialog dialog(parentWidget());
        dialog.exec();
    }
}
