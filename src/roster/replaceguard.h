#pragma once

#include <QDateTime>
#include <QSqlDatabase>
#include <QString>

// What a replace of the roster or a reset of the wins would take away, and the snapshot written
// before either changes anything: nothing recorded is lost by one click.
namespace roster {

struct StoredRecords {
    qint64 participants = 0;
    qint64 wins = 0;     // (participant, award) pairs
    qint64 giveUps = 0;  // participants who gave their prize up
    bool isEmpty() const { return participants == 0 && wins == 0; }
    bool hasDrawRecords() const { return wins > 0 || giveUps > 0; }
};

StoredRecords storedRecords(QSqlDatabase db);

// The question before a replace ("将删除现有 N 名参与者和 M 条中奖记录...") and before a reset
// of the wins; only to be asked when the records are not empty.
QString replaceQuestion(const StoredRecords &records);
QString resetQuestion(const StoredRecords &records);

// Before a replace of the roster: when anything is stored, asks with replaceQuestion (under
// title) and, on Yes, writes the snapshot. True when the replace may go on; a snapshot that
// cannot be written is told and stops it.
bool confirmReplace(QSqlDatabase db, const QString &appPath, const QString &title);

// Before the one-key reset of the wins.
enum class ResetAnswer { NothingRecorded, Confirmed, Refused };
ResetAnswer confirmReset(QSqlDatabase db, const QString &appPath);

// An import opens on "append" whenever someone is on the roster.
bool importOpensOnAppend(QSqlDatabase db);

// The snapshot's file: History/名单快照 + yyyyMMddHHmm + .csv, with "-2", "-3"... before the
// extension when that name is taken, so no snapshot overwrites another.
QString rosterSnapshotPath(const QString &appPath, const QDateTime &time);

// Writes every participant with status and awards won (CSV, UTF-8 with a byte-order mark, CR LF)
// to a new snapshot file. Returns its path, or an empty text with a message.
QString writeRosterSnapshot(QSqlDatabase db, const QString &appPath, const QDateTime &time,
                            QString *error);

}  // namespace roster
