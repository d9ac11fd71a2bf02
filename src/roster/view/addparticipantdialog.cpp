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
    setWindowTitle(tr("新增 - 抽奖名单"));
    m_nameEdit = new QLineEdit(this);
    m_nameEdit->setObjectName(QStringLiteral("nameEdit"));
    m_nameEdit->setMaxLength(255);
    m_remarkEdit = new QLineEdit(this);
    m_remarkEdit->setObjectName(QStringLiteral("remarkEdit"));
    m_remarkEdit->setMaxLength(255);
    m_diffNumEdit = new QLineEdit(QStringLiteral("0"), this);
    m_diffNumEdit->setObjectName(QStringLiteral("diffNumEdit"));
    editorparts::makeDiffNumEdit(m_diffNumEdit);
    m_photoStateEdit = new QLineEdit(QStringLiteral("no"), this);
    m_photoStateEdit->setObjectName(QStringLiteral("photoStateEdit"));
    m_photoStateEdit->hide();
    m_pictureBox = new PictureBox(this);
    m_photoToolbar = editorparts::makePhotoToolbar(this, m_pictureBox, m_photoStateEdit,
                                                   QStringLiteral("AddParticipantDialog"),
                                                   tr("图片文件 (*.jpg *.gif *.bmp *.jpeg *.png)"));
    m_addButton = new QPushButton(tr("添加"), this);
    m_addButton->setObjectName(QStringLiteral("addButton"));
    m_cancelButton = new QPushButton(tr("取消"), this);
    m_addButton->setDefault(true);

    auto *form = new QFormLayout;
    editorparts::addParticipantRows(form, m_nameEdit, m_remarkEdit, m_diffNumEdit);
    auto *picture = new QVBoxLayout;
    picture->addWidget(m_pictureBox);
    picture->addWidget(m_photoToolbar);
    auto *top = new QHBoxLayout;
    top->addLayout(form, 1);
    top->addLayout(picture);
    auto *hint = new QLabel(tr("提示：如您只抽取文字信息，照片可以保留为空！"), this);
    hint->setStyleSheet(QStringLiteral("color:#8a5a00;"));
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(hint, 1);
    buttons->addWidget(m_addButton);
    buttons->addWidget(m_cancelButton);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(buttons);
    connect(m_addButton, &QPushButton::clicked, this, &AddParticipantDialog::addParticipant);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    m_pictureBox->start();
}

void AddParticipantDialog::addParticipant() {
    const QString name = m_nameEdit->text().trimmed();
    const QString remark = m_remarkEdit->text().trimmed();
    if (name.isEmpty()) {
        ui().message(editorparts::missingNameMessage(), MsgStyle::Information, titles::notice);
        m_nameEdit->setFocus();
        return;
    }
    if (store::isDuplicate(QStringLiteral("UserList"), QStringLiteral("UserName"),
                           QStringLiteral("UserPart"), name, remark, 0)) {
        ui().message(editorparts::duplicateMessage(), MsgStyle::Critical, tr("新增失败"));
        return;
    }
    const QString diff = m_diffNumEdit->text().trimmed();
    if (!roster::diffNumFits(diff)) {
        ui().message(roster::kDiffNumTooLarge, MsgStyle::Exclamation, titles::warning);
        m_diffNumEdit->setFocus();
        return;
    }
    const int id = store::getNextID(QStringLiteral("UserList"), QStringLiteral("ID"));
    const int diffNum = roster::isNumeric(diff) ? diff.toInt() : 0;
    const QString photo = roster::settlePhoto(id, m_photoStateEdit->text(), QString());
    QString error;
    if (!store::exec(store::mainConn(),
                     QStringLiteral("INSERT INTO UserList (ID, UserName, UserPart, UserPhoto, "
                                    "DiffNum, UserStatus) VALUES (?, ?, ?, ?, ?, 0)"),
                     {id, name, remark, photo, diffNum}, &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    m_addedId = id;
    emit events().rosterChanged();
    accept();
}
