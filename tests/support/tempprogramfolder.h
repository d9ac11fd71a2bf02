#pragma once

#include <QSqlDatabase>
#include <QTemporaryDir>

// A fresh copy of the factory program folder in a temporary directory, with QUELLIO_HOME
// pointing at it and the shared state cleared. Each test case gets its own; nothing a test does
// reaches the user's data. The destructor closes the store and releases the lock.
class TempProgramFolder {
public:
    TempProgramFolder();
    ~TempProgramFolder();
    TempProgramFolder(const TempProgramFolder &) = delete;
    TempProgramFolder &operator=(const TempProgramFolder &) = delete;

    bool isValid() const { return m_valid; }
    // The folder with a trailing "/".
    QString path() const;
    QString path(const QString &relative) const { return path() + relative; }

    // Runs the program's start-up on this folder (store opened, settings read).
    bool start();
    // The open data store (after start()).
    QSqlDatabase db() const;

    // Edits config.ini directly, as a user with a text editor would.
    void setConfig(const QString &section, const QString &key, const QString &value);
    void removeConfigKey(const QString &key);

    // Adds participants "name|part|diffnum" (part and diffnum optional) and returns their IDs.
    QList<int> addUsers(const QStringList &rows);
    // Adds an award and returns its ID.
    int addAward(const QString &name, int slotCount, int batches, int isReLuck = 1,
                 int rangeType = 0, int range1 = 0, int range2 = 0,
                 const QString &prize = QString());

private:
    QTemporaryDir m_dir;
    bool m_valid = false;
};
