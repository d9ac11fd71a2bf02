#include "awards/view/drawwizarddialog.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QSlider>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "core/appstate.h"
#include "core/helpers.h"
#include "core/settings.h"
#include "core/ui.h"

namespace {

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

DrawWizardDialog::DrawWizardDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("抽奖向导"));
    sTab = new QTabWidget(this);
    sTab->addTab(buildModePage(), QStringLiteral("抽奖方式"));
    sTab->addTab(buildMaskPage(), QStringLiteral("名单屏蔽"));
    chkMsg = new QCheckBox(QStringLiteral("记住我的选择,下次启动抽奖时不再提示"), this);
    cmdOk = new QPushButton(QStringLiteral("确定"), this);
    cmdOk->setDefault(true);
    cmdEsc = new QPushButton(QStringLiteral("退出"), this);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(chkMsg);
    buttons->addStretch();
    buttons->addWidget(cmdOk);
    buttons->addWidget(cmdEsc);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(sTab);
    layout->addLayout(buttons);

    loadSettings();
    connect(chkIsHideName, &QCheckBox::toggled, this, &DrawWizardDialog::runDemo);
    for (QLineEdit *edit : {txtLeft, txtRight, txtReStr})
        connect(edit, &QLineEdit::textChanged, this, [this, edit] {
            if (edit != txtReStr && edit->text().isEmpty()) return;
            runDemo();
        });
    connect(cmdOk, &QPushButton::clicked, this, &DrawWizardDialog::onOk);
    connect(cmdEsc, &QPushButton::clicked, this, &QDialog::reject);
    setMinimumWidth(460);
    adjustSize();
    centerForm(this);
}

QWidget *DrawWizardDialog::buildModePage() {
    auto *page = new QWidget(this);
    Opt0 = new QRadioButton(QStringLiteral("文字或数字抽奖"), page);
    Opt1 = new QRadioButton(QStringLiteral("纯图片抽奖"), page);
    Opt2 = new QRadioButton(QStringLiteral("图片加文字抽奖"), page);
    sldSpeed = new QSlider(Qt::Horizontal, page);
    sldSpeed->setRange(0, 20);
    auto *modes = new QHBoxLayout;
    for (QRadioButton *option : {Opt0, Opt1, Opt2})
        modes->addWidget(option);
    auto *speed = new QHBoxLayout;
    speed->addWidget(new QLabel(QStringLiteral("慢"), page));
    speed->addWidget(sldSpeed, 1);
    speed->addWidget(new QLabel(QStringLiteral("快"), page));
    auto *layout = new QVBoxLayout(page);
    auto *modeTitle = new QLabel(QStringLiteral("抽奖时滚动显示的内容"), page);
    auto *speedTitle = new QLabel(QStringLiteral("抽奖时候名单切换速度"), page);
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
    chkIsHideName = new QCheckBox(QStringLiteral("抽奖时对\"文字信息\"进行字段屏蔽"), page);
    txtLeft = smallBox(page, 2, true);
    txtRight = smallBox(page, 2, true);
    txtReStr = smallBox(page, 1, false);
    labSS = new QLabel(QStringLiteral("13800138000"), page);
    labDemo = new QLabel(page);
    labDemo->setProperty("role", "heading");
    labDemo->setStyleSheet(QStringLiteral("font-size: 22px; letter-spacing: 2px;"));
    auto *grid = new QGridLayout;
    grid->addWidget(new QLabel(QStringLiteral("左侧保留："), page), 0, 0);
    grid->addWidget(txtLeft, 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("位"), page), 0, 2);
    grid->addWidget(new QLabel(QStringLiteral("右侧保留："), page), 0, 3);
    grid->addWidget(txtRight, 0, 4);
    grid->addWidget(new QLabel(QStringLiteral("位"), page), 0, 5);
    grid->addWidget(new QLabel(QStringLiteral("替换字符："), page), 1, 0);
    grid->addWidget(txtReStr, 1, 1);
    grid->addWidget(new QLabel(QStringLiteral("演示原文∶"), page), 2, 0);
    grid->addWidget(labSS, 2, 1, 1, 4);
    grid->addWidget(labDemo, 3, 0, 1, 6);
    grid->setColumnStretch(6, 1);
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(chkIsHideName);
    layout->addLayout(grid);
    layout->addStretch();
    return page;
}

void DrawWizardDialog::loadSettings() {
    const AppState &state = appState();
    Opt0->setChecked(state.luckType == 0);
    Opt1->setChecked(state.luckType == 1);
    Opt2->setChecked(state.luckType == 2);
    sTab->setCurrentIndex(0);
    chkMsg->setChecked(state.guideHide == 1);
    chkIsHideName->setChecked(state.isHideName == 1);
    txtLeft->setText(QString::number(state.hideLeft));
    txtRight->setText(QString::number(state.hideRight));
    txtReStr->setText(state.hideReStr);
    sldSpeed->setValue(20 - state.luckDelay);
    runDemo();
}

void DrawWizardDialog::runDemo() {
    const bool masking = chkIsHideName->isChecked();
    for (QLineEdit *edit : {txtLeft, txtRight, txtReStr})
        edit->setEnabled(masking);
    labDemo->setText(masking ? hideName(labSS->text(), txtLeft->text().toInt(),
                                        txtRight->text().toInt(), txtReStr->text())
                             : labSS->text());
}

void DrawWizardDialog::onOk() {
    if (txtLeft->text().isEmpty()) txtLeft->setText(QStringLiteral("0"));
    if (txtRight->text().isEmpty()) txtRight->setText(QStringLiteral("0"));
    if (txtReStr->text().trimmed().isEmpty()) txtReStr->setText(QStringLiteral("*"));
    const int type = Opt1->isChecked() ? 1 : Opt2->isChecked() ? 2 : 0;
    settings::write(QStringLiteral("luckType"), type);
    settings::write(QStringLiteral("guideHide"), chkMsg->isChecked() ? 1 : 0);
    settings::write(QStringLiteral("isHideName"), chkIsHideName->isChecked() ? 1 : 0);
    settings::write(QStringLiteral("hideLeft"), txtLeft->text().toInt());
    settings::write(QStringLiteral("hideRight"), txtRight->text().toInt());
    settings::write(QStringLiteral("hideReStr"), txtReStr->text());
    settings::write(QStringLiteral("luckDelay"), 20 - sldSpeed->value());
    const QString purpose = appState().guideFor;
    if (purpose == QLatin1String("guidebtn")) {
        ui().message(QStringLiteral("参数保存成功!"), MsgStyle::Information, titles::notice);
        accept();
    } else if (purpose == QLatin1String("startbtn")) {
        accept();
    } else {
        ui().message(QStringLiteral("变量传递失败"), MsgStyle::Exclamation, titles::warning);
    }
}
