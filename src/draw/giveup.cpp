#include "draw/giveup.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>
#include <set>

#include "core/store.h"
#include "draw/auditsession.h"

namespace draw {

namespace {

// "JxID > ''" lists every non-empty text (also "无") and lets the JxID index do the filtering.
const QString kListed = QStringLiteral(" FROM UserList WHERE JxID > ''");
const QString kNameFilter = QStringLiteral(" AND UserName LIKE ? ESCAPE '\\'");

QHash<int, QString> awardNamesById(QSqlDatabase db) {
    QHash<int, QString> names;
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.exec(QStringLiteral("SELECT ID, JXName FROM JPList"));
    while (query.next())
        names.insert(query.value(0).toInt(), query.value(1).toString().trimmed());
    return names;
}

}  // namespace

QString awardNames(const QString &jxId, const QHash<int, QString> &namesById) {
    std::set<int> ids;
    static const QRegularExpression marker(QStringLiteral("\\|(\\d+)\\|"));
    for (auto match = marker.globalMatch(jxId); match.hasNext();)
        ids.insert(match.next().captured(1).toInt());
    QStringList names;
    for (int id : ids)
        if (const auto found = namesById.constFind(id); found != namesById.constEnd())
            names << *found;
    return names.join(QLatin1Char(' '));
}

GiveUpPage giveUpPage(QSqlDatabase db, const QString &keyword, int pageNo) {
    const QString key = keyword.trimmed();
    QVariantList values;
    QString where = kListed;
    if (!key.isEmpty()) {
        where += kNameFilter;
        values << store::containsPattern(key);
    }
    GiveUpPage page;
    page.total = store::scalar(db, QStringLiteral("SELECT COUNT(*)") + where, values).toInt();
    page.pages = std::max(1, (page.total + kGiveUpPageSize - 1) / kGiveUpPageSize);
    page.pageNo = std::clamp(pageNo, 1, page.pages);
    if (page.total == 0) return page;

    const QHash<int, QString> names = awardNamesById(db);
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT ID, UserName, JxID, UserStatus") + where +
                  QStringLiteral(" ORDER BY UpdateTime DESC, ID ASC LIMIT ? OFFSET ?"));
    for (const QVariant &value : values)
        query.addBindValue(value);
    query.addBindValue(kGiveUpPageSize);
    query.addBindValue(qint64(page.pageNo - 1) * kGiveUpPageSize);
    query.exec();
    while (query.next()) {
        GiveUpRow row;
        row.id = query.value(0).toLongLong();
        row.number = int(page.rows.size()) + 1;
        row.userName = query.value(1).toString().trimmed();
        row.awards = awardNames(query.value(2).toString(), names);
        row.status = query.value(3).toInt();
        page.rows.append(row);
    }
    return page;
}

QString pageInfo(const GiveUpPage &page) {
    return QCoreApplication::translate("draw", "总计∶%1 人, 当前第%2页/共%3页")
        .arg(page.total)
        .arg(page.pageNo)
        .arg(page.pages);
}

StatusLook giveUpStatus(int status) {
    switch (status) {
        case 1:
            return {QCoreApplication::translate("draw", "已弃奖"), QColor(255, 0, 0)};
        case 2:
            return {QCoreApplication::translate("draw", "已领奖"), QColor(0, 0, 255)};
        case 3:
            return {QCoreApplication::translate("draw", "已中奖"), QColor(18, 118, 0)};
        default:
            return {};
    }
}

bool giveUp(QSqlDatabase db, const QList<qint64> &ids, QString *error) {
    if (ids.isEmpty()) return true;
    if (!db.transaction()) {
        if (error) *error = db.lastError().text();
        return false;
    }
    bool ok = true;
    for (qint64 id : ids) {
        ok = store::exec(db, QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=1 WHERE ID=?"),
                         {QStringLiteral("无"), id}, error);
        if (!ok) break;
    }
    if (ok &&
        !logDrawEvent(AuditEvent(auditevent::giveUp)
                          .add(QStringLiteral("ids"), idListText({ids.begin(), ids.end()})))) {
        ok = false;
        if (error) *error = kAuditWriteFailed;
    }
    if (ok && db.commit()) return true;
    if (error && error->isEmpty()) *error = db.lastError().text();
    db.rollback();
    return false;
}

}  // namespace draw
