#pragma once

#include <QPoint>
#include <QWidget>

class QFrame;

// A top-level window without the system frame: its body is drawn inside a soft drop shadow, and
// any widget registered as a drag area moves the window (the console's banner).
class FramelessWindow : public QWidget {
    Q_OBJECT
public:
    explicit FramelessWindow(QSize clientSize, QWidget *parent = nullptr);

    // The area inside the shadow; place the screen's controls here.
    QWidget *body() const;
    void addDragArea(QWidget *area);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QFrame *m_body = nullptr;
    QPoint m_dragOffset;
    bool m_dragging = false;
};
