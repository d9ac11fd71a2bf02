#include "design/payloads.h"

#include <QCoreApplication>

#include <cmath>

#include "core/helpers.h"
#include "stage/protocol.h"

namespace design {

namespace {

const QString kBlockPicture = QStringLiteral("skin/Src/block.png");
constexpr int kBlockSide = 128;

// Collects the fields of one value. Every text goes through safeText, so no field can carry a
// separator of its own; `raw` takes a part that is already a joined value (a style).
class Fields {
public:
    Fields &operator<<(const QString &text) {
        m_fields << safeText(text);
        return *this;
    }
    Fields &operator<<(int number) {
        m_fields << QString::number(number);
        return *this;
    }
    Fields &operator<<(double number) {
        m_fields << numberText(number);
        return *this;
    }
    Fields &raw(const QString &joined) {
        m_fields << joined;
        return *this;
    }
    QString text() const { return m_fields.join(proto::kSep); }

private:
    QStringList m_fields;
};

bool exists(const PayloadContext &context, const QString &path) {
    return context.fileExists ? context.fileExists(path) : fileExists(path);
}

// The object's file as the stage needs it: absolute, with "/". On the designer and the draw
// screen a missing file gives the block picture at 128 x 128; the console does not look.
struct Picture {
    QString path;
    int width = 0;
    int height = 0;
    bool block = false;
};

Picture pictureOf(const ObjRow &row, const PayloadContext &context) {
    Picture picture{context.appPath + normalizeSlashes(row.ImgPath), row.ObjW, row.ObjH, false};
    if (context.reader != Reader::Console && !exists(context, picture.path))
        picture = {context.appPath + kBlockPicture, kBlockSide, kBlockSide, true};
    return picture;
}

QString textOf(const ObjRow &row, const PayloadContext &context) {
    if (row.ObjName == sysobj::txt_zbt) return context.title1;
    if (row.ObjName == sysobj::txt_fbt) return context.title2;
    return row.fTxt;
}

Fields placed(const ObjRow &row) {
    Fields fields;
    fields << proto::falseText << row.ObjName << int(row.ObjDepth) << row.ObjX << row.ObjY;
    return fields;
}

QString variableForKind(const QString &kind) {
    if (kind == QLatin1String("txt")) return proto::vbAddTxt;
    if (kind == QLatin1String("scr")) return proto::vbAddStxt;
    if (kind == QLatin1String("img")) return proto::vbAddImg;
    if (kind == QLatin1String("swf")) return proto::vbAddSwf;
    if (kind == QLatin1String("ssm")) return proto::vbAddJpBox;
    return QString();
}

QString kindOfVariable(const QString &objType) {
    for (const char *kind : {"txt", "scr", "img", "swf", "ssm"}) {
        if (variableForKind(QLatin1String(kind)) == objType) return QLatin1String(kind);
    }
    return QString();
}

}  // namespace

QString safeText(const QString &text) {
    QString safe = text;
    return safe.replace(proto::kSep, QStringLiteral("ｌ"));
}

QString safeName(const QString &name) {
    QString safe = name;
    safe.replace(proto::kSep, QStringLiteral("‖"));
    return safe.replace(proto::kItemSep, QStringLiteral("＄"));
}

QString numberText(double value) {
    if (std::isfinite(value) && value == std::trunc(value) && std::fabs(value) < 1e15)
        return QString::number(static_cast<qint64>(value));
    return QString::number(value, 'g', 15);
}

// --- Page -----------------------------------------------------------------------------------

QString backgroundColorPayload(const BgRow &bg, const PayloadContext &context) {
    Fields fields;
    fields << int(bg.BgW) << int(bg.BgH) << bg.BgColor;
    if (context.reader == Reader::Draw) fields << context.luckDelay;
    return fields.text();
}

QString backgroundImagePayload(const BgRow &bg, const QString &appPath) {
    return (Fields() << appPath + normalizeSlashes(bg.BgImg) << int(bg.BgW) << int(bg.BgH)).text();
}

bool sendsBackgroundImage(const BgRow &bg, const PayloadContext &context) {
    if (context.reader != Reader::Console) return true;
    return !bg.BgImg.isEmpty() && exists(context, context.appPath + normalizeSlashes(bg.BgImg));
}

QString keysPayload(const QList<int> &codes) {
    Fields fields;
    for (int code : codes)
        fields << code;
    return fields.text();
}

PreviewFit previewFit(int bgW, int bgH) {
    if (bgW <= 0 || bgH <= 0) return {kPreviewBoxW, kPreviewBoxH, 100};
    // Compared and divided in integers: bgH / 177 < bgW / 257 without rounding noise, so that a
    // 1024 x 768 page gives exactly 236 and not 235.
    if (qint64(bgH) * kPreviewBoxW < qint64(bgW) * kPreviewBoxH)
        return {kPreviewBoxW, int(qint64(bgH) * kPreviewBoxW / bgW), 100.0 * kPreviewBoxW / bgW};
    return {int(qint64(bgW) * kPreviewBoxH / bgH), kPreviewBoxH, 100.0 * kPreviewBoxH / bgH};
}

QString previewScalePayload(const PreviewFit &fit) {
    return numberText(fit.scalePercent);
}

QString stageScalePayload(int hostW, int hostH, bool fullScreen, int bgW, int bgH) {
    const int dx = fullScreen ? 0 : 2;
    const int dy = fullScreen ? 0 : 30;
    const double x = bgW > 0 ? 100.0 * (hostW - dx) / bgW : 100;
    const double y = bgH > 0 ? 100.0 * (hostH - dy) / bgH : 100;
    return (Fields() << x << y).text();
}

QString awardPanelPayload(const AwardPanel &panel) {
    return (Fields() << panel.awardName << panel.slotCount << panel.batches << panel.remaining
                     << panel.prizeName << panel.picturePath)
        .text();
}

// --- Objects --------------------------------------------------------------------------------

QString textPayload(const ObjRow &row, const PayloadContext &context) {
    Fields fields = placed(row);
    fields << row.ObjAlpha << row.bgColor << row.bgAlpha << row.borderNum << row.borderType
           << textOf(row, context) << row.fFont << row.fColor << row.fSize << row.fBold
           << row.fItalic << row.fUnderline;
    if (context.reader != Reader::Console)
        fields << row.lineHeight << row.txtAlign << row.isShadown;
    return fields.text();
}

QString scrollTextPayload(const ObjRow &row, const PayloadContext &context) {
    Fields fields;
    fields << proto::falseText << row.ObjName << int(row.ObjDepth) << row.ObjDirection << row.ObjX
           << row.ObjY << row.ObjW << row.ObjH << row.bgColor << row.bgAlpha << row.borderType
           << row.borderNum << row.fTxt << row.ObjAlpha << row.fFont << row.fColor << row.fSize
           << row.fBold << row.fItalic << row.fUnderline << row.SrcV;
    if (context.reader != Reader::Console) fields << row.isShadown;
    return fields.text();
}

QString drawAreaPayload(const ObjRow &row, bool longForm) {
    Fields fields;
    fields << row.ObjName << row.ObjX << row.ObjY << row.ObjW << row.ObjH << int(row.ObjDepth);
    if (longForm)
        fields << row.fFont << row.fColor << row.fSize << row.fBold << row.fItalic
               << row.fUnderline;
    return fields.text();
}

QString imagePayload(const ObjRow &row, const PayloadContext &context, bool *usedBlock) {
    const Picture picture = pictureOf(row, context);
    if (usedBlock) *usedBlock = picture.block;
    Fields fields = placed(row);
    fields << picture.width << picture.height << row.ObjAlpha << row.isImgFilter << picture.path;
    return fields.text();
}

QString animationPayload(const ObjRow &row, const PayloadContext &context, bool *usedBlock) {
    const Picture picture = pictureOf(row, context);
    if (usedBlock) *usedBlock = picture.block;
    Fields fields = placed(row);
    fields << picture.width << picture.height << picture.path;
    return fields.text();
}

bool isPrizePicture(const ObjRow &row) {
    // System names are at most ten characters, user objects twenty.
    return objectKind(row.ObjName) == QLatin1String("img") && row.ObjName.size() <= 11;
}

QString prizePictureHeadOf(const ObjRow &row) {
    Fields fields = placed(row);
    fields << row.ObjW << row.ObjH << row.ObjAlpha << row.isImgFilter;
    return fields.text() + proto::kSep;
}

StageCommand objectCommand(const ObjRow &row, const PayloadContext &context, ObjectForm form) {
    // A load goes by the row's type; a refresh by the name, under the row's own type.
    const QString kind =
        form == ObjectForm::Load ? kindOfVariable(row.ObjType) : objectKind(row.ObjName);
    StageCommand command;
    command.name = row.ObjType;
    if (kind == QLatin1String("txt")) {
        command.value = textPayload(row, context);
    } else if (kind == QLatin1String("scr")) {
        command.value = scrollTextPayload(row, context);
    } else if (kind == QLatin1String("img") &&
               !(context.reader == Reader::Draw && isPrizePicture(row))) {
        command.value = imagePayload(row, context, &command.usedBlockPicture);
    } else if (kind == QLatin1String("swf") && context.reader != Reader::Console) {
        command.value = animationPayload(row, context, &command.usedBlockPicture);
    } else if (kind == QLatin1String("ssm")) {
        const bool longForm = context.reader == Reader::Console || form == ObjectForm::Refresh;
        command.value = drawAreaPayload(row, longForm);
    } else {
        return {};
    }
    return command;
}

QString newTextContent() {
    return QCoreApplication::translate("design", "新增普通文字，双击文字可以进行编辑");
}

QString newScrollTextContent() {
    return QCoreApplication::translate("design", "请双击输入滚动文字信息...");
}

QString addTextPayload(const QString &name, int depth, int x, int y) {
    Fields fields;
    fields << proto::falseText << name << depth << x << y << 100 << QStringLiteral("0xFFFFFF") << 50
           << 5 << QStringLiteral("round") << newTextContent() << QStringLiteral("宋体")
           << QStringLiteral("0x000000") << 16 << proto::trueText << proto::falseText
           << proto::falseText;
    return fields.text();
}

QString addScrollTextPayload(const QString &name, int depth, int x, int y) {
    Fields fields;
    fields << proto::trueText << name << depth << 0 << x << y << 280 << 20
           << QStringLiteral("0xFFFFFF") << 50 << QStringLiteral("round") << 5
           << newScrollTextContent() << 100 << QStringLiteral("宋体") << QStringLiteral("0x000000")
           << 14 << proto::falseText << proto::falseText << proto::falseText << 1;
    return fields.text();
}

QString addImagePayload(const QString &name, int depth, int x, int y, const QString &absolutePath) {
    Fields fields;
    fields << proto::falseText << name << depth << x << y << 0 << 0 << 100 << proto::falseText
           << normalizeSlashes(absolutePath);
    return fields.text();
}

QString addAnimationPayload(const QString &name, int depth, int x, int y,
                            const QString &absolutePath) {
    Fields fields;
    fields << proto::falseText << name << depth << x << y << 0 << 0
           << normalizeSlashes(absolutePath);
    return fields.text();
}

QString selectObjectPayload(const QString &name) {
    return (Fields() << name << proto::trueText).text();
}

QString swapDepthPayload(const QString &moved, const QString &neighbour) {
    return (Fields() << moved << neighbour).text();
}

QString startScrollPayload(bool scrolling, int speed, Reader reader) {
    const QString flag = scrolling ? proto::yes : proto::no;
    if (reader == Reader::Draw) return flag;
    return flag + proto::kSep + QString::number(speed);
}

// --- Styles ---------------------------------------------------------------------------------

QString stylePayload(const PlayRow &row) {
    Fields fields;
    fields << row.fName << row.fColor << row.fSize << row.txtAlpha << row.fBold << row.fItalic
           << row.fUnderline << row.txtAlign << row.isShadown;
    return fields.text();
}

QString loadBlockPayload(const LoadBlockValues &values, const PlayRow &blockValue) {
    Fields fields;
    fields << safeName(values.sample) << values.maxImgWidth << values.maxImgHeight;
    if (blockValue.found) {
        fields << values.luckType << values.batchCount << blockValue.BgType << blockValue.BgColor
               << blockValue.BgAlpha << blockValue.DotX << blockValue.DotY << blockValue.PaddingNum;
        fields.raw(stylePayload(blockValue));
    } else {
        fields << QString();
        fields.raw(stylePayload(defaultPlayRow(rows::blockValue)));
    }
    return fields.text() + proto::blockEnd;
}

QString drawAreaPreviewPayload(const PlayRow &blockStyle, const DrawAreaPreviewValues &values) {
    Fields fields;
    fields.raw(stylePayload(blockStyle));
    fields << values.maxImgWidth << values.maxImgHeight << values.previewType << values.cellCount
           << (values.bgTypeIndex == 0 ? QStringLiteral("box") : QStringLiteral("round"))
           << values.bgColor << values.bgAlpha << values.dotX << values.dotY << values.paddingNum
           << safeName(values.demoName) << values.demoText.trimmed();
    return fields.text();
}

QString playbackStylePayload(const PlaybackValues &values) {
    Fields fields;
    fields << values.width << values.height << values.speed << values.titleType << values.nameType
           << values.maxImgWidth << values.maxImgHeight << values.colNum << values.titleBgColor
           << values.titleBgAlpha << values.titlePadding << values.nameBgColor << values.nameBgAlpha
           << values.namePadding << values.nameDotX << values.nameDotY;
    fields.raw(values.titleStyle).raw(values.nameStyle);
    return fields.text();
}

int playbackSide(int percent, int pageSide) {
    // nearbyint rounds a half to the even neighbour in the default rounding mode.
    return static_cast<qint16>(std::nearbyint(double(percent) * pageSide / 100.0));
}

PlaybackValues drawPlayback(const PlayRow &title, const PlayRow &name, int bgW, int bgH,
                            int luckType, int maxImgWidth, int maxImgHeight) {
    PlaybackValues values;
    values.width = playbackSide(title.boxW, bgW);
    values.height = playbackSide(title.boxH, bgH);
    values.speed = title.Speed;
    values.titleType = 0;  // the draw screen always sends 0 here, and luckType next: kept so
    values.nameType = luckType;
    values.maxImgWidth = maxImgWidth;
    values.maxImgHeight = maxImgHeight;
    values.colNum = title.ColNum;
    values.titleBgColor = title.BgColor;
    values.titleBgAlpha = title.BgAlpha;
    values.titlePadding = QString::number(title.PaddingNum);
    values.nameBgColor = name.BgColor;
    values.nameBgAlpha = name.BgAlpha;
    values.namePadding = QString::number(name.PaddingNum);
    values.nameDotX = QString::number(name.DotX);
    values.nameDotY = QString::number(name.DotY);
    values.titleStyle = stylePayload(title);
    values.nameStyle = stylePayload(name);
    return values;
}

PlaybackValues designerPlayback(const PlayRow &title, const PlayRow &name,
                                const PlayPanelValues &panel, int bgW, int bgH, int maxImgWidth,
                                int maxImgHeight) {
    PlaybackValues values;
    values.width = playbackSide(panel.boxW, bgW);
    values.height = playbackSide(panel.boxH, bgH);
    values.speed = panel.speed;
    values.titleType = panel.titleType;
    values.nameType = panel.nameType;
    values.maxImgWidth = maxImgWidth;
    values.maxImgHeight = maxImgHeight;
    values.colNum = panel.colNum;
    values.titleBgColor = panel.titleBgColor;
    values.titleBgAlpha = panel.titleBgAlpha;
    values.titlePadding = panel.titlePadding;
    values.nameBgColor = panel.nameBgColor;
    values.nameBgAlpha = panel.nameBgAlpha;
    values.namePadding = panel.namePadding;
    values.nameDotX = panel.nameDotX;
    values.nameDotY = panel.nameDotY;
    values.titleStyle = stylePayload(title);
    values.nameStyle = stylePayload(name);
    return values;
}

QString luckPlayPayload(const QString &style, const QString &awardName, const QString &prizeName,
                        int titleType, int runningNumber, const QStringList &names,
                        const QList<int> &ids) {
    QString title = awardName;
    if (titleType != 0) title += QCoreApplication::translate("design", "  奖品∶") + prizeName;
    QString nameList;
    for (const QString &item : names)
        nameList += safeName(item) + proto::kItemSep;
    QString idList;
    for (int id : ids)
        idList += QString::number(id) + proto::kItemSep;
    Fields fields;
    fields.raw(style) << title << runningNumber << nameList << idList;
    return fields.text();
}

QString loadAllUserPicsPayload(const QString &appPath, const QList<QPair<QString, int>> &photos) {
    Fields fields;
    fields << appPath;
    for (const auto &photo : photos)
        fields << safeName(normalizeSlashes(photo.first)) + proto::kItemSep +
                      QString::number(photo.second);
    return fields.text();
}

}  // namespace design
