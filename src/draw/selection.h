#pragma once

#include <QSqlDatabase>
#include <QString>

#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

// Who may win an award, and in which order. The winners are decided here, once, at the press of
// Start; everything the stage scrolls afterwards is decoration.
namespace draw {

// The rules of one award, as stored in JPList.
struct AwardRule {
    bool operator==(const AwardRule &o) const {
        return awardId == o.awardId && isReLuck == o.isReLuck && rangeType == o.rangeType &&
               rangeNum1 == o.rangeNum1 && rangeNum2 == o.rangeNum2;
    }
    int awardId = 0;
    int isReLuck = 1;   // 1: only those with no win at all; otherwise not twice the same award
    int rangeType = 0;  // 0 none, 1 greater, 2 equal, 3 less, 4 between (exclusive)
    int rangeNum1 = 0;
    int rangeNum2 = 0;
};

// Where a participant stands for an award's distinction-number range: drawn from first
// (primary), only to fill slots the range cannot (fallback), or not at all.
enum class Pool { Primary, Fallback, Excluded };

// The range is a preference, not a filter: the rest of the roster stands behind it, except for
// the equals type with a non-zero number, whose fallback is only DiffNum 0. A NULL DiffNum
// compares as nothing, so it belongs to no range (and is drawn normally for an award without
// one).
Pool classify(const AwardRule &rule, std::optional<qint64> diffNum);
// True when the participant may appear in the decorative scroll: every eligible participant,
// narrowed to the number and 0 only for the equals type with a non-zero number.
bool inScrollSample(const AwardRule &rule, std::optional<qint64> diffNum);

// The eligible participants of one press, split by pool, IDs ascending. The scroll may show
// both pools and `unranged`: those without a distinction number, who belong to no range.
struct Candidates {
    std::vector<qint64> primary;
    std::vector<qint64> fallback;
    std::vector<qint64> unranged;
    qint64 count() const { return qint64(primary.size() + fallback.size()); }
    size_t sampleSize() const { return primary.size() + fallback.size() + unranged.size(); }
    // The i-th ID the scroll may show, i < sampleSize().
    qint64 sampleAt(size_t i) const {
        if (i < primary.size()) return primary[i];
        i -= primary.size();
        return i < fallback.size() ? fallback[i] : unranged[i - fallback.size()];
    }
};

// The ID and distinction number of every participant, ascending by ID: what the ranges look at.
// Wins and statuses are not part of it, so recording a batch leaves it valid.
struct Roster {
    static constexpr qint64 kNoNumber = std::numeric_limits<qint64>::min();  // NULL DiffNum
    std::vector<qint64> ids;
    std::vector<qint64> diffNums;
};
Roster readRoster(QSqlDatabase db);
// The same through a connection of its own to the store file, for a worker thread; nullopt when
// the file cannot be read.
std::optional<Roster> readRosterFile(const QString &databasePath);
// The IDs that may not win an award, ascending: a status of 1 (or none), and a win of this
// award, or any text at all in JxID when isReLuck is 1. Few, and found through indexes.
std::vector<qint64> excludedIds(QSqlDatabase db, const AwardRule &rule);
// The roster without the excluded, split into the pools of the rule.
Candidates selectCandidates(const Roster &roster, const std::vector<qint64> &excluded,
                            const AwardRule &rule);
// The eligible participants of an award as the store holds them now: no win of this award (or
// none at all for isReLuck 1), and never one who gave up (UserStatus 1).
Candidates loadCandidates(QSqlDatabase db, const AwardRule &rule);

// Tells whether the store may have changed: the rows this connection has changed since it was
// opened, and SQLite's counter of commits by other connections. Equal stamps mean equal data.
struct StoreStamp {
    qint64 ownChanges = -1;
    qint64 dataVersion = -1;
    bool operator==(const StoreStamp &other) const {
        return ownChanges == other.ownChanges && dataVersion == other.dataVersion;
    }
};
StoreStamp storeStamp(QSqlDatabase db);

// A fresh 64-bit seed from the operating system's random source.
quint64 newSeed();
// The participant's place in this press's order: a keyed 64-bit hash of (seed, ID). For a fixed
// seed it is a bijection of the ID, so two participants never tie.
quint64 orderKey(quint64 seed, qint64 id);
// Up to `count` winners, in drawn order: the primary pool by ascending key, then the fallback
// pool by ascending key for the slots the primary pool could not fill. A pure function of its
// arguments, so a logged press can be re-derived.
std::vector<qint64> pickWinners(const std::vector<qint64> &primary,
                                const std::vector<qint64> &fallback, quint64 seed, int count);
// SHA-256 (hex) of the candidate IDs of both pools, for the audit log.
QString candidateDigest(const Candidates &candidates);

// Names on their way to the stage: "|" and "$" are the grammar's separators.
QString cleanName(QString name);
// The shown form of a participant's name: cleaned, then masked (hideName) when names are
// hidden.
QString stageName(const QString &name);
// "name$id|name$id" for the stage, in the given order.
QString joinWinnerItems(const QStringList &names, const std::vector<qint64> &ids);

}  // namespace draw
