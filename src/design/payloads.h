#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

#include <functional>

#include "design/templatemodel.h"

// Every value the program writes on a stage about the template, built in this one place. Three
// readers take the same rows with small differences: the console's preview (short forms, no
// animations, no file test), the designer (full forms, missing files shown as the block picture)
// and the draw screen (full forms, the prize picture kept back for the award). All builders are
// pure: rows and values in, text out.
namespace design {

enum class Reader { Console, Designer, Draw };

// What a builder needs beyond the row.
struct PayloadContext {
    Reader reader = Reader::Designer;
    QString appPath;  // the program folder, ending in "/"
    QString title1;   // shown by txt_zbt in place of its own text
    QString title2;   // shown by txt_fbt
    int luckDelay = 0;
    // Tests whether a picture exists; null means the real file system.
    std::function<bool(const QString &)> fileExists;
};

// One setVariable call. An empty name means nothing is sent.
struct StageCommand {
    QString name;
    QString value;
    bool usedBlockPicture = false;  // the object's file was missing
    bool isEmpty() const { return name.isEmpty(); }
};

// The stage splits values at "|" without escaping. Template texts get the full-width letter "ｌ"
// the dialogs use; participant names get "‖" and "＄" as on the draw path.
QString safeText(const QString &text);
QString safeName(const QString &name);
// A number as the stage reads it: integers without a decimal point, reals with up to 15
// significant digits ("23.046875", "312", "12.5").
QString numberText(double value);

// --- Page -----------------------------------------------------------------------------------

// BgW|BgH|BgColor, and on the draw screen |luckDelay.
QString backgroundColorPayload(const BgRow &bg, const PayloadContext &context);
// Program folder + BgImg|BgW|BgH, sent even when BgImg is empty.
QString backgroundImagePayload(const BgRow &bg, const QString &appPath);
// The console sends the background picture only when the file exists; the others always.
bool sendsBackgroundImage(const BgRow &bg, const PayloadContext &context);
// Nine key codes: start|stop|clear|cancel|list out|list print|play list|sound|screen.
QString keysPayload(const QList<int> &codes);

// The console fits the stage into a 257 x 177 box and scales the movie to match.
struct PreviewFit {
    int width = 0;
    int height = 0;
    double scalePercent = 0;  // 1 / k x 100
};
inline constexpr int kPreviewBoxW = 257;
inline constexpr int kPreviewBoxH = 177;
PreviewFit previewFit(int bgW, int bgH);
QString previewScalePayload(const PreviewFit &fit);
// The draw screen's x percent|y percent: the host's size less the frame (2 x 30 in a window,
// nothing in full screen) over the template's page size.
QString stageScalePayload(int hostW, int hostH, bool fullScreen, int bgW, int bgH);

// --- Objects --------------------------------------------------------------------------------

// A full load sends the short vbAddJpBox; the designer's refresh of one object the long one.
enum class ObjectForm { Load, Refresh };

// The command that shows one object, by its kind. Empty for an unknown type, for animations in
// the console and for the prize picture on the draw screen (see prizePictureHead).
StageCommand objectCommand(const ObjRow &row, const PayloadContext &context,
                           ObjectForm form = ObjectForm::Load);

// The values of vbAddTxt, vbAddStxt and vbAddJpBox (the draw area the names scroll in).
QString textPayload(const ObjRow &row, const PayloadContext &context);
QString scrollTextPayload(const ObjRow &row, const PayloadContext &context);
QString drawAreaPayload(const ObjRow &row, bool longForm);
// vbAddImg and vbAddSwf. Images and animations: the absolute path, or the block picture at 128 x
// 128 when the file is gone (designer and draw screen). `usedBlock` tells which.
QString imagePayload(const ObjRow &row, const PayloadContext &context, bool *usedBlock = nullptr);
QString animationPayload(const ObjRow &row, const PayloadContext &context,
                         bool *usedBlock = nullptr);

// The draw screen keeps the prize picture (an img_ row of a system name) back: its nine leading
// fields, each followed by "|", to which the award's picture path is appended later.
bool isPrizePicture(const ObjRow &row);
QString prizePictureHeadOf(const ObjRow &row);

// The designer's payloads at the moment of adding an object.
// What a new text and a new scrolling text say until the operator edits them.
QString newTextContent();
QString newScrollTextContent();
QString addTextPayload(const QString &name, int depth, int x, int y);
QString addScrollTextPayload(const QString &name, int depth, int x, int y);
QString addImagePayload(const QString &name, int depth, int x, int y, const QString &absolutePath);
QString addAnimationPayload(const QString &name, int depth, int x, int y,
                            const QString &absolutePath);
// selMcByName, and resetAsDepth when an object moves past its neighbour in depth.
QString selectObjectPayload(const QString &name);
QString swapDepthPayload(const QString &moved, const QString &neighbour);
// The designer sends "yes|" + speed; the draw screen the bare "yes" or "no".
QString startScrollPayload(bool scrolling, int speed, Reader reader);

// --- The draw's award --------------------------------------------------------------------

// vbLoadJx, the award panel: JXName|JXNum|JXGroup|remaining slots|JPName|award picture path.
struct AwardPanel {
    QString awardName;
    int slotCount = 0;
    int batches = 0;
    int remaining = 0;
    QString prizeName;
    QString picturePath;
};
QString awardPanelPayload(const AwardPanel &panel);

// --- Styles ---------------------------------------------------------------------------------

// fName|fColor|fSize|txtAlpha|fBold|fItalic|fUnderline|txtAlign|isShadown.
QString stylePayload(const PlayRow &row);

// The draw screen's cell style at Start, ending in "|s|". Without the blockValue row the fields
// from luckType to PaddingNum collapse into one empty field and the default style is used.
struct LoadBlockValues {
    QString sample;  // the longest name of the roster, or "演示文字"
    int maxImgWidth = 0;
    int maxImgHeight = 0;
    int luckType = 0;
    int batchCount = 0;
};
QString loadBlockPayload(const LoadBlockValues &values, const PlayRow &blockValue);

// vbLuckBox, the designer's draw-area preview: the font from the row, the rest from the panel's
// controls as they stand (texts as typed).
struct DrawAreaPreviewValues {
    int maxImgWidth = 0;
    int maxImgHeight = 0;
    int previewType = 0;  // 0 text, 1 picture, 2 both
    QString cellCount;
    int bgTypeIndex = 0;  // 0 "box", any other "round"
    QString bgColor;
    int bgAlpha = 0;
    QString dotX;
    QString dotY;
    QString paddingNum;
    QString demoName;
    QString demoText;
};
QString drawAreaPreviewPayload(const PlayRow &blockStyle, const DrawAreaPreviewValues &values);

// The 34-field playback style. The draw screen and the designer fill it differently (fields 4
// and 5 on purpose): see drawPlayback and designerPlayback.
struct PlaybackValues {
    int width = 0;
    int height = 0;
    int speed = 0;
    int titleType = 0;
    int nameType = 0;
    int maxImgWidth = 0;
    int maxImgHeight = 0;
    int colNum = 0;
    QString titleBgColor;
    int titleBgAlpha = 0;
    QString titlePadding;
    QString nameBgColor;
    int nameBgAlpha = 0;
    QString namePadding;
    QString nameDotX;
    QString nameDotY;
    QString titleStyle;
    QString nameStyle;
};
QString playbackStylePayload(const PlaybackValues &values);
// A percentage of a page side in pixels, a half going to the even neighbour.
int playbackSide(int percent, int pageSide);
// The draw screen: everything from the rows, 0 in field 4 and luckType in field 5.
PlaybackValues drawPlayback(const PlayRow &title, const PlayRow &name, int bgW, int bgH,
                            int luckType, int maxImgWidth, int maxImgHeight);
// The designer's preview: the styles from the rows, the rest from the third tab's controls.
struct PlayPanelValues {
    int boxW = 50;
    int boxH = 30;
    int speed = 1;
    int colNum = 1;
    int titleType = 0;  // playTitleType
    int nameType = 0;   // playType
    QString titleBgColor;
    int titleBgAlpha = 0;
    QString titlePadding;
    QString nameBgColor;
    int nameBgAlpha = 0;
    QString namePadding;
    QString nameDotX;
    QString nameDotY;
};
PlaybackValues designerPlayback(const PlayRow &title, const PlayRow &name,
                                const PlayPanelValues &panel, int bgW, int bgH, int maxImgWidth,
                                int maxImgHeight);

// vbLuckPlay / vbLuckPlay1: style|title|running number|names|ids, each list item followed by "$".
// The title adds "  奖品∶" and the prize when titleType is not 0.
QString luckPlayPayload(const QString &style, const QString &awardName, const QString &prizeName,
                        int titleType, int runningNumber, const QStringList &names,
                        const QList<int> &ids);

// The program folder, then "path$ID" for each participant photo, all joined by "|".
QString loadAllUserPicsPayload(const QString &appPath, const QList<QPair<QString, int>> &photos);

}  // namespace design
