#include "draw/view/drawwindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFrame>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVBoxLayout>
#include <QWindowStateChangeEvent>

#include <algorithm>

#include "chrome/widgethelpers.h"
#include "core/appstate.h"
#include "core/helpers.h"
#include "core/logging.h"
#include "core/profile.h"
#include "core/settings.h"
#include "core/store.h"
#include "core/ui.h"
#include "design/payloads.h"
#include "design/stageload.h"
#include "design/templatemodel.h"
#include "design/templatepage.h"
#include "draw/drawmusic.h"
#include "draw/engine.h"
#include "draw/paraderunner.h"
#include "draw/view/endofdrawdialog.h"
#include "draw/view/giveupdialog.h"
#include "draw/view/makeupdrawdialog.h"
#include "results/exportwinners.h"
#include "results/view/printwinners.h"
#include "sound/musicsettings.h"
#include "stage/protocol.h"
#include "stage/stagescreens.h"
#include "stage/view/stagefactory.h"

namespace {

int connectionSerial = 0;

// The share of the screen a window-mode stage may take: room for the desktop around it.
constexpr double kWindowShare = 0.8;

bool hasRows(const QString &table) {
    QSqlQuery query(store::mainConn());
    return query.exec(QStringLiteral("SELECT 1 FROM %1 LIMIT 1").arg(table)) && query.next();
}

// What a draw still lacks before it can start, with where the operator adds it; empty when
// nothing is missing.
QString missingSetup(bool hasAward) {
    const bool hasRoster = hasRows(QStringLiteral("UserList"));
    if (hasRoster && hasAward) return QString();
    QStringList missing;
    QStringList steps;
    if (!hasRoster) {
        missing << QCoreApplication::translate("DrawWindow", "抽奖名单");
        steps << QCoreApplication::translate(
            "DrawWindow", "· 在“名单设置”中添加名单，或从Excel、txt文件导入名单");
    }
    if (!hasAward) {
        missing << QCoreApplication::translate("DrawWindow", "奖项");
        steps << QCoreApplication::translate("DrawWindow", "· 在“奖项设置”中添加奖项");
    }
    return QCoreApplication::translate(
               "DrawWindow",
               "还没有%1，无法开始抽奖。\n请按Esc退出抽奖界面，在控制台点击“抽奖设置”：\n")
               .arg(missing.join(QCoreApplication::translate("DrawWindow", "和"))) +
           steps.join(QLatin1Char('\n'));
}

}  // namespace

DrawWindow::DrawWindow(QWidget *parent) : QWidget(parent, Qt::Window) {
    AppState &state = appState();
    setWindowTitle(state.title1.isEmpty() ? QApplication::applicationDisplayName() : state.title1);
    qint16 selected = 0;
    QString ignored;
    if (settings::readInt(settings::kMain, QStringLiteral("selJxid"), &selected, &ignored))
        state.selJxid = selected;

    buildControls();
    m_scrollSampleTimer.setObjectName(QStringLiteral("scrollSampleTimer"));
    m_scrollSampleTimer.setParent(this);
    m_scrollSampleTimer.setInterval(200);
    m_stopGuardTimer.setObjectName(QStringLiteral("stopGuardTimer"));
    m_stopGuardTimer.setParent(this);
    m_stopGuardTimer.setInterval(1000);
    connect(&m_scrollSampleTimer, &QTimer::timeout, this, &DrawWindow::pushScrollSample);
    connect(&m_stopGuardTimer, &QTimer::timeout, this, &DrawWindow::onStopGuardTick);

    m_stage = createStage(m_stageHost);
    if (QWidget *stageWidget = m_stage->widget()) m_stageHost->layout()->addWidget(stageWidget);
    connect(m_stage.get(), &Stage::commandReceived, this, &DrawWindow::onStageCommand);
    openTemplate();
    createHelpers();
    // The secret's fingerprint is public before the first press: in the title and on the stage.
    m_engine->openAuditSession();
    setWindowTitle(windowTitle() + tr("  指纹 %1").arg(m_engine->secret().fingerprint()));
    m_stage->loadMovie(state.path(state.movieStage));
    setFullScreenMode(true);
}

DrawWindow::~DrawWindow() {
    m_scrollSampleTimer.stop();
    m_stopGuardTimer.stop();
    if (m_stage) disconnect(m_stage.get(), nullptr, this, nullptr);
    // The helpers speak to the stage: they go before it.
    delete m_parade;
    delete m_engine;
    delete m_music;
    m_stage.reset();
    m_templateDb = QSqlDatabase();
    if (!m_templateConnection.isEmpty()) QSqlDatabase::removeDatabase(m_templateConnection);
}

void DrawWindow::createHelpers() {
    m_engine = new draw::DrawEngine(*m_stage, this);
    m_engine->setObjectName(QStringLiteral("drawEngine"));
    m_engine->setBlockStyle([this](int batchCount) {
        const AppState &s = appState();
        design::LoadBlockValues values;
        values.sample = design::longestUserName(store::mainConn());
        values.maxImgWidth = s.maxImgWidth;
        values.maxImgHeight = s.maxImgHeight;
        values.luckType = s.luckType;
        values.batchCount = batchCount;
        return design::loadBlockValue(m_templateDb, values);
    });
    m_music = new draw::DrawMusic(this);
    m_music->setObjectName(QStringLiteral("drawMusic"));
    m_parade = new draw::ParadeRunner(
        *m_stage, [this] { return playbackStyle(); }, this);
    m_parade->setObjectName(QStringLiteral("paradeRunner"));

    connect(m_engine, &draw::DrawEngine::batchRecorded, m_music, &draw::DrawMusic::playWinSound);
    connect(m_engine, &draw::DrawEngine::recordFailed, this, &DrawWindow::onRecordFailed);
    connect(m_engine, &draw::DrawEngine::allAwardsFull, this, &DrawWindow::openEndOfDraw);
    connect(m_engine, &draw::DrawEngine::drawEmpty, m_music, &draw::DrawMusic::backToBackground);
    connect(m_engine, &draw::DrawEngine::batchCancelled, m_music,
            &draw::DrawMusic::backToBackground);
    connect(m_parade, &draw::ParadeRunner::started, this, [this](bool anyAward) {
        m_engine->beginParade();
        if (anyAward) m_music->playParadeMusic();
    });
    connect(m_parade, &draw::ParadeRunner::finished, this, [this] {
        m_music->endParade();
        m_engine->resetToIdle();
    });
}

QString DrawWindow::playbackStyle() const {
    const AppState &state = appState();
    const design::PlayRow title = design::readPlay(m_templateDb, design::rows::playTitle);
    const design::PlayRow name = design::readPlay(m_templateDb, design::rows::playName);
    return design::playbackStylePayload(design::drawPlayback(
        title, name, state.bgW, state.bgH, state.luckType, state.maxImgWidth, state.maxImgHeight));
}

void DrawWindow::buildControls() {
    setStyleSheet(QStringLiteral("DrawWindow { background: black; }"));
    setObjectName(QStringLiteral("DrawWindow"));
    setAttribute(Qt::WA_StyledBackground, true);
    m_stageHost = new QWidget(this);
    m_stageHost->setObjectName(QStringLiteral("stageHost"));
    auto *layout = new QVBoxLayout(m_stageHost);
    layout->setContentsMargins(0, 0, 0, 0);

    // The too-fast hint: a small panel in the middle that only a refused Stop shows. The stage
    // renders in a native window no sibling widget can cover, so the panel is a window of its
    // own that floats above it without taking the keyboard from the stage.
    m_stopGuardPanel = new QFrame(this, Qt::ToolTip | Qt::FramelessWindowHint);
    m_stopGuardPanel->setObjectName(QStringLiteral("stopGuardPanel"));
    m_stopGuardPanel->setAttribute(Qt::WA_ShowWithoutActivating);
    m_stopGuardPanel->setStyleSheet(
        QStringLiteral("#stopGuardPanel { background: #2A0A0C; border: 2px solid #E8B150; } "
                       "QLabel { color: #FFE08A; font-size: 36px; padding: 18px 40px; }"));
    auto *panelLayout = new QVBoxLayout(m_stopGuardPanel);
    panelLayout->setContentsMargins(0, 0, 0, 0);
    m_stopGuardLabel = new QLabel(m_stopGuardPanel);
    m_stopGuardLabel->setObjectName(QStringLiteral("stopGuardLabel"));
    m_stopGuardLabel->setAlignment(Qt::AlignCenter);
    panelLayout->addWidget(m_stopGuardLabel);
    m_stopGuardPanel->hide();
}

void DrawWindow::openTemplate() {
    const AppState &state = appState();
    const QString path = state.skinConnStr.isEmpty()
                             ? design::templatePath(state.appPath, state.selSkinName)
                             : state.skinConnStr;
    m_templateConnection = QStringLiteral("drawTemplate%1").arg(++connectionSerial);
    QString error;
    store::openTemplate(path, m_templateConnection, &error);
    m_templateDb = QSqlDatabase::database(m_templateConnection, false);
    const design::BgRow bg = design::readBg(m_templateDb);
    if (bg.found) {
        appState().bgW = bg.BgW;
        appState().bgH = bg.BgH;
    }
}

void DrawWindow::send(const QString &name, const QString &value) {
    m_stage->setVariable(name, value);
}

// --- Window modes ---------------------------------------------------------------------------

void DrawWindow::placeOnStageScreen() {
    QWidget *console = consoleWindow();
    QScreen *screen =
        stagescreens::stageScreen(appState().stageScreen, console ? console->screen() : nullptr);
    if (!screen) return;
    setScreen(screen);
    if (m_isFullScreen) {
        setGeometry(screen->geometry());
        return;
    }
    // A window the stage's shape, small enough to leave the desktop around it.
    const AppState &state = appState();
    const QSize stage(state.bgW > 0 ? state.bgW : 1024, state.bgH > 0 ? state.bgH : 768);
    const QRect room = screen->availableGeometry();
    const double fit = std::min({1.0, kWindowShare * room.width() / stage.width(),
                                 kWindowShare * room.height() / stage.height()});
    resize(qRound(stage.width() * fit), qRound(stage.height() * fit));
    move(room.center() - rect().center());
}

// The keyboard belongs to the stage after every change of window mode, without a click.
void DrawWindow::focusStage() {
    activateWindow();
    if (QWidget *stageWidget = m_stage->widget()) stageWidget->setFocus();
}

void DrawWindow::setFullScreenMode(bool fullScreen) {
    m_isScreenChanging = true;
    m_isFullScreen = fullScreen;
    placeOnStageScreen();
    if (fullScreen)
        setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowFullScreen);
    else
        setWindowState(windowState() & ~(Qt::WindowFullScreen | Qt::WindowMinimized));
    if (!fullScreen) placeOnStageScreen();
    m_isScreenChanging = false;
    layoutStage();
    QTimer::singleShot(0, this, &DrawWindow::focusStage);
}

void DrawWindow::layoutStage() {
    if (isMinimized() || m_isScreenChanging) return;
    m_stageHost->setGeometry(rect());
    placeStopGuardPanel();
    const AppState &state = appState();
    if (m_stageShown && state.bgW > 0 && state.bgH > 0)
        // The host is the window's client area in both modes: no border to allow for.
        send(proto::vbSetScale,
             design::stageScalePayload(m_stageHost->width(), m_stageHost->height(), true, state.bgW,
                                       state.bgH));
}

void DrawWindow::placeStopGuardPanel() {
    m_stopGuardPanel->adjustSize();
    const QPoint centre = mapToGlobal(rect().center());
    m_stopGuardPanel->move(centre -
                           QPoint(m_stopGuardPanel->width() / 2, m_stopGuardPanel->height() / 2));
}

void DrawWindow::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    layoutStage();
}

void DrawWindow::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange) return;
    const auto *change = static_cast<QWindowStateChangeEvent *>(event);
    const bool wasMinimised = change->oldState() & Qt::WindowMinimized;
    if (isMinimized() != wasMinimised) m_music->setMinimised(isMinimized());
}

void DrawWindow::closeEvent(QCloseEvent *event) {
    if (!ui().question(tr("确认要退出当前抽奖界面么?"), titles::notice)) {
        event->ignore();
        return;
    }
    // Leaving in the middle of a draw stores nothing: the winners are written only on landing.
    m_scrollSampleTimer.stop();
    m_stopGuardTimer.stop();
    m_stopGuardPanel->hide();
    m_music->stop();
    m_engine->resetToIdle();
    m_engine->closeAuditSession();
    event->accept();
    Q_EMIT closed();
}

// --- The stage's commands -------------------------------------------------------------------

void DrawWindow::onStageCommand(const QString &command, const QString &args) {
    if (command == proto::cmd::loadok) {
        send(proto::gotoPlay2, proto::go);
    } else if (command == proto::cmd::asok) {
        sendStageSetup();
    } else if (command == proto::cmd::loaduserok) {
        if (args == proto::ok) onStageReady();
    } else if (command == proto::cmd::blocksetok) {
        if (args != proto::ok) return;
        m_scrollSampleTimer.start();
        // A first sample as soon as the stage rolls (changBtn "start" follows this reply), so
        // the roll begins on real names rather than on the sizing text.
        QTimer::singleShot(0, this, [this] {
            if (m_scrollSampleTimer.isActive()) pushScrollSample();
        });
    } else if (command == proto::cmd::callLoadPlay) {
        m_parade->showNextAward();
    } else if (command == proto::cmd::luckplaystop) {
        m_parade->finish();
    } else if (command == proto::cmd::btnclick) {
        onStageButton(args);
    } else if (command == proto::cmd::stoplucksub) {
        m_engine->recordWinners();
    } else if (command == proto::cmd::callvbkeys) {
        bool numeric = false;
        const int code = args.trimmed().toInt(&numeric);
        if (numeric) onHotkey(code);
    } else if (command == proto::cmd::msg) {
        qCDebug(lcStage) << "movie:" << args;
    }
}

void DrawWindow::sendStageSetup() {
    const AppState &state = appState();
    if (QWidget *stageWidget = m_stage->widget()) {
        stageWidget->show();
        stageWidget->setFocus();
    }
    send(proto::vbFingerprint, m_engine->secret().fingerprint());
    QSqlDatabase db = store::mainConn();
    if (state.luckType > 0)
        send(proto::loadAllUserPics,
             design::loadAllUserPicsPayload(state.appPath, design::userPhotos(db)));
    const design::TemplateData data = design::readTemplate(m_templateDb);
    const design::PayloadContext context = design::contextFor(design::Reader::Draw);
    design::sendBackground(*m_stage, data.bg, context);
    m_keyCodes = design::keyCodes(db);
    send(proto::setAsKeys, design::keysPayload(m_keyCodes));
    design::sendObjects(*m_stage, data.objects, context);
    m_engine->setPrizeHead(design::prizePictureHead(data));
    m_stageShown = true;
    m_engine->loadDefaultAward(true);
    layoutStage();
}

void DrawWindow::onStageReady() {
    const QString appPath = appState().appPath;
    const music::Settings sounds = music::readSettings(appPath);
    m_music->setSettings(sounds, draw::winSoundPath(sounds, appPath));
    m_music->startBackground();
    Q_EMIT stageReady();
}

void DrawWindow::onStageButton(const QString &button) {
    const draw::DrawState state = m_engine->state();
    // While the names roll or land, the batch is not stored yet: moving to another award, a
    // parade or a dialog now would lose it.
    static const QStringList restOnly = {proto::btn::btnPre,    proto::btn::btnNext,
                                         proto::btn::btnAdd,    proto::btn::btnGiveUp,
                                         proto::btn::btnLstOut, proto::btn::btnPlayLuck};
    if (state == draw::Running && restOnly.contains(button)) return;
    if (button == proto::btn::btnExit) {
        close();
    } else if (button == proto::btn::btnScreenN) {
        setFullScreenMode(false);
    } else if (button == proto::btn::btnScreenF) {
        setFullScreenMode(true);
    } else if (button == proto::btn::btnStart) {
        startDraw();
    } else if (button == proto::btn::btnClear) {
        clearDraw();
    } else if (button == proto::btn::btnStop) {
        stopDraw();
    } else if (button == proto::btn::btnCancel) {
        cancelBatch();
    } else if (button == proto::btn::btnGiveUp) {
        openGiveUp();
    } else if (button == proto::btn::btnAdd) {
        openMakeUp();
    } else if (button == proto::btn::btnNext || button == proto::btn::btnPre) {
        m_engine->stepAward(button == proto::btn::btnNext, false);
    } else if (button == proto::btn::btnLstPrt) {
        if (state == draw::Idle || state == draw::Result) printResults();
    } else if (button == proto::btn::btnLstOut) {
        exportWinners(QString(), true);
    } else if (button == proto::btn::btnPlayLuck) {
        startParade();
    } else if (button == proto::btn::btnSoundOn) {
        m_music->setMuted(true);
    } else if (button == proto::btn::btnSoundOff) {
        m_music->setMuted(false);
    } else {
        ui().message(button + tr("返回系统消息"), MsgStyle::Information, titles::notice);
    }
}

// The batch on show after a landing; otherwise every winner.
void DrawWindow::printResults() {
    const draw::DrawSession &session = m_engine->session();
    if (session.drawState == draw::Result)
        printBatch(session.lastWinnerIds, session.award.id);
    else
        printWinners(true);
}

// --- The draw -------------------------------------------------------------------------------

void DrawWindow::startDraw() {
    if (m_engine->state() != draw::Running) {
        const QString missing = missingSetup(m_engine->session().award.id > 0);
        if (!missing.isEmpty()) {
            ui().message(missing, MsgStyle::Exclamation, titles::notice);
            return;
        }
    }
    if (m_engine->pressStart() != draw::DrawEngine::StartOutcome::Drawn) return;
    if (appState().isTimeProtect == 1) {
        m_stopGuardElapsed = 0;
        m_stopGuardLabel->setText(stopGuardText(appState().timeProtectNum));
        m_stopGuardTimer.start();
    }
    m_music->playStartSound();
}

void DrawWindow::stopDraw() {
    if (appState().isTimeProtect == 1 && m_stopGuardTimer.isActive()) {
        placeStopGuardPanel();
        m_stopGuardPanel->show();
        m_stopGuardPanel->raise();
        return;
    }
    if (!m_engine->stopDraw()) return;
    m_scrollSampleTimer.stop();
}

void DrawWindow::clearDraw() {
    if (!m_engine->clearDraw()) return;
    m_scrollSampleTimer.stop();
    m_music->backToBackground();
}

void DrawWindow::cancelBatch() {
    m_engine->cancelLastBatch();
}

void DrawWindow::startParade() {
    m_parade->start();
}

void DrawWindow::requestParade(bool run) {
    send(proto::vbCallPlay, run ? proto::yes : proto::no);
}

void DrawWindow::onRecordFailed(const QString &error) {
    // The landing showed names that are not stored: say so, and let the operator draw again.
    send(proto::changBtn, proto::buttons::defulte);
    m_engine->resetToIdle();
    ui().message(tr("中奖结果保存失败,本次抽奖无效,请重新抽取!\n") + error, MsgStyle::Critical,
                 titles::error);
}

// --- The dialogs ----------------------------------------------------------------------------

void DrawWindow::openGiveUp() {
    GiveUpDialog dialog(this);
    connect(&dialog, &GiveUpDialog::givenUp, this, [this] { m_engine->reloadAward(true, true); });
    dialog.exec();
}

void DrawWindow::openMakeUp() {
    MakeUpDrawDialog dialog(m_engine->session().award.id, this);
    connect(&dialog, &MakeUpDrawDialog::awardChanged, this,
            [this](int id) { m_engine->loadAward(id, true); });
    dialog.exec();
}

void DrawWindow::openEndOfDraw() {
    EndOfDrawDialog dialog(*m_engine, this);
    // The parade starts once the prompt and the press that opened it are over, so that nothing
    // after them sets the state back to rest under the running parade.
    connect(
        &dialog, &EndOfDrawDialog::paradeRequested, this, [this] { requestParade(true); },
        Qt::QueuedConnection);
    dialog.exec();
}
