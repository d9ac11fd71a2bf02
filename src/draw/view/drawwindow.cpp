#include "draw/view/drawwindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFrame>
#include <QGuiApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>
#include <QSqlDatabase>
#include <QVBoxLayout>
#include <QWindowStateChangeEvent>

#include "chrome/widgethelpers.h"
#include "core/appstate.h"
#include "core/helpers.h"
#include "core/profile.h"
#include "core/settings.h"
#include "core/store.h"
#include "core/ui.h"
#include "design/stageload.h"
#include "design/templatemodel.h"
#include "design/templatepage.h"
#include "draw/view/endofdrawdialog.h"
#include "draw/view/giveupdialog.h"
#include "draw/view/makeupdrawdialog.h"
#include "results/exportwinners.h"
#include "results/view/printwinners.h"
#include "sound/musicplayer.h"
#include "stage/protocol.h"
#include "stage/view/stagefactory.h"

namespace {

int connectionSerial = 0;

}  // namespace

DrawWindow::DrawWindow(QWidget *parent) : QWidget(parent, Qt::Window) {
    AppState &state = appState();
    setWindowTitle(state.title1.isEmpty() ? QApplication::applicationDisplayName() : state.title1);
    qint16 selected = 0;
    QString ignored;
    if (settings::readInt(settings::kMain, QStringLiteral("selJxid"), &selected, &ignored))
        state.selJxid = selected;

    openGiveUp = [](DrawWindow &screen) {
        GiveUpDialog dialog(&screen);
        QObject::connect(&dialog, &GiveUpDialog::givenUp, &screen,
                         [&screen] { screen.reFrashJx(true, true); });
        dialog.exec();
    };
    openAddAward = [](DrawWindow &screen) {
        MakeUpDrawDialog dialog(screen.session().award.id, &screen);
        QObject::connect(&dialog, &MakeUpDrawDialog::loadAward, &screen,
                         [&screen](int id) { screen.loadJx(id, true); });
        dialog.exec();
    };
    openAskEnd = [this](DrawWindow &screen) {
        EndOfDrawDialog dialog(*m_engine, &screen);
        // The parade starts once the prompt and the press that opened it are over, so that
        // nothing after them sets the state back to rest under the running parade.
        QObject::connect(
            &dialog, &EndOfDrawDialog::paradeRequested, &screen, [&screen] { screen.vbCallPlay(); },
            Qt::QueuedConnection);
        dialog.exec();
    };

    buildControls();
    m_tmAS.setInterval(200);
    m_tmDelay.setInterval(1000);
    m_tmM.setInterval(100);
    connect(&m_tmAS, &QTimer::timeout, this, &DrawWindow::tmAS_Timer);
    connect(&m_tmDelay, &QTimer::timeout, this, &DrawWindow::tmDelay_Timer);
    connect(&m_tmM, &QTimer::timeout, this, &DrawWindow::tmM_Timer);

    m_stage = createStage(m_picMain);
    if (QWidget *stageWidget = m_stage->widget()) m_picMain->layout()->addWidget(stageWidget);
    m_engine = std::make_unique<draw::DrawEngine>(*m_stage, m_session);
    connect(m_stage.get(), &Stage::commandReceived, this, &DrawWindow::onStageCommand);
    connect(m_engine.get(), &draw::DrawEngine::batchRecorded, this, &DrawWindow::onBatchRecorded);
    connect(m_engine.get(), &draw::DrawEngine::recordFailed, this, &DrawWindow::onRecordFailed);
    connect(m_engine.get(), &draw::DrawEngine::allAwardsFull, this, &DrawWindow::onAllAwardsFull);
    connect(m_engine.get(), &draw::DrawEngine::drawEmpty, this, &DrawWindow::backToBackground);
    connect(m_engine.get(), &draw::DrawEngine::batchCancelled, this, &DrawWindow::backToBackground);

    openTemplate();
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
    m_music = std::make_unique<MusicPlayer>();
    m_stage->loadMovie(state.path(state.movieStage));
    setFullScreenMode(true);
}

DrawWindow::~DrawWindow() {
    m_tmAS.stop();
    m_tmDelay.stop();
    m_tmM.stop();
    if (m_stage) disconnect(m_stage.get(), nullptr, this, nullptr);
    m_engine.reset();
    m_stage.reset();
    m_music.reset();
    m_templateDb = QSqlDatabase();
    if (!m_templateConnection.isEmpty()) QSqlDatabase::removeDatabase(m_templateConnection);
}

void DrawWindow::buildControls() {
    setStyleSheet(QStringLiteral("DrawWindow { background: black; }"));
    setObjectName(QStringLiteral("DrawWindow"));
    setAttribute(Qt::WA_StyledBackground, true);
    m_picMain = new QWidget(this);
    m_picMain->setObjectName(QStringLiteral("picMain"));
    auto *layout = new QVBoxLayout(m_picMain);
    layout->setContentsMargins(0, 0, 0, 0);

    // The too-fast hint: a small panel in the middle that only a refused Stop shows. The stage
    // renders in a native window no sibling widget can cover, so the panel is a window of its
    // own that floats above it without taking the keyboard from the stage.
    m_picInfo = new QFrame(this, Qt::ToolTip | Qt::FramelessWindowHint);
    m_picInfo->setObjectName(QStringLiteral("picInfo"));
    m_picInfo->setAttribute(Qt::WA_ShowWithoutActivating);
    m_picInfo->setStyleSheet(
        QStringLiteral("#picInfo { background: #2A0A0C; border: 2px solid #E8B150; } "
                       "QLabel { color: #FFE08A; font-size: 36px; padding: 18px 40px; }"));
    auto *infoLayout = new QVBoxLayout(m_picInfo);
    infoLayout->setContentsMargins(0, 0, 0, 0);
    m_labP = new QLabel(m_picInfo);
    m_labP->setAlignment(Qt::AlignCenter);
    infoLayout->addWidget(m_labP);
    m_picInfo->hide();

    // The movie's trace log, kept out of sight.
    m_text1 = new QPlainTextEdit(this);
    m_text1->setReadOnly(true);
    m_text1->hide();
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

void DrawWindow::placeOnConsoleScreen() {
    QWidget *console = consoleWindow();
    QScreen *screen =
        console && console->screen() ? console->screen() : QGuiApplication::primaryScreen();
    if (!screen) return;
    setScreen(screen);
    if (m_isFullScreen) {
        setGeometry(screen->geometry());
    } else {
        const AppState &state = appState();
        const QSize size(state.bgW > 0 ? state.bgW : 1024, state.bgH > 0 ? state.bgH : 768);
        resize(size);
        move(screen->availableGeometry().center() - rect().center());
    }
}

void DrawWindow::setFullScreenMode(bool fullScreen) {
    m_isScreenChanging = true;
    m_isFullScreen = fullScreen;
    placeOnConsoleScreen();
    if (fullScreen)
        setWindowState((windowState() & ~Qt::WindowMinimized) | Qt::WindowFullScreen);
    else
        setWindowState(windowState() & ~(Qt::WindowFullScreen | Qt::WindowMinimized));
    if (!fullScreen) placeOnConsoleScreen();
    m_isScreenChanging = false;
    layoutStage();
}

void DrawWindow::layoutStage() {
    if (isMinimized() || m_isScreenChanging) return;
    m_picMain->setGeometry(rect());
    placeInfo();
    const AppState &state = appState();
    if (m_stageShown && state.bgW > 0 && state.bgH > 0)
        send(proto::vbSetScale, design::stageScalePayload(m_picMain->width(), m_picMain->height(),
                                                          m_isFullScreen, state.bgW, state.bgH));
}

void DrawWindow::placeInfo() {
    m_picInfo->adjustSize();
    const QPoint centre = mapToGlobal(rect().center());
    m_picInfo->move(centre - QPoint(m_picInfo->width() / 2, m_picInfo->height() / 2));
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
    if (isMinimized() != wasMinimised) pauseForMinimise(isMinimized());
}

void DrawWindow::closeEvent(QCloseEvent *event) {
    if (!ui().question(QStringLiteral("确认要退出当前抽奖界面么?"), titles::notice)) {
        event->ignore();
        return;
    }
    // Leaving in the middle of a draw stores nothing: the winners are written only on landing.
    m_tmAS.stop();
    m_tmDelay.stop();
    m_tmM.stop();
    m_picInfo->hide();
    if (m_music) m_music->stop();
    m_session.drawState = draw::Idle;
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
        m_tmAS.start();
        // A first sample as soon as the stage rolls (changBtn "start" follows this reply), so
        // the roll begins on real names rather than on the sizing text.
        QTimer::singleShot(0, this, [this] {
            if (m_tmAS.isActive()) tmAS_Timer();
        });
    } else if (command == proto::cmd::callLoadPlay) {
        playNextAward();
    } else if (command == proto::cmd::luckplaystop) {
        onLuckPlayStop();
    } else if (command == proto::cmd::btnclick) {
        onBtnClick(args);
    } else if (command == proto::cmd::stoplucksub) {
        m_engine->recordWinners();
    } else if (command == proto::cmd::callvbkeys) {
        bool numeric = false;
        const int code = args.trimmed().toInt(&numeric);
        if (numeric) SubKey(code);
    } else if (command == proto::cmd::msg) {
        m_text1->moveCursor(QTextCursor::End);
        m_text1->insertPlainText(args + QLatin1Char('\n'));
        m_text1->moveCursor(QTextCursor::End);
    }
}

void DrawWindow::sendStageSetup() {
    const AppState &state = appState();
    if (QWidget *stageWidget = m_stage->widget()) {
        stageWidget->show();
        stageWidget->setFocus();
    }
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
    m_session.prizeHead = design::prizePictureHead(data);
    m_stageShown = true;
    m_engine->defulteJx(true);
    layoutStage();
}

void DrawWindow::onStageReady() {
    m_stageReady = true;
    readMusic();
    startBackgroundMusic();
}

void DrawWindow::onBtnClick(const QString &button) {
    const int state = m_session.drawState;
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
        cmdStart();
    } else if (button == proto::btn::btnClear) {
        cmdClear();
    } else if (button == proto::btn::btnStop) {
        cmdStop();
    } else if (button == proto::btn::btnCancel) {
        cmdCancel();
    } else if (button == proto::btn::btnGiveUp) {
        cmdGiveUp();
    } else if (button == proto::btn::btnAdd) {
        cmdAddLuck();
    } else if (button == proto::btn::btnNext || button == proto::btn::btnPre) {
        m_engine->stepAward(button == proto::btn::btnNext, false);
    } else if (button == proto::btn::btnLstPrt) {
        if (state == draw::Idle || state == draw::Result) printForState();
    } else if (button == proto::btn::btnLstOut) {
        exportWinners(QString(), true);
    } else if (button == proto::btn::btnPlayLuck) {
        startPlayback();
    } else if (button == proto::btn::btnSoundOn) {
        m_soundOff = true;
        setVolumeLevel(MusicPlayer::kSilence);
    } else if (button == proto::btn::btnSoundOff) {
        m_soundOff = false;
        setVolumeLevel(MusicPlayer::kFullVolume);
    } else {
        ui().message(button + QStringLiteral("返回系统消息"), MsgStyle::Information,
                     titles::notice);
    }
}

void DrawWindow::printForState() {
    if (m_session.drawState == draw::Result)
        printBatch(m_session.lastWinnerIds, m_session.award.id);
    else
        printWinners(true);
}

// --- The hidden buttons ---------------------------------------------------------------------

void DrawWindow::cmdStart() {
    m_isStopped = false;
    m_isCleared = false;
    switch (m_engine->pressStart()) {
        case draw::DrawEngine::StartOutcome::Stepped:
            return;
        case draw::DrawEngine::StartOutcome::Empty:
            return;
        case draw::DrawEngine::StartOutcome::Drawn:
            break;
    }
    if (appState().isTimeProtect == 1) {
        m_delayCount = 0;
        m_labP->setText(QStringLiteral("您按键太快了(") +
                        QString::number(appState().timeProtectNum) + QStringLiteral("秒!!"));
        m_tmDelay.start();
    }
    if (m_musicSettings.isStartMusic && fileExists(m_musicSettings.startFile))
        playFromStart(m_musicSettings.startFile);
}

void DrawWindow::cmdStop() {
    if (appState().isTimeProtect == 1 && m_tmDelay.isActive()) {
        placeInfo();
        m_picInfo->show();
        m_picInfo->raise();
        return;
    }
    send(proto::changBtn, proto::buttons::stop);
    m_tmAS.stop();
    m_isStopped = true;
}

void DrawWindow::cmdClear() {
    send(proto::changBtn, proto::buttons::clear);
    m_isCleared = true;
    m_tmAS.stop();
    send(proto::vbShowBlock, proto::falseText);
    m_session.drawState = draw::Idle;
    if (m_musicSettings.isBgMusic) resumeBackground();
}

void DrawWindow::cmdCancel() {
    m_engine->cancelLastBatch();
}

void DrawWindow::cmdPrint() {
    printWinners(true);
}

void DrawWindow::cmdGiveUp() {
    if (openGiveUp) openGiveUp(*this);
}

void DrawWindow::cmdAddLuck() {
    if (openAddAward) openAddAward(*this);
}

bool DrawWindow::loadJx(int id, bool resetButtons) {
    return m_engine->loadJx(id, resetButtons);
}

void DrawWindow::reFrashJx(bool hideBlocks, bool resetButtons) {
    m_engine->reFrashJx(hideBlocks, resetButtons);
}

void DrawWindow::defulteJx(bool resetButtons) {
    m_engine->defulteJx(resetButtons);
}

// --- The engine's news ----------------------------------------------------------------------

void DrawWindow::onBatchRecorded() {
    const draw::MusicSettings &music = m_musicSettings;
    if (music.isLuckMusic) {
        if (fileExists(music.luckFile)) playFromStart(music.luckFile);
    } else if (music.isBgMusic) {
        resumeBackground();
    } else {
        stopMusic();
    }
}

void DrawWindow::onRecordFailed(const QString &error) {
    // The landing showed names that are not stored: say so, and let the operator draw again.
    send(proto::changBtn, proto::buttons::defulte);
    m_session.drawState = draw::Idle;
    ui().message(QStringLiteral("中奖结果保存失败,本次抽奖无效,请重新抽取!\n") + error,
                 MsgStyle::Critical, titles::error);
}

void DrawWindow::onAllAwardsFull() {
    if (openAskEnd) openAskEnd(*this);
}
