#include "console/templatepanel.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "chrome/widgets.h"
#include "core/appstate.h"
#include "core/events.h"
#include "core/logging.h"
#include "core/settings.h"
#include "core/ui.h"
#include "design/stageload.h"
#include "design/templatepage.h"
#include "design/view/designerwindow.h"
#include "stage/protocol.h"
#include "stage/view/stagefactory.h"

namespace {

QLabel *hintLabel(const QString &text, QWidget *parent) {
    auto *label = new QLabel(text, parent);
    label->setWordWrap(true);
    label->setProperty("role", QStringLiteral("hint"));
    return label;
}

QLineEdit *sizeEdit(const QString &text, const QString &name, QWidget *parent) {
    auto *edit = new QLineEdit(text, parent);
    edit->setObjectName(name);
    edit->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), edit));
    edit->setFixedWidth(64);
    return edit;
}

}  // namespace

TemplatePanel::TemplatePanel(QWidget *parent) : QWidget(parent) {
    buildControls();
    createPreviewStage();
    // The designer saves the template it edits; the preview follows without changing the choice.
    connect(&events(), &Events::templateSaved, this, &TemplatePanel::reloadTemplate);
}

TemplatePanel::~TemplatePanel() = default;

void TemplatePanel::buildControls() {
    m_templateCombo = new QComboBox(this);
    m_templateCombo->setObjectName(QStringLiteral("templateCombo"));
    m_mainTitleEdit = new QLineEdit(appState().title1, this);
    m_mainTitleEdit->setObjectName(QStringLiteral("mainTitleEdit"));
    m_subtitleEdit = new QLineEdit(appState().title2, this);
    m_subtitleEdit->setObjectName(QStringLiteral("subtitleEdit"));
    m_widthEdit = sizeEdit(QStringLiteral("1024"), QStringLiteral("widthEdit"), this);
    m_heightEdit = sizeEdit(QStringLiteral("768"), QStringLiteral("heightEdit"), this);
    auto *changeBackground = new LinkLabel(tr("更换背景图片"), this);
    changeBackground->setObjectName(QStringLiteral("changeBackgroundLink"));
    m_restoreBackgroundLink = new LinkLabel(tr("恢复原图"), this);
    m_restoreBackgroundLink->setObjectName(QStringLiteral("restoreBackgroundLink"));
    m_restoreBackgroundLink->hide();
    auto *save = new QPushButton(tr("保存修改"), this);
    save->setObjectName(QStringLiteral("saveButton"));
    save->setProperty("role", QStringLiteral("primary"));
    auto *editTemplate = new QPushButton(tr("编辑模板"), this);
    editTemplate->setObjectName(QStringLiteral("editTemplateButton"));
    connect(m_templateCombo, &QComboBox::currentIndexChanged, this, &TemplatePanel::loadTemplate);
    connect(save, &QPushButton::clicked, this, &TemplatePanel::savePage);
    connect(changeBackground, &LinkLabel::clicked, this, &TemplatePanel::chooseBackground);
    connect(m_restoreBackgroundLink, &LinkLabel::clicked, this, &TemplatePanel::restoreBackground);
    connect(editTemplate, &QPushButton::clicked, this, &TemplatePanel::openDesigner);

    auto *size = new QHBoxLayout;
    size->addWidget(new QLabel(tr("宽度"), this));
    size->addWidget(m_widthEdit);
    size->addWidget(new QLabel(tr("高度"), this));
    size->addWidget(m_heightEdit);
    size->addWidget(hintLabel(tr("(单位：像素)"), this));
    size->addStretch();
    auto *background = new QHBoxLayout;
    background->addWidget(changeBackground);
    background->addWidget(m_restoreBackgroundLink);
    background->addStretch();
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(save);
    buttons->addWidget(editTemplate);
    buttons->addStretch();

    auto *form = new QGridLayout;
    form->addWidget(new QLabel(tr("模板∶"), this), 0, 0);
    form->addWidget(m_templateCombo, 0, 1);
    form->addWidget(new QLabel(tr("主标题∶"), this), 1, 0);
    form->addWidget(m_mainTitleEdit, 1, 1);
    form->addWidget(new QLabel(tr("副标题∶"), this), 2, 0);
    form->addWidget(m_subtitleEdit, 2, 1);
    form->addWidget(new QLabel(tr("分辨率："), this), 3, 0);
    form->addLayout(size, 3, 1);
    form->addLayout(background, 4, 1);
    form->addLayout(buttons, 5, 1);
    form->setRowStretch(6, 1);

    m_previewBox = new QWidget(this);
    m_previewBox->setFixedSize(257, 177);
    m_previewBox->setStyleSheet(QStringLiteral("background: rgb(60,10,14); border-radius: 4px;"));
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(hintLabel(tr("界面设置，即是设置抽奖界面的背景、标题以及文字样式等!"), this));
    auto *row = new QHBoxLayout;
    row->addLayout(form, 1);
    row->addSpacing(12);
    row->addWidget(m_previewBox, 0, Qt::AlignTop);
    layout->addLayout(row, 1);
}

void TemplatePanel::createPreviewStage() {
    m_preview = createStage(m_previewBox);
    connect(m_preview.get(), &Stage::commandReceived, this, &TemplatePanel::onPreviewCommand);
    if (QWidget *view = m_preview->widget())
        view->setGeometry(0, 0, m_previewBox->width(), m_previewBox->height());
    listTemplates();
    m_preview->loadMovie(appState().path(appState().moviePreview));
}

void TemplatePanel::onPreviewCommand(const QString &command, const QString &args) {
    if (command == proto::cmd::asload) {
        m_preview->setVariable(proto::getIsOk, proto::yes);
    } else if (command == proto::cmd::startskin) {
        // One load for the stored choice, however many items the walk passes on its way.
        const QSignalBlocker quiet(m_templateCombo);
        selectCombo(m_templateCombo, appState().selSkinName);
        loadTemplate();
    } else if (command == proto::cmd::msg) {
        ui().message(args, MsgStyle::Exclamation, tr("AS提示"));
    }
}

void TemplatePanel::listTemplates() {
    m_listing = true;
    m_templateCombo->clear();
    m_templateCombo->addItems(design::listTemplates(appState().appPath));
    m_listing = false;
}

void TemplatePanel::loadTemplate() {
    if (m_listing || m_templateCombo->currentText().isEmpty()) return;
    AppState &state = appState();
    const QString name = m_templateCombo->currentText();
    state.skinConnStr = design::templatePath(state.appPath, name);
    design::TemplateData data;
    if (!design::readTemplateFile(state.skinConnStr, &data) || !data.bg.found) {
        ui().message(tr("界面数据文件损坏!"), MsgStyle::Exclamation, titles::error);
        return;
    }
    state.bgW = data.bg.BgW;
    state.bgH = data.bg.BgH;
    m_widthEdit->setText(QString::number(state.bgW));
    m_heightEdit->setText(QString::number(state.bgH));
    const design::PreviewFit fit = design::previewFit(state.bgW, state.bgH);
    if (QWidget *view = m_preview->widget())
        view->setGeometry((m_previewBox->width() - fit.width) / 2,
                          (m_previewBox->height() - fit.height) / 2, fit.width, fit.height);
    design::fullLoad(*m_preview, data, design::contextFor(design::Reader::Console));
    if (!m_keepStoredChoice) settings::write(QStringLiteral("selSkinName"), name);
}

void TemplatePanel::reloadTemplate() {
    m_keepStoredChoice = true;
    loadTemplate();
    m_keepStoredChoice = false;
}

void TemplatePanel::savePage() {
    const design::SizeCheck check =
        design::checkStageSize(m_widthEdit->text(), m_heightEdit->text());
    if (!check.ok()) {
        ui().message(check.message, MsgStyle::Exclamation, titles::warning);
        (check.widthField ? m_widthEdit : m_heightEdit)->setFocus();
        return;
    }
    settings::write(QStringLiteral("BT1"), m_mainTitleEdit->text());
    settings::write(QStringLiteral("BT2"), m_subtitleEdit->text());
    QString error;
    if (!design::saveTemplatePage(appState().appPath, m_templateCombo->currentText(),
                                  m_widthEdit->text().trimmed().toInt(),
                                  m_heightEdit->text().trimmed().toInt(), m_backgroundFile, &error))
        ui().message(error, MsgStyle::Critical, titles::error);
    m_restoreBackgroundLink->hide();
    appState().title1 = m_mainTitleEdit->text();
    appState().title2 = m_subtitleEdit->text();
    loadTemplate();
}

void TemplatePanel::chooseBackground() {
    const QString file =
        ui().openFile(tr("选择背景图片"), appState().appPath,
                      tr("背景文件(*.png *.jpg *.jpeg *.gif *.bmp);;PNG Files(*.png);;"
                         "JPG Files(*.jpg *.jpeg);;GIF Files(*.gif);;BMP Files(*.bmp)"));
    if (file.isEmpty()) return;
    m_preview->setVariable(proto::setAsBgImg, file + proto::kSep + m_widthEdit->text() +
                                                  proto::kSep + m_heightEdit->text());
    m_backgroundFile = file;
    m_restoreBackgroundLink->show();
}

void TemplatePanel::restoreBackground() {
    loadTemplate();
    m_backgroundFile.clear();
    m_restoreBackgroundLink->hide();
}

void TemplatePanel::openDesigner() {
    const QString name = m_templateCombo->currentText();
    if (!design::copyToWorkingFile(appState().appPath, name))
        qCWarning(lcConsole) << "template" << name << "could not be copied to the working file";
    appState().skinFile = design::templatePath(appState().appPath, name);
    // Saving in the designer raises templateSaved, which reloads this preview.
    auto *designer = new DesignerWindow(window());
    designer->setAttribute(Qt::WA_DeleteOnClose);
    designer->setWindowModality(Qt::ApplicationModal);
    designer->show();
}
