#pragma once

#include <QImage>
#include <QPointer>
#include <QQuickView>
#include <QQuickWidget>
#include <QStringList>

#include "stage/stage.h"

class QQmlEngine;
class QQuickItem;
class QQuickWindow;

// The stage that plays a QML movie. The movie's root offers `setVariable(name, value)` and
// raises `fsCommand(command, args)`; this class passes the one in synchronously and the other
// out as commandReceived. Keys pressed on the stage reach the movie's `keyDown(code)` with the
// stored key numbering, so the movie can start and stop the draw by the configured hotkeys.
//
// The full-screen draw movie runs in a QQuickView inside a window container (Qt Quick's own
// render loop); the small embedded movies run in a QQuickWidget. Either way widget() is the
// one widget a screen places.
class QmlStage : public Stage {
    Q_OBJECT
public:
    enum class Host { Automatic, Widget, Window };

    explicit QmlStage(QWidget *parent = nullptr, Host host = Host::Automatic);
    ~QmlStage() override;

    bool loadMovie(const QString &path) override;
    void setVariable(const QString &name, const QString &value) override;
    QWidget *widget() override;

    // The movie's root item, null before a successful load.
    QQuickItem *root() const;
    // The window that renders the movie (the view, or the widget's offscreen window).
    QQuickWindow *quickWindow() const;
    QQmlEngine *engine() const;
    // The current picture of the stage, as the audience sees it.
    QImage grab();
    // QML errors of the last load.
    QStringList errors() const { return m_errors; }
    bool usesWindow() const { return m_view != nullptr; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS:
    void forwardCommand(const QString &command, const QString &args);

private:
    void createHost(bool window);
    void adoptRoot(QObject *root);
    void deliverKey(int qtKey, Qt::KeyboardModifiers modifiers);

    Host m_mode;
    QPointer<QWidget> m_host;
    // Owned by the host widget, which a screen may destroy first.
    QPointer<QQuickWidget> m_quickWidget;
    QPointer<QQuickView> m_view;
    QPointer<QObject> m_root;
    QStringList m_errors;
};
