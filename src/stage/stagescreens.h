#pragma once

#include <QList>
#include <QRect>
#include <QString>

class QScreen;

// Which screen the stage goes to. On the night a projector stands beside the operator's desk:
// the stage belongs on the largest screen that does not show the console.
namespace stagescreens {

// "HDMI-1  1920 × 1080", as the draw wizard lists a screen.
QString label(const QString &name, const QSize &size);
// The default among screens of these geometries: the largest by area that is not the console's
// (consoleIndex, -1 when unknown); with one screen, that one.
int defaultIndex(const QList<QRect> &geometries, int consoleIndex);
// The screen named `chosen` when it is connected, else the default beside `console`.
QScreen *stageScreen(const QString &chosen, QScreen *console);

}  // namespace stagescreens
