#pragma once

#include <QList>
#include <QSqlDatabase>
#include <QString>
#include <Qt>

#include "core/language.h"

// The nine draw-screen hotkeys as stored in KeyBoard: key codes in the numbering the stored data
// uses (letters 65-90, digits 48-57, keypad digits 96-105, Enter 13, Space 32, arrows 37-40...),
// -1 for "no key".
namespace hotkeys {

constexpr int kRowCount = 9;
constexpr int kNoKey = -1;

inline const TranslatedText kUnsupported{"hotkeys", QT_TRANSLATE_NOOP("hotkeys", "不支持该键")};
inline const TranslatedText kClash{"hotkeys", QT_TRANSLATE_NOOP("hotkeys", "重复,保存失效")};
inline const TranslatedText kNone{"hotkeys", QT_TRANSLATE_NOOP("hotkeys", "无")};

// The text shown for a key code; kUnsupported for every code the draw cannot use, on purpose
// also left and right (they step between awards) and the function keys.
QString keyName(int code);
inline bool isSupported(int code) {
    return keyName(code) != kUnsupported;
}

// The stored code of a Qt key, in the numbering the stage reports keys in (one table, in
// stage/keycodes.h); keypad digits have their own codes. -1 for a key with none.
int keyCodeFromQt(int qtKey, Qt::KeyboardModifiers modifiers);

// The stored codes by row (ID - 1); rows missing from the table read 0.
QList<int> loadKeys(QSqlDatabase db);

enum class SaveOutcome { Skipped, Saved, Clash };

// Writes each row's code in order, each against what the table holds at that moment. Code 0
// skips the row. Start and stop (rows 0 and 1) may share a key with each other but not with the
// other seven, which must differ from all eight; a row that clashes loses its key (-1).
QList<SaveOutcome> saveKeys(const QList<int> &codes, QSqlDatabase db);

}  // namespace hotkeys
