#include "draw/auditsession.h"

#include "core/appstate.h"
#include "core/store.h"
#include "draw/rostersnapshot.h"

namespace draw {

bool AuditSession::open(const QString &appPath, QSqlDatabase db) {
    if (m_open) return true;
    if (m_closed) return false;
    const Roster roster = readRoster(db);
    const QString rosterHash = saveRosterFile(appPath, roster);
    if (rosterHash.isEmpty()) return false;
    AuditEvent event(auditevent::open);
    event.add(QStringLiteral("session"), m_secret.sessionId())
        .add(QStringLiteral("commit"), m_secret.commitment())
        .add(QStringLiteral("roster"), rosterHash)
        .add(QStringLiteral("rows"), qint64(roster.ids.size()))
        .add(QStringLiteral("standing"), standingsText(readStandings(db)));
    if (!appendAuditEvent(appPath, event)) return false;
    m_appPath = appPath;
    m_open = true;
    return true;
}

bool AuditSession::log(AuditEvent event) {
    if (!open(appState().appPath, store::mainConn())) return false;
    const bool isPress = event.kind == auditevent::press;
    event.fields.prepend({QStringLiteral("session"), m_secret.sessionId()});
    if (isPress) event.fields.insert(1, {QStringLiteral("press"), QString::number(m_presses + 1)});
    if (!appendAuditEvent(m_appPath, event, !isPress)) return false;
    if (isPress) ++m_presses;
    return true;
}

void AuditSession::close() {
    if (!m_open || m_closed) return;
    m_closed = true;
    AuditEvent event(auditevent::close);
    event.add(QStringLiteral("session"), m_secret.sessionId())
        .add(QStringLiteral("presses"), qint64(m_presses))
        .add(QStringLiteral("secret"), m_secret.hex());
    appendAuditEvent(m_appPath, event);
}

bool logDrawEvent(const AuditEvent &event) {
    return appendAuditEvent(appState().appPath, event);
}

}  // namespace draw
