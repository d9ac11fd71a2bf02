#include "core/programfolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace programfolder {

namespace {

QString withSlash(const QString &dir) {
    const QString clean = QDir::cleanPath(dir);
    return clean.endsWith(QLatin1Char('/')) ? clean : clean + QLatin1Char('/');
}

bool hasConfig(const QString &dir) {
    return QFileInfo(dir + QStringLiteral("/config.ini")).isFile();
}

}  // namespace

QString factoryDir(const QString &executableDir) {
    return QDir::cleanPath(executableDir + QStringLiteral("/../share/quellio/factory"));
}

bool copyTree(const QString &source, const QString &target) {
    if (!QDir().mkpath(target)) return false;
    const QDir from(QDir(source).absolutePath());
    QDirIterator it(from.path(), QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden,
                    QDirIterator::Subdirectories);
    bool ok = true;
    while (it.hasNext()) {
        const QString path = it.next();
        const QString destination = target + QLatin1Char('/') + from.relativeFilePath(path);
        if (it.fileInfo().isDir()) {
            ok = QDir().mkpath(destination) && ok;
        } else if (!QFileInfo::exists(destination)) {
            ok = QFile::copy(path, destination) && ok;
        }
    }
    return ok;
}

bool ensureFolders(const QString &appPath) {
    static const char *const folders[] = {"skin",   "skin/bak", "skin/sPhoto", "skin/Src", "sys",
                                          "Photos", "Music",    "History",     "record"};
    bool ok = true;
    for (const char *folder : folders)
        ok = QDir().mkpath(appPath + QLatin1String(folder)) && ok;
    return ok;
}

QString resolve(const QString &executableDir) {
    const QString home = qEnvironmentVariable("QUELLIO_HOME");
    if (!home.isEmpty()) return withSlash(home);
    if (hasConfig(executableDir)) return withSlash(executableDir);
    const QString user = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (hasConfig(user)) return withSlash(user);
    const QString factory = factoryDir(executableDir);
    if (!hasConfig(factory) || !copyTree(factory, user)) return QString();
    ensureFolders(withSlash(user));
    return withSlash(user);
}

}  // namespace programfolder
