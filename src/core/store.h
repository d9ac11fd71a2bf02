#pragma once

#include <QDateTime>
#include <QSqlDatabase>
#include <QString>
#include <QVariant>

// The data store (roster, awards, hotkeys, password) and the access helpers every subsystem
// shares. All values are bound; identifiers (table and column names) come from the program,
// never from the user, and are checked before they are put into a statement.
namespace store {

// The name of the one connection to the data store on the interface thread.
inline const QString kMainConnection = QStringLiteral("mainConn");
// The schema version this build writes; older stores are upgraded on opening.
constexpr int kSchemaVersion = 4;

// Opens the store at path as the connection `connection`: WAL journal, synchronous=FULL, foreign
// keys off, schema brought up to date. A missing file is an error: nothing is created by accident.
bool open(const QString &path, QString *error, const QString &connection = kMainConnection);
void close(const QString &connection = kMainConnection);
QSqlDatabase mainConn();

// Runs a file of ";"-terminated statements from the compiled-in schema (":/sql/...").
bool applyScript(QSqlDatabase db, const QString &resource, QString *error);

// Opens (or creates, when create is set) a template file as the given connection, in the plain
// rollback journal: template files are copied and hashed as whole files.
bool openTemplate(const QString &path, const QString &connection, QString *error,
                  bool create = false);

// 1 on an empty table or a NULL top value, otherwise the highest value + 1. Gaps are never
// reused, but deleting the top row hands its number out again.
int getNextID(const QString &table, const QString &column, QSqlDatabase db = mainConn());

// True when a row holds value1 in column1 (and value2 in column2, unless column2 or value2 is
// the text "Null"), ignoring the row whose ID is exceptId when that is above 0.
bool isDuplicate(const QString &table, const QString &column1, const QString &column2,
                 const QString &value1, const QString &value2, int exceptId,
                 QSqlDatabase db = mainConn());

// Dates are stored as sortable local-time text.
QString dateText(const QDateTime &time);
QString nowText();

// The JxID marker of one award, "|5|", and the LIKE pattern that finds it, "%|5|%".
QString awardMarker(int awardId);
QString awardPattern(int awardId);
// A LIKE pattern matching text anywhere, with the user's % and _ escaped (use ESCAPE '\').
QString containsPattern(const QString &text);

// Runs a statement with bound values; logs and returns false on failure.
bool exec(QSqlDatabase db, const QString &sql, const QVariantList &values = {},
          QString *error = nullptr);
// The first column of the first row, or an invalid QVariant.
QVariant scalar(QSqlDatabase db, const QString &sql, const QVariantList &values = {});

// Checks that a table or column name is a plain identifier.
bool isIdentifier(const QString &name);

// Whether path names the file of an open store or one of SQLite's files beside it (-wal, -shm,
// -journal), by any name or link. Only SQLite may open those: POSIX drops every lock a process
// holds on a file as soon as any other descriptor of the process to that file is closed, and an
// outside reader could then take the write-ahead log away from the running program.
bool isStoreFile(const QString &path);

}  // namespace store
