#pragma once

#include <QSqlDatabase>
#include <QString>

#include "core/language.h"
#include "draw/audit.h"
#include "draw/drawsecret.h"

// One opening of the draw window in the audit log: its secret, its presses and the events it
// logs. It opens (a roster snapshot and the secret's commitment) before its first event and
// closes by revealing the secret. Events of the draw that no window runs (a give-up, a make-up, a
// reset from the console) go through logDrawEvent.
namespace draw {

class AuditSession {
public:
    AuditSession() = default;
    ~AuditSession() { close(); }
    AuditSession(const AuditSession &) = delete;
    AuditSession &operator=(const AuditSession &) = delete;

    const DrawSecret &secret() const { return m_secret; }
    bool isOpen() const { return m_open; }
    // Writes the roster snapshot and the open line, unless already open. False when not written.
    bool open(const QString &appPath, QSqlDatabase db);
    // The number and the seed of the next press; the number is spent by a logged press line.
    quint64 nextPressNumber() const { return m_presses + 1; }
    quint64 nextPressSeed() const { return m_secret.pressSeed(nextPressNumber()); }
    quint64 lastPressNumber() const { return m_presses; }
    // Logs one event of this session (opening it first). A press line spends its number.
    bool log(AuditEvent event);
    // Reveals the secret; nothing more is logged in this session.
    void close();

private:
    DrawSecret m_secret;
    QString m_appPath;
    bool m_open = false;
    bool m_closed = false;
    quint64 m_presses = 0;
};

// The events that change who can win, from wherever they happen.
namespace auditevent {
inline const QString open = QStringLiteral("open");
inline const QString press = QStringLiteral("press");
inline const QString record = QStringLiteral("record");
inline const QString cancel = QStringLiteral("cancel");
inline const QString giveUp = QStringLiteral("giveup");
inline const QString addSlots = QStringLiteral("addslots");
inline const QString newAward = QStringLiteral("newaward");
inline const QString reset = QStringLiteral("reset");
inline const QString close = QStringLiteral("close");
}  // namespace auditevent

// Appends an event to the program folder's log. False when it could not be written.
bool logDrawEvent(const AuditEvent &event);
// The message of a draw event that could not be logged and therefore did not happen.
inline const TranslatedText kAuditWriteFailed{"draw",
                                              QT_TRANSLATE_NOOP("draw", "无法写入抽奖记录")};

}  // namespace draw
