#pragma once

#include <QObject>
#include <QString>

#include <memory>

#include "sound/mediabackend.h"

// Plays one sound file for the draw screen, the music settings and the camera. The units are the
// program's own: volume in hundredths of a decibel (0 full, -10000 silence), balance -10000 (left)
// to 10000 (right), positions and lengths in seconds, states 0 stopped, 1 playing, 2 paused.
// Nothing here ever shows a message: a file that cannot be played leaves the player silent.
class MusicPlayer : public QObject {
    Q_OBJECT
public:
    static constexpr int kSilence = -10000;
    static constexpr int kFullVolume = 0;
    static constexpr double kMinSpeed = 0.1;

    // Takes its player from the media backend factory.
    explicit MusicPlayer(QObject *parent = nullptr);
    MusicPlayer(std::unique_ptr<MediaBackend> backend, QObject *parent = nullptr);
    ~MusicPlayer() override;

    QString fileName() const { return m_fileName; }
    // Stops the current file at once and opens this one. Volume, balance and speed start over
    // at full, centre and 1, as with a freshly opened file.
    void setFileName(const QString &path);

    // Starts or resumes; a file that has played to its end starts again from the beginning.
    void Play();
    void Pause();
    void StopPlaying();

    int State() const;
    // Stopped or played to the end: what the timers that loop the music look for.
    bool hasEnded() const;

    double Position() const;
    // Clamped to 0..Duration. Set before the file's length is known, it is applied once it is.
    void setPosition(double seconds);
    double Duration() const;

    double Speed() const { return m_speed; }
    void setSpeed(double speed);
    int Volume() const { return m_volume; }
    void setVolume(int hundredthsOfDb);
    // Kept for callers; the Qt audio output has no balance, so the sound stays centred.
    int Balance() const { return m_balance; }
    void setBalance(int balance);

    bool HasAudio() const;
    bool HasVideo() const;
    int Width() const;
    int Height() const;

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
    int m_balance = 0;
    double m_speed = 1.0;
    qint64 m_pendingPositionMs = -1;
};
