#pragma once

#include <QColor>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QSlider;
class QToolButton;

// The colour dialog of the designer: the shared custom colours, kept for the whole run. An
// invalid colour when cancelled.
QColor pickColor(const QColor &initial);
// Shows a colour on a swatch button.
void paintSwatch(QPushButton *button, const QColor &color);

// The designer's small controls. A colour button keeps its colour as "0xRRGGBB" text;
// chooseColorFor opens pickColor on it and says whether a colour was picked.
QPushButton *colorButton(QWidget *parent, const QString &name, const QString &text);
bool chooseColorFor(QPushButton *button);
QString colorOf(QPushButton *button);
void setColorOf(QPushButton *button, const QString &text);
// A box that takes digits only and selects its text on focus.
QLineEdit *digitsEdit(QWidget *parent, const QString &name, int value);
QSlider *designSlider(QWidget *parent, const QString &name, int minimum, int maximum, int small,
                      int large, int value);

// The font part every text dialog of the designer shares: family, size, colour, opacity, bold,
// italic, underline, optionally the alignment, and the shadow switch.
class FontStyleBox : public QWidget {
    Q_OBJECT
public:
    FontStyleBox(const QStringList &sizes, bool withAlignment, QWidget *parent = nullptr);

    QString family() const;
    void setFamily(const QString &family);
    int pixelSize() const;
    void setPixelSize(int size);
    QString colorText() const { return m_colorText; }
    void setColorText(const QString &text);
    int alpha() const;
    void setAlpha(int alpha);
    bool bold() const;
    bool italic() const;
    bool underline() const;
    void setFlags(bool bold, bool italic, bool underline);
    // "left", "center" or "right"; any other text presses the centre button.
    QString alignment() const;
    void setAlignment(const QString &align);
    bool shadow() const;
    void setShadow(bool on);

Q_SIGNALS:
    void styleChanged();

private:
    void chooseColor();
    QToolButton *toggle(const QString &text, const QString &name);

    QComboBox *m_fontCombo = nullptr;
    QComboBox *m_sizeCombo = nullptr;
    QPushButton *m_colorButton = nullptr;
    QSlider *m_alphaSlider = nullptr;
    QToolButton *m_boldButton = nullptr;
    QToolButton *m_italicButton = nullptr;
    QToolButton *m_underlineButton = nullptr;
    QToolButton *m_alignRight = nullptr;
    QToolButton *m_alignCenter = nullptr;
    QToolButton *m_alignLeft = nullptr;
    QCheckBox *m_shadowCheck = nullptr;
    QString m_colorText = QStringLiteral("0x000000");
};
