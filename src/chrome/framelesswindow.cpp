#include "chrome/framelesswindow.h"

#include <QFrame>
#include <QGraphicsDropShadowEffect>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <QWindow>

namespace {
constexpr int kShadow = 14;
}

FramelessWindow::FramelessWindow(QSize clientSize, QWidget *parent) : QWidget(parent) {
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    setFixedSize(clientSize + QSize(2 * kShadow, 2 * kShadow));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kShadow, kShadow, kShadow, kShadow);
    m_body = new QFrame(this);
    m_body->setObjectName(QStringLiteral("consoleBody"));
    m_body->setFixedSize(clientSize);
    auto *shadow = new QGraphicsDropShadowEffect(m_body);
    shadow->setBlurRadius(2 * kShadow);
    shadow->setOffset(0, 2);
    shadow->setColor(QColor(60, 0, 0, 140));
    m_body->setGraphicsEffect(shadow);
    layout->addWidget(m_body);
}

QWidget *FramelessWindow::body() const {
    return m_body;
}

void FramelessWindow::addDragArea(QWidget *area) {
    area->installEventFilter(this);
}

bool FramelessWindow::eventFilter(QObject *watched, QEvent *event) {
    auto *mouse = dynamic_cast<QMouseEvent *>(event);
    if (!mouse) return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonPress && mouse->button() == Qt::LeftButton) {
        // The window manager moves the window when it can; otherwise follow the mouse.
        if (windowHandle() && windowHandle()->startSystemMove()) return true;
        m_dragging = true;
        m_dragOffset = mouse->globalPosition().toPoint() - frameGeometry().topLeft();
        return true;
    }
    if (event->type() == QEvent::MouseMove && m_dragging) {
        move(mouse->globalPosition().toPoint() - m_dragOffset);
        return true;
    }
    if (event->type() == QEvent::MouseButtonRelease) m_dragging = false;
    return QWidget::eventFilter(watched, event);
}
