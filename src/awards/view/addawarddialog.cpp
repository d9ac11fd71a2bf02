#include "awards/view/addawarddialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "awards/awardbook.h"
#include "awards/view/awardeditor.h"
#include "chrome/widgethelpers.h"
#include "core/ui.h"

namespace {

const QString kFilter = QStringLiteral(
    "图片文件(*.png,*.jpg,*.gif,*.bmp)|*.png;*.jpg;*.gif;*.bmp|PNG Files(*.png)|*.png|"
    "JPG Files(*.jpg)|*.jpg|GIF Files(*.gif)|*.gif|BMP Files(*.bmp)|*.bmp");

}  // namespace

AddAwardDialog::AddAwardDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("增加奖项"));
    editor = new AwardEditor(QStringLiteral("AddAwardDialog"), kFilter, this);
    editor->chkIsReLuck->setChecked(true);
    editor->ComboRange->setCurrentIndex(0);
    cmdAdd = new QPushButton(QStringLiteral("添加"), this);
    cmdAdd->setDefault(true);
    cmdExit = new QPushButton(QStringLiteral("取消"), this);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdAdd);
    buttons->addWidget(cmdExit);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 16, 18, 16);
    layout->setSpacing(14);
    layout->addWidget(editor);
    layout->addLayout(buttons);
    connect(cmdAdd, &QPushButton::clicked, this, &AddAwardDialog::addAward);
    connect(cmdExit, &QPushButton::clicked, this, &QDialog::reject);
    setMinimumWidth(620);
    adjustSize();
    centerForm(this);
}

void AddAwardDialog::addAward() {
    const AwardFault fault = AwardBook::validate(editor->input());
    if (fault.failed()) {
        ui().message(fault.message, MsgStyle::Information, titles::notice);
        editor->focusField(fault.field);
        return;
    }
    AwardBook book;
    if (book.isFull()) {
        ui().message(AwardBook::kFullMessage, MsgStyle::Information, titles::notice);
        return;
    }
    QString error;
    addedId = book.add(editor->input(), &error);
    if (addedId == 0) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    accept();
}
