#include "design/designvalues.h"

#include <QRegularExpression>

namespace design {

namespace {

QStringList withPx(std::initializer_list<int> sizes) {
    QStringList items;
    for (int size : sizes)
        items << pixelSizeText(size);
    return items;
}

}  // namespace

QString colorText(const QColor &color) {
    const QColor rgb = color.isValid() ? color.toRgb() : QColor(Qt::black);
    return QString::asprintf("0x%02X%02X%02X", rgb.red(), rgb.green(), rgb.blue());
}

QColor colorFromText(const QString &text) {
    QString digits = text.trimmed();
    if (digits.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) digits = digits.mid(2);
    if (digits.startsWith(QLatin1Char('#'))) digits = digits.mid(1);
    static const QRegularExpression hex(QStringLiteral("^[0-9A-Fa-f]{1,6}$"));
    if (!hex.match(digits).hasMatch()) return QColor(Qt::black);
    const uint value = digits.toUInt(nullptr, 16);
    return QColor((value >> 16) & 0xFF, (value >> 8) & 0xFF, value & 0xFF);
}

int pixelSize(const QString &sizeText) {
    static const QRegularExpression number(QStringLiteral("^\\s*(\\d+)"));
    const QRegularExpressionMatch match = number.match(sizeText);
    return match.hasMatch() ? match.captured(1).toInt() : 0;
}

QString pixelSizeText(int size) {
    return QString::number(size) + QStringLiteral("px");
}

QStringList textObjectSizes() {
    return withPx({10, 12, 14, 16, 18, 20, 22, 24, 30, 36,  38,  40,
                   42, 46, 52, 56, 62, 70, 72, 80, 90, 100, 110, 128});
}

QStringList scrollTextSizes() {
    return withPx({10, 12, 14, 16, 20, 24, 30, 36, 38, 40, 42, 46, 52, 56, 62, 70, 72, 128});
}

QStringList drawFontSizes() {
    return withPx({10, 12, 14, 16, 18, 20, 24, 30, 36,  38,  40, 42,
                   46, 52, 56, 62, 70, 72, 86, 96, 100, 118, 128});
}

double pointsForPixels(int pixels) {
    return pixels * 3.0 / 4.0;
}

}  // namespace design
