#include <QFile>
#include <QtTest>

#include "core/appstate.h"
#include "core/store.h"
#include "results/exportwinners.h"
#include "support/filebytes.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

void win(QSqlDatabase db, int userId, const QString &jxId, const QString &time) {
    store::exec(db,
                QStringLiteral("UPDATE UserList SET JxID=?, UpdateTime=?, UserStatus=3 "
                               "WHERE ID=?"),
                {jxId, time, userId});
}

const QByteArray kHeader = QByteArrayLiteral("\xEF\xBB\xBF") +
                           QStringLiteral("序号,奖项名称,奖品成名,中奖名单,备注\r\n").toUtf8();

}  // namespace

class TestExportWinners : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
        m_ui = installScriptedUi();
    }
    void cleanup() { m_folder.reset(); }

    void quoting_data() {
        QTest::addColumn<QStringList>("fields");
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("plain") << QStringList{"1", "一等奖", "张三"} << QByteArray("1,一等奖,张三");
        QTest::newRow("empty fields") << QStringList{"", "", ""} << QByteArray(",,");
        QTest::newRow("comma") << QStringList{"O'Brien, Jr."} << QByteArray("\"O'Brien, Jr.\"");
        QTest::newRow("quote") << QStringList{"说\"好\""} << QByteArray("\"说\"\"好\"\"\"");
        QTest::newRow("line feed") << QStringList{"a\nb", "x"} << QByteArray("\"a\nb\",x");
        QTest::newRow("carriage return") << QStringList{"a\rb"} << QByteArray("\"a\rb\"");
        QTest::newRow("bar and dollar stay") << QStringList{"a|b$c"} << QByteArray("a|b$c");
    }

    void quoting() {
        QFETCH(QStringList, fields);
        QFETCH(QByteArray, line);
        QCOMPARE(results::csvLine(fields), line);
    }

    void writesAwardsInOrderAndWinnersByTime() {
        const int second = m_folder->addAward(QStringLiteral("二等奖"), 5, 1, 1, 0, 0, 0,
                                              QStringLiteral("平板, 电脑"));
        const int first = m_folder->addAward(QStringLiteral("一等奖"), 5, 1, 1, 0, 0, 0,
                                             QStringLiteral("笔记本"));
        m_folder->addAward(QStringLiteral("特等奖"), 1, 1);
        store::exec(m_folder->db(),
                    "UPDATE JPList SET OrderNum=CASE ID WHEN ? THEN 1 WHEN ? THEN 2 ELSE 3 END",
                    {first, second});
        const QList<int> users =
            m_folder->addUsers({QStringLiteral("张三|研发部"), QStringLiteral("李\"四\"|市场部"),
                                QStringLiteral("王五|销售,一组"), QStringLiteral("赵六|行政部")});
        const QString a1 = store::awardMarker(first);
        const QString a2 = store::awardMarker(second);
        win(m_folder->db(), users[0], a1 + a2, QStringLiteral("2026-01-01 20:00:05"));
        win(m_folder->db(), users[1], a1, QStringLiteral("2026-01-01 20:00:01"));
        win(m_folder->db(), users[2], a2, QStringLiteral("2026-01-01 19:00:00"));
        win(m_folder->db(), users[3], a1, QStringLiteral("2026-01-01 20:00:01"));

        const QString path = m_folder->path(QStringLiteral("out.csv"));
        QCOMPARE(exportWinners(path, true), path);
        const QByteArray expected = kHeader + QStringLiteral(
                                                  "1,一等奖,笔记本,\"李\"\"四\"\"\",市场部\r\n"
                                                  "2,一等奖,笔记本,赵六,行政部\r\n"
                                                  "3,一等奖,笔记本,张三,研发部\r\n"
                                                  "4,二等奖,\"平板, 电脑\",王五,\"销售,一组\"\r\n"
                                                  "5,二等奖,\"平板, 电脑\",张三,研发部\r\n")
                                                  .toUtf8();
        QCOMPARE(readFile(path), expected);
        QCOMPARE(m_ui->last().text, path + QStringLiteral("\n导出名单完毕!!"));

        // A second export overwrites the file and, without showDone, says nothing.
        m_ui->clear();
        win(m_folder->db(), users[0], QString(), QString());
        QCOMPARE(exportWinners(path, false), path);
        QVERIFY(m_ui->records.isEmpty());
        QVERIFY(readFile(path).size() < expected.size());
    }

    // Without awards nothing is written. Without a chosen file the list goes under record/;
    // without winners it is the header alone.
    void noAwardsNoFileNoWinners() {
        const QString path = m_folder->path(QStringLiteral("none.csv"));
        QVERIFY(exportWinners(path, true).isEmpty());
        QCOMPARE(m_ui->texts(), QStringList{QStringLiteral("没有奖项导出失败!")});
        QVERIFY(!QFile::exists(path));
        const QDateTime time(QDate(2026, 3, 4), QTime(9, 5));
        QCOMPARE(results::defaultExportPath(time),
                 m_folder->path(QStringLiteral("record/中奖记录20263495.csv")));
        m_folder->addAward(QStringLiteral("一等奖"), 3, 1);
        const QString written = exportWinners(QString(), false);
        QVERIFY(written.startsWith(m_folder->path(QStringLiteral("record/中奖记录"))));
        QCOMPARE(readFile(written), kHeader);
    }

private:
    std::unique_ptr<TempProgramFolder> m_folder;
    ScriptedUi *m_ui = nullptr;
};

QTEST_MAIN(TestExportWinners)
#include "tst_exportwinners.moc"
