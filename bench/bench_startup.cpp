// Times the start of the program on a roster of 100,000 until the console is usable: shown,
// painted, with its figures. Each run is a fresh process, as when the operator opens the program,
// so the figure includes loading the libraries.
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

#include "benchstore.h"
#include "chrome/style.h"
#include "chrome/widgethelpers.h"
#include "console/consolewindow.h"
#include "core/appstate.h"
#include "core/programfolder.h"
#include "core/startup.h"
#include "roster/view/rosterscreens.h"
#include "sound/mediabackend.h"

namespace {

constexpr int kRoster = 100000;
constexpr int kRuns = 5;

// The start of main(), then "ready" once the console has been painted; the phases on stderr.
int runChild(int argc, char **argv, const QString &folder) {
    QElapsedTimer clock;
    clock.start();
    chooseMediaBackend();
    QApplication app(argc, argv);
    style::apply();
    const qint64 appReady = clock.elapsed();
    if (!startUp(folder)) return 1;
    rosterscreens::installCamera();
    const qint64 started = clock.elapsed();
    ConsoleWindow console;
    const qint64 built = clock.elapsed();
    console.show();
    console.repaint();
    QCoreApplication::processEvents();
    const qint64 shown = clock.elapsed();
    std::fprintf(stderr, "phases %lld %lld %lld %lld\n", appReady, started, built, shown);
    std::printf("ready\n");
    std::fflush(stdout);
    exitProgram(true);
    return 0;
}

struct Run {
    double total = 0;  // from the process start to "ready"
    double phases[4] = {};
};

Run runOnce(const QString &program, const QString &folder) {
    QProcess child;
    QElapsedTimer clock;
    clock.start();
    child.start(program, {QStringLiteral("--child"), folder});
    child.waitForReadyRead(60000);
    Run run;
    run.total = double(clock.nsecsElapsed()) / 1e6;
    child.waitForFinished(60000);
    const QByteArray errors = child.readAllStandardError();
    const qsizetype at = errors.indexOf("phases ");
    if (at < 0) {
        std::fprintf(stderr, "the program did not start:\n%s\n", errors.constData());
        return run;
    }
    const QList<QByteArray> fields = errors.mid(at).split('\n').first().split(' ');
    for (int i = 0; i < 4 && i + 1 < fields.size(); ++i)
        run.phases[i] = fields[i + 1].toDouble();
    return run;
}

}  // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    if (argc == 3 && qstrcmp(argv[1], "--child") == 0)
        return runChild(argc, argv, QString::fromLocal8Bit(argv[2]));

    QTemporaryDir dir;
    qputenv("QUELLIO_HOME", dir.path().toUtf8());
    {
        QApplication app(argc, argv);
        if (!startFilledFolder(dir.path(), kRoster)) return 1;
        shutDown();
    }
    const QString program = QString::fromLocal8Bit(argv[0]);
    runOnce(program, dir.path());  // the first run warms the disk cache
    std::vector<Run> runs;
    for (int i = 0; i < kRuns; ++i)
        runs.push_back(runOnce(program, dir.path()));
    std::sort(runs.begin(), runs.end(),
              [](const Run &a, const Run &b) { return a.total < b.total; });
    const Run &middle = runs[runs.size() / 2];
    std::printf("start-up to a painted console, roster of %d (median of %d runs):\n", kRoster,
                kRuns);
    std::printf("  %-34s %8.0f ms\n", "process start to console ready", middle.total);
    std::printf("  %-34s %8.0f ms\n", "  application and style", middle.phases[0]);
    std::printf("  %-34s %8.0f ms\n", "  store and settings opened", middle.phases[1]);
    std::printf("  %-34s %8.0f ms\n", "  console built (figures)", middle.phases[2]);
    std::printf("  %-34s %8.0f ms\n", "  console shown and painted", middle.phases[3]);
    return 0;
}
