// Times quellio-verify's work on an evening of 1,000 recorded presses (batches of 10) on a
// roster of 100,000, and prints what the audit log costs on disk per press.
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>

#include "benchstore.h"
#include "core/programfolder.h"
#include "core/startup.h"
#include "core/store.h"
#include "draw/audit.h"
#include "draw/engine.h"
#include "draw/rostersnapshot.h"
#include "draw/verifier.h"
#include "stage/stage.h"

int main(int argc, char *argv[]) {
    QApplication app(argc, argv);
    constexpr int kRoster = 100000;
    constexpr int kPresses = 1000;
    QTemporaryDir dir;
    if (!startFilledFolder(dir.path(), kRoster)) {
        std::printf("start-up failed\n");
        return 1;
    }
    const QString appPath = dir.path() + QLatin1Char('/');
    QElapsedTimer timer;
    timer.start();
    {
        SilentStage stage;
        draw::DrawEngine engine(stage);
        engine.openAuditSession();
        engine.loadAward(1, true);
        for (int i = 0; i < kPresses; ++i) {
            engine.pressStart();
            engine.recordWinners();
        }
    }
    const double drawMs = double(timer.elapsed());
    const qint64 logBytes = QFileInfo(draw::auditLogPath(appPath)).size();
    qint64 rosterBytes = 0;
    for (const QFileInfo &file :
         QDir(appPath + QStringLiteral("History")).entryInfoList({"roster-*"}))
        rosterBytes += file.size();

    timer.restart();
    const draw::VerifyReport report = draw::verifyProgramFolder(appPath, store::mainConn());
    const double verifyMs = double(timer.elapsed());

    std::printf("audit log, %d presses of 10 on a roster of %d:\n", kPresses, kRoster);
    std::printf("  drawing and recording them (with the log)   %9.0f ms\n", drawMs);
    std::printf("  verifying the log against the store         %9.0f ms (target 2000)\n", verifyMs);
    std::printf("  log size                                    %9lld bytes (%.0f per press)\n",
                logBytes, double(logBytes) / kPresses);
    std::printf("  roster snapshot (written once per roster)   %9lld bytes\n", rosterBytes);
    std::printf("  verdict: %s, %d presses, %d failed\n", report.holds() ? "holds" : "FAILS",
                int(report.presses.size()), report.failedCount());
    return report.holds() ? 0 : 1;
}
