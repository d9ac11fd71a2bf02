#include "design/view/textdialogs.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSlider>
#include <QTextEdit>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "core/appstate.h"
#include "core/ui.h"
#include "design/designerdocument.h"
#include "design/designvalues.h"
#include "design/payloads.h"
#include "design/view/fontstylebox.h"
#include "stage/protocol.h"

namespace {

QComboBox *listCombo(QWidget *parent, const QString &name, const QStringList &items) {
    auto *combo = new QComboBox(parent);
    combo->setObjectName(name);
    combo->addItems(items);
    return combo;
}

QString flagText(bool on) {
    return on ? proto::trueText : proto::falseText;
}

}  // namespace

TextDialogBase::TextDialogBase(design::DesignerDocument &document, const QString &name,
                               const QStringList &sizes, const QString &title, QWidget *parent)
    : DocumentDialog(document, name.trimmed(), parent) {
    setWindowTitle(title);
    m_contentEdit = new QTextEdit(this);
    m_contentEdit->setObjectName(QStringLiteral("contentEdit"));
    m_contentEdit->setAcceptRichText(false);
    m_contentEdit->setMinimumSize(420, 110);
    m_style = new FontStyleBox(sizes, false, this);
    m_okButton = new QPushButton(tr("确定"), this);
    m_okButton->setObjectName(QStringLiteral("okButton"));
    auto *cancel = new QPushButton(tr("取消"), this);
    cancel->setObjectName(QStringLiteral("cancelButton"));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_style, &FontStyleBox::styleChanged, this, &TextDialogBase::showStyle);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_okButton);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_contentEdit);
    layout->addWidget(m_style);
    layout->addLayout(buttons);
}

void TextDialogBase::addFrame(const QString &caption, QFormLayout *form) {
    auto *frame = new QGroupBox(caption, this);
    frame->setLayout(form);
    auto *layout = static_cast<QVBoxLayout *>(this->layout());
    layout->insertWidget(layout->count() - 1, frame);
}

bool TextDialogBase::loadRow() {
    if (!m_document.readObject(m_name, &m_row)) {
        ui().message(tr("读取数据错误!"), MsgStyle::Critical, titles::error);
        return false;
    }
    m_style->setFamily(m_row.fFont);
    m_style->setPixelSize(m_row.fSize);
    m_style->setColorText(m_row.fColor);
    m_style->setAlpha(m_row.ObjAlpha);
    m_style->setFlags(m_row.fBold == proto::trueText, m_row.fItalic == proto::trueText,
                      m_row.fUnderline == proto::trueText);
    m_style->setShadow(m_row.isShadown == 1);
    // The titles are edited on the console: the text box shows them but cannot change them.
    if (m_name == design::sysobj::txt_zbt || m_name == design::sysobj::txt_fbt) {
        const AppState &state = appState();
        m_contentEdit->setPlainText(m_name == design::sysobj::txt_zbt ? state.title1
                                                                      : state.title2);
        m_contentEdit->setEnabled(false);
    } else {
        m_contentEdit->setPlainText(m_row.fTxt);
    }
    m_contentEdit->moveCursor(QTextCursor::End);
    showStyle();
    m_loaded = true;
    return true;
}

void TextDialogBase::showStyle() {
    // The program's style sheet sets fonts, so the editor's look is a style sheet as well.
    const bool white = m_style->colorText() == QLatin1String("0xFFFFFF");
    m_contentEdit->setStyleSheet(
        QStringLiteral("QTextEdit { font-family: '%1'; font-size: %2pt; font-weight: %3; "
                       "font-style: %4; text-decoration: %5; color: %6; background: %7; }")
            .arg(m_style->family())
            .arg(design::pointsForPixels(std::max(1, m_style->pixelSize())))
            .arg(m_style->bold() ? QStringLiteral("bold") : QStringLiteral("normal"),
                 m_style->italic() ? QStringLiteral("italic") : QStringLiteral("normal"),
                 m_style->underline() ? QStringLiteral("underline") : QStringLiteral("none"),
                 design::colorFromText(m_style->colorText()).name(),
                 // White text stays readable on a dark grey.
                 white ? QStringLiteral("#404040") : palette().color(QPalette::Base).name()));
}

QVariantMap TextDialogBase::commonColumns(bool withText) const {
    QVariantMap columns{
        {QStringLiteral("ObjAlpha"), m_style->alpha()},
        {QStringLiteral("fFont"), m_style->family()},
        {QStringLiteral("fColor"), m_style->colorText()},
        {QStringLiteral("fSize"), m_style->pixelSize()},
        {QStringLiteral("fBold"), flagText(m_style->bold())},
        {QStringLiteral("fItalic"), flagText(m_style->italic())},
        {QStringLiteral("fUnderline"), flagText(m_style->underline())},
        {QStringLiteral("isShadown"), m_style->shadow() ? 1 : 0},
    };
    if (withText)
        columns.insert(QStringLiteral("fTxt"), design::safeText(m_contentEdit->toPlainText()));
    return columns;
}

QString TextDialogBase::colorButtonText(QPushButton *button) const {
    return colorOf(button);
}

void TextDialogBase::saveColumns(const QVariantMap &columns) {
    if (m_document.updateObject(m_name, columns)) accept();
}

TextObjectDialog::TextObjectDialog(design::DesignerDocument &document, const QString &name,
                                   QWidget *parent)
    : TextDialogBase(document, name, design::textObjectSizes(), tr("文字编辑"), parent) {
    if (!loadRow()) return;
    m_borderTypeCombo =
        listCombo(this, QStringLiteral("borderTypeCombo"), {tr("方形边角"), tr("圆形边角")});
    m_borderTypeCombo->setCurrentIndex(m_row.borderType == QLatin1String("round") ? 1 : 0);
    m_borderEdit = digitsEdit(this, QStringLiteral("borderEdit"), m_row.borderNum);
    m_bgColorButton = colorButton(this, QStringLiteral("bgColorButton"), m_row.bgColor);
    connect(m_bgColorButton, &QPushButton::clicked, this,
            [this] { chooseColorFor(m_bgColorButton); });
    m_bgAlphaSlider =
        designSlider(this, QStringLiteral("bgAlphaSlider"), 0, 100, 5, 10, m_row.bgAlpha);
    auto *form = new QFormLayout;
    form->addRow(tr("边框类型："), m_borderTypeCombo);
    form->addRow(tr("边框大小："), m_borderEdit);
    form->addRow(tr("边款颜色："), m_bgColorButton);
    form->addRow(tr("边框透明："), m_bgAlphaSlider);
    addFrame(tr("边框设置"), form);
    connect(m_okButton, &QPushButton::clicked, this, &TextObjectDialog::save);
    centerForm(this);
}

void TextObjectDialog::save() {
    QVariantMap columns = commonColumns(true);
    columns.insert(QStringLiteral("bgColor"), colorButtonText(m_bgColorButton));
    columns.insert(QStringLiteral("bgAlpha"), m_bgAlphaSlider->value());
    columns.insert(QStringLiteral("borderNum"), m_borderEdit->text().toInt());
    columns.insert(QStringLiteral("borderType"), m_borderTypeCombo->currentIndex() == 0
                                                     ? QStringLiteral("box")
                                                     : QStringLiteral("round"));
    saveColumns(columns);
}

ScrollTextDialog::ScrollTextDialog(design::DesignerDocument &document, const QString &name,
                                   QWidget *parent)
    : TextDialogBase(document, name, design::scrollTextSizes(), tr("滚动文字属性"), parent) {
    if (!loadRow()) return;
    if (m_name == design::sysobj::scr_luckls) {
        m_contentEdit->setPlainText(tr("中奖信息变量,无法更改!"));
        m_contentEdit->setEnabled(false);
    }
    m_widthEdit = digitsEdit(this, QStringLiteral("widthEdit"), m_row.ObjW);
    m_widthEdit->setToolTip(tr("文字滚动区域宽(像素)"));
    m_heightEdit = digitsEdit(this, QStringLiteral("heightEdit"), m_row.ObjH);
    m_heightEdit->setToolTip(tr("文字滚动区域高(像素)"));
    m_bgTypeCombo =
        listCombo(this, QStringLiteral("bgTypeCombo"), {tr("方形背景"), tr("圆角背景")});
    m_radiusEdit = digitsEdit(this, QStringLiteral("radiusEdit"), m_row.borderNum);
    m_radiusEdit->setToolTip(tr("设置背景圆角弧度大小"));
    connect(m_bgTypeCombo, &QComboBox::currentIndexChanged, m_radiusEdit,
            [this](int index) { m_radiusEdit->setEnabled(index == 1); });
    m_bgTypeCombo->setCurrentIndex(m_row.borderType == QLatin1String("round") ? 1 : 0);
    m_radiusEdit->setEnabled(m_bgTypeCombo->currentIndex() == 1);
    m_bgColorButton = colorButton(this, QStringLiteral("bgColorButton"), m_row.bgColor);
    connect(m_bgColorButton, &QPushButton::clicked, this,
            [this] { chooseColorFor(m_bgColorButton); });
    m_bgAlphaSlider =
        designSlider(this, QStringLiteral("bgAlphaSlider"), 0, 100, 5, 10, m_row.bgAlpha);
    m_speedSlider = designSlider(this, QStringLiteral("speedSlider"), 0, 10, 1, 5, m_row.SrcV);
    m_directionCombo = listCombo(this, QStringLiteral("directionCombo"),
                                 {tr("从右向左"), tr("从左向右"), tr("从下往上")});
    m_directionCombo->setCurrentIndex(std::clamp(m_row.ObjDirection, 0, 2));

    auto *size = new QHBoxLayout;
    size->addWidget(m_widthEdit);
    size->addWidget(new QLabel(QStringLiteral("×"), this));
    size->addWidget(m_heightEdit);
    auto *type = new QHBoxLayout;
    type->addWidget(m_bgTypeCombo);
    type->addWidget(m_radiusEdit);
    auto *form = new QFormLayout;
    form->addRow(tr("背景长宽∶"), size);
    form->addRow(tr("背景类型："), type);
    form->addRow(tr("背景颜色："), m_bgColorButton);
    form->addRow(tr("背景透明："), m_bgAlphaSlider);
    form->addRow(tr("滚动速度："), m_speedSlider);
    form->addRow(tr("滚动方向："), m_directionCombo);
    addFrame(tr("滚屏设置"), form);
    connect(m_okButton, &QPushButton::clicked, this, &ScrollTextDialog::save);
    centerForm(this);
}

void ScrollTextDialog::save() {
    // The winner line's placeholder is never stored as its text.
    QVariantMap columns = commonColumns(m_name != design::sysobj::scr_luckls);
    columns.insert(QStringLiteral("bgColor"), colorButtonText(m_bgColorButton));
    columns.insert(QStringLiteral("bgAlpha"), m_bgAlphaSlider->value());
    columns.insert(QStringLiteral("borderNum"), m_radiusEdit->text().toInt());
    columns.insert(QStringLiteral("borderType"), m_bgTypeCombo->currentIndex() == 0
                                                     ? QStringLiteral("box")
                                                     : QStringLiteral("round"));
    columns.insert(QStringLiteral("SrcV"), m_speedSlider->value());
    columns.insert(QStringLiteral("ObjDirection"), m_directionCombo->currentIndex());
    columns.insert(QStringLiteral("ObjW"), qint16(m_widthEdit->text().toInt()));
    columns.insert(QStringLiteral("ObjH"), qint16(m_heightEdit->text().toInt()));
    saveColumns(columns);
}
