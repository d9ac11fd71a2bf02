#include "draw/selection.h"

#include <QCryptographicHash>
#include <QRandomGenerator>
#include <QSqlQuery>
#include <QtEndian>

#include <algorithm>

#include "core/appstate.h"
#include "core/store.h"
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

Candidates loadCandidates(QSqlDatabase db, const AwardRule &rule) {
    // The unary + keeps SQLite from answering through the JxID index: nearly every row
    // qualifies, and a scan in ID order is what the digest and the pools want.
    const bool anyWinExcludes = rule.isReLuck == 1;
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.prepare(anyWinExcludes
                      ? QStringLiteral("SELECT ID, DiffNum FROM UserList WHERE (+JxID IS NULL OR "
                                       "+JxID='') AND UserStatus<>1 ORDER BY ID")
                      : QStringLiteral("SELECT ID, DiffNum FROM UserList WHERE (+JxID IS NULL OR "
                                       "+JxID NOT LIKE ?) AND UserStatus<>1 ORDER BY ID"));
    if (!anyWinExcludes) query.addBindValue(store::awardPattern(rule.awardId));

    Candidates candidates;
    if (!query.exec()) return candidates;
    while (query.next()) {
        const qint64 id = query.value(0).toLongLong();
        const QVariant diff = query.value(1);
        const std::optional<qint64> diffNum =
            diff.isNull() ? std::nullopt : std::optional<qint64>(diff.toLongLong());
        switch (classify(rule, diffNum)) {
            case Pool::Primary:
                candidates.primary.push_back(id);
                break;
            case Pool::Fallback:
                candidates.fallback.push_back(id);
                break;
            case Pool::Excluded:
                break;
        }
        if (inScrollSample(rule, diffNum)) candidates.sample.push_back(id);
    }
    return candidates;
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
    // Each ID as 8 little-endian bytes, the primary pool, "/", the fallback pool.
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    auto addPool = [&hash](const std::vector<qint64> &ids) {
        std::vector<qint64> little(ids.size());
        for (size_t i = 0; i < ids.size(); ++i)
            little[i] = qToLittleEndian(ids[i]);
        hash.addData(QByteArrayView(reinterpret_cast<const char *>(little.data()),
                                    qsizetype(little.size() * sizeof(qint64))));
    };
    addPool(candidates.primary);
    hash.addData(QByteArrayView("/"));
    addPool(candidates.fallback);
    return QString::fromLatin1(hash.result().toHex());
}

QString cleanName(QString name) {
    return name.replace(QStringLiteral("|"), QStringLiteral("‖"))
        .replace(QStringLiteral("$"), QStringLiteral("＄"));
}

QString hideName(const QString &name, int left, int right, const QString &mask) {
    left = std::max(0, left);
    right = std::max(0, right);
    const QList<uint> code = name.toUcs4();
    const std::u32string chars(code.begin(), code.end());
    const int length = int(chars.size());
    if (name.isEmpty() || left + right >= length) return name;
    const int hidden = length - left - right;
    return QString::fromStdU32String(chars.substr(0, size_t(left))) + mask.repeated(hidden) +
           QString::fromStdU32String(chars.substr(size_t(length - right)));
}

QString stageName(const QString &name) {
    const AppState &state = appState();
    const QString cleaned = cleanName(name);
    if (state.isHideName != 1) return cleaned;
    return hideName(cleaned, state.hideLeft, state.hideRight, state.hideReStr);
}

QString joinWinnerItems(const QStringList &names, const std::vector<qint64> &ids) {
    QStringList items;
    for (size_t i = 0; i < ids.size() && i < size_t(names.size()); ++i)
        items << names.at(qsizetype(i)) + proto::kItemSep + QString::number(ids[i]);
    return items.join(proto::kSep);
}

}  // namespace draw
