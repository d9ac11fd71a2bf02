#include "results/winnerrows.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QVariant>

#include "core/logging.h"
#include "core/store.h"

namespace results {

namespace {

// A failed read leaves the printout or export short; the log says why.
bool run(QSqlQuery &query) {
    if (query.exec()) return true;
    qCWarning(lcResults) << "winner rows:" << query.lastError().text();
    return false;
}

QList<Winner> readWinners(QSqlQuery &query) {
    QList<Winner> rows;
    if (!run(query)) return rows;
    while (query.next())
        rows.append(
            {query.value(0).toLongLong(), query.value(1).toString(), query.value(2).toString()});
    return rows;
}

}  // namespace

QList<Award> awardsInOrder(QSqlDatabase db) {
    QSqlQuery query(db);
    query.prepare(
        QStringLiteral("SELECT ID, JXName, JPName FROM JPList ORDER BY OrderNum ASC, ID ASC"));
    QList<Award> awards;
    if (!run(query)) return awards;
    while (query.next())
        awards.append(
            {query.value(0).toInt(), query.value(1).toString(), query.value(2).toString()});
    return awards;
}

Award awardById(QSqlDatabase db, int awardId) {
    QSqlQuery query(db);
    query.prepare(QStringLiteral("SELECT ID, JXName, JPName FROM JPList WHERE ID=?"));
    query.addBindValue(awardId);
    if (!run(query) || !query.next()) return {};
    return {query.value(0).toInt(), query.value(1).toString(), query.value(2).toString()};
}

QList<Winner> winnersOf(QSqlDatabase db, int awardId, WinnerOrder order) {
    QSqlQuery query(db);
    query.prepare(QStringLiteral(
                      "SELECT ID, UserName, UserPart FROM UserList WHERE JxID > '' AND JxID LIKE ? "
                      "ORDER BY UpdateTime %1")
                      .arg(order == WinnerOrder::EarliestFirst ? QStringLiteral("ASC, ID ASC")
                                                               : QStringLiteral("DESC")));
    query.addBindValue(store::awardPattern(awardId));
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
    return readWinners(query);
}

}  // namespace results
