#include <QFile>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QtTest>

#include "core/appstate.h"
#include "core/profile.h"
#include "core/settings.h"
#include "core/store.h"
#include "draw/engine.h"
#include "draw/winners.h"
#include "stage/protocol.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

struct OutsideWrite {
    const char *sql;
    qint64 value;
};

// A started program folder with a recording stage and an engine with a fresh session.
struct Rig {
    TempProgramFolder folder;
    RecordingStage stage;
    draw::DrawEngine engine{stage};
    const draw::DrawSession &session = engine.session();
    bool started = folder.start();

    QVariant cell(qint64 id, const QString &column) {
        return store::scalar(
            folder.db(), QStringLiteral("SELECT %1 FROM UserList WHERE ID=?").arg(column), {id});
    }
    void setWins(qint64 id, const QVariant &jxId, int status, const QString &time = QString()) {
        store::exec(folder.db(),
                    QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=?, UpdateTime=? "
                                   "WHERE ID=?"),
                    {jxId, status, time.isEmpty() ? QVariant() : QVariant(time), id});
    }
    // Writes through a connection of another program, which the engine cannot account for.
    void writeOutside(const QList<OutsideWrite> &writes) {
        {
            QSqlDatabase outside = QSqlDatabase::addDatabase("QSQLITE", "outside");
            outside.setDatabaseName(folder.db().databaseName());
            QVERIFY(outside.open());
            for (const OutsideWrite &write : writes)
                store::exec(outside, write.sql, {write.value});
        }
        QSqlDatabase::removeDatabase("outside");
    }
    // A whole draw: Start, then the stage's stoplucksub.
    bool drawAndRecord() {
        if (engine.pressStart() != draw::DrawEngine::StartOutcome::Drawn) return false;
        return engine.recordWinners();
    }
};

}  // namespace

class TestEngine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_ui = installScriptedUi(); }
    void loadAwardFillsTheAwardPanel();
    void winnerLineIsMaskedWhenNamesAreHidden();
    void missingAwardWarnsAndKeepsTheLoadedOne();
    void navigationAtBothEnds();
    void allFullAndNoAwards();
    void defaultAwardFallsBackSilently();
    void startOnAFullAwardMovesOn();
    void recordAndCancelEditTheWins();
    void cancelAnsweredNoChangesNothing();
    void movingOnEndsTheCancel_data();
    void movingOnEndsTheCancel();
    void oneDrawAtATime();
    void emptyDrawWarns();
    void nothingIsStoredBeforeTheLanding();
    void interruptedRecordingStoresNothing();
    void scrollSampleComesFromTheEligiblePool();
    void storeChangesReachTheNextPress();
    void nobodyRemovedOutsideIsDrawn();
    void restartClearsEverythingAfterASnapshot();

private:
    ScriptedUi *m_ui = nullptr;
};

void TestEngine::loadAwardFillsTheAwardPanel() {
    Rig rig;
    QVERIFY(rig.started);
    const int award = rig.folder.addAward("一等奖", 10, 3, 1, 0, 0, 0, "笔记本");
    const QList<int> ids = rig.folder.addUsers({"张三", "李四", "王五"});
    rig.setWins(ids[0], "|1|", 3, "2026-11-05 09:00:00");
    rig.setWins(ids[1], "|1|", 3, "2026-11-05 09:10:00");
    rig.engine.setPrizeHead(QStringLiteral("false|img_jpimgs|3|10|20|100|80|100|false|"));

    QVERIFY(rig.engine.loadAward(award, false));
    const QString picture = rig.folder.path();
    QCOMPARE(rig.stage.lines(),
             QStringList({"vbLoadJx=一等奖|10|3|8|笔记本|" + picture,
                          "updateLuckLst=恭喜∶李四   张三   获得一等奖",
                          "vbAddImg=false|img_jpimgs|3|10|20|100|80|100|false|" + picture,
                          "vbShowBlock=false"}));
    QCOMPARE(rig.session.drawState, int(draw::Idle));
    QCOMPARE(rig.session.batchCount, 3);

    // The same award again: no picture, state Result; with resetButtons back to Idle.
    rig.stage.clear();
    QVERIFY(rig.engine.loadAward(award, false));
    QCOMPARE(rig.stage.names(), QStringList({"vbLoadJx", "updateLuckLst"}));
    QCOMPARE(rig.session.drawState, int(draw::Result));
    rig.stage.clear();
    rig.engine.reloadAward(true, true);
    QCOMPARE(rig.stage.names(),
             QStringList({"vbLoadJx", "updateLuckLst", "changBtn", "vbShowBlock"}));
    QCOMPARE(rig.stage.values(proto::changBtn), QStringList({"defulte"}));
    QCOMPARE(rig.session.drawState, int(draw::Idle));

    // An award nobody has won, and a blank head: no picture.
    const int second = rig.folder.addAward("二等奖", 2, 1);
    rig.engine.setPrizeHead(QString());
    rig.stage.clear();
    QVERIFY(rig.engine.loadAward(second, false));
    QCOMPARE(rig.stage.values(proto::updateLuckLst), QStringList({"当前奖项暂无获奖名单..."}));
    QVERIFY(rig.stage.values(proto::vbAddImg).isEmpty());
    QVERIFY(m_ui->records.isEmpty());
}

void TestEngine::winnerLineIsMaskedWhenNamesAreHidden() {
    Rig rig;
    QVERIFY(rig.started);
    const int award = rig.folder.addAward("一等奖", 10, 1);
    const QList<int> ids = rig.folder.addUsers({"张小明", "李四"});
    rig.setWins(ids[0], "|1|", 3, "2026-11-05 09:00:00");
    rig.setWins(ids[1], "|1|", 3, "2026-11-05 09:00:00");
    appState().isHideName = 1;
    appState().hideLeft = 1;
    appState().hideRight = 0;
    appState().hideReStr = QStringLiteral("*");
    rig.engine.loadAward(award, false);
    QCOMPARE(rig.stage.values(proto::updateLuckLst), QStringList({"恭喜∶张**   李*   获得一等奖"}));
}

void TestEngine::missingAwardWarnsAndKeepsTheLoadedOne() {
    Rig rig;
    QVERIFY(rig.started);
    const int award = rig.folder.addAward("一等奖", 3, 1);
    QVERIFY(rig.engine.loadAward(award, false));
    rig.stage.clear();
    QVERIFY(!rig.engine.loadAward(99, false));
    QCOMPARE(m_ui->texts(), QStringList({"找不到指定的奖项!"}));
    QCOMPARE(m_ui->last().title, QStringLiteral("警告"));
    QCOMPARE(m_ui->last().style, MsgStyle::Exclamation);
    QCOMPARE(rig.session.award.id, award);
    QVERIFY(rig.stage.calls.isEmpty());
}

void TestEngine::navigationAtBothEnds() {
    Rig rig;
    QVERIFY(rig.started);
    const int first = rig.folder.addAward("一等奖", 1, 1);
    const int second = rig.folder.addAward("二等奖", 1, 1);
    const int third = rig.folder.addAward("三等奖", 1, 1);
    const QList<int> ids = rig.folder.addUsers({"a", "b"});
    rig.setWins(ids[0], "|2|", 3);  // the second award is full

    rig.engine.loadAward(first, false);
    rig.engine.stepAward(true, false);
    QCOMPARE(rig.session.award.id, second);  // stepping does not skip a full award
    QCOMPARE(rig.session.batchCount, 0);
    rig.engine.stepAward(true, false);
    QCOMPARE(rig.session.award.id, third);
    rig.stage.clear();
    rig.engine.stepAward(true, false);  // last, no wrap: nothing at all
    QCOMPARE(rig.session.award.id, third);
    QVERIFY(rig.stage.calls.isEmpty());
    rig.engine.stepAward(true, true);  // wrap: the first open award
    QCOMPARE(rig.session.award.id, first);
    rig.stage.clear();
    rig.engine.stepAward(false, false);  // first, no wrap back
    QCOMPARE(rig.session.award.id, first);
    QVERIFY(rig.stage.calls.isEmpty());
    rig.engine.loadAward(third, false);
    rig.engine.stepAward(false, false);
    QCOMPARE(rig.session.award.id, second);
    QVERIFY(m_ui->records.isEmpty());
}

void TestEngine::allFullAndNoAwards() {
    Rig rig;
    QVERIFY(rig.started);
    QSignalSpy full(&rig.engine, &draw::DrawEngine::allAwardsFull);
    rig.engine.firstOpenAward(false);
    QCOMPARE(m_ui->texts(), QStringList({"当前未设置任何奖项,请先添加奖项!"}));
    QCOMPARE(m_ui->last().title, QStringLiteral("警告"));
    QCOMPARE(full.count(), 0);

    m_ui->clear();
    const int first = rig.folder.addAward("一等奖", 1, 1);
    rig.folder.addAward("二等奖", 1, 1);
    const QList<int> ids = rig.folder.addUsers({"a", "b"});
    rig.setWins(ids[0], "|1|", 3);
    rig.setWins(ids[1], "|2|", 3);
    rig.engine.loadAward(first, false);
    rig.stage.clear();
    QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Stepped);
    // Start on the full first award steps to the second, also full; Start there wraps and finds
    // every award full.
    QCOMPARE(full.count(), 0);
    QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Stepped);
    QCOMPARE(full.count(), 1);
    QVERIFY(m_ui->records.isEmpty());
}

void TestEngine::defaultAwardFallsBackSilently() {
    Rig rig;
    QVERIFY(rig.started);
    rig.folder.addAward("一等奖", 1, 1);
    const int second = rig.folder.addAward("二等奖", 2, 1);
    const QList<int> ids = rig.folder.addUsers({"a"});
    rig.setWins(ids[0], "|1|", 3);
    appState().selJxid = 77;  // deleted meanwhile
    rig.engine.loadDefaultAward(true);
    QCOMPARE(rig.stage.names().first(), QStringLiteral("vbShowBlock"));
    QCOMPARE(rig.session.award.id, second);
    QVERIFY(m_ui->records.isEmpty());
    appState().selJxid = 1;
    rig.engine.loadDefaultAward(false);
    QCOMPARE(rig.session.award.id, 1);
}

void TestEngine::startOnAFullAwardMovesOn() {
    Rig rig;
    QVERIFY(rig.started);
    const int first = rig.folder.addAward("一等奖", 1, 1);
    const int second = rig.folder.addAward("二等奖", 1, 1);
    const QList<int> ids = rig.folder.addUsers({"a", "b"});
    rig.setWins(ids[0], "|1|", 3);
    rig.engine.loadAward(first, false);
    rig.stage.clear();
    QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Stepped);
    QCOMPARE(rig.stage.values(proto::changBtn), QStringList({"defulte"}));
    QVERIFY(rig.stage.values(proto::vbndluck).isEmpty());
    QCOMPARE(rig.session.award.id, second);
    QCOMPARE(rig.session.drawState, int(draw::Idle));
    rig.stage.clear();
    rig.engine.setBlockStyle([](int batch) { return QStringLiteral("style|%1|s|").arg(batch); });
    QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Drawn);
    QCOMPARE(rig.stage.lines(), QStringList({"vbndluck=0|b$" + QString::number(ids[1]),
                                             "vbLoadBlock=style|1|s|", "changBtn=start"}));
    QCOMPARE(rig.session.drawState, int(draw::Running));
}

void TestEngine::recordAndCancelEditTheWins() {
    Rig rig;
    QVERIFY(rig.started);
    const int first = rig.folder.addAward("一等奖", 5, 1);
    const int second = rig.folder.addAward("二等奖", 3, 1, 0);
    const QList<int> ids = rig.folder.addUsers({"a", "b", "c"});
    rig.setWins(ids[0], QVariant(), 0);  // NULL: concatenation must still give |2|
    rig.setWins(ids[1], "|1|", 3, "2026-01-01 10:00:00");
    QSignalSpy recorded(&rig.engine, &draw::DrawEngine::batchRecorded);

    rig.engine.loadAward(second, false);
    QVERIFY(rig.drawAndRecord());
    QCOMPARE(recorded.count(), 1);
    QCOMPARE(rig.cell(ids[0], "JxID").toString(), QStringLiteral("|2|"));
    QCOMPARE(rig.cell(ids[1], "JxID").toString(), QStringLiteral("|1||2|"));
    QCOMPARE(rig.cell(ids[2], "JxID").toString(), QStringLiteral("|2|"));
    const QString time = rig.cell(ids[0], "UpdateTime").toString();
    for (int id : ids) {
        QCOMPARE(rig.cell(id, "UserStatus").toInt(), 3);
        QCOMPARE(rig.cell(id, "UpdateTime").toString(), time);
    }
    QVERIFY(rig.session.canCancel);
    QCOMPARE(rig.session.drawState, int(draw::Result));
    QCOMPARE(appState().selJxid, qint16(second));
    QCOMPARE(readIni("main", "selJxid", appState().iniPath), QString::number(second));
    QCOMPARE(rig.stage.values(proto::vbLoadJx).last(),
             QStringLiteral("二等奖|3|1|0||") + rig.folder.path());
    QVERIFY(!rig.engine.recordWinners());  // a second stoplucksub records nothing more

    // c gives up before the cancel.
    rig.setWins(ids[2], "无", 1);
    m_ui->answers.enqueue(true);
    rig.stage.clear();
    QSignalSpy cancelled(&rig.engine, &draw::DrawEngine::batchCancelled);
    QVERIFY(rig.engine.cancelLastBatch());
    QCOMPARE(m_ui->texts(), QStringList({"确定要撤消此次产生的中奖结果么?"}));
    QCOMPARE(m_ui->last().title, QStringLiteral("提示"));
    QCOMPARE(m_ui->last().kind, QStringLiteral("question"));
    QCOMPARE(rig.cell(ids[0], "JxID").toString(), QString());
    QCOMPARE(rig.cell(ids[0], "UserStatus").toInt(), 0);
    QCOMPARE(rig.cell(ids[0], "UpdateTime").toString(), time);
    QCOMPARE(rig.cell(ids[1], "JxID").toString(), QStringLiteral("|1|"));
    QCOMPARE(rig.cell(ids[1], "UserStatus").toInt(), 3);
    QCOMPARE(rig.cell(ids[2], "JxID").toString(), QStringLiteral("无"));
    QCOMPARE(rig.cell(ids[2], "UserStatus").toInt(), 1);
    QCOMPARE(rig.stage.names(),
             QStringList({"vbLoadJx", "updateLuckLst", "vbShowBlock", "changBtn"}));
    QCOMPARE(rig.stage.values(proto::changBtn), QStringList({"defulte"}));
    QCOMPARE(rig.session.drawState, int(draw::Result));
    QCOMPARE(cancelled.count(), 1);
    // Only once.
    QVERIFY(!rig.engine.cancelLastBatch());
    QCOMPARE(m_ui->records.size(), 1);
    Q_UNUSED(first);
}

void TestEngine::cancelAnsweredNoChangesNothing() {
    Rig rig;
    QVERIFY(rig.started);
    const int award = rig.folder.addAward("一等奖", 1, 1);
    const QList<int> ids = rig.folder.addUsers({"a"});
    rig.engine.loadAward(award, false);
    QVERIFY(rig.drawAndRecord());
    m_ui->answers.enqueue(false);
    QVERIFY(!rig.engine.cancelLastBatch());
    QCOMPARE(rig.cell(ids[0], "JxID").toString(), QStringLiteral("|1|"));
    QVERIFY(rig.session.canCancel);
    // The next Start clears it.
    rig.engine.pressStart();
    QVERIFY(!rig.session.canCancel);
}

void TestEngine::movingOnEndsTheCancel_data() {
    QTest::addColumn<int>("how");  // 0 the next award, 1 a give-up's reload, 2 a make-up's load
    QTest::newRow("next award") << 0;
    QTest::newRow("give-up") << 1;
    QTest::newRow("make-up") << 2;
}

void TestEngine::movingOnEndsTheCancel() {
    QFETCH(int, how);
    Rig rig;
    QVERIFY(rig.started);
    const int first = rig.folder.addAward("一等奖", 2, 1, 0);
    const int second = rig.folder.addAward("二等奖", 2, 1, 0);
    const QList<int> ids = rig.folder.addUsers({"a", "b"});
    for (int id : ids)
        rig.setWins(id, store::awardMarker(second), 3);
    rig.engine.loadAward(first, false);
    QVERIFY(rig.drawAndRecord());
    rig.stage.clear();
    if (how == 0) rig.engine.stepAward(true, false);
    if (how == 1) rig.engine.reloadAward(true, true);
    if (how == 2) rig.engine.loadAward(second, true);
    // The bar of rest, without the undo, and the undo itself does nothing.
    QCOMPARE(rig.stage.values(proto::changBtn), QStringList{"defulte"});
    m_ui->answers.enqueue(true);
    QVERIFY(!rig.engine.cancelLastBatch());
    QVERIFY(m_ui->records.isEmpty());
    for (int id : ids)
        QCOMPARE(rig.cell(id, "JxID").toString(),
                 store::awardMarker(second) + store::awardMarker(first));
}

void TestEngine::oneDrawAtATime() {
    Rig rig;
    QVERIFY(rig.started);
    const int award = rig.folder.addAward("一等奖", 2, 1);
    rig.folder.addUsers({"a", "b", "c", "d"});
    rig.engine.loadAward(award, false);
    QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Drawn);
    const QString drawn = rig.session.winnerIds;
    rig.stage.clear();
    // A second Start, from a key or a button the movie let through, draws nobody new.
    QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Refused);
    QVERIFY(rig.engine.stopDraw());
    QVERIFY(!rig.engine.stopDraw());
    // Once the winners land they can no longer be cleared or replaced.
    QVERIFY(!rig.engine.clearDraw());
    QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Refused);
    QCOMPARE(rig.stage.lines(), QStringList{"changBtn=stop"});
    QCOMPARE(rig.session.winnerIds, drawn);
    QVERIFY(rig.engine.recordWinners());
    QCOMPARE(draw::countAwardWinners(rig.folder.db(), award), 2);
}

void TestEngine::emptyDrawWarns() {
    Rig rig;
    QVERIFY(rig.started);
    const int award = rig.folder.addAward("一等奖", 3, 1);
    const QList<int> ids = rig.folder.addUsers({"a", "b"});
    rig.setWins(ids[0], "无", 1);
    rig.setWins(ids[1], "|5|", 3);  // isReLuck 1: any win excludes
    rig.engine.loadAward(award, false);
    rig.engine.setBlockStyle([](int) { return QStringLiteral("x|s|"); });
    rig.stage.clear();
    QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Empty);
    QCOMPARE(rig.stage.lines(), QStringList({"vbndluck=0|", "changBtn=defulte"}));
    QCOMPARE(m_ui->texts(), QStringList({"已无符合条件的抽奖名单可抽取!"}));
    QCOMPARE(m_ui->last().title, QStringLiteral("警告"));
    QCOMPARE(m_ui->last().style, MsgStyle::Exclamation);
    QCOMPARE(rig.session.drawState, int(draw::Idle));
    QCOMPARE(rig.session.award.id, award);
}

void TestEngine::nothingIsStoredBeforeTheLanding() {
    Rig rig;
    QVERIFY(rig.started);
    const int award = rig.folder.addAward("一等奖", 2, 1);
    rig.folder.addUsers({"a", "b", "c"});
    rig.engine.loadAward(award, false);
    QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Drawn);
    QCOMPARE(rig.session.winnerIds.split(',').size(), 2);
    // The screen is left (or the program dies) before stoplucksub: nothing was promised.
    QCOMPARE(draw::countAwardWinners(rig.folder.db(), award), 0);
    // A Clear puts the draw back to Idle; a late stoplucksub then records nothing.
    rig.engine.clearDraw();
    QVERIFY(!rig.engine.recordWinners());
    QCOMPARE(draw::countAwardWinners(rig.folder.db(), award), 0);
}

void TestEngine::interruptedRecordingStoresNothing() {
    Rig rig;
    QVERIFY(rig.started);
    const int award = rig.folder.addAward("一等奖", 5, 1);
    rig.folder.addUsers({"a", "b", "c", "d", "e"});
    rig.engine.loadAward(award, false);
    QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Drawn);
    // The store fails on the third row of the batch, after two rows were already written.
    const QString third = rig.session.winnerIds.split(',').at(2);
    QVERIFY(store::exec(rig.folder.db(),
                        QStringLiteral("CREATE TRIGGER breakBatch BEFORE UPDATE ON UserList "
                                       "WHEN NEW.ID=%1 BEGIN SELECT RAISE(ABORT, 'disk "
                                       "gone'); END")
                            .arg(third.toInt())));
    QSignalSpy failed(&rig.engine, &draw::DrawEngine::recordFailed);
    QVERIFY(!rig.engine.recordWinners());
    QCOMPARE(failed.count(), 1);
    QVERIFY(failed.first().first().toString().contains(QStringLiteral("disk gone")));
    QCOMPARE(store::scalar(rig.folder.db(),
                           QStringLiteral("SELECT COUNT(*) FROM UserList WHERE JxID<>'' OR "
                                          "UserStatus<>0 OR UpdateTime IS NOT NULL"))
                 .toInt(),
             0);
    QVERIFY(!rig.session.canCancel);
    // Once the store works again, the same landing can be recorded whole.
    QVERIFY(store::exec(rig.folder.db(), QStringLiteral("DROP TRIGGER breakBatch")));
    QVERIFY(rig.engine.recordWinners());
    QCOMPARE(draw::countAwardWinners(rig.folder.db(), award), 5);
}

void TestEngine::scrollSampleComesFromTheEligiblePool() {
    Rig rig;
    QVERIFY(rig.started);
    const int award = rig.folder.addAward("一等奖", 3, 1, 1, 2, 5);
    const QList<int> ids =
        rig.folder.addUsers({"a|x|5", "b$c|x|0", "d|x|7", "e|x|5", "f|x|7", "g|x|5"});
    rig.setWins(ids[3], "无", 1);  // gave up: never scrolls
    rig.engine.loadAward(award, false);
    rig.engine.pressStart();
    rig.stage.clear();
    // Equals 5: only DiffNum 5 and 0 scroll; names cleaned as on the winners' path.
    const QSet<QString> pool = {"a$" + QString::number(ids[0]), "b＄c$" + QString::number(ids[1]),
                                "g$" + QString::number(ids[5])};
    for (int tick = 0; tick < 20; ++tick) {
        const QString value = rig.engine.pushScrollSample();
        QVERIFY(value.startsWith(QStringLiteral("0|")));
        const QStringList items = value.mid(2).split('|');
        QCOMPARE(QSet<QString>(items.begin(), items.end()), pool);
    }
    QCOMPARE(rig.stage.values(proto::vbPushLst).size(), 20);

    // From a larger pool each tick is a fresh sample of batchCount distinct names.
    rig.folder.addUsers(QStringList(40, QStringLiteral("h|x|0")));
    QSignalSpy reread(&rig.engine, &draw::DrawEngine::rosterReread);
    rig.engine.loadAward(award, false);
    QVERIFY(reread.wait());
    QSet<QString> seen;
    for (int tick = 0; tick < 20; ++tick) {
        const QStringList items = rig.engine.pushScrollSample().mid(2).split('|');
        QCOMPARE(QSet<QString>(items.begin(), items.end()).size(), 3);
        seen.insert(items.join('|'));
    }
    QVERIFY(seen.size() > 15);

    // Nobody eligible: nothing is sent.
    store::exec(rig.folder.db(), QStringLiteral("UPDATE UserList SET JxID='无', UserStatus=1"));
    rig.engine.loadAward(award, false);
    QVERIFY(rig.session.candidates.count() == 0);
    rig.stage.clear();
    QVERIFY(rig.engine.pushScrollSample().isEmpty());
    QVERIFY(rig.stage.calls.isEmpty());
}

void TestEngine::storeChangesReachTheNextPress() {
    // The roster is read once and kept across presses. Another connection's write reaches the
    // next press as far as who may win goes; the roster itself is read again behind the draw.
    Rig rig;
    QVERIFY(rig.started);
    const int award = rig.folder.addAward("一等奖", 10, 10, 1, 1, 5);  // greater than 5
    const QList<int> ids = rig.folder.addUsers({"a|x|9", "b|x|1", "c|x|1", "d|x|9"});
    rig.engine.loadAward(award, false);
    QVERIFY(rig.drawAndRecord());
    // Recorded by the draw itself: the roster stays, the winner is out.
    QCOMPARE(rig.session.candidates.count(), 3);
    const qint64 winner = rig.session.lastWinnerIds.toLongLong();
    const qint64 other = winner == ids[0] ? ids[3] : ids[0];

    rig.writeOutside({{"UPDATE UserList SET DiffNum=8 WHERE ID=?", ids[1]},
                      {"INSERT INTO UserList (ID, UserName, DiffNum) VALUES (99, 'e', ?)", 7},
                      {"UPDATE UserList SET JxID='无', UserStatus=1 WHERE ID=?", ids[2]}});

    QSignalSpy reread(&rig.engine, &draw::DrawEngine::rosterReread);
    QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Drawn);
    QCOMPARE(rig.session.candidates.primary, (std::vector<qint64>{other}));
    QCOMPARE(rig.session.candidates.fallback, (std::vector<qint64>{ids[1]}));
    QVERIFY(reread.wait());
    std::vector<qint64> everyone{other, ids[1], 99};
    std::sort(everyone.begin(), everyone.end());
    QCOMPARE(rig.session.candidates.primary, everyone);
    QVERIFY(rig.session.candidates.fallback.empty());
}

void TestEngine::nobodyRemovedOutsideIsDrawn() {
    // Nine of ten are deleted by another connection just before the press, before the roster
    // is read again behind the draw: only the tenth may win.
    Rig rig;
    QVERIFY(rig.started);
    const int award = rig.folder.addAward("一等奖", 10, 10);
    const QList<int> ids = rig.folder.addUsers(QStringList(10, QStringLiteral("p|x|0")));
    rig.engine.loadAward(award, false);
    rig.writeOutside({{"DELETE FROM UserList WHERE ID<>?", ids.last()}});
    QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Drawn);
    QCOMPARE(rig.session.winnerIds, QString::number(ids.last()));
}

void TestEngine::restartClearsEverythingAfterASnapshot() {
    Rig rig;
    QVERIFY(rig.started);
    const int first = rig.folder.addAward("一等奖", 1, 1);
    const int second = rig.folder.addAward("二等奖", 1, 1);
    const QList<int> ids = rig.folder.addUsers({"a", "b"});
    rig.setWins(ids[0], "|1|", 3);
    rig.setWins(ids[1], "无", 1);
    rig.engine.loadAward(second, false);
    settings::write("selJxid", second);

    m_ui->answers.enqueue(false);
    QVERIFY(!rig.engine.restartDraw([](const QString &) { return true; }));
    m_ui->answers.enqueue(true);
    QVERIFY(!rig.engine.restartDraw([](const QString &) { return false; }));  // no snapshot
    QCOMPARE(rig.cell(ids[0], "JxID").toString(), QStringLiteral("|1|"));

    m_ui->answers.enqueue(true);
    QString snapshot;
    rig.stage.clear();
    QVERIFY(rig.engine.restartDraw([&](const QString &path) {
        snapshot = path;
        return true;
    }));
    QCOMPARE(m_ui->texts(), QStringList(3, "您确定要删除所有中奖信息,重新开始抽奖么?"));
    QCOMPARE(m_ui->last().title, QStringLiteral("重要提示"));
    QVERIFY(snapshot.startsWith(rig.folder.path("History/")));
    QCOMPARE(rig.cell(ids[1], "JxID").toString(), QString());
    QCOMPARE(rig.cell(ids[1], "UserStatus").toInt(), 0);
    QCOMPARE(appState().selJxid, qint16(0));
    QCOMPARE(readIni("main", "selJxid", appState().iniPath), QStringLiteral("0"));
    // The first award again, buttons back to the start.
    QCOMPARE(rig.session.award.id, first);
    QCOMPARE(rig.stage.values(proto::changBtn), QStringList({"defulte"}));
    QCOMPARE(rig.session.drawState, int(draw::Idle));
}

QTEST_MAIN(TestEngine)
#include "tst_engine.moc"
