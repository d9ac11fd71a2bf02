#pragma once

#include <QColor>
#include <QList>
#include <QSqlDatabase>
#include <QString>

// The rows of the winner list: one per win, awards in draw order, each award's winners earliest
// first; and the two totals under the list.
namespace results {

struct WinnerListRow {
    int number = 0;  // running number over the whole list, from 1
    QString awardName;
    QString prizeName;
    QString winnerName;
    QString remark;
    QString status;        // "正常", "弃奖", "已领奖", "中奖" or "未知"
    bool greyRow = false;  // a give-up greys the whole row
    bool greyStatus = false;
};

struct WinnerList {
    QList<WinnerListRow> rows;
    qint64 prizeTotal = 0;  // the slots of all awards
    QString error;          // the store's message when a read failed
};

inline const QColor kDimmedText(98, 98, 98);

WinnerList readWinnerList(QSqlDatabase db);

// The labels under the list.
QString winnerCountText(const WinnerList &list);  // "中奖人数：12"
QString prizeTotalText(const WinnerList &list);   // "奖品总数：30"

}  // namespace results
