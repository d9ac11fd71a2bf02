#pragma once

#include <QList>
#include <QSqlDatabase>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

#include "draw/engine.h"
#include "draw/session.h"

class QLabel;
class QPlainTextEdit;
class Stage;
class MusicPlayer;

namespace draw {

// The class of a hotkey the stage reported: "starKey", "stopKey", "clearKey", "cancelKey",
// "lstOutKey", "lstPrtKey", "playLuckKey", "soundKey", "screenKey", or empty. `codes` are the nine
// codes in that order. One key may serve for start and stop: while the draw runs it stops.
QString keyClass(int code, const QList<int> &codes, int drawState);

// The four draw sounds and whether each is on, as config.ini's music section holds them.
struct MusicSettings {
    bool isBgMusic = false;
    bool isStartMusic = false;
    bool isLuckMusic = false;
    bool isPlayMusic = false;
    QString bgFile;  // absolute paths; empty when not set
    QString startFile;
    QString luckFile;  // the chosen win sound, or the built-in one
    QString playFile;
};
MusicSettings readMusicSettings(const QString &appPath);

}  // namespace draw

// The full-screen window of the draw. The stage shows everything; this window owns the draw's
// state, the template connection and the music, answers the stage's commands and runs the three
// timers: the scroll samples (tmAS), the stop guard (tmDelay) and the music supervision (tmM).
class DrawWindow : public QWidget {
    Q_OBJECT
public:
    explicit DrawWindow(QWidget *parent = nullptr);
    ~DrawWindow() override;

    // Routines the award dialogs call back into.
    bool loadJx(int id, bool resetButtons);
    void reFrashJx(bool hideBlocks, bool resetButtons);
    void defulteJx(bool resetButtons);
    // "no" cancels the stage's playback button; anything else presses it.
    void vbCallPlay(const QString &flag = QString());
    // The parade of all awards from the first.
    void startPlayback();
    void SubKey(int keyCode);
    void onStageCommand(const QString &command, const QString &args);

    // The hidden buttons, driven by the stage's buttons and by keys.
    void cmdStart();
    void cmdStop();
    void cmdClear();
    void cmdCancel();
    void cmdPlayLuck();
    void cmdPrint();
    void cmdGiveUp();
    void cmdAddLuck();

    // Dialogs other screens provide; until then each shows a notice.
    std::function<void(DrawWindow &)> openGiveUp;
    std::function<void(DrawWindow &)> openAddAward;
    std::function<void(DrawWindow &)> openAskEnd;

    // Timer handlers, also called directly by tests.
    void tmAS_Timer();
    void tmDelay_Timer();
    void tmM_Timer();

    void setFullScreenMode(bool fullScreen);
    bool isFullScreenMode() const { return m_isFullScreen; }
    // The stage has finished its start-up dialogue (loaduserok).
    bool isStageReady() const { return m_stageReady; }

    draw::DrawSession &session() { return m_session; }
    Stage *stage() const { return m_stage.get(); }
    MusicPlayer *music() const { return m_music.get(); }
    QTimer &tmAS() { return m_tmAS; }
    QTimer &tmDelay() { return m_tmDelay; }
    QTimer &tmM() { return m_tmM; }
    QWidget *picInfo() const { return m_picInfo; }
    QLabel *labP() const { return m_labP; }
    QPlainTextEdit *Text1() const { return m_text1; }
    const QList<int> &keyCodes() const { return m_keyCodes; }
    int playCursor() const { return m_playCursor; }
    int playIndex() const { return m_playIndex; }
    int volume() const { return m_volume; }
    QString currentMusic() const { return m_currentFile; }

Q_SIGNALS:
    // The operator left the draw screen; the console comes back.
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildControls();
    void openTemplate();
    void onBtnClick(const QString &button);
    void onStageReady();
    void sendStageSetup();
    void layoutStage();
    void placeInfo();
    void placeOnConsoleScreen();
    void send(const QString &name, const QString &value);

    void playNextAward();
    void onLuckPlayStop();
    void toggleScroll();
    void printForState();

    void onBatchRecorded();
    void onRecordFailed(const QString &error);
    void onAllAwardsFull();

    // Music.
    void readMusic();
    void startBackgroundMusic();
    void resumeBackground();
    // After a cancelled batch or an empty press: the background music, unless it is playing.
    void backToBackground();
    void playFromStart(const QString &path);
    void stopMusic();
    void setVolumeLevel(int volume);
    void pauseForMinimise(bool minimised);

    draw::DrawSession m_session;
    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<draw::DrawEngine> m_engine;
    std::unique_ptr<MusicPlayer> m_music;
    QString m_templateConnection;
    QSqlDatabase m_templateDb;

    QWidget *m_picMain = nullptr;
    QWidget *m_picInfo = nullptr;
    QLabel *m_labP = nullptr;
    QPlainTextEdit *m_text1 = nullptr;
    QTimer m_tmAS;
    QTimer m_tmDelay;
    QTimer m_tmM;
    int m_delayCount = 0;

    QList<int> m_keyCodes;
    bool m_isFullScreen = false;
    bool m_isScreenChanging = false;
    bool m_isStopped = false;
    bool m_isCleared = false;
    bool m_stageShown = false;  // asok: the draw scene is up
    bool m_stageReady = false;  // loaduserok: the start-up dialogue is over
    bool m_closing = false;

    draw::MusicSettings m_musicSettings;
    QString m_currentFile;
    double m_bgPosition = 0;
    int m_volume = 0;
    bool m_soundOff = false;

    int m_playCursor = 0;
    int m_playIndex = 1;
    QString m_playStyle;
    bool m_isScrollOn = true;
};
