#include "chrome/icons.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include "core/logging.h"

namespace icons {

QPixmap pixmap(const QString &name, const QColor &color, int size, qreal devicePixelRatio) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) {
        qCWarning(lcChrome) << "no icon named" << name;
        return QPixmap();
    }
    QByteArray svg = file.readAll();
    svg.replace("#COLOR", color.name().toLatin1());
    QSvgRenderer renderer(svg);
    const int pixels = qRound(size * devicePixelRatio);
    QPixmap result(pixels, pixels);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    result.setDevicePixelRatio(devicePixelRatio);
    return result;
}

QIcon icon(const QString &name, const QColor &color, int size) {
    return QIcon(pixmap(name, color, size));
}

}  // namespace icons
