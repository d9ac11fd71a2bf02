#pragma once

#include <QString>

// The keys of config.ini and their mirrors in AppState. Every reader and writer of the settings
// goes through here, so a key's name, section and type are written down once.
namespace settings {

inline const QString kMain = QStringLiteral("main");
inline const QString kMusic = QStringLiteral("music");

// Reads section main in its fixed order into appState(). An integer key that is missing, empty,
// not a whole number or beyond 16 bits fails with a message naming the key.
bool loadMain(QString *error);

// Writes one key of section main and its mirror in one step. Writing a key that is not part of
// section main is a programming error.
void write(const QString &key, const QString &value);
void write(const QString &key, int value);

// A 16-bit integer from settings text; false when the text is empty or not a whole number.
bool toInt16(const QString &text, qint16 *value);

// Reads an integer key of any section, as the draw screen and the music settings do when they
// open: false with a message naming the key when it is not a 16-bit whole number.
bool readInt(const QString &section, const QString &key, qint16 *value, QString *error);

// The address of the deployment's video tutorial (key TutorialUrl of section main), empty when
// the deployment has none: the program itself never goes online.
QString tutorialUrl();

// The key language of section main: "en" or "zh_CN" names the program's language, empty follows
// the system.
QString language();

}  // namespace settings
