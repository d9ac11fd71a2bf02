// The designer's costs on the 16:9 factory template: one change with its undo snapshot, the
// digest test behind the save button, and one undo (the working file written back and the page
// sent again), with the memory the history holds.
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>

#include "core/appstate.h"
#include "design/designerdocument.h"
#include "stage/stage.h"

namespace {

class CountingStage : public Stage {
public:
    qint64 calls = 0;
    bool loadMovie(const QString &) override { return true; }
    void setVariable(const QString &, const QString &) override { ++calls; }
};

double medianMs(QList<qint64> nanos) {
    std::sort(nanos.begin(), nanos.end());
    return nanos.isEmpty() ? 0 : nanos.at(nanos.size() / 2) / 1e6;
}

}  // namespace

int main(int argc, char **argv) {
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTemporaryDir dir;
    const QString appPath = dir.path() + QStringLiteral("/");
    const QString name = QStringLiteral("通用模板（16:9)");
    const QString source =
        QStringLiteral(QUELLIO_FACTORY_DIR) + QStringLiteral("/skin/") + name + ".jsk";
    QDir().mkpath(appPath + "skin");
    const QString templateFile = appPath + "skin/" + name + ".jsk";
    if (!QFile::copy(source, templateFile) || !QFile::copy(source, appPath + "skin/sdb.tmp")) {
        out << "factory template missing: " << source << '\n';
        return 1;
    }
    appState().appPath = appPath;
    CountingStage stage;
    design::DesignerDocument doc(appPath, templateFile, stage);
    doc.open();
    doc.loadStage();

    const int steps = 200;
    QList<qint64> change, digest, undo;
    QElapsedTimer timer;
    for (int i = 0; i < steps; ++i) {
        timer.start();
        doc.storeGeometry("ssm_vornex", QString::number(600 + i), "240", "1224", "700");
        change << timer.nsecsElapsed();
        timer.start();
        doc.isModified();
        digest << timer.nsecsElapsed();
    }
    const qint64 fileBytes = QFileInfo(doc.workingFile()).size();
    for (int i = 0; i < 50; ++i) {
        timer.start();
        doc.undoStack()->undo();
        undo << timer.nsecsElapsed();
    }
    out << "working file: " << fileBytes << " bytes\n";
    out << "one change with its snapshot (median of " << steps << "): " << medianMs(change)
        << " ms\n";
    out << "digest test of the save button (median): " << medianMs(digest) << " ms\n";
    out << "one undo with the page sent again (median of 50): " << medianMs(undo) << " ms\n";
    out << "history of " << steps << " steps holds about " << 2 * fileBytes * steps / (1024 * 1024)
        << " MB\n";
    return 0;
}
