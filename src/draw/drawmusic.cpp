#include "draw/drawmusic.h"

#include <cmath>

#include "core/helpers.h"
#include "sound/builtinsounds.h"
#include "sound/musicplayer.h"

namespace draw {

QString winSoundPath(const music::Settings &settings, const QString &appPath) {
    const QString &own = settings[music::Luck].path;
    return own.isEmpty() ? appPath + sound::kWinSound : own;
}

DrawMusic::DrawMusic(QObject *parent) : QObject(parent), m_player(new MusicPlayer(this)) {
    connect(m_player, &MusicPlayer::ended, this, &DrawMusic::onEnded);
}

DrawMusic::~DrawMusic() = default;

void DrawMusic::setSettings(const music::Settings &settings, const QString &winSound) {
    m_settings = settings;
    m_winSound = winSound;
}

bool DrawMusic::isOn(music::Slot slot) const {
    return m_settings[slot].on;
}

QString DrawMusic::fileOf(music::Slot slot) const {
    return slot == music::Luck ? m_winSound : m_settings[slot].path;
}

bool DrawMusic::isCurrent(music::Slot slot) const {
    return !m_current.isEmpty() && m_current == fileOf(slot);
}

void DrawMusic::startBackground() {
    if (!isOn(music::Background) || !fileExists(fileOf(music::Background))) return;
    m_backgroundPosition = 0;
    playFromStart(fileOf(music::Background));
}

void DrawMusic::playStartSound() {
    if (isOn(music::Start) && fileExists(fileOf(music::Start))) playFromStart(fileOf(music::Start));
}

void DrawMusic::playWinSound() {
    if (isOn(music::Luck)) {
        if (fileExists(m_winSound)) playFromStart(m_winSound);
    } else if (isOn(music::Background)) {
        resumeBackground();
    } else {
        stop();
    }
}

void DrawMusic::backToBackground() {
    if (isOn(music::Background)) resumeBackground();
}

void DrawMusic::playParadeMusic() {
    if (isOn(music::Play) && fileExists(fileOf(music::Play))) playFromStart(fileOf(music::Play));
}

void DrawMusic::endParade() {
    if (isOn(music::Background) && fileExists(fileOf(music::Background)))
        resumeBackground();
    else
        stop();
}

void DrawMusic::setMuted(bool muted) {
    m_volume = muted ? MusicPlayer::kSilence : kFullVolume;
    m_player->setVolume(m_volume);
}

void DrawMusic::setMinimised(bool minimised) {
    if (minimised) {
        m_pausedForMinimise = m_player->state() == 1;
        if (m_pausedForMinimise) m_player->pause();
    } else if (m_pausedForMinimise) {
        m_pausedForMinimise = false;
        m_player->play();
    }
}

void DrawMusic::onEnded() {
    if (m_current.isEmpty()) return;
    if (isCurrent(music::Background) || isCurrent(music::Start) || isCurrent(music::Play)) {
        if (isCurrent(music::Background)) m_backgroundPosition = 0;
        playFromStart(m_current);
        return;
    }
    // The win sound has ended: back to the background where it was left.
    if (isOn(music::Background) && fileExists(fileOf(music::Background)))
        resumeBackground();
    else
        m_current.clear();
}

void DrawMusic::resumeBackground() {
    const QString background = fileOf(music::Background);
    if (!fileExists(background)) return;
    // Playing already, or paused by a minimised window that will resume it.
    if (isCurrent(music::Background) && m_player->state() != 0) return;
    play(background, m_backgroundPosition);
}

void DrawMusic::rememberBackgroundPosition() {
    if (isCurrent(music::Background)) m_backgroundPosition = std::floor(m_player->position());
}

void DrawMusic::play(const QString &path, double fromSeconds) {
    if (path != m_current) rememberBackgroundPosition();
    m_player->setFileName(path);
    // A new file starts at full volume: the mute is applied again.
    m_player->setVolume(m_volume);
    m_player->setPosition(fromSeconds);
    m_player->play();
    m_current = path;
    m_pausedForMinimise = false;
}

void DrawMusic::stop() {
    rememberBackgroundPosition();
    // Nothing is current any more: a player that still reports the end of the stopped file
    // must not start it again.
    m_current.clear();
    m_player->stop();
}

}  // namespace draw
