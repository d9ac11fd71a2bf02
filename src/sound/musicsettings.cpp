#include "sound/musicsettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "core/appstate.h"
#include "core/helpers.h"
#include "core/profile.h"
#include "core/settings.h"
#include "core/store.h"

#include <algorithm>

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
    if (store::isStoreFile(from)) return false;
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

namespace {

bool namesAFile(const QString &name) {
    return !name.isEmpty() && name != kNone;
}

bool isInFolder(const QString &path, const QString &folder) {
    const QString canonicalFolder = QFileInfo(folder).canonicalFilePath();
    return !canonicalFolder.isEmpty() && QFileInfo(path).canonicalPath() == canonicalFolder;
}

// The name a file copied in for `slot` takes: its own, unless another slot's sound already
// goes by it; then "name-2.ext", "name-3.ext"...
QString freeName(const QString &fileName, const std::array<QString, SlotCount> &names, int slot) {
    const auto takenByOther = [&](const QString &candidate) {
        for (int other = 0; other < SlotCount; ++other)
            if (other != slot && names[size_t(other)] == candidate) return true;
        return false;
    };
    const QFileInfo info(fileName);
    const QString suffix = info.suffix().isEmpty() ? QString() : QLatin1Char('.') + info.suffix();
    const QString base = fileName.left(fileName.size() - suffix.size());
    QString candidate = fileName;
    for (int n = 2; takenByOther(candidate); ++n)
        candidate = base + QStringLiteral("-%1").arg(n) + suffix;
    return candidate;
}

}  // namespace

void saveSettings(const QString &appPath, const Settings &settings) {
    const QString folder = musicFolder(appPath);
    QDir().mkpath(folder);
    const Settings stored = readSettings(appPath);
    std::array<QString, SlotCount> names;
    std::array<bool, SlotCount> chosen{};
    for (int slot = 0; slot < SlotCount; ++slot) {
        names[size_t(slot)] = stored[size_t(slot)].storedName;
        const QString &path = settings[size_t(slot)].path;
        chosen[size_t(slot)] = !path.isEmpty() && fileExists(path);
    }
    // A file already in Music/ only changes the key; files from elsewhere are copied in after,
    // so a copy never takes the name of a sound another slot keeps.
    for (int slot = 0; slot < SlotCount; ++slot) {
        const QString &path = settings[size_t(slot)].path;
        if (!chosen[size_t(slot)]) continue;
        // A slot taking a file from elsewhere gives up its old name before any copy is named.
        names[size_t(slot)] = isInFolder(path, folder) ? QFileInfo(path).fileName() : QString();
    }
    for (int slot = 0; slot < SlotCount; ++slot) {
        const QString &path = settings[size_t(slot)].path;
        if (!chosen[size_t(slot)] || isInFolder(path, folder)) continue;
        const QString name = freeName(QFileInfo(path).fileName(), names, slot);
        copyOver(path, folder + name);
        names[size_t(slot)] = name;
    }
    for (int slot = 0; slot < SlotCount; ++slot)
        if (chosen[size_t(slot)]) writeKey(kKeys[slot].fileKey, names[size_t(slot)]);
    // A replaced sound goes, unless a slot still names it (a file just copied in included).
    for (int slot = 0; slot < SlotCount; ++slot) {
        const QString &previous = stored[size_t(slot)].storedName;
        if (!namesAFile(previous) ||
            std::find(names.cbegin(), names.cend(), previous) != names.cend())
            continue;
        const QString file =
            ownedFile(appPath, QStringLiteral("Music/"), QStringLiteral("Music/") + previous);
        if (fileExists(file)) QFile::remove(file);
    }
    for (int slot = 0; slot < SlotCount; ++slot)
        writeKey(kKeys[slot].flagKey,
                 settings[size_t(slot)].on ? QStringLiteral("1") : QStringLiteral("0"));
}

}  // namespace music
