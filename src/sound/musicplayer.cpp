#include "sound/musicplayer.h"

#include <QtMath>

#include <algorithm>

MusicPlayer::MusicPlayer(QObject *parent) : MusicPlayer(createMediaBackend(), parent) {}

MusicPlayer::MusicPlayer(std::unique_ptr<MediaBackend> backend, QObject *parent)
    : QObject(parent), m_backend(std::move(backend)) {
    connect(m_backend.get(), &MediaBackend::stateChanged, this,
            [this] { Q_EMIT stateChanged(State()); });
    connect(m_backend.get(), &MediaBackend::ended, this, &MusicPlayer::ended);
    connect(m_backend.get(), &MediaBackend::durationChanged, this,
            &MusicPlayer::applyPendingPosition);
}

MusicPlayer::~MusicPlayer() {
    if (m_backend) m_backend->stop();
}

void MusicPlayer::setFileName(const QString &path) {
    m_fileName = path;
    m_pendingPositionMs = -1;
    m_backend->load(path);
    m_volume = kFullVolume;
    m_balance = 0;
    m_speed = 1.0;
    m_backend->setVolume(1.0f);
    m_backend->setRate(1.0);
}

void MusicPlayer::Play() {
    if (m_fileName.isEmpty()) return;
    const qint64 duration = m_backend->durationMs();
    if (m_backend->atEnd() || (duration > 0 && m_backend->positionMs() >= duration))
        m_backend->setPositionMs(0);
    m_backend->play();
}

void MusicPlayer::Pause() {
    m_backend->pause();
}

void MusicPlayer::StopPlaying() {
    m_backend->stop();
}

int MusicPlayer::State() const {
    switch (m_backend->state()) {
        case MediaBackend::State::Playing:
            return 1;
        case MediaBackend::State::Paused:
            return 2;
        default:
            return 0;
    }
}

bool MusicPlayer::hasEnded() const {
    const qint64 duration = m_backend->durationMs();
    return State() == 0 || m_backend->atEnd() ||
           (duration > 0 && m_backend->positionMs() >= duration);
}

double MusicPlayer::Position() const {
    const qint64 ms = m_pendingPositionMs >= 0 ? m_pendingPositionMs : m_backend->positionMs();
    return ms / 1000.0;
}

void MusicPlayer::setPosition(double seconds) {
    const qint64 wanted = qMax<qint64>(0, qRound64(seconds * 1000.0));
    const qint64 duration = m_backend->durationMs();
    if (duration <= 0 && !m_fileName.isEmpty()) {
        m_pendingPositionMs = wanted;
        return;
    }
    m_pendingPositionMs = -1;
    m_backend->setPositionMs(qMin(wanted, qMax<qint64>(0, duration)));
}

void MusicPlayer::applyPendingPosition() {
    if (m_pendingPositionMs < 0 || m_backend->durationMs() <= 0) return;
    const qint64 position = qMin(m_pendingPositionMs, m_backend->durationMs());
    m_pendingPositionMs = -1;
    m_backend->setPositionMs(position);
}

double MusicPlayer::Duration() const {
    return m_backend->durationMs() / 1000.0;
}

void MusicPlayer::setSpeed(double speed) {
    m_speed = std::max(speed, kMinSpeed);
    m_backend->setRate(m_speed);
}

void MusicPlayer::setVolume(int hundredthsOfDb) {
    m_volume = std::clamp(hundredthsOfDb, kSilence, kFullVolume);
    m_backend->setVolume(linearVolume(m_volume));
}

void MusicPlayer::setBalance(int balance) {
    m_balance = std::clamp(balance, -10000, 10000);
}

bool MusicPlayer::HasAudio() const {
    return m_backend->hasAudio();
}

bool MusicPlayer::HasVideo() const {
    return m_backend->hasVideo();
}

int MusicPlayer::Width() const {
    return HasVideo() ? m_backend->videoSize().width() : 0;
}

int MusicPlayer::Height() const {
    return HasVideo() ? m_backend->videoSize().height() : 0;
}

float MusicPlayer::linearVolume(int hundredthsOfDb) {
    if (hundredthsOfDb <= kSilence) return 0.0f;
    if (hundredthsOfDb >= kFullVolume) return 1.0f;
    return static_cast<float>(qPow(10.0, hundredthsOfDb / 2000.0));
}
