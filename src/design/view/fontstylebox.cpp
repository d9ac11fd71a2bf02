#include "design/view/fontstylebox.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSlider>
#include <QToolButton>

#include "chrome/widgethelpers.h"
#include "core/ui.h"
#include "design/designvalues.h"

QColor pickColor(const QColor &initial) {
    static bool customColorsSet = false;
    if (!customColorsSet) {
        customColorsSet = true;
        QColorDialog::setCustomColor(0, QColor(0x96, 0xC9, 0xFA));
        const QColor buttonFace = QPalette().color(QPalette::Button);
        for (int i = 2; i < 16; ++i)
            QColorDialog::setCustomColor(i, buttonFace);
    }
    return ui().chooseColor(initial, QCoreApplication::translate("FontStyleBox", "颜色"));
}

void paintSwatch(QPushButton *button, const QColor &color) {
    button->setStyleSheet(QStringLiteral("QPushButton { background: %1; border: 1px solid #888; "
                                         "min-width: 48px; min-height: 18px; }")
                              .arg(color.name()));
}

namespace {
const char *const kColorProperty = "colorText";
}

QPushButton *colorButton(QWidget *parent, const QString &name, const QString &text) {
    auto *button = new QPushButton(parent);
    button->setObjectName(name);
    setColorOf(button, text);
    return button;
}

bool chooseColorFor(QPushButton *button) {
    const QColor color = pickColor(design::colorFromText(colorOf(button)));
    if (!color.isValid()) return false;
    setColorOf(button, design::colorText(color));
    return true;
}

QString colorOf(QPushButton *button) {
    return button->property(kColorProperty).toString();
}

void setColorOf(QPushButton *button, const QString &text) {
    const QColor color = design::colorFromText(text);
    button->setProperty(kColorProperty, design::colorText(color));
    paintSwatch(button, color);
}

QLineEdit *digitsEdit(QWidget *parent, const QString &name, int value) {
    auto *edit = new QLineEdit(QString::number(value), parent);
    edit->setObjectName(name);
    edit->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("\\d*")), edit));
    selectAllOnFocus(edit);
    return edit;
}

QSlider *designSlider(QWidget *parent, const QString &name, int minimum, int maximum, int small,
                      int large, int value) {
    auto *slider = new QSlider(Qt::Horizontal, parent);
    slider->setObjectName(name);
    slider->setRange(minimum, maximum);
    slider->setSingleStep(small);
    slider->setPageStep(large);
    slider->setValue(value);
    return slider;
}

FontStyleBox::FontStyleBox(const QStringList &sizes, bool withAlignment, QWidget *parent)
    : QWidget(parent) {
    m_fontCombo = new QComboBox(this);
    m_fontCombo->setObjectName(QStringLiteral("fontCombo"));
    listChineseFonts(m_fontCombo);
    m_sizeCombo = new QComboBox(this);
    m_sizeCombo->setObjectName(QStringLiteral("sizeCombo"));
    m_sizeCombo->addItems(sizes);
    m_colorButton = new QPushButton(this);
    m_colorButton->setObjectName(QStringLiteral("colorButton"));
    paintSwatch(m_colorButton, design::colorFromText(m_colorText));
    m_alphaSlider = new QSlider(Qt::Horizontal, this);
    m_alphaSlider->setObjectName(QStringLiteral("alphaSlider"));
    m_alphaSlider->setRange(10, 100);
    m_alphaSlider->setSingleStep(5);
    m_alphaSlider->setPageStep(10);
    m_shadowCheck = new QCheckBox(tr("启用阴影效果"), this);
    m_shadowCheck->setObjectName(QStringLiteral("shadowCheck"));

    auto *flags = new QHBoxLayout;
    m_boldButton = toggle(QStringLiteral("B"), QStringLiteral("boldButton"));
    m_italicButton = toggle(QStringLiteral("I"), QStringLiteral("italicButton"));
    m_underlineButton = toggle(QStringLiteral("U"), QStringLiteral("underlineButton"));
    flags->addWidget(m_boldButton);
    flags->addWidget(m_italicButton);
    flags->addWidget(m_underlineButton);
    if (withAlignment) {
        auto *group = new QButtonGroup(this);
        group->setExclusive(true);
        m_alignRight = toggle(tr("右"), QStringLiteral("alignRightButton"));
        m_alignCenter = toggle(tr("中"), QStringLiteral("alignCenterButton"));
        m_alignLeft = toggle(tr("左"), QStringLiteral("alignLeftButton"));
        for (QToolButton *button : {m_alignRight, m_alignCenter, m_alignLeft}) {
            group->addButton(button);
            flags->addWidget(button);
        }
        m_alignCenter->setChecked(true);
    }
    flags->addStretch();

    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(new QLabel(tr("字体："), this), 0, 0);
    grid->addWidget(m_fontCombo, 0, 1, 1, 3);
    grid->addWidget(new QLabel(tr("大小："), this), 1, 0);
    grid->addWidget(m_sizeCombo, 1, 1);
    grid->addWidget(new QLabel(tr("颜色："), this), 1, 2);
    grid->addWidget(m_colorButton, 1, 3);
    grid->addWidget(new QLabel(tr("透明："), this), 2, 0);
    grid->addWidget(m_alphaSlider, 2, 1, 1, 3);
    grid->addLayout(flags, 3, 0, 1, 4);
    grid->addWidget(m_shadowCheck, 4, 0, 1, 4);

    connect(m_fontCombo, &QComboBox::currentTextChanged, this, &FontStyleBox::styleChanged);
    connect(m_sizeCombo, &QComboBox::currentTextChanged, this, &FontStyleBox::styleChanged);
    connect(m_colorButton, &QPushButton::clicked, this, &FontStyleBox::chooseColor);
}

QToolButton *FontStyleBox::toggle(const QString &text, const QString &name) {
    auto *button = new QToolButton(this);
    button->setText(text);
    button->setObjectName(name);
    button->setCheckable(true);
    button->setMinimumWidth(28);
    connect(button, &QToolButton::toggled, this, &FontStyleBox::styleChanged);
    return button;
}

void FontStyleBox::chooseColor() {
    const QColor color = pickColor(design::colorFromText(m_colorText));
    if (!color.isValid()) return;
    setColorText(design::colorText(color));
}

QString FontStyleBox::family() const {
    return m_fontCombo->currentText();
}

void FontStyleBox::setFamily(const QString &family) {
    // A template may name a font this machine lacks: it stays, as typed.
    if (m_fontCombo->findText(family) < 0) m_fontCombo->addItem(family);
    m_fontCombo->setCurrentText(family);
}

int FontStyleBox::pixelSize() const {
    return design::pixelSize(m_sizeCombo->currentText());
}

void FontStyleBox::setPixelSize(int size) {
    const QString text = design::pixelSizeText(size);
    if (m_sizeCombo->findText(text) < 0) m_sizeCombo->addItem(text);
    m_sizeCombo->setCurrentText(text);
}

void FontStyleBox::setColorText(const QString &text) {
    m_colorText = design::colorText(design::colorFromText(text));
    paintSwatch(m_colorButton, design::colorFromText(m_colorText));
    Q_EMIT styleChanged();
}

int FontStyleBox::alpha() const {
    return m_alphaSlider->value();
}
void FontStyleBox::setAlpha(int alpha) {
    m_alphaSlider->setValue(alpha);
}
bool FontStyleBox::bold() const {
    return m_boldButton->isChecked();
}
bool FontStyleBox::italic() const {
    return m_italicButton->isChecked();
}
bool FontStyleBox::underline() const {
    return m_underlineButton->isChecked();
}

void FontStyleBox::setFlags(bool bold, bool italic, bool underline) {
    m_boldButton->setChecked(bold);
    m_italicButton->setChecked(italic);
    m_underlineButton->setChecked(underline);
}

QString FontStyleBox::alignment() const {
    if (!m_alignRight) return QStringLiteral("left");
    if (m_alignRight->isChecked()) return QStringLiteral("right");
    if (m_alignCenter->isChecked()) return QStringLiteral("center");
    return QStringLiteral("left");
}

void FontStyleBox::setAlignment(const QString &align) {
    if (!m_alignRight) return;
    if (align == QLatin1String("left"))
        m_alignLeft->setChecked(true);
    else if (align == QLatin1String("right"))
        m_alignRight->setChecked(true);
    else
        m_alignCenter->setChecked(true);
}

bool FontStyleBox::shadow() const {
    return m_shadowCheck->isChecked();
}
void FontStyleBox::setShadow(bool on) {
    m_shadowCheck->setChecked(on);
}
