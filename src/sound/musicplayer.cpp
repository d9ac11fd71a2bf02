#include "sound/musicplayer.h"

#include <QtMath>

#include <algorithm>

MusicPlayer::MusicPlayer(QObject *parent) : MusicPlayer(createMediaBackend(), parent) {}

MusicPlayer::MusicPlayer(std::unique_ptr<MediaBackend> backend, QObject *parent)
    : QObject(parent), m_backend(std::move(backend)) {
    connect(m_backend.get(), &MediaBackend::stateChanged, this,
            [this] { Q_EMIT stateChanged(state()); });
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
    m_backend->setVolume(1.0f);
}

void MusicPlayer::play() {
    if (m_fileName.isEmpty()) return;
    const qint64 duration = m_backend->durationMs();
    if (m_backend->atEnd() || (duration > 0 && m_backend->positionMs() >= duration))
        m_backend->setPositionMs(0);
    m_backend->play();
}

void MusicPlayer::pause() {
    m_backend->pause();
}

void MusicPlayer::stop() {
    m_backend->stop();
}

int MusicPlayer::state() const {
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
    return state() == 0 || m_backend->atEnd() ||
           (duration > 0 && m_backend->positionMs() >= duration);
}

double MusicPlayer::position() const {
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

double MusicPlayer::duration() const {
    return m_backend->durationMs() / 1000.0;
}

void MusicPlayer::setVolume(int hundredthsOfDb) {
    m_volume = std::clamp(hundredthsOfDb, kSilence, kFullVolume);
    m_backend->setVolume(linearVolume(m_volume));
}

float MusicPlayer::linearVolume(int hundredthsOfDb) {
    if (hundredthsOfDb <= kSilence) return 0.0f;
    if (hundredthsOfDb >= kFullVolume) return 1.0f;
    return static_cast<float>(qPow(10.0, hundredthsOfDb / 2000.0));
}
