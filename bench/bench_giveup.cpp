// The give-up list and the winner list on a large party: a roster of 100,000 with 30,000
// winners over twenty awards. Prints the time of a page (first, last, searched), of a give-up of
// one full page, and of the whole winner list.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include "core/store.h"
#include "draw/giveup.h"
#include "results/winnerlist.h"

namespace {

constexpr int kRoster = 100000;
constexpr int kWinners = 30000;
constexpr int kAwards = 20;

bool fill(QSqlDatabase db) {
    db.transaction();
    for (int a = 1; a <= kAwards; ++a)
        store::exec(db,
                    QStringLiteral("INSERT INTO JPList (ID, JXName, JXNum, JXGroup, JPName, "
                                   "OrderNum) VALUES (?, ?, ?, 5, ?, ?)"),
                    {a, QStringLiteral("第%1等奖").arg(a), kWinners / kAwards,
                     QStringLiteral("奖品%1").arg(a), a});
    for (int i = 1; i <= kRoster; ++i) {
        const bool won = i <= kWinners;
        store::exec(
            db,
            QStringLiteral("INSERT INTO UserList (ID, UserName, UserPart, UserStatus, "
                           "JxID, UpdateTime) VALUES (?, ?, ?, ?, ?, ?)"),
            {i, QStringLiteral("参与者%1").arg(i), QStringLiteral("研发部"), won ? 3 : 0,
             won ? store::awardMarker(1 + i % kAwards) : QString(),
             won ? QVariant(
                       QStringLiteral("2026-01-01 20:%1:00").arg(i / 1000, 2, 10, QLatin1Char('0')))
                 : QVariant()});
    }
    return db.commit();
}

template <typename Work>
double timed(Work work, int rounds = 5) {
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < rounds; ++i)
        work();
    return timer.nsecsElapsed() / 1e6 / rounds;
}

}  // namespace

int main(int argc, char *argv[]) {
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("quellio.db"));
    QString error;
    if (!QFile::copy(QStringLiteral(QUELLIO_FACTORY_DIR "/quellio.db"), path) ||
        !store::open(path, &error) || !fill(store::mainConn())) {
        out << "cannot prepare the store: " << error << '\n';
        return 1;
    }
    QSqlDatabase db = store::mainConn();
    const int pages = (kWinners + draw::kGiveUpPageSize - 1) / draw::kGiveUpPageSize;
    out << "roster " << kRoster << ", winners " << kWinners << ", awards " << kAwards << '\n';
    out << "give-up list, first page: " << timed([&] { draw::giveUpPage(db, QString(), 1); })
        << " ms\n";
    out << "give-up list, last page (" << pages
        << "): " << timed([&] { draw::giveUpPage(db, QString(), pages); }) << " ms\n";
    out << "give-up list, search \"者123\": "
        << timed([&] { draw::giveUpPage(db, QStringLiteral("者123"), 1); }) << " ms\n";
    const draw::GiveUpPage page = draw::giveUpPage(db, QString(), 1);
    QList<qint64> ids;
    for (const draw::GiveUpRow &row : page.rows)
        ids << row.id;
    out << "give-up of one page (" << ids.size()
        << " rows): " << timed([&] { draw::giveUp(db, ids, nullptr); }, 1) << " ms\n";
    results::WinnerList list;
    out << "winner list: " << timed([&] { list = results::readWinnerList(db); }, 3) << " ms, "
        << list.rows.size() << " rows\n";
    db = QSqlDatabase();
    store::close();
    return 0;
}
