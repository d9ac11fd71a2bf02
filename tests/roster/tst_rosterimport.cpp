#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTimer>
#include <QtTest>

#include "core/appstate.h"
#include "core/store.h"
#include "roster/numbergen.h"
#include "roster/photoimport.h"
#include "roster/rosterimport.h"
#include "roster/textimport.h"
#include "roster/workbook.h"
#include "support/filebytes.h"
#include "support/tempprogramfolder.h"
#include "support/testpaths.h"

namespace {

QString fixture(const QString &name) {
    return testpaths::rosterFixture(name);
}

// Every column of every participant: what "byte for byte the same roster" is compared by.
QStringList dumpRoster(QSqlDatabase db) {
    QSqlQuery query(QStringLiteral("SELECT * FROM UserList ORDER BY ID"), db);
    QStringList rows;
    while (query.next()) {
        QStringList cells;
        for (int i = 0; i < query.record().count(); ++i)
            cells << (query.value(i).isNull() ? QStringLiteral("<null>")
                                              : query.value(i).toString());
        rows << cells.join(QLatin1Char('|'));
    }
    return rows;
}

QStringList column(QSqlDatabase db, const char *sql) {
    QSqlQuery query(QString::fromLatin1(sql), db);
    QStringList rows;
    while (query.next())
        rows << query.value(0).toString();
    return rows;
}

// The roster's indexes: a replace drops them for speed and must always bring them back.
QStringList indexes(QSqlDatabase db) {
    return column(db,
                  "SELECT sql FROM sqlite_master WHERE type='index' AND tbl_name='UserList' "
                  "AND sql IS NOT NULL ORDER BY name");
}

QStringList names(QSqlDatabase db) {
    return column(db, "SELECT UserName || '/' || UserPart FROM UserList ORDER BY ID");
}

void writeImage(const QString &path, int w, int h) {
    QImage image(w, h, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QVERIFY(image.save(path));
}

enum Kind { Excel, Text, Photos, Numbers };

// One of the three imports over the same (name, remark) pairs: the rows of a sheet, the lines
// of a text file, or pictures named "name,remark.jpg" written into dir, big enough that
// shrinking them takes a while.
std::unique_ptr<RosterImport> importOf(int kind, const QList<QStringList> &people, bool replace,
                                       const QTemporaryDir &dir) {
    QStringList lines;
    for (const QStringList &person : people)
        lines << person.join(QLatin1Char(','));
    if (kind == Excel)
        return std::make_unique<ExcelImport>(QList<workbook::Row>(people.begin(), people.end()),
                                             QList<bool>{true, false}, " ", false, replace);
    if (kind == Text) return std::make_unique<TxtImport>(lines, ",", replace);
    QStringList files;
    for (const QString &line : std::as_const(lines)) {
        files << dir.filePath(line + QStringLiteral(".jpg"));
        writeImage(files.last(), 900, 900);
    }
    return std::make_unique<PhotoImport>(files, true, 1, replace);
}

}  // namespace

class TestRosterImport : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void decodesEveryEncoding_data() {
        QTest::addColumn<QString>("file");
        QTest::newRow("UTF-8 LF") << "utf8-lf.txt";
        QTest::newRow("UTF-8 BOM CR LF") << "utf8-bom-crlf.txt";
        QTest::newRow("UTF-16 LE CR LF") << "utf16le-crlf.txt";
        QTest::newRow("GB18030 CR LF") << "gb18030-crlf.txt";
        QTest::newRow("GB18030 CR") << "cr-only.txt";
    }

    void decodesEveryEncoding() {
        QFETCH(QString, file);
        QStringList lines;
        QString error;
        QVERIFY2(TxtImport::readLines(fixture(file), &lines, &error), qPrintable(error));
        QCOMPARE(lines.mid(0, 5), (QStringList{"张三,研发部,Photos/U1.jpg,7", "李四,市场部", "王五",
                                               "O'Brien,外联部,,x", ""}));
        QVERIFY(!TxtImport::readLines(fixture(QStringLiteral("binary.txt")), &lines, &error));
        QVERIFY(error.contains(QStringLiteral("文本")));
    }

    void lineFields_data() {
        QTest::addColumn<QString>("separator");
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("row");  // name|part|photo|number of the last line
        const auto row = [](const char *tag, const char *separator, const QStringList &lines,
                            const char *fields) {
            QTest::newRow(tag) << separator << lines << fields;
        };
        row("four fields", ",", {"张三,研发部,p/1.jpg,7"}, "张三|研发部|p/1.jpg|7");
        row("two reset photo and number", ",", {"a,b,p.jpg,5", "张三 , 研发部 "}, "张三|研发部||0");
        row("no separator keeps photo and number", ",", {"a,b,p.jpg,5", "王五"}, "王五||p.jpg|5");
        row("more than four keep all but the name", ",", {"a,b,p.jpg,5", "x,y,z,1,2"},
            "x|b|p.jpg|5");
        row("empty separator takes the line whole", "", {"a,b"}, "a,b|||0");
        row("number not numeric", ",", {"a,b,c,x"}, "a|b|c|0");
        row("number past 32 bits is told", ",", {"a,b,c,12345678901"}, "a|b|c|0!");  // "!": logged
        row("apostrophe kept", "|", {"O'Brien|外联部"}, "O'Brien|外联部||0");
    }

    void lineFields() {
        QFETCH(QString, separator);
        QFETCH(QStringList, lines);
        textimport::TxtLineParser parser(separator);
        textimport::TxtRow row;
        for (const QString &line : lines)
            row = parser.parse(line);
        const QString diff = QString::number(row.diffNum) + (row.diffNumTooLarge ? "!" : "");
        QTEST(QStringList({row.name, row.part, row.photo, diff}).join(QLatin1Char('|')), "row");
    }

    void codes_data() {
        QTest::addColumn<QStringList>("startEndPad");
        QTest::addColumn<bool>("pad");
        QTest::addColumn<QString>("preview");
        QTest::addColumn<QString>("first");  // empty: no range
        const auto row = [](const char *tag, const QStringList &startEndPad, bool pad,
                            const char *preview, const char *first) {
            QTest::newRow(tag) << startEndPad << pad << QString(preview) << QString(first);
        };
        row("defaults", {"1", "1000", "0"}, true, "ST0001E - ST1000E", "ST0001E");
        row("width of end", {"1", "100", "0"}, true, "ST001E - ST100E", "ST001E");
        row("no padding", {"1", "100", "0"}, false, "ST001E - ST100E", "ST1E");
        row("empty pad", {"7", "100", ""}, true, "ST7E - ST100E", "ST7E");
        row("end below start", {"99999", "1000", "0"}, true, "", "");
        row("equal", {"5", "5", "0"}, true, "", "");
    }

    void codes() {
        QFETCH(QStringList, startEndPad);
        QFETCH(bool, pad);
        numbergen::Options options;
        options.startText = startEndPad.at(0);
        options.endText = startEndPad.at(1);
        options.padText = startEndPad.at(2);
        options.pad = pad;
        QTEST(numbergen::previewText(options), "preview");
        int from = 0;
        int to = 0;
        QTEST(
            numbergen::range(options, &from, &to) ? numbergen::makeCode(options, from) : QString(),
            "first");
    }

    void masks_data() {
        QTest::addColumn<QString>("mask");
        QTest::addColumn<QStringList>("excluded");  // of ST0001E, 4, 5, 13, 14, 31 and 40
        const QStringList unlucky{"ST0004E", "ST0013E", "ST0014E", "ST0040E"};
        QTest::newRow("ascii comma") << "4,13" << unlucky;
        QTest::newRow("full-width comma") << "4，13" << unlucky;
        QTest::newRow("empty mask") << "" << QStringList{};
        QTest::newRow("trailing comma adds no group")
            << "4," << QStringList{"ST0004E", "ST0014E", "ST0040E"};
        QTest::newRow("blanks around groups")
            << "4, 13 ，5" << QStringList{"ST0004E", "ST0005E", "ST0013E", "ST0014E", "ST0040E"};
        QTest::newRow("only separators") << " , ，" << QStringList{};
    }

    void masks() {
        QFETCH(QString, mask);
        const QStringList parts = numbergen::maskParts(mask);
        QStringList excluded;
        for (const char *code :
             {"ST0001E", "ST0004E", "ST0005E", "ST0013E", "ST0014E", "ST0031E", "ST0040E"})
            if (numbergen::isExcluded(QString::fromLatin1(code), parts)) excluded << code;
        QTEST(excluded, "excluded");
    }

    void photoNames_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("namePart");
        QTest::newRow("name only") << "张三.jpg" << QStringList{"张三", ""};
        QTest::newRow("ascii comma") << "张三,宣传部.jpg" << QStringList{"张三", "宣传部"};
        QTest::newRow("full-width comma") << "张三，宣传部.png" << QStringList{"张三", "宣传部"};
        QTest::newRow("ascii wins") << "张三，甲,宣传部.jpg" << QStringList{"张三，甲", "宣传部"};
        QTest::newRow("four characters cut") << "张三.jpeg" << QStringList{"张三.", ""};
        QTest::newRow("no name before the comma") << ",市场部.jpg" << QStringList{"", "市场部"};
        QTest::newRow("blank name before the comma")
            << "  ，市场部.jpg" << QStringList{"  ", "市场部"};
    }

    void photoNames() {
        QFETCH(QString, file);
        QFETCH(QStringList, namePart);
        const photoimport::PhotoName parsed = photoimport::parsePhotoName(file);
        QCOMPARE((QStringList{parsed.name, parsed.part}), namePart);
        QCOMPARE(parsed.hasName(), !namePart.first().trimmed().isEmpty());
    }

    void shrinkRule_data() {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<int>("slider");
        QTest::addColumn<QSize>("result");
        QTest::newRow("fits exactly") << QSize(800, 800) << 8 << QSize();
        QTest::newRow("portrait") << QSize(600, 1200) << 8 << QSize(400, 800);
        QTest::newRow("small limit") << QSize(300, 200) << 1 << QSize(100, 67);
    }

    void shrinkRule() {
        QFETCH(QSize, size);
        QFETCH(int, slider);
        QTEST(photoimport::shrunkSize(size, slider), "result");
    }

    void settlesPictures() {
        QTemporaryDir dir;
        const auto settle = [&dir](const char *from, QSize size, const char *to, bool compress) {
            writeImage(dir.filePath(from), size.width(), size.height());
            return photoimport::settlePicture(dir.filePath(from), dir.filePath(to), compress, 8);
        };
        using photoimport::Settled;
        QCOMPARE(settle("a.png", {900, 900}, "A.png", true), Settled::PngCopied);
        QCOMPARE(QImage(dir.filePath("A.png")).size(), QSize(900, 900));
        QCOMPARE(settle("b.bmp", {801, 600}, "B.bmp", true), Settled::Shrunk);
        QCOMPARE(QImage(dir.filePath("B.bmp")).size(), QSize(800, 599));
        QVERIFY(
            readFile(dir.filePath("B.bmp")).startsWith("\xFF\xD8"));  // JPEG whatever the name says
        QCOMPARE(settle("c.jpg", {800, 800}, "C.jpg", true), Settled::Copied);
        QCOMPARE(readFile(dir.filePath("C.jpg")), readFile(dir.filePath("c.jpg")));
        QCOMPARE(settle("b.bmp", {801, 600}, "D.bmp", false), Settled::Copied);
        QCOMPARE(
            photoimport::settlePicture(dir.filePath("none.jpg"), dir.filePath("E.jpg"), true, 8),
            Settled::Failed);
        // A photo too big to decode whole under the reader's limit is decoded at the new size.
        const QString big = dir.filePath(QStringLiteral("big.jpg"));
        writeImage(big, 1600, 1200);
        const int limit = QImageReader::allocationLimit();
        QImageReader::setAllocationLimit(1);  // MB: the full picture needs 7.5
        const Settled settled = photoimport::settlePicture(big, dir.filePath("F.jpg"), true, 4);
        QImageReader::setAllocationLimit(limit);
        QCOMPARE(settled, Settled::Shrunk);
        QCOMPARE(QImage(dir.filePath("F.jpg")).size(), QSize(400, 300));
    }

    void excelImportMergesAndRefusesDuplicates() {
        TempProgramFolder folder;
        QVERIFY(folder.start());
        folder.addUsers({"周八|客服部"});
        workbook::Workbook book;
        QString error;
        QVERIFY(book.open(fixture(QStringLiteral("libreoffice.xlsx")), &error));
        workbook::Sheet sheet;
        QVERIFY(book.readSheet(1, -1, &sheet, &error));
        ExcelImport job(sheet.rows, {true, false}, QStringLiteral(" "), true, false);
        QCOMPARE(job.runToEnd(), RosterImport::Outcome::Finished);
        QCOMPARE((QList<qint64>{job.imported(), job.duplicates()}), (QList<qint64>{1, 2}));
        QCOMPARE(names(folder.db()), (QStringList{"周八/客服部", "陈七/行政部"}));
        QVERIFY(job.log().contains(QStringLiteral("\n重复数据：陈七")));

        // A merge text other than blanks stays at the end of the name.
        QVERIFY(book.readSheet(0, -1, &sheet, &error));
        ExcelImport merged(sheet.rows, {false, true, false, false, false, false, false},
                           QStringLiteral("-"), true, true);
        QCOMPARE(merged.runToEnd(), RosterImport::Outcome::Finished);
        QCOMPARE(merged.imported(), 5);  // the empty name of row 5 is "-"
        QCOMPARE(names(folder.db()).first(),
                 QStringLiteral("张三-/10001-研发部-13800138000-2023-05-08-12.5-10002-"));
    }

    void photoImportStagesPictures() {
        TempProgramFolder folder;
        QVERIFY(folder.start());
        folder.addUsers({"旧人"});
        writeImage(folder.path("Photos/U1.jpg"), 10, 10);
        QTemporaryDir a;
        QTemporaryDir b;
        writeImage(a.filePath(QStringLiteral("张三,宣传部.jpg")), 1000, 500);
        writeImage(a.filePath(QStringLiteral("李四.png")), 900, 900);
        writeImage(b.filePath(QStringLiteral("张三,宣传部.jpg")), 20, 20);
        const QString broken = writeFile(a.filePath(QStringLiteral("赵六.jpg")), "no picture");
        PhotoImport job(
            {a.filePath(QStringLiteral("张三,宣传部.jpg")), a.filePath(QStringLiteral("李四.png")),
             b.filePath(QStringLiteral("张三,宣传部.jpg")), broken},
            true, 8, true);
        QCOMPARE(job.runToEnd(), RosterImport::Outcome::Finished);
        QCOMPARE((QList<qint64>{job.imported(), job.duplicates()}), (QList<qint64>{3, 1}));
        for (const char *told : {"PNG不支持压缩∶", "重复图片∶", "压缩失败∶"})
            QVERIFY2(job.log().contains(QString::fromUtf8(told)), told);
        // The picture that failed is not pointed at.
        QCOMPARE(column(folder.db(), "SELECT UserName || UserPart || UserPhoto FROM UserList"),
                 (QStringList{"张三宣传部 Photos/U1.jpg", "李四 Photos/U2.png", "赵六 "}));
        QCOMPARE(QImage(folder.path("Photos/U1.jpg")).size(), QSize(800, 400));
        QCOMPARE(QImage(folder.path("Photos/U2.png")).size(), QSize(900, 900));
        QCOMPARE(
            QDir(folder.path("Photos")).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden),
            QStringList());

        // One file is handled like several: its picture stays.
        writeImage(a.filePath(QStringLiteral("王五.jpg")), 30, 30);
        PhotoImport one({a.filePath(QStringLiteral("王五.jpg"))}, true, 8, true);
        QCOMPARE(one.runToEnd(), RosterImport::Outcome::Finished);
        QCOMPARE(dumpRoster(folder.db()).first().section(QLatin1Char('|'), 0, 3),
                 QStringLiteral("1|王五| |Photos/U1.jpg"));
        QCOMPARE(QImage(folder.path("Photos/U1.jpg")).size(), QSize(30, 30));
        QVERIFY(!QFile::exists(folder.path("Photos/U2.png")));
    }

    void numberGeneratorReplacesRoster() {
        TempProgramFolder folder;
        QVERIFY(folder.start());
        folder.addUsers({"a", "b"});
        const QStringList indexesBefore = indexes(folder.db());
        numbergen::Options options;
        options.mask = QStringLiteral("4，13");
        NumberGeneration job(options);
        QCOMPARE(job.runToEnd(), RosterImport::Outcome::Finished);
        const QStringList rows = names(folder.db());
        QCOMPARE(rows.mid(0, 4), (QStringList{"ST0001E/", "ST0002E/", "ST0003E/", "ST0005E/"}));
        QCOMPARE(rows.last(), QStringLiteral("ST1000E/"));
        QVERIFY(!rows.contains(QStringLiteral("ST0113E/")));
        QCOMPARE(job.imported() + job.excluded(), 1000);
        QCOMPARE(indexes(folder.db()), indexesBefore);
        QVERIFY(job.log().startsWith(QStringLiteral("ST0004E\nST0013E\nST0014E\n")));

        // A mask that leaves no code is refused before anything changes.
        options.mask = QStringLiteral("0");
        QVERIFY(!numbergen::keepsAnyCode(options));
        NumberGeneration all(options);
        QCOMPARE(all.runToEnd(), RosterImport::Outcome::Failed);
        QVERIFY(!all.errorText().isEmpty());
        QCOMPARE(names(folder.db()).size(), rows.size());
    }

    void cancelLeavesRosterAsItWas_data() {
        QTest::addColumn<int>("kind");
        QTest::newRow("excel replace") << int(Excel);
        QTest::newRow("text append") << int(Text);
        QTest::newRow("photo replace") << int(Photos);
        QTest::newRow("number generator") << int(Numbers);
    }

    void cancelLeavesRosterAsItWas() {
        QFETCH(int, kind);
        TempProgramFolder folder;
        QVERIFY(folder.start());
        folder.addUsers({"甲|一部|5", "乙|二部|6"});
        writeImage(folder.path("Photos/U1.jpg"), 10, 10);
        const QStringList before = dumpRoster(folder.db());
        const QStringList indexesBefore = indexes(folder.db());
        QVERIFY(indexesBefore.size() >= 5);
        QList<QStringList> people;  // more than one slice of work
        for (int i = 0; i < (kind == Photos ? 200 : 60000); ++i)
            people << QStringList{QStringLiteral("人%1").arg(i), QStringLiteral("部")};
        QTemporaryDir pictures;
        numbergen::Options options;
        options.endText = QStringLiteral("99999");
        std::unique_ptr<RosterImport> job = kind == Numbers
                                                ? std::make_unique<NumberGeneration>(options)
                                                : importOf(kind, people, kind != Text, pictures);
        // Cancel as the close question does: after the first slice has written rows.
        connect(job.get(), &RosterImport::progress, job.get(), [&job] { job->cancel(); });
        QCOMPARE(job->runToEnd(), RosterImport::Outcome::Cancelled);
        QVERIFY(job->done() > 0 && job->done() < job->total());
        QCOMPARE(dumpRoster(folder.db()), before);
        QCOMPARE(indexes(folder.db()), indexesBefore);
        QCOMPARE(QImage(folder.path("Photos/U1.jpg")).size(), QSize(10, 10));
        QCOMPARE(QDir(folder.path("Photos"))
                     .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                 QStringList{"U1.jpg"});
    }

    void failureHalfWayLeavesRosterAsItWas() {
        TempProgramFolder folder;
        QVERIFY(folder.start());
        folder.addUsers({"甲|一部|5"});
        const QStringList before = dumpRoster(folder.db());
        // A store that refuses one row half way, as a full disk or a damaged file would.
        QVERIFY(store::exec(folder.db(),
                            "CREATE TRIGGER refuse BEFORE INSERT ON UserList WHEN "
                            "NEW.UserName='坏' BEGIN SELECT RAISE(ABORT, 'refused'); END"));
        QStringList lines;
        for (int i = 0; i < 500; ++i)
            lines << QStringLiteral("人%1").arg(i);
        lines.insert(250, QStringLiteral("坏"));
        TxtImport job(lines, QStringLiteral(","), true);
        QCOMPARE(job.runToEnd(), RosterImport::Outcome::Failed);
        QVERIFY(job.errorText().contains(QStringLiteral("refused")));
        QCOMPARE(dumpRoster(folder.db()), before);
    }

    // A DOS end-of-file mark, a bell or a replacement character costs its line, not the file.
    void strayControlBytesSkipOnlyTheirLines() {
        TempProgramFolder folder;
        QVERIFY(folder.start());
        QTemporaryDir dir;
        const QString path =
            writeFile(dir.filePath(QStringLiteral("名单.txt")),
                      QStringLiteral("张三,研发部\r\n李%1四,市场部\r\n王五\a,行政部\r\n赵六\r\n")
                              .arg(QChar(0xFFFD))
                              .toUtf8() +
                          "\x1a");
        QStringList lines;
        QString error;
        QVERIFY2(TxtImport::readLines(path, &lines, &error), qPrintable(error));
        TxtImport job(lines, QStringLiteral(","), false);
        QCOMPARE(job.runToEnd(), RosterImport::Outcome::Finished);
        QCOMPARE(names(folder.db()), (QStringList{"张三/研发部", "赵六/"}));
        QCOMPARE(job.unreadableLines(), 2);
        QCOMPARE(job.log(),
                 QStringLiteral("\n屏蔽无法识别的数据：第2行\n屏蔽无法识别的数据：第3行"));
    }

    void blankNamesAreSkippedAndCounted_data() {
        QTest::addColumn<int>("kind");
        QTest::newRow("excel") << int(Excel);
        QTest::newRow("text") << int(Text);
        QTest::newRow("photos") << int(Photos);
    }

    // Every import passes over a name that is blank after trimming and says how many it skipped; a
    // replace that yields no participant never empties the roster, whatever the option says.
    void blankNamesAreSkippedAndCounted() {
        QFETCH(int, kind);
        TempProgramFolder folder;
        QVERIFY(folder.start());
        const QList<int> ids = folder.addUsers({"甲|一部"});
        QVERIFY(store::exec(folder.db(),
                            "UPDATE UserList SET UserPhoto='Photos/U1.jpg', JxID='|1|', "
                            "UserStatus=3 WHERE ID=?",
                            {ids.first()}));
        writeImage(folder.path("Photos/U1.jpg"), 10, 10);
        const QStringList before = dumpRoster(folder.db());
        QTemporaryDir pictures;
        const auto nothing = importOf(kind, {{"", "研发部"}, {"  ", "x"}}, true, pictures);
        QCOMPARE(nothing->runToEnd(), RosterImport::Outcome::Finished);
        QCOMPARE(dumpRoster(folder.db()), before);
        QVERIFY(QFile::exists(folder.path("Photos/U1.jpg")));

        const auto job =
            importOf(kind, {{"   ", "市场部"}, {"张三", "研发部"}, {"\t", "y"}}, false, pictures);
        QCOMPARE(job->runToEnd(), RosterImport::Outcome::Finished);
        QCOMPARE((QList<qint64>{job->imported(), job->blankNames(),
                                job->log().count(QStringLiteral("屏蔽空白数据"))}),
                 (QList<qint64>{1, 2, 2}));
        QCOMPARE(names(folder.db()).size(), 2);
        QVERIFY(names(folder.db()).last().startsWith(QStringLiteral("张三/研发部")));
    }
};

QTEST_MAIN(TestRosterImport)
#include "tst_rosterimport.moc"
