#include <QtTest>

#include "stage/photoprovider.h"
#include "stagerig.h"

namespace {

QPoint buttonCentre(StageRig &rig, const QString &name) {
    QQuickItem *item = findStageItem(rig.stage.root(), name);
    if (!item) return {};
    for (QQuickItem *up = item; up; up = up->parentItem())
        up->ensurePolished();
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2)).toPoint();
}

bool barAwake(StageRig &rig) {
    return rig.stage.root()->property("barAwake").toBool();
}

// The movie's one-shot timer that puts the bar to rest, known by its interval.
QObject *restTimer(StageRig &rig, int interval) {
    for (QObject *object : rig.stage.root()->findChildren<QObject *>())
        if (object->property("interval").toInt() == interval &&
            object->property("repeat").isValid())
            return object;
    return nullptr;
}

}  // namespace

// The draw movie's buttons, keys, calls from the program, picture mode and the winner parade.
class TestStageControls : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(m_photos.isValid()); }

    void everyButtonReportsItsName_data() {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QStringList>("buttons");
        QTest::newRow("idle") << proto::buttons::defulte
                              << QStringList{proto::btn::btnStart,   proto::btn::btnPre,
                                             proto::btn::btnNext,    proto::btn::btnAdd,
                                             proto::btn::btnGiveUp,  proto::btn::btnLstPrt,
                                             proto::btn::btnLstOut,  proto::btn::btnPlayLuck,
                                             proto::btn::btnSoundOn, proto::btn::btnSoundOff,
                                             proto::btn::btnScreenN, proto::btn::btnScreenF,
                                             proto::btn::btnExit};
        QTest::newRow("running") << proto::buttons::start
                                 << QStringList{proto::btn::btnStop, proto::btn::btnClear};
        QTest::newRow("result") << proto::buttons::stop << QStringList{proto::btn::btnCancel};
    }

    // Each button is clicked as the operator would; the sound and screen pairs swap on a press,
    // so the second of each pair is clicked after the first.
    void everyButtonReportsItsName() {
        QFETCH(QString, state);
        QFETCH(QStringList, buttons);
        StageRig rig(QStringLiteral("stage.qml"));
        QVERIFY(rig.startUp());
        rig.stage.root()->setProperty("restMs", 600000);
        rig.send(proto::changBtn, state);
        // After a stop the bar comes back only once the winners have landed.
        if (state == proto::buttons::stop) QVERIFY(rig.waitFor(proto::cmd::stoplucksub));
        QTRY_VERIFY(findStageItem(rig.stage.root(), buttons.first()));
        for (int i = 0; i < buttons.size(); ++i) {
            QVERIFY2(rig.click(buttons[i]), qPrintable(buttons[i] + " not on show"));
            QTRY_COMPARE(rig.args(proto::cmd::btnclick), buttons.mid(0, i + 1));
        }
        const QStringList shown = rig.callList("visibleButtons");
        QVERIFY(shown.contains(proto::btn::btnExit));
        if (state == proto::buttons::start) QVERIFY(!shown.contains(proto::btn::btnStart));
    }

    void programCallsPressTheButtons_data() {
        QTest::addColumn<QString>("variable");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("button");
        QTest::newRow("clear") << proto::vbCallAsClear << proto::yes << proto::btn::btnClear;
        QTest::newRow("play") << proto::vbCallPlay << proto::yes << proto::btn::btnPlayLuck;
        QTest::newRow("mute") << proto::vbCallMusic << proto::yes << proto::btn::btnSoundOn;
        QTest::newRow("unmute") << proto::vbCallMusic << proto::no << proto::btn::btnSoundOff;
        QTest::newRow("window") << proto::vbCallScreen << proto::no << proto::btn::btnScreenN;
        QTest::newRow("full screen") << proto::vbCallScreen << proto::yes << proto::btn::btnScreenF;
    }

    void programCallsPressTheButtons() {
        QFETCH(QString, variable);
        QFETCH(QString, value);
        QFETCH(QString, button);
        StageRig rig(QStringLiteral("stage.qml"));
        QVERIFY(rig.startUp());
        rig.send(variable, value);
        QCOMPARE(rig.args(proto::cmd::btnclick), QStringList{button});
        // The pair shows its other half afterwards.
        const QStringList shown = rig.callList("visibleButtons");
        if (button == proto::btn::btnSoundOn) QVERIFY(shown.contains(proto::btn::btnSoundOff));
        if (button == proto::btn::btnScreenN) QVERIFY(shown.contains(proto::btn::btnScreenF));
    }

    // A draw by keys: one key, the space bar, both starts and stops; the key hint goes with the
    // first draw and the buttons that stay on the bar keep their places.
    void keysStartAndStopAndAreReported() {
        StageRig rig(QStringLiteral("stage.qml"));
        QVERIFY(rig.startUp());
        rig.stage.root()->setProperty("restMs", 600000);
        QCOMPARE(rig.call("keyHintShown").toString(),
                 QStringLiteral("按 空格键(Space) 开始抽奖，再按一次停止"));
        const auto places = [&rig] {
            QList<QPoint> centres;
            for (const QString &name :
                 {proto::btn::btnStart, proto::btn::btnPre, proto::btn::btnExit})
                centres << buttonCentre(rig, name);
            return centres;
        };
        const QList<QPoint> idle = places();
        rig.key(Qt::Key_Space);
        QCOMPARE(rig.args(proto::cmd::btnclick), QStringList{proto::btn::btnStart});
        QVERIFY(rig.beginDraw(0, {QStringLiteral("张伟")}, sampleNames()));
        QCOMPARE(buttonCentre(rig, proto::btn::btnStop), idle[0]);
        rig.key(Qt::Key_Space);
        QCOMPARE(rig.args(proto::cmd::btnclick),
                 (QStringList{proto::btn::btnStart, proto::btn::btnStop}));
        // While the cells land, the start key stays quiet and the bar offers nothing that would
        // leave the batch unstored.
        rig.send(proto::changBtn, proto::buttons::stop);
        rig.key(Qt::Key_Space);
        QCOMPARE(rig.count(proto::cmd::btnclick), 2);
        QCOMPARE(
            rig.callList("visibleButtons"),
            (QStringList{proto::btn::btnSoundOn, proto::btn::btnScreenN, proto::btn::btnExit}));
        QVERIFY(rig.waitFor(proto::cmd::stoplucksub, 8000));
        QTRY_VERIFY(rig.callList("visibleButtons").contains(proto::btn::btnCancel));
        QCOMPARE(places(), idle);
        rig.key(Qt::Key_Space);
        QCOMPARE(rig.count(proto::cmd::btnclick), 3);
        // Other keys are only reported, with the stored key numbers.
        rig.key(Qt::Key_C);
        rig.key(Qt::Key_5, Qt::KeypadModifier);
        QCOMPARE(rig.args(proto::cmd::callvbkeys),
                 (QStringList{"32", "32", "32", "32", "67", "101"}));
        QCOMPARE(rig.count(proto::cmd::btnclick), 3);
        rig.send(proto::changBtn, proto::buttons::defulte);
        QCOMPARE(rig.call("keyHintShown").toString(), QString());
    }

    void barStaysUnderThePointerAndTakesClicksWhenFaded() {
        StageRig rig(QStringLiteral("stage.qml"));
        QVERIFY(rig.startUp());
        // Before the first draw the hint names the keys the program sent.
        rig.send(proto::setAsKeys, QStringLiteral("13|46|67|90|79|80|76|77|70"));
        QCOMPARE(rig.call("keyHintShown").toString(),
                 QStringLiteral("按 回车键(Enter) 开始抽奖，按 Delete键 停止"));
        QQuickWindow *window = rig.stage.quickWindow();
        const QPoint start = buttonCentre(rig, proto::btn::btnStart);
        QVERIFY(!start.isNull());
        rig.stage.root()->setProperty("restMs", 150);
        QObject *rest = restTimer(rig, 150);
        QVERIFY(rest);
        QTest::mouseMove(window, start - QPoint(30, 0));
        QTest::mouseMove(window, start);
        // The rest time passes with the pointer on the bar: it stays.
        QVERIFY(rest->property("running").toBool());
        QTRY_VERIFY(!rest->property("running").toBool());
        QVERIFY(barAwake(rig));
        QTest::mouseMove(window, QPoint(400, 300));
        QTest::mouseMove(window, QPoint(404, 303));
        QTRY_VERIFY_WITH_TIMEOUT(!barAwake(rig), 3000);
        // A move anywhere wakes it; left alone it rests again.
        QTest::mouseMove(window, QPoint(420, 310));
        QTRY_VERIFY(barAwake(rig));
        QTRY_VERIFY_WITH_TIMEOUT(!barAwake(rig), 3000);
        // The operator clicks where the faded button is: the click counts.
        QTest::mouseClick(window, Qt::LeftButton, {}, start);
        QTRY_COMPARE(rig.args(proto::cmd::btnclick), QStringList{proto::btn::btnStart});
    }

    void pictureModeShowsEachParticipantsPhoto() {
        QList<int> ids;
        for (int i = 1; i <= 10; ++i)
            ids << i;
        for (int i = 100; i < 130; ++i)
            ids << i;
        const QString photos = makePortraits(m_photos.path(), ids);
        StageRig rig(QStringLiteral("stage.qml"));
        QVERIFY(rig.startUp(photos));
        const QStringList winners = sampleNames().mid(10, 10);
        QVERIFY(rig.beginDraw(2, winners, sampleNames()));
        // Rolling cells take only photos decoded already; the landing decodes what it needs.
        QVERIFY(!PhotoProvider::decodesOnRequest());
        rig.send(proto::changBtn, proto::buttons::stop);
        QVERIFY(PhotoProvider::decodesOnRequest());
        QVERIFY(rig.waitFor(proto::cmd::stoplucksub, 8000));
        QCOMPARE(rig.callList("cellNames"), winners);
        // Every landed cell shows the photo of its own participant.
        QStringList expected;
        for (int id = 1; id <= winners.size(); ++id)
            expected << m_photos.path() + QStringLiteral("/u%1.jpg").arg(id);
        QTRY_COMPARE(rig.callList("cellPhotos"), expected);
    }

    void paradeOfThreeAwardsThenAPausedOne() {
        StageRig rig(QStringLiteral("stage.qml"));
        QVERIFY(rig.startUp());
        rig.send(proto::changBtn, proto::buttons::luckplay);
        rig.send(proto::vbLuckPlay, paradeValue(QStringLiteral("一等奖  奖品∶笔记本电脑"), 1,
                                                sampleNames().mid(0, 5)));
        QVERIFY(rig.waitFor(proto::cmd::callLoadPlay, 8000, 1));
        rig.send(proto::vbLuckPlay1, paradeValue(QStringLiteral("二等奖"), 2, {}));
        QVERIFY(rig.waitFor(proto::cmd::callLoadPlay, 8000, 2));
        rig.send(proto::vbLuckPlay1,
                 paradeValue(QStringLiteral("三等奖"), 3, {QStringLiteral("李‖四")}));
        QVERIFY(rig.waitFor(proto::cmd::callLoadPlay, 8000, 3));
        QCOMPARE(rig.count(proto::cmd::luckplaystop), 0);
        rig.send(proto::vbStartScroll, proto::yes);  // nothing further
        QVERIFY(rig.waitFor(proto::cmd::luckplaystop, 3000));
        QTest::qWait(200);
        QCOMPARE(rig.count(proto::cmd::luckplaystop), 1);
        QCOMPARE(rig.count(proto::cmd::callLoadPlay), 3);
        QVERIFY(!rig.callList("visibleButtons").isEmpty());
        // The host found no award to show: it only switches the bar and asks to scroll.
        rig.send(proto::changBtn, proto::buttons::luckplay);
        rig.send(proto::vbStartScroll, proto::yes);
        QCOMPARE(rig.count(proto::cmd::luckplaystop), 2);
        // A slow parade pauses, goes on, and the playback key ends it at once.
        rig.send(proto::changBtn, proto::buttons::luckplay);
        rig.send(proto::vbLuckPlay,
                 paradeValue(QStringLiteral("一等奖  奖品∶笔记本电脑"), 1, sampleNames(), 5));
        const double top = rig.call("paradeOffset").toDouble();
        QTRY_VERIFY_WITH_TIMEOUT(rig.call("paradeOffset").toDouble() < top, 6000);
        rig.send(proto::vbStartScroll, proto::no);
        const double y = rig.call("paradeOffset").toDouble();
        QTest::qWait(400);
        QCOMPARE(rig.call("paradeOffset").toDouble(), y);
        rig.send(proto::vbStartScroll, proto::yes);
        QTRY_VERIFY(rig.call("paradeOffset").toDouble() < y);
        QCOMPARE(rig.count(proto::cmd::luckplaystop), 2);
        // The playback key in playback sends vbCallPlay "no".
        rig.send(proto::vbCallPlay, proto::no);
        QCOMPARE(rig.count(proto::cmd::luckplaystop), 3);
        QCOMPARE(rig.count(proto::cmd::btnclick), 0);
    }

private:
    QTemporaryDir m_photos;
};

QTEST_MAIN(TestStageControls)
#include "tst_stagecontrols.moc"
