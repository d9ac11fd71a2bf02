#pragma once

#include <QObject>
#include <QString>

#include <memory>

#include "sound/mediabackend.h"

// Plays one sound file for the draw screen, the music settings and the camera. The units are the
// program's own: volume in hundredths of a decibel (0 full, -10000 silence),
// positions and lengths in seconds, states 0 stopped, 1 playing, 2 paused.
// Nothing here ever shows a message: a file that cannot be played leaves the player silent.
class MusicPlayer : public QObject {
    Q_OBJECT
public:
    static constexpr int kSilence = -10000;
    static constexpr int kFullVolume = 0;

    // Takes its player from the media backend factory.
    explicit MusicPlayer(QObject *parent = nullptr);
    MusicPlayer(std::unique_ptr<MediaBackend> backend, QObject *parent = nullptr);
    ~MusicPlayer() override;

    QString fileName() const { return m_fileName; }
    // Stops the current file at once and opens this one. The volume starts over at full,
    // as with a freshly opened file.
    void setFileName(const QString &path);

    // Starts or resumes; a file that has played to its end starts again from the beginning.
    void play();
    void pause();
    void stop();

    int state() const;
    // Stopped, or played to the end.
    bool hasEnded() const;

    double position() const;
    // Clamped to 0..Duration. Set before the file's length is known, it is applied once it is.
    void setPosition(double seconds);
    double duration() const;

    int volume() const { return m_volume; }
    void setVolume(int hundredthsOfDb);

    // 10^(dB/20), with -10000 (and below) exactly silent.
    static float linearVolume(int hundredthsOfDb);

Q_SIGNALS:
    // The renumbered state after every change of the player.
    void stateChanged(int state);
    // The file has played to its end.
    void ended();

private:
    void applyPendingPosition();

    std::unique_ptr<MediaBackend> m_backend;
    QString m_fileName;
    int m_volume = kFullVolume;
    qint64 m_pendingPositionMs = -1;
};
