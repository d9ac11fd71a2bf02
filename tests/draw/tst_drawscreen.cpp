// The draw window on a recording stage: only what the window itself does (the stage's start-up
// dialogue, its timers, keys, buttons, music and dialogs). The rules of the draw are the engine's
// and are tested there.
#include <QLabel>
#include <QPagedPaintDevice>
#include <QSignalSpy>
#include <QtTest>

#include "core/appstate.h"
#include "core/store.h"
#include "draw/drawmusic.h"
#include "draw/engine.h"
#include "draw/view/drawwindow.h"
#include "results/view/printwinners.h"
#include "stage/protocol.h"
#include "support/fakemediabackend.h"
#include "support/filebytes.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

using namespace Qt::StringLiterals;

namespace {

// The draw window with its dialogs replaced by a note of the dialog it asked for.
class DialogFreeDrawWindow : public DrawWindow {
public:
    QStringList dialogs;

protected:
    void openGiveUp() override { dialogs << u"giveup"_s; }
    void openMakeUp() override { dialogs << u"addaward"_s; }
    void openEndOfDraw() override { dialogs << u"askend"_s; }
};

// A draw screen on a recording stage, brought through the stage's start-up dialogue.
struct Screen {
    TempProgramFolder folder;
    QList<QPointer<RecordingStage>> &stages = installRecordingStages();
    ScriptedUi *ui = installScriptedUi();
    FakeMedia *media = installFakeMedia();
    bool started = folder.start();
    std::unique_ptr<DialogFreeDrawWindow> form;
    RecordingStage *stage = nullptr;

    // `users` participants and one award of `slotCount` in `batches`, without the stop guard.
    void openWith(int users, int slotCount, int batches) {
        QStringList names;
        for (int i = 0; i < users; ++i)
            names << u"嘉宾%1"_s.arg(i + 1);
        folder.addUsers(names);
        folder.addAward(u"一等奖"_s, slotCount, batches);
        appState().isTimeProtect = 0;
        open();
    }
    void open() {
        form = std::make_unique<DialogFreeDrawWindow>();
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
        return store::scalar(folder.db(), u"SELECT KeyAsc FROM KeyBoard WHERE ID=?"_s, {row + 1})
            .toInt();
    }
    // A sound file in Music/ that the fake player knows the length of, switched on in config.ini.
    QString music(const QString &onKey, const QString &fileKey, const QString &name) {
        QDir().mkpath(folder.path(u"Music"_s));
        const QString path = writeFile(folder.path(u"Music/"_s + name), "x");
        media->lengths.insert(path, 60000);
        folder.setConfig(u"music"_s, onKey, u"1"_s);
        folder.setConfig(u"music"_s, fileKey, name);
        return path;
    }
    draw::DrawEngine &engine() { return *form->findChild<draw::DrawEngine *>(); }
    draw::DrawMusic &drawMusic() { return *form->findChild<draw::DrawMusic *>(); }
    QTimer *timer(const char *name) { return form->findChild<QTimer *>(QLatin1String(name)); }
    bool timerOn(const char *name) { return timer(name)->isActive(); }
    // A tick of one of the window's timers, without waiting for it.
    void tick(const char *slot) { QVERIFY(QMetaObject::invokeMethod(form.get(), slot)); }
    int state() { return engine().state(); }
    // Start, the stage's blocksetok, Stop and the landing.
    void drawOnce() {
        click(proto::btn::btnStart);
        stage->reply(proto::cmd::blocksetok, proto::ok);
        click(proto::btn::btnStop);
        stage->reply(proto::cmd::stoplucksub);
    }
    int stored() {
        return store::scalar(folder.db(), u"SELECT COUNT(*) FROM UserList WHERE JxID > ''"_s)
            .toInt();
    }
};

}  // namespace

class TestDrawScreen : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_screen = std::make_unique<Screen>();
        QVERIFY(m_screen->started);
    }
    void cleanup() { m_screen.reset(); }

    void startUpDialogue_data() {
        QTest::addColumn<int>("luckType");
        QTest::newRow("names") << 0;
        QTest::newRow("photos") << 1;
    }

    void startUpDialogue() {
        QFETCH(int, luckType);
        Screen &s = *m_screen;
        s.folder.addUsers({u"张三"_s, u"李四"_s});
        s.folder.addAward(u"一等奖"_s, 2, 1);
        appState().luckType = qint16(luckType);
        s.form = std::make_unique<DialogFreeDrawWindow>();
        QSignalSpy ready(s.form.get(), &DrawWindow::stageReady);
        s.stage = s.stages.last();
        QVERIFY(s.stage->movie.endsWith(u"sys/stage.qml"_s));
        s.stage->reply(proto::cmd::loadok);
        QCOMPARE(s.stage->lines(), QStringList{u"gotoPlay2=go"_s});
        s.stage->clear();
        s.stage->reply(proto::cmd::asok);
        const QStringList sent = s.stage->names();
        QCOMPARE(sent.contains(proto::loadAllUserPics), luckType > 0);
        // Background and keys first, then the page's objects, then the award with hidden cells.
        QVERIFY(sent.indexOf(proto::setAsBgColor) < sent.indexOf(proto::setAsKeys));
        QVERIFY(sent.indexOf(proto::setAsKeys) < sent.indexOf(proto::ClsPage));
        QVERIFY(sent.indexOf(proto::ClsPage) < sent.indexOf(proto::vbLoadJx));
        QCOMPARE(s.stage->values(proto::changBtn).last(), proto::buttons::defulte);
        QVERIFY(!s.stage->values(proto::vbSetScale).isEmpty());
        s.stage->reply(proto::cmd::loaduserok, u"other"_s);
        s.stage->reply(proto::cmd::loaduserok, proto::ok);
        QCOMPARE(ready.count(), 1);
    }

    // The scroll samples flow from the stage's blocksetok until Stop or Clear.
    void scrollTimerRunsWhileTheNamesRoll() {
        Screen &s = *m_screen;
        s.openWith(5, 4, 2);
        s.click(proto::btn::btnStart);
        QVERIFY(!s.timerOn("scrollSampleTimer"));
        s.stage->reply(proto::cmd::blocksetok, proto::ok);
        QCOMPARE(s.timer("scrollSampleTimer")->interval(), 200);
        QTRY_COMPARE(s.stage->values(proto::vbPushLst).size(), 1);
        s.click(proto::btn::btnStop);
        QVERIFY(!s.timerOn("scrollSampleTimer"));
        s.stage->reply(proto::cmd::stoplucksub);
        s.click(proto::btn::btnStart);
        s.stage->reply(proto::cmd::blocksetok, proto::ok);
        s.click(proto::btn::btnClear);
        QVERIFY(!s.timerOn("scrollSampleTimer"));
    }

    void exitQuestion() {
        Screen &s = *m_screen;
        s.openWith(1, 1, 1);
        s.form->show();
        QSignalSpy closed(s.form.get(), &DrawWindow::closed);
        s.click(proto::btn::btnStart);
        s.key(27);
        QVERIFY(s.ui->records.isEmpty());  // Esc is refused while the names roll
        // The stage's own exit button asks at any state; No keeps the screen.
        s.click(proto::btn::btnExit);
        QCOMPARE(s.ui->last().text, u"确认要退出当前抽奖界面么?"_s);
        QVERIFY(s.form->isVisible());
        s.click(proto::btn::btnClear);
        s.ui->answers.enqueue(true);
        s.key(27);
        QVERIFY(!s.form->isVisible());
        QCOMPARE(closed.count(), 1);
    }

    void stopGuardRefusesAnEarlyStop() {
        Screen &s = *m_screen;
        appState().timeProtectNum = 3;
        s.openWith(2, 2, 2);
        appState().isTimeProtect = 1;
        s.form->show();
        s.click(proto::btn::btnStart);
        s.stage->reply(proto::cmd::blocksetok, proto::ok);
        QCOMPARE(s.timer("stopGuardTimer")->interval(), 1000);
        s.tick("onStopGuardTick");
        s.tick("onStopGuardTick");  // second 2
        s.stage->clear();
        s.click(proto::btn::btnStop);
        QVERIFY(s.stage->calls.isEmpty());
        // What the operator sees of the guard, and whether it still counts.
        const auto guard = [&s] {
            auto *label = s.form->findChild<QLabel *>(u"stopGuardLabel"_s);  // on its panel
            return (label->isVisible() ? label->text() : u"hidden"_s) +
                   (s.timerOn("stopGuardTimer") ? u", counting"_s : QString());
        };
        QCOMPARE(guard(), u"您按键太快了(1秒!!, counting"_s);
        s.tick("onStopGuardTick");  // second 3: the count is down
        QCOMPARE(guard(), u"您按键太快了(0秒!!, counting"_s);
        s.tick("onStopGuardTick");  // the guard ends a tick later
        QCOMPARE(guard(), u"hidden"_s);
        s.click(proto::btn::btnStop);
        QCOMPARE(s.stage->values(proto::changBtn), QStringList{proto::buttons::stop});
    }

    void keyEffectsByState_data() {
        QTest::addColumn<int>("row");  // a KeyBoard row, or minus a fixed key (37 left, 39 right)
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("sent");
        QTest::newRow("clear idle") << 2 << 0 << QString();
        QTest::newRow("clear running") << 2 << 1 << u"vbCallAsClear=yes"_s;
        QTest::newRow("play idle") << 6 << 0 << u"vbCallPlay=yes"_s;
        QTest::newRow("play running") << 6 << 1 << QString();
        QTest::newRow("play in the parade") << 6 << 3 << u"vbCallPlay=no"_s;
        QTest::newRow("sound on") << 7 << 1 << u"vbCallMusic=yes"_s;
        QTest::newRow("screen, full") << 8 << 2 << u"vbCallScreen=no"_s;
        QTest::newRow("start in the parade pauses") << 0 << 3 << u"vbStartScroll=no"_s;
        QTest::newRow("start idle is the stage's") << 0 << 0 << QString();
        QTest::newRow("left idle") << -37 << 0 << u"vbLoadJx"_s;
        QTest::newRow("left running") << -37 << 1 << QString();
        QTest::newRow("right in the parade") << -39 << 3 << QString();
    }

    void keyEffectsByState() {
        QFETCH(int, row);
        QFETCH(int, state);
        QFETCH(QString, sent);
        Screen &s = *m_screen;
        s.folder.addAward(u"三等奖"_s, 1, 1);
        s.openWith(2, 1, 1);
        s.key(39);  // to the second award, so that left has somewhere to go
        if (state == draw::Running) s.engine().pressStart();
        if (state == draw::Result) s.engine().loadAward(s.engine().session().award.id, false);
        if (state == draw::Playback) s.engine().beginParade();
        QCOMPARE(s.state(), state);
        s.stage->clear();
        s.key(row < 0 ? -row : s.keyCode(row));
        const QString first = s.stage->lines().value(0);
        QVERIFY2(sent.isEmpty() ? first.isEmpty() : first.startsWith(sent), qPrintable(first));
    }

    // The parade runs as the stage asks for it; its payloads are the parade runner's.
    void paradeFollowsTheStage() {
        Screen &s = *m_screen;
        s.folder.addAward(u"二等奖"_s, 1, 1);
        s.openWith(2, 1, 1);
        s.drawOnce();
        s.stage->clear();
        s.click(proto::btn::btnPlayLuck);
        QCOMPARE(s.state(), int(draw::Playback));
        // The template's playback style leads the award's four fields.
        QCOMPARE(s.stage->values(proto::vbLuckPlay).first().split('|').size(), 38);
        s.stage->reply(proto::cmd::callLoadPlay);
        QCOMPARE(s.stage->values(proto::vbLuckPlay1).size(), 1);
        s.stage->reply(proto::cmd::luckplaystop);
        QCOMPARE(s.state(), int(draw::Idle));
    }

    // Each moment of the draw reaches the draw music; what it then plays is the music's own rule.
    void musicFollowsTheDraw() {
        Screen &s = *m_screen;
        const QString bg = s.music(u"isBgMusic"_s, u"BgMusicFile"_s, u"bg.mp3"_s);
        const QString start = s.music(u"isStartMusic"_s, u"StartMusicFile"_s, u"start.mp3"_s);
        const QString win = s.folder.path(u"sys/win.wav"_s);
        s.media->lengths.insert(win, 2000);
        s.folder.setConfig(u"music"_s, u"isLuckMusic"_s, u"1"_s);
        s.openWith(1, 2, 2);
        draw::DrawMusic &music = s.drawMusic();
        QCOMPARE(music.current(), bg);
        s.click(proto::btn::btnStart);
        QCOMPARE(music.current(), start);
        s.stage->reply(proto::cmd::blocksetok, proto::ok);
        s.click(proto::btn::btnStop);
        s.stage->reply(proto::cmd::stoplucksub);
        QCOMPARE(music.current(), win);
        // Cancelled: the chime gives way to the background at once.
        s.ui->answers.enqueue(true);
        s.click(proto::btn::btnCancel);
        QCOMPARE(music.current(), bg);
        s.drawOnce();
        // Nobody left: the background is back before the warning, and no stop guard starts.
        appState().isTimeProtect = 1;
        QString playingAtWarning;
        s.ui->onMessage = [&](const ScriptedUi::Record &) { playingAtWarning = music.current(); };
        s.click(proto::btn::btnStart);
        QCOMPARE(s.ui->last().text, u"已无符合条件的抽奖名单可抽取!"_s);
        QCOMPARE(playingAtWarning, bg);
        QVERIFY(!s.timerOn("stopGuardTimer"));

        // The stage's sound buttons: On mutes, Off restores; the sound key asks the stage.
        s.click(proto::btn::btnSoundOn);
        QCOMPARE(s.media->last()->volume, 0.0f);
        s.stage->clear();
        s.key(s.keyCode(7));
        QCOMPARE(s.stage->lines(), QStringList{u"vbCallMusic=no"_s});
        s.click(proto::btn::btnSoundOff);
        QVERIFY(!music.isMuted());
        // Minimised, the music pauses; restored, it goes on.
        s.form->show();
        s.form->setWindowState(Qt::WindowMinimized);
        QCOMPARE(s.media->last()->current, MediaBackend::State::Paused);
        s.form->setWindowState(Qt::WindowNoState);
        QCOMPARE(s.media->last()->current, MediaBackend::State::Playing);
    }

    void buttonsByState() {
        Screen &s = *m_screen;
        int printed = 0;
        setPrinterFactory([&printed]() -> std::unique_ptr<QPagedPaintDevice> {
            ++printed;
            return nullptr;
        });
        s.openWith(2, 2, 2);
        s.click(proto::btn::btnStart);
        s.click(proto::btn::btnLstPrt);  // nothing while the names roll
        QCOMPARE(printed, 0);
        s.click(proto::btn::btnClear);
        s.click(proto::btn::btnLstPrt);
        QCOMPARE(printed, 1);
        setPrinterFactory(nullptr);
        s.ui->clear();
        s.click(u"btnSomething"_s);
        QCOMPARE(s.ui->last().text, u"btnSomething返回系统消息"_s);
        s.click(proto::btn::btnGiveUp);
        s.click(proto::btn::btnAdd);
        QCOMPARE(s.form->dialogs, (QStringList{u"giveup"_s, u"addaward"_s}));
        s.click(proto::btn::btnScreenN);
        QVERIFY(!(s.form->windowState() & Qt::WindowFullScreen));
        // A window of the stage's shape that leaves the desktop around it, scaled down evenly.
        const QSize windowed = s.form->size();
        QVERIFY(s.form->screen()->availableGeometry().contains(s.form->geometry()));
        QCOMPARE(windowed.width() * appState().bgH, windowed.height() * appState().bgW);
        const QStringList scale = s.stage->values(proto::vbSetScale).last().split('|');
        QCOMPARE(scale, QStringList(2, scale.value(0)));
        QVERIFY(scale[0].toDouble() < 100);
        s.click(proto::btn::btnScreenF);
        QVERIFY(s.form->windowState() & Qt::WindowFullScreen);
    }

    void restButtonsWaitForTheLanding_data() {
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
    void restButtonsWaitForTheLanding() {
        QFETCH(QString, button);
        Screen &s = *m_screen;
        s.folder.addAward(u"二等奖"_s, 2, 1);
        s.openWith(3, 1, 1);
        const int award = s.engine().session().award.id;
        s.click(proto::btn::btnStart);
        s.stage->reply(proto::cmd::blocksetok, proto::ok);
        s.click(proto::btn::btnStop);
        s.click(button);
        QCOMPARE(s.state(), int(draw::Running));
        QCOMPARE(s.engine().session().award.id, award);
        QVERIFY(s.form->dialogs.isEmpty());
        QVERIFY(s.ui->records.isEmpty());
        s.stage->reply(proto::cmd::stoplucksub);
        QCOMPARE(s.stored(), 2);
    }

    void keyMashing_data() {
        QTest::addColumn<QString>("events");
        QTest::addColumn<int>("stored");
        // S start, b the stage's blocksetok, T stop, L the landing, C the cancel key answered Yes,
        // c the stage's cancel button answered Yes, X the clear key, K the stage's clear, P the
        // parade key, R the right key, E Esc answered No.
        QTest::newRow("everything twice") << u"S S b b T T L L"_s << 1;
        QTest::newRow("stop and landing before any start") << u"T L S b T L L"_s << 1;
        QTest::newRow("start while landing") << u"S b T S S L S b T L"_s << 2;
        QTest::newRow("cancel twice") << u"S b T L C C"_s << 0;
        QTest::newRow("cancel button then key") << u"S b T L c C"_s << 0;
        QTest::newRow("cancel while rolling") << u"S b C T C L"_s << 1;
        QTest::newRow("cancel while landing") << u"S b T C c L"_s << 1;
        QTest::newRow("landing after a clear") << u"S b X K T L"_s << 0;
        QTest::newRow("clear while landing") << u"S b T X K L"_s << 1;
        QTest::newRow("parade key while rolling") << u"S b P T P L"_s << 1;
        QTest::newRow("right key while landing") << u"S b T R L"_s << 1;
        QTest::newRow("cancel after moving on") << u"S b T L R C c"_s << 1;
        QTest::newRow("exit refused at each step") << u"E S E b T E L E C E"_s << 0;
        QTest::newRow("two batches, the second cancelled") << u"S b T L S b T L C S"_s << 1;
    }

    // Whatever order presses and stage answers come in, one press stores one batch, only at its
    // landing; a cancel takes back only the batch on show; never more than the award's places.
    void keyMashing() {
        QFETCH(QString, events);
        QFETCH(int, stored);
        Screen &s = *m_screen;
        s.folder.addAward(u"二等奖"_s, 3, 3);
        s.openWith(5, 3, 3);
        for (const QString &event : events.split(QLatin1Char(' '))) {
            const int before = s.stored();
            const QChar e = event.at(0);
            if (e == 'C' || e == 'c') s.ui->answers.enqueue(true);
            if (e == 'E') s.ui->answers.enqueue(false);
            if (e == 'S') s.click(proto::btn::btnStart);
            if (e == 'b') s.stage->reply(proto::cmd::blocksetok, proto::ok);
            if (e == 'T') s.click(proto::btn::btnStop);
            if (e == 'L') s.stage->reply(proto::cmd::stoplucksub);
            if (e == 'C') s.key(s.keyCode(3));
            if (e == 'c') s.click(proto::btn::btnCancel);
            if (e == 'X') s.key(s.keyCode(2));
            if (e == 'K') s.click(proto::btn::btnClear);
            if (e == 'P') s.key(s.keyCode(6));
            if (e == 'R') s.key(39);
            if (e == 'E') s.key(27);
            s.ui->answers.clear();
            // Only a landing adds one, only a cancel takes one back.
            const int change = s.stored() - before;
            const int allowed = e == 'L' ? 1 : (e == 'C' || e == 'c') ? -1 : 0;
            QVERIFY2(change == 0 || change == allowed, qPrintable(event));
            QVERIFY(s.stored() <= 3);
            // Landed or taken back, the names no longer roll.
            if (change != 0) QVERIFY(s.state() != draw::Running);
        }
        QCOMPARE(s.stored(), stored);
    }

private:
    std::unique_ptr<Screen> m_screen;
};

QTEST_MAIN(TestDrawScreen)
#include "tst_drawscreen.moc"
