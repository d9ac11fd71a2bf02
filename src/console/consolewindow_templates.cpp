// The console's interface page: the template list, the live preview stage and saving the page.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include "chrome/widgethelpers.h"
#include "chrome/widgets.h"
#include "console/consolewindow.h"
#include "core/appstate.h"
#include "core/settings.h"
#include "core/ui.h"
#include "design/stageload.h"
#include "design/templatepage.h"
#include "stage/protocol.h"
#include "stage/view/stagefactory.h"

void ConsoleWindow::createPreviewStage() {
    m_preview = createStage(picView);
    previewStage = m_preview.get();
    connect(previewStage, &Stage::commandReceived, this, &ConsoleWindow::onPreviewCommand);
    if (QWidget *view = previewStage->widget())
        view->setGeometry(0, 0, picView->width(), picView->height());
    connect(ComboMB, &QComboBox::currentIndexChanged, this, &ConsoleWindow::loadTemplate);
    connect(cmdSave, &QPushButton::clicked, this, &ConsoleWindow::cmdSave_Click);
    connect(labJmSet, &LinkLabel::clicked, this, &ConsoleWindow::labJmSet_Click);
    connect(labHF, &LinkLabel::clicked, this, &ConsoleWindow::labHF_Click);
    connect(cmdEditSkin, &QPushButton::clicked, this, &ConsoleWindow::openDesigner);
    listTemplates();
    previewStage->loadMovie(appState().path(appState().moviePreview));
}

void ConsoleWindow::onPreviewCommand(const QString &command, const QString &args) {
    if (command == proto::cmd::asload) {
        previewStage->setVariable(proto::getIsOk, proto::yes);
    } else if (command == proto::cmd::startskin) {
        // One load for the stored choice, however many items the walk passes on its way.
        const QSignalBlocker quiet(ComboMB);
        selectCombo(ComboMB, appState().selSkinName);
        loadTemplate();
    } else if (command == proto::cmd::msg) {
        ui().message(args, MsgStyle::Exclamation, QStringLiteral("AS提示"));
    }
}

void ConsoleWindow::listTemplates() {
    skinListing = true;
    ComboMB->clear();
    ComboMB->addItems(design::listTemplates(appState().appPath));
    skinListing = false;
}

void ConsoleWindow::loadTemplate() {
    if (skinListing || ComboMB->currentText().isEmpty()) return;
    AppState &state = appState();
    const QString name = ComboMB->currentText();
    state.skinConnStr = design::templatePath(state.appPath, name);
    design::TemplateData data;
    if (!design::readTemplateFile(state.skinConnStr, &data) || !data.bg.found) {
        ui().message(QStringLiteral("界面数据文件损坏!"), MsgStyle::Exclamation, titles::error);
        return;
    }
    state.bgW = data.bg.BgW;
    state.bgH = data.bg.BgH;
    txtW->setText(QString::number(state.bgW));
    txtH->setText(QString::number(state.bgH));
    const design::PreviewFit fit = design::previewFit(state.bgW, state.bgH);
    if (QWidget *view = previewStage->widget())
        view->setGeometry((picView->width() - fit.width) / 2, (picView->height() - fit.height) / 2,
                          fit.width, fit.height);
    design::fullLoad(*previewStage, data, design::contextFor(design::Reader::Console));
    if (!skipSkinSave) settings::write(QStringLiteral("selSkinName"), name);
}

void ConsoleWindow::reFrashObj() {
    design::TemplateData data;
    if (!design::readTemplateFile(appState().skinConnStr, &data)) return;
    design::sendObjects(*previewStage, data.objects, design::contextFor(design::Reader::Console));
}

void ConsoleWindow::reloadTemplate() {
    skipSkinSave = true;
    loadTemplate();
    skipSkinSave = false;
}

void ConsoleWindow::cmdSave_Click() {
    const design::SizeCheck check = design::checkStageSize(txtW->text(), txtH->text());
    if (!check.ok()) {
        ui().message(check.message, MsgStyle::Exclamation, titles::warning);
        (check.widthField ? txtW : txtH)->setFocus();
        return;
    }
    settings::write(QStringLiteral("BT1"), txtBTm->text());
    settings::write(QStringLiteral("BT2"), txtBTs->text());
    QString error;
    if (!design::saveTemplatePage(appState().appPath, ComboMB->currentText(),
                                  txtW->text().trimmed().toInt(), txtH->text().trimmed().toInt(),
                                  txtBgImg->text(), &error))
        ui().message(error, MsgStyle::Critical, titles::error);
    labHF->hide();
    appState().title1 = txtBTm->text();
    appState().title2 = txtBTs->text();
    loadTemplate();
}

void ConsoleWindow::labJmSet_Click() {
    const QString file = ui().openFile(
        QStringLiteral("选择背景图片"), appState().appPath,
        QStringLiteral("背景文件(*.png *.jpg *.jpeg *.gif *.bmp *.swf);;PNG Files(*.png);;"
                       "JPG Files(*.jpg *.jpeg);;GIF Files(*.gif);;BMP Files(*.bmp)"));
    if (file.isEmpty()) return;
    previewStage->setVariable(proto::setAsBgImg,
                              file + proto::kSep + txtW->text() + proto::kSep + txtH->text());
    txtBgImg->setText(file);
    labHF->show();
}

void ConsoleWindow::labHF_Click() {
    loadTemplate();
    txtBgImg->clear();
    labHF->hide();
}

void ConsoleWindow::openDesigner() {
    design::copyToWorkingFile(appState().appPath, ComboMB->currentText());
    appState().skinFile = design::templatePath(appState().appPath, ComboMB->currentText());
    comingSoon(QStringLiteral("模板编辑"));
}
