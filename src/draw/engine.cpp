#include "draw/engine.h"

#include <QRandomGenerator>
#include <QSet>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>

#include <algorithm>
#include <memory>

#include "core/appstate.h"
#include "core/helpers.h"
#include "core/settings.h"
#include "core/store.h"
#include "core/ui.h"
#include "design/payloads.h"
#include "draw/winners.h"
#include "stage/protocol.h"
#include "stage/stage.h"

namespace draw {

namespace {

QString idText(const std::vector<qint64> &ids) {
    QStringList parts;
    for (qint64 id : ids)
        parts << QString::number(id);
    return parts.join(QLatin1Char(','));
}

QList<qint64> parseIds(const QString &text) {
    QList<qint64> ids;
    for (const QString &part : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        bool ok = false;
        const qint64 id = part.trimmed().toLongLong(&ok);
        if (ok) ids << id;
    }
    return ids;
}

// k distinct positions of [0, n) in random order, in O(k) (Floyd's algorithm, then a shuffle).
std::vector<size_t> samplePositions(size_t n, size_t k) {
    QRandomGenerator *random = QRandomGenerator::global();
    k = std::min(k, n);
    QSet<size_t> chosen;
    chosen.reserve(qsizetype(k));
    std::vector<size_t> positions;
    positions.reserve(k);
    for (size_t j = n - k; j < n; ++j) {
        const size_t t = size_t(random->bounded(quint64(j) + 1));
        const size_t pick = chosen.contains(t) ? j : t;
        chosen.insert(pick);
        positions.push_back(pick);
    }
    for (size_t i = positions.size(); i > 1; --i)
        std::swap(positions[i - 1], positions[size_t(random->bounded(quint64(i)))]);
    return positions;
}

void warn(const QString &text) {
    ui().message(text, MsgStyle::Exclamation, titles::warning);
}

}  // namespace

DrawEngine::DrawEngine(Stage &stage, QObject *parent) : QObject(parent), m_stage(stage) {
    // Writes by other connections are noticed between presses, so that the roster is read again
    // before the operator presses Start.
    m_storeWatch.setInterval(500);
    connect(&m_storeWatch, &QTimer::timeout, this, &DrawEngine::watchStore);
}

DrawEngine::~DrawEngine() {
    if (!m_rosterRead) return;
    m_rosterRead->wait();
    delete m_rosterRead;
}

bool DrawEngine::openAuditSession() {
    return m_audit.open(appState().appPath, store::mainConn());
}

void DrawEngine::setBlockStyle(std::function<QString(int)> blockStyle) {
    m_blockStyle = std::move(blockStyle);
}

void DrawEngine::send(const QString &name, const QString &value) {
    m_stage.setVariable(name, value);
}

QString DrawEngine::luckTypePrefix() const {
    return QString::number(appState().luckType) + proto::kSep;
}

bool DrawEngine::loadAward(int id, bool resetButtons) {
    QSqlDatabase db = store::mainConn();
    const QList<AwardWinner> winners = awardWinners(db, id);
    const int have = int(winners.size());
    QSqlQuery query(db);
    query.prepare(
        QStringLiteral("SELECT OrderNum, JXName, JXNum, JXGroup, JPName, JPPhoto, "
                       "isReLuck, RangeType, RangeNum1, RangeNum2 FROM JPList "
                       "WHERE ID=? LIMIT 1"));
    query.addBindValue(id);
    if (!query.exec() || !query.next()) {
        warn(tr("找不到指定的奖项!"));
        return false;
    }
    LoadedAward award;
    award.id = id;
    award.orderNum = query.value(0).toInt();
    award.name = query.value(1).toString();
    award.prizeName = query.value(4).toString();
    award.picturePath = normalizeSlashes(appState().appPath + query.value(5).toString());
    award.rule = {id, query.value(6).toInt(), query.value(7).toInt(), query.value(8).toInt(),
                  query.value(9).toInt()};
    award.plan = planBatch(query.value(2).toInt(), query.value(3).toInt(), have);

    const BatchPlan &plan = award.plan;
    send(proto::vbLoadJx,
         design::awardPanelPayload({award.name, plan.slotCount, plan.batches, plan.remaining,
                                    award.prizeName, award.picturePath}));
    const QString names = winnersText(winners);
    send(proto::updateLuckLst, names.isEmpty() ? tr("当前奖项暂无获奖名单...")
                                               : tr("恭喜∶%1获得%2").arg(names, award.name));
    const bool awardChanges = id != m_session.award.id;
    // Moving to another award, like a give-up or a make-up (which reload with resetButtons),
    // ends the chance to take the last batch back: it belongs to the award it was drawn on.
    if (m_session.canCancel && (awardChanges || resetButtons)) endCancelChance(resetButtons);
    if (awardChanges) {
        if (!m_session.prizeHead.trimmed().isEmpty())
            send(proto::vbAddImg, m_session.prizeHead + award.picturePath);
        send(proto::vbShowBlock, proto::falseText);
        m_session.drawState = Idle;
    } else {
        m_session.drawState = Result;
    }
    if (resetButtons) {
        send(proto::changBtn, proto::buttons::defulte);
        m_session.drawState = Idle;
    }
    m_session.award = award;
    m_session.batchCount = plan.batchCount;
    if (plan.batchCount > 0) refreshCandidates();
    return true;
}

void DrawEngine::endCancelChance(bool buttonsFollow) {
    m_session.canCancel = false;
    // The landed picture's bar offers the undo; the bar of rest does not.
    if (!buttonsFollow) send(proto::changBtn, proto::buttons::defulte);
}

void DrawEngine::reloadAward(bool hideBlocks, bool resetButtons) {
    loadAward(m_session.award.id, resetButtons);
    if (hideBlocks) send(proto::vbShowBlock, proto::falseText);
}

void DrawEngine::loadDefaultAward(bool resetButtons) {
    send(proto::vbShowBlock, proto::falseText);
    const int selected = appState().selJxid;
    const QVariant found = store::scalar(
        store::mainConn(), QStringLiteral("SELECT ID FROM JPList WHERE ID=? LIMIT 1"), {selected});
    if (found.isValid())
        loadAward(selected, resetButtons);
    else
        firstOpenAward(resetButtons);
}

void DrawEngine::firstOpenAward(bool resetButtons) {
    QSqlDatabase db = store::mainConn();
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.exec(QStringLiteral("SELECT ID, JXNum FROM JPList ORDER BY OrderNum ASC"));
    bool any = false;
    while (query.next()) {
        any = true;
        const int id = query.value(0).toInt();
        if (query.value(1).toInt() - countAwardWinners(db, id) > 0) {
            loadAward(id, resetButtons);
            return;
        }
    }
    if (!any) {
        warn(tr("当前未设置任何奖项,请先添加奖项!"));
        return;
    }
    Q_EMIT allAwardsFull();
}

void DrawEngine::stepAward(bool forward, bool wrap) {
    const QVariant next =
        store::scalar(store::mainConn(),
                      forward ? QStringLiteral("SELECT ID FROM JPList WHERE OrderNum>? "
                                               "ORDER BY OrderNum ASC LIMIT 1")
                              : QStringLiteral("SELECT ID FROM JPList WHERE OrderNum<? "
                                               "ORDER BY OrderNum DESC LIMIT 1"),
                      {m_session.award.orderNum});
    if (next.isValid())
        loadAward(next.toInt(), false);
    else if (wrap)
        firstOpenAward(false);
}

DrawEngine::StartOutcome DrawEngine::pressStart() {
    // One draw at a time: the names on show are this press's winners until they are stored or
    // cleared.
    if (m_session.drawState == Running) return StartOutcome::Refused;
    m_session.canCancel = false;
    if (m_session.batchCount < 1) {
        send(proto::changBtn, proto::buttons::defulte);
        stepAward(true, true);
        m_session.drawState = Idle;
        return StartOutcome::Stepped;
    }
    m_session.winnerList.clear();
    if (!drawWinners()) {
        send(proto::changBtn, proto::buttons::defulte);
        m_session.drawState = Idle;
        ui().message(tr("%1,本次抽奖未进行!").arg(QString(kAuditWriteFailed)), MsgStyle::Critical,
                     titles::error);
        return StartOutcome::NotLogged;
    }
    send(proto::vbndluck, luckTypePrefix() + m_session.winnerList);
    m_session.lastWinnerIds = m_session.winnerIds;
    if (m_session.winnerList.isEmpty()) {
        Q_EMIT drawEmpty();
        send(proto::changBtn, proto::buttons::defulte);
        m_session.drawState = Idle;
        warn(tr("已无符合条件的抽奖名单可抽取!"));
        return StartOutcome::Empty;
    }
    if (m_blockStyle) send(proto::vbLoadBlock, m_blockStyle(m_session.batchCount));
    send(proto::changBtn, proto::buttons::start);
    m_session.drawState = Running;
    m_session.landing = false;
    return StartOutcome::Drawn;
}

bool DrawEngine::stopDraw() {
    if (m_session.drawState != Running || m_session.landing) return false;
    send(proto::changBtn, proto::buttons::stop);
    m_session.landing = true;
    return true;
}

void DrawEngine::refreshCandidates() {
    QSqlDatabase db = store::mainConn();
    const StoreStamp now = storeStamp(db);
    const AwardRule &rule = m_session.award.rule;
    if (m_session.candidatesRule == rule && m_session.candidatesStamp == now) return;
    bool rosterChanged = false;
    if (m_session.rosterStamp.dataVersion < 0) {
        // The first award of the window: the roster is read here, once.
        m_session.roster = readRoster(db);
        m_session.rosterStamp = now;
        rosterChanged = true;
        m_storeWatch.start();
    } else if (!(m_session.rosterStamp == now)) {
        // Somebody else wrote: the roster is read again behind the draw, which goes on with the
        // one it has. Who may win is cheap to know and is always taken as it is now.
        startRosterRead();
    }
    std::vector<qint64> excluded = excludedIds(db, rule);
    if (rosterChanged || !(m_session.candidatesRule == rule) ||
        excluded != m_session.candidatesExcluded) {
        m_session.candidates = selectCandidates(m_session.roster, excluded, rule);
        m_session.candidatesDigest = candidateDigest(m_session.candidates);
        m_session.candidatesExcluded = std::move(excluded);
        m_session.candidatesRule = rule;
    }
    m_session.candidatesStamp = now;
}

void DrawEngine::keepRosterAfterOwnWrite(const StoreStamp &before) {
    // Recording and cancelling touch JxID, UserStatus and UpdateTime only: if nobody else wrote
    // in between, the roster's IDs and distinction numbers are still what was read.
    const StoreStamp after = storeStamp(store::mainConn());
    if (m_session.rosterStamp == before) m_session.rosterStamp = after;
    if (m_rosterRead && m_rosterReadStamp == before) m_rosterReadStamp = after;
}

void DrawEngine::watchStore() {
    if (!m_rosterRead && !(m_session.rosterStamp == storeStamp(store::mainConn())))
        startRosterRead();
}

void DrawEngine::startRosterRead() {
    if (m_rosterRead) return;
    m_rosterReadStamp = storeStamp(store::mainConn());
    auto result = std::make_shared<std::optional<Roster>>();
    m_rosterRead = QThread::create(
        [result, path = store::mainConn().databaseName()] { *result = readRosterFile(path); });
    connect(m_rosterRead, &QThread::finished, this, [this, result] { adoptRoster(*result); });
    m_rosterRead->start(QThread::LowPriority);
}

void DrawEngine::adoptRoster(std::optional<Roster> &roster) {
    m_rosterRead->wait();
    delete m_rosterRead;
    m_rosterRead = nullptr;
    if (!roster) return;
    // A write after the read began may be missing from it: read once more.
    if (!(m_rosterReadStamp == storeStamp(store::mainConn()))) {
        startRosterRead();
        return;
    }
    m_session.roster = std::move(*roster);
    m_session.rosterStamp = m_rosterReadStamp;
    m_session.candidatesRule = AwardRule{-1};
    if (m_session.award.id != 0) refreshCandidates();
    Q_EMIT rosterReread();
}

bool DrawEngine::drawWinners() {
    refreshCandidates();
    const AwardRule &rule = m_session.award.rule;
    const Candidates &candidates = m_session.candidates;

    PressRecord &press = m_session.lastPress;
    press = PressRecord();
    press.number = m_audit.nextPressNumber();
    press.awardId = rule.awardId;
    press.rule = rule;
    press.batchCount = m_session.batchCount;
    press.seed = m_audit.nextPressSeed();
    press.winners =
        pickWinners(candidates.primary, candidates.fallback, press.seed, m_session.batchCount);
    // The roster may still be behind another connection's write: somebody removed since must
    // not be drawn, so the roster is then read here and the same seed picks again.
    if (!(m_session.rosterStamp == storeStamp(store::mainConn())) && !allInStore(press.winners)) {
        readRosterNow();
        press.winners =
            pickWinners(candidates.primary, candidates.fallback, press.seed, m_session.batchCount);
    }
    press.candidateCount = candidates.count();
    press.digest = m_session.candidatesDigest;
    if (!m_audit.log(pressEvent(press))) return false;

    m_session.winnerList = joinWinnerItems(namesOf(press.winners), press.winners);
    m_session.winnerIds = idText(press.winners);
    return true;
}

AuditEvent DrawEngine::recordEvent(const QString &storedAt, const QList<qint64> &ids) const {
    AuditEvent event(auditevent::record);
    event.add(QStringLiteral("press"), qint64(m_session.lastPress.number))
        .add(QStringLiteral("award"), m_session.award.id)
        .add(QStringLiteral("stored"), storedAt)
        .add(QStringLiteral("winners"), idListText({ids.begin(), ids.end()}));
    return event;
}

AuditEvent DrawEngine::cancelEvent() const {
    const QList<qint64> ids = parseIds(m_session.lastWinnerIds);
    AuditEvent event(auditevent::cancel);
    event.add(QStringLiteral("press"), qint64(m_session.lastPress.number))
        .add(QStringLiteral("award"), m_session.award.id)
        .add(QStringLiteral("winners"), idListText({ids.begin(), ids.end()}));
    return event;
}

bool DrawEngine::allInStore(const std::vector<qint64> &ids) {
    QSqlQuery query(store::mainConn());
    query.prepare(QStringLiteral("SELECT 1 FROM UserList WHERE ID=?"));
    return std::all_of(ids.begin(), ids.end(), [&query](qint64 id) {
        query.bindValue(0, id);
        return query.exec() && query.next();
    });
}

void DrawEngine::readRosterNow() {
    QSqlDatabase db = store::mainConn();
    m_session.roster = readRoster(db);
    m_session.rosterStamp = storeStamp(db);
    m_session.candidatesRule = AwardRule{-1};
    refreshCandidates();
}

QStringList DrawEngine::namesOf(const std::vector<qint64> &ids) {
    QSqlQuery query(store::mainConn());
    query.prepare(QStringLiteral("SELECT UserName FROM UserList WHERE ID=?"));
    QStringList names;
    for (qint64 id : ids) {
        query.bindValue(0, id);
        const bool found = query.exec() && query.next();
        names << stageName(found ? query.value(0).toString() : QString());
    }
    return names;
}

QString DrawEngine::pushScrollSample() {
    const Candidates &pool = m_session.candidates;
    std::vector<qint64> ids;
    const size_t count = size_t(std::max(0, m_session.batchCount));
    for (size_t position : samplePositions(pool.sampleSize(), count))
        ids.push_back(pool.sampleAt(position));
    if (ids.empty()) return QString();
    const QString value = luckTypePrefix() + joinWinnerItems(namesOf(ids), ids);
    send(proto::vbPushLst, value);
    return value;
}

bool DrawEngine::recordWinners() {
    const QList<qint64> ids = parseIds(m_session.winnerIds);
    if (m_session.drawState != Running || ids.isEmpty()) return false;
    m_session.landing = false;
    const int awardId = m_session.award.id;
    QSqlDatabase db = store::mainConn();

    // One batch, one moment, one transaction: the batch is stored whole or not at all.
    const StoreStamp before = storeStamp(db);
    const QString time = store::nowText();
    bool ok = db.transaction();
    QSqlQuery query(db);
    ok = ok && query.prepare(QStringLiteral("UPDATE UserList SET JxID=COALESCE(JxID,'') || ?, "
                                            "UserStatus=3, UpdateTime=? WHERE ID=?"));
    for (qint64 id : ids) {
        if (!ok) break;
        query.bindValue(0, store::awardMarker(awardId));
        query.bindValue(1, time);
        query.bindValue(2, id);
        ok = query.exec();
    }
    QString error = query.lastError().text();
    query.finish();
    // The line goes out before the commit: a batch the log does not hold is not stored.
    if (ok && !m_audit.log(recordEvent(time, ids))) {
        ok = false;
        error = kAuditWriteFailed;
    }
    if (ok && !db.commit()) {
        ok = false;
        error = db.lastError().text();
    }
    if (!ok) db.rollback();
    keepRosterAfterOwnWrite(before);
    if (!ok) {
        Q_EMIT recordFailed(error);
        return false;
    }

    loadAward(awardId, false);
    m_session.canCancel = true;
    settings::write(QStringLiteral("selJxid"), awardId);
    Q_EMIT batchRecorded();
    return true;
}

bool DrawEngine::cancelLastBatch() {
    if (!m_session.canCancel) return false;
    if (!ui().question(tr("确定要撤消此次产生的中奖结果么?"), titles::notice)) return false;

    const QString marker = store::awardMarker(m_session.award.id);
    QSqlDatabase db = store::mainConn();
    const StoreStamp before = storeStamp(db);
    db.transaction();
    QSqlQuery read(db);
    read.prepare(QStringLiteral("SELECT JxID FROM UserList WHERE ID=?"));
    for (qint64 id : parseIds(m_session.lastWinnerIds)) {
        read.bindValue(0, id);
        if (!read.exec() || !read.next()) continue;
        QString wins = read.value(0).toString();
        read.finish();
        // A participant left with no win is back to normal; one who keeps another award stays
        // a winner, and one who gave up meanwhile ("无") is left alone.
        if (wins.trimmed() == marker)
            store::exec(db, QStringLiteral("UPDATE UserList SET JxID='', UserStatus=0 WHERE ID=?"),
                        {id});
        else
            store::exec(db, QStringLiteral("UPDATE UserList SET JxID=? WHERE ID=?"),
                        {wins.remove(marker), id});
    }
    const bool logged = m_audit.log(cancelEvent());
    if (!logged || !db.commit()) db.rollback();
    keepRosterAfterOwnWrite(before);
    if (!logged) {
        ui().message(tr("%1,本次撤消未进行!").arg(QString(kAuditWriteFailed)), MsgStyle::Critical,
                     titles::error);
        return false;
    }

    loadAward(m_session.award.id, false);
    m_session.canCancel = false;
    send(proto::vbShowBlock, proto::falseText);
    send(proto::changBtn, proto::buttons::defulte);
    Q_EMIT batchCancelled();
    return true;
}

bool DrawEngine::restartDraw(const WinnerExporter &exportWinners) {
    if (!ui().question(tr("您确定要删除所有中奖信息,重新开始抽奖么?"), tr("重要提示")))
        return false;
    const QString snapshot = historySnapshotPath(appState().appPath, QDateTime::currentDateTime());
    if (!exportWinners || !exportWinners(snapshot)) return false;
    if (!clearAllWins(store::mainConn())) return false;
    loadDefaultAward(true);
    return true;
}

bool DrawEngine::clearDraw() {
    // Landing winners are as good as drawn: the hall has seen them stop.
    if (m_session.landing) return false;
    send(proto::changBtn, proto::buttons::clear);
    send(proto::vbShowBlock, proto::falseText);
    m_session.drawState = Idle;
    return true;
}

void DrawEngine::beginParade() {
    m_session.drawState = Playback;
}

void DrawEngine::resetToIdle() {
    m_session.drawState = Idle;
    m_session.landing = false;
}

}  // namespace draw
