#pragma once

#include <QColor>
#include <QIcon>
#include <QPixmap>
#include <QString>

// The program's own line icons (chrome/icons/*.svg), drawn in any colour at any size.
namespace icons {

QPixmap pixmap(const QString &name, const QColor &color, int size, qreal devicePixelRatio = 2.0);
QIcon icon(const QString &name, const QColor &color, int size = 48);

}  // namespace icons
