#pragma once

// Screens open their dialogs with exec(); these act on such a dialog from inside its own event
// loop, as the operator would.

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>

#include <functional>

// Acts on the dialog of type T once a screen has opened it with exec(). `act` must close it. The
// watch ends after ten seconds, so a dialog that never opens fails the test rather than hanging
// it; deleting the returned timer ends it at once.
template <class T>
QPointer<QTimer> whenDialogOpens(const std::function<void(T &)> &act, bool *opened) {
    *opened = false;
    auto *timer = new QTimer;
    QElapsedTimer clock;
    clock.start();
    QObject::connect(timer, &QTimer::timeout, [=] {
        auto *dialog = qobject_cast<T *>(QApplication::activeModalWidget());
        if (!dialog && clock.elapsed() < 10000) return;
        timer->stop();
        timer->deleteLater();
        if (!dialog) return;
        *opened = true;
        act(*dialog);
    });
    timer->start(20);
    return timer;
}

// Closes the next modal dialog with reject() and writes down its class name.
inline QPointer<QTimer> closeNextDialog(QString *className) {
    static bool opened = false;
    return whenDialogOpens<QDialog>(
        [className](QDialog &dialog) {
            *className = QString::fromLatin1(dialog.metaObject()->className());
            dialog.reject();
        },
        &opened);
}
