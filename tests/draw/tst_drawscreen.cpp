#include <QLabel>
#include <QPdfWriter>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include "core/appstate.h"
#include "core/store.h"
#include "design/payloads.h"
#include "draw/drawmusic.h"
#include "draw/engine.h"
#include "draw/view/drawwindow.h"
#include "results/view/printwinners.h"
#include "sound/musicplayer.h"
#include "stage/protocol.h"
#include "support/fakemediabackend.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

// The draw window with its dialogs replaced by a note of the dialog it asked for.
class DialogFreeDrawWindow : public DrawWindow {
public:
    QStringList dialogs;

protected:
    void openGiveUp() override { dialogs << QStringLiteral("giveup"); }
    void openMakeUp() override { dialogs << QStringLiteral("addaward"); }
    void openEndOfDraw() override { dialogs << QStringLiteral("askend"); }
};

// A draw screen on a recording stage, brought through the stage's start-up dialogue.
struct Screen {
    TempProgramFolder folder;
    QList<QPointer<RecordingStage>> &stages = installRecordingStages();
    ScriptedUi *ui = installScriptedUi();
    FakeMedia *media = installFakeMedia();
    bool started = false;
    std::unique_ptr<DialogFreeDrawWindow> form;
    RecordingStage *stage = nullptr;

    Screen() { started = folder.start(); }

    void create() { form = std::make_unique<DialogFreeDrawWindow>(); }
    void open() {
        create();
        stage = stages.last();
        stage->reply(proto::cmd::loadok);
        stage->reply(proto::cmd::asok);
        stage->reply(proto::cmd::loaduserok, proto::ok);
    }
    void click(const QString &button) { stage->reply(proto::cmd::btnclick, button); }
    // A key as the stage reports it.
    void key(int code) { stage->reply(proto::cmd::callvbkeys, QString::number(code)); }
    // The configured key of a KeyBoard row (0 start ... 8 screen).
    int keyCode(int row) {
        return store::scalar(folder.db(), QStringLiteral("SELECT KeyAsc FROM KeyBoard WHERE ID=?"),
                             {row + 1})
            .toInt();
    }
    QStringList &dialogs() { return form->dialogs; }
    draw::DrawEngine &engine() { return *form->findChild<draw::DrawEngine *>(); }
    draw::DrawMusic &music() { return *form->findChild<draw::DrawMusic *>(); }
    QTimer *timer(const char *name) { return form->findChild<QTimer *>(QLatin1String(name)); }
    QWidget *stopGuardPanel() {
        return form->findChild<QWidget *>(QStringLiteral("stopGuardPanel"));
    }
    QString stopGuardText() {
        return form->findChild<QLabel *>(QStringLiteral("stopGuardLabel"))->text();
    }
    // A tick of one of the window's timers, without waiting for it.
    void tick(const char *slot) { QVERIFY(QMetaObject::invokeMethod(form.get(), slot)); }
    const draw::DrawSession &session() { return engine().session(); }
    int state() { return engine().state(); }
    // Start, the stage's blocksetok, Stop and the landing.
    void drawOnce() {
        click(proto::btn::btnStart);
        stage->reply(proto::cmd::blocksetok, proto::ok);
        click(proto::btn::btnStop);
        stage->reply(proto::cmd::stoplucksub);
    }
    // Brings the draw into a state the way the screen gets there.
    void putIn(draw::DrawState wanted) {
        if (wanted == draw::Running) engine().pressStart();
        if (wanted == draw::Result) engine().loadAward(session().award.id, false);
        if (wanted == draw::Playback) engine().beginParade();
        QCOMPARE(state(), int(wanted));
    }
    int count(const QString &sql) { return store::scalar(folder.db(), sql).toInt(); }
};

QString names(const QStringList &list) {
    return list.join(QLatin1Char(','));
}

}  // namespace

class TestDrawScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startUpDialogue_data();
    void startUpDialogue();
    void wholeDrawStoresTheWinnersOnLanding();
    void cancelKeyTakesTheBatchBack();
    void clearAbandonsTheRun();
    void exitQuestion();
    void stopGuardRefusesAnEarlyStop();
    void keyEffectsByState_data();
    void keyEffectsByState();
    void paradeFollowsTheStage();
    void musicFollowsTheDraw();
    void buttonsByState();
    void restButtonsWaitForTheLanding_data();
    void restButtonsWaitForTheLanding();
    void keyMashing_data();
    void keyMashing();
    void backgroundAfterCancelAndEmptyPress();
};

void TestDrawScreen::startUpDialogue_data() {
    QTest::addColumn<int>("luckType");
    QTest::newRow("names") << 0;
    QTest::newRow("photos") << 1;
}

void TestDrawScreen::startUpDialogue() {
    QFETCH(int, luckType);
    Screen s;
    QVERIFY(s.started);
    s.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李四")});
    s.folder.addAward(QStringLiteral("一等奖"), 2, 1, 1, 0, 0, 0, QStringLiteral("电脑"));
    appState().luckType = qint16(luckType);
    s.create();
    QSignalSpy ready(s.form.get(), &DrawWindow::stageReady);
    s.stage = s.stages.last();
    QVERIFY(s.stage->movie.endsWith(QStringLiteral("sys/stage.qml")));
    QVERIFY(s.stage->calls.isEmpty());
    s.stage->reply(proto::cmd::loadok);
    QCOMPARE(s.stage->lines(), QStringList{QStringLiteral("gotoPlay2=go")});
    s.stage->clear();
    s.stage->reply(proto::cmd::asok);
    const QStringList sent = s.stage->names();
    QCOMPARE(sent.contains(proto::loadAllUserPics), luckType > 0);
    // Background and keys first, then the page's objects, then the award with hidden cells.
    QVERIFY(sent.indexOf(proto::setAsBgColor) < sent.indexOf(proto::setAsKeys));
    QVERIFY(sent.indexOf(proto::setAsKeys) < sent.indexOf(proto::ClsPage));
    QVERIFY(sent.indexOf(proto::ClsPage) < sent.indexOf(proto::vbLoadJx));
    QCOMPARE(s.stage->values(proto::vbLoadJx).last().section('|', 0, 3),
             QStringLiteral("一等奖|2|1|2"));
    QCOMPARE(s.stage->values(proto::updateLuckLst), QStringList{"当前奖项暂无获奖名单..."});
    QCOMPARE(s.stage->values(proto::changBtn).last(), proto::buttons::defulte);
    QVERIFY(s.stage->values(proto::vbSetScale).size() >= 1);
    QCOMPARE(ready.count(), 0);
    s.stage->reply(proto::cmd::loaduserok, QStringLiteral("other"));
    QCOMPARE(ready.count(), 0);
    s.stage->reply(proto::cmd::loaduserok, proto::ok);
    QCOMPARE(ready.count(), 1);
    QCOMPARE(s.state(), int(draw::Idle));
}

void TestDrawScreen::wholeDrawStoresTheWinnersOnLanding() {
    Screen s;
    QVERIFY(s.started);
    s.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李四"), QStringLiteral("王五"),
                       QStringLiteral("赵六"), QStringLiteral("钱七")});
    s.folder.addAward(QStringLiteral("一等奖"), 4, 2);
    s.open();
    s.stage->clear();

    s.click(proto::btn::btnStart);
    QCOMPARE(s.state(), int(draw::Running));
    QCOMPARE(s.stage->names(), (QStringList{proto::vbndluck, proto::vbLoadBlock, proto::changBtn}));
    QVERIFY(s.stage->values(proto::vbLoadBlock).first().endsWith(proto::blockEnd));
    const QStringList items = s.stage->values(proto::vbndluck).first().split('|');
    QCOMPARE(items.size(), 3);  // luckType and two winners
    QVERIFY(!s.timer("scrollSampleTimer")->isActive());
    s.stage->reply(proto::cmd::blocksetok, proto::ok);
    QVERIFY(s.timer("scrollSampleTimer")->isActive());
    QCOMPARE(s.timer("scrollSampleTimer")->interval(), 200);
    QTRY_COMPARE(s.stage->values(proto::vbPushLst).size(), 1);
    s.tick("pushScrollSample");
    QCOMPARE(s.stage->values(proto::vbPushLst).size(), 2);
    QCOMPARE(s.stage->values(proto::vbPushLst).last().count('$'), 2);

    // Nothing is stored before the landing.
    appState().isTimeProtect = 0;
    s.click(proto::btn::btnStop);
    QCOMPARE(s.stage->values(proto::changBtn).last(), proto::buttons::stop);
    QVERIFY(!s.timer("scrollSampleTimer")->isActive());
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=3")), 0);

    s.stage->reply(proto::cmd::stoplucksub);
    QCOMPARE(s.state(), int(draw::Result));
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=3")), 2);
    QVERIFY(s.stage->values(proto::updateLuckLst).last().startsWith(QStringLiteral("恭喜∶")));
}

// The cancel key asks, as the stage's cancel button does, and takes the batch back.
void TestDrawScreen::cancelKeyTakesTheBatchBack() {
    Screen s;
    QVERIFY(s.started);
    s.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李四")});
    s.folder.addAward(QStringLiteral("一等奖"), 2, 2);
    appState().isTimeProtect = 0;
    s.open();
    s.drawOnce();
    s.ui->answers.enqueue(true);
    s.key(s.keyCode(3));
    QCOMPARE(s.ui->last().text, QStringLiteral("确定要撤消此次产生的中奖结果么?"));
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE JxID > ''")), 0);
}

void TestDrawScreen::clearAbandonsTheRun() {
    Screen s;
    QVERIFY(s.started);
    s.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李四")});
    s.folder.addAward(QStringLiteral("一等奖"), 2, 2);
    s.open();
    s.click(proto::btn::btnStart);
    s.stage->reply(proto::cmd::blocksetok, proto::ok);
    s.stage->clear();
    // The clear key while running asks the stage to press its Clear; the stage answers btnClear.
    s.key(s.keyCode(2));
    QCOMPARE(s.stage->lines(), QStringList{QStringLiteral("vbCallAsClear=yes")});
    s.click(proto::btn::btnClear);
    QCOMPARE(s.stage->values(proto::changBtn).last(), proto::buttons::clear);
    QCOMPARE(s.stage->values(proto::vbShowBlock), QStringList{proto::falseText});
    QVERIFY(!s.timer("scrollSampleTimer")->isActive());
    QCOMPARE(s.state(), int(draw::Idle));
    s.stage->reply(proto::cmd::stoplucksub);
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE JxID > ''")), 0);
}

void TestDrawScreen::exitQuestion() {
    Screen s;
    QVERIFY(s.started);
    s.folder.addUsers({QStringLiteral("张三")});
    s.folder.addAward(QStringLiteral("一等奖"), 1, 1);
    s.open();
    s.form->show();
    QSignalSpy closed(s.form.get(), &DrawWindow::closed);
    s.click(proto::btn::btnStart);
    s.key(27);
    QVERIFY(s.ui->records.isEmpty());  // Esc is refused while the names roll
    QVERIFY(s.form->isVisible());

    // The stage's own exit button asks at any state; No keeps the screen.
    s.click(proto::btn::btnExit);
    QCOMPARE(s.ui->last().kind, QStringLiteral("question"));
    QCOMPARE(s.ui->last().text, QStringLiteral("确认要退出当前抽奖界面么?"));
    QCOMPARE(s.ui->last().title, QStringLiteral("提示"));
    QVERIFY(s.form->isVisible());
    QCOMPARE(closed.count(), 0);

    s.click(proto::btn::btnClear);
    s.ui->answers.enqueue(true);
    s.key(27);
    QCOMPARE(s.ui->records.size(), 2);
    QVERIFY(!s.form->isVisible());
    QCOMPARE(closed.count(), 1);
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE JxID > ''")), 0);
}

void TestDrawScreen::stopGuardRefusesAnEarlyStop() {
    Screen s;
    QVERIFY(s.started);
    s.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李四")});
    s.folder.addAward(QStringLiteral("一等奖"), 2, 2);
    appState().isTimeProtect = 1;
    appState().timeProtectNum = 3;
    s.open();
    s.form->show();
    s.click(proto::btn::btnStart);
    s.stage->reply(proto::cmd::blocksetok, proto::ok);
    QVERIFY(s.timer("stopGuardTimer")->isActive());
    QCOMPARE(s.timer("stopGuardTimer")->interval(), 1000);
    s.tick("onStopGuardTick");
    s.tick("onStopGuardTick");  // second 2
    s.stage->clear();
    s.click(proto::btn::btnStop);
    QVERIFY(s.stage->calls.isEmpty());
    QVERIFY(s.stopGuardPanel()->isVisible());
    QCOMPARE(s.stopGuardText(), QStringLiteral("您按键太快了(1秒!!"));
    QVERIFY(s.timer("scrollSampleTimer")->isActive());
    QCOMPARE(s.state(), int(draw::Running));

    s.tick("onStopGuardTick");  // second 3: the count is down
    QCOMPARE(s.stopGuardText(), QStringLiteral("您按键太快了(0秒!!"));
    QVERIFY(s.timer("stopGuardTimer")->isActive());
    s.tick("onStopGuardTick");  // the guard ends a tick later
    QVERIFY(!s.timer("stopGuardTimer")->isActive());
    QVERIFY(!s.stopGuardPanel()->isVisible());
    s.click(proto::btn::btnStop);
    QCOMPARE(s.stage->values(proto::changBtn), QStringList{proto::buttons::stop});
}

void TestDrawScreen::keyEffectsByState_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("sent");
    QTest::newRow("clear idle") << 2 << 0 << "";
    QTest::newRow("play idle") << 6 << 0 << "vbCallPlay=yes";
    QTest::newRow("play running") << 6 << 1 << "";
    QTest::newRow("play in the parade") << 6 << 3 << "vbCallPlay=no";
    QTest::newRow("sound on") << 7 << 1 << "vbCallMusic=yes";
    QTest::newRow("screen, full") << 8 << 2 << "vbCallScreen=no";
    QTest::newRow("start in the parade pauses") << 0 << 3 << "vbStartScroll=no";
    QTest::newRow("start idle is the stage's") << 0 << 0 << "";
    QTest::newRow("left idle") << -37 << 0 << "vbLoadJx";
    QTest::newRow("left running") << -37 << 1 << "";
    QTest::newRow("right in the parade") << -39 << 3 << "";
}

void TestDrawScreen::keyEffectsByState() {
    QFETCH(int, row);
    QFETCH(int, state);
    QFETCH(QString, sent);
    Screen s;
    QVERIFY(s.started);
    s.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李四")});
    s.folder.addAward(QStringLiteral("三等奖"), 1, 1);
    s.folder.addAward(QStringLiteral("二等奖"), 1, 1);
    s.open();
    s.key(39);  // to the second award, so that left has somewhere to go
    s.putIn(draw::DrawState(state));
    s.stage->clear();
    s.key(row < 0 ? -row : s.keyCode(row));
    const QStringList lines = s.stage->lines();
    if (sent.isEmpty())
        QVERIFY2(lines.isEmpty(), qPrintable(names(lines)));
    else
        QVERIFY2(!lines.isEmpty() && lines.first().startsWith(sent), qPrintable(names(lines)));
}

// The parade runs as the stage asks for it; its payloads are the parade runner's.
void TestDrawScreen::paradeFollowsTheStage() {
    Screen s;
    QVERIFY(s.started);
    s.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李四")});
    s.folder.addAward(QStringLiteral("二等奖"), 1, 1);
    s.folder.addAward(QStringLiteral("一等奖"), 1, 1);
    appState().isTimeProtect = 0;
    s.open();
    s.drawOnce();
    s.stage->clear();

    s.click(proto::btn::btnPlayLuck);
    QCOMPARE(s.state(), int(draw::Playback));
    QCOMPARE(s.stage->names(), (QStringList{proto::changBtn, proto::vbLuckPlay}));
    // The template's playback style leads the award's four fields.
    QCOMPARE(s.stage->values(proto::vbLuckPlay).first().split('|').size(), 38);
    s.stage->reply(proto::cmd::callLoadPlay);
    QCOMPARE(s.stage->values(proto::vbLuckPlay1).size(), 1);
    s.stage->reply(proto::cmd::luckplaystop);
    QCOMPARE(s.state(), int(draw::Idle));
}

// Each moment of the draw reaches the draw music; what it then plays is the music's own rule.
void TestDrawScreen::musicFollowsTheDraw() {
    Screen s;
    QVERIFY(s.started);
    QDir().mkpath(s.folder.path(QStringLiteral("Music")));
    for (const QString &name : {QStringLiteral("bg.mp3"), QStringLiteral("start.mp3")}) {
        QFile file(s.folder.path(QStringLiteral("Music/") + name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("x");
    }
    const QString bg = s.folder.path(QStringLiteral("Music/bg.mp3"));
    const QString start = s.folder.path(QStringLiteral("Music/start.mp3"));
    const QString win = s.folder.path(QStringLiteral("sys/win.wav"));
    s.media->lengths = {{bg, 60000}, {start, 5000}, {win, 2000}};
    s.folder.setConfig(QStringLiteral("music"), QStringLiteral("isBgMusic"), QStringLiteral("1"));
    s.folder.setConfig(QStringLiteral("music"), QStringLiteral("isStartMusic"),
                       QStringLiteral("1"));
    s.folder.setConfig(QStringLiteral("music"), QStringLiteral("isLuckMusic"), QStringLiteral("1"));
    s.folder.setConfig(QStringLiteral("music"), QStringLiteral("BgMusicFile"),
                       QStringLiteral("bg.mp3"));
    s.folder.setConfig(QStringLiteral("music"), QStringLiteral("StartMusicFile"),
                       QStringLiteral("start.mp3"));
    s.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李四")});
    s.folder.addAward(QStringLiteral("一等奖"), 2, 2);
    appState().isTimeProtect = 0;
    s.open();
    QCOMPARE(s.music().current(), bg);
    FakeMediaBackend *player = s.media->last();
    QVERIFY(player);

    s.click(proto::btn::btnStart);
    QCOMPARE(s.music().current(), start);
    s.stage->reply(proto::cmd::blocksetok, proto::ok);
    s.click(proto::btn::btnStop);
    s.stage->reply(proto::cmd::stoplucksub);
    QCOMPARE(s.music().current(), win);

    // The stage's sound buttons: On mutes, Off restores; the sound key asks the stage.
    s.click(proto::btn::btnSoundOn);
    QVERIFY(s.music().isMuted());
    QCOMPARE(player->volume, 0.0f);
    s.stage->clear();
    s.key(s.keyCode(7));
    QCOMPARE(s.stage->lines(), QStringList{QStringLiteral("vbCallMusic=no")});
    s.click(proto::btn::btnSoundOff);
    QVERIFY(!s.music().isMuted());

    // Minimised, the music pauses; restored, it goes on.
    s.form->show();
    s.form->setWindowState(Qt::WindowMinimized);
    QCOMPARE(player->current, MediaBackend::State::Paused);
    s.form->setWindowState(Qt::WindowNoState);
    QCOMPARE(player->current, MediaBackend::State::Playing);
}

void TestDrawScreen::buttonsByState() {
    Screen s;
    QVERIFY(s.started);
    s.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李四")});
    s.folder.addAward(QStringLiteral("一等奖"), 2, 2);
    int printed = 0;
    setPrinterFactory([&printed]() -> std::unique_ptr<QPagedPaintDevice> {
        ++printed;
        return nullptr;
    });
    s.open();
    s.click(proto::btn::btnStart);
    s.click(proto::btn::btnLstPrt);  // nothing while the names roll
    QCOMPARE(printed, 0);
    s.click(proto::btn::btnClear);
    s.click(proto::btn::btnLstPrt);
    QCOMPARE(printed, 1);

    s.ui->clear();
    s.click(QStringLiteral("btnSomething"));
    QCOMPARE(s.ui->last().text, QStringLiteral("btnSomething返回系统消息"));
    s.click(proto::btn::btnGiveUp);
    s.click(proto::btn::btnAdd);
    QCOMPARE(s.dialogs(), (QStringList{QStringLiteral("giveup"), QStringLiteral("addaward")}));
    s.stage->clear();
    s.click(proto::btn::btnScreenN);
    QVERIFY(!(s.form->windowState() & Qt::WindowFullScreen));
    // A window of the stage's shape that leaves the desktop around it.
    const QSize windowed = s.form->size();
    QVERIFY(s.form->screen()->availableGeometry().contains(s.form->geometry()));
    QCOMPARE(windowed.width() * appState().bgH, windowed.height() * appState().bgW);
    // Scaled down evenly: no black strip.
    const QStringList scale = s.stage->values(proto::vbSetScale).last().split('|');
    QCOMPARE(scale.size(), 2);
    QCOMPARE(scale[0], scale[1]);
    QVERIFY(scale[0].toDouble() < 100);
    s.click(proto::btn::btnScreenF);
    QVERIFY(s.form->windowState() & Qt::WindowFullScreen);
    setPrinterFactory(nullptr);
}

void TestDrawScreen::restButtonsWaitForTheLanding_data() {
    QTest::addColumn<QString>("button");
    QTest::newRow("next award") << proto::btn::btnNext;
    QTest::newRow("previous award") << proto::btn::btnPre;
    QTest::newRow("parade") << proto::btn::btnPlayLuck;
    QTest::newRow("give-up") << proto::btn::btnGiveUp;
    QTest::newRow("make-up") << proto::btn::btnAdd;
    QTest::newRow("export") << proto::btn::btnLstOut;
}

// Between Stop and the landing nothing is stored yet: a button that leaves the award or opens a
// dialog is refused, and the landing then stores the batch as usual.
void TestDrawScreen::restButtonsWaitForTheLanding() {
    QFETCH(QString, button);
    Screen s;
    QVERIFY(s.started);
    s.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李四"), QStringLiteral("王五")});
    const int first = s.folder.addAward(QStringLiteral("三等奖"), 2, 1);
    s.folder.addAward(QStringLiteral("二等奖"), 1, 1);
    appState().isTimeProtect = 0;
    s.open();
    s.click(proto::btn::btnStart);
    s.stage->reply(proto::cmd::blocksetok, proto::ok);
    s.click(proto::btn::btnStop);
    s.click(button);
    QCOMPARE(s.state(), int(draw::Running));
    QCOMPARE(s.session().award.id, first);
    QVERIFY(s.dialogs().isEmpty());
    QVERIFY(s.ui->records.isEmpty());
    s.stage->reply(proto::cmd::stoplucksub);
    QCOMPARE(s.state(), int(draw::Result));
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=3")), 2);
}

void TestDrawScreen::keyMashing_data() {
    QTest::addColumn<QString>("events");
    QTest::addColumn<int>("stored");
    // S start, b the stage's blocksetok, T stop, L the landing, C the cancel key answered Yes,
    // X the clear key, K the stage's clear, P the parade key.
    QTest::newRow("everything twice") << "S S b b T T L L" << 1;
    QTest::newRow("stop and landing before any start") << "T L S b T L L" << 1;
    QTest::newRow("start while landing") << "S b T S S L S b T L" << 2;
    QTest::newRow("cancel twice") << "S b T L C C" << 0;
    QTest::newRow("cancel while rolling") << "S b C T C L" << 1;
    QTest::newRow("landing after a clear") << "S b X K T L" << 0;
    QTest::newRow("parade key while rolling") << "S b P T P L" << 1;
}

// Whatever order presses and stage answers come in, one press stores one batch, only at its
// landing, and never more than the award's places.
void TestDrawScreen::keyMashing() {
    QFETCH(QString, events);
    QFETCH(int, stored);
    Screen s;
    QVERIFY(s.started);
    s.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李四"), QStringLiteral("王五"),
                       QStringLiteral("赵六")});
    s.folder.addAward(QStringLiteral("一等奖"), 3, 3);
    appState().isTimeProtect = 0;
    s.open();
    const QString winners = QStringLiteral("SELECT COUNT(*) FROM UserList WHERE JxID > ''");
    for (const QString &event : events.split(QLatin1Char(' '))) {
        const int before = s.count(winners);
        const QChar e = event.at(0);
        if (e == 'S') s.click(proto::btn::btnStart);
        if (e == 'b') s.stage->reply(proto::cmd::blocksetok, proto::ok);
        if (e == 'T') s.click(proto::btn::btnStop);
        if (e == 'L') s.stage->reply(proto::cmd::stoplucksub);
        if (e == 'C') s.ui->answers.enqueue(true);
        if (e == 'C') s.key(s.keyCode(3));
        if (e == 'X') s.key(s.keyCode(2));
        if (e == 'K') s.click(proto::btn::btnClear);
        if (e == 'P') s.key(s.keyCode(6));
        s.ui->answers.clear();
        const int after = s.count(winners);
        QVERIFY2(after == before || e == 'L' || e == 'C', qPrintable(event));
        QVERIFY(after <= 3);
    }
    QCOMPARE(s.count(winners), stored);
}

void TestDrawScreen::backgroundAfterCancelAndEmptyPress() {
    Screen s;
    QVERIFY(s.started);
    QDir().mkpath(s.folder.path(QStringLiteral("Music")));
    QFile file(s.folder.path(QStringLiteral("Music/bg.mp3")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    const QString bg = file.fileName();
    const QString win = s.folder.path(QStringLiteral("sys/win.wav"));
    s.media->lengths = {{bg, 60000}, {win, 2000}};
    s.folder.setConfig(QStringLiteral("music"), QStringLiteral("isBgMusic"), QStringLiteral("1"));
    s.folder.setConfig(QStringLiteral("music"), QStringLiteral("isLuckMusic"), QStringLiteral("1"));
    s.folder.setConfig(QStringLiteral("music"), QStringLiteral("BgMusicFile"),
                       QStringLiteral("bg.mp3"));
    s.folder.addUsers({QStringLiteral("张三")});
    s.folder.addAward(QStringLiteral("一等奖"), 2, 2);
    appState().isTimeProtect = 0;
    s.open();
    s.drawOnce();
    QCOMPARE(s.music().current(), win);
    // Cancelled: the chime gives way to the background at once.
    s.ui->answers.enqueue(true);
    s.click(proto::btn::btnCancel);
    QCOMPARE(s.music().current(), bg);
    s.drawOnce();
    QCOMPARE(s.music().current(), win);
    // Nobody left: the background is back before the warning, and no stop guard starts.
    appState().isTimeProtect = 1;
    QString playingAtWarning;
    s.ui->onMessage = [&](const ScriptedUi::Record &) { playingAtWarning = s.music().current(); };
    s.click(proto::btn::btnStart);
    QCOMPARE(s.ui->last().text, QStringLiteral("已无符合条件的抽奖名单可抽取!"));
    QCOMPARE(playingAtWarning, bg);
    QVERIFY(!s.timer("stopGuardTimer")->isActive());
}

QTEST_MAIN(TestDrawScreen)
#include "tst_drawscreen.moc"
