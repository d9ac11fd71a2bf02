#include "awards/view/addawarddialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "awards/awardbook.h"
#include "awards/view/awardeditor.h"
#include "chrome/widgethelpers.h"
#include "core/ui.h"

namespace {

const TranslatedText kFilter{
    "AddAwardDialog",
    QT_TRANSLATE_NOOP(
        "AddAwardDialog",
        "图片文件(*.png,*.jpg,*.gif,*.bmp)|*.png;*.jpg;*.gif;*.bmp|PNG Files(*.png)|*.png|"
        "JPG Files(*.jpg)|*.jpg|GIF Files(*.gif)|*.gif|BMP Files(*.bmp)|*.bmp")};

}  // namespace

AddAwardDialog::AddAwardDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(tr("增加奖项"));
    m_editor = new AwardEditor(QStringLiteral("AddAwardDialog"), kFilter, this);
    m_editor->setObjectName(QStringLiteral("awardEditor"));
    m_editor->setExcludeWinners(true);
    auto *add = new QPushButton(tr("添加"), this);
    add->setObjectName(QStringLiteral("addButton"));
    add->setDefault(true);
    auto *cancel = new QPushButton(tr("取消"), this);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(add);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 16, 18, 16);
    layout->setSpacing(14);
    layout->addWidget(m_editor);
    layout->addLayout(buttons);
    connect(add, &QPushButton::clicked, this, &AddAwardDialog::addAward);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    setMinimumWidth(620);
    adjustSize();
    centerForm(this);
}

void AddAwardDialog::addAward() {
    const AwardInput input = m_editor->input();
    const AwardFault fault = AwardBook::validate(input);
    if (fault.failed()) {
        ui().message(fault.message, MsgStyle::Information, titles::notice);
        m_editor->focusField(fault.field);
        return;
    }
    AwardBook book;
    if (book.isFull()) {
        ui().message(AwardBook::kFullMessage, MsgStyle::Information, titles::notice);
        return;
    }
    QString error;
    if (book.add(input, &error) == 0) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    accept();
}
