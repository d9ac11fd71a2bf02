#include "stage/stagescreens.h"

#include <QGuiApplication>
#include <QScreen>

namespace stagescreens {

QString label(const QString &name, const QSize &size) {
    return QStringLiteral("%1  %2 × %3").arg(name).arg(size.width()).arg(size.height());
}

int defaultIndex(const QList<QRect> &geometries, int consoleIndex) {
    int best = geometries.isEmpty() ? -1 : 0;
    qint64 bestArea = -1;
    for (int i = 0; i < geometries.size(); ++i) {
        if (i == consoleIndex && geometries.size() > 1) continue;
        const qint64 area = qint64(geometries[i].width()) * geometries[i].height();
        if (area > bestArea) {
            best = i;
            bestArea = area;
        }
    }
    return best;
}

QScreen *stageScreen(const QString &chosen, QScreen *console) {
    const QList<QScreen *> screens = QGuiApplication::screens();
    QList<QRect> geometries;
    for (QScreen *screen : screens) {
        if (!chosen.isEmpty() && screen->name() == chosen) return screen;
        geometries << screen->geometry();
    }
    if (!console) console = QGuiApplication::primaryScreen();
    const int index = defaultIndex(geometries, int(screens.indexOf(console)));
    return index < 0 ? nullptr : screens[index];
}

}  // namespace stagescreens
