#include "core/settings.h"

#include <QCoreApplication>

#include "core/appstate.h"
#include "core/profile.h"

namespace settings {

namespace {

struct MainKey {
    const char *name;
    qint16 AppState::*number;
    QString AppState::*text;
};

// In the order start-up reads them.
const MainKey kMainKeys[] = {
    {"BT1", nullptr, &AppState::BT1},
    {"BT2", nullptr, &AppState::BT2},
    {"maxImgWidth", &AppState::maxImgWidth, nullptr},
    {"maxImgHeight", &AppState::maxImgHeight, nullptr},
    {"playType", &AppState::playType, nullptr},
    {"playTitleType", &AppState::playTitleType, nullptr},
    {"selSkinName", nullptr, &AppState::selSkinName},
    {"selJxid", &AppState::selJxid, nullptr},
    {"isTimeProtect", &AppState::isTimeProtect, nullptr},
    {"timeProtectNum", &AppState::timeProtectNum, nullptr},
    {"luckType", &AppState::luckType, nullptr},
    {"luckDelay", &AppState::luckDelay, nullptr},
    {"guideHide", &AppState::guideHide, nullptr},
    {"isHideName", &AppState::isHideName, nullptr},
    {"hideLeft", &AppState::hideLeft, nullptr},
    {"hideRight", &AppState::hideRight, nullptr},
    {"hideReStr", nullptr, &AppState::hideReStr},
};

const MainKey &findKey(const QString &key) {
    for (const MainKey &entry : kMainKeys) {
        if (key == QLatin1String(entry.name)) return entry;
    }
    qFatal("config.ini has no key main/%s", qPrintable(key));
}

QString badNumber(const QString &section, const QString &key, const QString &text) {
    return QCoreApplication::translate("settings",
                                       "配置文件 config.ini 中 [%1] %2 的值“%3”不是有效的整数")
        .arg(section, key, text);
}

}  // namespace

bool toInt16(const QString &text, qint16 *value) {
    bool ok = false;
    const int number = text.trimmed().toInt(&ok);
    if (!ok || number < -32768 || number > 32767) return false;
    *value = static_cast<qint16>(number);
    return true;
}

bool readInt(const QString &section, const QString &key, qint16 *value, QString *error) {
    const QString text = readIni(section, key, appState().iniPath);
    if (toInt16(text, value)) return true;
    if (error) *error = badNumber(section, key, text);
    return false;
}

bool loadMain(QString *error) {
    AppState &state = appState();
    const ProfileFile profile(state.iniPath);
    if (!profile.exists()) {
        if (error)
            *error =
                QCoreApplication::translate("settings", "找不到配置文件: %1").arg(state.iniPath);
        return false;
    }
    for (const MainKey &entry : kMainKeys) {
        const QString key = QLatin1String(entry.name);
        const QString text = profile.value(kMain, key);
        if (entry.text) {
            state.*entry.text = text;
        } else if (!toInt16(text, &(state.*entry.number))) {
            if (error) *error = badNumber(kMain, key, text);
            return false;
        }
    }
    return true;
}

void write(const QString &key, const QString &value) {
    const MainKey &entry = findKey(key);
    writeIni(kMain, key, value, appState().iniPath);
    if (entry.text) {
        appState().*entry.text = value;
    } else {
        toInt16(value, &(appState().*entry.number));
    }
}

void write(const QString &key, int value) {
    write(key, QString::number(value));
}

QString tutorialUrl() {
    return readIni(kMain, QStringLiteral("TutorialUrl"), appState().iniPath).trimmed();
}

QString language() {
    return readIni(kMain, QStringLiteral("language"), appState().iniPath).trimmed();
}

}  // namespace settings
