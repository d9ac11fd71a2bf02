#include "console/changepassworddialog.h"
#include "chrome/widgets.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "core/password.h"
#include "core/ui.h"

ChangePasswordDialog::ChangePasswordDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("密码设置"));
    chkIsPWD = new QCheckBox(QStringLiteral("是否启用密码保护"), this);
    pwd1 = new QLineEdit(this);
    pwd2 = new QLineEdit(this);
    for (QLineEdit *edit : {pwd1, pwd2}) {
        edit->setEchoMode(QLineEdit::Password);
        edit->setMinimumWidth(200);
    }
    auto *hint = new QLabel(QStringLiteral("保持原密码请保留为空!"), this);
    hint->setProperty("role", QStringLiteral("hint"));
    auto *form = new QFormLayout;
    form->addRow(QStringLiteral("输入密码∶"), pwd1);
    form->addRow(QStringLiteral("确认密码∶"), pwd2);
    form->addRow(QString(), hint);

    QHBoxLayout *buttons = okEscButtons(this, &cmdOk, &cmdEsc);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(chkIsPWD);
    layout->addLayout(form);
    layout->addLayout(buttons);

    chkIsPWD->setChecked(password::isPassWordOn());
    updateFields();
    connect(chkIsPWD, &QCheckBox::toggled, this, &ChangePasswordDialog::updateFields);
    connect(cmdOk, &QPushButton::clicked, this, &ChangePasswordDialog::onOk);
    connect(cmdEsc, &QPushButton::clicked, this, &QDialog::reject);
    adjustSize();
    centerForm(this);
}

void ChangePasswordDialog::updateFields() {
    pwd1->setEnabled(chkIsPWD->isChecked());
    pwd2->setEnabled(chkIsPWD->isChecked());
}

void ChangePasswordDialog::onOk() {
    if (chkIsPWD->isChecked() && pwd1->text().trimmed() != pwd2->text().trimmed()) {
        ui().message(QStringLiteral("两次输入的密码不一致"), MsgStyle::Exclamation,
                     titles::warning);
        pwd2->setFocus();
        pwd2->selectAll();
        return;
    }
    password::save(chkIsPWD->isChecked(), pwd1->text());
    ui().message(QStringLiteral("设置成功!"), MsgStyle::Information, titles::notice);
    accept();
}
