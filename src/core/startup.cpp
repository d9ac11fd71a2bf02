#include "core/startup.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLockFile>

#include <malloc.h>

#include <memory>

#include "core/appstate.h"
#include "core/fonts.h"
#include "core/programfolder.h"
#include "core/settings.h"
#include "core/store.h"
#include "core/ui.h"

namespace {

std::unique_ptr<QLockFile> &instanceLock() {
    static std::unique_ptr<QLockFile> lock;
    return lock;
}

// True when no other running copy of the program holds this program folder.
bool takeInstanceLock(const QString &appPath) {
    auto lock = std::make_unique<QLockFile>(appPath + QStringLiteral("quellio.lock"));
    lock->setStaleLockTime(0);
    if (!lock->tryLock(0)) return lock->error() != QLockFile::LockFailedError;
    instanceLock() = std::move(lock);
    return true;
}

void setPaths(AppState &state, const QString &appPath) {
    state.appPath = appPath;
    state.iniPath = appPath + QStringLiteral("config.ini");
    state.mainConnStr = appPath + QStringLiteral("quellio.db");
    state.skinTmpConnStr = appPath + QStringLiteral("skin/sdb.tmp");
    state.movieDesign = QStringLiteral("sys/design.qml");
    state.moviePhoto = QStringLiteral("sys/viewer.qml");
    state.movieStage = QStringLiteral("sys/stage.qml");
    state.moviePreview = QStringLiteral("sys/preview.qml");
    state.moviePlay = QStringLiteral("sys/stage.qml");
}

bool checkMovies(const AppState &state, QString *error) {
    for (const QString &movie : {state.moviePreview, state.movieStage}) {
        if (!QFileInfo(state.path(movie)).isFile()) {
            *error =
                QCoreApplication::translate("startup", "找不到舞台文件: %1").arg(state.path(movie));
            return false;
        }
    }
    return true;
}

// A million-row roster passes hundreds of megabytes through the allocator: the file, its text,
// its lines, the sorting of each index. By default every large block goes back to the system when
// it is freed and is taken again page by page on its next use, which cost a text import a third
// of its time in page faults. Blocks up to 256 MB now stay with the program for reuse.
void keepLargeBlocksForReuse() {
    constexpr int kLargeBlock = 256 << 20;
    mallopt(M_MMAP_THRESHOLD, kLargeBlock);
    mallopt(M_TRIM_THRESHOLD, kLargeBlock);
    mallopt(M_TOP_PAD, 16 << 20);
}

}  // namespace

void loadError(const QString &text) {
    ui().message(text, MsgStyle::Critical, QCoreApplication::translate("startup", "加载错误"));
}

bool startUp(const QString &executableDir) {
    keepLargeBlocksForReuse();
    AppState &state = appState();
    const QString appPath = programfolder::resolve(executableDir);
    if (appPath.isEmpty()) {
        loadError(QCoreApplication::translate("startup", "找不到程序文件夹,请重新安装程序。"));
        return false;
    }
    if (!takeInstanceLock(appPath)) {
        ui().message(QCoreApplication::translate("startup", "程序已经在运行!!"),
                     MsgStyle::Exclamation, titles::notice);
        return false;
    }
    setPaths(state, appPath);
    installFontSubstitutes();
    QString error;
    const bool ok = store::open(state.mainConnStr, &error) && settings::loadMain(&error) &&
                    checkMovies(state, &error);
    if (!ok) {
        loadError(error);
        shutDown();
        return false;
    }
    state.title1 = state.BT1;
    state.title2 = state.BT2;
    return true;
}

void shutDown() {
    store::close();
    if (instanceLock()) instanceLock()->unlock();
    instanceLock().reset();
}
