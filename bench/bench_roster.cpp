// Figures of the roster: the imports at their target sizes, and paging and searching in a roster
// of a million participants. Runs on a copy of the factory program folder.
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <ctime>

#include "core/startup.h"
#include "core/store.h"
#include "roster/numbergen.h"
#include "roster/rosterimport.h"
#include "roster/rosterpage.h"
#include "roster/view/rostermanagerdialog.h"
#include "roster/workbook.h"

#include "xlsxwriter.h"

namespace {

QTextStream out(stdout);

// Processor time of this process since the last report: on a shared machine the wall time
// alone says more about the neighbours than about the roster.
qint64 cpuSinceLastReport() {
    static std::clock_t last = std::clock();
    const std::clock_t now = std::clock();
    const qint64 ms = static_cast<qint64>(now - last) * 1000 / CLOCKS_PER_SEC;
    last = now;
    return ms;
}

void report(const QString &what, qint64 ms, const QString &target = QString()) {
    out << what.leftJustified(56) << QString::number(ms).rightJustified(7) << " ms wall"
        << QString::number(cpuSinceLastReport()).rightJustified(7) << " ms cpu"
        << (target.isEmpty() ? QString() : QStringLiteral("   (target ") + target + ')') << '\n';
    out.flush();
}

void startMeasuring() {
    cpuSinceLastReport();
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

void benchXlsx(const QString &dir) {
    const QString path = dir + QStringLiteral("/bench.xlsx");
    QList<QStringList> rows;
    rows.reserve(100000);
    for (int i = 0; i < 100000; ++i)
        rows << QStringList{QStringLiteral("员工%1").arg(i), QStringLiteral("部门%1").arg(i % 40),
                            QString::number(10000000 + i)};
    if (!testxlsx::write(path, QStringLiteral("名单"), rows)) {
        out << "cannot write the workbook\n";
        return;
    }
    startMeasuring();
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
    report(QStringLiteral("xlsx 100,000 x 3: read the workbook"), read);
    ExcelImport job(sheet.rows, {true, false, false}, QStringLiteral(" "), false, true);
    job.runToEnd();
    report(QStringLiteral("xlsx 100,000 x 3: import (%1 rows)").arg(job.imported()),
           clock.elapsed() - read);
    out << QStringLiteral("xlsx 100,000 x 3: read and import, wall total").leftJustified(56)
        << QString::number(clock.elapsed()).rightJustified(7) << " ms wall   (target 2000)\n";
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
    startMeasuring();
    QElapsedTimer clock;
    clock.start();
    QStringList lines;
    QString error;
    if (!TxtImport::readLines(path, &lines, &error)) {
        out << error << '\n';
        return;
    }
    const qint64 read = clock.elapsed();
    report(QStringLiteral("text 1,000,000 lines: read and decode"), read);
    TxtImport job(lines, QStringLiteral(","), true);
    job.runToEnd();
    report(QStringLiteral("text 1,000,000 lines: import (%1 rows)").arg(job.imported()),
           clock.elapsed() - read);
    out << QStringLiteral("text 1,000,000 lines: read and import, wall total").leftJustified(56)
        << QString::number(clock.elapsed()).rightJustified(7) << " ms wall   (target 4000)\n";
}

void benchCodes() {
    numbergen::Options options;
    options.endText = QStringLiteral("99999");
    startMeasuring();
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
            startMeasuring();
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
        startMeasuring();
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

// The same through the manager's list, widgets included.
void benchManager() {
    RosterManagerDialog form;
    for (int page : {2, 500, 1000}) {
        startMeasuring();
        QElapsedTimer clock;
        clock.start();
        form.showParticipants(QString(), page);
        report(QStringLiteral("manager: flip to page %1 (list filled)").arg(page), clock.elapsed());
    }
    startMeasuring();
    QElapsedTimer clock;
    clock.start();
    form.showParticipants(QStringLiteral("名字99"), 1);
    report(QStringLiteral("manager: search \"名字99\" (list filled)"), clock.elapsed());
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
    benchManager();
    shutDown();
    return 0;
}
