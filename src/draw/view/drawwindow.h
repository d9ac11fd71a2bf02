#pragma once

#include <QList>
#include <QSqlDatabase>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <memory>

class QLabel;
class Stage;

namespace draw {
class DrawEngine;
class DrawMusic;
class ParadeRunner;
}  // namespace draw

// The full-screen window of the draw. The stage shows everything; this window holds the stage,
// the template connection and the stop guard's panel, answers the stage's commands and keys, and
// hands the decisions to the draw engine (awards, presses, the draw's state), the draw music and
// the winner parade. Two timers belong to it: the scroll samples while the names roll and the
// stop guard that refuses a Stop too soon after Start.
class DrawWindow : public QWidget {
    Q_OBJECT
public:
    explicit DrawWindow(QWidget *parent = nullptr);
    ~DrawWindow() override;

Q_SIGNALS:
    // The stage has finished its start-up dialogue (loaduserok).
    void stageReady();
    // The operator left the draw screen; the console comes back.
    void closed();

protected:
    // The draw's dialogs, opened from the stage's buttons and the end of the draw. Tests replace
    // them.
    virtual void openGiveUp();
    virtual void openMakeUp();
    virtual void openEndOfDraw();

    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void onStageCommand(const QString &command, const QString &args);
    // Decorative only: the winners were decided at Start.
    void pushScrollSample();
    void onStopGuardTick();

private:
    static QString stopGuardText(int secondsLeft);
    void buildControls();
    void createHelpers();
    void openTemplate();
    void onStageButton(const QString &button);
    void onHotkey(int keyCode);
    void onStageReady();
    void sendStageSetup();
    void setFullScreenMode(bool fullScreen);
    void layoutStage();
    void placeStopGuardPanel();
    void placeOnStageScreen();
    void focusStage();
    void send(const QString &name, const QString &value);
    QString playbackStyle() const;

    void startDraw();
    void stopDraw();
    void clearDraw();
    void cancelBatch();
    void startParade();
    // Presses (true) or releases the stage's parade button, which answers as the button would.
    void requestParade(bool run);
    void printResults();

    void onRecordFailed(const QString &error);

    std::unique_ptr<Stage> m_stage;
    draw::DrawEngine *m_engine = nullptr;
    draw::DrawMusic *m_music = nullptr;
    draw::ParadeRunner *m_parade = nullptr;
    QString m_templateConnection;
    QSqlDatabase m_templateDb;

    QWidget *m_stageHost = nullptr;
    QWidget *m_stopGuardPanel = nullptr;
    QLabel *m_stopGuardLabel = nullptr;
    QTimer m_scrollSampleTimer;
    QTimer m_stopGuardTimer;
    int m_stopGuardElapsed = 0;

    QList<int> m_keyCodes;
    bool m_isFullScreen = false;
    bool m_isScreenChanging = false;
    bool m_stageShown = false;  // asok: the draw scene is up
};
