#include "core/store.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QLoggingCategory>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSet>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <sys/stat.h>

Q_LOGGING_CATEGORY(lcStore, "quellio.store")

namespace store {

namespace {

bool pragma(QSqlDatabase db, const QString &statement, QString *error) {
    return exec(db, QStringLiteral("PRAGMA ") + statement, {}, error);
}

QSqlDatabase addConnection(const QString &path, const QString &connection) {
    if (QSqlDatabase::contains(connection)) QSqlDatabase::removeDatabase(connection);
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
    db.setDatabaseName(path);
    return db;
}

bool openFile(QSqlDatabase &db, const QString &path, QString *error) {
    if (db.open()) return true;
    if (error)
        *error = QCoreApplication::translate("store", "无法打开数据文件 %1: %2")
                     .arg(path, db.lastError().text());
    return false;
}

bool upgradeSchema(QSqlDatabase db, QString *error) {
    const int version = scalar(db, QStringLiteral("PRAGMA user_version")).toInt();
    if (version >= kSchemaVersion) return true;
    if (!applyScript(db, QStringLiteral(":/sql/store.sql"), error)) return false;
    return pragma(db, QStringLiteral("user_version=%1").arg(kSchemaVersion), error);
}

void setError(QString *error, const QString &text) {
    if (error) *error = text;
}

// The files of the stores opened through open(), by connection.
QHash<QString, QString> &openStores() {
    static QHash<QString, QString> stores;
    return stores;
}

// A file dialog, or any model listing the program folder, asks the MIME database for each file's
// type and icon; for a name it does not know, the database opens the file to look at its first
// bytes, and that open and close drops the store's locks. Naming the store's files in a package of
// this process's own (a folder at the end of XDG_DATA_DIRS, kept for the process's life) lets
// them be known by name alone.
void nameStoreFilesForMimeLookups(const QString &path) {
    static QTemporaryDir folder;
    static QSet<QString> named;
    const QString name = QFileInfo(path).fileName();
    if (!folder.isValid() || named.contains(name)) return;
    named.insert(name);
    QByteArray globs;
    for (const QString &known : std::as_const(named))
        for (const char *suffix : {"", "-wal", "-shm", "-journal"})
            globs += "<glob pattern=\"" + (known + QLatin1String(suffix)).toHtmlEscaped().toUtf8() +
                     "\" weight=\"100\"/>";
    const QString packages = folder.filePath(QStringLiteral("mime/packages"));
    QDir().mkpath(packages);
    QSaveFile package(packages + QStringLiteral("/quellio-store.xml"));
    if (!package.open(QIODevice::WriteOnly)) return;
    package.write(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<mime-info xmlns=\"http://"
        "www.freedesktop.org/standards/shared-mime-info\"><mime-type type=\"application/"
        "x-quellio-store\"><comment>Quellio data store</comment>" +
        globs + "</mime-type></mime-info>\n");
    if (!package.commit()) return;
    QByteArray dirs = qgetenv("XDG_DATA_DIRS");
    if (dirs.isEmpty()) dirs = "/usr/local/share/:/usr/share/";
    const QByteArray own = QFile::encodeName(folder.path());
    if (!dirs.split(':').contains(own)) qputenv("XDG_DATA_DIRS", dirs + ':' + own);
}

bool sameFile(const QByteArray &a, const QByteArray &b) {
    struct stat first;
    struct stat second;
    return ::stat(a.constData(), &first) == 0 && ::stat(b.constData(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

}  // namespace

QSqlDatabase mainConn() {
    return QSqlDatabase::database(kMainConnection, false);
}

bool open(const QString &path, QString *error, const QString &connection) {
    if (!QFileInfo(path).isFile()) {
        setError(error, QCoreApplication::translate("store", "找不到数据文件: %1").arg(path));
        return false;
    }
    QSqlDatabase db = addConnection(path, connection);
    if (!openFile(db, path, error)) return false;
    // A store that is not a database fails on its first statement, not on open.
    if (!pragma(db, QStringLiteral("journal_mode=WAL"), error) ||
        !pragma(db, QStringLiteral("synchronous=FULL"), error) ||
        !pragma(db, QStringLiteral("busy_timeout=3000"), error) || !upgradeSchema(db, error)) {
        db.close();
        return false;
    }
    openStores().insert(connection, path);
    nameStoreFilesForMimeLookups(path);
    return true;
}

void close(const QString &connection) {
    openStores().remove(connection);
    if (!QSqlDatabase::contains(connection)) return;
    {
        QSqlDatabase db = QSqlDatabase::database(connection, false);
        if (db.isOpen()) db.close();
    }
    QSqlDatabase::removeDatabase(connection);
}

bool applyScript(QSqlDatabase db, const QString &resource, QString *error) {
    QFile file(resource);
    if (!file.open(QIODevice::ReadOnly)) {
        setError(error, QCoreApplication::translate("store", "缺少内置脚本 %1").arg(resource));
        return false;
    }
    QString statement;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.trimmed().startsWith(QLatin1String("--"))) continue;
        statement += line + QLatin1Char('\n');
        if (!line.trimmed().endsWith(QLatin1Char(';'))) continue;
        if (!exec(db, statement.trimmed(), {}, error)) return false;
        statement.clear();
    }
    return true;
}

bool openTemplate(const QString &path, const QString &connection, QString *error, bool create) {
    if (!create && !QFileInfo(path).isFile()) {
        setError(error, QCoreApplication::translate("store", "找不到模板文件: %1").arg(path));
        return false;
    }
    QSqlDatabase db = addConnection(path, connection);
    if (!openFile(db, path, error)) return false;
    if (!pragma(db, QStringLiteral("journal_mode=DELETE"), error)) {
        db.close();
        return false;
    }
    return true;
}

bool isStoreFile(const QString &path) {
    const QByteArray candidate = QFile::encodeName(path);
    for (const QString &store : std::as_const(openStores())) {
        for (const char *suffix : {"", "-wal", "-shm", "-journal"}) {
            if (sameFile(candidate, QFile::encodeName(store) + suffix)) return true;
        }
    }
    return false;
}

bool isIdentifier(const QString &name) {
    static const QRegularExpression pattern(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
    return pattern.match(name).hasMatch();
}

int getNextID(const QString &table, const QString &column, QSqlDatabase db) {
    Q_ASSERT(isIdentifier(table) && isIdentifier(column));
    const QVariant top = scalar(
        db, QStringLiteral("SELECT [%2] FROM [%1] ORDER BY [%2] DESC LIMIT 1").arg(table, column));
    return top.isNull() ? 1 : top.toInt() + 1;
}

bool isDuplicate(const QString &table, const QString &column1, const QString &column2,
                 const QString &value1, const QString &value2, int exceptId, QSqlDatabase db) {
    Q_ASSERT(isIdentifier(table) && isIdentifier(column1));
    const QString null = QStringLiteral("Null");
    const bool both = column2 != null && value2 != null;
    QString sql = QStringLiteral("SELECT 1 FROM [%1] WHERE [%2]=?").arg(table, column1);
    QVariantList values{value1};
    if (both) {
        Q_ASSERT(isIdentifier(column2));
        sql += QStringLiteral(" AND [%1]=?").arg(column2);
        values << value2;
    }
    if (exceptId > 0) {
        sql += QStringLiteral(" AND ID<>?");
        values << exceptId;
    }
    return !scalar(db, sql + QStringLiteral(" LIMIT 1"), values).isNull();
}

QString dateText(const QDateTime &time) {
    return time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString nowText() {
    return dateText(QDateTime::currentDateTime());
}

QString awardMarker(int awardId) {
    return QStringLiteral("|%1|").arg(awardId);
}

QString awardPattern(int awardId) {
    return QStringLiteral("%|%1|%").arg(awardId);
}

QString containsPattern(const QString &text) {
    QString escaped = text;
    escaped.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    escaped.replace(QLatin1Char('%'), QLatin1String("\\%"));
    escaped.replace(QLatin1Char('_'), QLatin1String("\\_"));
    return QLatin1Char('%') + escaped + QLatin1Char('%');
}

bool exec(QSqlDatabase db, const QString &sql, const QVariantList &values, QString *error) {
    QSqlQuery query(db);
    bool ok = query.prepare(sql);
    for (const QVariant &value : values)
        query.addBindValue(value);
    ok = ok && query.exec();
    if (!ok) {
        qCWarning(lcStore) << sql << query.lastError().text();
        setError(error, query.lastError().text());
    }
    return ok;
}

QVariant scalar(QSqlDatabase db, const QString &sql, const QVariantList &values) {
    QSqlQuery query(db);
    query.setForwardOnly(true);
    bool ok = query.prepare(sql);
    for (const QVariant &value : values)
        query.addBindValue(value);
    ok = ok && query.exec();
    if (!ok) {
        qCWarning(lcStore) << sql << query.lastError().text();
        return QVariant();
    }
    return query.next() ? query.value(0) : QVariant();
}

}  // namespace store
