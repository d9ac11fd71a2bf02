#include "awards/awardbook.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>

#include "core/appstate.h"
#include "core/helpers.h"
#include "core/settings.h"
#include "core/ui.h"
#include "roster/photofiles.h"

const QString AwardBook::kPhotoPrefix = QStringLiteral("Photos/JP");
const QString AwardBook::kCameraFile = QStringLiteral("Photos/camertemp.jpg");
const TranslatedText AwardBook::kFullMessage{
    "awards", QT_TRANSLATE_NOOP("awards", "奖项编号已到上限32767,不能再增加奖项!")};

namespace awardtext {

QString reLuck(int isReLuck) {
    return isReLuck == 0 ? QCoreApplication::translate("awards", "是")
                         : QCoreApplication::translate("awards", "否");
}

QColor reLuckColor(int isReLuck) {
    return isReLuck == 0 ? kRed : kGreen;
}

QString range(int rangeType, int first, int second) {
    switch (rangeType) {
        case 1:
            return QCoreApplication::translate("awards", "大于(>) %1").arg(first);
        case 2:
            return QCoreApplication::translate("awards", "等于(=) %1").arg(first);
        case 3:
            return QCoreApplication::translate("awards", "小于(<) %1").arg(first);
        case 4:
            return QCoreApplication::translate("awards", "%1 < (介于) < %2").arg(first).arg(second);
        default:
            return QCoreApplication::translate("awards", "不限制");
    }
}

QColor rangeColor(int rangeType) {
    return rangeType >= 1 && rangeType <= 4 ? QColor() : kGreen;
}

QStringList rangeItems() {
    return {QCoreApplication::translate("awards", "不限区分编号"),
            QCoreApplication::translate("awards", "区分编号大于"),
            QCoreApplication::translate("awards", "区分编号等于"),
            QCoreApplication::translate("awards", "区分编号小于"),
            QCoreApplication::translate("awards", "区分编号介于")};
}

}  // namespace awardtext

namespace {

// A whole number typed in a digits-only box; nullopt when the text is not one.
std::optional<qint64> wholeNumber(const QString &text) {
    bool ok = false;
    const qint64 value = text.trimmed().toLongLong(&ok);
    return ok ? std::optional<qint64>(value) : std::nullopt;
}

int rangeNumber(const QString &text) {
    return int(wholeNumber(text).value_or(0));
}

AwardFault countFault(const QString &text, const QString &tooFew, const QString &tooMany,
                      AwardField field) {
    const std::optional<qint64> value = wholeNumber(text);
    if (!value || *value < 1) return {tooFew, field};
    if (*value > AwardBook::kMax16) return {tooMany, field};
    return {};
}

AwardRow rowFrom(const QSqlQuery &query) {
    AwardRow row;
    row.ID = query.value(0).toInt();
    row.OrderNum = query.value(1).toInt();
    row.JXName = query.value(2).toString().trimmed();
    row.JXNum = query.value(3).toInt();
    row.JXGroup = query.value(4).toInt();
    row.JPName = query.value(5).toString();
    row.JPPhoto = normalizeSlashes(query.value(6).toString());
    row.isReLuck = query.value(7).toInt();  // NULL reads as 0
    row.RangeType = query.value(8).toInt();
    row.RangeNum1 = query.value(9).toInt();
    row.RangeNum2 = query.value(10).toInt();
    return row;
}

const QString kColumns = QStringLiteral(
    "SELECT ID, OrderNum, JXName, JXNum, JXGroup, JPName, JPPhoto, isReLuck, RangeType, "
    "RangeNum1, RangeNum2 FROM JPList");

// The award is still stored; only its picture is missing.
void warnCameraPhotoLost() {
    ui().message(QCoreApplication::translate("awards", "因拍摄照片失败,照片保存未成功!"),
                 MsgStyle::Exclamation, titles::warning);
}

}  // namespace

AwardFault AwardBook::validate(const AwardInput &input) {
    if (input.JXName.trimmed().isEmpty())
        return {QCoreApplication::translate("awards", "请输入奖项名称!"), AwardField::JxName};
    AwardFault fault = countFault(
        input.JXNum, QCoreApplication::translate("awards", "至少存在1个名额"),
        QCoreApplication::translate("awards", "奖品名额最多为32767个"), AwardField::JxNum);
    if (fault.failed()) return fault;
    fault = countFault(input.JXGroup, QCoreApplication::translate("awards", "至少存在1个抽奖批次"),
                       QCoreApplication::translate("awards", "抽奖批次最多为32767次"),
                       AwardField::JxGroup);
    if (fault.failed()) return fault;
    if (input.txtPhoto.trimmed() == QLatin1String("no") && input.JPName.trimmed().isEmpty())
        return {QCoreApplication::translate("awards", "奖品名称和奖品图片不能同时为空"),
                AwardField::JpName};
    if (input.RangeType == 4 && rangeNumber(input.RangeNum2) <= rangeNumber(input.RangeNum1))
        return {QCoreApplication::translate("awards", "区分编号范围值错误"), AwardField::RangeNum2};
    return {};
}

QList<AwardRow> AwardBook::list(QString *error) const {
    QList<AwardRow> rows;
    QSqlQuery query(m_db);
    if (!query.exec(kColumns + QStringLiteral(" ORDER BY OrderNum ASC, ID ASC"))) {
        if (error) *error = query.lastError().text();
        return rows;
    }
    while (query.next())
        rows.append(rowFrom(query));
    return rows;
}

std::optional<AwardRow> AwardBook::find(int id) const {
    QSqlQuery query(m_db);
    query.prepare(kColumns + QStringLiteral(" WHERE ID=?"));
    query.addBindValue(id);
    if (!query.exec() || !query.next()) return std::nullopt;
    return rowFrom(query);
}

bool AwardBook::hasWinners(int id) const {
    return store::scalar(
               m_db,
               QStringLiteral("SELECT 1 FROM UserList WHERE JxID > '' AND JxID LIKE ? LIMIT 1"),
               {store::awardPattern(id)})
        .isValid();
}

int AwardBook::clearWins(int awardId, QString *error) {
    QSqlQuery query(m_db);
    query.prepare(QStringLiteral(
        "SELECT ID, JxID FROM UserList WHERE JxID > '' AND JxID LIKE ? ORDER BY ID"));
    query.addBindValue(store::awardPattern(awardId));
    if (!query.exec()) {
        if (error) *error = query.lastError().text();
        return -1;
    }
    const QString marker = store::awardMarker(awardId);
    int changed = 0;
    while (query.next()) {
        const int userId = query.value(0).toInt();
        const QString left = query.value(1).toString().remove(marker);
        const bool noWinLeft = left.trimmed().isEmpty();
        const QString sql =
            noWinLeft ? QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=0 WHERE ID=?")
                      : QStringLiteral("UPDATE UserList SET JxID=? WHERE ID=?");
        if (!store::exec(m_db, sql, {left, userId}, error)) return -1;
        ++changed;
    }
    return changed;
}

AwardBook::PhotoPlan AwardBook::planPhoto(int id, const QString &txtPhoto) {
    const QString appPath = appState().appPath;
    const QString state = txtPhoto.trimmed();
    PhotoPlan plan;
    if (state == QLatin1String("no")) {
        // Only the .jpg name goes: a picture kept under another extension stays on disk.
        plan.removeFile = kPhotoPrefix + QString::number(id) + QStringLiteral(".jpg");
    } else if (state == QLatin1String("camre")) {
        const QString target = kPhotoPrefix + QString::number(id) + QStringLiteral(".jpg");
        if (fileExists(appPath + kCameraFile)) {
            plan.stored = target;
            plan.copyFrom = appPath + kCameraFile;
        } else {
            plan.cameraMissing = true;
            plan.removeFile = target;
        }
    } else {
        plan.stored = kPhotoPrefix + QString::number(id) + getExt(getFileName(state));
        plan.copyFrom = state;
    }
    return plan;
}

void AwardBook::applyPhoto(const PhotoPlan &plan) const {
    const QString appPath = appState().appPath;
    // Called once the row is written, so a picture this award gave up is only removed when the
    // program owns it and no other row still shows it.
    if (!plan.removeFile.isEmpty()) roster::removeUnnamedPhotos(m_db, appPath, {plan.removeFile});
    if (plan.copyFrom.isEmpty()) return;
    const QString target = appPath + plan.stored;
    // Saving an unchanged picture copies a file onto itself: nothing to do, and removing the
    // target first would lose the picture.
    if (QFileInfo(plan.copyFrom).canonicalFilePath() == QFileInfo(target).canonicalFilePath())
        return;
    if (!fileExists(plan.copyFrom)) return;
    QFile::remove(target);
    QFile::copy(plan.copyFrom, target);
}

bool AwardBook::inTransaction(const std::function<bool(QString *)> &work, QString *error) {
    if (!m_db.transaction()) {
        if (error) *error = m_db.lastError().text();
        return false;
    }
    if (work(error) && m_db.commit()) return true;
    if (error && error->isEmpty()) *error = m_db.lastError().text();
    m_db.rollback();
    return false;
}

bool AwardBook::isFull() const {
    return store::getNextID(QStringLiteral("JPList"), QStringLiteral("ID"), m_db) > kMax16 ||
           store::getNextID(QStringLiteral("JPList"), QStringLiteral("OrderNum"), m_db) > kMax16;
}

int AwardBook::add(const AwardInput &input, QString *error) {
    if (isFull()) {
        if (error) *error = kFullMessage;
        return 0;
    }
    const int id = store::getNextID(QStringLiteral("JPList"), QStringLiteral("ID"), m_db);
    const int order = store::getNextID(QStringLiteral("JPList"), QStringLiteral("OrderNum"), m_db);
    const PhotoPlan plan = planPhoto(id, input.txtPhoto);
    if (plan.cameraMissing) warnCameraPhotoLost();
    const bool inserted = store::exec(
        m_db,
        QStringLiteral("INSERT INTO JPList (ID,JXName,JXNum,JXGroup,JPName,JPPhoto,OrderNum,"
                       "isReLuck,RangeType,RangeNum1,RangeNum2) VALUES (?,?,?,?,?,?,?,?,?,?,?)"),
        {id, input.JXName.trimmed(), input.JXNum.trimmed().toInt(), input.JXGroup.trimmed().toInt(),
         input.JPName.trimmed(), plan.stored, order, input.isReLuck ? 1 : 0, input.RangeType,
         rangeNumber(input.RangeNum1), rangeNumber(input.RangeNum2)},
        error);
    if (!inserted) return 0;
    applyPhoto(plan);
    return id;
}

bool AwardBook::save(int id, const AwardInput &input, QString *error) {
    const PhotoPlan plan = planPhoto(id, input.txtPhoto);
    if (plan.cameraMissing) warnCameraPhotoLost();
    const bool saved = inTransaction(
        [&](QString *failure) {
            if (clearWins(id, failure) < 0) return false;
            return store::exec(
                m_db,
                QStringLiteral("UPDATE JPList SET JXName=?,JXNum=?,JXGroup=?,JXHave=0,JPName=?,"
                               "JPPhoto=?,isReLuck=?,RangeType=?,RangeNum1=?,RangeNum2=? "
                               "WHERE ID=?"),
                {input.JXName.trimmed(), input.JXNum.trimmed().toInt(),
                 input.JXGroup.trimmed().toInt(), input.JPName.trimmed(), plan.stored,
                 input.isReLuck ? 1 : 0, input.RangeType, rangeNumber(input.RangeNum1),
                 rangeNumber(input.RangeNum2), id},
                failure);
        },
        error);
    if (!saved) return false;
    applyPhoto(plan);
    if (id == appState().selJxid) settings::write(QStringLiteral("selJxid"), 0);
    return true;
}

bool AwardBook::remove(const QList<int> &ids, QString *error) {
    QStringList pictures;
    for (int id : ids)
        if (const std::optional<AwardRow> row = find(id)) pictures << row->JPPhoto;
    const bool removed = inTransaction(
        [&](QString *failure) {
            for (int id : ids) {
                if (id <= 0) continue;
                if (clearWins(id, failure) < 0) return false;
                if (!store::exec(m_db, QStringLiteral("DELETE FROM JPList WHERE ID=?"), {id},
                                 failure))
                    return false;
            }
            return renumber(failure);
        },
        error);
    if (!removed) return false;
    roster::removeUnnamedPhotos(m_db, appState().appPath, pictures);
    if (ids.contains(appState().selJxid) && appState().selJxid > 0)
        settings::write(QStringLiteral("selJxid"), 0);
    return true;
}

bool AwardBook::renumber(QString *error) {
    QString readError;
    const QList<AwardRow> rows = list(&readError);
    if (!readError.isEmpty()) {
        if (error) *error = readError;
        return false;
    }
    int counter = 0;
    for (const AwardRow &row : rows)
        if (!store::exec(m_db, QStringLiteral("UPDATE JPList SET OrderNum=? WHERE ID=?"),
                         {++counter, row.ID}, error))
            return false;
    return true;
}

bool AwardBook::move(int id, int step) {
    const std::optional<AwardRow> award = find(id);
    if (!award) return false;
    const int target = award->OrderNum + step;
    const QVariant neighbour = store::scalar(
        m_db, QStringLiteral("SELECT ID FROM JPList WHERE OrderNum=? LIMIT 1"), {target});
    if (!neighbour.isValid()) return false;
    return inTransaction(
        [&](QString *failure) {
            return store::exec(m_db, QStringLiteral("UPDATE JPList SET OrderNum=? WHERE ID=?"),
                               {award->OrderNum, neighbour.toInt()}, failure) &&
                   store::exec(m_db, QStringLiteral("UPDATE JPList SET OrderNum=? WHERE ID=?"),
                               {target, id}, failure);
        },
        nullptr);
}
