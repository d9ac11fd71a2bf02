#include "support/overstage.h"

#include <QPainter>

QImage overStage(const QPixmap &stage, const QPixmap &dialog, const QString &caption) {
    QImage image = stage.toImage().scaled(1280, 720, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(image.rect(), QColor(0, 0, 0, 70));
    const int captionHeight = 32;
    QRect window(0, 0, dialog.width(), dialog.height() + captionHeight);
    window.moveCenter(image.rect().center());
    for (int i = 12; i > 0; --i) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0, 0, 0, 7));
        painter.drawRoundedRect(window.adjusted(-i, -i + 4, i, i + 4), 8 + i, 8 + i);
    }
    painter.setBrush(QColor(128, 23, 25));
    painter.drawRoundedRect(window, 6, 6);
    painter.drawPixmap(window.left(), window.top() + captionHeight, dialog);
    QFont font = painter.font();
    font.setFamily(QStringLiteral("Noto Sans CJK SC"));
    font.setPixelSize(14);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRect(window.left() + 14, window.top(), window.width() - 28, captionHeight),
                     Qt::AlignVCenter | Qt::AlignLeft, caption);
    painter.drawText(QRect(window.left() + 14, window.top(), window.width() - 28, captionHeight),
                     Qt::AlignVCenter | Qt::AlignRight, QStringLiteral("✕"));
    return image;
}
