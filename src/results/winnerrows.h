#pragma once

#include <QList>
#include <QSqlDatabase>
#include <QString>

// The rows that the winner export and the printouts read: awards in draw order and the winners
// of one award. A NULL column reads as empty text.
namespace results {

struct Award {
    int id = 0;
    QString name;   // JXName
    QString prize;  // JPName
};

struct Winner {
    qint64 id = 0;
    QString name;    // UserName
    QString remark;  // UserPart
};

// Every award, ordered by OrderNum.
QList<Award> awardsInOrder(QSqlDatabase db);
// One award by ID; id 0 when there is none.
Award awardById(QSqlDatabase db, int awardId);

enum class WinnerOrder { EarliestFirst, LatestFirst };
// The participants whose JxID holds the award. Earliest first ties on ID.
QList<Winner> winnersOf(QSqlDatabase db, int awardId, WinnerOrder order);
// The participants with the given IDs, in ID order.
QList<Winner> participantsById(QSqlDatabase db, const QList<qint64> &ids);

}  // namespace results
