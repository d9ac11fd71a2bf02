#pragma once

#include <QString>

// Start-up and exit of the whole program.
//
// startUp runs the steps that come before the console is painted: it finds appPath, makes sure
// this is the only running copy on that folder, opens the data store and reads config.ini.
// Any failure is shown once (through the Ui service) and startUp returns false: the caller ends
// the process. Nothing is created on the way: a missing store stays missing.
bool startUp(const QString &executableDir);

// The load error handler: the error's text under the title "加载错误". No browser is opened.
void loadError(const QString &text);

// Releases what startUp took (store, lock); tests call it between cases.
void shutDown();
