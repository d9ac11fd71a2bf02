#include "roster/numbergen.h"

namespace numbergen {

QString padNumber(int number, const QString &padText, const QString &endText) {
    const QString digits = QString::number(number);
    const qsizetype width = endText.size();
    if (padText.isEmpty() || digits.size() > width) return digits;
    return padText.repeated(width - digits.size()) + digits;
}

QString makeCode(const Options &options, int number) {
    const QString middle = options.pad
                               ? padNumber(number, options.padText.trimmed(), options.endText)
                               : QString::number(number);
    return options.prefix.trimmed() + middle + options.suffix.trimmed();
}

bool range(const Options &options, int *start, int *end) {
    *start = options.startText.trimmed().toInt();
    *end = options.endText.trimmed().toInt();
    return *end > *start;
}

QString previewText(const Options &options) {
    int start = 0;
    int end = 0;
    if (!range(options, &start, &end)) return QString();
    const QString prefix = options.prefix.trimmed();
    const QString suffix = options.suffix.trimmed();
    return prefix + padNumber(start, options.padText.trimmed(), options.endText) + suffix +
           QStringLiteral(" - ") + prefix + options.endText + suffix;
}

QStringList maskParts(const QString &mask) {
    QString text = mask;
    text.replace(QStringLiteral("，"), QStringLiteral(","));
    QStringList parts;
    for (const QString &part : text.split(QLatin1Char(','))) {
        const QString group = part.trimmed();
        if (!group.isEmpty()) parts << group;
    }
    return parts;
}

bool isExcluded(const QString &code, const QStringList &maskParts) {
    for (const QString &part : maskParts)
        if (!part.isEmpty() && code.contains(part)) return true;
    return false;
}

bool keepsAnyCode(const Options &options) {
    int start = 0;
    int end = 0;
    if (!range(options, &start, &end)) return false;
    const QStringList mask = maskParts(options.mask);
    for (int number = start; number <= end; ++number)
        if (!isExcluded(makeCode(options, number), mask)) return true;
    return false;
}

}  // namespace numbergen
