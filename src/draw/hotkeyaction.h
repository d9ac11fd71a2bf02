#pragma once

#include <QList>

#include "draw/session.h"

namespace draw {

// What a configured hotkey asks for, in the order of the nine rows of the KeyBoard table.
enum class HotkeyAction {
    None = -1,
    Start,
    Stop,
    Clear,
    Cancel,
    Export,
    Print,
    Parade,
    Sound,
    Screen
};

// The action of a key code the stage reported. `codes` are the nine configured codes by row. One
// key may serve for start and stop: while the draw runs it stops. Among the seven other rows the
// first match wins, and it wins over start and stop. While the winners land (`landing`) only the
// sound and screen keys act.
HotkeyAction hotkeyAction(int code, const QList<int> &codes, DrawState state, bool landing);

}  // namespace draw
