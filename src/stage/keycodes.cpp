#include "stage/keycodes.h"

#include <QHash>

namespace stagekeys {

namespace {

const QHash<int, int> &namedKeys() {
    static const QHash<int, int> table = {
        {Qt::Key_Backspace, 8},    {Qt::Key_Tab, 9},
        {Qt::Key_Return, 13},      {Qt::Key_Enter, 13},
        {Qt::Key_Shift, 16},       {Qt::Key_Control, 17},
        {Qt::Key_Alt, 18},         {Qt::Key_Pause, 19},
        {Qt::Key_CapsLock, 20},    {Qt::Key_Escape, 27},
        {Qt::Key_Space, 32},       {Qt::Key_PageUp, 33},
        {Qt::Key_PageDown, 34},    {Qt::Key_End, 35},
        {Qt::Key_Home, 36},        {Qt::Key_Left, 37},
        {Qt::Key_Up, 38},          {Qt::Key_Right, 39},
        {Qt::Key_Down, 40},        {Qt::Key_Insert, 45},
        {Qt::Key_Delete, 46},      {Qt::Key_Asterisk, 106},
        {Qt::Key_Plus, 107},       {Qt::Key_Minus, 109},
        {Qt::Key_Period, 110},     {Qt::Key_Slash, 111},
        {Qt::Key_Semicolon, 186},  {Qt::Key_Equal, 187},
        {Qt::Key_Comma, 188},      {Qt::Key_BracketLeft, 219},
        {Qt::Key_Backslash, 220},  {Qt::Key_BracketRight, 221},
        {Qt::Key_Apostrophe, 222}, {Qt::Key_QuoteLeft, 192},
    };
    return table;
}

}  // namespace

int windowsKeyCode(int qtKey, Qt::KeyboardModifiers modifiers) {
    const bool keypad = modifiers.testFlag(Qt::KeypadModifier);
    if (qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9) return (keypad ? 96 : 48) + (qtKey - Qt::Key_0);
    if (qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z) return 65 + (qtKey - Qt::Key_A);
    if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24) return 112 + (qtKey - Qt::Key_F1);
    // Punctuation typed on the keypad keeps the keypad's own codes; on the main block the
    // same Qt keys are the OEM keys.
    if (!keypad && (qtKey == Qt::Key_Minus || qtKey == Qt::Key_Period || qtKey == Qt::Key_Slash))
        return qtKey == Qt::Key_Minus ? 189 : qtKey == Qt::Key_Period ? 190 : 191;
    return namedKeys().value(qtKey, -1);
}

}  // namespace stagekeys
