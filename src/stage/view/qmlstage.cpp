#include "stage/view/qmlstage.h"

#include <QFileInfo>
#include <QKeyEvent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QQuickWidget>
#include <QVBoxLayout>

#include "stage/keycodes.h"
#include "stage/photoprovider.h"

namespace {

const char *const kPhotoProvider = "photo";

// The draw movie is the full-screen one; it gets Qt Quick's own window.
bool wantsWindow(const QString &path) {
    return QFileInfo(path).fileName() == QLatin1String("stage.qml");
}

bool hasKeyHandler(QObject *root) {
    return root && root->metaObject()->indexOfMethod("keyDown(QVariant)") >= 0;
}

}  // namespace

QmlStage::QmlStage(QWidget *parent, Host host) : Stage(nullptr), m_mode(host) {
    m_host = new QWidget(parent);
    m_host->setContextMenuPolicy(Qt::NoContextMenu);
    m_host->setFocusPolicy(Qt::StrongFocus);
    auto *layout = new QVBoxLayout(m_host);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
}

QmlStage::~QmlStage() {
    // The host belongs to the screen while it has a parent; without one it is ours.
    if (m_host && !m_host->parentWidget()) delete m_host;
}

QWidget *QmlStage::widget() {
    return m_host;
}

void QmlStage::createHost(bool window) {
    if (m_quickWidget || m_view) return;
    if (window) {
        m_view = new QQuickView;
        m_view->setResizeMode(QQuickView::SizeRootObjectToView);
        m_view->setColor(Qt::black);
        m_view->engine()->addImageProvider(QLatin1String(kPhotoProvider), new PhotoProvider);
        m_view->rootContext()->setContextProperty(QStringLiteral("photoCache"),
                                                  new PhotoCacheControl(m_view));
        m_view->installEventFilter(this);
        QWidget *container = QWidget::createWindowContainer(m_view, m_host);
        container->setFocusPolicy(Qt::StrongFocus);
        container->setContextMenuPolicy(Qt::NoContextMenu);
        m_host->layout()->addWidget(container);
        m_host->setFocusProxy(container);
    } else {
        m_quickWidget = new QQuickWidget(m_host);
        m_quickWidget->setResizeMode(QQuickWidget::SizeRootObjectToView);
        m_quickWidget->setClearColor(Qt::black);
        m_quickWidget->setContextMenuPolicy(Qt::NoContextMenu);
        m_quickWidget->setFocusPolicy(Qt::StrongFocus);
        m_quickWidget->engine()->addImageProvider(QLatin1String(kPhotoProvider), new PhotoProvider);
        m_quickWidget->rootContext()->setContextProperty(QStringLiteral("photoCache"),
                                                         new PhotoCacheControl(m_quickWidget));
        m_quickWidget->installEventFilter(this);
        // Moved into another window, the widget builds its movie anew: the new root must reach
        // the host as the first one did, or the movie talks to nobody.
        connect(m_quickWidget, &QQuickWidget::statusChanged, this, [this](QQuickWidget::Status) {
            if (m_quickWidget && m_quickWidget->rootObject() != m_root)
                adoptRoot(m_quickWidget->rootObject());
        });
        m_host->layout()->addWidget(m_quickWidget);
        m_host->setFocusProxy(m_quickWidget);
    }
}

bool QmlStage::loadMovie(const QString &path) {
    m_errors.clear();
    if (!QFileInfo::exists(path)) {
        m_errors << QStringLiteral("no movie at ") + path;
        return false;
    }
    const bool window = m_mode == Host::Window || (m_mode == Host::Automatic && wantsWindow(path));
    createHost(window);
    const QUrl url = QUrl::fromLocalFile(path);
    QObject *root = nullptr;
    if (m_view) {
        m_view->engine()->clearComponentCache();
        m_view->setSource(url);
        for (const QQmlError &error : m_view->errors())
            m_errors << error.toString();
        root = m_view->rootObject();
    } else {
        m_quickWidget->engine()->clearComponentCache();
        m_quickWidget->setSource(url);
        for (const QQmlError &error : m_quickWidget->errors())
            m_errors << error.toString();
        root = m_quickWidget->rootObject();
    }
    adoptRoot(root);
    return root != nullptr;
}

void QmlStage::adoptRoot(QObject *root) {
    if (m_root) disconnect(m_root, nullptr, this, nullptr);
    m_root = root;
    if (root)
        connect(root, SIGNAL(fsCommand(QString, QString)), this,
                SLOT(forwardCommand(QString, QString)));
}

void QmlStage::setVariable(const QString &name, const QString &value) {
    if (!m_root) return;
    QMetaObject::invokeMethod(m_root, "setVariable", Qt::DirectConnection,
                              Q_ARG(QVariant, QVariant(name)), Q_ARG(QVariant, QVariant(value)));
}

void QmlStage::forwardCommand(const QString &command, const QString &args) {
    Q_EMIT commandReceived(command, args);
}

QQuickItem *QmlStage::root() const {
    return qobject_cast<QQuickItem *>(m_root.data());
}

QQuickWindow *QmlStage::quickWindow() const {
    if (m_view) return m_view;
    return m_quickWidget ? m_quickWidget->quickWindow() : nullptr;
}

QQmlEngine *QmlStage::engine() const {
    if (m_view) return m_view->engine();
    return m_quickWidget ? m_quickWidget->engine() : nullptr;
}

QImage QmlStage::grab() {
    if (m_view) return m_view->grabWindow();
    return m_quickWidget ? m_quickWidget->grabFramebuffer() : QImage();
}

bool QmlStage::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (!key->isAutoRepeat()) deliverKey(key->key(), key->modifiers());
        return true;
    }
    if (event->type() == QEvent::ContextMenu) return true;
    return Stage::eventFilter(watched, event);
}

void QmlStage::deliverKey(int qtKey, Qt::KeyboardModifiers modifiers) {
    const int code = stagekeys::windowsKeyCode(qtKey, modifiers);
    if (code < 0 || !hasKeyHandler(m_root)) return;
    QMetaObject::invokeMethod(m_root, "keyDown", Qt::DirectConnection,
                              Q_ARG(QVariant, QVariant(code)));
}
