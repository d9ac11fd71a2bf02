#include "draw/selection.h"

#include <QRandomGenerator>
#include <QSqlDriver>
#include <QSqlQuery>

#include <sqlite3.h>

#include <algorithm>

#include "core/appstate.h"
#include "core/helpers.h"
#include "core/store.h"
#include "draw/drawsecret.h"
#include "stage/protocol.h"

namespace draw {

namespace {

bool hasFallback(int rangeType) {
    return rangeType >= 1 && rangeType <= 4;
}

bool inPrimaryRange(const AwardRule &rule, qint64 n) {
    switch (rule.rangeType) {
        case 1:
            return n > rule.rangeNum1;
        case 2:
            return n == rule.rangeNum1;
        case 3:
            return n < rule.rangeNum1;
        case 4:
            return n > rule.rangeNum1 && n < rule.rangeNum2;
        default:
            return true;
    }
}

// SplitMix64's finaliser: a bijection of 64-bit values with full avalanche.
quint64 mix64(quint64 z) {
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
    return z ^ (z >> 31);
}

// The `count` IDs of `pool` with the smallest keys, ascending by key: one pass keeping the best
// `count` in a max-heap, so a batch of 10 from a million costs little more than the hashing.
std::vector<qint64> smallestKeys(const std::vector<qint64> &pool, quint64 seed, size_t count) {
    count = std::min(count, pool.size());
    std::vector<std::pair<quint64, qint64>> best;
    if (count == 0) return {};
    best.reserve(count);
    for (qint64 id : pool) {
        const std::pair<quint64, qint64> entry(orderKey(seed, id), id);
        if (best.size() < count) {
            best.push_back(entry);
            std::push_heap(best.begin(), best.end());
        } else if (entry < best.front()) {
            std::pop_heap(best.begin(), best.end());
            best.back() = entry;
            std::push_heap(best.begin(), best.end());
        }
    }
    std::sort_heap(best.begin(), best.end());
    std::vector<qint64> ids;
    ids.reserve(count);
    for (const auto &entry : best)
        ids.push_back(entry.second);
    return ids;
}

sqlite3 *sqliteHandle(QSqlDatabase db) {
    const QVariant handle = db.driver() ? db.driver()->handle() : QVariant();
    if (!handle.isValid() || qstrcmp(handle.typeName(), "sqlite3*") != 0) return nullptr;
    return *static_cast<sqlite3 *const *>(handle.constData());
}

}  // namespace

Pool classify(const AwardRule &rule, std::optional<qint64> diffNum) {
    if (!hasFallback(rule.rangeType)) return Pool::Primary;
    if (!diffNum) return Pool::Excluded;
    if (inPrimaryRange(rule, *diffNum)) return Pool::Primary;
    if (rule.rangeType == 2 && rule.rangeNum1 != 0 && *diffNum != 0) return Pool::Excluded;
    return Pool::Fallback;
}

bool inScrollSample(const AwardRule &rule, std::optional<qint64> diffNum) {
    if (rule.rangeType != 2 || rule.rangeNum1 == 0) return true;
    return diffNum && (*diffNum == rule.rangeNum1 || *diffNum == 0);
}

std::vector<qint64> excludedIds(QSqlDatabase db, const AwardRule &rule) {
    // Two statements, each answered by its own index: every non-empty JxID sorts above '', so
    // the JxID index skips those without a win. (As one UNION, SQLite would scan the roster.)
    std::vector<qint64> ids;
    auto collect = [&](const QString &sql, const QVariantList &values) {
        QSqlQuery query(db);
        query.setForwardOnly(true);
        query.prepare(sql);
        for (const QVariant &value : values)
            query.addBindValue(value);
        query.exec();
        while (query.next())
            ids.push_back(query.value(0).toLongLong());
    };
    if (rule.isReLuck == 1)
        collect(QStringLiteral("SELECT ID FROM UserList WHERE JxID > ''"), {});
    else
        collect(QStringLiteral("SELECT ID FROM UserList WHERE JxID > '' AND JxID LIKE ?"),
                {store::awardPattern(rule.awardId)});
    collect(QStringLiteral("SELECT ID FROM UserList WHERE UserStatus=1 OR UserStatus IS NULL"), {});
    std::sort(ids.begin(), ids.end());
    ids.erase(std::unique(ids.begin(), ids.end()), ids.end());
    return ids;
}

Roster readRoster(QSqlDatabase db) {
    Roster roster;
    const qint64 rows =
        store::scalar(db, QStringLiteral("SELECT COUNT(*) FROM UserList")).toLongLong();
    roster.ids.reserve(size_t(rows));
    roster.diffNums.reserve(size_t(rows));
    const QString sql = QStringLiteral("SELECT ID, DiffNum FROM UserList ORDER BY ID");
    // A million rows through QSqlQuery cost a QVariant per value; SQLite's own interface on the
    // same connection reads them several times faster.
    if (sqlite3 *handle = sqliteHandle(db)) {
        sqlite3_stmt *statement = nullptr;
        const QByteArray sqlText = sql.toUtf8();
        if (sqlite3_prepare_v2(handle, sqlText.constData(), int(sqlText.size()), &statement,
                               nullptr) != SQLITE_OK)
            return roster;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            roster.ids.push_back(sqlite3_column_int64(statement, 0));
            roster.diffNums.push_back(sqlite3_column_type(statement, 1) == SQLITE_NULL
                                          ? Roster::kNoNumber
                                          : sqlite3_column_int64(statement, 1));
        }
        sqlite3_finalize(statement);
        return roster;
    }
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.exec(sql);
    while (query.next()) {
        roster.ids.push_back(query.value(0).toLongLong());
        const QVariant diff = query.value(1);
        roster.diffNums.push_back(diff.isNull() ? Roster::kNoNumber : diff.toLongLong());
    }
    return roster;
}

std::optional<Roster> readRosterFile(const QString &databasePath) {
    static QAtomicInt serial = 0;
    const QString name = QStringLiteral("rosterRead%1").arg(serial.fetchAndAddRelaxed(1));
    std::optional<Roster> roster;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(databasePath);
        if (db.open()) {
            // One snapshot for the count and the rows.
            db.transaction();
            roster = readRoster(db);
            db.rollback();
        }
        db.close();
    }
    QSqlDatabase::removeDatabase(name);
    return roster;
}

Candidates selectCandidates(const Roster &roster, const std::vector<qint64> &excluded,
                            const AwardRule &rule) {
    Candidates candidates;
    auto excludedAt = excluded.begin();
    for (size_t i = 0; i < roster.ids.size(); ++i) {
        const qint64 id = roster.ids[i];
        while (excludedAt != excluded.end() && *excludedAt < id)
            ++excludedAt;
        if (excludedAt != excluded.end() && *excludedAt == id) continue;
        const qint64 n = roster.diffNums[i];
        const std::optional<qint64> diffNum =
            n == Roster::kNoNumber ? std::nullopt : std::optional<qint64>(n);
        switch (classify(rule, diffNum)) {
            case Pool::Primary:
                candidates.primary.push_back(id);
                break;
            case Pool::Fallback:
                candidates.fallback.push_back(id);
                break;
            case Pool::Excluded:
                if (inScrollSample(rule, diffNum)) candidates.unranged.push_back(id);
                break;
        }
    }
    return candidates;
}

Candidates loadCandidates(QSqlDatabase db, const AwardRule &rule) {
    return selectCandidates(readRoster(db), excludedIds(db, rule), rule);
}

StoreStamp storeStamp(QSqlDatabase db) {
    StoreStamp stamp;
    stamp.ownChanges = store::scalar(db, QStringLiteral("SELECT total_changes()")).toLongLong();
    stamp.dataVersion = store::scalar(db, QStringLiteral("PRAGMA data_version")).toLongLong();
    return stamp;
}

quint64 newSeed() {
    return QRandomGenerator::system()->generate64();
}

quint64 orderKey(quint64 seed, qint64 id) {
    // Two keyed rounds: the first spreads consecutive IDs, the second folds the seed in again so
    // that related seeds give unrelated orders.
    const quint64 first = mix64(static_cast<quint64>(id) * 0x9e3779b97f4a7c15ULL ^ seed);
    return mix64(first + (seed << 32 | seed >> 32));
}

std::vector<qint64> pickWinners(const std::vector<qint64> &primary,
                                const std::vector<qint64> &fallback, quint64 seed, int count) {
    if (count <= 0) return {};
    std::vector<qint64> winners = smallestKeys(primary, seed, size_t(count));
    if (winners.size() < size_t(count)) {
        const std::vector<qint64> more =
            smallestKeys(fallback, seed, size_t(count) - winners.size());
        winners.insert(winners.end(), more.begin(), more.end());
    }
    return winners;
}

QString candidateDigest(const Candidates &candidates) {
    // Each pool as its size and then its IDs, every number an unsigned LEB128 varint (three
    // bytes for IDs up to two million): the primary pool, then the fallback pool.
    QByteArray bytes(qsizetype(candidates.count() + 2) * 10, Qt::Uninitialized);
    char *out = bytes.data();
    auto addNumber = [&out](quint64 value) {
        do {
            const char low = char(value & 0x7f);
            value >>= 7;
            *out++ = value ? char(low | 0x80) : low;
        } while (value);
    };
    for (const std::vector<qint64> *pool : {&candidates.primary, &candidates.fallback}) {
        addNumber(pool->size());
        for (qint64 id : *pool)
            addNumber(static_cast<quint64>(id));
    }
    bytes.truncate(out - bytes.constData());
    return sha256Hex(bytes);
}

QString cleanName(QString name) {
    return name.replace(QStringLiteral("|"), QStringLiteral("‖"))
        .replace(QStringLiteral("$"), QStringLiteral("＄"));
}

QString stageName(const QString &name) {
    const AppState &state = appState();
    const QString cleaned = cleanName(name);
    if (state.isHideName != 1) return cleaned;
    return ::hideName(cleaned, state.hideLeft, state.hideRight, state.hideReStr);
}

QString joinWinnerItems(const QStringList &names, const std::vector<qint64> &ids) {
    QStringList items;
    for (size_t i = 0; i < ids.size() && i < size_t(names.size()); ++i)
        items << names.at(qsizetype(i)) + proto::kItemSep + QString::number(ids[i]);
    return items.join(proto::kSep);
}

}  // namespace draw
