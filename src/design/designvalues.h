#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

// The values the designer's dialogs and panels show and store: colours as "0xRRGGBB" text and
// font sizes as "NNpx" list items.
namespace design {

// Always six digits, red first: pure red stays "0xFF0000".
QString colorText(const QColor &color);
// "0xRRGGBB" (or fewer digits, padded on the left) to a colour; black for anything unreadable.
QColor colorFromText(const QString &text);

// "24px" and "24" give 24; 0 when there is no number.
int pixelSize(const QString &sizeText);
QString pixelSizeText(int size);

// The size lists of the text, scrolling-text and draw-font dialogs.
QStringList textObjectSizes();
QStringList scrollTextSizes();
QStringList drawFontSizes();

// A font's size for an editor that shows text in pixels at the screen's scale.
double pointsForPixels(int pixels);

}  // namespace design
