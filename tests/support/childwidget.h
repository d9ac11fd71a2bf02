#pragma once

#include <QObject>
#include <QtGlobal>

// The control of a screen by its object name; a missing one stops the test at once, naming it.
template <typename T>
T *child(const QObject &screen, const char *name) {
    T *found = screen.findChild<T *>(QLatin1String(name));
    if (!found) qFatal("%s has no child named %s", screen.metaObject()->className(), name);
    return found;
}
