#include "roster/replaceguard.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSaveFile>
#include <QSqlError>
#include <QSqlQuery>

#include "core/store.h"
#include "core/ui.h"
#include "roster/rosterpage.h"

namespace roster {

StoredRecords storedRecords(QSqlDatabase db) {
    StoredRecords records;
    records.participants =
        store::scalar(db, QStringLiteral("SELECT COUNT(*) FROM UserList")).toLongLong();
    // Each won award is one "|ID|" marker in JxID: two bars per win.
    records.wins = store::scalar(db, QStringLiteral("SELECT COALESCE(SUM(length(JxID) - "
                                                    "length(replace(JxID, '|', ''))), 0) / 2 "
                                                    "FROM UserList WHERE JxID > ''"))
                       .toLongLong();
    records.giveUps =
        store::scalar(db, QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=1"))
            .toLongLong();
    return records;
}

QString replaceQuestion(const StoredRecords &records) {
    return QCoreApplication::translate("replaceguard",
                                       "将删除现有 %1 名参与者和 %2 条中奖记录。删除前会在 History "
                                       "文件夹保存一份名单快照。\n确认要替换原有名单么?")
        .arg(records.participants)
        .arg(records.wins);
}

QString resetQuestion(const StoredRecords &records) {
    const QString giveUps =
        records.giveUps > 0
            ? QCoreApplication::translate("replaceguard", "和 %1 条弃奖记录").arg(records.giveUps)
            : QString();
    return QCoreApplication::translate(
               "replaceguard",
               "将清除现有 %1 条中奖记录%2。清除前会在 History 文件夹保存一份名单快照。"
               "\n确认要清空所有中奖记录,复原至初始状态么?")
        .arg(records.wins)
        .arg(giveUps);
}

namespace {

bool snapshotWritten(QSqlDatabase db, const QString &appPath) {
    QString error;
    if (!writeRosterSnapshot(db, appPath, QDateTime::currentDateTime(), &error).isEmpty())
        return true;
    ui().message(
        QCoreApplication::translate("replaceguard", "无法保存名单快照,名单未作任何改动。\n") +
            error,
        MsgStyle::Critical, titles::error);
    return false;
}

}  // namespace

bool confirmReplace(QSqlDatabase db, const QString &appPath, const QString &title) {
    const StoredRecords records = storedRecords(db);
    if (records.isEmpty()) return true;
    return ui().question(replaceQuestion(records), title) && snapshotWritten(db, appPath);
}

ResetAnswer confirmReset(QSqlDatabase db, const QString &appPath) {
    const StoredRecords records = storedRecords(db);
    if (!records.hasDrawRecords()) return ResetAnswer::NothingRecorded;
    if (!ui().question(resetQuestion(records), titles::warning)) return ResetAnswer::Refused;
    return snapshotWritten(db, appPath) ? ResetAnswer::Confirmed : ResetAnswer::Refused;
}

bool importOpensOnAppend(QSqlDatabase db) {
    return !store::scalar(db, QStringLiteral("SELECT 1 FROM UserList LIMIT 1")).isNull();
}

QString rosterSnapshotPath(const QString &appPath, const QDateTime &time) {
    const QString base = QDir(appPath).filePath(QStringLiteral("History/名单快照")) +
                         time.toString(QStringLiteral("yyyyMMddHHmm"));
    QString path = base + QStringLiteral(".csv");
    for (int n = 2; QFileInfo::exists(path); ++n)
        path = base + QStringLiteral("-%1.csv").arg(n);
    return path;
}

namespace {

QHash<QString, QString> awardNames(QSqlDatabase db) {
    QHash<QString, QString> names;
    QSqlQuery query(QStringLiteral("SELECT ID, JXName FROM JPList"), db);
    while (query.next())
        names.insert(query.value(0).toString(), query.value(1).toString());
    return names;
}

// "|1||3|" -> "一等奖、三等奖", an award since removed by its number.
QString wonAwards(const QString &markers, const QHash<QString, QString> &names) {
    QStringList won;
    for (const QString &id : markers.split(QLatin1Char('|'), Qt::SkipEmptyParts))
        won << names.value(id, id);
    return won.join(QStringLiteral("、"));
}

}  // namespace

QString writeRosterSnapshot(QSqlDatabase db, const QString &appPath, const QDateTime &time,
                            QString *error) {
    QDir().mkpath(QDir(appPath).filePath(QStringLiteral("History")));
    const QString path = rosterSnapshotPath(appPath, time);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        *error = file.errorString();
        return QString();
    }
    const QHash<QString, QString> names = awardNames(db);
    QByteArray bytes("\xEF\xBB\xBF");
    bytes += csvLine({QStringLiteral("编号"), QStringLiteral("姓名"), QStringLiteral("备注"),
                      QStringLiteral("照片"), QStringLiteral("区分编号"), QStringLiteral("状态"),
                      QStringLiteral("中奖奖项"), QStringLiteral("时间")})
                 .toUtf8() +
             "\r\n";
    QSqlQuery query(db);
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT ID, UserName, UserPart, UserPhoto, DiffNum, "
                                   "UserStatus, JxID, UpdateTime FROM UserList ORDER BY ID"))) {
        *error = query.lastError().text();
        return QString();
    }
    while (query.next()) {
        bytes += csvLine({query.value(0).toString(), query.value(1).toString(),
                          query.value(2).toString(), query.value(3).toString(),
                          diffNumText(query.value(4)), statusWord(query.value(5).toInt()),
                          wonAwards(query.value(6).toString(), names), query.value(7).toString()})
                     .toUtf8() +
                 "\r\n";
        if (bytes.size() > (1 << 20)) {
            file.write(bytes);
            bytes.clear();
        }
    }
    file.write(bytes);
    if (!file.commit()) {
        *error = file.errorString();
        return QString();
    }
    return path;
}

}  // namespace roster
