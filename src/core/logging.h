#pragma once

#include <QLoggingCategory>

// One logging category per source folder, so a run can be traced area by area:
// QT_LOGGING_RULES="quellio.draw.debug=true" shows the draw's decisions, "quellio.*=false"
// silences the program. Warnings of every area are on by default.
Q_DECLARE_LOGGING_CATEGORY(lcCore)
Q_DECLARE_LOGGING_CATEGORY(lcStage)
Q_DECLARE_LOGGING_CATEGORY(lcDraw)
Q_DECLARE_LOGGING_CATEGORY(lcResults)
Q_DECLARE_LOGGING_CATEGORY(lcRoster)
Q_DECLARE_LOGGING_CATEGORY(lcAwards)
Q_DECLARE_LOGGING_CATEGORY(lcDesign)
Q_DECLARE_LOGGING_CATEGORY(lcSound)
Q_DECLARE_LOGGING_CATEGORY(lcConsole)
Q_DECLARE_LOGGING_CATEGORY(lcChrome)
