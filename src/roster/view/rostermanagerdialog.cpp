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
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "chrome/widgets.h"
#include "core/events.h"
#include "core/logging.h"
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

// The list's column titles, also the header line of the export.
QStringList headers() {
    return {RosterManagerDialog::tr("选择"),
            RosterManagerDialog::tr("排序"),
            RosterManagerDialog::tr("抽奖名单(抽奖时滚动的内容)"),
            RosterManagerDialog::tr("备注"),
            RosterManagerDialog::tr("照片"),
            RosterManagerDialog::tr("状态"),
            RosterManagerDialog::tr("区分编号")};
}

}  // namespace

RosterManagerDialog::RosterManagerDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(tr("抽奖名单 - 管理"));
    resize(1080, 660);
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(buildList(), 1);
    layout->addWidget(buildEditor());
    setEditorEnabled(false);
    // The first fill waits for the viewer's "loadok", as its picture follows the selection.
    connect(m_pictureBox, &PictureBox::loaded, this,
            [this] { showParticipants(QString(), m_page); });
    if (!m_pictureBox->start()) showParticipants(QString(), m_page);
}

RosterManagerDialog::~RosterManagerDialog() = default;

void RosterManagerDialog::showManager(QWidget *parent) {
    RosterManagerDialog form(parent);
    form.exec();
    emit events().rosterChanged();
}

QToolBar *RosterManagerDialog::buildToolbar(QWidget *parent) {
    struct ToolAction {
        QString text;
        const char *name;
        void (RosterManagerDialog::*handler)();
    };
    const QList<ToolAction> actions{
        {tr("  全选"), "tickAllAction", &RosterManagerDialog::toggleAllTicks},
        {tr("增加名单"), "addAction", &RosterManagerDialog::addParticipant},
        {tr("删除名单"), "deleteAction", &RosterManagerDialog::deleteTicked},
        {QString(), nullptr, nullptr},
        {tr("导入Excel"), "importExcelAction", &RosterManagerDialog::importExcel},
        {tr("导入txt   "), "importTextAction", &RosterManagerDialog::importText},
        {tr("导入照片"), "importPhotosAction", &RosterManagerDialog::importPhotos},
        {tr("生成编号"), "generateNumbersAction", &RosterManagerDialog::generateNumbers}};
    auto *toolbar = new QToolBar(parent);
    toolbar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    for (const ToolAction &action : actions) {
        if (!action.handler) {
            toolbar->addSeparator();
            continue;
        }
        QAction *added = toolbar->addAction(action.text);
        added->setObjectName(QLatin1String(action.name));
        connect(added, &QAction::triggered, this, action.handler);
    }
    return toolbar;
}

QWidget *RosterManagerDialog::buildList() {
    auto *panel = new QWidget(this);
    QToolBar *toolbar = buildToolbar(panel);

    m_searchEdit = new QLineEdit(panel);
    m_searchEdit->setObjectName(QStringLiteral("searchEdit"));
    m_searchEdit->setPlaceholderText(tr("输入名单关键字"));
    m_clearSearchButton = clearSearchButton(panel);
    m_searchButton = new QPushButton(tr("查找名单"), panel);
    m_searchButton->setObjectName(QStringLiteral("searchButton"));
    m_sortCombo = new QComboBox(panel);
    m_sortCombo->setObjectName(QStringLiteral("sortCombo"));
    m_sortCombo->addItems(
        {tr("默认排序"), tr("按备注信息排序"), tr("按区分编号排序"), tr("按状态排序")});
    auto *search = new QHBoxLayout;
    search->addWidget(m_searchEdit, 1);
    search->addWidget(m_clearSearchButton);
    search->addWidget(m_searchButton);
    search->addWidget(m_sortCombo);

    m_participantList = new QTreeWidget(panel);
    m_participantList->setObjectName(QStringLiteral("participantList"));
    m_participantList->setHeaderLabels(headers());
    m_participantList->setRootIsDecorated(false);
    m_participantList->setUniformRowHeights(true);
    m_participantList->setAlternatingRowColors(true);
    m_participantList->header()->setStretchLastSection(true);
    m_participantList->setColumnWidth(ColTick, 44);
    m_participantList->setColumnWidth(ColPlace, 50);
    m_participantList->setColumnWidth(ColName, 200);
    m_participantList->setColumnWidth(ColPart, 130);
    m_participantList->setColumnWidth(ColPhoto, 120);
    m_participantList->setColumnWidth(ColStatus, 70);
    m_participantList->setColumnWidth(ColDiff, 80);

    m_totalLabel = new QLabel(panel);
    m_totalLabel->setObjectName(QStringLiteral("totalLabel"));
    m_wonLabel = new QLabel(panel);
    m_wonLabel->setObjectName(QStringLiteral("wonLabel"));
    m_gaveUpLabel = new QLabel(panel);
    m_gaveUpLabel->setObjectName(QStringLiteral("gaveUpLabel"));
    m_pageLabel = new QLabel(panel);
    m_pageLabel->setObjectName(QStringLiteral("pageLabel"));
    m_tickAllBox = new QCheckBox(tr("全选"), panel);
    m_tickAllBox->setObjectName(QStringLiteral("tickAllBox"));
    m_previousPageButton = new QPushButton(tr("上一页"), panel);
    m_previousPageButton->setObjectName(QStringLiteral("previousPageButton"));
    m_nextPageButton = new QPushButton(tr("下一页"), panel);
    m_nextPageButton->setObjectName(QStringLiteral("nextPageButton"));
    m_setDiffNumButton = new QPushButton(tr("批量设置区分编号"), panel);
    m_setDiffNumButton->setObjectName(QStringLiteral("setDiffNumButton"));
    m_exportButton = new QPushButton(tr("导出"), panel);
    m_exportButton->setObjectName(QStringLiteral("exportButton"));
    auto *counters = new QHBoxLayout;
    for (QWidget *w : QList<QWidget *>{m_tickAllBox, m_totalLabel, m_wonLabel, m_gaveUpLabel})
        counters->addWidget(w);
    counters->addStretch();
    counters->addWidget(m_pageLabel);
    counters->addWidget(m_previousPageButton);
    counters->addWidget(m_nextPageButton);
    counters->addWidget(m_setDiffNumButton);
    counters->addWidget(m_exportButton);
    // The counters grow with the roster; the buttons keep their whole captions and the dialog
    // widens instead. The style sheet's own minimum would let the layout squeeze them.
    for (QPushButton *button :
         {m_previousPageButton, m_nextPageButton, m_setDiffNumButton, m_exportButton}) {
        button->ensurePolished();
        button->setMinimumWidth(button->sizeHint().width());
    }

    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(toolbar);
    layout->addLayout(search);
    layout->addWidget(m_participantList, 1);
    layout->addLayout(counters);

    connect(m_previousPageButton, &QPushButton::clicked, this,
            [this] { showParticipants(m_searchEdit->text().trimmed(), m_page - 1); });
    connect(m_nextPageButton, &QPushButton::clicked, this,
            [this] { showParticipants(m_searchEdit->text().trimmed(), m_page + 1); });
    connect(m_searchButton, &QPushButton::clicked, this, [this] {
        refresh();
        m_participantList->setFocus();
    });
    connect(m_searchEdit, &QLineEdit::returnPressed, m_searchButton, &QPushButton::click);
    connect(m_clearSearchButton, &QToolButton::clicked, this, [this] {
        m_searchEdit->clear();
        refresh();
    });
    connect(m_sortCombo, &QComboBox::currentIndexChanged, this, [this] { refresh(); });
    connect(m_participantList, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem *item) { loadEditor(item); });
    connect(m_tickAllBox, &QCheckBox::clicked, this, &RosterManagerDialog::setAllTicks);
    connect(m_setDiffNumButton, &QPushButton::clicked, this,
            &RosterManagerDialog::setDiffNumOfTicked);
    connect(m_exportButton, &QPushButton::clicked, this, &RosterManagerDialog::exportPage);
    return panel;
}

QWidget *RosterManagerDialog::buildEditor() {
    auto *editorBox = new QGroupBox(tr("名单编辑"), this);
    editorBox->setFixedWidth(240);
    m_pictureBox = new PictureBox(editorBox);
    m_photoStateEdit = new QLineEdit(QStringLiteral("no"), editorBox);
    m_photoStateEdit->setObjectName(QStringLiteral("photoStateEdit"));
    m_photoStateEdit->hide();
    m_photoToolbar = editorparts::makePhotoToolbar(this, m_pictureBox, m_photoStateEdit,
                                                   QStringLiteral("RosterManagerDialog"),
                                                   tr("图片文件(*.jpg *.gif *.bmp *.jpeg *.png)"));
    m_nameEdit = new QLineEdit(editorBox);
    m_nameEdit->setObjectName(QStringLiteral("nameEdit"));
    m_remarkEdit = new QLineEdit(editorBox);
    m_remarkEdit->setObjectName(QStringLiteral("remarkEdit"));
    m_diffNumEdit = new QLineEdit(editorBox);
    m_diffNumEdit->setObjectName(QStringLiteral("diffNumEdit"));
    editorparts::makeDiffNumEdit(m_diffNumEdit);
    m_saveButton = new QPushButton(tr("编辑"), editorBox);
    m_saveButton->setObjectName(QStringLiteral("saveButton"));
    auto *layout = new QVBoxLayout(editorBox);
    layout->addWidget(m_pictureBox, 0, Qt::AlignHCenter);
    layout->addWidget(m_photoToolbar, 0, Qt::AlignHCenter);
    auto *form = new QFormLayout;
    form->setRowWrapPolicy(QFormLayout::WrapAllRows);
    editorparts::addParticipantRows(form, m_nameEdit, m_remarkEdit, m_diffNumEdit);
    layout->addLayout(form);
    layout->addWidget(m_saveButton);
    layout->addStretch();
    connect(m_saveButton, &QPushButton::clicked, this, &RosterManagerDialog::saveParticipant);
    return editorBox;
}

void RosterManagerDialog::refresh() {
    showParticipants(m_searchEdit->text().trimmed(), m_page);
}

void RosterManagerDialog::setEditorEnabled(bool enabled) {
    for (QWidget *w :
         QList<QWidget *>{m_nameEdit, m_remarkEdit, m_diffNumEdit, m_saveButton, m_photoToolbar})
        w->setEnabled(enabled);
}

void RosterManagerDialog::clearEditor() {
    m_pictureBox->clearPicture();
    m_nameEdit->clear();
    m_remarkEdit->clear();
    m_diffNumEdit->clear();
    m_photoStateEdit->setText(QStringLiteral("no"));
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
    m_participantList->addTopLevelItem(item);
}

void RosterManagerDialog::showParticipants(const QString &search, int page, int selectId) {
    const QSignalBlocker blocker(m_participantList);
    m_participantList->clear();
    roster::Page result;
    QString error;
    if (!roster::readPage(store::mainConn(), search, m_sortCombo->currentIndex(), page, &result,
                          &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    if (search.trimmed().isEmpty()) m_searchEdit->clear();
    m_page = result.page;
    QTreeWidgetItem *selected = nullptr;
    int place = 0;
    for (const roster::Participant &participant : std::as_const(result.rows)) {
        addRow(++place, participant);
        const bool wanted = selectId > 0 ? participant.id == selectId : place == result.recordCount;
        if (!selected && wanted) selected = m_participantList->topLevelItem(place - 1);
    }
    // The editor works on the selected row: on a page where none is selected (a long roster
    // selects none by default) it waits for a click.
    clearEditor();
    setEditorEnabled(selected != nullptr);
    m_previousPageButton->setEnabled(result.pageCount > 0 && m_page > 1);
    m_nextPageButton->setEnabled(m_page < result.pageCount);
    if (selected) {
        m_participantList->setCurrentItem(selected);
        m_participantList->scrollToItem(selected);
        loadEditor(selected);
    }
    updateCounters(result.recordCount, result.won, result.gaveUp, result.pageCount);
    if (result.won == 0) settings::write(QStringLiteral("selJxid"), 0);
}

void RosterManagerDialog::updateCounters(int total, int won, int gaveUp, int pageCount) {
    m_totalLabel->setText(tr("总计人数：%1").arg(total));
    m_wonLabel->setText(tr("已中奖人数：%1").arg(won));
    m_gaveUpLabel->setText(tr("弃奖∶%1").arg(gaveUp));
    m_pageLabel->setText(tr("当前第∶%1页/ 共%2页").arg(m_page).arg(pageCount));
}

void RosterManagerDialog::loadEditor(QTreeWidgetItem *item) {
    setEditorEnabled(item != nullptr);
    if (!item) return;
    m_pictureBox->clearPicture();
    roster::Participant participant;
    if (!roster::loadParticipant(store::mainConn(), item->data(ColTick, kIdRole).toInt(),
                                 &participant)) {
        ui().message(tr("找不到对应的名单"), MsgStyle::Critical, titles::error);
        return;
    }
    const bool hasPhoto = !participant.photo.trimmed().isEmpty();
    if (hasPhoto) m_pictureBox->showPicture(participant.photo);
    m_photoStateEdit->setText(hasPhoto ? QStringLiteral("yes") : QStringLiteral("no"));
    m_nameEdit->setText(participant.name);
    m_remarkEdit->setText(participant.part);
    m_diffNumEdit->setText(roster::diffNumText(participant.diffNum));
}

void RosterManagerDialog::saveParticipant() {
    const QString diff = m_diffNumEdit->text().trimmed();
    if (!diff.isEmpty() && !roster::isNumeric(diff)) {
        ui().message(tr("“区分编号”只能填写数字"), MsgStyle::Exclamation, titles::warning);
        m_diffNumEdit->setFocus();
        selectAllText(m_diffNumEdit);
        return;
    }
    if (!roster::diffNumFits(diff)) {
        ui().message(roster::kDiffNumTooLarge, MsgStyle::Exclamation, titles::warning);
        m_diffNumEdit->setFocus();
        selectAllText(m_diffNumEdit);
        return;
    }
    // Nobody may be nameless: the stage would scroll an empty cell and the draw could pick it.
    if (m_nameEdit->text().trimmed().isEmpty()) {
        ui().message(editorparts::missingNameMessage(), MsgStyle::Information, titles::notice);
        m_nameEdit->setFocus();
        return;
    }
    QTreeWidgetItem *item = m_participantList->currentItem();
    if (!item) return;
    const int id = item->data(ColTick, kIdRole).toInt();
    if (store::isDuplicate(QStringLiteral("UserList"), QStringLiteral("UserName"),
                           QStringLiteral("UserPart"), m_nameEdit->text().trimmed(),
                           m_remarkEdit->text().trimmed(), id)) {
        ui().message(editorparts::duplicateMessage(), MsgStyle::Critical, tr("编辑失败"));
        return;
    }
    roster::Participant stored;
    if (!roster::loadParticipant(store::mainConn(), id, &stored))
        qCWarning(lcRoster) << "cannot read the stored photo of participant" << id;
    const QString photo = roster::settlePhoto(id, m_photoStateEdit->text(), stored.photo);
    QString error;
    if (!store::exec(store::mainConn(),
                     QStringLiteral("UPDATE UserList SET UserName=?, UserPart=?, DiffNum=?, "
                                    "UserPhoto=? WHERE ID=?"),
                     {m_nameEdit->text(), m_remarkEdit->text(),
                      diff.isEmpty() ? QVariant() : QVariant(diff.toLongLong()), photo, id},
                     &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    ui().message(tr("数据更新成功！"), MsgStyle::Information, titles::notice);
    showParticipants(m_searchEdit->text().trimmed(), m_page, id);
    m_participantList->setFocus();
}

QList<int> RosterManagerDialog::tickedIds() const {
    QList<int> ids;
    for (int i = 0; i < m_participantList->topLevelItemCount(); ++i) {
        const QTreeWidgetItem *item = m_participantList->topLevelItem(i);
        if (item->checkState(ColTick) != Qt::Checked) continue;
        ids << item->data(ColTick, kIdRole).toInt();
    }
    return ids;
}

void RosterManagerDialog::deleteTicked() {
    const QList<int> ids = tickedIds();
    if (ids.isEmpty()) {
        ui().message(tr("请勾选需要删除的名单!"), MsgStyle::Critical, tr("删除失败"));
        return;
    }
    if (!ui().question(tr("确认要删除选择的抽奖名单么?"), titles::warning)) return;
    QString error;
    if (!roster::deleteParticipants(store::mainConn(), ids, &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    showParticipants(QString(), m_page);
}

void RosterManagerDialog::setAllTicks(bool ticked) {
    for (int i = 0; i < m_participantList->topLevelItemCount(); ++i)
        m_participantList->topLevelItem(i)->setCheckState(ColTick,
                                                          ticked ? Qt::Checked : Qt::Unchecked);
}

void RosterManagerDialog::toggleAllTicks() {
    m_tickAllBox->setChecked(!m_tickAllBox->isChecked());
    setAllTicks(m_tickAllBox->isChecked());
}

void RosterManagerDialog::setDiffNumOfTicked() {
    const QList<int> ids = tickedIds();
    if (ids.isEmpty()) {
        ui().message(tr("请勾选需要设置区分编号的名单!"), MsgStyle::Critical, titles::notice);
        return;
    }
    const QString answer =
        ui().inputText(tr("请输入区分编号\n只能输入数字"), titles::notice, QStringLiteral("0"))
            .trimmed();
    if (answer.isEmpty()) return;
    bool ok = false;
    const int value = answer.toInt(&ok);
    if (!ok) {
        ui().message(tr("您没输入正确的区分编号!"), MsgStyle::Critical, tr("更新失败"));
        return;
    }
    QString error;
    if (!roster::setDiffNum(store::mainConn(), ids, value, &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    ui().message(tr("数据更新成功！"), MsgStyle::Information, titles::notice);
    refresh();
}

void RosterManagerDialog::exportPage() {
    m_exportButton->setEnabled(false);
    const QString path =
        ui().saveFile(tr("导出文件"), tr("抽奖名单.csv"), QStringLiteral("Text Files (*.csv)"));
    if (path.isEmpty()) {
        m_exportButton->setEnabled(true);
        return;
    }
    QList<QStringList> lines{headers().mid(1)};
    for (int i = 0; i < m_participantList->topLevelItemCount(); ++i) {
        QStringList fields;
        for (int column = ColPlace; column <= ColDiff; ++column)
            fields << m_participantList->topLevelItem(i)->text(column);
        lines << fields;
    }
    QString error;
    if (roster::writeCsv(path, lines, &error))
        ui().message(tr("导出完毕"), MsgStyle::Information, titles::notice);
    else
        ui().message(error, MsgStyle::Critical, titles::error);
    m_exportButton->setEnabled(true);
}

void RosterManagerDialog::addParticipant() {
    AddParticipantDialog form(this);
    if (form.exec() == QDialog::Accepted) showParticipants(QString(), 1, form.addedId());
}

void RosterManagerDialog::importExcel() {
    if (rosterscreens::importExcel(this, false)) showParticipants(QString(), 1);
}

void RosterManagerDialog::importText() {
    if (rosterscreens::importText(this, false)) showParticipants(QString(), 1);
}

void RosterManagerDialog::importPhotos() {
    rosterscreens::importPhotos(this, false);
    showParticipants(QString(), 1);
}

void RosterManagerDialog::generateNumbers() {
    rosterscreens::generateNumbers(this, false);
    showParticipants(QString(), 1);
}
