#include <QSignalSpy>
#include <QSqlQuery>
#include <QtTest>

#include "core/appstate.h"
#include "core/profile.h"
#include "core/settings.h"
#include "enginerig.h"
#include "stage/protocol.h"
#include "support/scriptedui.h"

namespace {

// Writes (a statement and its one value) through a connection of another program, which the
// engine cannot account for.
void writeOutside(EngineRig &rig, const QList<std::pair<const char *, qint64>> &writes) {
    {
        QSqlDatabase outside = QSqlDatabase::addDatabase("QSQLITE", "outside");
        outside.setDatabaseName(rig.folder.db().databaseName());
        QVERIFY(outside.open());
        for (const auto &[sql, value] : writes)
            store::exec(outside, sql, {value});
    }
    QSqlDatabase::removeDatabase("outside");
}

}  // namespace

class TestEngine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_ui = installScriptedUi();
        m_rig = std::make_unique<EngineRig>();
        QVERIFY(m_rig->started);
    }
    void cleanup() { m_rig.reset(); }

    void loadAwardFillsTheAwardPanel() {
        EngineRig &rig = *m_rig;
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
        QCOMPARE(rig.session.batchCount, 3);

        // The same award again: no picture; with resetButtons the buttons of rest, blocks hidden.
        rig.stage.clear();
        rig.engine.reloadAward(true, true);
        QCOMPARE(rig.stage.names(),
                 QStringList({"vbLoadJx", "updateLuckLst", "changBtn", "vbShowBlock"}));

        // An award nobody has won, and a blank head: no picture.
        const int second = rig.folder.addAward("二等奖", 2, 1);
        rig.engine.setPrizeHead(QString());
        rig.stage.clear();
        QVERIFY(rig.engine.loadAward(second, false));
        QCOMPARE(rig.stage.lines().mid(1, 2),
                 QStringList({"updateLuckLst=当前奖项暂无获奖名单...", "vbShowBlock=false"}));

        // Names hidden: the winner line masks them as the stage does.
        appState().isHideName = 1;
        appState().hideLeft = 1;
        appState().hideRight = 0;
        appState().hideReStr = QStringLiteral("*");
        rig.engine.loadAward(award, false);
        QCOMPARE(rig.stage.values(proto::updateLuckLst).last(),
                 QStringLiteral("恭喜∶李*   张*   获得一等奖"));

        // An award gone meanwhile: a warning, and the loaded one stays.
        rig.stage.clear();
        QVERIFY(!rig.engine.loadAward(99, false));
        QCOMPARE(m_ui->texts(), QStringList({"找不到指定的奖项!"}));
        QCOMPARE(rig.session.award.id, award);
        QVERIFY(rig.stage.calls.isEmpty());
    }

    void navigationAtBothEnds() {
        EngineRig &rig = *m_rig;
        const int first = rig.folder.addAward("一等奖", 1, 1);
        const int second = rig.folder.addAward("二等奖", 1, 1);
        const int third = rig.folder.addAward("三等奖", 1, 1);
        const QList<int> ids = rig.folder.addUsers({"a", "b"});
        rig.setWins(ids[0], "|2|", 3);  // the second award is full

        // The award loaded after a step; the stage's calls show whether anything happened.
        const auto step = [&](bool forward, bool wrap) {
            rig.stage.clear();
            rig.engine.stepAward(forward, wrap);
            return rig.session.award.id;
        };
        rig.engine.loadAward(first, false);
        QCOMPARE(step(true, false), second);  // stepping does not skip a full award
        QCOMPARE(rig.session.batchCount, 0);
        QCOMPARE(step(true, false), third);
        QCOMPARE(step(true, false), third);  // last, no wrap: nothing at all
        QVERIFY(rig.stage.calls.isEmpty());
        QCOMPARE(step(true, true), first);    // wrap: the first open award
        QCOMPARE(step(false, false), first);  // first, no wrap back
        QVERIFY(rig.stage.calls.isEmpty());
        rig.engine.loadAward(third, false);
        QCOMPARE(step(false, false), second);
        QVERIFY(m_ui->records.isEmpty());
    }

    void startOnAFullAwardMovesOn() {
        EngineRig &rig = *m_rig;
        QSignalSpy full(&rig.engine, &draw::DrawEngine::allAwardsFull);
        rig.engine.firstOpenAward(false);
        QCOMPARE(m_ui->texts(), QStringList({"当前未设置任何奖项,请先添加奖项!"}));
        m_ui->clear();
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
        rig.stage.clear();
        rig.engine.setBlockStyle(
            [](int batch) { return QStringLiteral("style|%1|s|").arg(batch); });
        QVERIFY(rig.drawAndRecord());
        QCOMPARE(rig.stage.lines().mid(0, 3),
                 QStringList({"vbndluck=0|b$" + QString::number(ids[1]), "vbLoadBlock=style|1|s|",
                              "changBtn=start"}));
        // Every award full: Start on the last wraps and finds none open.
        QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Stepped);
        QCOMPARE(full.count(), 1);
        QVERIFY(m_ui->records.isEmpty());
    }

    void defaultAwardFallsBackSilently() {
        EngineRig &rig = *m_rig;
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

    void recordAndCancelEditTheWins() {
        EngineRig &rig = *m_rig;
        rig.folder.addAward("一等奖", 5, 1);
        const int second = rig.folder.addAward("二等奖", 3, 1, 0);
        const QList<int> ids = rig.folder.addUsers({"a", "b", "c"});
        rig.setWins(ids[0], QVariant(), 0);  // NULL: concatenation must still give |2|
        rig.setWins(ids[1], "|1|", 3, "2026-01-01 10:00:00");
        const auto wins = [&] {
            QStringList result;
            for (int id : ids)
                result << rig.cell(id, "JxID").toString() + '/' +
                              rig.cell(id, "UserStatus").toString();
            return result;
        };
        rig.engine.loadAward(second, false);
        QVERIFY(rig.drawAndRecord());
        QCOMPARE(wins(), QStringList({"|2|/3", "|1||2|/3", "|2|/3"}));
        const QString time = rig.cell(ids[0], "UpdateTime").toString();
        QCOMPARE(  // one time for the whole batch
            store::scalar(rig.folder.db(), "SELECT COUNT(DISTINCT UpdateTime) FROM UserList")
                .toInt(),
            1);
        QVERIFY(rig.session.canCancel);
        QCOMPARE(rig.session.drawState, int(draw::Result));
        QCOMPARE(readIni("main", "selJxid", appState().iniPath), QString::number(second));
        QCOMPARE(rig.stage.values(proto::vbLoadJx).last(),
                 QStringLiteral("二等奖|3|1|0||") + rig.folder.path());
        QVERIFY(!rig.engine.recordWinners());  // a second stoplucksub records nothing more

        // c gives up before the cancel, which leaves the give-up and the earlier win alone.
        rig.setWins(ids[2], "无", 1);
        m_ui->answers.enqueue(true);
        rig.stage.clear();
        QVERIFY(rig.engine.cancelLastBatch());
        QCOMPARE(m_ui->texts(), QStringList({"确定要撤消此次产生的中奖结果么?"}));
        QCOMPARE(wins(), QStringList({"/0", "|1|/3", "无/1"}));
        QCOMPARE(rig.cell(ids[0], "UpdateTime").toString(), time);
        QCOMPARE(rig.stage.names(),
                 QStringList({"vbLoadJx", "updateLuckLst", "vbShowBlock", "changBtn"}));
        QCOMPARE(rig.stage.values(proto::changBtn), QStringList({"defulte"}));
        QCOMPARE(rig.session.drawState, int(draw::Result));
        QVERIFY(!rig.engine.cancelLastBatch());  // only once
        QCOMPARE(m_ui->records.size(), 1);
    }

    void cancelOnlyTheBatchOnShow_data() {
        QTest::addColumn<QString>("how");
        QTest::newRow("answered no") << "no";
        QTest::newRow("next press") << "start";
        QTest::newRow("next award") << "next";
        QTest::newRow("give-up") << "giveup";
        QTest::newRow("make-up") << "makeup";
    }

    // Once the operator moves on, the batch can no longer be taken back; answered No, it stays.
    void cancelOnlyTheBatchOnShow() {
        QFETCH(QString, how);
        EngineRig &rig = *m_rig;
        const int first = rig.folder.addAward("一等奖", 4, 2);
        const int second = rig.folder.addAward("二等奖", 2, 1);
        rig.folder.addUsers({"a", "b", "c", "d", "e"});
        rig.engine.loadAward(first, false);
        QVERIFY(rig.drawAndRecord());
        rig.stage.clear();
        if (how == "start")
            QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Drawn);
        if (how == "next") rig.engine.stepAward(true, false);
        if (how == "giveup") rig.engine.reloadAward(true, true);
        if (how == "makeup") rig.engine.loadAward(second, true);
        // The bar of rest, without the undo.
        if (how != "no" && how != "start")
            QCOMPARE(rig.stage.values(proto::changBtn), QStringList{"defulte"});
        m_ui->answers.enqueue(how != "no");
        QVERIFY(!rig.engine.cancelLastBatch());
        QCOMPARE(m_ui->records.size(), how == "no" ? 1 : 0);
        QCOMPARE(rig.session.canCancel, how == "no");
        QCOMPARE(rig.winners(first), 2);
    }

    // One press draws once and stores only at its landing; a Clear before it stores nothing.
    void onePressOneBatchAtItsLanding() {
        EngineRig &rig = *m_rig;
        const int award = rig.folder.addAward("一等奖", 4, 2);
        rig.folder.addUsers({"a", "b", "c", "d", "e"});
        rig.engine.loadAward(award, false);
        QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Drawn);
        QCOMPARE(rig.session.winnerIds.split(',').size(), 2);
        rig.stage.clear();
        QVERIFY(rig.engine.clearDraw());
        QCOMPARE(rig.stage.lines(), QStringList({"changBtn=clear", "vbShowBlock=false"}));
        QVERIFY(!rig.engine.recordWinners());
        QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Drawn);
        const QString drawn = rig.session.winnerIds;
        rig.stage.clear();
        // A second Start, from a key or a button the movie let through, draws nobody new.
        QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Refused);
        QVERIFY(rig.engine.stopDraw());
        QVERIFY(!rig.engine.stopDraw());
        QCOMPARE(rig.winners(award), 0);
        // Once the winners land they can no longer be cleared or replaced.
        QVERIFY(!rig.engine.clearDraw());
        QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Refused);
        QCOMPARE(rig.stage.lines(), QStringList{"changBtn=stop"});
        QCOMPARE(rig.session.winnerIds, drawn);
        QVERIFY(rig.engine.recordWinners());
        QCOMPARE(rig.winners(award), 2);
    }

    void emptyDrawWarns() {
        EngineRig &rig = *m_rig;
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
        QCOMPARE(rig.session.drawState, int(draw::Idle));
        QCOMPARE(rig.session.award.id, award);
    }

    void interruptedRecordingStoresNothing() {
        EngineRig &rig = *m_rig;
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
        QVERIFY(failed.value(0).value(0).toString().contains(QStringLiteral("disk gone")));
        QCOMPARE(store::scalar(rig.folder.db(),
                               "SELECT COUNT(*) FROM UserList WHERE JxID<>'' OR "
                               "UserStatus<>0 OR UpdateTime IS NOT NULL"),
                 0);
        QVERIFY(!rig.session.canCancel);
        // Once the store works again, the same landing can be recorded whole.
        QVERIFY(store::exec(rig.folder.db(), QStringLiteral("DROP TRIGGER breakBatch")));
        QVERIFY(rig.engine.recordWinners());
        QCOMPARE(rig.winners(award), 5);
    }

    void scrollSampleComesFromTheEligiblePool() {
        EngineRig &rig = *m_rig;
        const int award = rig.folder.addAward("一等奖", 3, 1, 1, 2, 5);
        const QList<int> ids =
            rig.folder.addUsers({"a|x|5", "b$c|x|0", "d|x|7", "e|x|5", "f|x|7", "g|x|5"});
        rig.setWins(ids[3], "无", 1);  // gave up: never scrolls
        rig.engine.loadAward(award, false);
        rig.engine.pressStart();
        rig.stage.clear();
        // Equals 5: only DiffNum 5 and 0 scroll; names cleaned as on the winners' path.
        const QSet<QString> pool = {"a$" + QString::number(ids[0]),
                                    "b＄c$" + QString::number(ids[1]),
                                    "g$" + QString::number(ids[5])};
        for (int tick = 0; tick < 20; ++tick) {
            const QStringList items = rig.engine.pushScrollSample().split('|');
            QCOMPARE(items.first(), QStringLiteral("0"));
            QCOMPARE(QSet<QString>(items.begin() + 1, items.end()), pool);
        }

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
        rig.stage.clear();
        QVERIFY(rig.engine.pushScrollSample().isEmpty());
        QVERIFY(rig.stage.calls.isEmpty());
    }

    void storeChangesReachTheNextPress() {
        // The roster is read once and kept across presses. Another connection's write reaches the
        // next press as far as who may win goes; the roster itself is read again behind the draw.
        EngineRig &rig = *m_rig;
        const int award = rig.folder.addAward("一等奖", 10, 10, 1, 1, 5);  // greater than 5
        const QList<int> ids = rig.folder.addUsers({"a|x|9", "b|x|1", "c|x|1", "d|x|9"});
        rig.engine.loadAward(award, false);
        QVERIFY(rig.drawAndRecord());
        // Recorded by the draw itself: the roster stays, the winner is out.
        QCOMPARE(rig.session.candidates.count(), 3);
        const qint64 winner = rig.session.lastWinnerIds.toLongLong();
        const qint64 other = winner == ids[0] ? ids[3] : ids[0];

        writeOutside(rig, {{"UPDATE UserList SET DiffNum=8 WHERE ID=?", ids[1]},
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

    void nobodyRemovedOutsideIsDrawn() {
        // Nine of ten are deleted by another connection just before the press, before the roster
        // is read again behind the draw: only the tenth may win.
        EngineRig &rig = *m_rig;
        const int award = rig.folder.addAward("一等奖", 10, 10);
        const QList<int> ids = rig.folder.addUsers(QStringList(10, QStringLiteral("p|x|0")));
        rig.engine.loadAward(award, false);
        writeOutside(rig, {{"DELETE FROM UserList WHERE ID<>?", ids.last()}});
        QCOMPARE(rig.engine.pressStart(), draw::DrawEngine::StartOutcome::Drawn);
        QCOMPARE(rig.session.winnerIds, QString::number(ids.last()));
    }

    void restartClearsEverythingAfterASnapshot() {
        EngineRig &rig = *m_rig;
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
        QVERIFY(snapshot.startsWith(rig.folder.path("History/")));
        QCOMPARE(rig.cell(ids[1], "JxID").toString() + rig.cell(ids[1], "UserStatus").toString(),
                 QStringLiteral("0"));
        QCOMPARE(appState().selJxid, qint16(0));
        QCOMPARE(readIni("main", "selJxid", appState().iniPath), QStringLiteral("0"));
        // The first award again, buttons back to the start.
        QCOMPARE(rig.session.award.id, first);
        QCOMPARE(rig.stage.values(proto::changBtn), QStringList({"defulte"}));
        QCOMPARE(rig.session.drawState, int(draw::Idle));
    }

private:
    ScriptedUi *m_ui = nullptr;
    std::unique_ptr<EngineRig> m_rig;
};

QTEST_MAIN(TestEngine)
#include "tst_engine.moc"
