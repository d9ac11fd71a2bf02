#include "design/templatemodel.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QVariant>

#include <algorithm>
#include <initializer_list>

#include "core/helpers.h"
#include "core/logging.h"
#include "core/store.h"
#include "stage/protocol.h"

namespace design {

namespace {

// Jet kept booleans as -1 and older tools wrote "true"; all three mean a visible row.
const QString kVisible = QStringLiteral("isVisible IN (1, -1, 'true')");

// Reads the columns of one row; a NULL or absent column gives the fallback and, when the caller
// says the column matters, is written down as a default used.
class RowReader {
public:
    RowReader(const QSqlQuery &query, QString owner, QStringList *defaults)
        : m_record(query.record()), m_owner(std::move(owner)), m_defaults(defaults) {}

    QString text(const QString &column, const QString &fallback, bool used = true) {
        const QVariant value = raw(column, used);
        return value.isNull() ? fallback : value.toString();
    }
    int integer(const QString &column, int fallback, bool used = true) {
        const QVariant value = raw(column, used);
        return value.isNull() ? fallback : value.toInt();
    }
    double real(const QString &column, double fallback, bool used = true) {
        const QVariant value = raw(column, used);
        return value.isNull() ? fallback : value.toDouble();
    }

private:
    QVariant raw(const QString &column, bool used) {
        const int index = m_record.indexOf(column);
        const QVariant value = index < 0 ? QVariant() : m_record.value(index);
        if (value.isNull() && used && m_defaults) m_defaults->append(m_owner + column);
        return value;
    }

    QSqlRecord m_record;
    QString m_owner;
    QStringList *m_defaults;
};

QString kindOfType(const QString &objType, const QString &objName) {
    if (objType == proto::vbAddTxt) return QStringLiteral("txt");
    if (objType == proto::vbAddStxt) return QStringLiteral("scr");
    if (objType == proto::vbAddImg) return QStringLiteral("img");
    if (objType == proto::vbAddSwf) return QStringLiteral("swf");
    if (objType == proto::vbAddJpBox) return QStringLiteral("ssm");
    return objectKind(objName);
}

ObjRow objectFrom(const QSqlQuery &query, QStringList *defaults) {
    const QString name = query.record().value(QStringLiteral("ObjName")).toString();
    RowReader in(query, QStringLiteral("LuckObj:") + name + QLatin1Char('.'), defaults);
    ObjRow row;
    row.ObjName = name;
    row.ObjType = in.text(QStringLiteral("ObjType"), QString());
    const QString kind = kindOfType(row.ObjType, name);
    // Whether the row's kind shows this column: only those count as defaults when NULL.
    const auto uses = [&kind](std::initializer_list<const char *> kinds) {
        return std::any_of(kinds.begin(), kinds.end(),
                           [&kind](const char *each) { return kind == QLatin1String(each); });
    };
    const bool textual = uses({"txt", "scr"});
    row.ObjDepth = static_cast<qint16>(in.integer(QStringLiteral("ObjDepth"), 0));
    row.ObjDirection = in.integer(QStringLiteral("ObjDirection"), 0, uses({"scr"}));
    row.ObjX = in.real(QStringLiteral("ObjX"), 0);
    row.ObjY = in.real(QStringLiteral("ObjY"), 0);
    row.ObjW = in.integer(QStringLiteral("ObjW"), row.ObjW, uses({"img", "swf", "scr", "ssm"}));
    row.ObjH = in.integer(QStringLiteral("ObjH"), row.ObjH, uses({"img", "swf", "scr", "ssm"}));
    row.ObjAlpha =
        in.integer(QStringLiteral("ObjAlpha"), row.ObjAlpha, uses({"txt", "img", "scr"}));
    row.bgColor = in.text(QStringLiteral("bgColor"), row.bgColor, textual);
    row.bgAlpha = in.integer(QStringLiteral("bgAlpha"), row.bgAlpha, textual);
    row.borderNum = in.integer(QStringLiteral("borderNum"), row.borderNum, textual);
    row.borderType = in.text(QStringLiteral("borderType"), row.borderType, textual);
    row.fTxt = in.text(QStringLiteral("fTxt"), row.fTxt, textual);
    const bool font = uses({"txt", "scr", "ssm"});
    row.fFont = in.text(QStringLiteral("fFont"), row.fFont, font);
    row.fColor = in.text(QStringLiteral("fColor"), row.fColor, font);
    row.fSize = in.integer(QStringLiteral("fSize"), row.fSize, font);
    row.fBold = in.text(QStringLiteral("fBold"), row.fBold, font);
    row.fItalic = in.text(QStringLiteral("fItalic"), row.fItalic, font);
    row.fUnderline = in.text(QStringLiteral("fUnderline"), row.fUnderline, font);
    row.lineHeight = in.real(QStringLiteral("lineHeight"), row.lineHeight, uses({"txt"}));
    row.txtAlign = in.text(QStringLiteral("txtAlign"), row.txtAlign, uses({"txt"}));
    row.isShadown = in.integer(QStringLiteral("isShadown"), row.isShadown, textual);
    row.SrcV = in.integer(QStringLiteral("SrcV"), row.SrcV, uses({"scr"}));
    row.ImgPath =
        normalizeSlashes(in.text(QStringLiteral("ImgPath"), QString(), uses({"img", "swf"})));
    row.isImgFilter = in.text(QStringLiteral("isImgFilter"), row.isImgFilter, uses({"img"}));
    return row;
}

void fillPlay(const QSqlQuery &query, PlayRow *row, QStringList *defaults) {
    RowReader in(query, QStringLiteral("LuckPlay:") + row->ObjName + QLatin1Char('.'), defaults);
    const bool block = row->ObjName == rows::blockValue;
    const bool title = row->ObjName == rows::playTitle;
    row->BgType = in.text(QStringLiteral("BgType"), row->BgType, block);
    row->BgColor = in.text(QStringLiteral("BgColor"), row->BgColor);
    row->BgAlpha = in.integer(QStringLiteral("BgAlpha"), row->BgAlpha);
    row->DotX = in.integer(QStringLiteral("DotX"), row->DotX, !title);
    row->DotY = in.integer(QStringLiteral("DotY"), row->DotY, !title);
    row->PaddingNum = in.integer(QStringLiteral("PaddingNum"), row->PaddingNum);
    row->boxW = in.integer(QStringLiteral("boxW"), row->boxW, title);
    row->boxH = in.integer(QStringLiteral("boxH"), row->boxH, title);
    row->Speed = in.integer(QStringLiteral("Speed"), row->Speed, title);
    row->ColNum = in.integer(QStringLiteral("ColNum"), row->ColNum, title);
    row->fName = in.text(QStringLiteral("fName"), row->fName);
    row->fColor = in.text(QStringLiteral("fColor"), row->fColor);
    row->fSize = in.integer(QStringLiteral("fSize"), row->fSize);
    row->txtAlpha = in.integer(QStringLiteral("txtAlpha"), row->txtAlpha);
    row->fBold = in.text(QStringLiteral("fBold"), row->fBold);
    row->fItalic = in.text(QStringLiteral("fItalic"), row->fItalic);
    row->fUnderline = in.text(QStringLiteral("fUnderline"), row->fUnderline);
    row->txtAlign = in.text(QStringLiteral("txtAlign"), row->txtAlign);
    row->isShadown = in.integer(QStringLiteral("isShadown"), row->isShadown);
}

void note(QStringList *defaults, const QString &what) {
    if (defaults) defaults->append(what);
}

// A template the query cannot read looks like an empty one to the stage; the log tells them
// apart.
bool run(QSqlQuery &query, const QString &sql = QString()) {
    if (sql.isEmpty() ? query.exec() : query.exec(sql)) return true;
    qCWarning(lcDesign) << "template read:" << query.lastError().text();
    return false;
}

}  // namespace

QString objectKind(const QString &objName) {
    return objName.left(3).toLower();
}

PlayRow defaultPlayRow(const QString &name) {
    PlayRow row;
    row.ObjName = name;
    if (name == rows::playTitle) {
        row.BgColor = QStringLiteral("0x00FE00");
        row.BgAlpha = 80;
    } else if (name == rows::playName) {
        row.fSize = 16;
        row.fBold = QStringLiteral("false");
    }
    return row;
}

BgRow readBg(QSqlDatabase db, QStringList *defaults) {
    BgRow bg;
    QSqlQuery query(db);
    query.setForwardOnly(true);
    if (!run(query, QStringLiteral("SELECT * FROM LuckBg ORDER BY ROWID LIMIT 1")) ||
        !query.next()) {
        note(defaults, QStringLiteral("LuckBg"));
        return bg;
    }
    RowReader in(query, QStringLiteral("LuckBg:"), defaults);
    bg.found = true;
    bg.BgW = static_cast<qint16>(in.integer(QStringLiteral("BgW"), 1024));
    bg.BgH = static_cast<qint16>(in.integer(QStringLiteral("BgH"), 768));
    bg.BgColor = in.text(QStringLiteral("BgColor"), QStringLiteral("0x000000"));
    bg.BgImg = normalizeSlashes(in.text(QStringLiteral("BgImg"), QString()));
    return bg;
}

QList<ObjRow> readVisibleObjects(QSqlDatabase db, QStringList *defaults) {
    QList<ObjRow> objects;
    QSqlQuery query(db);
    query.setForwardOnly(true);
    if (!run(query, QStringLiteral("SELECT * FROM LuckObj WHERE ") + kVisible +
                        QStringLiteral(" ORDER BY ObjDepth ASC, ObjName ASC")))
        return objects;
    while (query.next())
        objects.append(objectFrom(query, defaults));
    return objects;
}

bool readVisibleObject(QSqlDatabase db, const QString &name, ObjRow *row, QStringList *defaults) {
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT * FROM LuckObj WHERE ObjName=? AND ") + kVisible);
    query.addBindValue(name);
    if (!run(query) || !query.next()) return false;
    *row = objectFrom(query, defaults);
    return true;
}

PlayRow readPlay(QSqlDatabase db, const QString &name, QStringList *defaults) {
    PlayRow row = defaultPlayRow(name);
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT * FROM LuckPlay WHERE ObjName=? LIMIT 1"));
    query.addBindValue(name);
    if (!run(query) || !query.next()) {
        note(defaults, QStringLiteral("LuckPlay:") + name);
        return row;
    }
    row.found = true;
    fillPlay(query, &row, defaults);
    return row;
}

TemplateData readTemplate(QSqlDatabase db) {
    TemplateData data;
    data.bg = readBg(db, &data.defaultsUsed);
    data.objects = readVisibleObjects(db, &data.defaultsUsed);
    data.blockValue = readPlay(db, rows::blockValue, &data.defaultsUsed);
    data.playTitle = readPlay(db, rows::playTitle, &data.defaultsUsed);
    data.playName = readPlay(db, rows::playName, &data.defaultsUsed);
    return data;
}

bool readTemplateFile(const QString &path, TemplateData *data, QString *error) {
    const QString connection = QStringLiteral("quellio.template.read");
    bool opened = store::openTemplate(path, connection, error);
    if (opened) *data = readTemplate(QSqlDatabase::database(connection, false));
    store::close(connection);
    return opened;
}

}  // namespace design
