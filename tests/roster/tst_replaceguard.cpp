#include <QDir>
#include <QFile>
#include <QtTest>

#include "core/appstate.h"
#include "core/store.h"
#include "roster/replaceguard.h"
#include "support/tempprogramfolder.h"

// What a replace or a reset would take away, and the snapshot written before either.
class TestReplaceGuard : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void countsParticipantsAndWins() {
        TempProgramFolder folder;
        QVERIFY(folder.start());
        QVERIFY(roster::storedRecords(folder.db()).isEmpty());
        QVERIFY(!roster::importOpensOnAppend(folder.db()));
        const QList<int> ids = folder.addUsers({"甲", "乙", "丙"});
        const QList<QVariantList> wins{
            {"|1||3|", 3, ids[0]}, {"|2|", 3, ids[1]}, {"无", 1, ids[2]}};
        for (const QVariantList &win : wins)
            QVERIFY(store::exec(folder.db(), "UPDATE UserList SET JxID=?, UserStatus=? WHERE ID=?",
                                win));
        const roster::StoredRecords records = roster::storedRecords(folder.db());
        QCOMPARE((QList<qint64>{records.participants, records.wins, records.giveUps}),
                 (QList<qint64>{3, 3, 1}));
        QVERIFY(roster::importOpensOnAppend(folder.db()));
        QVERIFY(roster::replaceQuestion(records).startsWith(
            QStringLiteral("将删除现有 3 名参与者和 3 条中奖记录")));
        QVERIFY(roster::resetQuestion(records).startsWith(
            QStringLiteral("将清除现有 3 条中奖记录和 1 条弃奖记录。")));
    }

    void snapshotHoldsEveryParticipantAndNeverOverwrites() {
        TempProgramFolder folder;
        QVERIFY(folder.start());
        const int award = folder.addAward(QStringLiteral("一等奖"), 1, 1);
        const QList<int> ids = folder.addUsers({"张三|研发部,一组", "李四"});
        QVERIFY(store::exec(folder.db(), "UPDATE UserList SET JxID=?, UserStatus=3 WHERE ID=?",
                            {store::awardMarker(award), ids[0]}));
        const QDateTime time(QDate(2026, 1, 30), QTime(21, 5));
        QString error;
        const QString first =
            roster::writeRosterSnapshot(folder.db(), appState().appPath, time, &error);
        QCOMPARE(first, folder.path("History/名单快照202601302105.csv"));
        const QString second =
            roster::writeRosterSnapshot(folder.db(), appState().appPath, time, &error);
        QCOMPARE(second, folder.path("History/名单快照202601302105-2.csv"));
        QFile file(first);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY(bytes.startsWith("\xEF\xBB\xBF"));
        const QStringList lines = QString::fromUtf8(bytes.mid(3)).split(QStringLiteral("\r\n"));
        QCOMPARE(lines.size(), 4);  // title, two participants, the empty rest after the last CR LF
        QVERIFY(lines.at(1).startsWith(QStringLiteral("%1,张三,\"研发部,一组\",").arg(ids[0])));
        QVERIFY(lines.at(1).contains(QStringLiteral(",已中奖,一等奖,")));
        QVERIFY(lines.at(2).startsWith(QStringLiteral("%1,李四,").arg(ids[1])));
    }
};

QTEST_MAIN(TestReplaceGuard)
#include "tst_replaceguard.moc"
