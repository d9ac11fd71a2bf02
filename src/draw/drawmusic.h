#pragma once

#include <QObject>
#include <QString>

#include "sound/musicsettings.h"

class MusicPlayer;

namespace draw {

// The win sound of the draw: the operator's own when one is chosen and present, else the chime
// that comes with the program.
QString winSoundPath(const music::Settings &settings, const QString &appPath);

// What the hall hears during a draw. The background music plays at rest and comes back where it
// was left; the start sound while the names roll; the win sound once a batch is stored; the
// parade music during the winner parade. Background, start and parade music loop; the win sound
// plays once and gives way to the background. A start, win or parade sound that is off or
// missing leaves what plays as it is, except where a moment names what follows instead. The mute
// and the minimised window hold for every file. A file's end is the player's `ended` signal.
class DrawMusic : public QObject {
    Q_OBJECT
public:
    // Takes its player from the media backend factory.
    explicit DrawMusic(QObject *parent = nullptr);
    ~DrawMusic() override;

    // The four sounds as the music settings hold them; winSound is the file of the win sound.
    void setSettings(const music::Settings &settings, const QString &winSound);

    // The stage is ready: the background music from its beginning.
    void startBackground();
    // A press drew names.
    void playStartSound();
    // A batch was stored: the win sound, or else the background, or else silence.
    void playWinSound();
    // After a cleared or cancelled batch or an empty press: the background, unless it plays.
    void backToBackground();
    void playParadeMusic();
    // The parade is over: the background, or else silence.
    void endParade();

    // Silence, as when the draw screen closes; nothing is current afterwards.
    void stop();

    void setMuted(bool muted);
    bool isMuted() const { return m_volume != kFullVolume; }
    // Minimised, what plays pauses; restored, it goes on.
    void setMinimised(bool minimised);

    // The file last started, empty when none.
    QString current() const { return m_current; }

private:
    void onEnded();
    bool isOn(music::Slot slot) const;
    QString fileOf(music::Slot slot) const;
    bool isCurrent(music::Slot slot) const;
    void play(const QString &path, double fromSeconds);
    void playFromStart(const QString &path) { play(path, 0); }
    void resumeBackground();
    void rememberBackgroundPosition();

    static constexpr int kFullVolume = 0;

    MusicPlayer *m_player = nullptr;
    music::Settings m_settings;
    QString m_winSound;
    QString m_current;
    double m_backgroundPosition = 0;  // whole seconds
    int m_volume = kFullVolume;
    bool m_pausedForMinimise = false;
};

}  // namespace draw
