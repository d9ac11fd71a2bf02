#include "roster/rosterwriter.h"

#include <QSqlError>

namespace {

// Text columns hold empty text, never NULL, so the duplicate test finds every row.
QString notNull(const QString &text) {
    return text.isNull() ? QStringLiteral("") : text;
}

}  // namespace

RosterWriter::RosterWriter(QSqlDatabase db) : m_db(db), m_duplicate(db), m_insert(db) {}

RosterWriter::~RosterWriter() {
    rollback();
}

bool RosterWriter::begin(bool replace, QString *error) {
    if (!m_db.transaction()) {
        *error = m_db.lastError().text();
        return false;
    }
    m_open = true;
    m_cleared = false;
    if (!m_duplicate.prepare(
            QStringLiteral("SELECT 1 FROM UserList WHERE UserName=? AND UserPart=? LIMIT 1")) ||
        !m_insert.prepare(QStringLiteral("INSERT INTO UserList (ID, UserName, UserPart, UserPhoto, "
                                         "DiffNum, UserStatus) VALUES (?, ?, ?, ?, ?, 0)"))) {
        *error = m_insert.lastError().text() + m_duplicate.lastError().text();
        rollback();
        return false;
    }
    if (replace && !clearRoster(error)) {
        rollback();
        return false;
    }
    m_nextId = store::getNextID(QStringLiteral("UserList"), QStringLiteral("ID"), m_db);
    return true;
}

bool RosterWriter::clearRoster(QString *error) {
    if (m_cleared) return true;
    if (!store::exec(m_db, QStringLiteral("DELETE FROM UserList"), {}, error)) return false;
    m_cleared = true;
    m_nextId = 1;
    return true;
}

bool RosterWriter::isDuplicate(const QString &name, const QString &part) {
    m_duplicate.addBindValue(notNull(name));
    m_duplicate.addBindValue(notNull(part));
    const bool found = m_duplicate.exec() && m_duplicate.next();
    m_duplicate.finish();
    return found;
}

int RosterWriter::insert(const QString &name, const QString &part, const QString &photo,
                         int diffNum, QString *error) {
    const int id = m_nextId;
    m_insert.addBindValue(id);
    m_insert.addBindValue(notNull(name));
    m_insert.addBindValue(notNull(part));
    m_insert.addBindValue(notNull(photo));
    m_insert.addBindValue(diffNum);
    if (!m_insert.exec()) {
        if (error) *error = m_insert.lastError().text();
        return 0;
    }
    ++m_nextId;
    return id;
}

bool RosterWriter::commit(QString *error) {
    if (!m_open) return false;
    m_duplicate.finish();
    m_insert.finish();
    m_open = false;
    if (!m_db.commit()) {
        *error = m_db.lastError().text();
        m_db.rollback();
        return false;
    }
    return true;
}

void RosterWriter::rollback() {
    if (!m_open) return;
    m_duplicate.finish();
    m_insert.finish();
    m_db.rollback();
    m_open = false;
}
