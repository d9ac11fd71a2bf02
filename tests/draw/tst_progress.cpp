#include <QDir>
#include <QFile>
#include <QtTest>

#include "core/appstate.h"
#include "core/profile.h"
#include "core/settings.h"
#include "core/store.h"
#include "draw/progress.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

class TestProgress : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_ui = installScriptedUi(); }
    void figuresOfTheAwards();
    void progressPercent_data();
    void progressPercent();
    void snapshotNames();
    void resetAtZeroIsSilent();
    void resetAsksSnapshotsAndClears();
    void resetAnsweredNoOrWithoutSnapshotKeepsTheWins();

private:
    void addWinners(TempProgramFolder &folder, const QStringList &jxIds);
    ScriptedUi *m_ui = nullptr;
};

void TestProgress::addWinners(TempProgramFolder &folder, const QStringList &jxIds) {
    for (const QString &jx : jxIds) {
        const int id = folder.addUsers({"w"}).first();
        store::exec(folder.db(), "UPDATE UserList SET JxID=?, UserStatus=? WHERE ID=?",
                    {jx, jx == "无" ? 1 : 3, id});
    }
}

void TestProgress::figuresOfTheAwards() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    draw::AwardFigures none = draw::awardFigures(folder.db());
    QCOMPARE(none.awardCount, 0);
    QCOMPARE(none.slotSum, 0);
    QCOMPARE(none.batchSum, 0);
    folder.addAward("一等奖", 3, 1);
    folder.addAward("二等奖", 10, 4);
    const draw::AwardFigures figures = draw::awardFigures(folder.db());
    QCOMPARE(figures.awardCount, 2);
    QCOMPARE(figures.slotSum, 13);
    QCOMPARE(figures.batchSum, 5);
}

void TestProgress::progressPercent_data() {
    QTest::addColumn<QStringList>("wins");
    QTest::addColumn<int>("luckTotal");
    QTest::addColumn<QString>("shown");
    QTest::newRow("none") << QStringList{} << 8 << "0%";
    QTest::newRow("one of eight is 12.5, halves to even") << QStringList{"|1|"} << 8 << "12%";
    QTest::newRow("three of eight is 37.5") << QStringList{"|1|", "|1|", "|2|"} << 8 << "38%";
    QTest::newRow("a holder of two awards counts twice") << QStringList{"|1||2|"} << 4 << "50%";
    QTest::newRow("gave up and unknown awards do not count")
        << QStringList{"无", "|9|", "|11|", "|1|"} << 4 << "25%";
    QTest::newRow("not capped") << QStringList{"|1|", "|1|", "|2|"} << 2 << "150%";
    QTest::newRow("rounds to zero") << QStringList{"|1|"} << 300 << "0%";
}

void TestProgress::progressPercent() {
    QFETCH(QStringList, wins);
    QFETCH(int, luckTotal);
    TempProgramFolder folder;
    QVERIFY(folder.start());
    QCOMPARE(draw::luckProgress(folder.db(), luckTotal), QStringLiteral("0%"));  // no award
    folder.addAward("一等奖", 1, 1);
    folder.addAward("二等奖", 1, 1);
    addWinners(folder, wins);
    QTEST(draw::luckProgress(folder.db(), luckTotal), "shown");
}

void TestProgress::snapshotNames() {
    TempProgramFolder folder;
    const QString app = folder.path();
    const QDateTime moment(QDate(2026, 11, 5), QTime(9, 7));
    QCOMPARE(draw::historySnapshotPath(app, moment), app + "History/202611597.tmp");
    QCOMPARE(draw::historySnapshotPath(app, QDateTime(QDate(2026, 11, 15), QTime(6, 38))),
             app + "History/20261115638.tmp");
    // A snapshot never overwrites another.
    QDir().mkpath(app + "History");
    QFile(app + "History/202611597.tmp").open(QIODevice::WriteOnly);
    QCOMPARE(draw::historySnapshotPath(app, moment), app + "History/202611597-2.tmp");
    QFile(app + "History/202611597-2.tmp").open(QIODevice::WriteOnly);
    QCOMPARE(draw::historySnapshotPath(app, moment), app + "History/202611597-3.tmp");
}

void TestProgress::resetAtZeroIsSilent() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    folder.addAward("一等奖", 300, 1);
    addWinners(folder, {"|1|", "无"});
    settings::write("selJxid", 1);
    int exports = 0;
    QVERIFY(draw::oneKeyReset(folder.db(), "0%", [&](const QString &) { return ++exports; }));
    QVERIFY(m_ui->records.isEmpty());
    QCOMPARE(exports, 0);
    QCOMPARE(store::scalar(folder.db(),
                           "SELECT COUNT(*) FROM UserList WHERE JxID<>'' OR "
                           "UserStatus<>0")
                 .toInt(),
             0);
    QCOMPARE(appState().selJxid, qint16(0));
    QCOMPARE(readIni("main", "selJxid", appState().iniPath), QStringLiteral("0"));
}

void TestProgress::resetAsksSnapshotsAndClears() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    folder.addAward("一等奖", 2, 1);
    addWinners(folder, {"|1|", "无"});
    m_ui->answers.enqueue(true);
    QString snapshot;
    QVERIFY(draw::oneKeyReset(folder.db(), "50%", [&](const QString &path) {
        snapshot = path;
        // The winners are still there while the snapshot is written.
        return store::scalar(folder.db(), "SELECT COUNT(*) FROM UserList WHERE JxID='|1|'")
                   .toInt() == 1;
    }));
    QVERIFY(snapshot.startsWith(folder.path("History/")));
    QVERIFY(snapshot.endsWith(".tmp"));
    QCOMPARE(m_ui->records.size(), 2);
    QCOMPARE(m_ui->records[0].kind, QStringLiteral("question"));
    QCOMPARE(m_ui->records[0].text,
             QStringLiteral("重要提示∶\n确认要清空所有中奖记录,复原至初始状态么?"));
    QCOMPARE(m_ui->records[0].title, QStringLiteral("警告"));
    QCOMPARE(m_ui->records[1].text, QStringLiteral("已恢复至初始抽奖状态!"));
    QCOMPARE(m_ui->records[1].title, QStringLiteral("提示"));
    QCOMPARE(m_ui->records[1].style, MsgStyle::Information);
    QCOMPARE(store::scalar(folder.db(),
                           "SELECT COUNT(*) FROM UserList WHERE JxID<>'' OR "
                           "UserStatus<>0")
                 .toInt(),
             0);
}

void TestProgress::resetAnsweredNoOrWithoutSnapshotKeepsTheWins() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    folder.addAward("一等奖", 2, 1);
    addWinners(folder, {"|1|"});
    settings::write("selJxid", 1);
    m_ui->answers.enqueue(false);
    QVERIFY(!draw::oneKeyReset(folder.db(), "50%", [](const QString &) { return true; }));
    m_ui->answers.enqueue(true);
    QVERIFY(!draw::oneKeyReset(folder.db(), "50%", [](const QString &) { return false; }));
    QCOMPARE(store::scalar(folder.db(), "SELECT COUNT(*) FROM UserList WHERE JxID='|1|'").toInt(),
             1);
    QCOMPARE(appState().selJxid, qint16(1));
    QCOMPARE(m_ui->texts().size(), 2);  // two questions, no confirmation
}

QTEST_GUILESS_MAIN(TestProgress)
#include "tst_progress.moc"
