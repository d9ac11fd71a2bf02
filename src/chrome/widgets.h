#pragma once

#include <QAbstractButton>
#include <QColor>
#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QString>

class QHBoxLayout;
class QPushButton;
class QToolButton;

// Small painted controls of the console and dialogs.

// A large card button with an icon and a caption, for the console's main actions.
class CardButton : public QAbstractButton {
    Q_OBJECT
public:
    CardButton(const QString &icon, const QString &caption, bool primary, QWidget *parent);
    QSize sizeHint() const override { return {220, 124}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_icon;
    bool m_primary;
};

// An icon above a caption, for tool strips.
class ToolButton : public QAbstractButton {
    Q_OBJECT
public:
    ToolButton(const QString &icon, const QString &caption, QWidget *parent);
    QSize sizeHint() const override { return {116, 78}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_icon;
};

// A small icon-only button, as the close and minimise marks of a frameless window.
class IconButton : public QAbstractButton {
    Q_OBJECT
public:
    IconButton(const QString &icon, const QColor &color, int size, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_icon;
    QColor m_color;
};

// A label that acts as a link: it emits clicked() on a left click and shows a hand cursor.
class LinkLabel : public QLabel {
    Q_OBJECT
public:
    LinkLabel(const QString &text, QWidget *parent);

Q_SIGNALS:
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
};

// A combo box with a chevron in the text colour: the style sheet's combo has no arrow of its own.
class ChevronCombo : public QComboBox {
    Q_OBJECT
public:
    explicit ChevronCombo(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};

// The right-aligned "确定" (default; or another caption) and "退出" row that ends the small
// dialogs; the buttons are named "okButton" and "escButton".
QHBoxLayout *okEscButtons(QWidget *dialog, QPushButton **ok, QPushButton **esc,
                          const QString &okCaption = QCoreApplication::translate("chrome", "确定"));

// The small "×" at the end of a search field that empties it; named "clearSearchButton".
QToolButton *clearSearchButton(QWidget *parent);
