#pragma once

#include <QObject>
#include <QSqlDatabase>
#include <QString>

#include <functional>

#include "draw/progress.h"
#include "draw/session.h"

class Stage;

namespace draw {

// The number of participants holding a win of award id.
int countAwardWinners(QSqlDatabase db, int id);
// The names of an award's winners, newest batch first, each followed by three blanks; masked
// when names are hidden. Empty when nobody has won it.
QString winnersText(QSqlDatabase db, int id);

// The draw without its window: loads awards, draws, records and undoes, and tells the stage. The
// draw screen owns the session and the stage, forwards the stage's events here, and reacts to
// the signals with what belongs to a window (music, timers, the end-of-draw prompt).
class DrawEngine : public QObject {
    Q_OBJECT
public:
    enum class StartOutcome { Stepped, Empty, Drawn };

    DrawEngine(Stage &stage, DrawSession &session, QObject *parent = nullptr);

    // Builds the vbLoadBlock value for a batch size; unset, no vbLoadBlock is sent.
    void setBlockStyle(std::function<QString(int batchCount)> blockStyle);

    bool loadJx(int id, bool resetButtons);
    void reFrashJx(bool hideBlocks, bool resetButtons);
    void defulteJx(bool resetButtons);
    void firstOpenAward(bool resetButtons);
    void stepAward(bool forward, bool wrap);

    // cmdStart: a full award moves on; otherwise the winners are decided now and sent.
    StartOutcome pressStart();
    // The decorative stream: a fresh random sample of the press's eligible names, sent as
    // vbPushLst. Returns the value sent (empty when nothing was sent).
    QString pushScrollSample();
    // On stoplucksub: stores the running press in one transaction. False when nothing was
    // running or the store refused; then nothing of the batch is stored.
    bool recordWinners();
    // cmdCancel: asks, then takes the last batch back. True when something was undone.
    bool cancelLastBatch();
    // The restart of the end-of-draw prompt: asks, saves the winners to History/ through
    // `exportWinners`, clears every win and give-up, and loads the default award again. A
    // snapshot that cannot be written leaves the wins in place.
    bool restartDraw(const WinnerExporter &exportWinners);

Q_SIGNALS:
    // Every award is full: the draw screen shows its end-of-draw prompt.
    void allAwardsFull();
    void batchRecorded();
    void recordFailed(const QString &error);
    void batchCancelled();
    // A press found nobody to draw; emitted before the warning, so the hall hears the
    // background music again while the operator reads it.
    void drawEmpty();

private:
    void drawWinners();
    // The candidates of the loaded award, read again only when the award's rule or the store
    // has changed since the last read.
    void refreshCandidates();
    void keepRosterAfterOwnWrite(bool rosterWasCurrent);
    QStringList namesOf(const std::vector<qint64> &ids);
    QString luckTypePrefix() const;
    void send(const QString &name, const QString &value);

    Stage &m_stage;
    DrawSession &m_session;
    std::function<QString(int)> m_blockStyle;
};

}  // namespace draw
