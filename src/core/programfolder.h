#pragma once

#include <QString>

// Where the program keeps everything: the folder named by QUELLIO_HOME; else the executable's
// folder when it holds config.ini (a portable copy); else the per-user data folder, seeded on
// first start from the factory files installed under share/quellio/factory.
namespace programfolder {

// The folder with a trailing "/", seeding the per-user folder when it is new. An empty text when
// the per-user folder has no config.ini and no factory files could be found to seed it.
QString resolve(const QString &executableDir);

// Where an installed program finds its factory files.
QString factoryDir(const QString &executableDir);

// Copies every file and folder of source into target, keeping what target already holds.
bool copyTree(const QString &source, const QString &target);

// The folders the program expects below appPath; created when missing.
bool ensureFolders(const QString &appPath);

}  // namespace programfolder
