#pragma once

#include <QByteArray>
#include <QSqlDatabase>
#include <QString>

#include <map>
#include <vector>

#include "draw/selection.h"

// What the audit log keeps of the store so that each press's pool can be rebuilt: the roster
// (ID and distinction number of everybody, in a file of History/ named by its hash, so an
// unchanged roster is written once) and the standing of the few who hold a win or gave up (in
// the log line itself).
namespace draw {

// What a participant's JxID and UserStatus mean for the pools.
struct Standing {
    bool out = false;         // UserStatus 1 (gave up) or none: never drawn
    bool otherText = false;   // JxID holds more than award markers (a give-up's "无")
    std::vector<int> awards;  // the awards whose "|id|" JxID holds, ascending

    bool holds(int awardId) const;
    bool hasAnyWin() const { return otherText || !awards.empty(); }
    bool isPlain() const { return !out && !hasAnyWin(); }
    bool operator==(const Standing &o) const {
        return out == o.out && otherText == o.otherText && awards == o.awards;
    }
};
using Standings = std::map<qint64, Standing>;  // only those who are not plain

Standing standingOf(const QString &jxId, bool out);
// Everybody with a win or a give-up, as the store holds them now.
Standings readStandings(QSqlDatabase db);
// "id:code,id:code": code is "x" when out, "-" when there is other text, then the awards
// joined by "."; ascending by ID.
QString standingsText(const Standings &standings);
bool parseStandings(const QString &text, Standings *standings);
// Who may not win under the rule, ascending: what excludedIds reads from the store.
std::vector<qint64> excludedBy(const Standings &standings, const AwardRule &rule);

// The roster file: one "ID,DiffNum" line per participant ascending by ID, DiffNum empty when
// there is none.
QByteArray rosterFileBytes(const Roster &roster);
bool parseRosterFile(const QByteArray &bytes, Roster *roster);
QString rosterFilePath(const QString &appPath, const QString &rosterHash);
// Writes the roster file unless an intact one is there; returns its hash, empty on failure.
QString saveRosterFile(const QString &appPath, const Roster &roster);

}  // namespace draw
