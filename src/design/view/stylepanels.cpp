#include "design/view/stylepanels.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include "core/appstate.h"
#include "core/settings.h"
#include "core/store.h"
#include "core/ui.h"
#include "design/designerdocument.h"
#include "design/payloads.h"
#include "design/stageload.h"
#include "design/view/fontstylebox.h"
#include "design/view/objectdialogs.h"
#include "stage/protocol.h"
#include "stage/stage.h"

namespace {

QComboBox *listCombo(QWidget *parent, const QString &name, const QStringList &items) {
    auto *combo = new QComboBox(parent);
    combo->setObjectName(name);
    combo->addItems(items);
    return combo;
}

bool rowMissing(const design::PlayRow &row) {
    if (row.found) return false;
    ui().message(QCoreApplication::translate("design", "界面数据文件数据异常,请更换模板!"),
                 MsgStyle::Critical, titles::error);
    return true;
}

QPushButton *fontButton(QWidget *parent, const QString &text, const QString &name) {
    auto *button = new QPushButton(text, parent);
    button->setObjectName(name);
    return button;
}

// "Mouse up" for a slider: the end of a drag, or any change not made by dragging.
template <typename Write>
void onSliderSettled(QSlider *slider, QObject *context, Write write) {
    QObject::connect(slider, &QSlider::sliderReleased, context, write);
    QObject::connect(slider, &QSlider::valueChanged, context, [slider, write] {
        if (!slider->isSliderDown()) write();
    });
}

}  // namespace

DrawAreaPanel::DrawAreaPanel(design::DesignerDocument &document, Stage &stage, QWidget *parent)
    : QWidget(parent), m_document(document), m_stage(stage) {
    m_bgTypeCombo =
        listCombo(this, QStringLiteral("bgTypeCombo"), {tr("方形背景"), tr("圆角背景")});
    m_bgColorButton =
        colorButton(this, QStringLiteral("bgColorButton"), QStringLiteral("0xFFFFFF"));
    m_bgAlphaSlider = designSlider(this, QStringLiteral("bgAlphaSlider"), 0, 100, 5, 10, 0);
    m_dotXEdit = digitsEdit(this, QStringLiteral("dotXEdit"), 0);
    m_dotYEdit = digitsEdit(this, QStringLiteral("dotYEdit"), 0);
    m_paddingEdit = digitsEdit(this, QStringLiteral("paddingEdit"), 0);
    m_paddingEdit->setToolTip(tr("设置背景圆角弧度大小"));
    auto *font = fontButton(this, tr("设置..."), QStringLiteral("fontButton"));
    m_viewNumEdit = digitsEdit(this, QStringLiteral("viewNumEdit"), 6);
    m_demoTextEdit = new QLineEdit(tr("演示数据"), this);
    m_demoTextEdit->setObjectName(QStringLiteral("demoTextEdit"));
    m_luckTypeCombo = listCombo(this, QStringLiteral("luckTypeCombo"),
                                {tr("纯文字抽奖"), tr("纯图片抽奖"), tr("图片加文字")});
    m_luckTypeCombo->setCurrentIndex(std::clamp<int>(appState().luckType, 0, 2));

    auto *form = new QFormLayout;
    form->addRow(tr("背景类型："), m_bgTypeCombo);
    form->addRow(tr("背景颜色："), m_bgColorButton);
    form->addRow(tr("背景透明："), m_bgAlphaSlider);
    form->addRow(tr("横向间距："), m_dotXEdit);
    form->addRow(tr("纵向间距："), m_dotYEdit);
    form->addRow(tr("文字边距："), m_paddingEdit);
    form->addRow(tr("设置字体："), font);
    form->addRow(tr("预览数量："), m_viewNumEdit);
    form->addRow(tr("预览文字："), m_demoTextEdit);
    form->addRow(tr("预览模式："), m_luckTypeCombo);
    auto *frame = new QGroupBox(tr("背景单元格设置"), this);
    frame->setLayout(form);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(frame);
    layout->addStretch();

    connect(m_bgTypeCombo, &QComboBox::activated, this, [this](int index) {
        write(QStringLiteral("BgType"),
              index == 0 ? QStringLiteral("box") : QStringLiteral("round"));
    });
    connect(m_bgColorButton, &QPushButton::clicked, this, [this] {
        if (chooseColorFor(m_bgColorButton))
            write(QStringLiteral("BgColor"), colorOf(m_bgColorButton));
    });
    onSliderSettled(m_bgAlphaSlider, this, [this] {
        if (!m_loading) write(QStringLiteral("BgAlpha"), m_bgAlphaSlider->value());
    });
    const QList<QPair<QLineEdit *, QString>> numbers{{m_dotXEdit, QStringLiteral("DotX")},
                                                     {m_dotYEdit, QStringLiteral("DotY")},
                                                     {m_paddingEdit, QStringLiteral("PaddingNum")}};
    for (const auto &[edit, column] : numbers) {
        connect(edit, &QLineEdit::textChanged, this, [this] {
            if (!m_loading) preview();
        });
        connect(edit, &QLineEdit::editingFinished, this,
                [this, edit = edit, column = column] { writeNumber(edit, column); });
    }
    for (QLineEdit *edit : {m_viewNumEdit, m_demoTextEdit})
        connect(edit, &QLineEdit::textChanged, this, [this] {
            if (!m_loading) preview();
        });
    connect(m_luckTypeCombo, &QComboBox::currentIndexChanged, this, [this] {
        if (!m_loading) preview();
    });
    connect(font, &QPushButton::clicked, this, &DrawAreaPanel::openFont);
}

void DrawAreaPanel::load() {
    const design::PlayRow row = m_document.readPlayRow(design::rows::blockValue);
    if (rowMissing(row)) return;
    m_loading = true;
    m_bgTypeCombo->setCurrentIndex(row.BgType == QLatin1String("round") ? 1 : 0);
    setColorOf(m_bgColorButton, row.BgColor);
    m_bgAlphaSlider->setValue(row.BgAlpha);
    m_dotXEdit->setText(QString::number(row.DotX));
    m_dotYEdit->setText(QString::number(row.DotY));
    m_paddingEdit->setText(QString::number(row.PaddingNum));
    m_loading = false;
    preview();
}

void DrawAreaPanel::preview() {
    design::DrawAreaPreviewValues values;
    const AppState &state = appState();
    values.maxImgWidth = state.maxImgWidth;
    values.maxImgHeight = state.maxImgHeight;
    values.previewType = m_luckTypeCombo->currentIndex();
    values.cellCount = m_viewNumEdit->text();
    values.bgTypeIndex = m_bgTypeCombo->currentIndex();
    values.bgColor = colorOf(m_bgColorButton);
    values.bgAlpha = m_bgAlphaSlider->value();
    values.dotX = m_dotXEdit->text();
    values.dotY = m_dotYEdit->text();
    values.paddingNum = m_paddingEdit->text();
    values.demoName = design::longestUserName(store::mainConn());
    values.demoText = m_demoTextEdit->text().trimmed();
    m_stage.setVariable(
        proto::vbLuckBox,
        design::drawAreaPreviewPayload(m_document.readPlayRow(design::rows::blockValue), values));
}

void DrawAreaPanel::write(const QString &column, const QVariant &value) {
    m_document.updatePlay(design::rows::blockValue, {{column, value}});
    if (!m_loading) preview();
}

// An emptied box leaves the row as it was.
void DrawAreaPanel::writeNumber(QLineEdit *edit, const QString &column) {
    if (m_loading || edit->text().isEmpty()) return;
    m_document.updatePlay(design::rows::blockValue, {{column, qint16(edit->text().toInt())}});
}

void DrawAreaPanel::openFont() {
    DrawFontDialog dialog(m_document, design::rows::blockValue, this);
    if (dialog.isLoaded()) dialog.exec();
    preview();
}

PlaybackPanel::PlaybackPanel(design::DesignerDocument &document, Stage &stage, QWidget *parent)
    : QWidget(parent), m_document(document), m_stage(stage) {
    using design::rows::playName;
    using design::rows::playTitle;
    m_boxWSlider = designSlider(this, QStringLiteral("boxWSlider"), 50, 100, 5, 10, 50);
    m_boxWSlider->setToolTip(tr("百分比"));
    m_boxHSlider = designSlider(this, QStringLiteral("boxHSlider"), 30, 100, 1, 5, 30);
    m_boxHSlider->setToolTip(tr("百分比"));
    m_speedSlider = designSlider(this, QStringLiteral("speedSlider"), 0, 20, 1, 5, 1);
    m_colNumSlider = designSlider(this, QStringLiteral("colNumSlider"), 1, 10, 1, 5, 1);
    m_scrollCheck = new QCheckBox(tr("滚动播放列表"), this);
    m_scrollCheck->setObjectName(QStringLiteral("scrollCheck"));
    m_titleTypeCombo =
        listCombo(this, QStringLiteral("titleTypeCombo"), {tr("奖项名称"), tr("奖项+奖品名称")});
    m_titleTypeCombo->setCurrentIndex(std::clamp<int>(appState().playTitleType, 0, 1));
    m_titlePaddingEdit = digitsEdit(this, QStringLiteral("titlePaddingEdit"), 0);
    m_titleBgAlphaSlider =
        designSlider(this, QStringLiteral("titleBgAlphaSlider"), 0, 100, 1, 5, 0);
    m_titleBgColorButton =
        colorButton(this, QStringLiteral("titleBgColorButton"), QStringLiteral("0xFFFFFF"));
    auto *titleFont = fontButton(this, tr("设置字体.."), QStringLiteral("titleFontButton"));
    m_nameTypeCombo = listCombo(this, QStringLiteral("nameTypeCombo"),
                                {tr("抽奖名单"), tr("图片"), tr("抽奖名单+图片")});
    m_nameTypeCombo->setCurrentIndex(std::clamp<int>(appState().playType, 0, 2));
    m_nameDotXEdit = digitsEdit(this, QStringLiteral("nameDotXEdit"), 0);
    m_nameDotYEdit = digitsEdit(this, QStringLiteral("nameDotYEdit"), 0);
    m_namePaddingEdit = digitsEdit(this, QStringLiteral("namePaddingEdit"), 0);
    m_nameBgAlphaSlider = designSlider(this, QStringLiteral("nameBgAlphaSlider"), 0, 100, 1, 5, 0);
    m_nameBgColorButton =
        colorButton(this, QStringLiteral("nameBgColorButton"), QStringLiteral("0xFFFFFF"));
    auto *nameFont = fontButton(this, tr("设置字体.."), QStringLiteral("nameFontButton"));

    auto *common = new QFormLayout;
    common->addRow(tr("整体宽度："), m_boxWSlider);
    common->addRow(tr("整体高度："), m_boxHSlider);
    common->addRow(tr("滚动速度："), m_speedSlider);
    common->addRow(tr("横向数量："), m_colNumSlider);
    common->addRow(m_scrollCheck);
    auto *title = new QFormLayout;
    title->addRow(tr("标题内容："), m_titleTypeCombo);
    title->addRow(tr("文字边距："), m_titlePaddingEdit);
    title->addRow(tr("背景透明："), m_titleBgAlphaSlider);
    title->addRow(tr("背景颜色："), m_titleBgColorButton);
    title->addRow(tr("标题字体："), titleFont);
    auto *names = new QFormLayout;
    names->addRow(tr("名单内容："), m_nameTypeCombo);
    names->addRow(tr("横向间距："), m_nameDotXEdit);
    names->addRow(tr("纵向间距："), m_nameDotYEdit);
    names->addRow(tr("文字边距："), m_namePaddingEdit);
    names->addRow(tr("背景透明："), m_nameBgAlphaSlider);
    names->addRow(tr("背景颜色："), m_nameBgColorButton);
    names->addRow(tr("名单字体："), nameFont);
    auto *layout = new QVBoxLayout(this);
    for (const auto &[caption, form] :
         {std::pair{QString(), common}, std::pair{tr("标题样式设置"), title},
          std::pair{tr("名单样式设置"), names}}) {
        auto *frame = new QGroupBox(caption, this);
        frame->setLayout(form);
        layout->addWidget(frame);
    }
    layout->addStretch();

    connectSlider(m_boxWSlider, playTitle, QStringLiteral("boxW"));
    connectSlider(m_boxHSlider, playTitle, QStringLiteral("boxH"));
    connectSlider(m_speedSlider, playTitle, QStringLiteral("Speed"));
    connectSlider(m_colNumSlider, playTitle, QStringLiteral("ColNum"));
    connectSlider(m_titleBgAlphaSlider, playTitle, QStringLiteral("BgAlpha"));
    connectSlider(m_nameBgAlphaSlider, playName, QStringLiteral("BgAlpha"));
    connectNumber(m_titlePaddingEdit, playTitle, QStringLiteral("PaddingNum"));
    connectNumber(m_nameDotXEdit, playName, QStringLiteral("DotX"));
    connectNumber(m_nameDotYEdit, playName, QStringLiteral("DotY"));
    connectNumber(m_namePaddingEdit, playName, QStringLiteral("PaddingNum"));
    connectColor(m_titleBgColorButton, playTitle);
    connectColor(m_nameBgColorButton, playName);
    connect(m_scrollCheck, &QCheckBox::clicked, this, &PlaybackPanel::sendScroll);
    connect(m_titleTypeCombo, &QComboBox::activated, this, [this](int index) {
        settings::write(QStringLiteral("playTitleType"), index);
        preview();
    });
    connect(m_nameTypeCombo, &QComboBox::activated, this, [this](int index) {
        settings::write(QStringLiteral("playType"), index);
        preview();
    });
    connect(titleFont, &QPushButton::clicked, this, [this] { openFont(design::rows::playTitle); });
    connect(nameFont, &QPushButton::clicked, this, [this] { openFont(design::rows::playName); });
}

void PlaybackPanel::connectSlider(QSlider *slider, const QString &row, const QString &column) {
    onSliderSettled(slider, this, [this, slider, row, column] {
        if (!m_loading) write(row, column, slider->value());
    });
}

// A box the operator has emptied leaves the row as it was.
void PlaybackPanel::connectNumber(QLineEdit *edit, const QString &row, const QString &column) {
    connect(edit, &QLineEdit::textChanged, this, [this, edit, row, column] {
        if (!m_loading && !edit->text().isEmpty()) write(row, column, qint16(edit->text().toInt()));
    });
}

void PlaybackPanel::connectColor(QPushButton *button, const QString &row) {
    connect(button, &QPushButton::clicked, this, [this, button, row] {
        if (chooseColorFor(button)) write(row, QStringLiteral("BgColor"), colorOf(button));
    });
}

void PlaybackPanel::write(const QString &row, const QString &column, const QVariant &value) {
    m_document.updatePlay(row, {{column, value}});
    preview();
}

void PlaybackPanel::load() {
    const design::PlayRow title = m_document.readPlayRow(design::rows::playTitle);
    const design::PlayRow name = m_document.readPlayRow(design::rows::playName);
    if (rowMissing(title) || rowMissing(name)) return;
    m_loading = true;
    m_boxWSlider->setValue(title.boxW);
    m_boxHSlider->setValue(title.boxH);
    m_speedSlider->setValue(title.Speed);
    m_colNumSlider->setValue(title.ColNum);
    setColorOf(m_titleBgColorButton, title.BgColor);
    m_titleBgAlphaSlider->setValue(title.BgAlpha);
    m_titlePaddingEdit->setText(QString::number(title.PaddingNum));
    setColorOf(m_nameBgColorButton, name.BgColor);
    m_nameBgAlphaSlider->setValue(name.BgAlpha);
    m_nameDotXEdit->setText(QString::number(name.DotX));
    m_nameDotYEdit->setText(QString::number(name.DotY));
    m_namePaddingEdit->setText(QString::number(name.PaddingNum));
    m_loading = false;
    preview();
}

void PlaybackPanel::preview() {
    design::PlayPanelValues panel;
    panel.boxW = m_boxWSlider->value();
    panel.boxH = m_boxHSlider->value();
    panel.speed = m_speedSlider->value();
    panel.colNum = m_colNumSlider->value();
    panel.titleType = m_titleTypeCombo->currentIndex();
    panel.nameType = m_nameTypeCombo->currentIndex();
    panel.titleBgColor = colorOf(m_titleBgColorButton);
    panel.titleBgAlpha = m_titleBgAlphaSlider->value();
    panel.titlePadding = m_titlePaddingEdit->text();
    panel.nameBgColor = colorOf(m_nameBgColorButton);
    panel.nameBgAlpha = m_nameBgAlphaSlider->value();
    panel.namePadding = m_namePaddingEdit->text();
    panel.nameDotX = m_nameDotXEdit->text();
    panel.nameDotY = m_nameDotYEdit->text();
    const AppState &state = appState();
    const design::BgRow &page = m_document.page();
    const design::PlaybackValues values =
        design::designerPlayback(m_document.readPlayRow(design::rows::playTitle),
                                 m_document.readPlayRow(design::rows::playName), panel, page.BgW,
                                 page.BgH, state.maxImgWidth, state.maxImgHeight);
    m_stage.setVariable(proto::vbLuckPlay, design::playbackStylePayload(values));
    sendScroll();
}

void PlaybackPanel::sendScroll() {
    m_stage.setVariable(proto::vbStartScroll, design::startScrollPayload(m_scrollCheck->isChecked(),
                                                                         m_speedSlider->value(),
                                                                         design::Reader::Designer));
}

void PlaybackPanel::openFont(const QString &row) {
    DrawFontDialog dialog(m_document, row, this);
    if (dialog.isLoaded()) dialog.exec();
    preview();
}
