#include "roster/rosterpage.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSqlError>
#include <QSqlQuery>

#include "core/appstate.h"
#include "core/helpers.h"
#include "roster/photofiles.h"

namespace roster {

QString orderClause(int sortType) {
    switch (sortType) {
        case ByPart:
            return QStringLiteral(" ORDER BY UserPart ASC, ID ASC");
        case ByDiffNum:
            return QStringLiteral(" ORDER BY DiffNum ASC, ID ASC");
        case ByStatus:
            return QStringLiteral(" ORDER BY UserStatus ASC, ID ASC");
        default:
            return QStringLiteral(" ORDER BY ID ASC");
    }
}

namespace {

const QString kColumns =
    QStringLiteral("SELECT ID, UserName, UserPart, UserPhoto, UserStatus, DiffNum FROM UserList");

Participant participantFrom(const QSqlQuery &query) {
    return {query.value(0).toInt(),
            query.value(1).toString().trimmed(),
            query.value(2).toString().trimmed(),
            query.value(3).toString(),
            query.value(4).toInt(),
            query.value(5)};
}

void setPages(Page *result, int page) {
    result->page = page;
    if (result->recordCount == 0) return;
    result->pageCount = static_cast<int>((result->recordCount + kPageSize - 1) / kPageSize);
    result->page = qBound(1, page, result->pageCount);
}

// The whole roster: the count and the page each walk an index.
bool readAll(QSqlDatabase db, int sortType, int page, Page *result, QString *error) {
    result->recordCount =
        store::scalar(db, QStringLiteral("SELECT COUNT(*) FROM UserList")).toLongLong();
    setPages(result, page);
    if (result->recordCount == 0) return true;
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.prepare(kColumns + orderClause(sortType) + QStringLiteral(" LIMIT ? OFFSET ?"));
    query.addBindValue(kPageSize);
    query.addBindValue(qint64(result->page - 1) * kPageSize);
    if (!query.exec()) {
        *error = query.lastError().text();
        return false;
    }
    while (query.next())
        result->rows.append(participantFrom(query));
    return true;
}

// A search: one pass over the names finds the hits in order, then only the page's rows are read.
bool readHits(QSqlDatabase db, const QString &key, int sortType, int page, Page *result,
              QString *error) {
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT ID FROM UserList WHERE UserName LIKE ? ESCAPE '\\'") +
                  orderClause(sortType));
    query.addBindValue(store::containsPattern(key));
    if (!query.exec()) {
        *error = query.lastError().text();
        return false;
    }
    QList<int> hits;
    while (query.next())
        hits.append(query.value(0).toInt());
    query.finish();
    result->recordCount = hits.size();
    setPages(result, page);
    if (hits.isEmpty()) return true;
    const QList<int> ids = hits.mid((result->page - 1) * kPageSize, kPageSize);
    QStringList marks;
    QHash<int, int> place;
    for (int i = 0; i < ids.size(); ++i) {
        marks << QStringLiteral("?");
        place.insert(ids.at(i), i);
    }
    query.prepare(kColumns + QStringLiteral(" WHERE ID IN (%1)").arg(marks.join(QLatin1Char(','))));
    for (int id : ids)
        query.addBindValue(id);
    if (!query.exec()) {
        *error = query.lastError().text();
        return false;
    }
    result->rows.resize(ids.size());
    while (query.next()) {
        const Participant participant = participantFrom(query);
        result->rows[place.value(participant.id)] = participant;
    }
    return true;
}

}  // namespace

bool readPage(QSqlDatabase db, const QString &search, int sortType, int page, Page *result,
              QString *error) {
    *result = Page();
    const QString key = search.trimmed();
    const bool ok = key.isEmpty() ? readAll(db, sortType, page, result, error)
                                  : readHits(db, key, sortType, page, result, error);
    if (!ok) return false;
    result->won =
        store::scalar(db, QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=3"))
            .toLongLong();
    result->gaveUp =
        store::scalar(db, QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=1"))
            .toLongLong();
    return true;
}

QString statusWord(int status) {
    switch (status) {
        case 1:
            return QCoreApplication::translate("roster", "已弃奖");
        case 2:
            return QCoreApplication::translate("roster", "已领奖");
        case 3:
            return QCoreApplication::translate("roster", "已中奖");
        default:
            return QString();
    }
}

QColor statusColor(int status) {
    if (status == 1) return QColor(255, 0, 0);
    if (status == 3) return QColor(18, 118, 0);
    return QColor();
}

bool isNumeric(const QString &text) {
    bool ok = false;
    text.trimmed().toDouble(&ok);
    return ok;
}

bool diffNumFits(const QString &text) {
    bool ok = false;
    text.trimmed().toInt(&ok);
    return ok || !isNumeric(text);
}

QString diffNumText(const QVariant &value) {
    if (value.isNull()) return QString();
    const QString text = value.toString();
    return isNumeric(text) ? text : QString();
}

bool loadParticipant(QSqlDatabase db, int id, Participant *participant) {
    QSqlQuery query(db);
    query.prepare(
        QStringLiteral("SELECT ID, UserName, UserPart, UserPhoto, UserStatus, DiffNum "
                       "FROM UserList WHERE ID=?"));
    query.addBindValue(id);
    if (!query.exec() || !query.next()) return false;
    *participant = {query.value(0).toInt(),    query.value(1).toString(), query.value(2).toString(),
                    query.value(3).toString(), query.value(4).toInt(),    query.value(5)};
    return true;
}

namespace {

QString idPlaceholders(int count) {
    QStringList marks;
    for (int i = 0; i < count; ++i)
        marks << QStringLiteral("?");
    return marks.join(QLatin1Char(','));
}

QVariantList idValues(const QList<int> &ids) {
    QVariantList values;
    for (int id : ids)
        values << id;
    return values;
}

}  // namespace

bool deleteParticipants(QSqlDatabase db, const QList<int> &ids, QString *error) {
    if (ids.isEmpty()) return true;
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.prepare(
        QStringLiteral("SELECT UserPhoto FROM UserList WHERE UserPhoto<>'' AND ID IN (%1)")
            .arg(idPlaceholders(ids.size())));
    for (int id : ids)
        query.addBindValue(id);
    QStringList photos;
    if (query.exec()) {
        while (query.next())
            photos << query.value(0).toString();
    }
    query.finish();
    if (!store::exec(
            db,
            QStringLiteral("DELETE FROM UserList WHERE ID IN (%1)").arg(idPlaceholders(ids.size())),
            idValues(ids), error))
        return false;
    removeUnnamedPhotos(db, appState().appPath, photos);
    return true;
}

bool setDiffNum(QSqlDatabase db, const QList<int> &ids, int diffNum, QString *error) {
    QVariantList values{diffNum};
    values += idValues(ids);
    return store::exec(db,
                       QStringLiteral("UPDATE UserList SET DiffNum=? WHERE ID IN (%1)")
                           .arg(idPlaceholders(ids.size())),
                       values, error);
}

QString settlePhoto(int id, const QString &photoState, const QString &storedPhoto) {
    const QString base = QStringLiteral("Photos/U") + QString::number(id);
    if (photoState == QLatin1String("camre")) {
        const QString target = base + QStringLiteral(".jpg");
        QFile::remove(appState().path(target));
        QFile::copy(appState().path(QStringLiteral("Photos/camertemp.jpg")),
                    appState().path(target));
        return target;
    }
    if (photoState == QLatin1String("no")) {
        removeUnnamedPhotos(store::mainConn(), appState().appPath, {storedPhoto}, id);
        return QString();
    }
    if (photoState != QLatin1String("yes") && fileExists(photoState) &&
        !store::isStoreFile(photoState)) {
        const QString target = base + getExt(photoState);
        if (QFileInfo(photoState).absoluteFilePath() !=
            QFileInfo(appState().path(target)).absoluteFilePath()) {
            QFile::remove(appState().path(target));
            QFile::copy(photoState, appState().path(target));
        }
        return target;
    }
    return storedPhoto;
}

QString csvLine(const QStringList &fields) {
    QStringList out;
    for (QString field : fields) {
        if (field.contains(QLatin1Char(',')) || field.contains(QLatin1Char('"')) ||
            field.contains(QLatin1Char('\n')) || field.contains(QLatin1Char('\r'))) {
            field.replace(QStringLiteral("\""), QStringLiteral("\"\""));
            field = QLatin1Char('"') + field + QLatin1Char('"');
        }
        out << field;
    }
    return out.join(QLatin1Char(','));
}

bool writeCsv(const QString &path, const QList<QStringList> &lines, QString *error) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        *error = file.errorString();
        return false;
    }
    QByteArray bytes("\xEF\xBB\xBF");
    for (const QStringList &line : lines)
        bytes += csvLine(line).toUtf8() + "\r\n";
    if (file.write(bytes) != bytes.size()) {
        *error = file.errorString();
        return false;
    }
    return true;
}

}  // namespace roster
