#pragma once

#include <QList>
#include <QPair>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>

#include "design/payloads.h"
#include "design/templatemodel.h"

class Stage;

// Pushing a template onto a stage. The console's preview, the designer and the draw screen each
// hand their own Stage to the same routines, so the three pictures of a template cannot drift
// apart. The order is fixed: background, then ClsPage, then the visible objects by depth (and in
// the designer getAsDepth last).
namespace design {

// The context of a reader from the shared state: program folder, titles, luckDelay.
PayloadContext contextFor(Reader reader);

// What a load sent, for the screen that asked for it.
struct LoadReport {
    bool bgFound = false;
    QStringList sentNames;      // objects sent, in order
    QStringList blockPictures;  // objects shown as the block picture: their file is missing
    QString prizePictureHead;   // draw screen: the kept-back prize picture, empty when hidden
    QStringList defaultsUsed;   // from the template reader
};

// setAsBgColor, then setAsBgImg (the console only when the picture exists, after vbSetScale).
// Nothing is sent for a template without a LuckBg row.
void sendBackground(Stage &stage, const BgRow &bg, const PayloadContext &context);
// ClsPage, then one command per object; the designer ends with getAsDepth.
void sendObjects(Stage &stage, const QList<ObjRow> &objects, const PayloadContext &context,
                 LoadReport *report = nullptr);
// Background and objects. The console stops before anything is sent when the page row is
// missing (it tells the operator itself); the others still send the objects.
LoadReport fullLoad(Stage &stage, const TemplateData &data, const PayloadContext &context);
// Reads the .jsk (connection opened and closed for this task) and loads it onto the stage.
bool loadTemplateFile(Stage &stage, const QString &path, const PayloadContext &context,
                      LoadReport *report = nullptr, QString *error = nullptr);

// The draw screen's prize-picture head of a template: the nine leading vbAddImg fields of the
// visible prize picture, each followed by "|"; empty when the row is hidden.
QString prizePictureHead(const TemplateData &data);

// The designer's refresh of one object: the long form of its payload, or delObj when the row is
// hidden or gone.
StageCommand refreshCommand(QSqlDatabase templateDb, const QString &name,
                            const PayloadContext &context);
void refreshObject(Stage &stage, QSqlDatabase templateDb, const QString &name,
                   const PayloadContext &context);

// The roster's longest UserName, or "演示文字" for an empty roster.
QString longestUserName(QSqlDatabase store);
// The vbLoadBlock value from the template's blockValue row. A template without it gets the
// collapsed form and the critical box "找不到抽奖滚动文字样式数据!".
QString loadBlockValue(QSqlDatabase templateDb, const LoadBlockValues &values);
QString loadBlockValue(const QString &templatePath, const LoadBlockValues &values);

// The participants' photos (path as stored, ID) for loadAllUserPics, by ID.
QList<QPair<QString, int>> userPhotos(QSqlDatabase store);
// The nine key codes of setAsKeys from the KeyBoard table; -1 for a key that is not set.
QList<int> keyCodes(QSqlDatabase store);

}  // namespace design
