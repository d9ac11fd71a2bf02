// Figures of the roster: the imports at their target sizes, and paging and searching in a roster
// of a million participants. Runs on a copy of the factory program folder.
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <zip.h>

#include "core/startup.h"
#include "core/store.h"
#include "roster/numbergen.h"
#include "roster/rosterimport.h"
#include "roster/rosterpage.h"
#include "roster/workbook.h"

namespace {

QTextStream out(stdout);

void report(const QString &what, qint64 ms, const QString &target = QString()) {
    out << what.leftJustified(58) << QString::number(ms).rightJustified(7) << " ms"
        << (target.isEmpty() ? QString() : QStringLiteral("   (target ") + target + ')') << '\n';
    out.flush();
}

bool copyFolder(const QString &from, const QString &to) {
    QDir().mkpath(to);
    const QDir source(from);
    for (const QFileInfo &info : source.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot)) {
        const QString target = to + QLatin1Char('/') + info.fileName();
        if (info.isDir() ? !copyFolder(info.filePath(), target)
                         : !QFile::copy(info.filePath(), target))
            return false;
    }
    return true;
}

// A workbook of rows x 3 columns: a name (shared string), a department, an employee number.
bool writeWorkbook(const QString &path, int rows) {
    QByteArray strings;
    QByteArray sheet =
        "<?xml version=\"1.0\"?><worksheet xmlns=\"http://schemas.openxmlformats.org/"
        "spreadsheetml/2006/main\"><sheetData>";
    strings =
        "<?xml version=\"1.0\"?><sst xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/"
        "2006/main\">";
    for (int i = 0; i < rows; ++i) {
        strings += "<si><t>" + QStringLiteral("员工%1").arg(i).toUtf8() + "</t></si>";
        const QByteArray r = QByteArray::number(i + 1);
        sheet += "<row r=\"" + r + "\"><c r=\"A" + r + "\" t=\"s\"><v>" + QByteArray::number(i) +
                 "</v></c><c r=\"B" + r + "\" t=\"inlineStr\"><is><t>" +
                 QStringLiteral("部门%1").arg(i % 40).toUtf8() + "</t></is></c><c r=\"C" + r +
                 "\"><v>" + QByteArray::number(10000000 + i) + "</v></c></row>";
    }
    strings += "</sst>";
    sheet += "</sheetData></worksheet>";
    const QByteArray book =
        "<?xml version=\"1.0\"?><workbook xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/"
        "2006/main\" xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/"
        "relationships\"><sheets><sheet name=\"名单\" sheetId=\"1\" r:id=\"rId1\"/></sheets>"
        "</workbook>";
    const QByteArray rels =
        "<?xml version=\"1.0\"?><Relationships xmlns=\"http://schemas.openxmlformats.org/package/"
        "2006/relationships\"><Relationship Id=\"rId1\" Target=\"worksheets/sheet1.xml\"/>"
        "</Relationships>";
    int error = 0;
    zip_t *archive =
        zip_open(QFile::encodeName(path).constData(), ZIP_CREATE | ZIP_TRUNCATE, &error);
    if (!archive) return false;
    const QList<QPair<const char *, const QByteArray *>> parts{
        {"xl/workbook.xml", &book},
        {"xl/_rels/workbook.xml.rels", &rels},
        {"xl/sharedStrings.xml", &strings},
        {"xl/worksheets/sheet1.xml", &sheet}};
    for (const auto &part : parts) {
        zip_source_t *source =
            zip_source_buffer(archive, part.second->constData(), part.second->size(), 0);
        if (!source || zip_file_add(archive, part.first, source, ZIP_FL_OVERWRITE) < 0) {
            zip_discard(archive);
            return false;
        }
    }
    return zip_close(archive) == 0;
}

void benchXlsx(const QString &dir) {
    const QString path = dir + QStringLiteral("/bench.xlsx");
    if (!writeWorkbook(path, 100000)) {
        out << "cannot write the workbook\n";
        return;
    }
    QElapsedTimer clock;
    clock.start();
    workbook::Workbook book;
    workbook::Sheet sheet;
    QString error;
    if (!book.open(path, &error) || !book.readSheet(0, -1, &sheet, &error)) {
        out << error << '\n';
        return;
    }
    const qint64 read = clock.elapsed();
    ExcelImport job(sheet.rows, {true, false, false}, QStringLiteral(" "), false, true);
    job.runToEnd();
    report(QStringLiteral("xlsx 100,000 x 3: read"), read);
    report(QStringLiteral("xlsx 100,000 x 3: read and import (%1 rows)").arg(job.imported()),
           clock.elapsed(), QStringLiteral("3000"));
}

void benchText(const QString &dir) {
    const QString path = dir + QStringLiteral("/bench.txt");
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly)) return;
        QByteArray bytes;
        for (int i = 0; i < 1000000; ++i)
            bytes += QStringLiteral("名字%1,部门%2\r\n").arg(i).arg(i % 50).toUtf8();
        file.write(bytes);
    }
    QElapsedTimer clock;
    clock.start();
    QStringList lines;
    QString error;
    if (!TxtImport::readLines(path, &lines, &error)) {
        out << error << '\n';
        return;
    }
    const qint64 read = clock.elapsed();
    TxtImport job(lines, QStringLiteral(","), true);
    job.runToEnd();
    report(QStringLiteral("text 1,000,000 lines: read and decode"), read);
    report(QStringLiteral("text 1,000,000 lines: read and import (%1 rows)").arg(job.imported()),
           clock.elapsed(), QStringLiteral("5000"));
}

void benchCodes() {
    numbergen::Options options;
    options.endText = QStringLiteral("99999");
    QElapsedTimer clock;
    clock.start();
    NumberGeneration job(options);
    job.runToEnd();
    report(QStringLiteral("number generator, %1 codes").arg(job.imported()), clock.elapsed(),
           QStringLiteral("1000"));
}

void benchPaging() {
    QSqlDatabase db = store::mainConn();
    const qint64 count =
        store::scalar(db, QStringLiteral("SELECT COUNT(*) FROM UserList")).toLongLong();
    const QStringList sorts{QStringLiteral("ID"), QStringLiteral("remark"),
                            QStringLiteral("distinction number"), QStringLiteral("status")};
    roster::Page page;
    QString error;
    for (int sort = 0; sort < 4; ++sort) {
        for (int number : {2, 500, 1000}) {
            QElapsedTimer clock;
            clock.start();
            roster::readPage(db, QString(), sort, number, &page, &error);
            report(QStringLiteral("page %1 of %2 rows, by %3")
                       .arg(number)
                       .arg(count)
                       .arg(sorts.at(sort)),
                   clock.elapsed());
        }
    }
    for (const QString &key :
         {QStringLiteral("名字123456"), QStringLiteral("99"), QStringLiteral("无此人")}) {
        QElapsedTimer clock;
        clock.start();
        roster::readPage(db, key, 0, 1, &page, &error);
        report(QStringLiteral("search \"%1\" in %2 rows (%3 hits)")
                   .arg(key)
                   .arg(count)
                   .arg(page.recordCount),
               clock.elapsed());
    }
}

}  // namespace

int main(int argc, char *argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir temp;
    const QString home = temp.path() + QStringLiteral("/quellio");
    if (!copyFolder(QStringLiteral(QUELLIO_FACTORY_DIR), home)) {
        out << "cannot copy the factory folder\n";
        return 1;
    }
    qputenv("QUELLIO_HOME", home.toUtf8());
    if (!startUp(home)) {
        out << "start-up failed\n";
        return 1;
    }
    benchXlsx(temp.path());
    benchCodes();
    benchText(temp.path());
    benchPaging();
    shutDown();
    return 0;
}
