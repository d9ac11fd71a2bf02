#pragma once

// The store of a large party for the benchmarks.

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>

#include "core/programfolder.h"
#include "core/startup.h"
#include "core/store.h"

// n participants with DiffNum 0..9; one in 200 already holds a win of one of 20 awards.
inline void fillStore(QSqlDatabase db, int n) {
    db.transaction();
    QSqlQuery award(db);
    award.prepare(
        QStringLiteral("INSERT INTO JPList (ID, JXName, JXNum, JXGroup, JPName, "
                       "OrderNum, isReLuck) VALUES (?, ?, ?, ?, ?, ?, 0)"));
    for (int a = 1; a <= 20; ++a) {
        award.addBindValue(a);
        award.addBindValue(QStringLiteral("奖项%1").arg(a));
        award.addBindValue(a == 1 ? 10000 : 1000);
        award.addBindValue(a == 1 ? 1000 : 1);
        award.addBindValue(QStringLiteral("奖品%1").arg(a));
        award.addBindValue(a);
        award.exec();
    }
    QSqlQuery user(db);
    user.prepare(
        QStringLiteral("INSERT INTO UserList (ID, UserName, UserPart, UserPhoto, "
                       "DiffNum, UserStatus, JxID, UpdateTime) "
                       "VALUES (?, ?, '研发部', '', ?, ?, ?, ?)"));
    const QString now = store::nowText();
    for (int id = 1; id <= n; ++id) {
        const bool winner = id % 200 == 0;
        user.bindValue(0, id);
        user.bindValue(1, QStringLiteral("员工%1").arg(id));
        user.bindValue(2, id % 10);
        user.bindValue(3, winner ? 3 : 0);
        user.bindValue(4, winner ? store::awardMarker(2 + id % 19) : QVariant());
        user.bindValue(5, winner ? QVariant(now) : QVariant());
        user.exec();
    }
    db.commit();
}

// A fresh program folder from the factory files in `folder`, started, with n participants.
// False when the program could not start there.
inline bool startFilledFolder(const QString &folder, int n) {
    programfolder::copyTree(QStringLiteral(QUELLIO_FACTORY_DIR), folder);
    QFile::remove(folder + QStringLiteral("/quellio.lock"));
    qputenv("QUELLIO_HOME", folder.toUtf8());
    if (!startUp(folder)) return false;
    fillStore(store::mainConn(), n);
    return true;
}
