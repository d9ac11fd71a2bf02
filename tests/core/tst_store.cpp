#include <QFile>
#include <QSqlQuery>
#include <QtTest>

#include "core/store.h"
#include "support/tempprogramfolder.h"

class TestStore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
    }
    void cleanup() { m_folder.reset(); }

    void duplicates_data() {
        QTest::addColumn<QStringList>("column2Value1Value2");
        QTest::addColumn<int>("exceptId");
        QTest::addColumn<bool>("duplicate");
        QTest::newRow("name and part") << QStringList{"UserPart", "张三", "研发部"} << 0 << true;
        QTest::newRow("same name other part")
            << QStringList{"UserPart", "张三", "市场部"} << 0 << false;
        QTest::newRow("value2 Null: name only")
            << QStringList{"UserPart", "张三", "Null"} << 0 << true;
        QTest::newRow("column2 Null: name only") << QStringList{"Null", "张三", "x"} << 0 << true;
        QTest::newRow("own row excepted")
            << QStringList{"UserPart", "张三", "研发部"} << 1 << false;
        QTest::newRow("quote in a name") << QStringList{"UserPart", "O'Brien", ""} << 0 << true;
        QTest::newRow("unknown") << QStringList{"Null", "李四", "Null"} << 0 << false;
    }

    void duplicates() {
        QFETCH(QStringList, column2Value1Value2);
        QFETCH(int, exceptId);
        m_folder->addUsers({QStringLiteral("张三|研发部"), QStringLiteral("O'Brien|")});
        const QStringList &args = column2Value1Value2;
        QTEST(store::isDuplicate(QStringLiteral("UserList"), QStringLiteral("UserName"), args[0],
                                 args[1], args[2], exceptId),
              "duplicate");
    }

    void likePatternsEscapeWildcards() {
        m_folder->addUsers({"折扣50%", "折扣500", "a_b", "axb"});
        const auto count = [this](const QString &text) {
            return store::scalar(
                       m_folder->db(),
                       QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserName LIKE ? "
                                      "ESCAPE '\\'"),
                       {store::containsPattern(text)})
                .toInt();
        };
        QCOMPARE(count(QStringLiteral("50%")), 1);
        QCOMPARE(count(QStringLiteral("a_b")), 1);
        QCOMPARE(count(QStringLiteral("折扣")), 2);
        QCOMPARE(store::awardPattern(12), QStringLiteral("%|12|%"));
        QCOMPARE(store::awardMarker(3), QStringLiteral("|3|"));
    }

    void missingStoreIsNotCreated() {
        const QString path = m_folder->path(QStringLiteral("nothing.db"));
        QString error;
        QVERIFY(!store::open(path, &error, QStringLiteral("probe")));
        QVERIFY(error.contains(path));
        QVERIFY(!QFile::exists(path));
    }

    void storeIsDurable() {
        QCOMPARE(store::scalar(m_folder->db(), QStringLiteral("PRAGMA journal_mode")).toString(),
                 QStringLiteral("wal"));
        QCOMPARE(store::scalar(m_folder->db(), QStringLiteral("PRAGMA synchronous")).toInt(), 2);
        QCOMPARE(store::nowText().size(), 19);
        QCOMPARE(store::dateText(QDateTime(QDate(2026, 1, 2), QTime(3, 4, 5))),
                 QStringLiteral("2026-01-02 03:04:05"));
    }

    void oldStoreIsUpgraded() {
        const QString path = m_folder->path(QStringLiteral("old.db"));
        QString error;
        QVERIFY(store::openTemplate(path, QStringLiteral("old"), &error, true));
        QVERIFY(
            store::exec(QSqlDatabase::database(QStringLiteral("old")),
                        QStringLiteral("CREATE TABLE UserList (ID INTEGER PRIMARY KEY, UserName "
                                       "TEXT, UserPart TEXT, UserPhoto TEXT, DiffNum INTEGER, "
                                       "UserStatus INTEGER, JxID TEXT, UpdateTime TEXT)")));
        store::close(QStringLiteral("old"));
        QVERIFY2(store::open(path, &error, QStringLiteral("old")), qPrintable(error));
        QSqlDatabase db = QSqlDatabase::database(QStringLiteral("old"));
        QCOMPARE(store::scalar(db, QStringLiteral("PRAGMA user_version")).toInt(),
                 store::kSchemaVersion);
        QVERIFY(db.tables().contains(QStringLiteral("JPList")));
        store::close(QStringLiteral("old"));
    }

private:
    std::unique_ptr<TempProgramFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestStore)
#include "tst_store.moc"
