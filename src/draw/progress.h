#pragma once

#include <QDateTime>
#include <QSqlDatabase>
#include <QString>

#include <functional>

// The console's figures of the draw and the store side of the one-key reset.
namespace draw {

struct AwardFigures {
    qint64 awardCount = 0;  // awards set up
    qint64 slotSum = 0;     // all their slots: luckTotal, the divisor of the progress
    qint64 batchSum = 0;    // all their batches
};

// The award count and the sums of slots and batches (0 when there is no award).
AwardFigures awardFigures(QSqlDatabase db);
// The (participant, award) wins over luckTotal, in percent rounded half to even,
// as "37%". "0%" with no award or no slot. Not capped at 100: make-up slots and slots reduced
// below the winners can take it beyond.
QString luckProgress(QSqlDatabase db, qint64 luckTotal);

// The History/ snapshot name of a moment: year, month, day, hour, minute without leading
// zeros, ".tmp"; when that file exists, "-2", "-3"... before the extension, so no snapshot
// overwrites another.
QString historySnapshotPath(const QString &appPath, const QDateTime &time);

// Writes the winners (CSV) to the given file; false when it could not.
using WinnerExporter = std::function<bool(const QString &path)>;

// Clears every win and give-up in one transaction and sends the current award back to the
// first one (selJxid 0, in memory and config.ini).
bool clearAllWins(QSqlDatabase db);

}  // namespace draw
