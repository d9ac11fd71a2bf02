#include <QLabel>
#include <QPdfWriter>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QtTest>

#include "core/appstate.h"
#include "core/store.h"
#include "design/payloads.h"
#include "draw/view/drawwindow.h"
#include "results/view/printwinners.h"
#include "sound/musicplayer.h"
#include "stage/protocol.h"
#include "support/fakemediabackend.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

// A draw screen on a recording stage, brought through the stage's start-up dialogue.
struct Screen {
    TempProgramFolder folder;
    QList<QPointer<RecordingStage>> &stages = installRecordingStages();
    ScriptedUi *ui = installScriptedUi();
    FakeMedia *media = installFakeMedia();
    bool started = false;
    std::unique_ptr<DrawWindow> form;
    RecordingStage *stage = nullptr;
    QStringList dialogs;  // the dialogs the screen asked for, instead of opening them

    Screen() { started = folder.start(); }

    void create() {
        form = std::make_unique<DrawWindow>();
        form->openGiveUp = [this](DrawWindow &) { dialogs << QStringLiteral("giveup"); };
        form->openAddAward = [this](DrawWindow &) { dialogs << QStringLiteral("addaward"); };
        form->openAskEnd = [this](DrawWindow &) { dialogs << QStringLiteral("askend"); };
    }
    void open() {
        create();
        stage = stages.last();
        stage->reply(proto::cmd::loadok);
        stage->reply(proto::cmd::asok);
        stage->reply(proto::cmd::loaduserok, proto::ok);
    }
    void click(const QString &button) { stage->reply(proto::cmd::btnclick, button); }
    draw::DrawSession &session() { return form->session(); }
    int state() { return form->session().drawState; }
    // Start, the stage's blocksetok, Stop and the landing.
    void drawOnce() {
        click(proto::btn::btnStart);
        stage->reply(proto::cmd::blocksetok, proto::ok);
        click(proto::btn::btnStop);
        stage->reply(proto::cmd::stoplucksub);
    }
    QVariant cell(int id, const QString &column) {
        return store::scalar(
            folder.db(), QStringLiteral("SELECT %1 FROM UserList WHERE ID=?").arg(column), {id});
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
    void cancelRestoresAndLeavesTheResultState();
    void startOnAFullAwardMovesOn();
    void nobodyLeftWarnsAndStaysIdle();
    void clearAbandonsTheRun();
    void exitQuestion();
    void stopGuardRefusesAnEarlyStop();
    void keyClasses_data();
    void keyClasses();
    void keyEffectsByState_data();
    void keyEffectsByState();
    void paradeRunsOnAndNumbersGoOn();
    void musicFollowsTheDraw();
    void buttonsByState();
    void restButtonsWaitForTheLanding_data();
    void restButtonsWaitForTheLanding();
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
    QVERIFY(!s.form->isStageReady());
    s.stage->reply(proto::cmd::loaduserok, QStringLiteral("other"));
    QVERIFY(!s.form->isStageReady());
    s.stage->reply(proto::cmd::loaduserok, proto::ok);
    QVERIFY(s.form->isStageReady());
    QCOMPARE(s.state(), int(draw::Idle));
}

void TestDrawScreen::wholeDrawStoresTheWinnersOnLanding() {
    Screen s;
    QVERIFY(s.started);
    const QList<int> ids =
        s.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李四"), QStringLiteral("王五"),
                           QStringLiteral("赵六"), QStringLiteral("钱七")});
    const int award = s.folder.addAward(QStringLiteral("一等奖"), 4, 2);
    s.open();
    s.stage->clear();

    s.click(proto::btn::btnStart);
    QCOMPARE(s.state(), int(draw::Running));
    QCOMPARE(s.stage->names(), (QStringList{proto::vbndluck, proto::vbLoadBlock, proto::changBtn}));
    QVERIFY(s.stage->values(proto::vbLoadBlock).first().endsWith(proto::blockEnd));
    const QStringList items = s.stage->values(proto::vbndluck).first().split('|');
    QCOMPARE(items.size(), 3);  // luckType and two winners
    QVERIFY(!s.form->tmAS().isActive());
    s.stage->reply(proto::cmd::blocksetok, proto::ok);
    QVERIFY(s.form->tmAS().isActive());
    QCOMPARE(s.form->tmAS().interval(), 200);
    QTRY_COMPARE(s.stage->values(proto::vbPushLst).size(), 1);
    s.form->tmAS_Timer();
    QCOMPARE(s.stage->values(proto::vbPushLst).size(), 2);
    QCOMPARE(s.stage->values(proto::vbPushLst).last().count('$'), 2);

    // Nothing is stored before the landing.
    appState().isTimeProtect = 0;
    s.click(proto::btn::btnStop);
    QCOMPARE(s.stage->values(proto::changBtn).last(), proto::buttons::stop);
    QVERIFY(!s.form->tmAS().isActive());
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=3")), 0);

    s.stage->reply(proto::cmd::stoplucksub);
    QCOMPARE(s.state(), int(draw::Result));
    QVERIFY(s.session().canCancel);
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=3")), 2);
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(DISTINCT UpdateTime) FROM UserList WHERE "
                                    "UserStatus=3")),
             1);
    for (const QString &item : items.mid(1)) {
        const int id = item.section('$', 1).toInt();
        QVERIFY(ids.contains(id));
        QCOMPARE(s.cell(id, QStringLiteral("JxID")).toString(), store::awardMarker(award));
    }
    QVERIFY(s.stage->values(proto::updateLuckLst).last().startsWith(QStringLiteral("恭喜∶")));
    QCOMPARE(appState().selJxid, qint16(award));
    // A second stoplucksub (a double stop on the stage) stores nothing more.
    s.stage->reply(proto::cmd::stoplucksub);
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=3")), 2);
}

void TestDrawScreen::cancelRestoresAndLeavesTheResultState() {
    Screen s;
    QVERIFY(s.started);
    s.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李四"), QStringLiteral("王五")});
    s.folder.addAward(QStringLiteral("一等奖"), 3, 3);
    appState().isTimeProtect = 0;
    s.open();
    s.drawOnce();
    const QString batch = s.session().lastWinnerIds;
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=3")), 1);

    s.ui->answers.enqueue(true);
    s.click(proto::btn::btnCancel);
    QCOMPARE(s.ui->last().text, QStringLiteral("确定要撤消此次产生的中奖结果么?"));
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=3")), 0);
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE JxID > ''")), 0);
    // Cancel keeps the result state on purpose; the Cancel key then does nothing.
    QCOMPARE(s.state(), int(draw::Result));
    QVERIFY(!s.session().canCancel);
    s.ui->clear();
    s.form->SubKey(s.form->keyCodes().value(3));
    QVERIFY(s.ui->records.isEmpty());
    QCOMPARE(s.session().lastWinnerIds, batch);
}

void TestDrawScreen::startOnAFullAwardMovesOn() {
    Screen s;
    QVERIFY(s.started);
    s.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李四"), QStringLiteral("王五")});
    const int first = s.folder.addAward(QStringLiteral("三等奖"), 1, 1);
    const int second = s.folder.addAward(QStringLiteral("二等奖"), 1, 1);
    appState().isTimeProtect = 0;
    s.open();
    QCOMPARE(s.session().award.id, first);
    s.drawOnce();
    s.stage->clear();
    s.click(proto::btn::btnStart);
    QCOMPARE(s.session().award.id, second);
    QCOMPARE(s.state(), int(draw::Idle));
    QVERIFY(s.stage->values(proto::vbndluck).isEmpty());
    QCOMPARE(s.stage->values(proto::changBtn).first(), proto::buttons::defulte);
    s.click(proto::btn::btnStart);
    QCOMPARE(s.state(), int(draw::Running));
    QCOMPARE(s.stage->values(proto::vbndluck).size(), 1);

    // Every award full: the screen asks for the end-of-draw prompt.
    s.click(proto::btn::btnStop);
    s.stage->reply(proto::cmd::stoplucksub);
    QVERIFY(s.dialogs.isEmpty());
    s.click(proto::btn::btnStart);
    QCOMPARE(s.dialogs, QStringList{QStringLiteral("askend")});
}

void TestDrawScreen::nobodyLeftWarnsAndStaysIdle() {
    Screen s;
    QVERIFY(s.started);
    s.folder.addAward(QStringLiteral("一等奖"), 2, 1);
    s.open();
    s.stage->clear();
    s.click(proto::btn::btnStart);
    QCOMPARE(s.stage->values(proto::vbndluck), QStringList{QStringLiteral("0|")});
    QVERIFY(s.stage->values(proto::vbLoadBlock).isEmpty());
    QCOMPARE(s.stage->values(proto::changBtn), QStringList{proto::buttons::defulte});
    QCOMPARE(s.state(), int(draw::Idle));
    QCOMPARE(s.ui->last().text, QStringLiteral("已无符合条件的抽奖名单可抽取!"));
    QCOMPARE(s.ui->last().title, QStringLiteral("警告"));
    QVERIFY(!s.form->tmDelay().isActive());
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
    s.form->SubKey(s.form->keyCodes().value(2));
    QCOMPARE(s.stage->lines(), QStringList{QStringLiteral("vbCallAsClear=yes")});
    s.click(proto::btn::btnClear);
    QCOMPARE(s.stage->values(proto::changBtn).last(), proto::buttons::clear);
    QCOMPARE(s.stage->values(proto::vbShowBlock), QStringList{proto::falseText});
    QVERIFY(!s.form->tmAS().isActive());
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
    s.form->SubKey(27);
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
    s.form->SubKey(27);
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
    QVERIFY(s.form->tmDelay().isActive());
    QCOMPARE(s.form->tmDelay().interval(), 1000);
    s.form->tmDelay_Timer();
    s.form->tmDelay_Timer();  // second 2
    s.stage->clear();
    s.click(proto::btn::btnStop);
    QVERIFY(s.stage->calls.isEmpty());
    QVERIFY(s.form->picInfo()->isVisible());
    QCOMPARE(s.form->labP()->text(), QStringLiteral("您按键太快了(1秒!!"));
    QVERIFY(s.form->tmAS().isActive());
    QCOMPARE(s.state(), int(draw::Running));

    s.form->tmDelay_Timer();  // second 3: the count is down
    QCOMPARE(s.form->labP()->text(), QStringLiteral("您按键太快了(0秒!!"));
    QVERIFY(s.form->tmDelay().isActive());
    s.form->tmDelay_Timer();  // the guard ends a tick later
    QVERIFY(!s.form->tmDelay().isActive());
    QVERIFY(!s.form->picInfo()->isVisible());
    s.click(proto::btn::btnStop);
    QCOMPARE(s.stage->values(proto::changBtn), QStringList{proto::buttons::stop});
}

void TestDrawScreen::keyClasses_data() {
    QTest::addColumn<QList<int>>("codes");
    QTest::addColumn<int>("code");
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("expected");
    const QList<int> shared{32, 32, 67, 90, 79, 80, 76, 77, 70};
    const QList<int> apart{13, 32, 67, 90, 79, 80, 76, 77, 70};
    QTest::newRow("shared key starts when idle") << shared << 32 << 0 << "starKey";
    QTest::newRow("shared key stops while running") << shared << 32 << 1 << "stopKey";
    QTest::newRow("shared key in the parade") << shared << 32 << 3 << "starKey";
    QTest::newRow("own stop key") << apart << 32 << 0 << "stopKey";
    QTest::newRow("own start key while running") << apart << 13 << 1 << "starKey";
    QTest::newRow("clear") << apart << 67 << 1 << "clearKey";
    QTest::newRow("screen") << apart << 70 << 0 << "screenKey";
    QTest::newRow("unknown") << apart << 81 << 0 << "";
    QTest::newRow("a key the stage cannot name")
        << QList<int>{32, 32, -1, -1, 79, 80, 76, 77, 70} << -1 << 2 << "";
    QTest::newRow("the first of the seven wins")
        << QList<int>{13, 32, 67, 67, 79, 80, 76, 77, 70} << 67 << 2 << "clearKey";
    QTest::newRow("a later row replaces start")
        << QList<int>{13, 32, 67, 90, 13, 80, 76, 77, 70} << 13 << 0 << "lstOutKey";
}

void TestDrawScreen::keyClasses() {
    QFETCH(QList<int>, codes);
    QFETCH(int, code);
    QFETCH(int, state);
    QFETCH(QString, expected);
    QCOMPARE(draw::keyClass(code, codes, state), expected);
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
    s.folder.addAward(QStringLiteral("三等奖"), 1, 1);
    s.folder.addAward(QStringLiteral("二等奖"), 1, 1);
    s.open();
    s.form->SubKey(39);  // to the second award, so that left has somewhere to go
    s.session().drawState = state;
    s.stage->clear();
    s.form->SubKey(row < 0 ? -row : s.form->keyCodes().value(row));
    const QStringList lines = s.stage->lines();
    if (sent.isEmpty())
        QVERIFY2(lines.isEmpty(), qPrintable(names(lines)));
    else
        QVERIFY2(!lines.isEmpty() && lines.first().startsWith(sent), qPrintable(names(lines)));
}

void TestDrawScreen::paradeRunsOnAndNumbersGoOn() {
    Screen s;
    QVERIFY(s.started);
    s.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李|四"), QStringLiteral("王五")});
    s.folder.addAward(QStringLiteral("二等奖"), 2, 1, 1, 0, 0, 0, QStringLiteral("手机"));
    s.folder.addAward(QStringLiteral("一等奖"), 1, 1, 1, 0, 0, 0, QStringLiteral("电脑"));
    appState().isTimeProtect = 0;
    s.open();
    s.drawOnce();
    s.stage->clear();

    s.click(proto::btn::btnPlayLuck);
    QCOMPARE(s.state(), int(draw::Playback));
    QCOMPARE(s.stage->names(), (QStringList{proto::changBtn, proto::vbLuckPlay}));
    const QStringList first = s.stage->values(proto::vbLuckPlay).first().split('|');
    QCOMPARE(first.size(), 38);
    QCOMPARE(first[34], QStringLiteral("二等奖  奖品∶手机"));
    QCOMPARE(first[35], QStringLiteral("1"));
    QCOMPARE(first[36].count('$'), 2);
    QVERIFY(first[37].endsWith('$'));
    QVERIFY(!first[36].contains(QStringLiteral("李|四")));

    s.stage->reply(proto::cmd::callLoadPlay);
    const QStringList second = s.stage->values(proto::vbLuckPlay1).first().split('|');
    QCOMPARE(second[34], QStringLiteral("一等奖  奖品∶电脑"));
    QCOMPARE(second[35], QStringLiteral("2"));
    QCOMPARE(second[36], QString());  // an award without winners is shown too
    s.stage->reply(proto::cmd::callLoadPlay);
    QCOMPARE(s.stage->values(proto::vbStartScroll), QStringList{proto::yes});

    // Start and stop keys pause and resume the list.
    s.form->SubKey(s.form->keyCodes().value(0));
    s.form->SubKey(s.form->keyCodes().value(1));
    QCOMPARE(s.stage->values(proto::vbStartScroll), (QStringList{"yes", "no", "yes"}));
    s.stage->reply(proto::cmd::luckplaystop);
    QCOMPARE(s.state(), int(draw::Idle));

    // A second parade goes on counting.
    s.stage->clear();
    s.click(proto::btn::btnPlayLuck);
    QCOMPARE(s.stage->values(proto::vbLuckPlay).first().split('|')[35], QStringLiteral("3"));
    QCOMPARE(s.form->playIndex(), 4);
}

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
    QCOMPARE(s.form->currentMusic(), bg);
    QVERIFY(s.form->tmM().isActive());
    FakeMediaBackend *player = s.media->last();
    QVERIFY(player);
    player->position = 12400;
    s.form->tmM_Timer();

    s.click(proto::btn::btnStart);
    QCOMPARE(s.form->currentMusic(), start);
    s.form->tmM_Timer();
    player->finish();  // the start music loops
    s.form->tmM_Timer();
    QCOMPARE(s.form->currentMusic(), start);
    QCOMPARE(player->current, MediaBackend::State::Playing);

    s.stage->reply(proto::cmd::blocksetok, proto::ok);
    s.click(proto::btn::btnStop);
    s.stage->reply(proto::cmd::stoplucksub);
    QCOMPARE(s.form->currentMusic(), win);
    player->finish();  // the chime ends: back to the background where it was left
    s.form->tmM_Timer();
    QCOMPARE(s.form->currentMusic(), bg);
    QCOMPARE(player->position, qint64(12000));

    // The stage's sound buttons: On mutes, Off restores.
    s.click(proto::btn::btnSoundOn);
    QCOMPARE(s.form->volume(), MusicPlayer::kSilence);
    QCOMPARE(player->volume, 0.0f);
    s.stage->clear();
    s.form->SubKey(s.form->keyCodes().value(7));
    QCOMPARE(s.stage->lines(), QStringList{QStringLiteral("vbCallMusic=no")});
    s.click(proto::btn::btnSoundOff);
    QCOMPARE(s.form->volume(), 0);

    // Minimised, the music pauses and its supervision stops; restored, both go on.
    s.form->show();
    s.form->setWindowState(Qt::WindowMinimized);
    QCOMPARE(player->current, MediaBackend::State::Paused);
    QVERIFY(!s.form->tmM().isActive());
    s.form->setWindowState(Qt::WindowNoState);
    QCOMPARE(player->current, MediaBackend::State::Playing);
    QVERIFY(s.form->tmM().isActive());
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
    QCOMPARE(s.dialogs, (QStringList{QStringLiteral("giveup"), QStringLiteral("addaward")}));
    s.stage->clear();
    s.click(proto::btn::btnScreenN);
    QVERIFY(!s.form->isFullScreenMode());
    QCOMPARE(s.form->size(), QSize(appState().bgW, appState().bgH));
    QCOMPARE(s.stage->values(proto::vbSetScale).last(),
             design::stageScalePayload(appState().bgW, appState().bgH, false, appState().bgW,
                                       appState().bgH));
    s.click(proto::btn::btnScreenF);
    QVERIFY(s.form->isFullScreenMode());
    QVERIFY(s.form->windowState() & Qt::WindowFullScreen);
    s.stage->reply(proto::cmd::msg, QStringLiteral("trace"));
    QCOMPARE(s.form->Text1()->toPlainText(), QStringLiteral("trace\n"));
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
    QVERIFY(s.dialogs.isEmpty());
    QVERIFY(s.ui->records.isEmpty());
    s.stage->reply(proto::cmd::stoplucksub);
    QCOMPARE(s.state(), int(draw::Result));
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=3")), 2);
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
    QCOMPARE(s.form->currentMusic(), win);
    // Cancelled: the chime gives way to the background at once.
    s.ui->answers.enqueue(true);
    s.click(proto::btn::btnCancel);
    QCOMPARE(s.form->currentMusic(), bg);
    s.drawOnce();
    QCOMPARE(s.form->currentMusic(), win);
    // Nobody left: the background is back before the warning.
    QString playingAtWarning;
    s.ui->onMessage = [&](const ScriptedUi::Record &) {
        playingAtWarning = s.form->currentMusic();
    };
    s.click(proto::btn::btnStart);
    QCOMPARE(s.ui->last().text, QStringLiteral("已无符合条件的抽奖名单可抽取!"));
    QCOMPARE(playingAtWarning, bg);
}

QTEST_MAIN(TestDrawScreen)
#include "tst_drawscreen.moc"
