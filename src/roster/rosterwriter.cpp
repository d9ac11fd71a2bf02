#include "roster/rosterwriter.h"

#include <QSqlDriver>
#include <QSqlError>

#include <sqlite3.h>

namespace {

// Text columns hold empty text, never NULL, so the duplicate test finds every row.
QString notNull(const QString &text) {
    return text.isNull() ? QStringLiteral("") : text;
}

sqlite3 *sqliteHandle(QSqlDatabase db) {
    const QVariant handle = db.driver() ? db.driver()->handle() : QVariant();
    if (!handle.isValid() || qstrcmp(handle.typeName(), "sqlite3*") != 0) return nullptr;
    return *static_cast<sqlite3 *const *>(handle.constData());
}

// The text is bound in place: it outlives the one step the binding is used for.
bool bindText(sqlite3_stmt *statement, int column, const QString &text) {
    static const char16_t empty[] = u"";
    const void *characters =
        text.isNull() ? static_cast<const void *>(empty) : static_cast<const void *>(text.utf16());
    return sqlite3_bind_text16(statement, column, characters, static_cast<int>(text.size() * 2),
                               SQLITE_STATIC) == SQLITE_OK;
}

quint64 rowDigest(const QString &name, const QString &part) {
    return qHashMulti(0, name, part);
}

QString columnText(sqlite3_stmt *statement, int column) {
    const void *characters = sqlite3_column_text16(statement, column);
    const int bytes = sqlite3_column_bytes16(statement, column);
    return QString(static_cast<const QChar *>(characters), bytes / 2);
}

}  // namespace

RosterWriter::RosterWriter(QSqlDatabase db) : m_db(db), m_duplicate(db) {}

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
    m_handle = sqliteHandle(m_db);
    const char *insert =
        "INSERT INTO UserList (ID, UserName, UserPart, UserPhoto, DiffNum, UserStatus) "
        "VALUES (?, ?, ?, ?, ?, 0)";
    const char *rowById = "SELECT UserName, UserPart FROM UserList WHERE ID=?";
    if (!m_duplicate.prepare(
            QStringLiteral("SELECT 1 FROM UserList WHERE UserName=? AND UserPart=? LIMIT 1")) ||
        !m_handle || sqlite3_prepare_v2(m_handle, insert, -1, &m_insert, nullptr) != SQLITE_OK ||
        sqlite3_prepare_v2(m_handle, rowById, -1, &m_rowById, nullptr) != SQLITE_OK) {
        *error = m_duplicate.lastError().text() +
                 (m_handle ? QString::fromUtf8(sqlite3_errmsg(m_handle)) : QString());
        rollback();
        return false;
    }
    // Indexes built again at the commit sort in two threads.
    store::exec(m_db, QStringLiteral("PRAGMA threads=2"));
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
    const auto written = m_written.constFind(rowDigest(name, part));
    if (written != m_written.cend()) return rowIs(*written, name, part) || storeHasRow(name, part);
    return !m_startedEmpty && storeHasRow(name, part);
}

bool RosterWriter::rowIs(int id, const QString &name, const QString &part) {
    bool same = false;
    if (sqlite3_bind_int(m_rowById, 1, id) == SQLITE_OK && sqlite3_step(m_rowById) == SQLITE_ROW)
        same = columnText(m_rowById, 0) == name && columnText(m_rowById, 1) == part;
    sqlite3_reset(m_rowById);
    return same;
}

bool RosterWriter::storeHasRow(const QString &name, const QString &part) {
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
    if (!m_insert) return 0;
    const int id = m_nextId++;
    const bool done = sqlite3_bind_int(m_insert, 1, id) == SQLITE_OK &&
                      bindText(m_insert, 2, name) && bindText(m_insert, 3, part) &&
                      bindText(m_insert, 4, photo) &&
                      sqlite3_bind_int(m_insert, 5, diffNum) == SQLITE_OK &&
                      sqlite3_step(m_insert) == SQLITE_DONE;
    if (!done && error) *error = QString::fromUtf8(sqlite3_errmsg(m_handle));
    sqlite3_reset(m_insert);
    if (!done) return 0;
    m_written.insert(rowDigest(name, part), id);
    return id;
}

void RosterWriter::finishStatements() {
    m_duplicate.finish();
    if (m_insert) sqlite3_finalize(m_insert);
    if (m_rowById) sqlite3_finalize(m_rowById);
    m_insert = nullptr;
    m_rowById = nullptr;
}

bool RosterWriter::commit(QString *error) {
    if (!m_open) return false;
    finishStatements();
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
    finishStatements();
    if (!m_open) return;
    m_db.rollback();
    m_open = false;
}
