#include <QtTest>

#include "stagerig.h"

// The draw screen's movie, driven through the host's whole conversation.
class TestStageMovie : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startUpDialogue() {
        QTemporaryDir dir;
        const QString prize = dir.filePath(QStringLiteral("prize.png"));
        QImage(84, 63, QImage::Format_ARGB32).save(prize);
        StageRig rig(QStringLiteral("stage.qml"));
        QVERIFY2(rig.loaded, qPrintable(rig.stage.errors().join('\n')));
        QVERIFY(rig.stage.usesWindow());
        QVERIFY(rig.startUp(QString(), prize));
        QCOMPARE(rig.commands,
                 (QList<QPair<QString, QString>>{{proto::cmd::loadok, QString()},
                                                 {proto::cmd::asok, QString()},
                                                 {proto::cmd::loaduserok, proto::ok}}));
        QTRY_VERIFY(rig.info(QStringLiteral("img_jpimgs")).value("ready").toBool());
    }

    void templateTextsFillTheAwardVariables() {
        StageRig rig(QStringLiteral("stage.qml"));
        QVERIFY(rig.startUp());
        const auto texts = [&rig] {
            return QStringList{rig.text("txt_jxname"), rig.text("txt_jpname"),
                               rig.text("txt_jpinfo"), rig.text("scr_luckls")};
        };
        QCOMPARE(texts(), (QStringList{"一等奖", "奖品：笔记本电脑", "名额 5 名，剩余 5 名",
                                       "当前奖项暂无获奖名单..."}));
        rig.loadAward(QStringLiteral("特等奖＄"), 1, 0, QStringLiteral("汽车"));
        rig.send(proto::updateLuckLst, QStringLiteral("恭喜∶李‖四   获得特等奖"));
        QCOMPARE(texts(), (QStringList{"特等奖＄", "奖品：汽车", "名额 1 名，剩余 0 名",
                                       "恭喜∶李‖四   获得特等奖"}));
    }

    void titlesStayCentred_data() {
        QTest::addColumn<int>("placedX");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("align");
        QTest::addColumn<bool>("centred");
        const QString longTitle = QStringLiteral("二〇二六年度集团新春联欢晚会暨年终表彰盛典");
        QTest::newRow("long title") << 660 << longTitle << "center" << true;
        QTest::newRow("short title across the middle")
            << 900 << QStringLiteral("年会") << "center" << true;
        QTest::newRow("left-aligned") << 660 << longTitle << "left" << false;
        QTest::newRow("placed beside the middle")
            << 100 << QStringLiteral("年会") << "center" << false;
    }

    void titlesStayCentred() {
        QFETCH(int, placedX);
        QFETCH(QString, title);
        QFETCH(QString, align);
        QFETCH(bool, centred);
        StageRig rig(QStringLiteral("stage.qml"));
        QVERIFY(rig.startUp());
        rig.send(proto::vbAddTxt,
                 QStringLiteral("false|txt_zbt|1|%1|40|100|0x000000|0|0|box|%2|黑体|"
                                "0xFFE08A|80|true|false|false|0|%3|1")
                     .arg(placedX)
                     .arg(title, align));
        const QVariantMap info = rig.info(QStringLiteral("txt_zbt"));
        const double x = info.value("x").toDouble();
        if (centred)
            QVERIFY(qAbs(x + info.value("width").toDouble() / 2 - 960) <= 1);
        else
            QCOMPARE(x, double(placedX));
    }

    void clearHidesTheCells() {
        StageRig rig(QStringLiteral("stage.qml"));
        QVERIFY(rig.startUp());
        QVERIFY(rig.beginDraw(0, {QStringLiteral("张伟")}, sampleNames()));
        QVERIFY(rig.call("blockShown").toBool());
        rig.send(proto::changBtn, proto::buttons::clear);
        QVERIFY(!rig.call("blockShown").toBool());
        QTest::qWait(700);
        QCOMPARE(rig.count(proto::cmd::stoplucksub), 0);
        // vbShowBlock "false" hides landed cells too.
        QVERIFY(rig.beginDraw(0, {QStringLiteral("张伟")}, sampleNames()));
        rig.send(proto::changBtn, proto::buttons::stop);
        QVERIFY(rig.waitFor(proto::cmd::stoplucksub, 8000));
        QVERIFY(rig.call("blockShown").toBool());
        rig.send(proto::vbShowBlock, proto::falseText);
        QVERIFY(!rig.call("blockShown").toBool());
    }

    // The host waits for blocksetok and stoplucksub with no time-out: a template without its draw
    // area, more cells than winners, or a second stop must never leave it waiting or answer twice.
    void theHostIsAlwaysAnswered() {
        StageRig rig(QStringLiteral("stage.qml"));
        QVERIFY(rig.startUp());
        rig.send(proto::ClsPage, proto::yes);  // the page loses its draw area
        QVERIFY(rig.beginDraw(0, {QStringLiteral("张伟"), QStringLiteral("王芳")}, sampleNames()));
        QCOMPARE(rig.count(proto::cmd::blocksetok), 1);
        QCOMPARE(rig.callList("cellNames").size(), 2);
        rig.send(proto::changBtn, proto::buttons::stop);
        rig.send(proto::changBtn, proto::buttons::stop);
        QVERIFY(rig.waitFor(proto::cmd::stoplucksub, 8000));
        // Three cells for two winners: the spare lands on nothing.
        rig.send(proto::vbndluck,
                 StageRig::items(0, {QStringLiteral("李‖四"), QStringLiteral("赵磊")}));
        rig.send(proto::vbLoadBlock, StageRig::blockStyle(0, 3));
        rig.send(proto::changBtn, proto::buttons::start);
        rig.send(proto::changBtn, proto::buttons::stop);
        QVERIFY(rig.waitFor(proto::cmd::stoplucksub, 8000, 2));
        QCOMPARE(rig.callList("cellNames"),
                 (QStringList{QStringLiteral("李‖四"), QStringLiteral("赵磊"), QString()}));
        QTest::qWait(300);
        QCOMPARE(rig.count(proto::cmd::stoplucksub), 2);
    }

    void scrollingTextMovesItsWay_data() {
        QTest::addColumn<int>("direction");
        QTest::addColumn<int>("speed");
        QTest::addColumn<int>("dx");  // sign of the move: -1, 0, 1
        QTest::addColumn<int>("dy");
        QTest::newRow("right to left") << 0 << 10 << -1 << 0;
        QTest::newRow("left to right") << 1 << 10 << 1 << 0;
        QTest::newRow("bottom to top") << 2 << 10 << 0 << -1;
        QTest::newRow("speed 0 stands") << 0 << 0 << 0 << 0;
    }

    void scrollingTextMovesItsWay() {
        QFETCH(int, direction);
        QFETCH(int, speed);
        QFETCH(int, dx);
        QFETCH(int, dy);
        StageRig rig(QStringLiteral("stage.qml"));
        QVERIFY(rig.startUp());
        // 22 fields, the last the shadow switch; a name with "‖" in the text.
        rig.send(proto::vbAddStxt, QStringLiteral("false|scr_abcdefghijklmnop|9|%1|100|600|800|60|"
                                                  "0xFFFFFF|50|round|10|恭喜李‖四 $Name2|80|黑体|"
                                                  "0x000000|24|true|false|false|%2|1")
                                       .arg(direction)
                                       .arg(speed));
        const QString name = QStringLiteral("scr_abcdefghijklmnop");
        QCOMPARE(rig.text(name), QStringLiteral("恭喜李‖四 一等奖"));
        const QVariantMap before = rig.info(name);
        QCOMPARE((QVariantList{before["opacity"], before["width"]}), (QVariantList{0.8, 800.0}));
        const auto moved = [&](const char *key) {
            const double step = rig.info(name).value(key).toDouble() - before.value(key).toDouble();
            return step > 1 ? 1 : step < -1 ? -1 : 0;
        };
        if (dx == 0 && dy == 0) {
            QTest::qWait(400);
        } else {
            QTRY_VERIFY(moved("textX") != 0 || moved("textY") != 0);
        }
        QCOMPARE(moved("textX"), dx);
        QCOMPARE(moved("textY"), dy);
    }

    void picturesAndAnimations() {
        QTemporaryDir dir;
        makePortraits(dir.path(), {1}, QSize(300, 200));
        const QString picture = dir.path() + QStringLiteral("/u1.jpg");
        StageRig rig(QStringLiteral("stage.qml"));
        QVERIFY(rig.startUp());
        // Width and height 0: the picture's own size.
        rig.send(proto::vbAddImg,
                 QStringLiteral("false|img_abcdefghijklmnop|10|50|60|0|0|40|true|") + picture);
        QTRY_VERIFY(rig.info(QStringLiteral("img_abcdefghijklmnop")).value("ready").toBool());
        QVariantMap info = rig.info(QStringLiteral("img_abcdefghijklmnop"));
        QCOMPARE((QVariantList{info["width"], info["height"], info["opacity"], info["z"]}),
                 (QVariantList{300.0, 200.0, 0.4, 10.0}));
        // An animation the stage cannot play shows the block picture at 128 by 128.
        rig.send(proto::vbAddSwf, QStringLiteral("false|swf_abcdefghijklmnop|11|0|0|400|300|") +
                                      dir.path() + QStringLiteral("/intro.swf"));
        info = rig.info(QStringLiteral("swf_abcdefghijklmnop"));
        QVERIFY(info.value("failed").toBool());
        QCOMPARE(info.value("width").toDouble(), 128.0);
        // The same name again replaces the object.
        rig.send(proto::vbAddSwf,
                 QStringLiteral("false|swf_abcdefghijklmnop|11|0|0|400|300|") + picture + ".png");
        QImage(40, 30, QImage::Format_ARGB32).save(picture + ".png");
        rig.send(proto::vbAddSwf,
                 QStringLiteral("false|swf_abcdefghijklmnop|11|0|0|0|0|") + picture + ".png");
        QTRY_VERIFY(!rig.info(QStringLiteral("swf_abcdefghijklmnop")).value("failed").toBool());
        QCOMPARE(rig.callList("objectNames").count(QStringLiteral("swf_abcdefghijklmnop")), 1);
    }

    void scaleFollowsTheHost() {
        StageRig rig(QStringLiteral("stage.qml"), QmlStage::Host::Automatic, QSize(960, 540));
        QVERIFY(rig.startUp());
        // Until the host says otherwise the page fits the window.
        QCOMPARE(rig.call("stageScale").toList().value(0).toDouble(), 0.5);
        rig.send(proto::vbSetScale, QStringLiteral("49.84375|47.12963"));
        QCOMPARE(rig.call("stageScale").toList(), (QVariantList{0.4984375, 0.4712963}));
    }
};

QTEST_MAIN(TestStageMovie)
#include "tst_stagemovie.moc"
