// Writes the winners' CSV and the full printout for a large party: 10,000 winners over ten
// awards. Prints the time of each and the size of what was written.
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTextStream>

#include "core/appstate.h"
#include "core/store.h"
#include "results/exportwinners.h"
#include "results/printout.h"
#include "results/view/printwinners.h"

namespace {

constexpr int kWinners = 10000;
constexpr int kAwards = 10;

bool fill(QSqlDatabase db) {
    db.transaction();
    for (int a = 1; a <= kAwards; ++a)
        store::exec(db,
                    QStringLiteral("INSERT INTO JPList (ID, JXName, JXNum, JXGroup, JPName, "
                                   "OrderNum) VALUES (?, ?, ?, 1, ?, ?)"),
                    {a, QStringLiteral("第%1等奖").arg(a), kWinners / kAwards,
                     QStringLiteral("奖品, 型号%1").arg(a), a});
    for (int i = 1; i <= kWinners; ++i)
        store::exec(db,
                    QStringLiteral("INSERT INTO UserList (ID, UserName, UserPart, UserStatus, "
                                   "JxID, UpdateTime) VALUES (?, ?, ?, 3, ?, ?)"),
                    {i, QStringLiteral("参与者%1").arg(i), QStringLiteral("研发部"),
                     store::awardMarker(1 + i % kAwards),
                     QStringLiteral("2026-01-01 20:%1:00").arg(i % 60, 2, 10, QLatin1Char('0'))});
    return db.commit();
}

}  // namespace

int main(int argc, char *argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QTextStream out(stdout);
    QTemporaryDir dir;
    const QString db = dir.filePath(QStringLiteral("quellio.db"));
    QString error;
    if (!QFile::copy(QStringLiteral(QUELLIO_FACTORY_DIR "/quellio.db"), db) ||
        !store::open(db, &error) || !fill(store::mainConn())) {
        out << "cannot prepare the store: " << error << '\n';
        return 1;
    }
    appState().appPath = dir.path() + QLatin1Char('/');
    appState().title1 = QStringLiteral("2026年度盛典");

    QElapsedTimer timer;
    timer.start();
    const QString csv = exportWinners(dir.filePath(QStringLiteral("winners.csv")), false);
    out << "export " << kWinners << " winners: " << timer.elapsed() << " ms, "
        << QFileInfo(csv).size() / 1024 << " KiB\n";

    const QString pdf = dir.filePath(QStringLiteral("winners.pdf"));
    setPrinterFactory([pdf]() -> std::unique_ptr<QPagedPaintDevice> {
        return std::make_unique<QPdfWriter>(pdf);
    });
    timer.restart();
    printWinners(false);
    out << "print " << kWinners << " winners to PDF: " << timer.elapsed() << " ms, "
        << printout::paginate(kWinners).size() << " pages, " << QFileInfo(pdf).size() / 1024
        << " KiB\n";
    store::close();
    return 0;
}
