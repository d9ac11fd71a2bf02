#include "draw/hotkeyaction.h"

namespace draw {

namespace {

HotkeyAction classify(int code, const QList<int> &codes, DrawState state) {
    const auto codeOf = [&codes](int row) { return row < codes.size() ? codes[row] : 0; };
    constexpr int kStartRow = int(HotkeyAction::Start);
    constexpr int kStopRow = int(HotkeyAction::Stop);
    for (int row = int(HotkeyAction::Clear); row <= int(HotkeyAction::Screen); ++row)
        if (code == codeOf(row)) return HotkeyAction(row);
    if (code == codeOf(kStartRow))
        return codeOf(kStopRow) == code && state == Running ? HotkeyAction::Stop
                                                            : HotkeyAction::Start;
    if (code == codeOf(kStopRow)) return HotkeyAction::Stop;
    return HotkeyAction::None;
}

}  // namespace

HotkeyAction hotkeyAction(int code, const QList<int> &codes, DrawState state, bool landing) {
    // Rows without a key hold 0 or -1; no key the stage reports may match them.
    if (code <= 0) return HotkeyAction::None;
    const HotkeyAction action = classify(code, codes, state);
    if (landing && action != HotkeyAction::Sound && action != HotkeyAction::Screen)
        return HotkeyAction::None;
    return action;
}

}  // namespace draw
