// Times the draw on large rosters: Start presses (batch of 10) cold, warm and right after another
// connection wrote to the store, a scroll-sample tick, and the console's progress figure with 20
// awards. Each roster lives in a temporary program folder.
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

#include "benchstore.h"
#include "core/appstate.h"
#include "core/programfolder.h"
#include "core/startup.h"
#include "core/store.h"
#include "draw/engine.h"
#include "draw/progress.h"
#include "stage/stage.h"

namespace {

// Wall time, and the thread's own CPU time: the machine may be shared, and the CPU figure shows
// the cost without the time spent waiting for a core.
struct Timing {
    double wall = 0;
    double cpu = 0;
};

double threadCpuMs() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

Timing median(std::vector<Timing> runs) {
    const size_t middle = runs.size() / 2;
    auto byWall = [](const Timing &a, const Timing &b) { return a.wall < b.wall; };
    auto byCpu = [](const Timing &a, const Timing &b) { return a.cpu < b.cpu; };
    std::nth_element(runs.begin(), runs.begin() + long(middle), runs.end(), byWall);
    const double wall = runs[middle].wall;
    std::nth_element(runs.begin(), runs.begin() + long(middle), runs.end(), byCpu);
    return {wall, runs[middle].cpu};
}

Timing timeOnce(const std::function<void()> &work) {
    QElapsedTimer timer;
    const double cpuStart = threadCpuMs();
    timer.start();
    work();
    return {double(timer.nsecsElapsed()) / 1e6, threadCpuMs() - cpuStart};
}

Timing medianOf(int runs, const std::function<void()> &work) {
    std::vector<Timing> times;
    for (int i = 0; i < runs; ++i)
        times.push_back(timeOnce(work));
    return median(times);
}

// Runs the event loop until the engine has read the roster again behind the draw.
void waitForReread(draw::DrawEngine &engine) {
    QEventLoop loop;
    QObject::connect(&engine, &draw::DrawEngine::rosterReread, &loop, &QEventLoop::quit);
    QTimer::singleShot(10000, &loop, &QEventLoop::quit);
    loop.exec();
}

void printLine(const char *what, Timing t) {
    std::printf("  %-38s %9.3f ms wall %9.3f ms cpu\n", what, t.wall, t.cpu);
}

void benchRoster(int n) {
    QTemporaryDir dir;
    if (!startFilledFolder(dir.path(), n)) {
        std::printf("start-up failed\n");
        return;
    }
    SilentStage stage;
    // Opening the draw window: the audit session writes its roster snapshot, the first award
    // reads the roster. The first press after it is the cold one.
    std::vector<Timing> opens;
    std::vector<Timing> coldPresses;
    for (int i = 0; i < 3; ++i) {
        draw::DrawEngine fresh(stage);
        opens.push_back(timeOnce([&] {
            fresh.openAuditSession();
            fresh.loadAward(1, true);
        }));
        coldPresses.push_back(timeOnce([&] { fresh.pressStart(); }));
    }
    draw::DrawEngine engine(stage);
    const draw::DrawSession &session = engine.session();
    engine.openAuditSession();
    engine.loadAward(1, true);
    auto press = [&] {
        engine.clearDraw();
        return timeOnce([&] { engine.pressStart(); });
    };
    std::vector<Timing> warm;
    for (int i = 0; i < 7; ++i)
        warm.push_back(press());
    std::vector<Timing> records;
    for (int i = 0; i < 5; ++i) {
        engine.clearDraw();
        engine.pressStart();
        records.push_back(timeOnce([&] { engine.recordWinners(); }));
    }
    const Timing warmAfterRecord = press();

    // Another connection writes; the next press follows at once, before the roster is read
    // again behind it.
    QSqlDatabase outside = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), "outside");
    outside.setDatabaseName(store::mainConn().databaseName());
    outside.open();
    int nextId = n + 1;
    auto afterOutsideWrite = [&](const QString &sql) {
        std::vector<Timing> times;
        for (int i = 0; i < 5; ++i) {
            store::exec(outside, sql.arg(nextId++));
            times.push_back(press());
            waitForReread(engine);
        }
        return median(times);
    };
    const Timing afterNewName = afterOutsideWrite(QStringLiteral(
        "INSERT INTO UserList (ID, UserName, DiffNum, UserStatus) VALUES (%1, 'new', 1, 0)"));
    const Timing afterGiveUp = afterOutsideWrite(
        QStringLiteral("UPDATE UserList SET JxID='无', UserStatus=1 WHERE ID=%1 - %2").arg(n / 2));
    QElapsedTimer rereadClock;
    store::exec(outside, QStringLiteral("UPDATE UserList SET DiffNum=3 WHERE ID=7"));
    rereadClock.start();
    engine.clearDraw();
    engine.pressStart();
    waitForReread(engine);
    const double rereadMs = double(rereadClock.nsecsElapsed()) / 1e6;
    const Timing caughtUp = press();
    outside.close();
    outside = QSqlDatabase();
    QSqlDatabase::removeDatabase(QStringLiteral("outside"));

    // The parts of building the candidates again.
    draw::Roster roster;
    const Timing rosterRead = medianOf(3, [&] { roster = draw::readRoster(store::mainConn()); });
    std::vector<qint64> excluded;
    const Timing exclusions =
        medianOf(5, [&] { excluded = draw::excludedIds(store::mainConn(), session.award.rule); });
    draw::Candidates candidates;
    const Timing selection = medianOf(
        5, [&] { candidates = draw::selectCandidates(roster, excluded, session.award.rule); });
    const Timing digest = medianOf(5, [&] { draw::candidateDigest(candidates); });
    const Timing tick = medianOf(200, [&] { engine.pushScrollSample(); });
    const qint64 total = draw::awardFigures(store::mainConn()).slotSum;
    QString progress;
    const Timing luckPos =
        medianOf(7, [&] { progress = draw::luckProgress(store::mainConn(), total); });

    std::printf("roster of %d (one in 200 already a winner):\n", n);
    printLine("opening the draw window (snapshot, roster)", median(opens));
    printLine("Start press, cold (first after opening)", median(coldPresses));
    printLine("Start press, warm", median(warm));
    printLine("Start press, after a recorded batch", warmAfterRecord);
    printLine("Start press, other connection added one", afterNewName);
    printLine("Start press, other connection: give-up", afterGiveUp);
    printLine("Start press, roster read again behind", caughtUp);
    std::printf("  %-38s %9.3f ms wall\n", "roster read again behind the draw", rereadMs);
    printLine("  roster read", rosterRead);
    printLine("  winners to leave out", exclusions);
    printLine("  candidate pools", selection);
    printLine("  candidate digest", digest);
    printLine("recording a batch (with reload)", median(records));
    printLine("scroll-sample tick", tick);
    printLine("getLuckPos, 20 awards", luckPos);
    std::printf("  progress shown: %s\n", qPrintable(progress));
    std::fflush(stdout);
    shutDown();
    resetAppState();
}

}  // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    for (int n : {100000, 1000000})
        benchRoster(n);
    return 0;
}
