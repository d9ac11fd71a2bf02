#pragma once

#include <QImage>
#include <QPixmap>
#include <QString>

// A dialog as the operator meets it on the projector, for screenshots: a window with its
// caption, centred over the stage, which is scaled to 1280 x 720 and dimmed.
QImage overStage(const QPixmap &stage, const QPixmap &dialog, const QString &caption);
