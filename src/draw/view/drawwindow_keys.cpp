// Keys the stage reports, the scroll samples and the stop guard.

#include <QLabel>

#include "core/appstate.h"
#include "draw/drawmusic.h"
#include "draw/engine.h"
#include "draw/hotkeyaction.h"
#include "draw/paraderunner.h"
#include "draw/view/drawwindow.h"
#include "stage/protocol.h"

namespace {

// Keys with a fixed meaning on the draw screen, in the stored key numbering.
constexpr int kEsc = 27;
constexpr int kLeft = 37;
constexpr int kRight = 39;

}  // namespace

void DrawWindow::onHotkey(int keyCode) {
    using draw::HotkeyAction;
    const draw::DrawState state = m_engine->state();
    const bool atRest = state == draw::Idle || state == draw::Result;
    if (keyCode == kEsc) {
        if (state != draw::Running) close();
        return;
    }
    if (keyCode == kLeft || keyCode == kRight) {
        if (state != draw::Running && state != draw::Playback)
            m_engine->stepAward(keyCode == kRight, false);
        return;
    }
    switch (draw::hotkeyAction(keyCode, m_keyCodes, state, m_engine->isLanding())) {
        case HotkeyAction::Start:
        case HotkeyAction::Stop:
            // Outside the parade the stage starts and stops by itself and answers with btnclick.
            if (state == draw::Playback) m_parade->toggleScroll();
            break;
        case HotkeyAction::Clear:
            if (state == draw::Running) send(proto::vbCallAsClear, proto::yes);
            break;
        case HotkeyAction::Cancel:
            if (state == draw::Result) cancelBatch();
            break;
        case HotkeyAction::Export:
            if (atRest) onStageButton(proto::btn::btnLstOut);
            break;
        case HotkeyAction::Print:
            if (atRest) printResults();
            break;
        case HotkeyAction::Parade:
            if (state == draw::Playback)
                requestParade(false);
            else if (state != draw::Running)
                requestParade(true);
            break;
        case HotkeyAction::Sound:
            send(proto::vbCallMusic, m_music->isMuted() ? proto::no : proto::yes);
            break;
        case HotkeyAction::Screen:
            send(proto::vbCallScreen, m_isFullScreen ? proto::no : proto::yes);
            break;
        case HotkeyAction::None:
            break;
    }
}

void DrawWindow::pushScrollSample() {
    m_engine->pushScrollSample();
}

QString DrawWindow::stopGuardText(int secondsLeft) {
    return tr("您按键太快了(%1秒!!").arg(secondsLeft);
}

void DrawWindow::onStopGuardTick() {
    const int seconds = appState().timeProtectNum;
    if (m_stopGuardElapsed < seconds) {
        ++m_stopGuardElapsed;
        m_stopGuardLabel->setText(stopGuardText(seconds - m_stopGuardElapsed));
        return;
    }
    m_stopGuardPanel->hide();
    m_stopGuardElapsed = 0;
    m_stopGuardTimer.stop();
}
