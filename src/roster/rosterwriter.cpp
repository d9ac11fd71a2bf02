#include "roster/rosterwriter.h"

#include <QSqlError>

namespace {

// Text columns hold empty text, never NULL, so the duplicate test finds every row.
QString notNull(const QString &text) {
    return text.isNull() ? QStringLiteral("") : text;
}

QString writtenKey(const QString &name, const QString &part) {
    return name + QChar(0x1f) + part;
}

constexpr int kColumns = 5;

QString insertStatement(int rows) {
    QStringList tuples;
    for (int i = 0; i < rows; ++i)
        tuples << QStringLiteral("(?, ?, ?, ?, ?, 0)");
    return QStringLiteral(
               "INSERT INTO UserList (ID, UserName, UserPart, UserPhoto, DiffNum, "
               "UserStatus) VALUES ") +
           tuples.join(QLatin1Char(','));
}

}  // namespace

RosterWriter::RosterWriter(QSqlDatabase db) : m_db(db), m_duplicate(db), m_insert(db) {}

RosterWriter::~RosterWriter() {
    rollback();
}

bool RosterWriter::begin(bool replace, QString *error) {
    // A big import touches every index of the roster; a roomy page cache keeps that in memory
    // until the commit instead of spilling half-built pages to the journal.
    store::exec(m_db, QStringLiteral("PRAGMA cache_size=-65536"));
    if (!m_db.transaction()) {
        *error = m_db.lastError().text();
        return false;
    }
    m_open = true;
    m_cleared = false;
    if (!m_duplicate.prepare(
            QStringLiteral("SELECT 1 FROM UserList WHERE UserName=? AND UserPart=? LIMIT 1")) ||
        !m_insert.prepare(insertStatement(kBatchRows))) {
        *error = m_insert.lastError().text() + m_duplicate.lastError().text();
        rollback();
        return false;
    }
    m_formerPhotos.clear();
    m_written.clear();
    m_replacePending = replace;
    if (replace) {
        // The rows to come replace the roster: they are numbered from 1 and only compared with
        // each other.
        m_nextId = 1;
        m_startedEmpty = true;
        return true;
    }
    m_nextId = store::getNextID(QStringLiteral("UserList"), QStringLiteral("ID"), m_db);
    m_startedEmpty = store::scalar(m_db, QStringLiteral("SELECT 1 FROM UserList LIMIT 1")).isNull();
    return true;
}

bool RosterWriter::clearRoster(QString *error) {
    m_replacePending = false;
    if (m_cleared) return true;
    QSqlQuery photos(m_db);
    photos.setForwardOnly(true);
    if (!photos.exec(
            QStringLiteral("SELECT DISTINCT UserPhoto FROM UserList WHERE UserPhoto<>''"))) {
        *error = photos.lastError().text();
        return false;
    }
    while (photos.next())
        m_formerPhotos << photos.value(0).toString();
    photos.finish();
    if (!store::exec(m_db, QStringLiteral("DELETE FROM UserList"), {}, error)) return false;
    m_cleared = true;
    if (!dropIndexes(error)) return false;
    m_nextId = 1;
    m_startedEmpty = true;
    m_written.clear();
    return true;
}

bool RosterWriter::reserve(qint64 rows, QString *error) {
    m_written.reserve(static_cast<qsizetype>(qMin<qint64>(rows, 1 << 24)));
    // A replace drops them when it clears the roster; an append into a roster with rows keeps
    // them, as every row's duplicate test looks them up.
    if (rows < kBulkRows || m_replacePending || !m_startedEmpty || !m_droppedIndexes.isEmpty())
        return true;
    return dropIndexes(error);
}

bool RosterWriter::isDuplicate(const QString &name, const QString &part) {
    if (m_written.contains(writtenKey(name, part))) return true;
    if (m_startedEmpty) return false;
    m_duplicate.addBindValue(notNull(name));
    m_duplicate.addBindValue(notNull(part));
    const bool found = m_duplicate.exec() && m_duplicate.next();
    m_duplicate.finish();
    return found;
}

int RosterWriter::insert(const QString &name, const QString &part, const QString &photo,
                         int diffNum, QString *error) {
    QString failure;
    if (m_replacePending && !clearRoster(&failure)) {
        if (error) *error = failure;
        return 0;
    }
    const int id = m_nextId++;
    m_pending << QVariant(id) << QVariant(notNull(name)) << QVariant(notNull(part))
              << QVariant(notNull(photo)) << QVariant(diffNum);
    m_written.insert(writtenKey(name, part));
    if (m_pending.size() >= kBatchRows * kColumns && !flush(error)) return 0;
    return id;
}

// Rows go to the store in batches of one multi-row INSERT: far fewer statements for a big import.
bool RosterWriter::flush(QString *error) {
    if (m_pending.isEmpty()) return true;
    const int rows = static_cast<int>(m_pending.size() / kColumns);
    QSqlQuery rest(m_db);
    QSqlQuery &query = rows == kBatchRows ? m_insert : rest;
    if (rows != kBatchRows) query.prepare(insertStatement(rows));
    for (const QVariant &value : std::as_const(m_pending))
        query.addBindValue(value);
    m_pending.clear();
    if (!query.exec()) {
        if (error) *error = query.lastError().text();
        return false;
    }
    return true;
}

bool RosterWriter::commit(QString *error) {
    if (!m_open) return false;
    if (!flush(error)) {
        rollback();
        return false;
    }
    m_duplicate.finish();
    m_insert.finish();
    if (!restoreIndexes(error)) {
        m_db.rollback();
        m_open = false;
        return false;
    }
    m_open = false;
    if (!m_db.commit()) {
        *error = m_db.lastError().text();
        m_db.rollback();
        return false;
    }
    return true;
}

// An emptied roster is refilled fastest without its secondary indexes: they are dropped inside
// the transaction and built again in one sorted pass before the commit (a rollback brings them
// back untouched). Their definitions come from the store itself.
bool RosterWriter::dropIndexes(QString *error) {
    QSqlQuery query(m_db);
    if (!query.exec(QStringLiteral("SELECT name, sql FROM sqlite_master WHERE type='index' AND "
                                   "tbl_name='UserList' AND sql IS NOT NULL"))) {
        *error = query.lastError().text();
        return false;
    }
    QStringList names;
    while (query.next()) {
        names << query.value(0).toString();
        m_droppedIndexes << query.value(1).toString();
    }
    query.finish();
    for (const QString &name : std::as_const(names)) {
        if (!store::isIdentifier(name) ||
            !store::exec(m_db, QStringLiteral("DROP INDEX [%1]").arg(name), {}, error))
            return false;
    }
    return true;
}

bool RosterWriter::restoreIndexes(QString *error) {
    for (const QString &sql : std::as_const(m_droppedIndexes))
        if (!store::exec(m_db, sql, {}, error)) return false;
    m_droppedIndexes.clear();
    return true;
}

void RosterWriter::rollback() {
    m_droppedIndexes.clear();
    m_pending.clear();
    if (!m_open) return;
    m_duplicate.finish();
    m_insert.finish();
    m_db.rollback();
    m_open = false;
}
