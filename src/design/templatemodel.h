#pragma once

#include <QList>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>

// The rows of a stage template (.jsk) as plain values. The reader fills them from a template
// connection; the payload builders (payloads.h) turn them into stage commands. A value that the
// file lacks (a missing row, a NULL column the object's kind uses) is replaced by its default and
// named in `defaultsUsed`, so a broken template shows up in tests instead of on the projector.
namespace design {

// LuckBg, the page: the first row of the table.
struct BgRow {
    bool found = false;
    qint16 BgW = 0;
    qint16 BgH = 0;
    QString BgColor;
    QString BgImg;  // relative to the program folder, or empty
};

// One LuckObj row. Numbers that the stage receives as they are stored keep their type.
struct ObjRow {
    QString ObjName;
    QString ObjType;
    qint16 ObjDepth = 0;
    int ObjDirection = 0;
    double ObjX = 0;
    double ObjY = 0;
    int ObjW = 0;
    int ObjH = 0;
    int ObjAlpha = 100;
    QString bgColor = QStringLiteral("0xFFFFFF");
    int bgAlpha = 50;
    int borderNum = 5;
    QString borderType = QStringLiteral("round");
    QString fTxt;
    QString fFont = QStringLiteral("宋体");
    QString fColor = QStringLiteral("0x000000");
    int fSize = 16;
    QString fBold = QStringLiteral("false");
    QString fItalic = QStringLiteral("false");
    QString fUnderline = QStringLiteral("false");
    double lineHeight = 0;
    QString txtAlign = QStringLiteral("left");
    int isShadown = 0;
    int SrcV = 1;
    QString ImgPath;  // relative; "\" of old rows already turned into "/"
    QString isImgFilter = QStringLiteral("false");
};

// One LuckPlay row: "blockValue", "playTitle" or "playName".
struct PlayRow {
    QString ObjName;
    bool found = false;
    QString BgType = QStringLiteral("round");
    QString BgColor = QStringLiteral("0xFFFFFF");
    int BgAlpha = 50;
    int DotX = 1;
    int DotY = 1;
    int PaddingNum = 5;
    int boxW = 70;
    int boxH = 60;
    int Speed = 1;
    int ColNum = 2;
    QString fName = QStringLiteral("黑体");
    QString fColor = QStringLiteral("0xFF0000");
    int fSize = 26;
    int txtAlpha = 100;
    QString fBold = QStringLiteral("true");
    QString fItalic = QStringLiteral("false");
    QString fUnderline = QStringLiteral("false");
    QString txtAlign = QStringLiteral("center");
    int isShadown = 1;
};

// The names of the three LuckPlay rows.
namespace rows {
inline const QString blockValue = QStringLiteral("blockValue");
inline const QString playTitle = QStringLiteral("playTitle");
inline const QString playName = QStringLiteral("playName");
}  // namespace rows

// The system objects that come with every template.
namespace sysobj {
inline const QString ssm_vornex = QStringLiteral("ssm_vornex");
inline const QString img_jpimgs = QStringLiteral("img_jpimgs");
inline const QString txt_jpname = QStringLiteral("txt_jpname");
inline const QString txt_jxname = QStringLiteral("txt_jxname");
inline const QString txt_jpinfo = QStringLiteral("txt_jpinfo");
inline const QString scr_luckls = QStringLiteral("scr_luckls");
inline const QString txt_zbt = QStringLiteral("txt_zbt");
inline const QString txt_fbt = QStringLiteral("txt_fbt");
}  // namespace sysobj

// A whole template as the three readers need it.
struct TemplateData {
    BgRow bg;
    QList<ObjRow> objects;  // visible rows only, by ObjDepth
    PlayRow blockValue;
    PlayRow playTitle;
    PlayRow playName;
    QStringList defaultsUsed;  // "LuckBg", "LuckPlay:playName", "LuckObj:txt_zbt.fFont"...
};

// What a missing LuckPlay row stands for: the style and playback defaults of each row.
PlayRow defaultPlayRow(const QString &name);

// Readers over an open template connection. Each appends the defaults it used to `defaults`.
BgRow readBg(QSqlDatabase db, QStringList *defaults = nullptr);
QList<ObjRow> readVisibleObjects(QSqlDatabase db, QStringList *defaults = nullptr);
// The visible row of that name; false when there is none (hidden or absent).
bool readVisibleObject(QSqlDatabase db, const QString &name, ObjRow *row,
                       QStringList *defaults = nullptr);
PlayRow readPlay(QSqlDatabase db, const QString &name, QStringList *defaults = nullptr);
TemplateData readTemplate(QSqlDatabase db);

// Opens the .jsk for this one task, reads it whole and closes it again. False (with a reason in
// error) when the file cannot be opened.
bool readTemplateFile(const QString &path, TemplateData *data, QString *error = nullptr);

// The first three letters of an object name: "txt", "scr", "img", "swf" or "ssm".
QString objectKind(const QString &objName);

}  // namespace design
