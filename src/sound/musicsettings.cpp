#include "sound/musicsettings.h"

#include <QFile>
#include <QFileInfo>

#include "core/appstate.h"
#include "core/helpers.h"
#include "core/profile.h"
#include "core/settings.h"

namespace music {

namespace {

const QString kNone = QStringLiteral("no");

const SlotKeys kKeys[SlotCount] = {{"isBgMusic", "BgMusicFile"},
                                   {"isStartMusic", "StartMusicFile"},
                                   {"isLuckMusic", "LuckMusicFile"},
                                   {"isPlayMusic", "PlayMusicFile"}};

QString readKey(const char *key) {
    return readIni(settings::kMusic, QLatin1String(key), appState().iniPath).trimmed();
}

void writeKey(const char *key, const QString &value) {
    writeIni(settings::kMusic, QLatin1String(key), value, appState().iniPath);
}

// Copies over an existing file of that name; QFile::copy never overwrites.
bool copyOver(const QString &from, const QString &to) {
    const QString part = to + QStringLiteral(".part");
    QFile::remove(part);
    if (!QFile::copy(from, part)) return false;
    QFile::remove(to);
    return QFile::rename(part, to);
}

}  // namespace

const SlotKeys &keysOf(int slot) {
    return kKeys[slot];
}

QString musicFolder(const QString &appPath) {
    return appPath + QStringLiteral("Music/");
}

Settings readSettings(const QString &appPath) {
    Settings result;
    for (int slot = 0; slot < SlotCount; ++slot) {
        SlotSetting &setting = result[size_t(slot)];
        qint16 flag = 0;
        setting.on = settings::toInt16(readKey(kKeys[slot].flagKey), &flag) && flag == 1;
        setting.storedName = readKey(kKeys[slot].fileKey);
        const QString path = musicFolder(appPath) + setting.storedName;
        if (!setting.storedName.isEmpty() && setting.storedName != kNone && fileExists(path))
            setting.path = path;
    }
    return result;
}

void saveSettings(const QString &appPath, const Settings &settings) {
    const QString folder = musicFolder(appPath);
    const Settings stored = readSettings(appPath);
    for (int slot = 0; slot < SlotCount; ++slot) {
        const QString &path = settings[size_t(slot)].path;
        if (path.isEmpty() || !fileExists(path) || path.contains(folder)) continue;
        const QString name = QFileInfo(path).fileName();
        copyOver(path, folder + name);
        // The previous file goes, unless the copy has just taken its name.
        const QString &previous = stored[size_t(slot)].storedName;
        if (!previous.isEmpty() && previous != kNone && previous != name)
            QFile::remove(folder + previous);
        writeKey(kKeys[slot].fileKey, name);
    }
    for (int slot = 0; slot < SlotCount; ++slot)
        writeKey(kKeys[slot].flagKey,
                 settings[size_t(slot)].on ? QStringLiteral("1") : QStringLiteral("0"));
}

}  // namespace music
