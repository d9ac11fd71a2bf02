#include "console/changepassworddialog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "chrome/widgets.h"
#include "core/password.h"
#include "core/ui.h"

ChangePasswordDialog::ChangePasswordDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(tr("密码设置"));
    m_guardCheck = new QCheckBox(tr("是否启用密码保护"), this);
    m_guardCheck->setObjectName(QStringLiteral("guardCheck"));
    m_passwordEdit = new QLineEdit(this);
    m_passwordEdit->setObjectName(QStringLiteral("passwordEdit"));
    m_confirmEdit = new QLineEdit(this);
    m_confirmEdit->setObjectName(QStringLiteral("confirmEdit"));
    for (QLineEdit *edit : {m_passwordEdit, m_confirmEdit}) {
        edit->setEchoMode(QLineEdit::Password);
        edit->setMinimumWidth(200);
    }
    auto *hint = new QLabel(tr("保持原密码请保留为空!"), this);
    hint->setProperty("role", QStringLiteral("hint"));
    auto *form = new QFormLayout;
    form->addRow(tr("输入密码∶"), m_passwordEdit);
    form->addRow(tr("确认密码∶"), m_confirmEdit);
    form->addRow(QString(), hint);

    QPushButton *ok = nullptr;
    QPushButton *cancel = nullptr;
    QHBoxLayout *buttons = okEscButtons(this, &ok, &cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_guardCheck);
    layout->addLayout(form);
    layout->addLayout(buttons);

    m_guardCheck->setChecked(password::isPassWordOn());
    enableFields();
    connect(m_guardCheck, &QCheckBox::toggled, this, &ChangePasswordDialog::enableFields);
    connect(ok, &QPushButton::clicked, this, &ChangePasswordDialog::save);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    adjustSize();
    centerForm(this);
}

void ChangePasswordDialog::enableFields() {
    m_passwordEdit->setEnabled(m_guardCheck->isChecked());
    m_confirmEdit->setEnabled(m_guardCheck->isChecked());
}

void ChangePasswordDialog::save() {
    if (m_guardCheck->isChecked() &&
        m_passwordEdit->text().trimmed() != m_confirmEdit->text().trimmed()) {
        ui().message(tr("两次输入的密码不一致"), MsgStyle::Exclamation, titles::warning);
        m_confirmEdit->setFocus();
        m_confirmEdit->selectAll();
        return;
    }
    password::save(m_guardCheck->isChecked(), m_passwordEdit->text());
    ui().message(tr("设置成功!"), MsgStyle::Information, titles::notice);
    accept();
}
