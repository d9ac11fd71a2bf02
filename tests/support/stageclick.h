#pragma once

#include <QQuickItem>
#include <QQuickWindow>
#include <QtTest>

// The visible on-stage item of that object name under `from`, depth first.
inline QQuickItem *findStageItem(QQuickItem *from, const QString &objectName) {
    if (!from) return nullptr;
    if (from->objectName() == objectName && from->isVisible()) return from;
    for (QQuickItem *child : from->childItems())
        if (QQuickItem *hit = findStageItem(child, objectName)) return hit;
    return nullptr;
}

// Clicks an on-stage item the way the operator would; false when it is not on show.
inline bool clickStageItem(QQuickWindow *window, QQuickItem *root, const QString &objectName) {
    QTest::qWait(40);  // let a bar that just changed lay out its buttons
    QQuickItem *item = findStageItem(root, objectName);
    if (!item) return false;
    // Positioners lay out on the next frame; a loaded machine may not have drawn it yet.
    for (QQuickItem *up = item; up; up = up->parentItem())
        up->ensurePolished();
    const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(window, Qt::LeftButton, {}, centre.toPoint());
    return true;
}
