#include "draw/winners.h"

#include <QSqlError>
#include <QSqlQuery>

#include "core/appstate.h"
#include "core/helpers.h"
#include "core/logging.h"
#include "core/store.h"

namespace draw {

namespace {

const QString kNamesGap = QStringLiteral("   ");

// "JxID > ''" lets the JxID index skip the participants without any win.
QSqlQuery winnersQuery(QSqlDatabase db, const QString &columns, const QString &order, int awardId) {
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT ") + columns +
                  QStringLiteral(" FROM UserList WHERE JxID > '' AND JxID LIKE ?") + order);
    query.addBindValue(store::awardPattern(awardId));
    if (!query.exec()) qCWarning(lcDraw) << "winners of award" << awardId << query.lastError();
    return query;
}

}  // namespace

QList<AwardWinner> awardWinners(QSqlDatabase db, int awardId) {
    // The + keeps the planner on the winners' index instead of walking the whole
    // roster in UpdateTime order.
    QSqlQuery query = winnersQuery(db, QStringLiteral("ID, UserName"),
                                   QStringLiteral(" ORDER BY +UpdateTime DESC, ID ASC"), awardId);
    QList<AwardWinner> winners;
    while (query.next())
        winners.append({query.value(0).toLongLong(), query.value(1).toString()});
    return winners;
}

int countAwardWinners(QSqlDatabase db, int awardId) {
    QSqlQuery query = winnersQuery(db, QStringLiteral("COUNT(*)"), QString(), awardId);
    return query.next() ? query.value(0).toInt() : 0;
}

QString winnersText(const QList<AwardWinner> &winners) {
    const AppState &state = appState();
    QString names;
    for (const AwardWinner &winner : winners) {
        QString name = winner.name;
        if (state.isHideName == 1)
            name = ::hideName(name, state.hideLeft, state.hideRight, state.hideReStr);
        names += name + kNamesGap;
    }
    return names;
}

}  // namespace draw
