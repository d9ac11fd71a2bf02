#include "draw/progress.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSqlQuery>

#include "core/appstate.h"
#include "core/settings.h"
#include "core/store.h"
#include "core/ui.h"
#include "draw/auditsession.h"
#include "draw/batchplan.h"
#include "draw/winners.h"

namespace draw {

AwardFigures awardFigures(QSqlDatabase db) {
    QSqlQuery query(db);
    query.exec(QStringLiteral("SELECT COUNT(*), SUM(JXNum), SUM(JXGroup) FROM JPList"));
    AwardFigures figures;
    if (query.next() && query.value(0).toLongLong() > 0) {
        figures.awardCount = query.value(0).toLongLong();
        figures.slotSum = query.value(1).toLongLong();
        figures.batchSum = query.value(2).toLongLong();
    }
    return figures;
}

QString luckProgress(QSqlDatabase db, qint64 luckTotal) {
    QList<int> awardIds;
    QSqlQuery awards(db);
    awards.setForwardOnly(true);
    awards.exec(QStringLiteral("SELECT ID FROM JPList ORDER BY OrderNum ASC"));
    while (awards.next())
        awardIds << awards.value(0).toInt();
    if (awardIds.isEmpty() || luckTotal <= 0) return QStringLiteral("0%");

    // Each (participant, award) pair counts once.
    qint64 wins = 0;
    for (int awardId : awardIds)
        wins += countAwardWinners(db, awardId);
    // Percent of a whole number: wins * 100 / luckTotal, halves to even.
    return QString::number(divideHalfEven(wins * 100, luckTotal)) + QStringLiteral("%");
}

QString historySnapshotPath(const QString &appPath, const QDateTime &time) {
    const QDate d = time.date();
    const QTime t = time.time();
    const QString base = appPath + QStringLiteral("History/") +
                         QStringLiteral("%1%2%3%4%5")
                             .arg(d.year())
                             .arg(d.month())
                             .arg(d.day())
                             .arg(t.hour())
                             .arg(t.minute());
    QString path = base + QStringLiteral(".tmp");
    for (int n = 2; QFileInfo::exists(path); ++n)
        path = base + QStringLiteral("-%1.tmp").arg(n);
    return path;
}

bool clearAllWins(QSqlDatabase db) {
    bool ok = db.transaction();
    ok = ok && store::exec(db, QStringLiteral("UPDATE UserList SET JxID='', UserStatus=0 WHERE "
                                              "JxID<>'' OR UserStatus<>0 OR "
                                              "UserStatus IS NULL"));
    ok = ok && logDrawEvent(AuditEvent(auditevent::reset));
    ok = ok && db.commit();
    if (!ok) {
        db.rollback();
        return false;
    }
    settings::write(QStringLiteral("selJxid"), 0);
    return true;
}

}  // namespace draw
