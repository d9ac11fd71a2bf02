#include <QtTest>

#include "stagerig.h"

namespace {

// The console's reFrashObj for the 16:9 factory template: the 17-field texts, the 21-field
// scrolling text, the long draw-area form, pictures without the file test.
void pushConsoleTemplate(StageRig &rig) {
    rig.send(proto::ClsPage, proto::yes);
    rig.send(proto::setAsBgColor, QStringLiteral("1920|1080|0x9E1B22"));
    rig.send(proto::setAsBgImg, StageRig::appPath() + QStringLiteral("|1920|1080"));
    rig.send(proto::vbAddTxt,
             QStringLiteral("false|txt_zbt|1|660|40|100|0x000000|0|0|box|2026年度盛典|黑体|"
                            "0xFFE08A|80|true|false|false"));
    rig.send(proto::vbAddTxt,
             QStringLiteral("false|txt_jxname|3|96|250|100|0x000000|0|0|box|$Name2|黑体|"
                            "0xFFE08A|56|true|false|false"));
    rig.send(proto::vbAddImg,
             QStringLiteral("false|img_jpimgs|6|96|450|420|315|100|true|") + StageRig::appPath());
    rig.send(proto::vbAddJpBox,
             QStringLiteral("ssm_vornex|600|240|1224|700|7|黑体|0xB0171F|44|true|false|false"));
    rig.send(proto::vbAddStxt,
             QStringLiteral("false|scr_luckls|8|0|96|990|1728|56|0x000000|30|round|8||100|黑体|"
                            "0xFFE08A|28|false|false|false|3"));
}

}  // namespace

// The console's preview and the picture viewer, in the widgets the dialogs embed.
class TestSmallMovies : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void previewTakesTheShortForms() {
        StageRig rig(QStringLiteral("preview.qml"), QmlStage::Host::Automatic, QSize(480, 270));
        QVERIFY2(rig.loaded, qPrintable(rig.stage.errors().join('\n')));
        QVERIFY(!rig.stage.usesWindow());
        QVERIFY(rig.waitFor(proto::cmd::asload));
        QCOMPARE(rig.count(proto::cmd::startskin), 0);
        rig.send(proto::getIsOk, proto::yes);
        QCOMPARE(rig.count(proto::cmd::startskin), 1);
        pushConsoleTemplate(rig);
        rig.send(proto::vbSetScale, QStringLiteral("13.3854166666667"));
        QCOMPARE(rig.call("stageScale").toList(),
                 (QVariantList{0.133854166666667, 0.133854166666667}));
        QStringList names = rig.callList("objectNames");
        names.sort();
        QCOMPARE(names,
                 (QStringList{"img_jpimgs", "scr_luckls", "ssm_vornex", "txt_jxname", "txt_zbt"}));
        // Without an award the preview shows sample values, never a raw variable.
        QCOMPARE(rig.text(QStringLiteral("txt_jxname")), QStringLiteral("一等奖"));
        QCOMPARE(rig.text(QStringLiteral("txt_zbt")), QStringLiteral("2026年度盛典"));
        // A second ClsPage empties the page.
        rig.send(proto::ClsPage, proto::yes);
        QTRY_VERIFY(rig.callList("objectNames").isEmpty());
    }

    void viewerShowsAndClears() {
        QTemporaryDir dir;
        makePortraits(dir.path(), {7}, QSize(120, 160));
        const QString photo = dir.path() + QStringLiteral("/u7.jpg");
        StageRig rig(QStringLiteral("viewer.qml"), QmlStage::Host::Automatic, QSize(189, 152));
        QVERIFY2(rig.loaded, qPrintable(rig.stage.errors().join('\n')));
        QVERIFY(rig.waitFor(proto::cmd::loadok));
        QCOMPARE(rig.args(proto::cmd::loadok), QStringList{proto::yes});
        rig.send(proto::vbAddImg, photo);
        QTRY_COMPARE(rig.call("shownPath").toString(), photo);
        rig.send(proto::vbAddImg, QString());
        QTRY_COMPARE(rig.call("shownPath").toString(), QString());
        // The ten-field form of a page picture works too.
        rig.send(proto::vbAddImg, QStringLiteral("false|img_x|1|0|0|0|0|100|false|") + photo);
        QTRY_COMPARE(rig.call("shownPath").toString(), photo);
    }
};

QTEST_MAIN(TestSmallMovies)
#include "tst_smallmovies.moc"
