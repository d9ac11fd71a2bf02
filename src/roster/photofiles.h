#pragma once

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

// The participants' photo files. The program owns a photo only inside Photos/, and removes one
// only when no participant and no prize still names it: a path leading out of the program folder,
// or a file another row shares, belongs to someone else.
namespace roster {

inline const QString kPhotoFolder = QStringLiteral("Photos/");

// Removes the files the stored paths name that the program owns and no row of the store names
// any more (exceptId: a row to leave out of that test, as the row whose photo is being cleared).
// Returns how many files went.
int removeUnnamedPhotos(QSqlDatabase db, const QString &appPath, const QStringList &storedPaths,
                        int exceptId = 0);

// After a replace of the roster: the photos the former rows named and the program's own
// "U<ID>" files left in Photos/, as far as no row names them now.
int removePhotosOfReplacedRoster(QSqlDatabase db, const QString &appPath,
                                 const QStringList &formerPhotos);

}  // namespace roster
