#pragma once

#include <QString>

#include <array>

// The four sounds of a draw as config.ini's music section holds them: for each a flag key (1 on)
// and a file key with a bare file name under the program's Music/ folder ("no" for none), so a
// program folder can be moved. The music settings write them; the draw screen reads them.
namespace music {

enum Slot { Background, Start, Luck, Play, SlotCount };

struct SlotKeys {
    const char *flagKey;
    const char *fileKey;
};
const SlotKeys &keysOf(int slot);

struct SlotSetting {
    bool on = false;
    QString storedName;  // the file key as read; "no" or empty for none
    QString path;        // Music/ + storedName when that file exists, else empty
};
using Settings = std::array<SlotSetting, SlotCount>;

// appPath with a trailing "/"; the folder the chosen sounds are copied into.
QString musicFolder(const QString &appPath);
Settings readSettings(const QString &appPath);

// Saves the choices: a file picked inside Music/ is named as it is; a file from elsewhere is
// copied in (over the slot's own file of that name, beside another slot's file of that name as
// "name-2.ext"). A slot's previous file is deleted only when no slot names it any more, a file
// this save has just copied included, and only inside Music/. The file key is written even when
// the copy fails, as a key naming a missing file only means silence. Then the four flags.
void saveSettings(const QString &appPath, const Settings &settings);

}  // namespace music
