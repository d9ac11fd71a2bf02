#include <QtTest>

#include "roster/workbook.h"
#include "support/testpaths.h"

using workbook::Row;

namespace {

QString fixture(const QString &name) {
    return testpaths::rosterFixture(name);
}

// Opens a file and reads its first sheet whole; the error, empty when both worked.
QString readFirstSheet(const QString &path, workbook::Sheet *sheet) {
    workbook::Workbook book;
    QString error;
    if (book.open(path, &error)) book.readSheet(0, -1, sheet, &error);
    return error;
}

// Cells first.. of a row as "a|b|…", "-" for a cell the file does not hold.
QString rendered(const Row &row, int first, int count) {
    QStringList cells;
    for (int column = first; column < first + count; ++column)
        cells << (row.value(column).isNull() ? QStringLiteral("-") : row.value(column));
    return cells.join('|');
}

}  // namespace

class TestWorkbook : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbersAsShown_data() {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("phone") << 13800138000.0 << "13800138000";
        QTest::newRow("small") << 12.0 << "12";
        QTest::newRow("15 digits") << 123456789012345.0 << "123456789012345";
        QTest::newRow("fraction") << 12.5 << "12.5";
        QTest::newRow("tenth") << 0.1 << "0.1";
        QTest::newRow("negative") << -3.25 << "-3.25";
        QTest::newRow("zero") << 0.0 << "0";
    }

    void numbersAsShown() {
        QFETCH(double, value);
        QTEST(workbook::numberText(value), "text");
    }

    void dates_data() {
        QTest::addColumn<double>("serial");
        QTest::addColumn<QString>("text");
        QTest::newRow("date") << 45054.0 << "2023-05-08";
        QTest::newRow("date and time") << 45293.395833333336 << "2024-01-02 09:30:00";
        QTest::newRow("time only") << 0.5 << "12:00:00";
    }

    void dates() {
        QFETCH(double, serial);
        QTEST(workbook::dateSerialText(serial), "text");
        QVERIFY(workbook::isDateFormat(14, QString()));
        QVERIFY(workbook::isDateFormat(176, QStringLiteral("yyyy/mm/dd;@")));
        QVERIFY(!workbook::isDateFormat(176, QStringLiteral("0.00_);[Red]\\(0.00\\)")));
        QVERIFY(!workbook::isDateFormat(176, QStringLiteral("\"day\"0")));
    }

    // The same sheet written by an xlsx library, by LibreOffice as xlsx and by LibreOffice as xls.
    void realWorkbooks_data() {
        QTest::addColumn<QString>("file");
        // The formula column: LibreOffice stores the results, openpyxl leaves them empty.
        QTest::addColumn<QString>("formulas");
        QTest::newRow("openpyxl xlsx") << QString("openpyxl.xlsx") << "合计||||-|";
        QTest::newRow("LibreOffice xlsx")
            << QString("libreoffice.xlsx") << "合计|10002|10003|10004|-|10006";
        QTest::newRow("LibreOffice xls")
            << QString("libreoffice.xls") << "合计|10002|10003|10004|-|10006";
    }

    void realWorkbooks() {
        QFETCH(QString, file);
        workbook::Workbook book;
        QString error;
        QVERIFY2(book.open(fixture(file), &error), qPrintable(error));
        QCOMPARE(book.sheetNames(), (QStringList{"员工名单", "Sheet 2"}));
        workbook::Sheet sheet;
        QVERIFY2(book.readSheet(0, -1, &sheet, &error), qPrintable(error));
        QCOMPARE(sheet.columns, 7);
        QStringList rows, formulas;
        for (const Row &row : sheet.rows) {
            rows << rendered(row, 0, 6);
            formulas << rendered(row, 6, 1);
        }
        QCOMPARE(rows, (QStringList{"工号|姓名|部门|电话|入职日期|分数",
                                    "10001|张三|研发部|13800138000|2023-05-08|12.5",
                                    "10002|李四|-|13900139000|2024-01-02 09:30:00|12",
                                    "10003|王五|市场部|123456789012345|2020-12-31|0.1",
                                    "-|-|财务部|-|-|-", "10005|赵六|销售部|-|-|-3.25"}));
        QTEST(formulas.join('|'), "formulas");
        // The second sheet, whose name has a blank.
        QVERIFY(book.readSheet(1, -1, &sheet, &error));
        QCOMPARE(sheet.name, QStringLiteral("Sheet 2"));
        QCOMPARE(
            QList<Row>(sheet.rows),
            (QList<Row>{
                {"名字", "备注"}, {"陈七", "行政部"}, {"陈七", "行政部"}, {"周八", "客服部"}}));
        QVERIFY(book.readSheet(0, 2, &sheet, &error));  // the preview's first rows only
        QCOMPARE(sheet.rows.size(), 2);
    }

    void inlineStringsAndSparseRows() {
        workbook::Sheet sheet;
        QCOMPARE(readFirstSheet(fixture(QStringLiteral("inline.xlsx")), &sheet), QString());
        QCOMPARE(sheet.name, QStringLiteral("内联"));
        QCOMPARE(sheet.columns, 3);
        // A missing row is a row of empty cells; runs are joined, phonetics left out.
        QStringList rows;
        for (const Row &row : sheet.rows)
            rows << rendered(row, 0, 3);
        QCOMPARE(rows, (QStringList{"姓名|编号|-", "-|-|-", "李白|-|1.5e+20", "-|TRUE|姓名"}));
    }

    void unreadableFiles_data() {
        QTest::addColumn<QString>("file");
        QTest::newRow("truncated xlsx") << "broken.xlsx";
        QTest::newRow("text file") << "utf8-lf.txt";
        QTest::newRow("binary") << "binary.txt";
        QTest::newRow("missing") << "nothing-here.xlsx";
        QTest::newRow("xls directory name past its entry") << "hostile-dirname.xls";
    }

    void unreadableFiles() {
        QFETCH(QString, file);
        workbook::Workbook book;
        QString error;
        QVERIFY(!book.open(fixture(file), &error));
        QVERIFY(!error.isEmpty());
        QVERIFY(!book.isOpen());
    }

    void demoWorkbooksShip_data() {
        QTest::addColumn<QString>("file");
        QTest::newRow("xlsx") << "demo.xlsx";
        QTest::newRow("xls") << "demo.xls";
    }

    void demoWorkbooksShip() {
        QFETCH(QString, file);
        workbook::Sheet sheet;
        QCOMPARE(readFirstSheet(testpaths::factoryDir() + file, &sheet), QString());
        QCOMPARE(sheet.rows.at(0).toList(), (QStringList{"姓名", "部门", "工号"}));
        QCOMPARE(sheet.rows.size(), 21);
        QCOMPARE(sheet.rows.at(1).value(2), QStringLiteral("20240001"));
    }

    // Each of these once crashed the reader or asked for gigabytes; now each is refused whole.
    void referencesPastTheGrid_data() {
        QTest::addColumn<QString>("file");
        QTest::newRow("eight column letters") << "hostile-letters.xlsx";
        QTest::newRow("column 16,385") << "hostile-column.xlsx";
        QTest::newRow("row 1,048,577") << "hostile-row.xlsx";
        QTest::newRow("row 2,147,483,647") << "hostile-row-int-max.xlsx";
        QTest::newRow("a part claiming 3 GB") << "hostile-claims-3gb.xlsx";
    }

    void referencesPastTheGrid() {
        QFETCH(QString, file);
        workbook::Workbook book;
        QString error;
        QVERIFY2(book.open(fixture(file), &error), qPrintable(error));
        workbook::Sheet sheet;
        QVERIFY(!book.readSheet(0, -1, &sheet, &error));
        QCOMPARE(error, QStringLiteral("文件过大或已损坏"));
        QVERIFY(sheet.rows.isEmpty());
    }

    void strayCellInTheFarCorner() {
        workbook::Sheet sheet;
        QCOMPARE(readFirstSheet(fixture(QStringLiteral("hostile-far-corner.xlsx")), &sheet),
                 QString());
        QCOMPARE(sheet.columns, workbook::kMaxColumns);
        QCOMPARE(sheet.rows.size(), workbook::kMaxRows);
        QCOMPARE(sheet.rows.at(1).toList(), QStringList{"张三"});  // not padded to the far column
        QCOMPARE(sheet.rows.last().value(workbook::kMaxColumns - 1), QStringLiteral("x"));
    }

    void partUnpackingPastItsLimit() {
        workbook::Workbook book;
        QString error;
        QVERIFY(book.open(fixture(QStringLiteral("hostile-strings.xlsx")), &error));
        book.setPartLimit(1024 * 1024);  // its shared strings unpack to 2 MB
        workbook::Sheet sheet;
        QVERIFY(!book.readSheet(0, -1, &sheet, &error));
        QCOMPARE(error, QStringLiteral("文件过大或已损坏"));
        book.setPartLimit(4 * 1024 * 1024);
        QVERIFY2(book.readSheet(0, -1, &sheet, &error), qPrintable(error));
        QCOMPARE(sheet.rows.at(0).value(0), QStringLiteral("a"));
    }

    // Found by fuzzing: nesting deeper than the stack once brought the reader down.
    void deeplyNestedText() {
        workbook::Sheet sheet;
        QCOMPARE(readFirstSheet(fixture(QStringLiteral("hostile-deep.xlsx")), &sheet), QString());
        QCOMPARE(sheet.rows.at(0).value(0), QStringLiteral("x"));
    }

    // A good sheet read before must not leave its rows behind when the next sheet breaks off.
    void failedSheetLeavesNoRows() {
        workbook::Workbook book;
        QString error;
        QVERIFY(book.open(fixture(QStringLiteral("half-broken.xlsx")), &error));
        workbook::Sheet sheet;
        QVERIFY(book.readSheet(0, -1, &sheet, &error));
        QCOMPARE(sheet.rows.size(), 2);
        QVERIFY(!book.readSheet(1, -1, &sheet, &error));
        QVERIFY(!error.isEmpty());
        QVERIFY(sheet.rows.isEmpty());
        QCOMPARE(sheet.columns, 0);
    }

    void cancelStopsTheRead() {
        workbook::Workbook book;
        QString error;
        QVERIFY(book.open(fixture(QStringLiteral("libreoffice.xlsx")), &error));
        std::atomic_bool cancel{false};
        qint64 reports = 0;
        workbook::ReadControl control;
        control.cancel = &cancel;
        control.progress = [&](qint64 done, qint64 total) {
            QVERIFY(done <= total);
            if (++reports == 1) cancel = true;
        };
        workbook::Sheet sheet;
        QVERIFY(!book.readSheet(0, -1, &sheet, &error, control));
        QVERIFY(error.isEmpty());
        QVERIFY(sheet.rows.isEmpty());
        QCOMPARE(reports, 1);
        cancel = false;
        QVERIFY(book.readSheet(0, -1, &sheet, &error, control));
        QCOMPARE(sheet.rows.size(), 6);
    }
};

QTEST_GUILESS_MAIN(TestWorkbook)
#include "tst_workbook.moc"
