#include "chrome/widgets.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QToolButton>

#include "chrome/icons.h"
#include "chrome/style.h"

CardButton::CardButton(const QString &icon, const QString &caption, bool primary, QWidget *parent)
    : QAbstractButton(parent), m_icon(icon), m_primary(primary) {
    setText(caption);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

void CardButton::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF box = QRectF(rect()).adjusted(1, 1, -1, -1);
    QLinearGradient fill(box.topLeft(), box.bottomLeft());
    const bool lit = underMouse() || isDown();
    if (m_primary) {
        fill.setColorAt(0, lit ? QColor(228, 66, 80) : QColor(214, 50, 64));
        fill.setColorAt(1, isDown() ? QColor(150, 20, 30) : QColor(160, 24, 36));
    } else {
        fill.setColorAt(0, Qt::white);
        fill.setColorAt(1, lit ? QColor(255, 236, 238) : QColor(255, 246, 246));
    }
    p.setPen(QPen(m_primary ? QColor(140, 20, 30) : QColor(226, 176, 180), 1));
    p.setBrush(fill);
    p.drawRoundedRect(box, 12, 12);
    const QColor ink = m_primary ? QColor(Qt::white) : style::kDeep;
    const int iconSize = 44;
    p.drawPixmap(QPointF((width() - iconSize) / 2.0, 18),
                 icons::pixmap(m_icon, m_primary ? style::kGold : style::kBright, iconSize));
    QFont font = p.font();
    font.setPixelSize(20);
    font.setBold(true);
    p.setFont(font);
    p.setPen(ink);
    p.drawText(QRectF(0, 70, width(), 36), Qt::AlignCenter, text());
}

ToolButton::ToolButton(const QString &icon, const QString &caption, QWidget *parent)
    : QAbstractButton(parent), m_icon(icon) {
    setText(caption);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

void ToolButton::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    if (underMouse() || isDown()) {
        p.setPen(Qt::NoPen);
        p.setBrush(isDown() ? QColor(246, 206, 210) : QColor(252, 224, 227));
        p.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), 10, 10);
    }
    const int iconSize = 30;
    const int dy = isDown() ? 1 : 0;
    p.drawPixmap(QPointF((width() - iconSize) / 2.0, 10 + dy),
                 icons::pixmap(m_icon, style::kBright, iconSize));
    QFont font = p.font();
    font.setPixelSize(13);
    p.setFont(font);
    p.setPen(style::kDeep);
    p.drawText(QRectF(0, 46 + dy, width(), 24), Qt::AlignCenter, text());
}

IconButton::IconButton(const QString &icon, const QColor &color, int size, QWidget *parent)
    : QAbstractButton(parent), m_icon(icon), m_color(color) {
    setFixedSize(size, size);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

void IconButton::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    if (underMouse()) {
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(255, 255, 255, isDown() ? 90 : 50));
        p.drawEllipse(rect().adjusted(1, 1, -1, -1));
    }
    const int iconSize = width() * 3 / 5;
    const qreal offset = (width() - iconSize) / 2.0;
    p.drawPixmap(QPointF(offset, offset), icons::pixmap(m_icon, m_color, iconSize));
}

LinkLabel::LinkLabel(const QString &text, QWidget *parent) : QLabel(text, parent) {
    setProperty("role", QStringLiteral("link"));
    setCursor(Qt::PointingHandCursor);
}

void LinkLabel::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
    QLabel::mouseReleaseEvent(event);
}

ChevronCombo::ChevronCombo(QWidget *parent) : QComboBox(parent) {
    setStyleSheet(QStringLiteral(
        "QComboBox::drop-down { subcontrol-origin: padding; subcontrol-position: center right;"
        " width: 22px; border: none; }"));
}

void ChevronCombo::paintEvent(QPaintEvent *event) {
    QComboBox::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(isEnabled() ? style::kSoft : QColor(210, 180, 182), 1.6, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    const QPointF centre(width() - 13.0, height() / 2.0 + 1.0);
    painter.drawPolyline(
        QPolygonF{centre + QPointF(-4, -2.5), centre + QPointF(0, 1.5), centre + QPointF(4, -2.5)});
}

QHBoxLayout *okEscButtons(QWidget *dialog, QPushButton **ok, QPushButton **esc,
                          const QString &okCaption) {
    *ok = new QPushButton(okCaption, dialog);
    (*ok)->setObjectName(QStringLiteral("okButton"));
    (*ok)->setDefault(true);
    (*ok)->setAutoDefault(false);
    *esc = new QPushButton(QCoreApplication::translate("chrome", "退出"), dialog);
    (*esc)->setObjectName(QStringLiteral("escButton"));
    (*esc)->setAutoDefault(false);
    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(*ok);
    row->addWidget(*esc);
    return row;
}

QToolButton *clearSearchButton(QWidget *parent) {
    auto *button = new QToolButton(parent);
    button->setObjectName(QStringLiteral("clearSearchButton"));
    button->setText(QStringLiteral("×"));
    button->setToolTip(QCoreApplication::translate("chrome", "清除查询关键字"));
    button->setCursor(Qt::PointingHandCursor);
    // A tool button, so the push buttons' minimum width in the style sheet does not widen it.
    button->setStyleSheet(QStringLiteral(
        "QToolButton { border: none; font-size: 18px; color: rgb(169,97,100); padding: 0 6px; }"
        "QToolButton:hover { color: rgb(200,40,58); }"));
    return button;
}
