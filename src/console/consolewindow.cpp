#include "console/consolewindow.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QStackedWidget>

#include "awards/view/awardmanagerdialog.h"
#include "awards/view/drawwizarddialog.h"
#include "chrome/icons.h"
#include "chrome/style.h"
#include "chrome/widgethelpers.h"
#include "chrome/widgets.h"
#include "console/changepassworddialog.h"
#include "console/passwordpromptdialog.h"
#include "core/appstate.h"
#include "core/events.h"
#include "core/password.h"
#include "core/settings.h"
#include "core/store.h"
#include "core/ui.h"
#include "draw/progress.h"
#include "results/exportwinners.h"
#include "results/view/winnerlistdialog.h"
#include "roster/view/rosterscreens.h"
#include "sound/view/hotkeysettingsdialog.h"
#include "sound/view/musicsettingsdialog.h"
#include "stage/stage.h"

namespace {

constexpr int kWidth = 757;
constexpr int kHeight = 448;
constexpr int kBannerHeight = 96;
constexpr int kPanelHeight = kHeight - kBannerHeight;

// The banner: a deep red gradient with the program's name; dragging it moves the console.
class Banner : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        QLinearGradient fill(0, 0, width(), height());
        fill.setColorAt(0, QColor(200, 36, 52));
        fill.setColorAt(1, QColor(120, 16, 24));
        p.fillRect(rect(), fill);
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(255, 212, 96, 28));
        p.drawEllipse(QPointF(width() - 120, -30), 150, 150);
        p.drawEllipse(QPointF(width() - 40, height() + 20), 70, 70);
        p.drawPixmap(QPointF(24, 20), icons::pixmap(QStringLiteral("start"), style::kGold, 52));
        QFont title = p.font();
        title.setPixelSize(26);
        title.setBold(true);
        p.setFont(title);
        p.setPen(Qt::white);
        p.drawText(QRectF(92, 18, 460, 36), Qt::AlignLeft | Qt::AlignVCenter,
                   QStringLiteral("Quellio抽奖(全能版)"));
        QFont small = p.font();
        small.setPixelSize(13);
        small.setBold(false);
        p.setFont(small);
        p.setPen(style::kGold);
        p.drawText(QRectF(94, 54, 460, 22), Qt::AlignLeft | Qt::AlignVCenter,
                   QStringLiteral("年会 · 庆典 · 活动现场的幸运抽奖"));
    }
};

QLabel *textLabel(const QString &text, QWidget *parent, const char *role = nullptr) {
    auto *label = new QLabel(text, parent);
    label->setWordWrap(true);
    if (role) label->setProperty("role", QString::fromLatin1(role));
    return label;
}

}  // namespace

ConsoleWindow::ConsoleWindow(QWidget *parent) : FramelessWindow(QSize(kWidth, kHeight), parent) {
    setWindowTitle(QStringLiteral("Quellio抽奖(全能版)"));
    setWindowIcon(icons::icon(QStringLiteral("start"), style::kBright));
    QWidget *home = buildHome();
    home->setGeometry(0, kBannerHeight, kWidth, kPanelHeight);
    picSetBox = buildPanel();
    picSetBox->setGeometry(0, kPanelHidden, kWidth, kPanelHeight);
    QWidget *banner = buildBanner();
    banner->setGeometry(0, 0, kWidth, kBannerHeight);
    banner->raise();
    addDragArea(banner);

    tmMove.setInterval(12);
    connect(&tmMove, &QTimer::timeout, this, &ConsoleWindow::moveStep);
    tjJX();
    connect(imgReluck, &LinkLabel::clicked, this, &ConsoleWindow::resetDraw);
    connect(&events(), &Events::awardsChanged, this, &ConsoleWindow::tjJX);
    connect(&events(), &Events::resultsChanged, this, &ConsoleWindow::getLuckPos);
    // Deleting winners or replacing the roster takes wins away too.
    connect(&events(), &Events::rosterChanged, this, &ConsoleWindow::getLuckPos);
    createPreviewStage();
}

ConsoleWindow::~ConsoleWindow() = default;

QWidget *ConsoleWindow::buildBanner() {
    auto *banner = new Banner(body());
    auto *minimise = new IconButton(QStringLiteral("minimise"), Qt::white, 30, banner);
    auto *close = new IconButton(QStringLiteral("close"), Qt::white, 30, banner);
    minimise->setToolTip(QStringLiteral("最小化"));
    close->setToolTip(QStringLiteral("关闭"));
    minimise->move(kWidth - 76, 10);
    close->move(kWidth - 42, 10);
    connect(minimise, &QAbstractButton::clicked, this, &QWidget::showMinimized);
    connect(close, &QAbstractButton::clicked, this, &QWidget::close);
    labHelp = new LinkLabel(QStringLiteral("视频教程"), banner);
    labHelp->setStyleSheet(QStringLiteral("color: white;"));
    labHelp->adjustSize();
    labHelp->move(kWidth - 96 - labHelp->width(), 16);
    const QString tutorial = settings::tutorialUrl();
    labHelp->setVisible(!tutorial.isEmpty());
    connect(labHelp, &LinkLabel::clicked, this, [tutorial] { ui().openUrl(QUrl(tutorial)); });
    return banner;
}

QWidget *ConsoleWindow::buildHome() {
    auto *home = new QWidget(body());
    imgBtnSet = new CardButton(QStringLiteral("settings"), QStringLiteral("抽奖设置"), false, home);
    imgBtnStart = new CardButton(QStringLiteral("start"), QStringLiteral("开始抽奖"), true, home);
    imgBtnSet->setToolTip(QStringLiteral("名单、奖项与界面设置"));
    imgBtnStart->setToolTip(QStringLiteral("进入全屏抽奖界面"));
    connect(imgBtnSet, &QAbstractButton::clicked, this, &ConsoleWindow::openSettings);
    connect(imgBtnStart, &QAbstractButton::clicked, this, &ConsoleWindow::openStart);
    auto *cards = new QHBoxLayout;
    cards->setSpacing(24);
    cards->addStretch();
    cards->addWidget(imgBtnSet);
    cards->addWidget(imgBtnStart);
    cards->addStretch();

    const char *tools[][2] = {{"list", "查看中奖详情"},
                              {"keyboard", "快捷键设置"},
                              {"music", "音乐设置"},
                              {"wizard", "抽奖向导"},
                              {"password", "权限密码设置"}};
    auto *strip = new QHBoxLayout;
    strip->setSpacing(6);
    strip->addStretch();
    for (int i = 0; i < 5; ++i) {
        imgTool[i] =
            new ToolButton(QString::fromLatin1(tools[i][0]), QString::fromUtf8(tools[i][1]), home);
        connect(imgTool[i], &QAbstractButton::clicked, this, [this, i] { openTool(i); });
        strip->addWidget(imgTool[i]);
    }
    strip->addStretch();

    auto *progressTitle = textLabel(QStringLiteral("抽奖进度∶"), home, "heading");
    labJD = new QLabel(QStringLiteral("0%"), home);
    labJD->setStyleSheet(
        QStringLiteral("font-size: 18px; font-weight: bold; color: rgb(200,40,58);"));
    imgReluck = new LinkLabel(QStringLiteral("一键复原重抽"), home);
    imgReluck->setToolTip(QStringLiteral("清空所有中奖记录,复原至初始状态"));
    auto *progress = new QHBoxLayout;
    progress->setContentsMargins(28, 0, 28, 0);
    progress->addWidget(progressTitle);
    progress->addWidget(labJD);
    progress->addStretch();
    progress->addWidget(imgReluck);

    auto *layout = new QVBoxLayout(home);
    layout->setContentsMargins(0, 22, 0, 12);
    layout->addLayout(cards);
    layout->addSpacing(14);
    layout->addLayout(strip);
    layout->addStretch();
    layout->addLayout(progress);
    return home;
}

QWidget *ConsoleWindow::buildPanel() {
    auto *panel = new QWidget(body());
    panel->setAutoFillBackground(true);
    panel->setStyleSheet(
        QStringLiteral("#panel { background: rgb(255,244,244); "
                       "border-bottom: 2px solid rgb(200,40,58); }"));
    panel->setObjectName(QStringLiteral("panel"));
    panel->setAttribute(Qt::WA_StyledBackground);
    const char *captions[] = {"名单设置", "奖项设置", "界面设置"};
    auto *tabs = new QHBoxLayout;
    tabs->setSpacing(4);
    for (int i = 0; i < 3; ++i) {
        imgSetLab[i] = new QPushButton(QString::fromUtf8(captions[i]), panel);
        imgSetLab[i]->setCheckable(true);
        imgSetLab[i]->setAutoExclusive(true);
        connect(imgSetLab[i], &QPushButton::clicked, this, [this, i] { selectPage(i); });
        tabs->addWidget(imgSetLab[i]);
    }
    tabs->addStretch();
    tabs->addWidget(textLabel(QStringLiteral("抽奖进度∶"), panel, "hint"));
    labJD2 = new QLabel(QStringLiteral("0%"), panel);
    tabs->addWidget(labJD2);
    auto *imgBack = new QPushButton(icons::icon(QStringLiteral("back"), style::kDeep),
                                    QStringLiteral("返回"), panel);
    imgBack->setToolTip(QStringLiteral("收起设置面板"));
    connect(imgBack, &QPushButton::clicked, this, [this] {
        panelClosing = true;
        tmMove.start();
    });
    tabs->addWidget(imgBack);

    pages = new QStackedWidget(panel);
    pages->addWidget(buildRosterPage());
    pages->addWidget(buildAwardPage());
    pages->addWidget(buildInterfacePage());
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(18, 12, 18, 12);
    layout->addLayout(tabs);
    layout->addWidget(pages, 1);
    selectPage(0);
    return panel;
}

QWidget *ConsoleWindow::buildRosterPage() {
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(
        textLabel(QStringLiteral("名单即是您抽取的信息,名单信息可以是文本、编号、数字、图片等。"),
                  page, "heading"));
    layout->addWidget(
        textLabel(QStringLiteral("您可以通过以下任何一种方式快捷生成名单"), page, "hint"));
    const char *links[] = {"管理名单", "我要从Excel文件中导入名单", "我要从txt文件中导入名单",
                           "我要批量导入图片作为名单", "我要生成编号作为名单"};
    for (int i = 0; i < 5; ++i) {
        labMD[i] = new LinkLabel(QStringLiteral("▸ ") + QString::fromUtf8(links[i]), page);
        connect(labMD[i], &LinkLabel::clicked, this, [this, i] { openRosterAction(i); });
        layout->addWidget(labMD[i]);
    }
    layout->addStretch();
    return page;
}

QWidget *ConsoleWindow::buildAwardPage() {
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(textLabel(
        QStringLiteral("奖项设置即是您此次抽奖活动中安排的奖品名次、奖品内容等"), page, "heading"));
    auto *figures = new QHBoxLayout;
    figures->setSpacing(2);
    const char *pieces[] = {"当前共计设置奖项", "项, 奖品共计", "个,供计分", "次抽取"};
    for (int i = 0; i < 4; ++i) {
        figures->addWidget(new QLabel(QString::fromUtf8(pieces[i]), page));
        if (i == 3) break;
        labJxNum[i] = new QLabel(QStringLiteral("0"), page);
        labJxNum[i]->setStyleSheet(QStringLiteral("font-weight: bold; color: rgb(200,40,58);"));
        figures->addWidget(labJxNum[i]);
    }
    figures->addStretch();
    layout->addLayout(figures);
    labsetJx = new LinkLabel(QStringLiteral("▸ 管理我的奖项"), page);
    connect(labsetJx, &LinkLabel::clicked, this, &ConsoleWindow::openAwards);
    layout->addWidget(labsetJx);
    layout->addStretch();
    return page;
}

QWidget *ConsoleWindow::buildInterfacePage() {
    auto *page = new QWidget;
    ComboMB = new QComboBox(page);
    txtBTm = new QLineEdit(appState().title1, page);
    txtBTs = new QLineEdit(appState().title2, page);
    txtW = new QLineEdit(QStringLiteral("1024"), page);
    txtH = new QLineEdit(QStringLiteral("768"), page);
    for (QLineEdit *edit : {txtW, txtH}) {
        edit->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), edit));
        edit->setFixedWidth(64);
    }
    txtBgImg = new QLineEdit(page);
    txtBgImg->hide();
    labJmSet = new LinkLabel(QStringLiteral("更换背景图片"), page);
    labHF = new LinkLabel(QStringLiteral("恢复原图"), page);
    labHF->hide();
    cmdSave = new QPushButton(QStringLiteral("保存修改"), page);
    cmdSave->setProperty("role", QStringLiteral("primary"));
    cmdEditSkin = new QPushButton(QStringLiteral("编辑模板"), page);

    auto *size = new QHBoxLayout;
    size->addWidget(new QLabel(QStringLiteral("宽度"), page));
    size->addWidget(txtW);
    size->addWidget(new QLabel(QStringLiteral("高度"), page));
    size->addWidget(txtH);
    size->addWidget(textLabel(QStringLiteral("(单位：像素)"), page, "hint"));
    size->addStretch();
    auto *background = new QHBoxLayout;
    background->addWidget(labJmSet);
    background->addWidget(labHF);
    background->addStretch();
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdEditSkin);
    buttons->addStretch();

    auto *form = new QGridLayout;
    form->addWidget(new QLabel(QStringLiteral("模板∶"), page), 0, 0);
    form->addWidget(ComboMB, 0, 1);
    form->addWidget(new QLabel(QStringLiteral("主标题∶"), page), 1, 0);
    form->addWidget(txtBTm, 1, 1);
    form->addWidget(new QLabel(QStringLiteral("副标题∶"), page), 2, 0);
    form->addWidget(txtBTs, 2, 1);
    form->addWidget(new QLabel(QStringLiteral("分辨率："), page), 3, 0);
    form->addLayout(size, 3, 1);
    form->addLayout(background, 4, 1);
    form->addLayout(buttons, 5, 1);
    form->setRowStretch(6, 1);

    picView = new QWidget(page);
    picView->setFixedSize(257, 177);
    picView->setStyleSheet(QStringLiteral("background: rgb(60,10,14); border-radius: 4px;"));
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(textLabel(
        QStringLiteral("界面设置，即是设置抽奖界面的背景、标题以及文字样式等!"), page, "hint"));
    auto *row = new QHBoxLayout;
    row->addLayout(form, 1);
    row->addSpacing(12);
    row->addWidget(picView, 0, Qt::AlignTop);
    layout->addLayout(row, 1);
    return page;
}

void ConsoleWindow::selectPage(int index) {
    pages->setCurrentIndex(index);
    imgSetLab[index]->setChecked(true);
}

void ConsoleWindow::moveStep() {
    QRect box = picSetBox->geometry();
    if (panelClosing) {
        box.moveTop(box.top() - 30);
        if (box.top() < kPanelHidden) {
            box.moveTop(kPanelHidden);
            tmMove.stop();
            panelClosing = false;
        }
    } else {
        box.moveTop(box.top() + 30);
        if (box.top() >= kPanelOpen) {
            box.moveTop(kPanelOpen);
            tmMove.stop();
        }
    }
    picSetBox->setGeometry(box);
}

void ConsoleWindow::showSet() {
    panelClosing = false;
    tmMove.start();
}

void ConsoleWindow::openSettings() {
    if (!password::isPassWordOn()) {
        showSet();
        return;
    }
    appState().loginFor = QStringLiteral("setluck");
    PasswordPromptDialog login(this);
    if (login.exec() == QDialog::Accepted) showSet();
}

void ConsoleWindow::openStart() {
    if (appState().guideHide == 1) {
        Q_EMIT drawRequested();
        return;
    }
    appState().guideFor = QStringLiteral("startbtn");
    DrawWizardDialog guide(this);
    if (guide.exec() == QDialog::Accepted) Q_EMIT drawRequested();
}

void ConsoleWindow::openTool(int index) {
    switch (index) {
        case 0: {
            WinnerListDialog list(this);
            list.exec();
            break;
        }
        case 1: {
            HotkeySettingsDialog keys(this);
            keys.exec();
            break;
        }
        case 2: {
            MusicSettingsDialog music(this);
            music.exec();
            break;
        }
        case 3: {
            appState().guideFor = QStringLiteral("guidebtn");
            DrawWizardDialog guide(this);
            guide.exec();
            break;
        }
        case 4:
            if (password::isPassWordOn()) {
                appState().loginFor = QStringLiteral("setpass");
                PasswordPromptDialog login(this);
                login.exec();
            } else {
                ChangePasswordDialog dialog(this);
                dialog.exec();
            }
            break;
        default:
            break;
    }
}

void ConsoleWindow::openRosterAction(int index) {
    rosterscreens::openRosterAction(index, this);
}

void ConsoleWindow::comingSoon(const QString &screen) {
    ui().message(QStringLiteral("“%1”功能即将推出,敬请期待。").arg(screen), MsgStyle::Information,
                 titles::notice);
}

void ConsoleWindow::tjJX() {
    const draw::AwardFigures figures = draw::awardFigures(store::mainConn());
    labJxNum[0]->setText(QString::number(figures.awardCount));
    labJxNum[1]->setText(QString::number(figures.slotSum));
    labJxNum[2]->setText(QString::number(figures.batchSum));
    luckTotal = figures.slotSum;
    getLuckPos();
}

void ConsoleWindow::getLuckPos() {
    // With no award the panel's copy keeps what it showed.
    if (draw::awardFigures(store::mainConn()).awardCount == 0) {
        labJD->setText(QStringLiteral("0%"));
        return;
    }
    labJD->setText(draw::luckProgress(store::mainConn(), luckTotal));
    labJD2->setText(labJD->text());
}

void ConsoleWindow::resetDraw() {
    const auto snapshot = [](const QString &path) { return !exportWinners(path, false).isEmpty(); };
    if (draw::oneKeyReset(store::mainConn(), labJD->text(), snapshot))
        Q_EMIT events().resultsChanged();
}

void ConsoleWindow::AddUserRefrash() {
    rosterscreens::openManager(this);
}

void ConsoleWindow::openAwards() {
    AwardManagerDialog awards(this);
    awards.exec();
    tjJX();
}
