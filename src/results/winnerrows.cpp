#include "results/winnerrows.h"

#include <QSqlQuery>
#include <QVariant>

#include "core/store.h"

namespace results {

namespace {

QList<Winner> readWinners(QSqlQuery &query) {
    QList<Winner> rows;
    while (query.next())
        rows.append(
            {query.value(0).toLongLong(), query.value(1).toString(), query.value(2).toString()});
    return rows;
}

}  // namespace

QList<Award> awardsInOrder(QSqlDatabase db) {
    QSqlQuery query(db);
    query.exec(
        QStringLiteral("SELECT ID, JXName, JPName FROM JPList ORDER BY OrderNum ASC, ID ASC"));
    QList<Award> awards;
    while (query.next())
        awards.append(
            {query.value(0).toInt(), query.value(1).toString(), query.value(2).toString()});
    return awards;
}

Award awardById(QSqlDatabase db, int awardId) {
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT ID, JXName, JPName FROM JPList WHERE ID=?"));
    query.addBindValue(awardId);
    if (!query.exec() || !query.next()) return {};
    return {query.value(0).toInt(), query.value(1).toString(), query.value(2).toString()};
}

QList<Winner> winnersOf(QSqlDatabase db, int awardId, WinnerOrder order) {
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT ID, UserName, UserPart FROM UserList WHERE JxID LIKE ? "
                                 "ORDER BY UpdateTime %1")
                      .arg(order == WinnerOrder::EarliestFirst ? QStringLiteral("ASC, ID ASC")
                                                               : QStringLiteral("DESC")));
    query.addBindValue(store::awardPattern(awardId));
    query.exec();
    return readWinners(query);
}

QList<Winner> participantsById(QSqlDatabase db, const QList<qint64> &ids) {
    if (ids.isEmpty()) return {};
    QStringList marks;
    QVariantList values;
    for (qint64 id : ids) {
        marks << QStringLiteral("?");
        values << id;
    }
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT ID, UserName, UserPart FROM UserList WHERE ID IN (%1) "
                                 "ORDER BY ID ASC")
                      .arg(marks.join(QLatin1Char(','))));
    for (const QVariant &value : values)
        query.addBindValue(value);
    query.exec();
    return readWinners(query);
}

}  // namespace results
