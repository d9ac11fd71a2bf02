#include "results/winnerlist.h"

#include <QCoreApplication>
#include <QSqlError>
#include <QSqlQuery>

#include "core/store.h"

namespace results {

namespace {

struct AwardHead {
    int id = 0;
    QString name;
    QString prize;
};

void setStatus(WinnerListRow &row, const QVariant &status) {
    const int value = status.isNull() ? -1 : status.toInt();
    switch (value) {
        case 0:
            row.status = QCoreApplication::translate("results", "正常");
            break;
        case 1:
            row.status = QCoreApplication::translate("results", "弃奖");
            row.greyRow = true;
            break;
        case 2:
            row.status = QCoreApplication::translate("results", "已领奖");
            break;
        case 3:
            row.status = QCoreApplication::translate("results", "中奖");
            break;
        default:
            row.status = QCoreApplication::translate("results", "未知");
            row.greyStatus = true;
    }
}

}  // namespace

WinnerList readWinnerList(QSqlDatabase db) {
    WinnerList list;
    QList<AwardHead> awards;
    QSqlQuery query(db);
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral(
            "SELECT ID, JXName, JPName, JXNum FROM JPList ORDER BY OrderNum ASC, ID ASC"))) {
        list.error = query.lastError().text();
        return list;
    }
    while (query.next()) {
        awards.append(
            {query.value(0).toInt(), query.value(1).toString(), query.value(2).toString()});
        list.prizeTotal += query.value(3).toLongLong();
    }
    QSqlQuery winners(db);
    winners.setForwardOnly(true);
    // "JxID > ''" keeps the search on the JxID index: only participants holding some win.
    winners.prepare(
        QStringLiteral("SELECT UserName, UserPart, UserStatus FROM UserList WHERE "
                       "JxID > '' AND JxID LIKE ? ORDER BY UpdateTime ASC, ID ASC"));
    for (const AwardHead &award : awards) {
        winners.addBindValue(store::awardPattern(award.id));
        if (!winners.exec()) {
            list.error = winners.lastError().text();
            return list;
        }
        while (winners.next()) {
            WinnerListRow row;
            row.number = int(list.rows.size()) + 1;
            row.awardName = award.name;
            row.prizeName = award.prize;
            row.winnerName = winners.value(0).toString();
            row.remark = winners.value(1).toString();
            setStatus(row, winners.value(2));
            list.rows.append(row);
        }
    }
    return list;
}

QString winnerCountText(const WinnerList &list) {
    return QCoreApplication::translate("results", "中奖人数：%1").arg(list.rows.size());
}

QString prizeTotalText(const WinnerList &list) {
    return QCoreApplication::translate("results", "奖品总数：%1").arg(list.prizeTotal);
}

}  // namespace results
