#include "draw/rostersnapshot.h"

#include <QFile>
#include <QSaveFile>
#include <QSqlQuery>
#include <QStringList>

#include <algorithm>

#include "draw/drawsecret.h"

namespace draw {

namespace {

// Every "|<id>|" in JxID, as SQLite's LIKE '%|id|%' finds it: markers may share their bars, and
// "|03|" is not award 3.
std::vector<int> awardMarkers(const QString &jxId) {
    std::vector<int> awards;
    for (qsizetype bar = jxId.indexOf(QLatin1Char('|')); bar >= 0;
         bar = jxId.indexOf(QLatin1Char('|'), bar + 1)) {
        qsizetype end = bar + 1;
        while (end < jxId.size() && jxId[end].isDigit() && jxId[end].unicode() < 128)
            ++end;
        if (end == bar + 1 || end >= jxId.size() || jxId[end] != QLatin1Char('|')) continue;
        const QStringView digits = QStringView(jxId).mid(bar + 1, end - bar - 1);
        bool ok = false;
        const int id = digits.toInt(&ok);
        if (ok && QString::number(id) == digits) awards.push_back(id);
    }
    std::sort(awards.begin(), awards.end());
    awards.erase(std::unique(awards.begin(), awards.end()), awards.end());
    return awards;
}

bool parseNumber(const char *&at, const char *end, qint64 *value) {
    const bool negative = at < end && *at == '-';
    if (negative) ++at;
    const char *start = at;
    quint64 magnitude = 0;
    while (at < end && *at >= '0' && *at <= '9' && at - start < 18)
        magnitude = magnitude * 10 + quint64(*at++ - '0');
    if (at == start || (at < end && *at >= '0' && *at <= '9')) return false;
    *value = negative ? -qint64(magnitude) : qint64(magnitude);
    return true;
}

}  // namespace

bool Standing::holds(int awardId) const {
    return std::binary_search(awards.begin(), awards.end(), awardId);
}

Standing standingOf(const QString &jxId, bool out) {
    Standing standing;
    standing.out = out;
    standing.awards = awardMarkers(jxId);
    QString rest = jxId;
    for (int id : standing.awards)
        rest.remove(QLatin1Char('|') + QString::number(id) + QLatin1Char('|'));
    standing.otherText = !rest.isEmpty();
    return standing;
}

Standings readStandings(QSqlDatabase db) {
    Standings standings;
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.exec(
        QStringLiteral("SELECT ID, JxID, UserStatus FROM UserList WHERE JxID > '' "
                       "UNION SELECT ID, JxID, UserStatus FROM UserList "
                       "WHERE UserStatus=1 OR UserStatus IS NULL"));
    while (query.next()) {
        const QVariant status = query.value(2);
        const Standing standing =
            standingOf(query.value(1).toString(), status.isNull() || status.toInt() == 1);
        if (!standing.isPlain()) standings[query.value(0).toLongLong()] = standing;
    }
    return standings;
}

QString standingsText(const Standings &standings) {
    QStringList entries;
    for (const auto &[id, standing] : standings) {
        QString code = standing.out ? QStringLiteral("x") : QString();
        if (standing.otherText) code += QLatin1Char('-');
        QStringList awards;
        for (int award : standing.awards)
            awards << QString::number(award);
        entries << QString::number(id) + QLatin1Char(':') + code + awards.join(QLatin1Char('.'));
    }
    return entries.join(QLatin1Char(','));
}

bool parseStandings(const QString &text, Standings *standings) {
    standings->clear();
    if (text.isEmpty()) return true;
    for (const QString &entry : text.split(QLatin1Char(','))) {
        const qsizetype colon = entry.indexOf(QLatin1Char(':'));
        bool ok = false;
        const qint64 id = entry.left(colon).toLongLong(&ok);
        if (colon < 0 || !ok) return false;
        QStringView code = QStringView(entry).mid(colon + 1);
        Standing standing;
        standing.out = code.startsWith(QLatin1Char('x'));
        if (standing.out) code = code.mid(1);
        standing.otherText = code.startsWith(QLatin1Char('-'));
        if (standing.otherText) code = code.mid(1);
        if (!code.isEmpty()) {
            for (QStringView award : code.split(QLatin1Char('.'))) {
                standing.awards.push_back(award.toInt(&ok));
                if (!ok) return false;
            }
        }
        std::sort(standing.awards.begin(), standing.awards.end());
        if (!standing.isPlain()) (*standings)[id] = standing;
    }
    return true;
}

std::vector<qint64> excludedBy(const Standings &standings, const AwardRule &rule) {
    std::vector<qint64> ids;
    for (const auto &[id, standing] : standings) {
        const bool hasWin =
            rule.isReLuck == 1 ? standing.hasAnyWin() : standing.holds(rule.awardId);
        if (standing.out || hasWin) ids.push_back(id);
    }
    return ids;
}

QByteArray rosterFileBytes(const Roster &roster) {
    QByteArray bytes;
    bytes.reserve(qsizetype(roster.ids.size()) * 12);
    for (size_t i = 0; i < roster.ids.size(); ++i) {
        bytes.append(QByteArray::number(roster.ids[i]));
        bytes.append(',');
        if (roster.diffNums[i] != Roster::kNoNumber)
            bytes.append(QByteArray::number(roster.diffNums[i]));
        bytes.append('\n');
    }
    return bytes;
}

bool parseRosterFile(const QByteArray &bytes, Roster *roster) {
    Roster parsed;
    const char *at = bytes.constData();
    const char *end = at + bytes.size();
    while (at < end) {
        qint64 id = 0;
        qint64 diff = Roster::kNoNumber;
        if (!parseNumber(at, end, &id) || at == end || *at++ != ',') return false;
        if (at < end && *at != '\n' && !parseNumber(at, end, &diff)) return false;
        if (at == end || *at++ != '\n') return false;
        if (!parsed.ids.empty() && id <= parsed.ids.back()) return false;
        parsed.ids.push_back(id);
        parsed.diffNums.push_back(diff);
    }
    *roster = std::move(parsed);
    return true;
}

QString rosterFilePath(const QString &appPath, const QString &rosterHash) {
    return appPath + QStringLiteral("History/roster-") + rosterHash.left(16) +
           QStringLiteral(".txt");
}

QString saveRosterFile(const QString &appPath, const Roster &roster) {
    const QByteArray bytes = rosterFileBytes(roster);
    const QString hash = sha256Hex(bytes);
    const QString path = rosterFilePath(appPath, hash);
    QFile existing(path);
    if (existing.open(QIODevice::ReadOnly) && existing.size() == bytes.size() &&
        sha256Hex(existing.readAll()) == hash)
        return hash;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return QString();
    return hash;
}

}  // namespace draw
