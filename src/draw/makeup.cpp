#include "draw/makeup.h"

#include <QCoreApplication>
#include <QSqlError>
#include <QSqlQuery>

#include <functional>
#include <optional>

#include "core/store.h"
#include "draw/auditsession.h"

namespace draw {

namespace {

std::optional<qint64> wholeNumber(const QString &text) {
    bool ok = false;
    const qint64 value = text.trimmed().toLongLong(&ok);
    return ok ? std::optional<qint64>(value) : std::nullopt;
}

MakeupFault countFault(const QString &typed, const QString &tooFew, const QString &tooMany,
                       MakeupField field) {
    const std::optional<qint64> value = wholeNumber(typed);
    if (!value || *value < 1) return {tooFew, field};
    if (*value > kMaxSlots) return {tooMany, field};
    return {};
}

// The line goes out before the commit: a change the audit log does not hold is not made.
bool logged(const AuditEvent &event, QString *error) {
    if (logDrawEvent(event)) return true;
    if (error) *error = kAuditWriteFailed;
    return false;
}

bool inTransaction(QSqlDatabase db, QString *error, const std::function<bool()> &work) {
    if (!db.transaction()) {
        if (error) *error = db.lastError().text();
        return false;
    }
    if (work() && db.commit()) return true;
    if (error && error->isEmpty()) *error = db.lastError().text();
    db.rollback();
    return false;
}

}  // namespace

QList<MakeupChoice> makeupChoices(QSqlDatabase db) {
    QList<MakeupChoice> choices;
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.exec(QStringLiteral("SELECT ID, JXName, JPName FROM JPList ORDER BY OrderNum ASC, ID"));
    while (query.next()) {
        const int id = query.value(0).toInt();
        choices.append({id, QString::number(id) + QLatin1Char('|') + query.value(1).toString() +
                                QLatin1Char('(') + query.value(2).toString() + QLatin1Char(')')});
    }
    return choices;
}

int choiceId(const QString &text) {
    const qsizetype bar = text.indexOf(QLatin1Char('|'));
    if (bar <= 0) return 0;
    bool ok = false;
    const int id = text.left(bar).trimmed().toInt(&ok);
    return ok && id > 0 ? id : 0;
}

int slotsOf(QSqlDatabase db, int awardId) {
    const QVariant slotCount =
        store::scalar(db, QStringLiteral("SELECT JXNum FROM JPList WHERE ID=?"), {awardId});
    return slotCount.isValid() ? slotCount.toInt() : -1;
}

MakeupFault checkAddedSlots(const QString &typed, int slotsNow) {
    const std::optional<qint64> value = wholeNumber(typed);
    if (!value || *value < 1)
        return {QCoreApplication::translate("draw", "至少追加一个名额!"), MakeupField::AddedSlots};
    if (*value + qMax(slotsNow, 0) > kMaxSlots)
        return {QCoreApplication::translate("draw", "追加后奖品名额最多为32767个"),
                MakeupField::AddedSlots};
    return {};
}

bool addSlots(QSqlDatabase db, int awardId, int count, QString *error) {
    return inTransaction(db, error, [&] {
        QSqlQuery query(db);
        query.prepare(QStringLiteral("UPDATE JPList SET JXNum=JXNum+? WHERE ID=?"));
        query.addBindValue(count);
        query.addBindValue(awardId);
        if (!query.exec()) {
            if (error) *error = query.lastError().text();
            return false;
        }
        if (query.numRowsAffected() == 1)
            return logged(AuditEvent(auditevent::addSlots)
                              .add(QStringLiteral("award"), awardId)
                              .add(QStringLiteral("added"), count),
                          error);
        if (error) *error = QCoreApplication::translate("draw", "找不到指定的奖项!");
        return false;
    });
}

MakeupFault checkNewAward(const NewAward &award) {
    if (award.name.trimmed().isEmpty())
        return {QCoreApplication::translate("draw", "请输入奖项名称!"), MakeupField::AwardName};
    MakeupFault fault = countFault(
        award.slotCount, QCoreApplication::translate("draw", "至少存在1个名额"),
        QCoreApplication::translate("draw", "奖品名额最多为32767个"), MakeupField::SlotCount);
    if (fault.failed()) return fault;
    fault = countFault(award.batchCount, QCoreApplication::translate("draw", "至少存在1个抽奖批次"),
                       QCoreApplication::translate("draw", "抽奖批次最多为32767次"),
                       MakeupField::BatchCount);
    if (fault.failed()) return fault;
    if (award.prizeName.trimmed().isEmpty())
        return {QCoreApplication::translate("draw", "奖品名称不能为空"), MakeupField::PrizeName};
    return {};
}

int insertAward(QSqlDatabase db, const NewAward &award, QString *error) {
    int id = 0;
    const bool inserted = inTransaction(db, error, [&] {
        id = store::getNextID(QStringLiteral("JPList"), QStringLiteral("ID"), db);
        const int order =
            store::getNextID(QStringLiteral("JPList"), QStringLiteral("OrderNum"), db);
        if (id > kMaxSlots || order > kMaxSlots) {
            if (error) *error = kAwardsFullMessage;
            return false;
        }
        const int slotCount = award.slotCount.trimmed().toInt();
        const int batches = award.batchCount.trimmed().toInt();
        const AwardRule rule{id, award.excludeWinners ? 1 : 0, 0, 0, 0};
        return store::exec(db,
                           QStringLiteral("INSERT INTO JPList (ID,JXName,JXNum,JXGroup,JPName,"
                                          "JPPhoto,OrderNum,isReLuck) VALUES (?,?,?,?,?,'',?,?)"),
                           {id, award.name.trimmed(), slotCount, batches, award.prizeName.trimmed(),
                            order, rule.isReLuck},
                           error) &&
               logged(AuditEvent(auditevent::newAward)
                          .add(QStringLiteral("award"), id)
                          .add(QStringLiteral("slots"), slotCount)
                          .add(QStringLiteral("batches"), batches)
                          .add(QStringLiteral("rule"), ruleText(rule)),
                      error);
    });
    return inserted ? id : 0;
}

}  // namespace draw
