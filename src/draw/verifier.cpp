#include "draw/verifier.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QSqlQuery>

#include <algorithm>
#include <future>
#include <map>
#include <set>

#include "core/appstate.h"
#include "core/store.h"
#include "draw/audit.h"
#include "draw/auditsession.h"
#include "draw/drawsecret.h"
#include "draw/rostersnapshot.h"

namespace draw {

namespace {

constexpr size_t kNone = size_t(-1);
// A gap in the press numbers wider than this is a damaged number, not missing presses.
constexpr quint64 kMaxGap = 100000;

struct SessionState {
    QString commit;
    quint64 lastPress = 0;
    std::vector<std::pair<size_t, quint64>> seeds;  // verdict, logged seed
    bool usable = false;                            // its roster could be read
};

// A recorded batch: who won, and who of them still holds the win after the later events.
struct Batch {
    size_t verdict = kNone;
    int awardId = 0;
    QString storedAt;
    std::vector<qint64> winners;
    std::set<qint64> live;
};

QString idOf(const QString &session, quint64 number) {
    return session + QLatin1Char('#') + QString::number(number);
}

class Replay {
public:
    Replay(const RosterFileReader &readRosterFile) : m_readRosterFile(readRosterFile) {}

    void line(int number, const QString &text);
    void finish(QSqlDatabase store);
    VerifyReport report;

private:
    size_t handle(const AuditEvent &event, int lineNumber);
    void open(const AuditEvent &event);
    size_t press(const AuditEvent &event);
    size_t record(const AuditEvent &event);
    size_t cancel(const AuditEvent &event);
    void giveUp(const AuditEvent &event);
    void reset();
    void close(const AuditEvent &event);
    size_t newVerdict(const QString &session, quint64 number, int awardId);
    size_t verdictOf(const AuditEvent &event);
    void problem(size_t verdict, const QString &text);
    void checkStore(QSqlDatabase store);

    RosterFileReader m_readRosterFile;
    QByteArray m_previousLine;
    qint64 m_previousSeq = 0;
    size_t m_previousOwner = kNone;
    std::set<QString> m_seenHashes;
    Roster m_roster;
    Standings m_standings;
    std::map<QString, SessionState> m_sessions;
    std::map<QString, size_t> m_verdicts;  // by session#number
    std::map<size_t, PressRecord> m_pressOf;
    std::map<size_t, size_t> m_batchOf;
    std::vector<Batch> m_batches;
    size_t m_lastVerdict = kNone;
};

void Replay::problem(size_t verdict, const QString &text) {
    if (verdict == kNone)
        report.problems << text;
    else
        report.presses[verdict].problems << text;
}

size_t Replay::newVerdict(const QString &session, quint64 number, int awardId) {
    PressVerdict verdict;
    verdict.session = session;
    verdict.number = number;
    verdict.awardId = awardId;
    report.presses.push_back(verdict);
    const size_t index = report.presses.size() - 1;
    m_verdicts[idOf(session, number)] = index;
    return index;
}

// The press a record or cancel names. One the log has not shown yet was removed or moved:
// it and any others skipped are marked missing.
size_t Replay::verdictOf(const AuditEvent &event) {
    if (!event.has(QStringLiteral("press"))) return m_lastVerdict;
    const QString session = event.value(QStringLiteral("session"));
    const quint64 number = event.value(QStringLiteral("press")).toULongLong();
    const auto found = m_verdicts.find(idOf(session, number));
    if (found != m_verdicts.end()) return found->second;
    SessionState &state = m_sessions[session];
    if (number <= state.lastPress || number - state.lastPress > kMaxGap) return m_lastVerdict;
    for (quint64 missing = state.lastPress + 1; missing <= number; ++missing)
        problem(newVerdict(session, missing, 0),
                QCoreApplication::translate("verifier", "此次抽奖的记录缺失"));
    state.lastPress = number;
    return m_verdicts[idOf(session, number)];
}

void Replay::line(int number, const QString &text) {
    const QByteArray bytes = text.toUtf8();
    const QString previousHash = m_previousLine.isNull() ? chainStart() : sha256Hex(m_previousLine);
    m_previousLine = bytes;
    AuditLine parsed;
    if (!parseAuditLine(text, &parsed)) {
        problem(m_lastVerdict,
                QCoreApplication::translate("verifier", "第%1行无法读取").arg(number));
        m_previousSeq = -1;
        return;
    }
    const size_t previousOwner = m_previousOwner;
    const size_t owner = handle(parsed.event, number);
    m_previousOwner = owner;
    const bool inOrder = parsed.seq == m_previousSeq + 1;
    m_previousSeq = parsed.seq;
    const bool chained = parsed.prev == previousHash;
    m_seenHashes.insert(sha256Hex(bytes));
    if (inOrder && chained) return;
    const QString broken =
        QCoreApplication::translate("verifier", "记录链在第%1行断开").arg(number);
    // In order but not chained: the line before was edited. Chained to a line met earlier: that
    // line was moved, and its own place says so. Otherwise this line was moved or what came
    // before it was removed.
    if (inOrder)
        problem(previousOwner, broken);
    else if (!m_seenHashes.count(parsed.prev))
        problem(owner, broken);
}

size_t Replay::handle(const AuditEvent &event, int lineNumber) {
    const QString &kind = event.kind;
    if (kind == auditevent::press) return press(event);
    if (kind == auditevent::record) return record(event);
    if (kind == auditevent::cancel) return cancel(event);
    if (kind == auditevent::open)
        open(event);
    else if (kind == auditevent::giveUp)
        giveUp(event);
    else if (kind == auditevent::reset)
        reset();
    else if (kind == auditevent::close)
        close(event);
    else if (kind != auditevent::addSlots && kind != auditevent::newAward)
        problem(m_lastVerdict,
                QCoreApplication::translate("verifier", "第%1行的事件无法识别").arg(lineNumber));
    return m_lastVerdict;
}

void Replay::open(const AuditEvent &event) {
    const QString session = event.value(QStringLiteral("session"));
    SessionState &state = m_sessions[session];
    state.commit = event.value(QStringLiteral("commit"));
    const QString hash = event.value(QStringLiteral("roster"));
    const QByteArray bytes = m_readRosterFile(hash);
    Roster roster;
    if (!parseRosterFile(bytes, &roster) ||
        !parseStandings(event.value(QStringLiteral("standing")), &m_standings)) {
        problem(kNone, QCoreApplication::translate("verifier", "会话 %1 的名单快照缺失或无法读取")
                           .arg(session));
        return;
    }
    if (sha256Hex(bytes) != hash ||
        qint64(roster.ids.size()) != event.value(QStringLiteral("rows")).toLongLong())
        problem(kNone,
                QCoreApplication::translate("verifier", "会话 %1 的名单快照已被改动").arg(session));
    m_roster = std::move(roster);
    state.usable = true;
}

size_t Replay::press(const AuditEvent &event) {
    const QString session = event.value(QStringLiteral("session"));
    PressRecord logged;
    const bool readable = parsePress(event, &logged);
    SessionState &state = m_sessions[session];
    const bool plausible = logged.number - state.lastPress <= kMaxGap;
    for (quint64 missing = state.lastPress + 1; readable && plausible && missing < logged.number;
         ++missing)
        problem(newVerdict(session, missing, 0),
                QCoreApplication::translate("verifier", "此次抽奖的记录缺失"));
    const size_t verdict = newVerdict(session, logged.number, logged.awardId);
    m_lastVerdict = verdict;
    if (!readable) {
        problem(verdict, QCoreApplication::translate("verifier", "抽奖记录无法读取"));
        return verdict;
    }
    if (logged.number <= state.lastPress)
        problem(verdict, QCoreApplication::translate("verifier", "抽奖序号重复或倒退"));
    state.lastPress = std::max(state.lastPress, logged.number);
    state.seeds.push_back({verdict, logged.seed});
    m_pressOf[verdict] = logged;
    if (!state.usable) {
        problem(verdict, QCoreApplication::translate("verifier", "找不到此次抽奖所依据的名单"));
        return verdict;
    }
    const Candidates pool =
        selectCandidates(m_roster, excludedBy(m_standings, logged.rule), logged.rule);
    // The digest and the order are two full passes over the pool: one runs beside the other.
    std::future<QString> digest =
        std::async(std::launch::async, [&pool] { return candidateDigest(pool); });
    const bool sameWinners =
        pickWinners(pool.primary, pool.fallback, logged.seed, logged.batchCount) == logged.winners;
    if (pool.count() != logged.candidateCount)
        problem(verdict, QCoreApplication::translate("verifier", "候选人数不符: 记录%1人, 重建%2人")
                             .arg(logged.candidateCount)
                             .arg(pool.count()));
    else if (digest.get() != logged.digest)
        problem(verdict, QCoreApplication::translate("verifier", "候选名单摘要不符"));
    if (!sameWinners)
        problem(verdict, QCoreApplication::translate("verifier", "中奖名单与种子推算的结果不符"));
    return verdict;
}

size_t Replay::record(const AuditEvent &event) {
    const size_t verdict = verdictOf(event);
    const auto press = m_pressOf.find(verdict);
    Batch batch;
    batch.verdict = verdict;
    batch.awardId = event.value(QStringLiteral("award")).toInt();
    batch.storedAt = event.value(QStringLiteral("stored"));
    if (!parseIdList(event.value(QStringLiteral("winners")), &batch.winners) ||
        press == m_pressOf.end() || verdict != m_lastVerdict || m_batchOf.count(verdict) != 0) {
        problem(verdict, QCoreApplication::translate("verifier", "入库记录找不到对应的抽奖"));
        return verdict;
    }
    if (batch.winners != press->second.winners || batch.awardId != press->second.awardId)
        problem(verdict, QCoreApplication::translate("verifier", "入库名单与抽出的名单不符"));
    report.presses[verdict].recorded = true;
    for (qint64 id : batch.winners) {
        Standing &standing = m_standings[id];
        standing.out = false;
        if (!standing.holds(batch.awardId)) {
            standing.awards.push_back(batch.awardId);
            std::sort(standing.awards.begin(), standing.awards.end());
        }
        batch.live.insert(id);
    }
    m_batchOf[verdict] = m_batches.size();
    m_batches.push_back(batch);
    return verdict;
}

size_t Replay::cancel(const AuditEvent &event) {
    const size_t verdict = verdictOf(event);
    const int awardId = event.value(QStringLiteral("award")).toInt();
    std::vector<qint64> ids;
    const auto batch = m_batchOf.find(verdict);
    if (!parseIdList(event.value(QStringLiteral("winners")), &ids) || batch == m_batchOf.end()) {
        problem(verdict, QCoreApplication::translate("verifier", "撤消记录找不到对应的入库"));
        return verdict;
    }
    report.presses[verdict].cancelled = true;
    for (qint64 id : ids) {
        m_batches[batch->second].live.erase(id);
        const auto found = m_standings.find(id);
        if (found == m_standings.end()) continue;
        Standing &standing = found->second;
        standing.awards.erase(std::remove(standing.awards.begin(), standing.awards.end(), awardId),
                              standing.awards.end());
        if (standing.awards.empty() && !standing.otherText) m_standings.erase(found);
    }
    return verdict;
}

void Replay::giveUp(const AuditEvent &event) {
    std::vector<qint64> ids;
    if (!parseIdList(event.value(QStringLiteral("ids")), &ids)) {
        problem(m_lastVerdict, QCoreApplication::translate("verifier", "弃奖记录无法读取"));
        return;
    }
    for (qint64 id : ids) {
        m_standings[id] = standingOf(QStringLiteral("无"), true);
        for (Batch &batch : m_batches)
            batch.live.erase(id);
    }
}

void Replay::reset() {
    m_standings.clear();
    for (Batch &batch : m_batches)
        batch.live.clear();
}

void Replay::close(const AuditEvent &event) {
    const QString session = event.value(QStringLiteral("session"));
    SessionState &state = m_sessions[session];
    const quint64 presses = event.value(QStringLiteral("presses")).toULongLong();
    for (quint64 missing = state.lastPress + 1;
         missing <= presses && presses - state.lastPress <= kMaxGap; ++missing)
        problem(newVerdict(session, missing, 0),
                QCoreApplication::translate("verifier", "此次抽奖的记录缺失"));
    const QByteArray secret = QByteArray::fromHex(event.value(QStringLiteral("secret")).toLatin1());
    const bool committed = sha256Hex(secret) == state.commit;
    for (const auto &[verdict, seed] : state.seeds) {
        report.presses[verdict].revealed = true;
        if (!committed)
            problem(verdict,
                    QCoreApplication::translate("verifier", "公开的密钥与开场时的承诺不符"));
        else if (DrawSecret::pressSeed(secret, report.presses[verdict].number) != seed)
            problem(verdict, QCoreApplication::translate("verifier", "种子不是由会话密钥推出的"));
    }
}

void Replay::checkStore(QSqlDatabase store) {
    // One read of everybody holding a win (through the JxID index), not a query per winner:
    // an evening has thousands of them.
    struct Stored {
        Standing standing;
        QString time;
    };
    std::map<qint64, Stored> stored;
    std::multimap<QString, qint64> byTime;
    QSqlQuery query(store);
    query.setForwardOnly(true);
    query.exec(QStringLiteral("SELECT ID, JxID, UpdateTime FROM UserList WHERE JxID > ''"));
    while (query.next()) {
        const qint64 id = query.value(0).toLongLong();
        stored[id] = {standingOf(query.value(1).toString(), false), query.value(2).toString()};
        byTime.insert({query.value(2).toString(), id});
    }
    std::map<std::pair<int, QString>, std::vector<size_t>> groups;
    for (size_t i = 0; i < m_batches.size(); ++i) {
        const Batch &batch = m_batches[i];
        groups[{batch.awardId, batch.storedAt}].push_back(i);
        for (qint64 id : batch.live) {
            const auto found = stored.find(id);
            if (found == stored.end() || !found->second.standing.holds(batch.awardId))
                problem(batch.verdict,
                        QCoreApplication::translate("verifier", "库中已没有中奖者 %1 的这次中奖")
                            .arg(id));
        }
    }
    // All winners of one batch carry its time: anybody else with that time and award was
    // stored without being in the logged batch. A person's time is that of their latest win, so
    // somebody logged in another batch of that second who won this award in an earlier logged
    // batch is accounted for.
    std::map<QString, std::set<qint64>> loggedAt;
    std::set<std::pair<qint64, int>> loggedWins;
    for (const Batch &batch : m_batches) {
        loggedAt[batch.storedAt].insert(batch.winners.begin(), batch.winners.end());
        for (qint64 id : batch.live)
            loggedWins.insert({id, batch.awardId});
    }
    for (const auto &[key, members] : groups) {
        std::set<qint64> logged;
        for (size_t i : members)
            logged.insert(m_batches[i].winners.begin(), m_batches[i].winners.end());
        const std::set<qint64> &loggedThatSecond = loggedAt[key.second];
        const auto [from, to] = byTime.equal_range(key.second);
        for (auto it = from; it != to; ++it) {
            const qint64 id = it->second;
            const bool earlierWin = loggedThatSecond.count(id) && loggedWins.count({id, key.first});
            if (logged.count(id) || earlierWin || !stored[id].standing.holds(key.first)) continue;
            for (size_t i : members)
                problem(m_batches[i].verdict,
                        QCoreApplication::translate("verifier", "库中这一批多出了未记录的中奖者 %1")
                            .arg(it->second));
        }
    }
}

void Replay::finish(QSqlDatabase store) {
    if (store.isValid() && store.isOpen()) checkStore(store);
}

}  // namespace

int VerifyReport::failedCount() const {
    return int(std::count_if(presses.begin(), presses.end(),
                             [](const PressVerdict &v) { return !v.holds(); }));
}

int VerifyReport::unrevealedCount() const {
    return int(std::count_if(presses.begin(), presses.end(),
                             [](const PressVerdict &v) { return !v.revealed; }));
}

VerifyReport verifyAuditLog(const QByteArray &log, const RosterFileReader &readRosterFile,
                            QSqlDatabase store) {
    Replay replay(readRosterFile);
    int number = 0;
    for (const QByteArray &line : log.split('\n')) {
        if (line.isEmpty()) continue;
        replay.line(++number, QString::fromUtf8(line));
    }
    replay.report.lines = number;
    replay.finish(store);
    return replay.report;
}

VerifyReport verifyProgramFolder(const QString &appPath, QSqlDatabase store) {
    QFile log(auditLogPath(appPath));
    VerifyReport report;
    if (!log.open(QIODevice::ReadOnly)) {
        report.problems << QCoreApplication::translate("verifier", "找不到抽奖记录 ") +
                               auditLogPath(appPath);
        return report;
    }
    const auto readRosterFile = [&appPath](const QString &hash) {
        QFile file(rosterFilePath(appPath, hash));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    return verifyAuditLog(log.readAll(), readRosterFile, store);
}

QString verdictText(const PressVerdict &verdict) {
    QString text = QCoreApplication::translate("verifier", "会话 %1 第%2次 奖项%3: ")
                       .arg(verdict.session.toUpper())
                       .arg(verdict.number)
                       .arg(verdict.awardId);
    text += verdict.holds() ? QCoreApplication::translate("verifier", "相符")
                            : QCoreApplication::translate("verifier", "不符");
    QStringList notes;
    if (verdict.recorded)
        notes << (verdict.cancelled ? QCoreApplication::translate("verifier", "已撤消")
                                    : QCoreApplication::translate("verifier", "已入库"));
    if (!verdict.revealed) notes << QCoreApplication::translate("verifier", "密钥未公开");
    if (!notes.isEmpty())
        text += QStringLiteral(" (") + notes.join(QStringLiteral(", ")) + QLatin1Char(')');
    for (const QString &problem : verdict.problems)
        text += QStringLiteral("\n    ") + problem;
    return text;
}

QString summaryText(const VerifyReport &report) {
    const int total = int(report.presses.size());
    QString text =
        QCoreApplication::translate("verifier", "共%1行记录, %2次抽奖: %3次相符, %4次不符")
            .arg(report.lines)
            .arg(total)
            .arg(total - report.failedCount())
            .arg(report.failedCount());
    if (report.unrevealedCount() > 0)
        text += QCoreApplication::translate("verifier",
                                            ", 其中%1次的会话密钥尚未公开(只按记录的种子核对)")
                    .arg(report.unrevealedCount());
    text += QLatin1Char('\n');
    text += report.holds() ? QCoreApplication::translate("verifier", "结论: 全部相符")
                           : QCoreApplication::translate("verifier", "结论: 有不符之处");
    return text;
}

QString reportText(const VerifyReport &report) {
    QStringList lines;
    for (const PressVerdict &verdict : report.presses)
        lines << verdictText(verdict);
    lines << report.problems;
    lines << summaryText(report);
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

QString writeReportBeside(const QString &exportedPath) {
    const QFileInfo exported(exportedPath);
    const QString path = exported.absolutePath() + QLatin1Char('/') + exported.completeBaseName() +
                         QStringLiteral("-核对.txt");
    const QByteArray text =
        reportText(verifyProgramFolder(appState().appPath, store::mainConn())).toUtf8();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        return QString();
    return path;
}

}  // namespace draw
