#pragma once

#include <Qt>

namespace stagekeys {

// The key code a hotkey is stored under: the numbering of the keyboard table in KeyBoard
// (letters 65-90, digits 48-57, keypad digits 96-105, Enter 13, arrows 37-40...). Keys without
// a stored code give -1, so they can never match a configured hotkey.
int windowsKeyCode(int qtKey, Qt::KeyboardModifiers modifiers);

}  // namespace stagekeys
