// The draw's music and the parade of all winners.

#include <QSqlQuery>

#include <cmath>

#include "core/appstate.h"
#include "core/helpers.h"
#include "core/profile.h"
#include "core/settings.h"
#include "core/store.h"
#include "design/payloads.h"
#include "design/templatemodel.h"
#include "draw/view/drawwindow.h"
#include "sound/builtinsounds.h"
#include "sound/musicplayer.h"
#include "sound/musicsettings.h"
#include "stage/protocol.h"

namespace draw {

MusicSettings readMusicSettings(const QString &appPath) {
    const music::Settings stored = music::readSettings(appPath);
    MusicSettings settings;
    settings.isBgMusic = stored[music::Background].on;
    settings.isStartMusic = stored[music::Start].on;
    settings.isLuckMusic = stored[music::Luck].on;
    settings.isPlayMusic = stored[music::Play].on;
    settings.bgFile = stored[music::Background].path;
    settings.startFile = stored[music::Start].path;
    settings.playFile = stored[music::Play].path;
    // The operator's own win sound when one is chosen and present, else the chime that comes
    // with the program.
    settings.luckFile = stored[music::Luck].path;
    if (settings.luckFile.isEmpty()) settings.luckFile = appPath + sound::kWinSound;
    return settings;
}

}  // namespace draw

// --- Music ----------------------------------------------------------------------------------

void DrawWindow::readMusic() {
    m_musicSettings = draw::readMusicSettings(appState().appPath);
}

void DrawWindow::startBackgroundMusic() {
    if (!m_musicSettings.isBgMusic || !fileExists(m_musicSettings.bgFile)) return;
    m_bgPosition = 0;
    playFromStart(m_musicSettings.bgFile);
}

void DrawWindow::playFromStart(const QString &path) {
    m_music->setFileName(path);
    m_music->setVolume(m_volume);
    m_music->setPosition(0);
    m_music->play();
    m_currentFile = path;
    if (!m_tmM.isActive()) m_tmM.start();
}

void DrawWindow::resumeBackground() {
    const QString &bg = m_musicSettings.bgFile;
    if (!fileExists(bg)) return;
    m_music->setFileName(bg);
    m_music->setVolume(m_volume);
    m_music->setPosition(m_bgPosition);
    m_music->play();
    m_currentFile = bg;
    if (!m_tmM.isActive()) m_tmM.start();
}

void DrawWindow::backToBackground() {
    if (m_musicSettings.isBgMusic && m_currentFile != m_musicSettings.bgFile) resumeBackground();
}

void DrawWindow::stopMusic() {
    m_music->stop();
    m_tmM.stop();
}

void DrawWindow::setVolumeLevel(int volume) {
    m_volume = volume;
    m_music->setVolume(volume);
}

void DrawWindow::pauseForMinimise(bool minimised) {
    if (minimised) {
        m_music->pause();
        m_tmM.stop();
    } else if (!m_currentFile.isEmpty()) {
        m_music->play();
        m_tmM.start();
    }
}

void DrawWindow::tmM_Timer() {
    if (!m_music) return;
    const draw::MusicSettings &music = m_musicSettings;
    if (!m_currentFile.isEmpty() && m_currentFile == music.bgFile)
        m_bgPosition = std::floor(m_music->position());
    const bool ended = m_music->hasEnded() ||
                       (m_music->duration() > 0 && m_music->position() >= m_music->duration());
    if (!ended || m_currentFile.isEmpty()) return;
    m_music->stop();
    if (m_currentFile == music.bgFile || m_currentFile == music.startFile ||
        m_currentFile == music.playFile) {
        // The background, start and parade music loop.
        if (m_currentFile == music.bgFile) m_bgPosition = 0;
        playFromStart(m_currentFile);
        return;
    }
    // The win sound has ended: back to the background where it was left.
    if (music.isBgMusic && fileExists(music.bgFile))
        resumeBackground();
    else
        m_currentFile.clear();
}

// --- The parade -----------------------------------------------------------------------------

void DrawWindow::startPlayback() {
    m_session.drawState = draw::Playback;
    // Every parade starts scrolling, whatever the last one was left at.
    m_isScrollOn = true;
    m_playCursor = 0;
    cmdPlayLuck();
}

void DrawWindow::cmdPlayLuck() {
    playNextAward();
    if (m_musicSettings.isPlayMusic && fileExists(m_musicSettings.playFile))
        playFromStart(m_musicSettings.playFile);
}

void DrawWindow::playNextAward() {
    send(proto::changBtn, proto::buttons::luckplay);
    QSqlDatabase db = store::mainConn();
    QSqlQuery award(db);
    award.prepare(
        QStringLiteral("SELECT ID, OrderNum, JXName, JPName FROM JPList "
                       "WHERE OrderNum>? ORDER BY OrderNum ASC LIMIT 1"));
    award.addBindValue(m_playCursor);
    if (!award.exec() || !award.next()) {
        send(proto::vbStartScroll, proto::yes);
        return;
    }
    const int id = award.value(0).toInt();
    const int orderNum = award.value(1).toInt();
    const QString awardName = award.value(2).toString();
    const QString prizeName = award.value(3).toString();
    award.finish();

    const AppState &state = appState();
    if (m_playStyle.isEmpty()) {
        const design::PlayRow title = design::readPlay(m_templateDb, design::rows::playTitle);
        const design::PlayRow name = design::readPlay(m_templateDb, design::rows::playName);
        m_playStyle = design::playbackStylePayload(
            design::drawPlayback(title, name, state.bgW, state.bgH, state.luckType,
                                 state.maxImgWidth, state.maxImgHeight));
    }
    QSqlQuery winners(db);
    winners.setForwardOnly(true);
    winners.prepare(
        QStringLiteral("SELECT UserName, ID FROM UserList WHERE JxID > '' AND JxID "
                       "LIKE ? ORDER BY +UpdateTime DESC, ID ASC"));
    winners.addBindValue(store::awardPattern(id));
    winners.exec();
    QStringList names;
    QList<int> ids;
    while (winners.next()) {
        names << design::safeName(winners.value(0).toString());
        ids << winners.value(1).toInt();
    }
    const QString &variable = m_playCursor == 0 ? proto::vbLuckPlay : proto::vbLuckPlay1;
    send(variable, design::luckPlayPayload(m_playStyle, awardName, prizeName, state.playTitleType,
                                           m_playIndex, names, ids));
    m_playCursor = orderNum;
    ++m_playIndex;
}

void DrawWindow::toggleScroll() {
    m_isScrollOn = !m_isScrollOn;
    send(proto::vbStartScroll, m_isScrollOn ? proto::yes : proto::no);
}

void DrawWindow::onLuckPlayStop() {
    if (m_musicSettings.isBgMusic && fileExists(m_musicSettings.bgFile))
        resumeBackground();
    else
        stopMusic();
    m_session.drawState = draw::Idle;
}
