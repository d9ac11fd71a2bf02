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
#include "results/lucklist.h"
#include "results/view/printwinners.h"

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
    setWindowTitle(QStringLiteral("查看中奖"));
    buildList();
    labmsg = new QLabel(this);
    Label1 = new QLabel(this);
    for (QLabel *label : {labmsg, Label1})
        label->setProperty("role", "heading");
    auto *totals = new QHBoxLayout;
    totals->setSpacing(28);
    totals->addWidget(labmsg);
    totals->addWidget(Label1);
    totals->addStretch();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 14);
    layout->setSpacing(10);
    layout->addWidget(buildToolbar());
    layout->addWidget(lstUser, 1);
    layout->addLayout(totals);

    connect(cmdOut, &QPushButton::clicked, this, [] { exportWinnersAs(); });
    connect(cmdPrint, &QPushButton::clicked, this, [] { printWinners(true); });

    setMinimumWidth(kMinWidth);
    resize(760, 540);
    fill();
    centerForm(this);
}

QWidget *WinnerListDialog::buildToolbar() {
    auto *bar = new QWidget(this);
    cmdOut = toolButton(QStringLiteral("export"), QStringLiteral("导出名单"), bar);
    cmdPrint = toolButton(QStringLiteral("print"), QStringLiteral("打印名单"), bar);
    auto *hint = new QLabel(QStringLiteral("按奖项顺序列出每一个中奖记录"), bar);
    hint->setProperty("role", "hint");
    auto *layout = new QHBoxLayout(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(cmdOut);
    layout->addWidget(cmdPrint);
    layout->addStretch();
    layout->addWidget(hint);
    return bar;
}

void WinnerListDialog::buildList() {
    lstUser = new QTreeWidget(this);
    lstUser->setColumnCount(ColumnCount);
    lstUser->setHeaderLabels({QStringLiteral("序号"), QStringLiteral("奖项名称"),
                              QStringLiteral("奖品名称"), QStringLiteral("中奖名单"),
                              QStringLiteral("备注"), QStringLiteral("状态")});
    style::styleList(lstUser);
    const int widths[] = {60, 120, 150, 130, 150};
    for (int column = 0; column < ColStatus; ++column)
        lstUser->setColumnWidth(column, widths[column]);
    lstUser->headerItem()->setTextAlignment(ColNumber, Qt::AlignCenter);
    lstUser->headerItem()->setTextAlignment(ColStatus, Qt::AlignCenter);
    lstUser->header()->setStretchLastSection(true);
    lstUser->header()->setSectionsMovable(false);
}

void WinnerListDialog::fill() {
    lstUser->clear();
    const results::LuckList list = results::luckList(store::mainConn());
    if (!list.error.isEmpty()) ui().message(list.error, MsgStyle::Critical, titles::error);
    QList<QTreeWidgetItem *> items;
    items.reserve(list.rows.size());
    for (const results::LuckRow &row : list.rows) {
        auto *item = new QTreeWidgetItem;
        item->setData(ColNumber, Qt::UserRole, QStringLiteral("K") + QString::number(row.number));
        item->setText(ColNumber, QString::number(row.number));
        item->setText(ColJxName, row.jxName);
        item->setText(ColJpName, row.jpName);
        item->setText(ColUserName, row.userName);
        item->setText(ColUserPart, row.userPart);
        item->setText(ColStatus, row.status);
        item->setTextAlignment(ColNumber, Qt::AlignCenter);
        item->setTextAlignment(ColStatus, Qt::AlignCenter);
        for (int column = 0; column < ColumnCount; ++column)
            if (row.greyRow || (row.greyStatus && column == ColStatus))
                item->setForeground(column, results::kLuckGrey);
        items << item;
    }
    lstUser->addTopLevelItems(items);
    labmsg->setText(results::winnerCountText(list));
    Label1->setText(results::prizeTotalText(list));
}
