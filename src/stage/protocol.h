#pragma once

#include <QString>

#include "core/language.h"

// The names of the stage protocol: every variable the program sets on a stage, every command a
// stage raises, and every on-stage button. Callers use these constants, never string literals,
// so a misspelt name cannot reach the projector. The values' grammars are built in
// design/payloads (objects, styles) and in the draw code that owns each draw command.
namespace proto {

// Separators of a value's fields and of winner items ("name$id").
inline const QString kSep = QStringLiteral("|");
inline const QString kItemSep = QStringLiteral("$");

// Variables: page and objects (all three readers).
inline const QString ClsPage = QStringLiteral("ClsPage");
inline const QString setAsBgColor = QStringLiteral("setAsBgColor");
inline const QString setAsBgImg = QStringLiteral("setAsBgImg");
inline const QString setAsKeys = QStringLiteral("setAsKeys");
inline const QString vbSetScale = QStringLiteral("vbSetScale");
inline const QString vbAddTxt = QStringLiteral("vbAddTxt");
inline const QString vbAddImg = QStringLiteral("vbAddImg");
inline const QString vbAddStxt = QStringLiteral("vbAddStxt");
inline const QString vbAddSwf = QStringLiteral("vbAddSwf");
inline const QString vbAddJpBox = QStringLiteral("vbAddJpBox");

// Variables: designer.
inline const QString delObj = QStringLiteral("delObj");
inline const QString selMcByName = QStringLiteral("selMcByName");
inline const QString selObj = QStringLiteral("selObj");
inline const QString resetAsDepth = QStringLiteral("resetAsDepth");
inline const QString getAsDepth = QStringLiteral("getAsDepth");
inline const QString vbLuckDesign = QStringLiteral("vbLuckDesign");
inline const QString autoSize = QStringLiteral("autoSize");
inline const QString vbLuckBox = QStringLiteral("vbLuckBox");

// Variables: console preview.
inline const QString getIsOk = QStringLiteral("getIsOk");

// Variables: draw screen.
inline const QString gotoPlay2 = QStringLiteral("gotoPlay2");
inline const QString loadAllUserPics = QStringLiteral("loadAllUserPics");
inline const QString vbShowBlock = QStringLiteral("vbShowBlock");
inline const QString vbLoadJx = QStringLiteral("vbLoadJx");
inline const QString updateLuckLst = QStringLiteral("updateLuckLst");
inline const QString changBtn = QStringLiteral("changBtn");
inline const QString vbndluck = QStringLiteral("vbndluck");
inline const QString vbLoadBlock = QStringLiteral("vbLoadBlock");
inline const QString vbPushLst = QStringLiteral("vbPushLst");
inline const QString vbLuckPlay = QStringLiteral("vbLuckPlay");
inline const QString vbLuckPlay1 = QStringLiteral("vbLuckPlay1");
inline const QString vbStartScroll = QStringLiteral("vbStartScroll");
inline const QString vbCallPlay = QStringLiteral("vbCallPlay");
inline const QString vbCallAsClear = QStringLiteral("vbCallAsClear");
inline const QString vbCallMusic = QStringLiteral("vbCallMusic");
inline const QString vbCallScreen = QStringLiteral("vbCallScreen");
// The fingerprint of the draw's secret, shown small in a corner before the first press.
inline const QString vbFingerprint = QStringLiteral("vbFingerprint");

// Values of changBtn.
namespace buttons {
inline const QString defulte = QStringLiteral("defulte");
inline const QString start = QStringLiteral("start");
inline const QString stop = QStringLiteral("stop");
inline const QString clear = QStringLiteral("clear");
inline const QString luckplay = QStringLiteral("luckplay");
}  // namespace buttons

// Commands a stage raises.
namespace cmd {
inline const QString loadok = QStringLiteral("loadok");
inline const QString asok = QStringLiteral("asok");
inline const QString loaduserok = QStringLiteral("loaduserok");
inline const QString updateUser = QStringLiteral("updateUser");
inline const QString blocksetok = QStringLiteral("blocksetok");
inline const QString callLoadPlay = QStringLiteral("callLoadPlay");
inline const QString luckplaystop = QStringLiteral("luckplaystop");
inline const QString btnclick = QStringLiteral("btnclick");
inline const QString stoplucksub = QStringLiteral("stoplucksub");
inline const QString callvbkeys = QStringLiteral("callvbkeys");
inline const QString msg = QStringLiteral("msg");
// Console preview.
inline const QString asload = QStringLiteral("asload");
inline const QString startskin = QStringLiteral("startskin");
// Designer.
inline const QString selObj = QStringLiteral("selObj");
inline const QString ObjChang = QStringLiteral("ObjChang");
inline const QString doubleObjClick = QStringLiteral("doubleObjClick");
}  // namespace cmd

// On-stage buttons, the argument of btnclick.
namespace btn {
inline const QString btnStart = QStringLiteral("btnStart");
inline const QString btnStop = QStringLiteral("btnStop");
inline const QString btnClear = QStringLiteral("btnClear");
inline const QString btnCancel = QStringLiteral("btnCancel");
inline const QString btnGiveUp = QStringLiteral("btnGiveUp");
inline const QString btnAdd = QStringLiteral("btnAdd");
inline const QString btnPre = QStringLiteral("btnPre");
inline const QString btnNext = QStringLiteral("btnNext");
inline const QString btnLstPrt = QStringLiteral("btnLstPrt");
inline const QString btnLstOut = QStringLiteral("btnLstOut");
inline const QString btnPlayLuck = QStringLiteral("btnPlayLuck");
inline const QString btnSoundOn = QStringLiteral("btnSoundOn");
inline const QString btnSoundOff = QStringLiteral("btnSoundOff");
inline const QString btnScreenN = QStringLiteral("btnScreenN");
inline const QString btnScreenF = QStringLiteral("btnScreenF");
inline const QString btnExit = QStringLiteral("btnExit");
}  // namespace btn

// Fixed values.
inline const QString yes = QStringLiteral("yes");
inline const QString no = QStringLiteral("no");
inline const QString go = QStringLiteral("go");
inline const QString ok = QStringLiteral("ok");
inline const QString trueText = QStringLiteral("true");
inline const QString falseText = QStringLiteral("false");
inline const QString nullSelection = QStringLiteral("Null");
// The sample text of an empty roster, and the end mark of vbLoadBlock.
inline const TranslatedText demoText{"stage", QT_TRANSLATE_NOOP("stage", "演示文字")};
inline const QString blockEnd = QStringLiteral("|s|");

}  // namespace proto
