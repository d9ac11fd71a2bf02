#include <QPaintEngine>
#include <QPdfWriter>
#include <QtTest>

#include "core/appstate.h"
#include "core/store.h"
#include "results/printout.h"
#include "results/view/printwinners.h"
#include "support/filebytes.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

// What a printout painted: per page, its lines of text top to bottom, cells split by "|".
using Printed = QList<QStringList>;

// Keeps the painted texts instead of drawing them. A text item that starts right where the
// one before ended (a run in a fallback font) continues its cell; a new baseline starts a line.
class TextRecorder : public QPaintEngine {
public:
    explicit TextRecorder(Printed *pages) : QPaintEngine(AllFeatures), m_pages(pages) {}
    bool begin(QPaintDevice *) override { return newPage(); }
    bool newPage() {
        m_pages->append(QStringList());
        return true;
    }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &) override {}
    void drawPath(const QPainterPath &) override {}
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override {}
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawTextItem(const QPointF &at, const QTextItem &item) override {
        QStringList &lines = m_pages->last();
        if (lines.isEmpty() || qAbs(at.y() - m_baseline) > 0.5)
            lines.append(item.text());
        else
            lines.last() += (at.x() > m_end + 0.5 ? QStringLiteral("|") : QString()) + item.text();
        m_baseline = at.y();
        m_end = at.x() + item.width();
    }
    Type type() const override { return User; }

private:
    Printed *m_pages;
    double m_baseline = 0;
    double m_end = 0;
};

// A printer with the PDF writer's page size and resolution whose pages go to a recorder.
class RecordingPrinter : public QPdfWriter {
public:
    RecordingPrinter(const QString &unusedFile, Printed *pages)
        : QPdfWriter(unusedFile), m_engine(pages) {}
    bool newPage() override { return m_engine.newPage(); }

protected:
    QPaintEngine *paintEngine() const override { return &m_engine; }

private:
    mutable TextRecorder m_engine;
};

// Installs a printer that records into pages and counts how often it was asked for.
void installRecorder(const TempProgramFolder &folder, Printed *pages, int *opened) {
    setPrinterFactory([path = folder.path("unused.pdf"), pages, opened] {
        ++*opened;
        pages->clear();
        return std::unique_ptr<QPagedPaintDevice>(std::make_unique<RecordingPrinter>(path, pages));
    });
}

void win(TempProgramFolder &folder, int user, int award, const QString &time) {
    store::exec(
        folder.db(),
        "UPDATE UserList SET JxID=ifnull(JxID, '') || ?, UserStatus=3, UpdateTime=? WHERE ID=?",
        {store::awardMarker(award), time, user});
}

// An award whose winners are n fresh participants.
int awardWithWinners(TempProgramFolder &folder, int n) {
    const int award = folder.addAward(QStringLiteral("一等奖"), n + 1, 1, 1, 0, 0, 0,
                                      QStringLiteral("笔记本电脑"));
    QStringList names;
    for (int i = 1; i <= n; ++i)
        names << QStringLiteral("参与者%1|研发部").arg(i);
    for (int id : folder.addUsers(names))
        win(folder, id, award, store::nowText());
    return award;
}

const QString kHead = QStringLiteral("序号|奖项名称|奖品名称|中奖名单");

}  // namespace

class TestPrintWinners : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Each test prints from its own program folder to a printer that records the pages.
    void init() {
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
        m_ui = installScriptedUi();
        m_printed.clear();
        m_opened = 0;
        installRecorder(*m_folder, &m_printed, &m_opened);
    }
    void cleanup() {
        setPrinterFactory({});
        m_folder.reset();
    }

    void paging_data() {
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

    void paging() {
        QFETCH(int, rows);
        QFETCH(QList<int>, pages);
        QCOMPARE(printout::paginate(rows), pages);
    }

    void printedPages_data() {
        QTest::addColumn<int>("rows");
        QTest::addColumn<int>("pages");
        QTest::newRow("49") << 49 << 1;
        QTest::newRow("111") << 111 << 3;
    }

    // Both printouts page the same way, and a page's rows follow on from the page before; only the
    // batch's foot has the time, with two blanks before it on its last page.
    void printedPages() {
        QFETCH(int, rows);
        QFETCH(int, pages);
        const int award = awardWithWinners(*m_folder, rows);
        QVERIFY(printWinners(true));
        QCOMPARE(m_printed.size(), pages);
        QCOMPARE(m_ui->texts(), QStringList{QStringLiteral("打印完成!")});
        QCOMPARE(m_printed.last().at(m_printed.size() == 1 ? 1 : 0),
                 kHead);  // the title on page 1 only
        QCOMPARE(m_printed.first().last(), QStringLiteral("当前第1页"));
        QStringList ids;
        for (int id = 1; id <= rows; ++id)
            ids << QString::number(id);
        QVERIFY(printBatch(ids.join(QLatin1Char(',')), award));
        QCOMPARE(m_printed.size(), pages);
        QCOMPARE(m_ui->last().text, QStringLiteral("当前中奖名单打印完成!"));
        QCOMPARE(m_opened, 2);
        if (rows <= 50) return;
        QCOMPARE(m_printed.at(1).at(1), QStringLiteral("51|一等奖|笔记本电脑|参与者51"));
        QVERIFY(m_printed.at(1).last().startsWith(QStringLiteral("当前第2页 打印时间∶")));
    }

    // Awards by their order, each award's latest winner first, names as stored even while the
    // stage masks them; the batch lists its IDs in ID order and its foot has the time.
    void awardsInTheirOrderEachLatestFirstUnmasked() {
        appState().isHideName = 1;
        appState().title1 = QStringLiteral("年会抽奖");
        const int second = m_folder->addAward(QStringLiteral("二等奖"), 3, 1, 1, 0, 0, 0, "平板");
        const int first = m_folder->addAward(QStringLiteral("一等奖"), 3, 1, 1, 0, 0, 0, "笔记本");
        store::exec(m_folder->db(), "UPDATE JPList SET OrderNum=3-ID");
        const QList<int> ids = m_folder->addUsers({"张小明", "李四", "王五"});
        win(*m_folder, ids[0], first, QStringLiteral("2026-01-01 20:00:01"));
        win(*m_folder, ids[1], first, QStringLiteral("2026-01-01 20:00:09"));
        win(*m_folder, ids[2], second, QStringLiteral("2026-01-01 19:00:00"));
        win(*m_folder, ids[0], second, QStringLiteral("2026-01-01 19:00:05"));
        QVERIFY(printWinners(false));
        QCOMPARE(m_printed,
                 (Printed{{"年会抽奖", kHead, "1|一等奖|笔记本|李四", "2|一等奖|笔记本|张小明",
                           "3|二等奖|平板|张小明", "4|二等奖|平板|王五", "当前第1页"}}));
        QVERIFY(printBatch(QStringLiteral("3, 1"), second));
        QCOMPARE(m_printed.first().mid(2, 2),
                 (QStringList{"1|二等奖|平板|张小明", "2|二等奖|平板|王五"}));
        QVERIFY(m_printed.first().last().startsWith(QStringLiteral("当前第1页  打印时间∶")));
    }

    void noPrinterOffersPdf() {
        awardWithWinners(*m_folder, 3);
        setPrinterFactory([]() -> std::unique_ptr<QPagedPaintDevice> { return nullptr; });

        // Declining the file ends the job after the notice.
        QVERIFY(!printWinners(true));
        QCOMPARE(m_ui->texts(), QStringList{QStringLiteral("找不到打印机")});
        QCOMPARE(m_ui->records.last().kind, QStringLiteral("file"));

        m_ui->clear();
        const QString path = m_folder->path(QStringLiteral("saved.pdf"));
        m_ui->files.enqueue(path);
        QVERIFY(printWinners(true));
        QCOMPARE(m_ui->texts(),
                 (QStringList{QStringLiteral("找不到打印机"), QStringLiteral("打印完成!")}));
        QVERIFY(readFile(path).startsWith("%PDF"));
    }

    // Refused with a message: a batch not drawn yet (before the printer is looked at), nothing
    // to print, a batch of an award that is gone.
    void refusals() {
        QVERIFY(!printBatch(QString(), 1));
        QCOMPARE(m_opened, 0);
        QVERIFY(!printWinners(true));
        const int award = awardWithWinners(*m_folder, 2);
        QVERIFY(!printBatch(QStringLiteral("1,2"), award + 10));
        QCOMPARE(m_ui->texts(),
                 (QStringList{"找不到当前获奖名单!", "没有奖项无法打印!", "没有奖项无法打印!"}));
        QVERIFY(m_printed.isEmpty());
    }

private:
    std::unique_ptr<TempProgramFolder> m_folder;
    ScriptedUi *m_ui = nullptr;
    Printed m_printed;
    int m_opened = 0;
};

QTEST_MAIN(TestPrintWinners)
#include "tst_printwinners.moc"
