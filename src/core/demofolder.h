#pragma once

#include <QString>

// A program folder to try things out on: the factory files with a sample roster of 200
// participants and three awards.
namespace demofolder {

// Adds the sample roster and awards to the empty store in storeFile.
bool fillSampleEvening(const QString &storeFile, QString *error);

// Makes target, which must be missing or empty, a demo folder: a copy of the factory folder
// with the sample evening. The copy leaves out the program itself and the files of a running
// copy, so a portable program folder can serve as the factory.
bool make(const QString &factory, const QString &target, QString *error);

}  // namespace demofolder
