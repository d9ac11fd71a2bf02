#include "roster/view/rostermanagerdialog.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "core/appstate.h"
#include "core/events.h"
#include "core/settings.h"
#include "core/store.h"
#include "core/ui.h"
#include "roster/rosterpage.h"
#include "roster/view/addparticipantdialog.h"
#include "roster/view/editorparts.h"
#include "roster/view/picturebox.h"
#include "roster/view/rosterscreens.h"

namespace {

enum Column { ColTick, ColPlace, ColName, ColPart, ColPhoto, ColStatus, ColDiff };
constexpr int kIdRole = Qt::UserRole + 1;

const QStringList kHeaders{
    QStringLiteral("选择"),    QStringLiteral("排序"), QStringLiteral("抽奖名单(抽奖时滚动的内容)"),
    QStringLiteral("备注"),    QStringLiteral("照片"), QStringLiteral("状态"),
    QStringLiteral("区分编号")};

}  // namespace

RosterManagerDialog::RosterManagerDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("抽奖名单 - 管理"));
    resize(1080, 660);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(buildList(), 1);
    layout->addWidget(buildEditor());
    setEditorEnabled(false);
    // The first fill waits for the viewer's "loadok", as its picture follows the selection.
    connect(imgViewBox, &PictureBox::loaded, this,
            [this] { rdUserLst(QString(), QString(), m_page); });
    if (!imgViewBox->start()) rdUserLst(QString(), QString(), m_page);
}

RosterManagerDialog::~RosterManagerDialog() = default;

void RosterManagerDialog::showManager(QWidget *parent) {
    RosterManagerDialog form(parent);
    form.exec();
    emit events().rosterChanged();
}

QWidget *RosterManagerDialog::buildList() {
    auto *panel = new QWidget(this);
    Toolbar = new QToolBar(panel);
    Toolbar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    const QList<QPair<QString, void (RosterManagerDialog::*)()>> actions{
        {QStringLiteral("  全选"), &RosterManagerDialog::selectAll},
        {QStringLiteral("增加名单"), &RosterManagerDialog::addUser},
        {QStringLiteral("删除名单"), &RosterManagerDialog::deleteTicked},
        {QString(), nullptr},
        {QStringLiteral("导入Excel"), &RosterManagerDialog::importExcel},
        {QStringLiteral("导入txt   "), &RosterManagerDialog::importTxt},
        {QStringLiteral("导入照片"), &RosterManagerDialog::importPhotos},
        {QStringLiteral("生成编号"), &RosterManagerDialog::generateNumbers}};
    for (const auto &action : actions) {
        if (!action.second) {
            Toolbar->addSeparator();
            continue;
        }
        connect(Toolbar->addAction(action.first), &QAction::triggered, this, action.second);
    }

    txtKey = new QLineEdit(panel);
    txtKey->setPlaceholderText(QStringLiteral("输入名单关键字"));
    cmdCancelKey = new QPushButton(QStringLiteral("×"), panel);
    cmdCancelKey->setToolTip(QStringLiteral("清除查询关键字"));
    cmdCancelKey->setFixedWidth(28);
    cmdSearch = new QPushButton(QStringLiteral("查找名单"), panel);
    comboType = new QComboBox(panel);
    comboType->addItems({QStringLiteral("默认排序"), QStringLiteral("按备注信息排序"),
                         QStringLiteral("按区分编号排序"), QStringLiteral("按状态排序")});
    auto *search = new QHBoxLayout;
    search->addWidget(txtKey, 1);
    search->addWidget(cmdCancelKey);
    search->addWidget(cmdSearch);
    search->addWidget(comboType);

    lstUser = new QTreeWidget(panel);
    lstUser->setHeaderLabels(kHeaders);
    lstUser->setRootIsDecorated(false);
    lstUser->setUniformRowHeights(true);
    lstUser->setAlternatingRowColors(true);
    lstUser->header()->setStretchLastSection(true);
    lstUser->setColumnWidth(ColTick, 44);
    lstUser->setColumnWidth(ColPlace, 50);
    lstUser->setColumnWidth(ColName, 200);
    lstUser->setColumnWidth(ColPart, 130);
    lstUser->setColumnWidth(ColPhoto, 120);
    lstUser->setColumnWidth(ColStatus, 70);
    lstUser->setColumnWidth(ColDiff, 80);

    labInfo1 = new QLabel(panel);
    labInfo2 = new QLabel(panel);
    labinfo3 = new QLabel(panel);
    labPage = new QLabel(panel);
    chkAll = new QCheckBox(QStringLiteral("全选"), panel);
    cmdPageUp = new QPushButton(QStringLiteral("上一页"), panel);
    cmdPageDown = new QPushButton(QStringLiteral("下一页"), panel);
    cmdSetDiff = new QPushButton(QStringLiteral("批量设置区分编号"), panel);
    cmdOut = new QPushButton(QStringLiteral("导出"), panel);
    auto *counters = new QHBoxLayout;
    for (QWidget *w : {static_cast<QWidget *>(chkAll), static_cast<QWidget *>(labInfo1),
                       static_cast<QWidget *>(labInfo2), static_cast<QWidget *>(labinfo3)})
        counters->addWidget(w);
    counters->addStretch();
    counters->addWidget(labPage);
    counters->addWidget(cmdPageUp);
    counters->addWidget(cmdPageDown);
    counters->addWidget(cmdSetDiff);
    counters->addWidget(cmdOut);

    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(Toolbar);
    layout->addLayout(search);
    layout->addWidget(lstUser, 1);
    layout->addLayout(counters);

    connect(cmdPageUp, &QPushButton::clicked, this,
            [this] { rdUserLst(QString(), txtKey->text().trimmed(), m_page - 1); });
    connect(cmdPageDown, &QPushButton::clicked, this,
            [this] { rdUserLst(QString(), txtKey->text().trimmed(), m_page + 1); });
    connect(cmdSearch, &QPushButton::clicked, this, [this] {
        rdUserLst(QString(), txtKey->text().trimmed(), m_page);
        lstUser->setFocus();
    });
    connect(txtKey, &QLineEdit::returnPressed, cmdSearch, &QPushButton::click);
    connect(cmdCancelKey, &QPushButton::clicked, this, [this] {
        txtKey->clear();
        reload();
    });
    connect(comboType, &QComboBox::currentIndexChanged, this, [this] { reload(); });
    connect(lstUser, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem *item) { loadEditor(item); });
    connect(chkAll, &QCheckBox::clicked, this, [this](bool checked) {
        for (int i = 0; i < lstUser->topLevelItemCount(); ++i)
            lstUser->topLevelItem(i)->setCheckState(ColTick, checked ? Qt::Checked : Qt::Unchecked);
    });
    connect(cmdSetDiff, &QPushButton::clicked, this, &RosterManagerDialog::cmdSetDiffClicked);
    connect(cmdOut, &QPushButton::clicked, this, &RosterManagerDialog::cmdOutClicked);
    return panel;
}

QWidget *RosterManagerDialog::buildEditor() {
    frm = new QGroupBox(QStringLiteral("名单编辑"), this);
    frm->setFixedWidth(240);
    imgViewBox = new PictureBox(frm);
    txtIsPhoto = new QLineEdit(QStringLiteral("no"), frm);
    txtIsPhoto->hide();
    toolPhoto = editorparts::makePhotoToolbar(
        this, imgViewBox, txtIsPhoto, QStringLiteral("RosterManagerDialog"),
        QStringLiteral("图片文件(*.jpg *.gif *.bmp *.jpeg *.png)"));
    txtUserName = new QLineEdit(frm);
    txtUserPart = new QLineEdit(frm);
    txtDiffNum = new QLineEdit(frm);
    txtDiffNum->setToolTip(QStringLiteral("用于对抽奖条件进行筛选的标识号码"));
    editorparts::makeDigitsOnly(txtDiffNum);
    cmdSave = new QPushButton(QStringLiteral("编辑"), frm);
    auto *layout = new QVBoxLayout(frm);
    layout->addWidget(imgViewBox, 0, Qt::AlignHCenter);
    layout->addWidget(toolPhoto, 0, Qt::AlignHCenter);
    auto *form = new QFormLayout;
    form->setRowWrapPolicy(QFormLayout::WrapAllRows);
    form->addRow(QStringLiteral("抽奖名单："), txtUserName);
    form->addRow(QStringLiteral("备注信息："), txtUserPart);
    form->addRow(QStringLiteral("区分编号："), txtDiffNum);
    layout->addLayout(form);
    layout->addWidget(cmdSave);
    layout->addStretch();
    connect(cmdSave, &QPushButton::clicked, this, &RosterManagerDialog::cmdSaveClicked);
    return frm;
}

void RosterManagerDialog::reload() {
    rdUserLst(QString(), txtKey->text().trimmed(), m_page);
}

void RosterManagerDialog::setEditorEnabled(bool enabled) {
    for (QWidget *w : {static_cast<QWidget *>(txtUserName), static_cast<QWidget *>(txtUserPart),
                       static_cast<QWidget *>(txtDiffNum), static_cast<QWidget *>(cmdSave),
                       static_cast<QWidget *>(toolPhoto)})
        w->setEnabled(enabled);
}

void RosterManagerDialog::clearEditor() {
    imgViewBox->clearPicture();
    txtUserName->clear();
    txtUserPart->clear();
    txtDiffNum->clear();
    txtIsPhoto->setText(QStringLiteral("no"));
}

void RosterManagerDialog::addRow(int place, const roster::Participant &p) {
    auto *item = new QTreeWidgetItem;
    item->setData(ColTick, kIdRole, p.id);
    item->setCheckState(ColTick, Qt::Unchecked);
    item->setText(ColPlace, QString::number(place));
    item->setText(ColName, p.name);
    item->setText(ColPart, p.part);
    item->setText(ColPhoto, p.photo);
    item->setText(ColStatus, roster::statusWord(p.status));
    const QColor colour = roster::statusColor(p.status);
    if (colour.isValid()) item->setForeground(ColStatus, colour);
    item->setText(ColDiff, roster::diffNumText(p.diffNum));
    lstUser->addTopLevelItem(item);
}

void RosterManagerDialog::rdUserLst(const QString &key, const QString &search, int page) {
    const QSignalBlocker blocker(lstUser);
    lstUser->clear();
    roster::Page result;
    QString error;
    if (!roster::readPage(store::mainConn(), search, comboType->currentIndex(), page, &result,
                          &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    if (search.trimmed().isEmpty()) txtKey->clear();
    m_page = result.page;
    QTreeWidgetItem *selected = nullptr;
    int place = 0;
    for (const roster::Participant &participant : std::as_const(result.rows)) {
        addRow(++place, participant);
        QTreeWidgetItem *item = lstUser->topLevelItem(place - 1);
        if (!selected && key == QStringLiteral("K") + QString::number(participant.id))
            selected = item;
        else if (!selected && key.isEmpty() && place == result.recordCount)
            selected = item;
    }
    if (result.rows.isEmpty()) {
        clearEditor();
        setEditorEnabled(false);
    } else {
        setEditorEnabled(true);
    }
    cmdPageUp->setEnabled(result.pageCount > 0 && m_page > 1);
    cmdPageDown->setEnabled(m_page < result.pageCount);
    if (selected) {
        lstUser->setCurrentItem(selected);
        lstUser->scrollToItem(selected);
        loadEditor(selected);
    }
    labInfo1->setText(QStringLiteral("总计人数：%1").arg(result.recordCount));
    labInfo2->setText(QStringLiteral("已中奖人数：%1").arg(result.won));
    labinfo3->setText(QStringLiteral("弃奖∶%1").arg(result.gaveUp));
    labPage->setText(QStringLiteral("当前第∶%1页/ 共%2页").arg(m_page).arg(result.pageCount));
    if (result.won == 0) settings::write(QStringLiteral("selJxid"), 0);
}

void RosterManagerDialog::loadEditor(QTreeWidgetItem *item) {
    if (!item) return;
    imgViewBox->clearPicture();
    roster::Participant participant;
    if (!roster::loadParticipant(store::mainConn(), item->data(ColTick, kIdRole).toInt(),
                                 &participant)) {
        ui().message(QStringLiteral("找不到对应的名单"), MsgStyle::Critical, titles::error);
        return;
    }
    if (!participant.photo.trimmed().isEmpty()) {
        imgViewBox->showPicture(participant.photo);
        txtIsPhoto->setText(QStringLiteral("yes"));
    } else {
        txtIsPhoto->setText(QStringLiteral("no"));
    }
    txtUserName->setText(participant.name);
    txtUserPart->setText(participant.part);
    txtDiffNum->setText(roster::diffNumText(participant.diffNum));
}

void RosterManagerDialog::cmdSaveClicked() {
    const QString diff = txtDiffNum->text().trimmed();
    if (!diff.isEmpty() && !roster::isNumeric(diff)) {
        ui().message(QStringLiteral("“区分编号”只能填写数字"), MsgStyle::Exclamation,
                     titles::warning);
        txtDiffNum->setFocus();
        selectAllText(txtDiffNum);
        return;
    }
    QTreeWidgetItem *item = lstUser->currentItem();
    if (!item) return;
    const int id = item->data(ColTick, kIdRole).toInt();
    if (store::isDuplicate(QStringLiteral("UserList"), QStringLiteral("UserName"),
                           QStringLiteral("UserPart"), txtUserName->text().trimmed(),
                           txtUserPart->text().trimmed(), id)) {
        ui().message(QStringLiteral("名单重复,已经存在同样的人员信息"), MsgStyle::Critical,
                     QStringLiteral("编辑失败"));
        return;
    }
    roster::Participant stored;
    roster::loadParticipant(store::mainConn(), id, &stored);
    const QString photo = roster::settlePhoto(id, txtIsPhoto->text(), stored.photo);
    QString error;
    if (!store::exec(store::mainConn(),
                     QStringLiteral("UPDATE UserList SET UserName=?, UserPart=?, DiffNum=?, "
                                    "UserPhoto=? WHERE ID=?"),
                     {txtUserName->text(), txtUserPart->text(),
                      diff.isEmpty() ? QVariant() : QVariant(diff.toLongLong()), photo, id},
                     &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    ui().message(QStringLiteral("数据更新成功！"), MsgStyle::Information, titles::notice);
    rdUserLst(QStringLiteral("K") + QString::number(id), txtKey->text().trimmed(), m_page);
    lstUser->setFocus();
}

QList<int> RosterManagerDialog::tickedIds(QStringList *photos) const {
    QList<int> ids;
    for (int i = 0; i < lstUser->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *item = lstUser->topLevelItem(i);
        if (item->checkState(ColTick) != Qt::Checked) continue;
        ids << item->data(ColTick, kIdRole).toInt();
        if (photos) *photos << item->text(ColPhoto);
    }
    return ids;
}

void RosterManagerDialog::deleteTicked() {
    QStringList photos;
    const QList<int> ids = tickedIds(&photos);
    if (ids.isEmpty()) {
        ui().message(QStringLiteral("请勾选需要删除的名单!"), MsgStyle::Critical,
                     QStringLiteral("删除失败"));
        return;
    }
    if (!ui().question(QStringLiteral("确认要删除选择的抽奖名单么?"), titles::warning)) return;
    QString error;
    if (!roster::deleteParticipants(store::mainConn(), ids, photos, &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    rdUserLst(QString(), QString(), m_page);
}

void RosterManagerDialog::selectAll() {
    chkAll->setChecked(!chkAll->isChecked());
    for (int i = 0; i < lstUser->topLevelItemCount(); ++i)
        lstUser->topLevelItem(i)->setCheckState(ColTick,
                                                chkAll->isChecked() ? Qt::Checked : Qt::Unchecked);
}

void RosterManagerDialog::cmdSetDiffClicked() {
    const QList<int> ids = tickedIds();
    if (ids.isEmpty()) {
        ui().message(QStringLiteral("请勾选需要设置区分编号的名单!"), MsgStyle::Critical,
                     titles::notice);
        return;
    }
    const QString answer = ui().inputText(QStringLiteral("请输入区分编号\n只能输入数字"),
                                          titles::notice, QStringLiteral("0"))
                               .trimmed();
    if (answer.isEmpty()) return;
    bool ok = false;
    const int value = answer.toInt(&ok);
    if (!ok) {
        ui().message(QStringLiteral("您没输入正确的区分编号!"), MsgStyle::Critical,
                     QStringLiteral("更新失败"));
        return;
    }
    QString error;
    if (!roster::setDiffNum(store::mainConn(), ids, value, &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    ui().message(QStringLiteral("数据更新成功！"), MsgStyle::Information, titles::notice);
    reload();
}

void RosterManagerDialog::cmdOutClicked() {
    cmdOut->setEnabled(false);
    const QString path = ui().saveFile(QStringLiteral("导出文件"), QStringLiteral("抽奖名单.csv"),
                                       QStringLiteral("Text Files (*.csv)"));
    if (path.isEmpty()) {
        cmdOut->setEnabled(true);
        return;
    }
    QList<QStringList> lines{kHeaders.mid(1)};
    for (int i = 0; i < lstUser->topLevelItemCount(); ++i) {
        QStringList fields;
        for (int column = ColPlace; column <= ColDiff; ++column)
            fields << lstUser->topLevelItem(i)->text(column);
        lines << fields;
    }
    QString error;
    if (roster::writeCsv(path, lines, &error))
        ui().message(QStringLiteral("导出完毕"), MsgStyle::Information, titles::notice);
    else
        ui().message(error, MsgStyle::Critical, titles::error);
    cmdOut->setEnabled(true);
}

void RosterManagerDialog::addUser() {
    AddParticipantDialog form(this);
    if (form.exec() == QDialog::Accepted)
        rdUserLst(QStringLiteral("K") + QString::number(form.addedId()), QString(), 1);
}

void RosterManagerDialog::importExcel() {
    if (rosterscreens::importExcel(this, false)) rdUserLst(QString(), QString(), 1);
}

void RosterManagerDialog::importTxt() {
    if (rosterscreens::importTxt(this, false)) rdUserLst(QString(), QString(), 1);
}

void RosterManagerDialog::importPhotos() {
    rosterscreens::importPhotos(this, false);
    rdUserLst(QString(), QString(), 1);
}

void RosterManagerDialog::generateNumbers() {
    rosterscreens::generateNumbers(this, false);
    rdUserLst(QString(), QString(), 1);
}
