#include "draw/view/giveupdialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "chrome/icons.h"
#include "chrome/style.h"
#include "chrome/widgethelpers.h"
#include "core/events.h"
#include "core/store.h"
#include "core/ui.h"
#include "draw/giveup.h"

namespace {

QString keyOf(qint64 id) {
    return QStringLiteral("K") + QString::number(id);
}

qint64 idOf(const QTreeWidgetItem *item) {
    return item->data(GiveUpDialog::ColNumber, Qt::UserRole).toString().mid(1).toLongLong();
}

}  // namespace

GiveUpDialog::GiveUpDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("弃奖"));
    buildList();
    labInfo = new QLabel(this);
    labInfo->setProperty("role", "hint");
    cmdPre = new QPushButton(QStringLiteral("上一页"), this);
    cmdNext = new QPushButton(QStringLiteral("下一页"), this);
    cmdDelLuck = new QPushButton(QStringLiteral("弃奖"), this);
    cmdDelLuck->setProperty("role", "primary");
    for (QPushButton *button : {cmdPre, cmdNext, cmdDelLuck})
        button->setAutoDefault(false);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(labInfo);
    bottom->addStretch();
    bottom->addWidget(cmdPre);
    bottom->addWidget(cmdNext);
    bottom->addSpacing(12);
    bottom->addWidget(cmdDelLuck);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->setSpacing(10);
    layout->addWidget(buildSearchBar());
    layout->addWidget(lstUser, 1);
    layout->addLayout(bottom);

    connect(cmdSearch, &QPushButton::clicked, this, [this] {
        pageNo = 1;
        showList(txtKey->text().trimmed(), pageNo);
    });
    connect(txtKey, &QLineEdit::returnPressed, cmdSearch, &QPushButton::click);
    connect(cmdCancelKey, &QToolButton::clicked, this, [this] {
        pageNo = 1;
        showList(QString(), pageNo);
    });
    connect(cmdPre, &QPushButton::clicked, this, [this] { turnPage(-1); });
    connect(cmdNext, &QPushButton::clicked, this, [this] { turnPage(1); });
    connect(cmdDelLuck, &QPushButton::clicked, this, &GiveUpDialog::delLuck);

    resize(620, 560);
    showList(QString(), pageNo);
    centerForm(this);
}

QWidget *GiveUpDialog::buildSearchBar() {
    auto *bar = new QWidget(this);
    auto *searchIcon = new QLabel(bar);
    searchIcon->setPixmap(icons::pixmap(QStringLiteral("search"), style::kSoft, 18));
    txtKey = new QLineEdit(bar);
    txtKey->setPlaceholderText(QStringLiteral("请输入查询关键字"));
    cmdCancelKey = new QToolButton(bar);
    cmdCancelKey->setText(QStringLiteral("×"));
    cmdCancelKey->setToolTip(QStringLiteral("清除查询关键字"));
    cmdCancelKey->setCursor(Qt::PointingHandCursor);
    cmdCancelKey->setStyleSheet(QStringLiteral(
        "QToolButton { border: none; font-size: 18px; color: rgb(169,97,100); padding: 0 6px; }"
        "QToolButton:hover { color: rgb(200,40,58); }"));
    cmdSearch = new QPushButton(QStringLiteral("查找名单"), bar);
    cmdSearch->setAutoDefault(false);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(searchIcon);
    layout->addWidget(txtKey, 1);
    layout->addWidget(cmdCancelKey);
    layout->addWidget(cmdSearch);
    return bar;
}

void GiveUpDialog::buildList() {
    lstUser = new QTreeWidget(this);
    lstUser->setColumnCount(ColumnCount);
    lstUser->setHeaderLabels({QStringLiteral("序号"), QStringLiteral("中奖名单"),
                              QStringLiteral("所中奖项"), QStringLiteral("状态")});
    style::styleList(lstUser);
    lstUser->setColumnWidth(ColNumber, 78);
    lstUser->setColumnWidth(ColName, 170);
    lstUser->setColumnWidth(ColAwards, 200);
    lstUser->header()->setStretchLastSection(true);
    lstUser->header()->setSectionsMovable(false);
}

void GiveUpDialog::showList(const QString &keyword, int page) {
    lstUser->clear();
    if (keyword.trimmed().isEmpty()) txtKey->clear();
    const draw::GiveUpPage list = draw::giveUpPage(store::mainConn(), keyword, page);
    pageNo = list.pageNo;
    labInfo->setText(draw::pageInfo(list));
    if (list.rows.isEmpty()) {
        for (QPushButton *button : {cmdPre, cmdNext, cmdDelLuck})
            button->setEnabled(false);
        return;
    }
    for (const draw::GiveUpRow &row : list.rows) {
        auto *item = new QTreeWidgetItem(lstUser);
        item->setData(ColNumber, Qt::UserRole, keyOf(row.id));
        item->setCheckState(ColNumber, Qt::Unchecked);
        item->setText(ColNumber, QString::number(row.number));
        item->setText(ColName, row.userName);
        item->setText(ColAwards, row.awards);
        item->setToolTip(ColAwards, row.awards);
        const draw::StatusLook look = draw::giveUpStatus(row.status);
        item->setText(ColStatus, look.text);
        if (look.color.isValid()) item->setForeground(ColStatus, look.color);
    }
    QTreeWidgetItem *first = lstUser->topLevelItem(0);
    lstUser->setCurrentItem(first);
    lstUser->scrollToItem(first);
    cmdDelLuck->setEnabled(true);
    cmdPre->setEnabled(list.pageNo > 1);
    cmdNext->setEnabled(list.pageNo < list.pages);
}

void GiveUpDialog::turnPage(int step) {
    pageNo += step;
    showList(txtKey->text().trimmed(), pageNo);
}

void GiveUpDialog::setTicked(qint64 id, bool ticked) {
    for (int i = 0; i < lstUser->topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = lstUser->topLevelItem(i);
        if (idOf(item) == id) item->setCheckState(ColNumber, ticked ? Qt::Checked : Qt::Unchecked);
    }
}

void GiveUpDialog::delLuck() {
    QList<qint64> ids;
    for (int i = 0; i < lstUser->topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = lstUser->topLevelItem(i);
        if (item->checkState(ColNumber) == Qt::Checked) ids << idOf(item);
    }
    if (ids.isEmpty()) {
        ui().message(QStringLiteral("请勾选需要做弃奖的的名单!"), MsgStyle::Exclamation,
                     titles::notice);
        return;
    }
    if (!ui().question(QStringLiteral("确认要将选择的中奖名单做弃奖么?"), titles::warning)) return;
    QString error;
    if (!draw::giveUp(store::mainConn(), ids, &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    showList(txtKey->text().trimmed(), pageNo);
    Q_EMIT events().resultsChanged();
    Q_EMIT givenUp();
}
