// Keys the stage reports, the scroll samples and the stop guard.

#include <QLabel>

#include "core/appstate.h"
#include "draw/view/drawwindow.h"
#include "stage/protocol.h"

namespace draw {

namespace {

const QStringList &keyNames() {
    static const QStringList names{
        QStringLiteral("starKey"),     QStringLiteral("stopKey"),   QStringLiteral("clearKey"),
        QStringLiteral("cancelKey"),   QStringLiteral("lstOutKey"), QStringLiteral("lstPrtKey"),
        QStringLiteral("playLuckKey"), QStringLiteral("soundKey"),  QStringLiteral("screenKey")};
    return names;
}

constexpr int kEsc = 27;
constexpr int kLeft = 37;
constexpr int kRight = 39;

}  // namespace

QString keyClass(int code, const QList<int> &codes, int drawState) {
    // Rows without a key hold 0 or -1; no key the stage reports may match them.
    if (code <= 0) return QString();
    const auto codeOf = [&codes](int row) { return row < codes.size() ? codes[row] : 0; };
    QString found;
    if (code == codeOf(0))
        found = (codeOf(1) == code && drawState == Running) ? keyNames()[1] : keyNames()[0];
    else if (code == codeOf(1))
        found = keyNames()[1];
    for (int row = 2; row < keyNames().size(); ++row) {
        if (code == codeOf(row)) {
            found = keyNames()[row];
            break;
        }
    }
    return found;
}

}  // namespace draw

void DrawWindow::SubKey(int keyCode) {
    const int state = m_session.drawState;
    if (keyCode == draw::kEsc) {
        if (state != draw::Running) close();
        return;
    }
    if (keyCode == draw::kLeft || keyCode == draw::kRight) {
        if (state != draw::Running && state != draw::Playback)
            m_engine->stepAward(keyCode == draw::kRight, false);
        return;
    }
    const QString kind = draw::keyClass(keyCode, m_keyCodes, state);
    if (kind == QLatin1String("starKey") || kind == QLatin1String("stopKey")) {
        // Outside the parade the stage starts and stops by itself and answers with btnclick.
        if (state == draw::Playback) toggleScroll();
    } else if (kind == QLatin1String("clearKey")) {
        if (state == draw::Running) send(proto::vbCallAsClear, proto::yes);
    } else if (kind == QLatin1String("cancelKey")) {
        if (state == draw::Result) cmdCancel();
    } else if (kind == QLatin1String("lstOutKey")) {
        if (state == draw::Idle || state == draw::Result) onBtnClick(proto::btn::btnLstOut);
    } else if (kind == QLatin1String("lstPrtKey")) {
        if (state == draw::Idle || state == draw::Result) printForState();
    } else if (kind == QLatin1String("playLuckKey")) {
        if (state == draw::Playback)
            vbCallPlay(proto::no);
        else if (state != draw::Running)
            vbCallPlay();
    } else if (kind == QLatin1String("soundKey")) {
        send(proto::vbCallMusic, m_volume != 0 ? proto::no : proto::yes);
    } else if (kind == QLatin1String("screenKey")) {
        send(proto::vbCallScreen, m_isFullScreen ? proto::no : proto::yes);
    }
}

void DrawWindow::vbCallPlay(const QString &flag) {
    send(proto::vbCallPlay, flag == proto::no ? proto::no : proto::yes);
}

void DrawWindow::tmAS_Timer() {
    // Decorative only: the winners were decided at Start.
    m_engine->pushScrollSample();
}

void DrawWindow::tmDelay_Timer() {
    const int seconds = appState().timeProtectNum;
    if (m_delayCount < seconds) {
        ++m_delayCount;
        m_labP->setText(QStringLiteral("您按键太快了(") + QString::number(seconds - m_delayCount) +
                        QStringLiteral("秒!!"));
        return;
    }
    m_picInfo->hide();
    m_delayCount = 0;
    m_tmDelay.stop();
}
