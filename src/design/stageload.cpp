#include "design/stageload.h"

#include <QCoreApplication>
#include <QSqlError>
#include <QSqlQuery>

#include "core/appstate.h"
#include "core/logging.h"
#include "core/store.h"
#include "core/ui.h"
#include "stage/protocol.h"
#include "stage/stage.h"

namespace design {

namespace {

void send(Stage &stage, const StageCommand &command) {
    if (!command.isEmpty()) stage.setVariable(command.name, command.value);
}

// The hotkeys in the order setAsKeys lists them.
const char *const kKeyNames[] = {"starKey",   "stopKey",     "clearKey", "cancelKey", "lstOutKey",
                                 "lstPrtKey", "playLuckKey", "soundKey", "screenKey"};

}  // namespace

PayloadContext contextFor(Reader reader) {
    const AppState &state = appState();
    PayloadContext context;
    context.reader = reader;
    context.appPath = state.appPath;
    context.title1 = state.title1;
    context.title2 = state.title2;
    context.luckDelay = state.luckDelay;
    return context;
}

void sendBackground(Stage &stage, const BgRow &bg, const PayloadContext &context) {
    if (!bg.found) return;
    if (context.reader == Reader::Console)
        stage.setVariable(proto::vbSetScale, previewScalePayload(previewFit(bg.BgW, bg.BgH)));
    stage.setVariable(proto::setAsBgColor, backgroundColorPayload(bg, context));
    if (sendsBackgroundImage(bg, context))
        stage.setVariable(proto::setAsBgImg, backgroundImagePayload(bg, context.appPath));
}

void sendObjects(Stage &stage, const QList<ObjRow> &objects, const PayloadContext &context,
                 LoadReport *report) {
    stage.setVariable(proto::ClsPage, proto::yes);
    for (const ObjRow &row : objects) {
        if (context.reader == Reader::Draw && report && isPrizePicture(row) &&
            row.ObjType == proto::vbAddImg)
            report->prizePictureHead = prizePictureHeadOf(row);
        const StageCommand command = objectCommand(row, context);
        if (command.isEmpty()) continue;
        send(stage, command);
        if (!report) continue;
        report->sentNames << row.ObjName;
        if (command.usedBlockPicture) report->blockPictures << row.ObjName;
    }
    if (context.reader == Reader::Designer) stage.setVariable(proto::getAsDepth, proto::trueText);
}

LoadReport fullLoad(Stage &stage, const TemplateData &data, const PayloadContext &context) {
    LoadReport report;
    report.bgFound = data.bg.found;
    report.defaultsUsed = data.defaultsUsed;
    if (context.reader == Reader::Console && !data.bg.found) return report;
    sendBackground(stage, data.bg, context);
    sendObjects(stage, data.objects, context, &report);
    return report;
}

bool loadTemplateFile(Stage &stage, const QString &path, const PayloadContext &context,
                      LoadReport *report, QString *error) {
    TemplateData data;
    if (!readTemplateFile(path, &data, error)) return false;
    const LoadReport done = fullLoad(stage, data, context);
    if (report) *report = done;
    return true;
}

QString prizePictureHead(const TemplateData &data) {
    for (const ObjRow &row : data.objects) {
        if (row.ObjType == proto::vbAddImg && isPrizePicture(row)) return prizePictureHeadOf(row);
    }
    return QString();
}

StageCommand refreshCommand(QSqlDatabase templateDb, const QString &name,
                            const PayloadContext &context) {
    ObjRow row;
    if (!readVisibleObject(templateDb, name, &row)) return {proto::delObj, name, false};
    return objectCommand(row, context, ObjectForm::Refresh);
}

void refreshObject(Stage &stage, QSqlDatabase templateDb, const QString &name,
                   const PayloadContext &context) {
    send(stage, refreshCommand(templateDb, name, context));
}

QString longestUserName(QSqlDatabase store) {
    const QVariant name = store::scalar(
        store, QStringLiteral("SELECT UserName FROM UserList ORDER BY length(UserName) DESC, ID "
                              "ASC LIMIT 1"));
    return name.isValid() ? name.toString() : proto::demoText;
}

QString loadBlockValue(QSqlDatabase templateDb, const LoadBlockValues &values) {
    const PlayRow row = readPlay(templateDb, rows::blockValue);
    if (!row.found)
        ui().message(QCoreApplication::translate("design", "找不到抽奖滚动文字样式数据!"),
                     MsgStyle::Critical, titles::error);
    return loadBlockPayload(values, row);
}

QString loadBlockValue(const QString &templatePath, const LoadBlockValues &values) {
    const QString connection = QStringLiteral("quellio.template.block");
    QString value;
    QString error;
    if (store::openTemplate(templatePath, connection, &error)) {
        value = loadBlockValue(QSqlDatabase::database(connection, false), values);
    } else {
        qCWarning(lcDesign) << "draw-area style:" << error;
        value = loadBlockValue(QSqlDatabase(), values);
    }
    store::close(connection);
    return value;
}

QList<QPair<QString, int>> userPhotos(QSqlDatabase store) {
    QList<QPair<QString, int>> photos;
    QSqlQuery query(store);
    query.setForwardOnly(true);
    if (!query.exec(QStringLiteral("SELECT UserPhoto, ID FROM UserList WHERE UserPhoto IS NOT NULL "
                                   "AND UserPhoto<>'' ORDER BY ID")))
        qCWarning(lcDesign) << "participant photos:" << query.lastError().text();
    while (query.next())
        photos.append({query.value(0).toString(), query.value(1).toInt()});
    return photos;
}

QList<int> keyCodes(QSqlDatabase store) {
    QList<int> codes;
    for (const char *key : kKeyNames) {
        const QVariant code = store::scalar(
            store,
            QStringLiteral("SELECT KeyAsc FROM KeyBoard WHERE KeyName=? ORDER BY ID LIMIT 1"),
            {QString::fromLatin1(key)});
        codes << (code.isValid() ? code.toInt() : -1);
    }
    return codes;
}

}  // namespace design
