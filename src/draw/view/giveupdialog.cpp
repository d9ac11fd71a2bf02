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
#include "chrome/widgets.h"
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
    setWindowTitle(tr("弃奖"));
    buildList();
    m_pageLabel = new QLabel(this);
    m_pageLabel->setObjectName(QStringLiteral("pageLabel"));
    m_pageLabel->setProperty("role", "hint");
    m_previousPageButton = new QPushButton(tr("上一页"), this);
    m_previousPageButton->setObjectName(QStringLiteral("previousPageButton"));
    m_nextPageButton = new QPushButton(tr("下一页"), this);
    m_nextPageButton->setObjectName(QStringLiteral("nextPageButton"));
    m_giveUpButton = new QPushButton(tr("弃奖"), this);
    m_giveUpButton->setObjectName(QStringLiteral("giveUpButton"));
    m_giveUpButton->setProperty("role", "primary");
    for (QPushButton *button : {m_previousPageButton, m_nextPageButton, m_giveUpButton})
        button->setAutoDefault(false);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_pageLabel);
    bottom->addStretch();
    bottom->addWidget(m_previousPageButton);
    bottom->addWidget(m_nextPageButton);
    bottom->addSpacing(12);
    bottom->addWidget(m_giveUpButton);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->setSpacing(10);
    layout->addWidget(buildSearchBar());
    layout->addWidget(m_winnerList, 1);
    layout->addLayout(bottom);

    connect(m_searchButton, &QPushButton::clicked, this, [this] {
        m_pageNo = 1;
        showList(m_searchEdit->text().trimmed(), m_pageNo);
    });
    connect(m_searchEdit, &QLineEdit::returnPressed, m_searchButton, &QPushButton::click);
    connect(m_clearSearchButton, &QToolButton::clicked, this, [this] {
        m_pageNo = 1;
        showList(QString(), m_pageNo);
    });
    connect(m_previousPageButton, &QPushButton::clicked, this, [this] { turnPage(-1); });
    connect(m_nextPageButton, &QPushButton::clicked, this, [this] { turnPage(1); });
    connect(m_giveUpButton, &QPushButton::clicked, this, &GiveUpDialog::giveUpTicked);

    resize(620, 560);
    showList(QString(), m_pageNo);
    centerForm(this);
}

QWidget *GiveUpDialog::buildSearchBar() {
    auto *bar = new QWidget(this);
    auto *searchIcon = new QLabel(bar);
    searchIcon->setPixmap(icons::pixmap(QStringLiteral("search"), style::kSoft, 18));
    m_searchEdit = new QLineEdit(bar);
    m_searchEdit->setObjectName(QStringLiteral("searchEdit"));
    m_searchEdit->setPlaceholderText(tr("请输入查询关键字"));
    m_clearSearchButton = clearSearchButton(bar);
    m_searchButton = new QPushButton(tr("查找名单"), bar);
    m_searchButton->setObjectName(QStringLiteral("searchButton"));
    m_searchButton->setAutoDefault(false);
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    layout->addWidget(searchIcon);
    layout->addWidget(m_searchEdit, 1);
    layout->addWidget(m_clearSearchButton);
    layout->addWidget(m_searchButton);
    return bar;
}

void GiveUpDialog::buildList() {
    m_winnerList = new QTreeWidget(this);
    m_winnerList->setObjectName(QStringLiteral("winnerList"));
    m_winnerList->setColumnCount(ColumnCount);
    m_winnerList->setHeaderLabels({tr("序号"), tr("中奖名单"), tr("所中奖项"), tr("状态")});
    style::styleList(m_winnerList);
    m_winnerList->setColumnWidth(ColNumber, 78);
    m_winnerList->setColumnWidth(ColName, 170);
    m_winnerList->setColumnWidth(ColAwards, 200);
    m_winnerList->header()->setStretchLastSection(true);
    m_winnerList->header()->setSectionsMovable(false);
}

void GiveUpDialog::showList(const QString &keyword, int page) {
    m_winnerList->clear();
    if (keyword.trimmed().isEmpty()) m_searchEdit->clear();
    const draw::GiveUpPage list = draw::giveUpPage(store::mainConn(), keyword, page);
    m_pageNo = list.pageNo;
    m_pageLabel->setText(draw::pageInfo(list));
    if (list.rows.isEmpty()) {
        for (QPushButton *button : {m_previousPageButton, m_nextPageButton, m_giveUpButton})
            button->setEnabled(false);
        return;
    }
    for (const draw::GiveUpRow &row : list.rows) {
        auto *item = new QTreeWidgetItem(m_winnerList);
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
    QTreeWidgetItem *first = m_winnerList->topLevelItem(0);
    m_winnerList->setCurrentItem(first);
    m_winnerList->scrollToItem(first);
    m_giveUpButton->setEnabled(true);
    m_previousPageButton->setEnabled(list.pageNo > 1);
    m_nextPageButton->setEnabled(list.pageNo < list.pages);
}

void GiveUpDialog::turnPage(int step) {
    m_pageNo += step;
    showList(m_searchEdit->text().trimmed(), m_pageNo);
}

void GiveUpDialog::giveUpTicked() {
    QList<qint64> ids;
    for (int i = 0; i < m_winnerList->topLevelItemCount(); ++i) {
        QTreeWidgetItem *item = m_winnerList->topLevelItem(i);
        if (item->checkState(ColNumber) == Qt::Checked) ids << idOf(item);
    }
    if (ids.isEmpty()) {
        ui().message(tr("请勾选需要做弃奖的的名单!"), MsgStyle::Exclamation, titles::notice);
        return;
    }
    if (!ui().question(tr("确认要将选择的中奖名单做弃奖么?"), titles::warning)) return;
    QString error;
    if (!draw::giveUp(store::mainConn(), ids, &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    showList(m_searchEdit->text().trimmed(), m_pageNo);
    Q_EMIT events().resultsChanged();
    Q_EMIT givenUp();
}
