#include "core/logging.h"

Q_LOGGING_CATEGORY(lcCore, "quellio.core", QtInfoMsg)
Q_LOGGING_CATEGORY(lcStage, "quellio.stage", QtInfoMsg)
Q_LOGGING_CATEGORY(lcDraw, "quellio.draw", QtInfoMsg)
Q_LOGGING_CATEGORY(lcResults, "quellio.results", QtInfoMsg)
Q_LOGGING_CATEGORY(lcRoster, "quellio.roster", QtInfoMsg)
Q_LOGGING_CATEGORY(lcAwards, "quellio.awards", QtInfoMsg)
Q_LOGGING_CATEGORY(lcDesign, "quellio.design", QtInfoMsg)
Q_LOGGING_CATEGORY(lcSound, "quellio.sound", QtInfoMsg)
Q_LOGGING_CATEGORY(lcConsole, "quellio.console", QtInfoMsg)
Q_LOGGING_CATEGORY(lcChrome, "quellio.chrome", QtInfoMsg)
