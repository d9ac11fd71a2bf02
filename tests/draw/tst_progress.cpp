#include <memory>

#include <QDir>
#include <QFile>
#include <QtTest>

#include "core/store.h"
#include "draw/progress.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

class TestProgress : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { installScriptedUi(); }

    void figuresOfTheAwards() {
        TempProgramFolder folder;
        QVERIFY(folder.start());
        QCOMPARE(draw::awardFigures(folder.db()).awardCount, 0);
        QCOMPARE(draw::luckProgress(folder.db(), 8), QStringLiteral("0%"));
        folder.addAward("一等奖", 3, 1);
        folder.addAward("二等奖", 10, 4);
        const draw::AwardFigures figures = draw::awardFigures(folder.db());
        QCOMPARE(QList<qint64>({figures.awardCount, figures.slotSum, figures.batchSum}),
                 QList<qint64>({2, 13, 5}));
    }

    void progressPercent_data() {
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

    void progressPercent() {
        QFETCH(QStringList, wins);
        QFETCH(int, luckTotal);
        if (!m_twoAwards) {
            m_twoAwards = std::make_unique<TempProgramFolder>();
            QVERIFY(m_twoAwards->start());
            m_twoAwards->addAward("一等奖", 1, 1);
            m_twoAwards->addAward("二等奖", 1, 1);
        }
        QVERIFY(store::exec(m_twoAwards->db(), "DELETE FROM UserList"));
        addWinners(*m_twoAwards, wins);
        QTEST(draw::luckProgress(m_twoAwards->db(), luckTotal), "shown");
    }

    void snapshotNames() {
        TempProgramFolder folder;
        const QString app = folder.path();
        const QDateTime moment(QDate(2026, 11, 5), QTime(9, 7));
        QCOMPARE(draw::historySnapshotPath(app, moment), app + "History/202611597.tmp");
        // A snapshot never overwrites another.
        QDir().mkpath(app + "History");
        QFile(app + "History/202611597.tmp").open(QIODevice::WriteOnly);
        QCOMPARE(draw::historySnapshotPath(app, moment), app + "History/202611597-2.tmp");
        QFile(app + "History/202611597-2.tmp").open(QIODevice::WriteOnly);
        QCOMPARE(draw::historySnapshotPath(app, moment), app + "History/202611597-3.tmp");
    }

private:
    // The rows of progressPercent share one store with two awards, emptied of people per row.
    std::unique_ptr<TempProgramFolder> m_twoAwards;

    void addWinners(TempProgramFolder &folder, const QStringList &jxIds) {
        for (const QString &jx : jxIds) {
            const int id = folder.addUsers({"w"}).first();
            store::exec(folder.db(), "UPDATE UserList SET JxID=?, UserStatus=? WHERE ID=?",
                        {jx, jx == "无" ? 1 : 3, id});
        }
    }
};

QTEST_GUILESS_MAIN(TestProgress)
#include "tst_progress.moc"
