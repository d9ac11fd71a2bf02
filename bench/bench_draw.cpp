// Times the draw on large rosters: a Start press (batch of 10), a scroll-sample tick, and the
// console's progress figure with 20 awards. Each roster lives in a temporary program folder.
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTextStream>

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

void printLine(const char *what, Timing t) {
    std::printf("  %-38s %9.3f ms wall %9.3f ms cpu\n", what, t.wall, t.cpu);
}

void benchRoster(int n) {
    QTemporaryDir dir;
    programfolder::copyTree(QStringLiteral(QUELLIO_FACTORY_DIR), dir.path());
    QFile::remove(dir.path() + QStringLiteral("/quellio.lock"));
    qputenv("QUELLIO_HOME", dir.path().toUtf8());
    if (!startUp(dir.path())) {
        std::printf("start-up failed\n");
        return;
    }
    fillStore(store::mainConn(), n);
    SilentStage stage;
    draw::DrawEngine engine(stage);
    const draw::DrawSession &session = engine.session();
    // Loading an award reads the roster and the candidates ahead, so a press normally only
    // draws. After a recorded batch the roster stays and the candidates are built again from it;
    // a cold press reads everything, as after a change of the roster made outside the draw,
    // which is what the untimed write before each cold run stands for.
    auto touchRoster = [] {
        store::exec(store::mainConn(),
                    QStringLiteral("UPDATE UserList SET UserStatus=UserStatus WHERE ID=1"));
    };
    auto coldRuns = [&](int runs, const std::function<void()> &work) {
        std::vector<Timing> times;
        for (int i = 0; i < runs; ++i) {
            touchRoster();
            times.push_back(timeOnce(work));
        }
        return median(times);
    };
    const Timing load = coldRuns(5, [&] { engine.loadAward(1, true); });
    const Timing press = medianOf(7, [&] { engine.pressStart(); });
    std::vector<Timing> records;
    for (int i = 0; i < 5; ++i) {
        engine.pressStart();
        records.push_back(timeOnce([&] { engine.recordWinners(); }));
    }
    const Timing coldPress = coldRuns(5, [&] { engine.pressStart(); });
    // The parts of a cold press.
    draw::Roster roster;
    const Timing rosterRead = medianOf(5, [&] { roster = draw::readRoster(store::mainConn()); });
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
    printLine("award load (roster read ahead)", load);
    printLine("Start press, batch of 10", press);
    printLine("Start press, cold (roster read)", coldPress);
    printLine("  of which: roster read", rosterRead);
    printLine("  of which: winners to leave out", exclusions);
    printLine("  of which: candidate pools", selection);
    printLine("  of which: candidate digest", digest);
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
