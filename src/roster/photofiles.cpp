#include "roster/photofiles.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <QSqlQuery>

#include "core/helpers.h"

namespace roster {

namespace {

// The one spelling of a stored path that two rows naming the same file share.
QString pathKey(const QString &appPath, const QString &storedPath) {
    return QDir::cleanPath(QDir(appPath).filePath(normalizeSlashes(storedPath.trimmed())));
}

QSet<QString> namedPaths(QSqlDatabase db, const QString &appPath, int exceptId) {
    QSet<QString> named;
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.prepare(
        QStringLiteral("SELECT UserPhoto FROM UserList WHERE UserPhoto<>'' AND ID<>? "
                       "UNION SELECT JPPhoto FROM JPList WHERE JPPhoto<>''"));
    query.addBindValue(exceptId);
    if (!query.exec()) return {};
    while (query.next())
        named.insert(pathKey(appPath, query.value(0).toString()));
    return named;
}

}  // namespace

int removeUnnamedPhotos(QSqlDatabase db, const QString &appPath, const QStringList &storedPaths,
                        int exceptId) {
    QStringList owned;
    for (const QString &stored : storedPaths)
        if (!ownedFile(appPath, kPhotoFolder, stored).isEmpty()) owned << stored;
    if (owned.isEmpty()) return 0;
    const QSet<QString> named = namedPaths(db, appPath, exceptId);
    int removed = 0;
    for (const QString &stored : std::as_const(owned)) {
        if (named.contains(pathKey(appPath, stored))) continue;
        const QString file = ownedFile(appPath, kPhotoFolder, stored);
        if (fileExists(file) && QFile::remove(file)) ++removed;
    }
    return removed;
}

int removePhotosOfReplacedRoster(QSqlDatabase db, const QString &appPath,
                                 const QStringList &formerPhotos) {
    QStringList candidates = formerPhotos;
    const QDir folder(QDir(appPath).filePath(kPhotoFolder));
    for (const QString &name : folder.entryList(QDir::Files | QDir::Hidden | QDir::System))
        if (isParticipantPhotoName(name)) candidates << kPhotoFolder + name;
    return removeUnnamedPhotos(db, appPath, candidates);
}

}  // namespace roster
