#pragma once

#include <QString>
#include <QStringList>

#include "core/language.h"

// The codes of the number generator: prefix, counting number, suffix, with digit groups the
// operator wants to avoid left out.
namespace numbergen {

struct Options {
    QString prefix = QStringLiteral("ST");
    QString suffix = QStringLiteral("E");
    QString startText = QStringLiteral("1");
    QString endText = QStringLiteral("1000");
    bool pad = true;
    QString padText = QStringLiteral("0");
    QString mask;
};

// The number padded with padText to the width of the untyped end text; unchanged when padText
// is empty or the number is already as wide.
QString padNumber(int number, const QString &padText, const QString &endText);
// One code for the number.
QString makeCode(const Options &options, int number);
// "ST0001E - ST1000E"; empty when the end is not above the start.
QString previewText(const Options &options);
// The mask's digit groups: split at "," and "，", each trimmed, empty ones left out ("4," is "4").
QStringList maskParts(const QString &mask);
// Whether one of the mask's groups occurs anywhere in the code.
bool isExcluded(const QString &code, const QStringList &maskParts);
// Start and end as numbers; false when the end is not above the start.
bool range(const Options &options, int *start, int *end);
// Whether the options give at least one code once the mask has left some out. A generator that
// would give none is refused before anything changes.
bool keepsAnyCode(const Options &options);
inline const TranslatedText kNoCodeLeftMessage{
    "numbergen", QT_TRANSLATE_NOOP("numbergen", "屏蔽号码后没有可以生成的号码，请修改屏蔽号码。")};

}  // namespace numbergen
