#pragma once

#include <QString>

// The process-wide state every screen reads. It is filled at start-up and by the screen that owns
// each value; a screen that changes a setting writes config.ini and the member in one step
// (see Settings in settings.h).
struct AppState {
    // Paths. appPath always ends in "/".
    QString appPath;
    QString iniPath;
    QString mainConnStr;     // file of the data store
    QString skinConnStr;     // file of the selected template
    QString skinTmpConnStr;  // skin/sdb.tmp, the designer's working copy
    QString skinFile;        // template being edited in the designer

    // Stage movies, relative to appPath.
    QString movieDesign;
    QString moviePhoto;
    QString movieStage;
    QString moviePreview;
    QString moviePlay;

    // Stage and titles.
    qint16 bgW = 0;
    qint16 bgH = 0;
    float dpiScale = 1.0f;
    // The screen the operator chose for the stage in the draw wizard; empty for the default.
    QString stageScreen;
    QString BT1;
    QString BT2;
    QString title1;
    QString title2;

    // Mirrors of config.ini [main].
    QString selSkinName;
    qint16 maxImgWidth = 0;
    qint16 maxImgHeight = 0;
    qint16 luckType = 0;
    qint16 playType = 0;
    qint16 playTitleType = 0;
    qint16 selJxid = 0;
    qint16 luckDelay = 0;
    qint16 isTimeProtect = 0;
    qint16 timeProtectNum = 0;
    qint16 guideHide = 0;
    qint16 isHideName = 0;
    qint16 hideLeft = 0;
    qint16 hideRight = 0;
    QString hideReStr;

    QString path(const QString &relative) const { return appPath + relative; }
};

AppState &appState();
// Puts every member back to its initial value (tests start each case from a clean state).
void resetAppState();
