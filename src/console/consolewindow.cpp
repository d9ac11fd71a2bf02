#include "console/consolewindow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStackedWidget>
#include <QTimer>

#include "awards/view/awardmanagerdialog.h"
#include "awards/view/drawwizarddialog.h"
#include "chrome/icons.h"
#include "chrome/style.h"
#include "chrome/widgets.h"
#include "console/changepassworddialog.h"
#include "console/passwordpromptdialog.h"
#include "console/templatepanel.h"
#include "core/appstate.h"
#include "core/events.h"
#include "core/logging.h"
#include "core/password.h"
#include "core/settings.h"
#include "core/store.h"
#include "core/ui.h"
#include "draw/progress.h"
#include "results/view/winnerlistdialog.h"
#include "roster/replaceguard.h"
#include "roster/view/rosterscreens.h"
#include "sound/view/hotkeysettingsdialog.h"
#include "sound/view/musicsettingsdialog.h"

namespace {

constexpr int kWidth = 757;
constexpr int kHeight = 448;
constexpr int kBannerHeight = 96;
constexpr int kPanelHeight = kHeight - kBannerHeight;
constexpr int kPanelStep = 30;
constexpr int kPanelTickMs = 12;

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
                   ConsoleWindow::tr("Quellio抽奖(全能版)"));
        QFont small = p.font();
        small.setPixelSize(13);
        small.setBold(false);
        p.setFont(small);
        p.setPen(style::kGold);
        p.drawText(QRectF(94, 54, 460, 22), Qt::AlignLeft | Qt::AlignVCenter,
                   ConsoleWindow::tr("年会 · 庆典 · 活动现场的幸运抽奖"));
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
    setWindowTitle(tr("Quellio抽奖(全能版)"));
    setWindowIcon(icons::icon(QStringLiteral("start"), style::kBright));
    QWidget *home = buildHome();
    home->setGeometry(0, kBannerHeight, kWidth, kPanelHeight);
    m_panel = buildPanel();
    m_panel->setGeometry(0, kPanelHidden, kWidth, kPanelHeight);
    QWidget *banner = buildBanner();
    banner->setGeometry(0, 0, kWidth, kBannerHeight);
    banner->raise();
    addDragArea(banner);

    m_panelSlideTimer = new QTimer(this);
    m_panelSlideTimer->setObjectName(QStringLiteral("panelSlideTimer"));
    m_panelSlideTimer->setInterval(kPanelTickMs);
    connect(m_panelSlideTimer, &QTimer::timeout, this, &ConsoleWindow::slidePanelStep);
    refreshAwardFigures();
    connect(&events(), &Events::awardsChanged, this, &ConsoleWindow::refreshAwardFigures);
    connect(&events(), &Events::resultsChanged, this, &ConsoleWindow::refreshProgress);
    // Deleting winners or replacing the roster takes wins away too.
    connect(&events(), &Events::rosterChanged, this, &ConsoleWindow::refreshProgress);
}

QWidget *ConsoleWindow::buildBanner() {
    auto *banner = new Banner(body());
    auto *minimise = new IconButton(QStringLiteral("minimise"), Qt::white, 30, banner);
    auto *close = new IconButton(QStringLiteral("close"), Qt::white, 30, banner);
    minimise->setToolTip(tr("最小化"));
    close->setToolTip(tr("关闭"));
    minimise->move(kWidth - 76, 10);
    close->move(kWidth - 42, 10);
    connect(minimise, &QAbstractButton::clicked, this, &QWidget::showMinimized);
    connect(close, &QAbstractButton::clicked, this, &QWidget::close);
    auto *tutorialLink = new LinkLabel(tr("视频教程"), banner);
    tutorialLink->setObjectName(QStringLiteral("tutorialLink"));
    tutorialLink->setStyleSheet(QStringLiteral("color: white;"));
    tutorialLink->adjustSize();
    tutorialLink->move(kWidth - 96 - tutorialLink->width(), 16);
    const QString tutorial = settings::tutorialUrl();
    tutorialLink->setVisible(!tutorial.isEmpty());
    connect(tutorialLink, &LinkLabel::clicked, this, [tutorial] {
        if (!ui().openUrl(QUrl(tutorial)))
            qCWarning(lcConsole) << "the tutorial page" << tutorial << "did not open";
    });
    return banner;
}

QWidget *ConsoleWindow::buildHome() {
    auto *home = new QWidget(body());
    auto *settingsButton = new CardButton(QStringLiteral("settings"), tr("抽奖设置"), false, home);
    settingsButton->setObjectName(QStringLiteral("settingsButton"));
    auto *startButton = new CardButton(QStringLiteral("start"), tr("开始抽奖"), true, home);
    startButton->setObjectName(QStringLiteral("startButton"));
    settingsButton->setToolTip(tr("名单、奖项与界面设置"));
    startButton->setToolTip(tr("进入全屏抽奖界面"));
    connect(settingsButton, &QAbstractButton::clicked, this, &ConsoleWindow::openSettings);
    connect(startButton, &QAbstractButton::clicked, this, &ConsoleWindow::openStart);
    auto *cards = new QHBoxLayout;
    cards->setSpacing(24);
    cards->addStretch();
    cards->addWidget(settingsButton);
    cards->addWidget(startButton);
    cards->addStretch();

    auto *progressTitle = textLabel(tr("抽奖进度∶"), home, "heading");
    m_progressLabel = new QLabel(QStringLiteral("0%"), home);
    m_progressLabel->setObjectName(QStringLiteral("progressLabel"));
    m_progressLabel->setStyleSheet(
        QStringLiteral("font-size: 18px; font-weight: bold; color: rgb(200,40,58);"));
    auto *resetLink = new LinkLabel(tr("一键复原重抽"), home);
    resetLink->setObjectName(QStringLiteral("resetLink"));
    resetLink->setToolTip(tr("清空所有中奖记录,复原至初始状态"));
    connect(resetLink, &LinkLabel::clicked, this, &ConsoleWindow::resetDraw);
    auto *progress = new QHBoxLayout;
    progress->setContentsMargins(28, 0, 28, 0);
    progress->addWidget(progressTitle);
    progress->addWidget(m_progressLabel);
    progress->addStretch();
    progress->addWidget(resetLink);

    auto *layout = new QVBoxLayout(home);
    layout->setContentsMargins(0, 22, 0, 12);
    layout->addLayout(cards);
    layout->addSpacing(14);
    layout->addLayout(buildToolStrip(home));
    layout->addStretch();
    layout->addLayout(progress);
    return home;
}

QHBoxLayout *ConsoleWindow::buildToolStrip(QWidget *home) {
    struct Tool {
        const char *icon;
        const char *caption;
        const char *name;
        void (ConsoleWindow::*open)();
    };
    const Tool tools[] = {
        {"list", QT_TR_NOOP("查看中奖详情"), "winnerListButton", &ConsoleWindow::openWinnerList},
        {"keyboard", QT_TR_NOOP("快捷键设置"), "hotkeysButton", &ConsoleWindow::openHotkeys},
        {"music", QT_TR_NOOP("音乐设置"), "musicButton", &ConsoleWindow::openMusic},
        {"wizard", QT_TR_NOOP("抽奖向导"), "wizardButton", &ConsoleWindow::openWizard},
        {"password", QT_TR_NOOP("权限密码设置"), "passwordButton",
         &ConsoleWindow::openPasswordSettings}};
    auto *strip = new QHBoxLayout;
    strip->setSpacing(6);
    strip->addStretch();
    for (const Tool &tool : tools) {
        auto *button = new ToolButton(QString::fromLatin1(tool.icon), tr(tool.caption), home);
        button->setObjectName(QString::fromLatin1(tool.name));
        connect(button, &QAbstractButton::clicked, this, tool.open);
        strip->addWidget(button);
    }
    strip->addStretch();
    return strip;
}

QWidget *ConsoleWindow::buildPanel() {
    auto *panel = new QWidget(body());
    panel->setObjectName(QStringLiteral("settingsPanel"));
    panel->setAutoFillBackground(true);
    panel->setStyleSheet(
        QStringLiteral("#settingsPanel { background: rgb(255,244,244); "
                       "border-bottom: 2px solid rgb(200,40,58); }"));
    panel->setAttribute(Qt::WA_StyledBackground);
    const char *captions[] = {QT_TR_NOOP("名单设置"), QT_TR_NOOP("奖项设置"),
                              QT_TR_NOOP("界面设置")};
    const char *names[] = {"rosterTab", "awardsTab", "interfaceTab"};
    auto *tabs = new QHBoxLayout;
    tabs->setSpacing(4);
    for (int i = 0; i < 3; ++i) {
        m_pageTabs[i] = new QPushButton(tr(captions[i]), panel);
        m_pageTabs[i]->setObjectName(QString::fromLatin1(names[i]));
        m_pageTabs[i]->setCheckable(true);
        m_pageTabs[i]->setAutoExclusive(true);
        connect(m_pageTabs[i], &QPushButton::clicked, this, [this, i] { selectPage(i); });
        tabs->addWidget(m_pageTabs[i]);
    }
    tabs->addStretch();
    tabs->addWidget(textLabel(tr("抽奖进度∶"), panel, "hint"));
    m_panelProgressLabel = new QLabel(QStringLiteral("0%"), panel);
    m_panelProgressLabel->setObjectName(QStringLiteral("panelProgressLabel"));
    tabs->addWidget(m_panelProgressLabel);
    auto *back =
        new QPushButton(icons::icon(QStringLiteral("back"), style::kDeep), tr("返回"), panel);
    back->setObjectName(QStringLiteral("closePanelButton"));
    back->setToolTip(tr("收起设置面板"));
    connect(back, &QPushButton::clicked, this, &ConsoleWindow::closePanel);
    tabs->addWidget(back);

    m_pages = new QStackedWidget(panel);
    m_pages->addWidget(buildRosterPage());
    m_pages->addWidget(buildAwardPage());
    m_pages->addWidget(new TemplatePanel);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(18, 12, 18, 12);
    layout->addLayout(tabs);
    layout->addWidget(m_pages, 1);
    selectPage(0);
    return panel;
}

QWidget *ConsoleWindow::buildRosterPage() {
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(textLabel(tr("名单即是您抽取的信息,名单信息可以是文本、编号、数字、图片等。"),
                                page, "heading"));
    layout->addWidget(textLabel(tr("您可以通过以下任何一种方式快捷生成名单"), page, "hint"));
    // In the order rosterscreens::openRosterAction numbers them.
    const char *links[][2] = {{QT_TR_NOOP("管理名单"), "manageRosterLink"},
                              {QT_TR_NOOP("我要从Excel文件中导入名单"), "excelImportLink"},
                              {QT_TR_NOOP("我要从txt文件中导入名单"), "textImportLink"},
                              {QT_TR_NOOP("我要批量导入图片作为名单"), "photoImportLink"},
                              {QT_TR_NOOP("我要生成编号作为名单"), "numberGeneratorLink"}};
    for (int i = 0; i < 5; ++i) {
        auto *link = new LinkLabel(QStringLiteral("▸ ") + tr(links[i][0]), page);
        link->setObjectName(QString::fromLatin1(links[i][1]));
        connect(link, &LinkLabel::clicked, this,
                [this, i] { rosterscreens::openRosterAction(i, this); });
        layout->addWidget(link);
    }
    layout->addStretch();
    return page;
}

QWidget *ConsoleWindow::buildAwardPage() {
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(
        textLabel(tr("奖项设置即是您此次抽奖活动中安排的奖品名次、奖品内容等"), page, "heading"));
    auto figure = [page](const char *name) {
        auto *label = new QLabel(QStringLiteral("0"), page);
        label->setObjectName(QString::fromLatin1(name));
        label->setStyleSheet(QStringLiteral("font-weight: bold; color: rgb(200,40,58);"));
        return label;
    };
    m_awardCountLabel = figure("awardCountLabel");
    m_slotSumLabel = figure("slotSumLabel");
    m_batchSumLabel = figure("batchSumLabel");
    auto *figures = new QHBoxLayout;
    figures->setSpacing(2);
    figures->addWidget(new QLabel(tr("当前共计设置奖项"), page));
    figures->addWidget(m_awardCountLabel);
    figures->addWidget(new QLabel(tr("项, 奖品共计"), page));
    figures->addWidget(m_slotSumLabel);
    figures->addWidget(new QLabel(tr("个,供计分"), page));
    figures->addWidget(m_batchSumLabel);
    figures->addWidget(new QLabel(tr("次抽取"), page));
    figures->addStretch();
    layout->addLayout(figures);
    auto *manageLink = new LinkLabel(tr("▸ 管理我的奖项"), page);
    manageLink->setObjectName(QStringLiteral("manageAwardsLink"));
    connect(manageLink, &LinkLabel::clicked, this, &ConsoleWindow::openAwardManager);
    layout->addWidget(manageLink);
    layout->addStretch();
    return page;
}

void ConsoleWindow::selectPage(int index) {
    m_pages->setCurrentIndex(index);
    m_pageTabs[index]->setChecked(true);
}

void ConsoleWindow::openPanel() {
    m_panelClosing = false;
    m_panelSlideTimer->start();
}

void ConsoleWindow::closePanel() {
    m_panelClosing = true;
    m_panelSlideTimer->start();
}

void ConsoleWindow::slidePanelStep() {
    QRect box = m_panel->geometry();
    if (m_panelClosing) {
        box.moveTop(box.top() - kPanelStep);
        if (box.top() < kPanelHidden) {
            box.moveTop(kPanelHidden);
            m_panelSlideTimer->stop();
            m_panelClosing = false;
        }
    } else {
        box.moveTop(box.top() + kPanelStep);
        if (box.top() >= kPanelOpen) {
            box.moveTop(kPanelOpen);
            m_panelSlideTimer->stop();
        }
    }
    m_panel->setGeometry(box);
}

void ConsoleWindow::openSettings() {
    if (!password::isPassWordOn()) {
        openPanel();
        return;
    }
    PasswordPromptDialog login(PasswordPromptDialog::Purpose::OpenSettings, this);
    if (login.exec() == QDialog::Accepted) openPanel();
}

void ConsoleWindow::openStart() {
    if (appState().guideHide == 1) {
        Q_EMIT drawRequested();
        return;
    }
    DrawWizardDialog guide(DrawWizardDialog::Purpose::StartDraw, this);
    if (guide.exec() == QDialog::Accepted) Q_EMIT drawRequested();
}

void ConsoleWindow::openWinnerList() {
    WinnerListDialog list(this);
    list.exec();
}

void ConsoleWindow::openHotkeys() {
    HotkeySettingsDialog keys(this);
    keys.exec();
}

void ConsoleWindow::openMusic() {
    MusicSettingsDialog music(this);
    music.exec();
}

void ConsoleWindow::openWizard() {
    DrawWizardDialog guide(DrawWizardDialog::Purpose::EditSettings, this);
    guide.exec();
}

void ConsoleWindow::openPasswordSettings() {
    if (password::isPassWordOn()) {
        PasswordPromptDialog login(PasswordPromptDialog::Purpose::ChangePassword, this);
        login.exec();
    } else {
        ChangePasswordDialog dialog(this);
        dialog.exec();
    }
}

void ConsoleWindow::refreshAwardFigures() {
    const draw::AwardFigures figures = draw::awardFigures(store::mainConn());
    m_awardCountLabel->setText(QString::number(figures.awardCount));
    m_slotSumLabel->setText(QString::number(figures.slotSum));
    m_batchSumLabel->setText(QString::number(figures.batchSum));
    m_slotSum = figures.slotSum;
    refreshProgress();
}

void ConsoleWindow::refreshProgress() {
    // With no award the panel's copy keeps what it showed.
    if (draw::awardFigures(store::mainConn()).awardCount == 0) {
        m_progressLabel->setText(QStringLiteral("0%"));
        return;
    }
    m_progressLabel->setText(draw::luckProgress(store::mainConn(), m_slotSum));
    m_panelProgressLabel->setText(m_progressLabel->text());
}

void ConsoleWindow::resetDraw() {
    // Asked whenever a win or a give-up is stored, whatever the rounded progress shows.
    const auto answer = roster::confirmReset(store::mainConn(), appState().appPath);
    if (answer == roster::ResetAnswer::Refused) return;
    if (!draw::clearAllWins(store::mainConn())) {
        qCWarning(lcConsole) << "the one-key reset could not clear the wins";
        return;
    }
    if (answer == roster::ResetAnswer::Confirmed)
        ui().message(tr("已恢复至初始抽奖状态!"), MsgStyle::Information, titles::notice);
    Q_EMIT events().resultsChanged();
}

void ConsoleWindow::openAwardManager() {
    AwardManagerDialog awards(this);
    awards.exec();
    refreshAwardFigures();
}
