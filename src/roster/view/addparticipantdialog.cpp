#include "roster/view/addparticipantdialog.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolBar>
#include <QVBoxLayout>

#include "core/events.h"
#include "core/store.h"
#include "core/ui.h"
#include "roster/rosterpage.h"
#include "roster/view/editorparts.h"
#include "roster/view/picturebox.h"

AddParticipantDialog::AddParticipantDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("新增 - 抽奖名单"));
    txtUserName = new QLineEdit(this);
    txtUserName->setMaxLength(255);
    txtUserPart = new QLineEdit(this);
    txtUserPart->setMaxLength(255);
    txtDiffNum = new QLineEdit(QStringLiteral("0"), this);
    txtDiffNum->setToolTip(QStringLiteral("用于对抽奖条件进行筛选的标识号码"));
    editorparts::makeDigitsOnly(txtDiffNum);
    txtIsPhoto = new QLineEdit(QStringLiteral("no"), this);
    txtIsPhoto->hide();
    imgViewBox = new PictureBox(this);
    toolPhoto = editorparts::makePhotoToolbar(
        this, imgViewBox, txtIsPhoto, QStringLiteral("AddParticipantDialog"),
        QStringLiteral("图片文件 (*.jpg *.gif *.bmp *.jpeg *.png)"));
    cmdOk = new QPushButton(QStringLiteral("添加"), this);
    cmdEsc = new QPushButton(QStringLiteral("取消"), this);
    cmdOk->setDefault(true);

    auto *form = new QFormLayout;
    form->addRow(QStringLiteral("抽奖名单："), txtUserName);
    form->addRow(QStringLiteral("备注信息："), txtUserPart);
    form->addRow(QStringLiteral("区分编号："), txtDiffNum);
    auto *picture = new QVBoxLayout;
    picture->addWidget(imgViewBox);
    picture->addWidget(toolPhoto);
    auto *top = new QHBoxLayout;
    top->addLayout(form, 1);
    top->addLayout(picture);
    auto *hint = new QLabel(QStringLiteral("提示：如您只抽取文字信息，照片可以保留为空！"), this);
    hint->setStyleSheet(QStringLiteral("color:#8a5a00;"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(hint, 1);
    buttons->addWidget(cmdOk);
    buttons->addWidget(cmdEsc);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(buttons);
    connect(cmdOk, &QPushButton::clicked, this, &AddParticipantDialog::cmdOkClicked);
    connect(cmdEsc, &QPushButton::clicked, this, &QDialog::reject);
    imgViewBox->start();
}

bool AddParticipantDialog::cmdOkClicked() {
    const QString name = txtUserName->text().trimmed();
    const QString part = txtUserPart->text().trimmed();
    if (name.isEmpty()) {
        ui().message(QStringLiteral("请输入抽奖名单!"), MsgStyle::Information, titles::notice);
        txtUserName->setFocus();
        return false;
    }
    if (store::isDuplicate(QStringLiteral("UserList"), QStringLiteral("UserName"),
                           QStringLiteral("UserPart"), name, part, 0)) {
        ui().message(QStringLiteral("名单重复,已经存在同样的人员信息"), MsgStyle::Critical,
                     QStringLiteral("新增失败"));
        return false;
    }
    QSqlDatabase db = store::mainConn();
    const int id = store::getNextID(QStringLiteral("UserList"), QStringLiteral("ID"));
    const QString diff = txtDiffNum->text().trimmed();
    const int diffNum = roster::isNumeric(diff) ? diff.toInt() : 0;
    const QString photo = roster::settlePhoto(id, txtIsPhoto->text(), QString());
    QString error;
    if (!store::exec(db,
                     QStringLiteral("INSERT INTO UserList (ID, UserName, UserPart, UserPhoto, "
                                    "DiffNum, UserStatus) VALUES (?, ?, ?, ?, ?, 0)"),
                     {id, name, part, photo, diffNum}, &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return false;
    }
    m_addedId = id;
    emit events().rosterChanged();
    accept();
    return true;
}
