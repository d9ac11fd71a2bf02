#include <QtTest>

#include "stagerig.h"

// The draw screen's movie, driven through the host's whole conversation.
class TestStageMovie : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startUpDialogue();
    void templateTextsFillTheAwardVariables();
    void wholeDrawLandsOnTheWinners_data();
    void wholeDrawLandsOnTheWinners();
    void clearHidesTheCells();
};

void TestStageMovie::startUpDialogue() {
    StageRig rig(QStringLiteral("stage.qml"));
    QVERIFY2(rig.loaded, qPrintable(rig.stage.errors().join('\n')));
    QVERIFY(rig.stage.usesWindow());
    QVERIFY(rig.startUp());
    QStringList order;
    for (const auto &c : rig.commands)
        order << c.first;
    QCOMPARE(order, (QStringList{proto::cmd::loadok, proto::cmd::asok, proto::cmd::loaduserok}));
    QCOMPARE(rig.args(proto::cmd::loaduserok), QStringList{proto::ok});
    QTest::qWait(200);
    QCOMPARE(rig.count(proto::cmd::loaduserok), 1);
    QVERIFY(rig.callList("objectNames").contains(QStringLiteral("ssm_vornex")));
    QVERIFY(rig.save(QStringLiteral("stage-idle.png")));
}

void TestStageMovie::templateTextsFillTheAwardVariables() {
    StageRig rig(QStringLiteral("stage.qml"));
    QVERIFY(rig.startUp());
    QCOMPARE(rig.call("objectText", QStringLiteral("txt_jxname")).toString(),
             QStringLiteral("一等奖"));
    QCOMPARE(rig.call("objectText", QStringLiteral("txt_jpname")).toString(),
             QStringLiteral("奖品：笔记本电脑"));
    QCOMPARE(rig.call("objectText", QStringLiteral("txt_jpinfo")).toString(),
             QStringLiteral("名额 5 名，剩余 5 名"));
    rig.loadAward(QStringLiteral("特等奖＄"), 1, 0, QStringLiteral("汽车"));
    QCOMPARE(rig.call("objectText", QStringLiteral("txt_jxname")).toString(),
             QStringLiteral("特等奖＄"));
    QCOMPARE(rig.call("objectText", QStringLiteral("txt_jpinfo")).toString(),
             QStringLiteral("名额 1 名，剩余 0 名"));
    rig.send(proto::updateLuckLst, QStringLiteral("恭喜∶李‖四   获得特等奖"));
    QCOMPARE(rig.call("objectText", QStringLiteral("scr_luckls")).toString(),
             QStringLiteral("恭喜∶李‖四   获得特等奖"));
}

void TestStageMovie::wholeDrawLandsOnTheWinners_data() {
    QTest::addColumn<int>("luckType");
    QTest::addColumn<QStringList>("winners");
    QTest::addColumn<QString>("shot");
    QTest::newRow("text, a name with the bar")
        << 0 << QStringList{QStringLiteral("李‖四"), QStringLiteral("张伟"), QStringLiteral("王芳")}
        << QString();
    QTest::newRow("one winner") << 0 << QStringList{QStringLiteral("欧阳明月")} << QString();
    QTest::newRow("batch of ten") << 0 << sampleNames().mid(0, 10)
                                  << QStringLiteral("stage-landed-10.png");
}

void TestStageMovie::wholeDrawLandsOnTheWinners() {
    QFETCH(int, luckType);
    QFETCH(QStringList, winners);
    QFETCH(QString, shot);
    StageRig rig(QStringLiteral("stage.qml"));
    QVERIFY(rig.startUp());
    QVERIFY(rig.beginDraw(luckType, winners, sampleNames()));
    QCOMPARE(rig.callList("cellNames").size(), winners.size());
    if (!shot.isEmpty()) QVERIFY(rig.save(QStringLiteral("stage-rolling.png")));
    rig.send(proto::changBtn, proto::buttons::stop);
    QVERIFY(rig.waitFor(proto::cmd::stoplucksub, 8000));
    QCOMPARE(rig.callList("cellNames"), winners);
    QTest::qWait(300);
    QCOMPARE(rig.count(proto::cmd::stoplucksub), 1);
    if (!shot.isEmpty()) QVERIFY(rig.save(shot));
}

void TestStageMovie::clearHidesTheCells() {
    StageRig rig(QStringLiteral("stage.qml"));
    QVERIFY(rig.startUp());
    QVERIFY(rig.beginDraw(0, {QStringLiteral("张伟")}, sampleNames()));
    rig.send(proto::changBtn, proto::buttons::clear);
    rig.send(proto::vbShowBlock, proto::falseText);
    QTest::qWait(700);
    QCOMPARE(rig.count(proto::cmd::stoplucksub), 0);
}

QTEST_MAIN(TestStageMovie)
#include "tst_stagemovie.moc"
