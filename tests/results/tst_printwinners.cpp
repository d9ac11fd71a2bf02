#include <QFile>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QtTest>

#include "core/store.h"
#include "results/printout.h"
#include "results/view/printwinners.h"
#include "results/winnerrows.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

// Page objects of a PDF file: "/Type /Page" but not the "/Type /Pages" tree node.
int pdfPageCount(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return -1;
    const QString text = QString::fromLatin1(file.readAll());
    return static_cast<int>(
        text.count(QRegularExpression(QStringLiteral("/Type\\s*/Page(?![a-zA-Z])"))));
}

// Installs a printer that writes PDF files to path and counts how often it was asked for.
void installPdfPrinter(const QString &path, int *opened) {
    setPrinterFactory([path, opened]() -> std::unique_ptr<QPagedPaintDevice> {
        ++*opened;
        QFile::remove(path);
        return std::make_unique<QPdfWriter>(path);
    });
}

void installNoPrinter() {
    setPrinterFactory([]() -> std::unique_ptr<QPagedPaintDevice> { return nullptr; });
}

// An award whose winners are n fresh participants.
int awardWithWinners(TempProgramFolder &folder, int n) {
    const int award = folder.addAward(QStringLiteral("一等奖"), n + 1, 1, 1, 0, 0, 0,
                                      QStringLiteral("笔记本电脑"));
    QStringList names;
    for (int i = 1; i <= n; ++i)
        names << QStringLiteral("参与者%1|研发部").arg(i);
    const QList<int> ids = folder.addUsers(names);
    for (int id : ids)
        store::exec(folder.db(),
                    QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=3, UpdateTime=? "
                                   "WHERE ID=?"),
                    {store::awardMarker(award), store::nowText(), id});
    return award;
}

}  // namespace

class TestPrintWinners : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { setPrinterFactory({}); }
    void paging_data();
    void paging();
    void footTexts_data();
    void footTexts();
    void printedPages_data();
    void printedPages();
    void noPrinterOffersPdf();
    void noAwardsIsRefused();
    void batchPrintout();
};

void TestPrintWinners::paging_data() {
    QTest::addColumn<int>("rows");
    QTest::addColumn<QList<int>>("pages");
    QTest::newRow("none") << 0 << QList<int>{0};
    QTest::newRow("49") << 49 << QList<int>{49};
    QTest::newRow("50 leaves a page with its head") << 50 << QList<int>{50, 0};
    QTest::newRow("51") << 51 << QList<int>{50, 1};
    QTest::newRow("110") << 110 << QList<int>{50, 60};
    QTest::newRow("111 leaves page 3 with its head") << 111 << QList<int>{50, 61, 0};
    QTest::newRow("112") << 112 << QList<int>{50, 61, 1};
    QTest::newRow("172") << 172 << QList<int>{50, 61, 61, 0};
}

void TestPrintWinners::paging() {
    QFETCH(int, rows);
    QFETCH(QList<int>, pages);
    QCOMPARE(printout::paginate(rows), pages);
}

void TestPrintWinners::footTexts_data() {
    QTest::addColumn<bool>("withTime");
    QTest::addColumn<bool>("lastPage");
    QTest::addColumn<QString>("text");
    QTest::newRow("all winners") << false << false << QStringLiteral("当前第2页");
    QTest::newRow("all winners, last page") << false << true << QStringLiteral("当前第2页");
    QTest::newRow("batch, full page")
        << true << false << QStringLiteral("当前第2页 打印时间∶2026-01-01 20:00:00");
    QTest::newRow("batch, last page has two blanks")
        << true << true << QStringLiteral("当前第2页  打印时间∶2026-01-01 20:00:00");
}

void TestPrintWinners::footTexts() {
    QFETCH(bool, withTime);
    QFETCH(bool, lastPage);
    QFETCH(QString, text);
    printout::Document document;
    document.footWithTime = withTime;
    document.printTime = QStringLiteral("2026-01-01 20:00:00");
    QCOMPARE(printout::footText(document, 2, lastPage), text);
}

void TestPrintWinners::printedPages_data() {
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("pages");
    QTest::newRow("49") << 49 << 1;
    QTest::newRow("50") << 50 << 2;
    QTest::newRow("51") << 51 << 2;
    QTest::newRow("111") << 111 << 3;
}

void TestPrintWinners::printedPages() {
    QFETCH(int, rows);
    QFETCH(int, pages);
    TempProgramFolder folder;
    QVERIFY(folder.start());
    ScriptedUi *scripted = installScriptedUi();
    const int award = awardWithWinners(folder, rows);
    const QString path = folder.path(QStringLiteral("all.pdf"));
    int opened = 0;
    installPdfPrinter(path, &opened);
    QVERIFY(printWinners(true));
    QCOMPARE(pdfPageCount(path), pages);
    QCOMPARE(scripted->texts(), QStringList{QStringLiteral("打印完成!")});

    // The batch printout pages the same way.
    QStringList ids;
    for (int id = 1; id <= rows; ++id)
        ids << QString::number(id);
    QVERIFY(printBatch(ids.join(QLatin1Char(',')), award));
    QCOMPARE(pdfPageCount(path), pages);
    QCOMPARE(scripted->last().text, QStringLiteral("当前中奖名单打印完成!"));
    QCOMPARE(opened, 2);
}

void TestPrintWinners::noPrinterOffersPdf() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    ScriptedUi *scripted = installScriptedUi();
    awardWithWinners(folder, 3);
    installNoPrinter();

    // Declining the file ends the job after the notice.
    QVERIFY(!printWinners(true));
    QCOMPARE(scripted->texts(), QStringList{QStringLiteral("找不到打印机")});
    QCOMPARE(scripted->records.first().title, QStringLiteral("警告"));
    QCOMPARE(scripted->records.last().kind, QStringLiteral("file"));

    scripted->clear();
    const QString path = folder.path(QStringLiteral("saved.pdf"));
    scripted->files.enqueue(path);
    QVERIFY(printWinners(true));
    QCOMPARE(scripted->texts(),
             (QStringList{QStringLiteral("找不到打印机"), QStringLiteral("打印完成!")}));
    QCOMPARE(pdfPageCount(path), 1);
}

void TestPrintWinners::noAwardsIsRefused() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    ScriptedUi *scripted = installScriptedUi();
    int opened = 0;
    const QString path = folder.path(QStringLiteral("none.pdf"));
    installPdfPrinter(path, &opened);
    QVERIFY(!printWinners(true));
    QCOMPARE(scripted->texts(), QStringList{QStringLiteral("没有奖项无法打印!")});
    QVERIFY(!QFile::exists(path));
}

void TestPrintWinners::batchPrintout() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    ScriptedUi *scripted = installScriptedUi();
    const int award = awardWithWinners(folder, 2);
    int opened = 0;
    const QString path = folder.path(QStringLiteral("batch.pdf"));
    installPdfPrinter(path, &opened);

    // No batch yet: refused before the printer is looked at.
    QVERIFY(!printBatch(QString(), award));
    QCOMPARE(scripted->texts(), QStringList{QStringLiteral("找不到当前获奖名单!")});
    QCOMPARE(opened, 0);

    scripted->clear();
    QVERIFY(!printBatch(QStringLiteral("1,2"), award + 10));
    QCOMPARE(scripted->texts(), QStringList{QStringLiteral("没有奖项无法打印!")});
    QCOMPARE(opened, 1);

    scripted->clear();
    QVERIFY(printBatch(QStringLiteral("2, 1"), award));
    const auto batch = results::participantsById(folder.db(), {2, 1});
    QCOMPARE(batch.size(), 2);
    QCOMPARE(batch.at(0).name, QStringLiteral("参与者1"));
    QCOMPARE(scripted->last().title, QStringLiteral("提示"));
    QCOMPARE(pdfPageCount(path), 1);
}

QTEST_MAIN(TestPrintWinners)
#include "tst_printwinners.moc"
