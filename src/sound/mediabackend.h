#pragma once

#include <QObject>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>

// The thin layer between MusicPlayer and the platform's player. MusicPlayer decides (units, ranges,
// rewinding); a backend only does what it is told, so tests replace it with a fake.
class MediaBackend : public QObject {
    Q_OBJECT
public:
    enum class State { Stopped, Playing, Paused };

    using QObject::QObject;

    // Stops what plays and opens the file; an empty path leaves the player empty.
    virtual void load(const QString &path) = 0;
    virtual void play() = 0;
    virtual void pause() = 0;
    virtual void stop() = 0;
    virtual State state() const = 0;
    // True once the file has played to its end (until it is played or positioned again).
    virtual bool atEnd() const = 0;
    virtual qint64 positionMs() const = 0;
    virtual void setPositionMs(qint64 position) = 0;
    // 0 while unknown or when the file could not be opened.
    virtual qint64 durationMs() const = 0;
    // Linear, 0 (silence) to 1 (full).
    virtual void setVolume(float volume) = 0;

Q_SIGNALS:
    void stateChanged();
    void durationChanged();
    void ended();
};

// Picks Qt Multimedia's FFmpeg backend unless QT_MEDIA_BACKEND names another. It decodes MP3 and
// WAV by itself, while the GStreamer backend of Qt 6.4 needs plugin packages and crashes when
// they are missing. Must run before the first media object of the process is made.
void chooseMediaBackend();

// Qt Multimedia: a QMediaPlayer with a QAudioOutput on the default device. Without a sound card
// it still opens files and reports their length and state.
std::unique_ptr<MediaBackend> createQtMediaBackend();

using MediaBackendFactory = std::function<std::unique_ptr<MediaBackend>()>;
// The factory every new MusicPlayer takes its backend from; an empty one restores Qt Multimedia.
void setMediaBackendFactory(MediaBackendFactory factory);
std::unique_ptr<MediaBackend> createMediaBackend();
