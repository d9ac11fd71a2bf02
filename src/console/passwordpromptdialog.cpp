#include "console/passwordpromptdialog.h"
#include "chrome/widgets.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "console/changepassworddialog.h"
#include "core/appstate.h"
#include "core/password.h"
#include "core/ui.h"

PasswordPromptDialog::PasswordPromptDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("密码验证"));
    auto *frame = new QGroupBox(QStringLiteral("请输入管理密码"), this);
    pwd = new QLineEdit(frame);
    pwd->setEchoMode(QLineEdit::Password);
    pwd->setMinimumWidth(240);
    auto *label1 = new QLabel(QStringLiteral("系统默认密码为 628413 "), frame);
    label1->setProperty("role", QStringLiteral("hint"));
    auto *frameLayout = new QVBoxLayout(frame);
    frameLayout->addWidget(pwd);
    frameLayout->addWidget(label1);

    QHBoxLayout *buttons = okEscButtons(this, &cmdOk, &cmdEsc);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(frame);
    layout->addLayout(buttons);

    connect(cmdOk, &QPushButton::clicked, this, &PasswordPromptDialog::onOk);
    connect(cmdEsc, &QPushButton::clicked, this, &QDialog::reject);
    adjustSize();
    centerForm(this);
}

void PasswordPromptDialog::onOk() {
    if (pwd->text().trimmed().isEmpty()) {
        ui().message(QStringLiteral("请输入密码!"), MsgStyle::Exclamation, titles::notice);
        pwd->setFocus();
        return;
    }
    if (!password::matches(pwd->text())) {
        ui().message(QStringLiteral("密码错误"), MsgStyle::Critical, titles::notice);
        pwd->clear();
        pwd->setFocus();
        return;
    }
    accept();
    if (appState().loginFor == QLatin1String("setpass")) {
        ChangePasswordDialog dialog(parentWidget());
        dialog.exec();
    }
}
