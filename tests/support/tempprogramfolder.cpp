#include "support/tempprogramfolder.h"

#include <QFile>
#include <QSqlQuery>
#include <QTextStream>

#include "core/appstate.h"
#include "core/profile.h"
#include "core/programfolder.h"
#include "core/startup.h"
#include "core/store.h"
#include "support/testpaths.h"

TempProgramFolder::TempProgramFolder() {
    shutDown();
    resetAppState();
    if (!m_dir.isValid()) return;
    // The build's program folder also holds the two executables (55 MB): empty stand-ins make
    // the copy pass them over, as it never overwrites a file.
    const QStringList notCopied{QStringLiteral("quellio"), QStringLiteral("quellio-verify"),
                                QStringLiteral(".stamp"), QStringLiteral("quellio.lock")};
    for (const QString &name : notCopied)
        QFile(path(name)).open(QIODevice::WriteOnly);
    m_valid = programfolder::copyTree(testpaths::factoryDir(), m_dir.path());
    for (const QString &name : notCopied)
        QFile::remove(path(name));
    qputenv("QUELLIO_HOME", m_dir.path().toUtf8());
}

TempProgramFolder::~TempProgramFolder() {
    shutDown();
    resetAppState();
    qunsetenv("QUELLIO_HOME");
}

QString TempProgramFolder::path() const {
    return m_dir.path() + QLatin1Char('/');
}

bool TempProgramFolder::start() {
    return m_valid && startUp(m_dir.path());
}

QSqlDatabase TempProgramFolder::db() const {
    return store::mainConn();
}

void TempProgramFolder::setConfig(const QString &section, const QString &key,
                                  const QString &value) {
    writeIni(section, key, value, path(QStringLiteral("config.ini")));
}

void TempProgramFolder::removeConfigKey(const QString &key) {
    QFile file(path(QStringLiteral("config.ini")));
    if (!file.open(QIODevice::ReadOnly)) return;
    QStringList kept;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        if (!line.startsWith(key + QLatin1Char('='))) kept << line;
    }
    file.close();
    file.open(QIODevice::WriteOnly | QIODevice::Truncate);
    file.write(kept.join(QLatin1Char('\n')).toUtf8());
}

QList<int> TempProgramFolder::addUsers(const QStringList &rows) {
    QList<int> ids;
    QSqlDatabase database = db();
    database.transaction();
    for (const QString &row : rows) {
        const QStringList f = row.split(QLatin1Char('|'));
        const int id = store::getNextID(QStringLiteral("UserList"), QStringLiteral("ID"), database);
        store::exec(database,
                    QStringLiteral("INSERT INTO UserList (ID, UserName, UserPart, UserPhoto, "
                                   "DiffNum, UserStatus, JxID) VALUES (?, ?, ?, '', ?, 0, '')"),
                    {id, f.value(0), f.value(1), f.value(2, QStringLiteral("0")).toInt()});
        ids << id;
    }
    database.commit();
    return ids;
}

int TempProgramFolder::addAward(const QString &name, int slotCount, int batches, int isReLuck,
                                int rangeType, int range1, int range2, const QString &prize) {
    const int id = store::getNextID(QStringLiteral("JPList"), QStringLiteral("ID"), db());
    store::exec(db(),
                QStringLiteral("INSERT INTO JPList (ID, JXName, JXNum, JXGroup, JXHave, JPName, "
                               "JPPhoto, OrderNum, isReLuck, RangeType, RangeNum1, RangeNum2) "
                               "VALUES (?, ?, ?, ?, 0, ?, '', ?, ?, ?, ?, ?)"),
                {id, name, slotCount, batches, prize, id, isReLuck, rangeType, range1, range2});
    return id;
}
