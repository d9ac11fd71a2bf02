#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

#include "awards/awardbook.h"
#include "core/appstate.h"
#include "core/profile.h"
#include "core/settings.h"
#include "core/store.h"
#include "support/filebytes.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

Q_DECLARE_METATYPE(AwardField)

namespace {

// An award with a prize name and no picture, range or other option.
AwardInput awardInput(const QString &name, const QString &slotCount, const QString &batches) {
    AwardInput input;
    input.JXName = name;
    input.JXNum = slotCount;
    input.JXGroup = batches;
    input.JPName = QStringLiteral("P");
    return input;
}

}  // namespace

class TestAwardBook : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
        m_ui = installScriptedUi();
    }
    void cleanup() { m_folder.reset(); }

    void validation_data() {
        QTest::addColumn<QString>("fields");  // name|slots|batches|prize|picture|range type|from|to
        QTest::addColumn<QString>("message");
        QTest::addColumn<AwardField>("field");
        using F = AwardField;
        const auto row = [](const char *tag, const char *fields, const char *message, F field) {
            QTest::newRow(tag) << QString(fields) << QString(message) << field;
        };
        // Each row breaks the rule it names and every later one: the first fault wins.
        row("blank name", "  |0|0||no|4|5|5", "请输入奖项名称!", F::JxName);
        row("no slots", "一等奖|0|||no|4|5|5", "至少存在1个名额", F::JxNum);
        row("empty slots", "一等奖||1|P|no|0|0|0", "至少存在1个名额", F::JxNum);
        row("32768 slots", "一等奖|32768|0||no|4|5|5", "奖品名额最多为32767个", F::JxNum);
        row("999999 slots", "一等奖|999999|1|P|no|0|0|0", "奖品名额最多为32767个", F::JxNum);
        row("no batches", "一等奖|32767|0||no|4|5|5", "至少存在1个抽奖批次", F::JxGroup);
        row("32768 batches", "一等奖|3|32768||no|4|5|5", "抽奖批次最多为32767次", F::JxGroup);
        row("neither prize nor picture", "一等奖|3|32767| | no |4|5|5",
            "奖品名称和奖品图片不能同时为空", F::JpName);
        row("range equal", "一等奖|3|1|P|no|4|5|5", "区分编号范围值错误", F::RangeNum2);
        row("range reversed", "一等奖|3|1||/p/a.png|4|9|5", "区分编号范围值错误", F::RangeNum2);
        row("range empty boxes", "一等奖|3|1|P|no|4||", "区分编号范围值错误", F::RangeNum2);
        row("range ok", "一等奖|3|1|P|no|4|5|6", "", F::None);
        row("type 1 ignores the second box", "一等奖|3|1|P|no|1|9|0", "", F::None);
        row("picture without prize name", "一等奖|1|5||camre|0|0|0", "", F::None);
        row("batches above slots", "一等奖|2|9|P|no|0|0|0", "", F::None);
    }

    void validation() {
        QFETCH(QString, fields);
        const QStringList f = fields.split(QLatin1Char('|'));
        const AwardInput input{f[0], f[1], f[2], f[3], f[4], true, f[5].toInt(), f[6], f[7]};
        const AwardFault fault = AwardBook::validate(input);
        QTEST(fault.message, "message");
        QTEST(fault.field, "field");
    }

    void editClearsOnlyThatAward() {
        addAwards(7);
        // The holder of 5 alone comes first: its status reset must not carry over to later rows.
        const int onlyFive = addWinner(QStringLiteral("甲"), QStringLiteral("|5|"));
        const int fiveAndSeven = addWinner(QStringLiteral("乙"), QStringLiteral("|5||7|"));
        const int sevenAndFive = addWinner(QStringLiteral("丙"), QStringLiteral("|7||5|"));
        const int onlySeven = addWinner(QStringLiteral("丁"), QStringLiteral("|7|"));
        const int gaveUp = addWinner(QStringLiteral("戊"), QStringLiteral("无"), 1);
        const int fifteen = addWinner(QStringLiteral("己"), QStringLiteral("|15|"));
        AwardBook book(m_folder->db());
        QVERIFY(book.hasWinners(5));
        QVERIFY(!book.hasWinners(1));
        AwardInput input = awardInput("五等奖", "3", "1");
        QString error;
        QVERIFY2(book.save(5, input, &error), qPrintable(error));

        QCOMPARE(holders({onlyFive, fiveAndSeven, sevenAndFive, onlySeven, gaveUp, fifteen}),
                 (QStringList{"/0", "|7|/3", "|7|/3", "|7|/3", "无/1", "|15|/3"}));
        QVERIFY(!book.hasWinners(5));
        QVERIFY(book.hasWinners(7));
        QCOMPARE(book.find(5)->JXName, QStringLiteral("五等奖"));
    }

    void saveWithoutWinners() {
        addAwards(2);
        store::exec(m_folder->db(), QStringLiteral("UPDATE JPList SET JXHave=4"));
        AwardBook book(m_folder->db());
        const AwardInput input{" 特等奖 ", "12", "3", " 汽车 ", "no", false, 4, "10", "20"};
        QVERIFY(book.save(2, input, nullptr));
        // Trimmed texts, every number, and a fresh count of winners on the edited award alone.
        QCOMPARE(
            store::scalar(m_folder->db(),
                          "SELECT group_concat(JXName || '/' || JPName || '/' || JXNum || '/' || "
                          "JXGroup || '/' || isReLuck || '/' || RangeType || '/' || RangeNum1 || "
                          "'/' || RangeNum2 || '/' || JXHave, ' ') FROM JPList ORDER BY ID")
                .toString(),
            QStringLiteral("奖1/奖品/2/1/1/0/0/0/4 特等奖/汽车/12/3/0/4/10/20/0"));
    }

    void selectedAwardReset_data() {
        QTest::addColumn<bool>("deleting");
        QTest::addColumn<int>("selected");
        QTest::addColumn<int>("expected");
        QTest::newRow("save selected") << false << 2 << 0;
        QTest::newRow("save another") << false << 3 << 3;
        QTest::newRow("delete selected") << true << 2 << 0;
        QTest::newRow("delete another") << true << 3 << 3;
    }

    void selectedAwardReset() {
        QFETCH(bool, deleting);
        QFETCH(int, selected);
        QFETCH(int, expected);
        addAwards(3);
        settings::write(QStringLiteral("selJxid"), selected);
        AwardBook book(m_folder->db());
        const AwardInput input = awardInput("名", "1", "1");
        QVERIFY(deleting ? book.remove({2}, nullptr) : book.save(2, input, nullptr));
        QCOMPARE(int(appState().selJxid), expected);
        QCOMPARE(readIni(QStringLiteral("main"), QStringLiteral("selJxid"),
                         m_folder->path(QStringLiteral("config.ini"))),
                 QString::number(expected));
    }

    void deleteTwoAndRenumber() {
        addAwards(5);
        AwardBook book(m_folder->db());
        QVERIFY(book.move(5, -1));  // order 1 2 3 5 4
        const int twoAndFour = addWinner(QStringLiteral("甲"), QStringLiteral("|2||4|"));
        const int twoAndFive = addWinner(QStringLiteral("乙"), QStringLiteral("|2||5|"));
        QDir().mkpath(m_folder->path(QStringLiteral("Photos")));
        // Award 4 shows a participant's photo; award 5 a file outside the program folder.
        QTemporaryDir outside(m_folder->path(QStringLiteral("../outside-XXXXXX")));
        const QString outsidePicture = QStringLiteral("../") +
                                       QFileInfo(outside.path()).fileName() +
                                       QStringLiteral("/prize.png");
        const QStringList pictures{"Photos\\JP2.png", "Photos/JP3.png", "Photos/U9.png",
                                   outsidePicture};
        for (int id = 2; id <= 5; ++id) {
            QString file = pictures.at(id - 2);
            QVERIFY(!writeFile(m_folder->path(file.replace('\\', '/')), "x").isEmpty());
            store::exec(m_folder->db(), "UPDATE JPList SET JPPhoto=? WHERE ID=?",
                        {pictures.at(id - 2), id});
        }
        store::exec(m_folder->db(), QStringLiteral("UPDATE UserList SET UserPhoto=? WHERE ID=?"),
                    {QStringLiteral("Photos/U9.png"), twoAndFour});

        QVERIFY(book.remove({2, 4}, nullptr));
        QCOMPARE(order(), (QList<int>{101, 302, 503}));
        QCOMPARE(holders({twoAndFour, twoAndFive}), (QStringList{"/0", "|5|/3"}));
        QCOMPARE(QDir(m_folder->path(QStringLiteral("Photos"))).entryList(QDir::Files),
                 (QStringList{"JP3.png", "U9.png"}));

        QVERIFY(book.remove({1, 3, 5}, nullptr));
        QVERIFY(book.list().isEmpty());
        QVERIFY(QFile::exists(m_folder->path(outsidePicture)));
    }

    void allOrNothing_data() {
        QTest::addColumn<bool>("deleting");
        QTest::newRow("edit") << false;
        QTest::newRow("delete") << true;
    }

    // A store that refuses the last statement leaves every win and award as it was.
    void allOrNothing() {
        QFETCH(bool, deleting);
        addAwards(3);
        const int winner = addWinner(QStringLiteral("甲"), QStringLiteral("|1||2|"));
        const int other = addWinner(QStringLiteral("乙"), QStringLiteral("|2|"));
        QVERIFY(store::exec(m_folder->db(),
                            deleting
                                ? QStringLiteral("CREATE TRIGGER refuse BEFORE DELETE ON JPList "
                                                 "WHEN old.ID=3 BEGIN SELECT RAISE(ABORT, "
                                                 "'refused'); END")
                                : QStringLiteral("CREATE TRIGGER refuse BEFORE UPDATE ON JPList "
                                                 "BEGIN SELECT RAISE(ABORT, 'refused'); END")));
        AwardBook book(m_folder->db());
        QString error;
        const AwardInput input = awardInput("奖", "1", "1");
        QVERIFY(!(deleting ? book.remove({2, 3}, &error) : book.save(2, input, &error)));
        QVERIFY2(error.contains(QStringLiteral("refused")), qPrintable(error));
        QCOMPARE(holders({winner, other}), (QStringList{"|1||2|/3", "|2|/3"}));
        QCOMPARE(order(), (QList<int>{101, 202, 303}));
        QCOMPARE(book.find(2)->JXName, QStringLiteral("奖2"));
    }

    void move_data() {
        QTest::addColumn<int>("award");
        QTest::addColumn<int>("step");
        QTest::addColumn<bool>("moved");
        QTest::addColumn<QList<int>>("expected");
        QTest::newRow("top up") << 1 << -1 << false << QList<int>{101, 202, 303};
        QTest::newRow("bottom down") << 3 << 1 << false << QList<int>{101, 202, 303};
        QTest::newRow("top down") << 1 << 1 << true << QList<int>{201, 102, 303};
        QTest::newRow("bottom up") << 3 << -1 << true << QList<int>{101, 302, 203};
        QTest::newRow("unknown award") << 9 << 1 << false << QList<int>{101, 202, 303};
    }

    void move() {
        QFETCH(int, award);
        QFETCH(int, step);
        addAwards(3);
        QTEST(AwardBook(m_folder->db()).move(award, step), "moved");
        QTEST(order(), "expected");
    }

    void addTakesNextIdAndOrder() {
        AwardBook book(m_folder->db());
        AwardInput input = awardInput("一等奖", "3", "1");
        input.RangeType = 2;
        input.RangeNum1 = QStringLiteral("7");
        QCOMPARE((QList<int>{book.add(input, nullptr), book.add(input, nullptr),
                             book.add(input, nullptr)}),
                 (QList<int>{1, 2, 3}));
        QCOMPARE(order(), (QList<int>{101, 202, 303}));
        QVERIFY(book.remove({3}, nullptr));
        QCOMPARE(book.add(input, nullptr), 3);  // the highest ID gone, it returns
        QVERIFY(book.remove({1}, nullptr));
        QDir().mkpath(m_folder->path(QStringLiteral("Photos")));
        input.txtPhoto = writeFile(m_folder->path(QStringLiteral("prize.png")), "png");
        QCOMPARE(book.add(input, nullptr), 4);
        QCOMPARE(order(), (QList<int>{201, 302, 403}));
        const AwardRow row = *book.find(4);
        QCOMPARE((QList<int>{row.RangeType, row.RangeNum1, row.RangeNum2, row.isReLuck}),
                 (QList<int>{2, 7, 0, 1}));
        QCOMPARE(row.JPPhoto, QStringLiteral("Photos/JP4.png"));
        QCOMPARE(readFile(m_folder->path(row.JPPhoto)), QByteArray("png"));
    }

    void sixteenBitIds() {
        AwardBook book(m_folder->db());
        store::exec(m_folder->db(),
                    QStringLiteral("INSERT INTO JPList (ID, JXName, JXNum, JXGroup, OrderNum) "
                                   "VALUES (32766, 'A', 1, 1, 1)"));
        QVERIFY(!book.isFull());
        const AwardInput input = awardInput("末奖", "32767", "32767");
        QCOMPARE(book.add(input, nullptr), 32767);
        QCOMPARE(book.find(32767)->JXNum, 32767);
        QVERIFY(book.isFull());
        QString error;
        QCOMPARE(book.add(input, &error), 0);
        QCOMPARE(error, AwardBook::kFullMessage);
        QCOMPARE(book.list().size(), 2);
    }

    void pictures_data() {
        QTest::addColumn<QString>("state");  // "SRC": a file chosen outside Photos/
        QTest::addColumn<bool>("cameraFile");
        QTest::addColumn<QString>("stored");      // the award's picture and what it holds
        QTest::addColumn<QStringList>("photos");  // what Photos/ holds after
        QTest::addColumn<QString>("warning");
        const auto row = [](const char *tag, const char *state, bool cameraFile, const char *stored,
                            const QStringList &photos, const char *warning) {
            QTest::newRow(tag) << state << cameraFile << stored << photos << warning;
        };
        row("chosen file", "SRC", false, "Photos/JP1.png:new png",
            {"JP1.gif", "JP1.jpg", "JP1.png"}, "");
        row("unchanged", "Photos/JP1.gif", false, "Photos/JP1.gif:old gif", {"JP1.gif", "JP1.jpg"},
            "");
        row("removed: only the jpg goes", "no", false, "", {"JP1.gif"}, "");
        row("camera", "camre", true, "Photos/JP1.jpg:camera",
            {"camertemp.jpg", "JP1.gif", "JP1.jpg"}, "");
        row("camera file missing", "camre", false, "", {"JP1.gif"},
            "因拍摄照片失败,照片保存未成功!");
    }

    void pictures() {
        QFETCH(QString, state);
        QFETCH(bool, cameraFile);
        addAwards(1);
        QDir().mkpath(m_folder->path(QStringLiteral("Photos")));
        writeFile(m_folder->path(QStringLiteral("Photos/JP1.jpg")), "old jpg");
        writeFile(m_folder->path(QStringLiteral("Photos/JP1.gif")), "old gif");
        if (cameraFile) writeFile(m_folder->path(QStringLiteral("Photos/camertemp.jpg")), "camera");
        if (state == QLatin1String("SRC"))
            state = writeFile(m_folder->path(QStringLiteral("source.png")), "new png");
        else if (state.startsWith(QLatin1String("Photos/")))
            state = m_folder->path(state);
        AwardInput input = awardInput("奖", "1", "1");
        input.txtPhoto = state;
        QVERIFY(AwardBook(m_folder->db()).save(1, input, nullptr));
        const QString stored = AwardBook(m_folder->db()).find(1)->JPPhoto;
        QTEST(stored.isEmpty() ? stored
                               : stored + ':' + QString::fromUtf8(readFile(m_folder->path(stored))),
              "stored");
        QTEST(QDir(m_folder->path(QStringLiteral("Photos"))).entryList(QDir::Files), "photos");
        QTEST(m_ui->texts().join(QLatin1Char('/')), "warning");
    }

private:
    void addAwards(int count) {
        for (int i = 1; i <= count; ++i)
            m_folder->addAward(QStringLiteral("奖%1").arg(i), 2, 1, 1, 0, 0, 0,
                               QStringLiteral("奖品"));
    }

    int addWinner(const QString &name, const QString &jxId, int status = 3) {
        const int id = m_folder->addUsers({name}).first();
        store::exec(m_folder->db(),
                    QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=? WHERE ID=?"),
                    {jxId, status, id});
        return id;
    }

    // Each participant's wins and status, "|7|/3".
    QStringList holders(const QList<int> &userIds) const {
        QStringList rows;
        for (int id : userIds)
            rows << store::scalar(m_folder->db(),
                                  "SELECT JxID || '/' || UserStatus FROM UserList "
                                  "WHERE ID=?",
                                  {id})
                        .toString();
        return rows;
    }

    QList<int> order() const {
        QList<int> ids;
        for (const AwardRow &row : AwardBook(m_folder->db()).list())
            ids << row.ID * 100 + row.OrderNum;  // ID and position in one number: 301 = ID 3 at 1
        return ids;
    }

    std::unique_ptr<TempProgramFolder> m_folder;
    ScriptedUi *m_ui = nullptr;
};

QTEST_MAIN(TestAwardBook)
#include "tst_awardbook.moc"
