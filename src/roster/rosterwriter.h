#pragma once

#include <QHash>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QVariant>

#include "core/store.h"

struct sqlite3;
struct sqlite3_stmt;

// Writes many participants in one transaction: an import, the number generator or a replace of
// the roster either lands whole or not at all. Queries are prepared once, and the next ID is
// counted in memory, since nothing else writes the roster while the transaction is open.
class RosterWriter {
public:
    explicit RosterWriter(QSqlDatabase db = store::mainConn());
    ~RosterWriter();  // rolls back what was not committed
    RosterWriter(const RosterWriter &) = delete;
    RosterWriter &operator=(const RosterWriter &) = delete;

    // Opens the transaction. With replace every participant is deleted just before the first
    // row is written, so a job that writes nothing leaves the roster as it was.
    bool begin(bool replace, QString *error);
    // Deletes every participant inside the open transaction (once).
    bool clearRoster(QString *error);
    bool isDuplicate(const QString &name, const QString &part);
    // Room for the rows about to be written, so a big import does not keep regrowing its set. A
    // big import into an empty roster also drops the secondary indexes, to build them again in
    // one sorted pass at the commit instead of row by row.
    bool reserve(qint64 rows, QString *error);
    // Inserts one participant and returns its ID, or 0 on failure; the whole transaction fails
    // either way.
    int insert(const QString &name, const QString &part, const QString &photo = QString(),
               int diffNum = 0, QString *error = nullptr);
    // The ID the next insert gets.
    int nextId() const { return m_nextId; }
    bool commit(QString *error);
    void rollback();

    bool isOpen() const { return m_open; }
    QSqlDatabase database() const { return m_db; }
    bool cleared() const { return m_cleared; }
    // The photos the deleted participants named (after clearRoster).
    const QStringList &formerPhotos() const { return m_formerPhotos; }

private:
    static constexpr qint64 kBulkRows = 20000;
    void finishStatements();
    bool storeHasRow(const QString &name, const QString &part);
    bool rowIs(int id, const QString &name, const QString &part);
    bool dropIndexes(QString *error);
    bool restoreIndexes(QString *error);

    QSqlDatabase m_db;
    QStringList m_droppedIndexes;
    QSqlQuery m_duplicate;
    // A million rows go through SQLite's own prepared statement: binding through the SQL
    // module costs more than the insert itself.
    sqlite3 *m_handle = nullptr;
    sqlite3_stmt *m_insert = nullptr;
    sqlite3_stmt *m_rowById = nullptr;
    int m_nextId = 1;
    bool m_open = false;
    bool m_cleared = false;
    bool m_replacePending = false;
    QStringList m_formerPhotos;
    // Rows written by this writer are looked up in memory; the store is asked only about rows
    // that were there before (none after a replace). A million rows are remembered by a 64-bit
    // digest of name and remark and the ID of the row that has it, not by their texts: a digest
    // found is checked against that row, and the rare other row sharing it is asked of the store.
    bool m_startedEmpty = false;
    QHash<quint64, int> m_written;
};
