#include "sound/mediabackend.h"

#include <QAudioOutput>
#include <QMediaMetaData>
#include <QMediaPlayer>
#include <QUrl>

namespace {

class QtMediaBackend : public MediaBackend {
public:
    QtMediaBackend() {
        m_player.setAudioOutput(&m_output);
        connect(&m_player, &QMediaPlayer::playbackStateChanged, this, &MediaBackend::stateChanged);
        connect(&m_player, &QMediaPlayer::durationChanged, this, &MediaBackend::durationChanged);
        connect(&m_player, &QMediaPlayer::mediaStatusChanged, this,
                [this](QMediaPlayer::MediaStatus status) {
                    if (status == QMediaPlayer::EndOfMedia) Q_EMIT ended();
                });
    }

    void load(const QString &path) override {
        m_player.stop();
        m_player.setSource(path.isEmpty() ? QUrl() : QUrl::fromLocalFile(path));
    }
    void play() override { m_player.play(); }
    void pause() override { m_player.pause(); }
    void stop() override { m_player.stop(); }
    State state() const override {
        switch (m_player.playbackState()) {
            case QMediaPlayer::PlayingState:
                return State::Playing;
            case QMediaPlayer::PausedState:
                return State::Paused;
            default:
                return State::Stopped;
        }
    }
    bool atEnd() const override { return m_player.mediaStatus() == QMediaPlayer::EndOfMedia; }
    qint64 positionMs() const override { return m_player.position(); }
    void setPositionMs(qint64 position) override { m_player.setPosition(position); }
    qint64 durationMs() const override { return m_player.duration(); }
    void setVolume(float volume) override { m_output.setVolume(volume); }

private:
    QMediaPlayer m_player;
    QAudioOutput m_output;
};

MediaBackendFactory &factory() {
    static MediaBackendFactory current = createQtMediaBackend;
    return current;
}

}  // namespace

void chooseMediaBackend() {
    if (!qEnvironmentVariableIsSet("QT_MEDIA_BACKEND")) qputenv("QT_MEDIA_BACKEND", "ffmpeg");
}

std::unique_ptr<MediaBackend> createQtMediaBackend() {
    chooseMediaBackend();
    return std::make_unique<QtMediaBackend>();
}

void setMediaBackendFactory(MediaBackendFactory replacement) {
    factory() = replacement ? std::move(replacement) : MediaBackendFactory(createQtMediaBackend);
}

std::unique_ptr<MediaBackend> createMediaBackend() {
    return factory()();
}
