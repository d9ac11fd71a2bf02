#include "awards/view/drawwizarddialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QScreen>
#include <QSlider>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "core/appstate.h"
#include "core/helpers.h"
#include "core/settings.h"
#include "core/ui.h"
#include "stage/stagescreens.h"

namespace {

// The number the mask page demonstrates on.
const QString kSample = QStringLiteral("13800138000");

QLineEdit *smallBox(QWidget *parent, int maxLength, bool digitsOnly) {
    auto *edit = new QLineEdit(parent);
    edit->setMaxLength(maxLength);
    edit->setFixedWidth(56);
    edit->setAlignment(Qt::AlignCenter);
    if (digitsOnly)
        edit->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), edit));
    selectAllOnFocus(edit);
    return edit;
}

}  // namespace

DrawWizardDialog::DrawWizardDialog(Purpose purpose, QWidget *parent)
    : QDialog(parent), m_purpose(purpose) {
    setWindowTitle(tr("抽奖向导"));
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("tabs"));
    m_tabs->addTab(buildModePage(), tr("抽奖方式"));
    m_tabs->addTab(buildMaskPage(), tr("名单屏蔽"));
    m_rememberCheck = new QCheckBox(tr("记住我的选择,下次启动抽奖时不再提示"), this);
    m_rememberCheck->setObjectName(QStringLiteral("rememberCheck"));
    auto *ok = new QPushButton(tr("确定"), this);
    ok->setObjectName(QStringLiteral("okButton"));
    ok->setDefault(true);
    auto *cancel = new QPushButton(tr("退出"), this);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_rememberCheck);
    buttons->addStretch();
    buttons->addWidget(ok);
    buttons->addWidget(cancel);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
    layout->addWidget(buildScreenRow());
    layout->addLayout(buttons);

    loadSettings();
    connect(m_maskCheck, &QCheckBox::toggled, this, &DrawWizardDialog::showMaskedSample);
    for (QLineEdit *edit : {m_keepLeftEdit, m_keepRightEdit, m_replacementEdit})
        connect(edit, &QLineEdit::textChanged, this, [this, edit] {
            if (edit != m_replacementEdit && edit->text().isEmpty()) return;
            showMaskedSample();
        });
    connect(ok, &QPushButton::clicked, this, &DrawWizardDialog::saveSettings);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    setMinimumWidth(460);
    adjustSize();
    centerForm(this);
}

QWidget *DrawWizardDialog::buildModePage() {
    auto *page = new QWidget(this);
    m_textMode = new QRadioButton(tr("文字或数字抽奖"), page);
    m_pictureMode = new QRadioButton(tr("纯图片抽奖"), page);
    m_pictureAndTextMode = new QRadioButton(tr("图片加文字抽奖"), page);
    m_pictureAndTextMode->setObjectName(QStringLiteral("pictureAndTextMode"));
    m_speedSlider = new QSlider(Qt::Horizontal, page);
    m_speedSlider->setObjectName(QStringLiteral("speedSlider"));
    m_speedSlider->setRange(0, 20);
    auto *modes = new QHBoxLayout;
    for (QRadioButton *option : {m_textMode, m_pictureMode, m_pictureAndTextMode})
        modes->addWidget(option);
    auto *speed = new QHBoxLayout;
    speed->addWidget(new QLabel(tr("慢"), page));
    speed->addWidget(m_speedSlider, 1);
    speed->addWidget(new QLabel(tr("快"), page));
    auto *layout = new QVBoxLayout(page);
    auto *modeTitle = new QLabel(tr("抽奖时滚动显示的内容"), page);
    auto *speedTitle = new QLabel(tr("抽奖时候名单切换速度"), page);
    for (QLabel *title : {modeTitle, speedTitle})
        title->setProperty("role", "heading");
    layout->addWidget(modeTitle);
    layout->addLayout(modes);
    layout->addSpacing(12);
    layout->addWidget(speedTitle);
    layout->addLayout(speed);
    layout->addStretch();
    return page;
}

QWidget *DrawWizardDialog::buildMaskPage() {
    auto *page = new QWidget(this);
    m_maskCheck = new QCheckBox(tr("抽奖时对\"文字信息\"进行字段屏蔽"), page);
    m_maskCheck->setObjectName(QStringLiteral("maskCheck"));
    m_keepLeftEdit = smallBox(page, 2, true);
    m_keepLeftEdit->setObjectName(QStringLiteral("keepLeftEdit"));
    m_keepRightEdit = smallBox(page, 2, true);
    m_keepRightEdit->setObjectName(QStringLiteral("keepRightEdit"));
    m_replacementEdit = smallBox(page, 1, false);
    m_replacementEdit->setObjectName(QStringLiteral("replacementEdit"));
    m_maskedSampleLabel = new QLabel(page);
    m_maskedSampleLabel->setObjectName(QStringLiteral("maskedSampleLabel"));
    m_maskedSampleLabel->setProperty("role", "heading");
    m_maskedSampleLabel->setStyleSheet(QStringLiteral("font-size: 22px; letter-spacing: 2px;"));
    auto *grid = new QGridLayout;
    grid->addWidget(new QLabel(tr("左侧保留："), page), 0, 0);
    grid->addWidget(m_keepLeftEdit, 0, 1);
    grid->addWidget(new QLabel(tr("位"), page), 0, 2);
    grid->addWidget(new QLabel(tr("右侧保留："), page), 0, 3);
    grid->addWidget(m_keepRightEdit, 0, 4);
    grid->addWidget(new QLabel(tr("位"), page), 0, 5);
    grid->addWidget(new QLabel(tr("替换字符："), page), 1, 0);
    grid->addWidget(m_replacementEdit, 1, 1);
    grid->addWidget(new QLabel(tr("演示原文∶"), page), 2, 0);
    grid->addWidget(new QLabel(kSample, page), 2, 1, 1, 4);
    grid->addWidget(m_maskedSampleLabel, 3, 0, 1, 6);
    grid->setColumnStretch(6, 1);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(m_maskCheck);
    layout->addLayout(grid);
    layout->addStretch();
    return page;
}

// With a projector connected the operator picks where the audience looks; the console's own
// screen stays on offer for a rehearsal at the desk.
QWidget *DrawWizardDialog::buildScreenRow() {
    auto *row = new QWidget(this);
    m_screenCombo = new QComboBox(row);
    m_screenCombo->setObjectName(QStringLiteral("screenCombo"));
    QWidget *console = consoleWindow();
    QScreen *preferred =
        stagescreens::stageScreen(appState().stageScreen, console ? console->screen() : nullptr);
    for (QScreen *screen : QGuiApplication::screens()) {
        m_screenCombo->addItem(stagescreens::label(screen->name(), screen->size()), screen->name());
        if (screen == preferred) m_screenCombo->setCurrentIndex(m_screenCombo->count() - 1);
    }
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(tr("抽奖画面显示在："), row));
    layout->addWidget(m_screenCombo, 1);
    return row;
}

void DrawWizardDialog::loadSettings() {
    const AppState &state = appState();
    m_textMode->setChecked(state.luckType == 0);
    m_pictureMode->setChecked(state.luckType == 1);
    m_pictureAndTextMode->setChecked(state.luckType == 2);
    m_tabs->setCurrentIndex(0);
    m_rememberCheck->setChecked(state.guideHide == 1);
    m_maskCheck->setChecked(state.isHideName == 1);
    m_keepLeftEdit->setText(QString::number(state.hideLeft));
    m_keepRightEdit->setText(QString::number(state.hideRight));
    m_replacementEdit->setText(state.hideReStr);
    m_speedSlider->setValue(20 - state.luckDelay);
    showMaskedSample();
}

void DrawWizardDialog::showMaskedSample() {
    const bool masking = m_maskCheck->isChecked();
    for (QLineEdit *edit : {m_keepLeftEdit, m_keepRightEdit, m_replacementEdit})
        edit->setEnabled(masking);
    m_maskedSampleLabel->setText(masking ? hideName(kSample, m_keepLeftEdit->text().toInt(),
                                                    m_keepRightEdit->text().toInt(),
                                                    m_replacementEdit->text())
                                         : kSample);
}

void DrawWizardDialog::saveSettings() {
    if (m_keepLeftEdit->text().isEmpty()) m_keepLeftEdit->setText(QStringLiteral("0"));
    if (m_keepRightEdit->text().isEmpty()) m_keepRightEdit->setText(QStringLiteral("0"));
    if (m_replacementEdit->text().trimmed().isEmpty())
        m_replacementEdit->setText(QStringLiteral("*"));
    const int type = m_pictureMode->isChecked() ? 1 : m_pictureAndTextMode->isChecked() ? 2 : 0;
    settings::write(QStringLiteral("luckType"), type);
    settings::write(QStringLiteral("guideHide"), m_rememberCheck->isChecked() ? 1 : 0);
    settings::write(QStringLiteral("isHideName"), m_maskCheck->isChecked() ? 1 : 0);
    settings::write(QStringLiteral("hideLeft"), m_keepLeftEdit->text().toInt());
    settings::write(QStringLiteral("hideRight"), m_keepRightEdit->text().toInt());
    settings::write(QStringLiteral("hideReStr"), m_replacementEdit->text());
    settings::write(QStringLiteral("luckDelay"), 20 - m_speedSlider->value());
    appState().stageScreen = m_screenCombo->currentData().toString();
    if (m_purpose == Purpose::EditSettings)
        ui().message(tr("参数保存成功!"), MsgStyle::Information, titles::notice);
    accept();
}
