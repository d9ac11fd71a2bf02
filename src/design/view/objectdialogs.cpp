#include "design/view/objectdialogs.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSlider>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "core/ui.h"
#include "design/designerdocument.h"
#include "design/designvalues.h"
#include "design/view/fontstylebox.h"
#include "stage/protocol.h"

namespace {

// OK and cancel below a frame.
void finishLayout(QDialog *dialog, QGroupBox *frame, const std::function<void()> &save) {
    auto *ok = new QPushButton(QCoreApplication::translate("design", "确定"), dialog);
    ok->setObjectName(QStringLiteral("okButton"));
    auto *cancel = new QPushButton(QCoreApplication::translate("design", "取消"), dialog);
    cancel->setObjectName(QStringLiteral("cancelButton"));
    QObject::connect(ok, &QPushButton::clicked, dialog, save);
    QObject::connect(cancel, &QPushButton::clicked, dialog, &QDialog::reject);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(dialog);
    layout->addWidget(frame);
    layout->addLayout(buttons);
    centerForm(dialog);
}

}  // namespace

ImageObjectDialog::ImageObjectDialog(design::DesignerDocument &document, const QString &name,
                                     QWidget *parent)
    : DocumentDialog(document, name.trimmed(), parent) {
    setWindowTitle(tr("图片编辑"));
    design::ObjRow row;
    if (!document.readObject(m_name, &row)) {
        ui().message(tr("数据库中找不到图片数据!"), MsgStyle::Critical, titles::error);
        return;
    }
    m_alphaSlider = new QSlider(Qt::Horizontal, this);
    m_alphaSlider->setObjectName(QStringLiteral("alphaSlider"));
    m_alphaSlider->setRange(10, 100);
    m_alphaSlider->setSingleStep(5);
    m_alphaSlider->setPageStep(10);
    m_alphaSlider->setValue(row.ObjAlpha);
    m_reflectionCheck = new QCheckBox(tr("启用图片倒影"), this);
    m_reflectionCheck->setObjectName(QStringLiteral("reflectionCheck"));
    m_reflectionAtOpening = row.isImgFilter != proto::falseText;
    m_reflectionCheck->setChecked(m_reflectionAtOpening);
    auto *form = new QFormLayout;
    form->addRow(tr("图片透明："), m_alphaSlider);
    form->addRow(m_reflectionCheck);
    auto *frame = new QGroupBox(tr("图片设置"), this);
    frame->setLayout(form);
    finishLayout(this, frame, [this] { save(); });
    m_loaded = true;
}

void ImageObjectDialog::save() {
    const bool reflection = m_reflectionCheck->isChecked();
    if (m_document.updateImage(m_name, m_alphaSlider->value(), reflection,
                               reflection != m_reflectionAtOpening))
        accept();
}

AnimationObjectDialog::AnimationObjectDialog(design::DesignerDocument &document,
                                             const QString &name, QWidget *parent)
    : DocumentDialog(document, name.trimmed(), parent) {
    setWindowTitle(tr("SWF文件属性"));
    design::ObjRow row;
    if (!document.readObject(m_name, &row)) {
        ui().message(tr("数据库中找不到SWF元件!"), MsgStyle::Critical, titles::error);
        return;
    }
    m_widthEdit = digitsEdit(this, QStringLiteral("widthEdit"), row.ObjW);
    m_heightEdit = digitsEdit(this, QStringLiteral("heightEdit"), row.ObjH);
    auto *naturalSize = new QPushButton(tr("默认尺寸"), this);
    naturalSize->setObjectName(QStringLiteral("naturalSizeButton"));
    connect(naturalSize, &QPushButton::clicked, this, [this] {
        m_widthEdit->setText(QStringLiteral("0"));
        m_heightEdit->setText(QStringLiteral("0"));
    });
    auto *form = new QFormLayout;
    auto withUnit = [this](QLineEdit *edit) {
        auto *row = new QHBoxLayout;
        row->addWidget(edit);
        row->addWidget(new QLabel(tr("(像素)"), this));
        return row;
    };
    form->addRow(tr("SWF影片宽度∶"), withUnit(m_widthEdit));
    form->addRow(tr("SWF影片高度∶"), withUnit(m_heightEdit));
    form->addRow(new QLabel(tr("(默认请设置为0)"), this), naturalSize);
    auto *frame = new QGroupBox(tr("参数设置"), this);
    frame->setLayout(form);
    finishLayout(this, frame, [this] { save(); });
    m_loaded = true;
}

void AnimationObjectDialog::save() {
    if (m_document.updateObject(m_name,
                                {{QStringLiteral("ObjW"), qint16(m_widthEdit->text().toInt())},
                                 {QStringLiteral("ObjH"), qint16(m_heightEdit->text().toInt())}}))
        accept();
}

DrawFontDialog::DrawFontDialog(design::DesignerDocument &document, const QString &row,
                               QWidget *parent)
    : DocumentDialog(document, row, parent) {
    setWindowTitle(tr("字体设置"));
    const design::PlayRow play = document.readPlayRow(row);
    if (!play.found) {
        ui().message(tr("读取数据错误!"), MsgStyle::Critical, titles::error);
        return;
    }
    m_style = new FontStyleBox(design::drawFontSizes(), true, this);
    m_style->setFamily(play.fName);
    m_style->setPixelSize(play.fSize);
    m_style->setColorText(play.fColor);
    m_style->setAlpha(play.txtAlpha);
    m_style->setFlags(play.fBold == proto::trueText, play.fItalic == proto::trueText,
                      play.fUnderline == proto::trueText);
    m_style->setAlignment(play.txtAlign);
    m_style->setShadow(play.isShadown == 1);
    auto *frame = new QGroupBox(tr("滚动字体样式"), this);
    auto *inner = new QVBoxLayout(frame);
    inner->addWidget(m_style);
    finishLayout(this, frame, [this] { save(); });
    m_loaded = true;
}

void DrawFontDialog::save() {
    auto flag = [](bool on) { return on ? proto::trueText : proto::falseText; };
    if (m_document.updatePlay(m_name, {{QStringLiteral("txtAlpha"), m_style->alpha()},
                                       {QStringLiteral("fName"), m_style->family()},
                                       {QStringLiteral("fColor"), m_style->colorText()},
                                       {QStringLiteral("fSize"), m_style->pixelSize()},
                                       {QStringLiteral("fBold"), flag(m_style->bold())},
                                       {QStringLiteral("fItalic"), flag(m_style->italic())},
                                       {QStringLiteral("fUnderline"), flag(m_style->underline())},
                                       {QStringLiteral("isShadown"), m_style->shadow() ? 1 : 0},
                                       {QStringLiteral("txtAlign"), m_style->alignment()}}))
        accept();
}

VariablesHelpDialog::VariablesHelpDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(tr("什么是变量呢?"));
    auto *text =
        new QLabel(tr("<p>模板里的文字可以带上变量，抽奖时会换成当前奖项的内容：</p>"
                      "<p><b>$Name2</b>　奖项名称，例如“一等奖”<br>"
                      "<b>$Name1</b>　奖品名称，例如“笔记本电脑”<br>"
                      "<b>$1</b>　该奖项的名额<br>"
                      "<b>$2</b>　该奖项还剩下的名额</p>"
                      "<p>例如“名额 $1 名，剩余 $2 名”在抽奖时显示为“名额 10 名，剩余 4 名”。</p>"),
                   this);
    text->setWordWrap(true);
    text->setMinimumWidth(380);
    auto *ok = new QPushButton(tr("好的,我知道了"), this);
    ok->setObjectName(QStringLiteral("okButton"));
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(ok, 0, Qt::AlignRight);
    centerForm(this);
}
