#pragma once

#include <QObject>
#include <QVariant>

// Calls a function of a movie's root item and returns what it answers: how tests read what a
// movie shows (objectText, objectInfo, objectNames...).
inline QVariant callMovie(QObject *root, const char *function, const QVariant &arg = QVariant()) {
    QVariant result;
    if (arg.isValid())
        QMetaObject::invokeMethod(root, function, Q_RETURN_ARG(QVariant, result),
                                  Q_ARG(QVariant, arg));
    else
        QMetaObject::invokeMethod(root, function, Q_RETURN_ARG(QVariant, result));
    return result;
}
