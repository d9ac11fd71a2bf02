#include "results/view/winnerlistdialog.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "chrome/icons.h"
#include "chrome/style.h"
#include "chrome/widgethelpers.h"
#include "core/store.h"
#include "core/ui.h"
#include "results/exportas.h"
#include "results/view/printwinners.h"
#include "results/winnerlist.h"

namespace {

// The form is never narrower than this.
constexpr int kMinWidth = 420;

QPushButton *toolButton(const QString &icon, const QString &caption, QWidget *parent) {
    auto *button = new QPushButton(icons::icon(icon, style::kBright, 20), caption, parent);
    button->setIconSize(QSize(18, 18));
    button->setCursor(Qt::PointingHandCursor);
    button->setAutoDefault(false);
    return button;
}

}  // namespace

WinnerListDialog::WinnerListDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(tr("查看中奖"));
    buildList();
    m_winnerCountLabel = new QLabel(this);
    m_winnerCountLabel->setObjectName(QStringLiteral("winnerCountLabel"));
    m_prizeTotalLabel = new QLabel(this);
    m_prizeTotalLabel->setObjectName(QStringLiteral("prizeTotalLabel"));
    for (QLabel *label : {m_winnerCountLabel, m_prizeTotalLabel})
        label->setProperty("role", "heading");
    auto *totals = new QHBoxLayout;
    totals->setSpacing(28);
    totals->addWidget(m_winnerCountLabel);
    totals->addWidget(m_prizeTotalLabel);
    totals->addStretch();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 14);
    layout->setSpacing(10);
    layout->addWidget(buildToolbar());
    layout->addWidget(m_winnerList, 1);
    layout->addLayout(totals);

    connect(m_exportButton, &QPushButton::clicked, this, [] { exportWinnersAs(); });
    connect(m_printButton, &QPushButton::clicked, this, [] { printWinners(true); });

    setMinimumWidth(kMinWidth);
    resize(760, 540);
    showWinners();
    centerForm(this);
}

QWidget *WinnerListDialog::buildToolbar() {
    auto *bar = new QWidget(this);
    m_exportButton = toolButton(QStringLiteral("export"), tr("导出名单"), bar);
    m_exportButton->setObjectName(QStringLiteral("exportButton"));
    m_printButton = toolButton(QStringLiteral("print"), tr("打印名单"), bar);
    m_printButton->setObjectName(QStringLiteral("printButton"));
    auto *hint = new QLabel(tr("按奖项顺序列出每一个中奖记录"), bar);
    hint->setProperty("role", "hint");
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_exportButton);
    layout->addWidget(m_printButton);
    layout->addStretch();
    layout->addWidget(hint);
    return bar;
}

void WinnerListDialog::buildList() {
    m_winnerList = new QTreeWidget(this);
    m_winnerList->setObjectName(QStringLiteral("winnerList"));
    m_winnerList->setColumnCount(ColumnCount);
    m_winnerList->setHeaderLabels(
        {tr("序号"), tr("奖项名称"), tr("奖品名称"), tr("中奖名单"), tr("备注"), tr("状态")});
    style::styleList(m_winnerList);
    const int widths[] = {60, 120, 150, 130, 150};
    for (int column = 0; column < StatusColumn; ++column)
        m_winnerList->setColumnWidth(column, widths[column]);
    m_winnerList->headerItem()->setTextAlignment(NumberColumn, Qt::AlignCenter);
    m_winnerList->headerItem()->setTextAlignment(StatusColumn, Qt::AlignCenter);
    m_winnerList->header()->setStretchLastSection(true);
    m_winnerList->header()->setSectionsMovable(false);
}

void WinnerListDialog::showWinners() {
    m_winnerList->clear();
    const results::WinnerList list = results::readWinnerList(store::mainConn());
    if (!list.error.isEmpty()) ui().message(list.error, MsgStyle::Critical, titles::error);
    QList<QTreeWidgetItem *> items;
    items.reserve(list.rows.size());
    for (const results::WinnerListRow &row : list.rows) {
        auto *item = new QTreeWidgetItem;
        item->setData(NumberColumn, Qt::UserRole,
                      QStringLiteral("K") + QString::number(row.number));
        item->setText(NumberColumn, QString::number(row.number));
        item->setText(AwardColumn, row.awardName);
        item->setText(PrizeColumn, row.prizeName);
        item->setText(WinnerColumn, row.winnerName);
        item->setText(RemarkColumn, row.remark);
        item->setText(StatusColumn, row.status);
        item->setTextAlignment(NumberColumn, Qt::AlignCenter);
        item->setTextAlignment(StatusColumn, Qt::AlignCenter);
        for (int column = 0; column < ColumnCount; ++column)
            if (row.greyRow || (row.greyStatus && column == StatusColumn))
                item->setForeground(column, results::kDimmedText);
        items << item;
    }
    m_winnerList->addTopLevelItems(items);
    m_winnerCountLabel->setText(results::winnerCountText(list));
    m_prizeTotalLabel->setText(results::prizeTotalText(list));
}
