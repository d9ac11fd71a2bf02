#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

// The CSV file of all winners of all awards, for the stage's export button, the end-of-draw
// prompt, the winner list and the backup before a restart. UTF-8 with a byte-order mark so that
// Excel reads the Chinese text, lines ended by CR LF.

namespace results {

// One CSV line without its end: fields holding a comma, quote or line break are quoted, with
// quotes doubled.
QByteArray csvLine(const QStringList &fields);

// The default file under record/ for an export at the given time: the date parts unpadded,
// "record/中奖记录202631495.csv" for 2026-03-14 09:05.
QString defaultExportPath(const QDateTime &time);

}  // namespace results

// Writes every award's winners to path (the default file when empty), overwriting it. Returns the
// path written, or an empty text after a warning or error box. With showDone, a notice naming the
// file follows.
QString exportWinners(const QString &path, bool showDone);
