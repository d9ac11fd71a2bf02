#pragma once

#include <QObject>
#include <QSqlDatabase>
#include <QString>
#include <QTimer>

#include <functional>
#include <optional>

#include "draw/auditsession.h"
#include "draw/progress.h"
#include "draw/session.h"

class QThread;
class Stage;

namespace draw {

// The draw without its window: loads awards, draws, records and undoes, and tells the stage. It
// alone changes the draw's session and state; the draw screen forwards the stage's events here,
// asks for the state, and reacts to the signals with what belongs to a window (music, timers,
// the end-of-draw prompt).
class DrawEngine : public QObject {
    Q_OBJECT
public:
    // Refused: a draw runs already. NotLogged: the press could not be written to the audit
    // log, so nothing was drawn.
    enum class StartOutcome { Stepped, Empty, Drawn, Refused, NotLogged };

    explicit DrawEngine(Stage &stage, QObject *parent = nullptr);
    ~DrawEngine() override;

    // The session secret whose fingerprint the hall sees before the first press.
    const DrawSecret &secret() const { return m_audit.secret(); }
    // The audit session: opened (roster snapshot) when the window opens, or else before its
    // first event; closed, revealing the secret, when the window closes.
    bool openAuditSession();
    void closeAuditSession() { m_audit.close(); }

    const DrawSession &session() const { return m_session; }
    DrawState state() const { return m_session.drawState; }
    // Stopped and not yet stored: the stage is landing on the winners.
    bool isLanding() const { return m_session.landing; }

    // Builds the vbLoadBlock value for a batch size; unset, no vbLoadBlock is sent.
    void setBlockStyle(std::function<QString(int batchCount)> blockStyle);
    // The nine leading vbAddImg fields of the template's prize picture (see DrawSession).
    void setPrizeHead(const QString &prizeHead) { m_session.prizeHead = prizeHead; }

    // Shows the award on the stage and plans its next batch. Loading the award on show again
    // keeps the result state; resetButtons brings back the start buttons and the rest state.
    bool loadAward(int id, bool resetButtons);
    void reloadAward(bool hideBlocks, bool resetButtons);
    // The award last drawn (selJxid), or else the first with open slots.
    void loadDefaultAward(bool resetButtons);
    void firstOpenAward(bool resetButtons);
    void stepAward(bool forward, bool wrap);

    // Start: a full award moves on; otherwise the winners are decided now and sent. Refused
    // while a draw runs.
    StartOutcome pressStart();
    // Stop: the stage lands on the press's winners. False when nothing rolls.
    bool stopDraw();
    // The decorative stream: a fresh random sample of the press's eligible names, sent as
    // vbPushLst. Returns the value sent (empty when nothing was sent).
    QString pushScrollSample();
    // On stoplucksub: stores the running press in one transaction. False when nothing was
    // running or the store refused; then nothing of the batch is stored.
    bool recordWinners();
    // Cancel: asks, then takes the last batch back. True when something was undone.
    bool cancelLastBatch();
    // The restart of the end-of-draw prompt: asks, saves the winners to History/ through
    // `exportWinners`, clears every win and give-up, and loads the default award again. A
    // snapshot that cannot be written leaves the wins in place.
    bool restartDraw(const WinnerExporter &exportWinners);

    // Clear: the rolling names vanish unstored, and the draw is at rest. Refused (false) once
    // the winners land.
    bool clearDraw();
    // The winner parade runs on the stage until resetToIdle().
    void beginParade();
    // At rest, whatever ran: a landing that could not be stored, the parade's end, the screen
    // closing. A late stoplucksub then stores nothing. Nothing is sent.
    void resetToIdle();

Q_SIGNALS:
    // Every award is full: the draw screen shows its end-of-draw prompt.
    void allAwardsFull();
    void batchRecorded();
    void recordFailed(const QString &error);
    void batchCancelled();
    // A press found nobody to draw; emitted before the warning, so the hall hears the
    // background music again while the operator reads it.
    void drawEmpty();
    // The roster was read again after another connection wrote to the store.
    void rosterReread();

private:
    // False when the press could not be logged: then nothing is drawn.
    bool drawWinners();
    // The candidates of the loaded award, built again only when the award's rule, who may win
    // or the roster has changed. Costs little unless who may win has changed: a press calls it.
    void refreshCandidates();
    // `before`: the stamp just before the engine's own write.
    void keepRosterAfterOwnWrite(const StoreStamp &before);
    void watchStore();
    // Reads the roster on a worker thread through its own connection.
    void startRosterRead();
    void adoptRoster(std::optional<Roster> &roster);
    bool allInStore(const std::vector<qint64> &ids);
    void readRosterNow();
    AuditEvent recordEvent(const QString &storedAt, const QList<qint64> &ids) const;
    AuditEvent cancelEvent() const;
    // buttonsFollow: a changBtn of the caller's will bring the bar of rest.
    void endCancelChance(bool buttonsFollow);
    QStringList namesOf(const std::vector<qint64> &ids);
    QString luckTypePrefix() const;
    void send(const QString &name, const QString &value);

    Stage &m_stage;
    DrawSession m_session;
    std::function<QString(int)> m_blockStyle;
    AuditSession m_audit;
    QTimer m_storeWatch;
    QThread *m_rosterRead = nullptr;
    StoreStamp m_rosterReadStamp;  // the store as the running read found it
};

}  // namespace draw
