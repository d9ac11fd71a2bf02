#include <QtTest>

#include "design/payloads.h"
#include "stage/protocol.h"

using namespace design;

Q_DECLARE_METATYPE(design::Reader)
Q_DECLARE_METATYPE(design::ObjectForm)

namespace {

const QString kApp = QStringLiteral("/opt/q/");
const QString kPicture = QStringLiteral("/opt/q/skin/sPhoto/imgk3j9x0aa.png");
const QString kAnimation = QStringLiteral("/opt/q/skin/sPhoto/swfp0p0p0p0.gif");

PayloadContext context(Reader reader, bool filesExist = true) {
    PayloadContext c;
    c.reader = reader;
    c.appPath = kApp;
    c.title1 = QStringLiteral("2026年度盛典");
    c.title2 = QStringLiteral("幸运大抽奖");
    c.luckDelay = 10;
    c.fileExists = [filesExist](const QString &path) {
        return filesExist && (path == kPicture || path == kAnimation);
    };
    return c;
}

ObjRow textRow(const QString &name = QStringLiteral("txt_jpinfo")) {
    ObjRow r;
    r.ObjName = name;
    r.ObjType = proto::vbAddTxt;
    r.ObjDepth = 3;
    r.ObjX = 12.5;
    r.ObjY = 40;
    r.ObjAlpha = 90;
    r.bgColor = QStringLiteral("0x112233");
    r.bgAlpha = 30;
    r.borderNum = 2;
    r.borderType = QStringLiteral("box");
    r.fTxt = QStringLiteral("名额 $1 名");
    r.fFont = QStringLiteral("黑体");
    r.fColor = QStringLiteral("0xFF0000");
    r.fSize = 24;
    r.fBold = QStringLiteral("true");
    r.fUnderline = QStringLiteral("true");
    r.lineHeight = 1.5;
    r.txtAlign = QStringLiteral("center");
    r.isShadown = 1;
    return r;
}

ObjRow scrollRow() {
    ObjRow r = textRow(QStringLiteral("scr_luckls"));
    r.ObjType = proto::vbAddStxt;
    r.ObjDirection = 2;
    r.ObjW = 280;
    r.ObjH = 20;
    r.fTxt = QStringLiteral("欢迎");
    r.SrcV = 4;
    return r;
}

ObjRow imageRow() {
    ObjRow r;
    r.ObjName = QStringLiteral("img_0123456789abcdef");
    r.ObjType = proto::vbAddImg;
    r.ObjDepth = 5;
    r.ObjX = 10;
    r.ObjY = 20;
    r.ObjW = 200;
    r.ObjH = 150;
    r.ObjAlpha = 80;
    r.isImgFilter = QStringLiteral("true");
    r.ImgPath = QStringLiteral("skin\\sPhoto\\imgk3j9x0aa.png");  // an old row's backslashes
    return r;
}

ObjRow animationRow() {
    ObjRow r = imageRow();
    r.ObjName = QStringLiteral("swf_0123456789abcdef");
    r.ObjType = proto::vbAddSwf;
    r.ImgPath = QStringLiteral("skin/sPhoto/swfp0p0p0p0.gif");
    return r;
}

ObjRow boxRow() {
    ObjRow r;
    r.ObjName = QStringLiteral("ssm_vornex");
    r.ObjType = proto::vbAddJpBox;
    r.ObjDepth = 7;
    r.ObjX = 360;
    r.ObjY = 168;
    r.ObjW = 616;
    r.ObjH = 500;
    r.fFont = QStringLiteral("黑体");
    r.fColor = QStringLiteral("0xB0171F");
    r.fSize = 30;
    r.fBold = QStringLiteral("true");
    return r;
}

ObjRow rowOf(const QString &kind) {
    if (kind == QLatin1String("txt")) return textRow();
    if (kind == QLatin1String("fbt")) return textRow(QStringLiteral("txt_fbt"));
    if (kind == QLatin1String("scr")) return scrollRow();
    if (kind == QLatin1String("img")) return imageRow();
    if (kind == QLatin1String("swf")) return animationRow();
    if (kind == QLatin1String("ssm")) return boxRow();
    ObjRow odd = textRow();
    odd.ObjType = QStringLiteral("vbAddMovie");
    return odd;
}

PlayRow titleRow() {
    PlayRow r = defaultPlayRow(rows::playTitle);
    r.found = true;
    r.BgColor = QStringLiteral("0x7A0010");
    r.BgAlpha = 85;
    r.PaddingNum = 16;
    r.boxW = 80;
    r.boxH = 76;
    r.Speed = 5;
    r.ColNum = 4;
    r.fColor = QStringLiteral("0xFFE08A");
    r.fSize = 40;
    return r;
}

PlayRow nameRow() {
    PlayRow r = defaultPlayRow(rows::playName);
    r.found = true;
    r.BgColor = QStringLiteral("0x000000");
    r.BgAlpha = 25;
    r.DotX = 24;
    r.DotY = 14;
    r.PaddingNum = 10;
    r.fColor = QStringLiteral("0xFFFFFF");
    r.fSize = 26;
    return r;
}

}  // namespace

// The stage reads these values field by field: each case compares one whole value as text.
class TestPayloads : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void objectPayloads_data() {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<Reader>("reader");
        QTest::addColumn<ObjectForm>("form");
        QTest::addColumn<bool>("filesExist");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("value");

        const ObjectForm load = ObjectForm::Load;
        const QString txt = QStringLiteral(
            "false|txt_jpinfo|3|12.5|40|90|0x112233|30|2|box|名额 $1 "
            "名|黑体|0xFF0000|24|true|false|"
            "true");
        QTest::newRow("txt console: 17 fields")
            << "txt" << Reader::Console << load << true << proto::vbAddTxt << txt;
        QTest::newRow("subtitle in the designer")
            << "fbt" << Reader::Designer << load << true << proto::vbAddTxt
            << "false|txt_fbt|3|12.5|40|90|0x112233|30|2|box|幸运大抽奖|黑体|0xFF0000|24|true|"
               "false|"
               "true|1.5|center|1";

        const QString scr = QStringLiteral(
            "false|scr_luckls|3|2|12.5|40|280|20|0x112233|30|box|2|欢迎|90|黑体|0xFF0000|24|true|"
            "false|true|4");
        QTest::newRow("scr console: 21 fields")
            << "scr" << Reader::Console << load << true << proto::vbAddStxt << scr;
        QTest::newRow("scr draw: 22 fields")
            << "scr" << Reader::Draw << load << true << proto::vbAddStxt << scr + "|1";

        const QString img = QStringLiteral("false|img_0123456789abcdef|5|10|20|");
        QTest::newRow("img console, no file test")
            << "img" << Reader::Console << load << false << proto::vbAddImg
            << img + "200|150|80|true|" + kPicture;
        QTest::newRow("img designer") << "img" << Reader::Designer << load << true
                                      << proto::vbAddImg << img + "200|150|80|true|" + kPicture;
        QTest::newRow("img designer, file gone")
            << "img" << Reader::Designer << load << false << proto::vbAddImg
            << img + "128|128|80|true|/opt/q/skin/Src/block.png";
        QTest::newRow("img draw, file gone")
            << "img" << Reader::Draw << load << false << proto::vbAddImg
            << img + "128|128|80|true|/opt/q/skin/Src/block.png";

        const QString swf = QStringLiteral("false|swf_0123456789abcdef|5|10|20|");
        QTest::newRow("swf console: not shown")
            << "swf" << Reader::Console << load << true << QString() << QString();
        QTest::newRow("swf designer") << "swf" << Reader::Designer << load << true
                                      << proto::vbAddSwf << swf + "200|150|" + kAnimation;

        const QString box = QStringLiteral("ssm_vornex|360|168|616|500|7");
        const QString font = QStringLiteral("|黑体|0xB0171F|30|true|false|false");
        QTest::newRow("ssm console: long")
            << "ssm" << Reader::Console << load << true << proto::vbAddJpBox << box + font;
        QTest::newRow("ssm designer load: short")
            << "ssm" << Reader::Designer << load << true << proto::vbAddJpBox << box;
        QTest::newRow("ssm designer refresh: long")
            << "ssm" << Reader::Designer << ObjectForm::Refresh << true << proto::vbAddJpBox
            << box + font;
        QTest::newRow("ssm draw: short")
            << "ssm" << Reader::Draw << load << true << proto::vbAddJpBox << box;
        QTest::newRow("unknown type: nothing")
            << "odd" << Reader::Designer << load << true << QString() << QString();
    }

    void objectPayloads() {
        QFETCH(QString, kind);
        QFETCH(Reader, reader);
        QFETCH(ObjectForm, form);
        QFETCH(bool, filesExist);
        const StageCommand command = objectCommand(rowOf(kind), context(reader, filesExist), form);
        QTEST(command.name, "name");
        QTEST(command.value, "value");
        QCOMPARE(command.usedBlockPicture, command.value.contains(QLatin1String("block.png")));
    }

    void separatorsNeverReachTheStageRaw() {
        ObjRow row = textRow();
        row.fTxt = QStringLiteral("A|B");
        row.fFont = QStringLiteral("Font|X");
        const QString value = textPayload(row, context(Reader::Draw));
        QCOMPARE(value.count(QLatin1Char('|')), 19);
        QVERIFY(value.contains(QStringLiteral("|AｌB|FontｌX|")));

        PayloadContext titled = context(Reader::Console);
        titled.title1 = QStringLiteral("年会|2026");
        QCOMPARE(textPayload(textRow(QStringLiteral("txt_zbt")), titled).section('|', 10, 10),
                 QStringLiteral("年会ｌ2026"));

        ObjRow scroll = scrollRow();
        scroll.fTxt = QStringLiteral("||");
        QCOMPARE(scrollTextPayload(scroll, context(Reader::Designer)).count(QLatin1Char('|')), 21);

        QCOMPARE(awardPanelPayload(
                     {QStringLiteral("一|等奖"), 3, 1, 3, QStringLiteral("电脑|套装"), kApp}),
                 QStringLiteral("一ｌ等奖|3|1|3|电脑ｌ套装|/opt/q/"));
        QCOMPARE(safeName(QStringLiteral("张|三$")), QStringLiteral("张‖三＄"));
    }

    void pageValues() {
        BgRow bg;
        bg.found = true;
        bg.BgW = 1024;
        bg.BgH = 768;
        bg.BgColor = QStringLiteral("0x9E1B22");
        QCOMPARE(backgroundColorPayload(bg, context(Reader::Designer)),
                 QStringLiteral("1024|768|0x9E1B22"));
        QCOMPARE(backgroundColorPayload(bg, context(Reader::Draw)),
                 QStringLiteral("1024|768|0x9E1B22|10"));
        // An empty picture still sends the folder itself, except in the console.
        QCOMPARE(backgroundImagePayload(bg, kApp), QStringLiteral("/opt/q/|1024|768"));
        QVERIFY(sendsBackgroundImage(bg, context(Reader::Designer)));
        QVERIFY(sendsBackgroundImage(bg, context(Reader::Draw)));
        QVERIFY(!sendsBackgroundImage(bg, context(Reader::Console)));
        bg.BgImg = QStringLiteral("skin\\sPhoto\\imgk3j9x0aa.png");
        QCOMPARE(backgroundImagePayload(bg, kApp), kPicture + QStringLiteral("|1024|768"));
        QVERIFY(sendsBackgroundImage(bg, context(Reader::Console)));
        QVERIFY(!sendsBackgroundImage(bg, context(Reader::Console, false)));

        QCOMPARE(selectObjectPayload(QStringLiteral("txt_zbt")), QStringLiteral("txt_zbt|true"));
        QCOMPARE(swapDepthPayload(QStringLiteral("a"), QStringLiteral("b")), QStringLiteral("a|b"));
        QCOMPARE(startScrollPayload(true, 5, Reader::Designer), QStringLiteral("yes|5"));
        QCOMPARE(startScrollPayload(false, 5, Reader::Designer), QStringLiteral("no|5"));
        QCOMPARE(startScrollPayload(true, 5, Reader::Draw), QStringLiteral("yes"));
    }

    void previewFit_data() {
        QTest::addColumn<int>("bgW");
        QTest::addColumn<int>("bgH");
        QTest::addColumn<int>("boxW");
        QTest::addColumn<int>("boxH");
        QTest::addColumn<QString>("scale");
        QTest::newRow("4:3") << 1024 << 768 << 236 << 177 << "23.046875";
        QTest::newRow("the box itself") << 257 << 177 << 257 << 177 << "100";
        QTest::newRow("16:9") << 1920 << 1080 << 257 << 144 << "13.3854166666667";
        QTest::newRow("tall") << 600 << 1200 << 88 << 177 << "14.75";
        QTest::newRow("no page") << 0 << 0 << 257 << 177 << "100";
    }

    void previewFit() {
        QFETCH(int, bgW);
        QFETCH(int, bgH);
        const PreviewFit fit = design::previewFit(bgW, bgH);
        QTEST(fit.width, "boxW");
        QTEST(fit.height, "boxH");
        QTEST(previewScalePayload(fit), "scale");
    }

    void stageScale_data() {
        QTest::addColumn<int>("hostW");
        QTest::addColumn<int>("hostH");
        QTest::addColumn<bool>("fullScreen");
        QTest::addColumn<QString>("value");
        QTest::newRow("full screen 1920x1080") << 1920 << 1080 << true << "187.5|140.625";
        QTest::newRow("window keeps the frame") << 1026 << 798 << false << "100|100";
        QTest::newRow("window, odd size") << 802 << 630 << false << "78.125|78.125";
    }

    void stageScale() {
        QFETCH(int, hostW);
        QFETCH(int, hostH);
        QFETCH(bool, fullScreen);
        QTEST(stageScalePayload(hostW, hostH, fullScreen, 1024, 768), "value");
    }

    void addPayloads() {
        const QString name = QStringLiteral("txt_0123456789abcdef");
        QCOMPARE(addTextPayload(name, 9, 50, 70),
                 "false|" + name +
                     "|9|50|70|100|0xFFFFFF|50|5|round|新增普通文字，双击文字可以进行编辑|宋体|"
                     "0x000000|16|true|false|false");
        QCOMPARE(addScrollTextPayload(name, 9, 50, 70),
                 "true|" + name +
                     "|9|0|50|70|280|20|0xFFFFFF|50|round|5|请双击输入滚动文字信息...|100|宋体|"
                     "0x000000|14|false|false|false|1");
        QCOMPARE(addImagePayload(name, 9, 50, 70, QStringLiteral("/opt/q/skin\\sPhoto\\a.png")),
                 "false|" + name + "|9|50|70|0|0|100|false|/opt/q/skin/sPhoto/a.png");
        QCOMPARE(addAnimationPayload(name, 9, 50, 70, kAnimation),
                 "false|" + name + "|9|50|70|0|0|" + kAnimation);
    }

    void loadBlock() {
        LoadBlockValues values{QStringLiteral("欧阳|娜娜"), 200, 180, 2, 5};
        PlayRow block = defaultPlayRow(rows::blockValue);
        block.found = true;
        block.BgType = QStringLiteral("box");
        block.BgColor = QStringLiteral("0xFFF4D6");
        block.BgAlpha = 92;
        block.DotX = 14;
        block.DotY = 12;
        block.PaddingNum = 10;
        block.fSize = 30;
        QCOMPARE(loadBlockPayload(values, block),
                 QStringLiteral("欧阳‖娜娜|200|180|2|5|box|0xFFF4D6|92|14|12|10|"
                                "黑体|0xFF0000|30|100|true|false|false|center|1|s|"));
        values.sample = proto::demoText;
        QCOMPARE(
            loadBlockPayload(values, defaultPlayRow(rows::blockValue)),
            QStringLiteral("演示文字|200|180||黑体|0xFF0000|26|100|true|false|false|center|1|s|"));
    }

    void drawAreaPreview() {
        // Texts as typed: an emptied dot box sends an empty field, the demo text goes trimmed.
        DrawAreaPreviewValues values{200, 200, 1,  "6", 1,          "0x123456",
                                     40,  "5", "", "8", "诸葛孔明", "  演示数据 "};
        const QString style = QStringLiteral("黑体|0xFF0000|26|100|true|false|false|center|1");
        QCOMPARE(drawAreaPreviewPayload(defaultPlayRow(rows::blockValue), values),
                 style + "|200|200|1|6|round|0x123456|40|5||8|诸葛孔明|演示数据");
        values.bgTypeIndex = 0;
        QCOMPARE(
            drawAreaPreviewPayload(defaultPlayRow(rows::blockValue), values).section('|', 13, 13),
            QStringLiteral("box"));
    }

    void playback() {
        const QString titleStyle = QStringLiteral("黑体|0xFFE08A|40|100|true|false|false|center|1");
        const QString nameStyle = QStringLiteral("黑体|0xFFFFFF|26|100|false|false|false|center|1");
        // The draw screen: 0 in field 4, luckType in field 5.
        QCOMPARE(playbackStylePayload(drawPlayback(titleRow(), nameRow(), 1024, 768, 2, 200, 180)),
                 "819|584|5|0|2|200|180|4|0x7A0010|85|16|0x000000|25|10|24|14|" + titleStyle + "|" +
                     nameStyle);
        // Missing rows: the defaults of both rows.
        QCOMPARE(playbackStylePayload(drawPlayback(defaultPlayRow(rows::playTitle),
                                                   defaultPlayRow(rows::playName), 1024, 768, 0,
                                                   200, 200)),
                 QStringLiteral("717|461|1|0|0|200|200|2|0x00FE00|80|5|0xFFFFFF|50|5|1|1|"
                                "黑体|0xFF0000|26|100|true|false|false|center|1|"
                                "黑体|0xFF0000|16|100|false|false|false|center|1"));
        // The designer: the panel's values, titleType and playType in fields 4 and 5.
        const PlayPanelValues panel{100, 50,  7,          3,  1,   2,   "0x111111",
                                    60,  "4", "0x222222", 70, "3", "2", "1"};
        QCOMPARE(playbackStylePayload(
                     designerPlayback(titleRow(), nameRow(), panel, 1024, 768, 200, 180)),
                 "1024|384|7|1|2|200|180|3|0x111111|60|4|0x222222|70|3|2|1|" + titleStyle + "|" +
                     nameStyle);
        // Halves go to the even neighbour.
        QCOMPARE(playbackSide(50, 1023), 512);
        QCOMPARE(playbackSide(50, 1021), 510);
        QCOMPARE(playbackSide(70, 1024), 717);
    }

    void luckPlayValues() {
        const QString style = QStringLiteral("S");
        QCOMPARE(luckPlayPayload(style, QStringLiteral("一等奖"), QStringLiteral("电视"), 0, 1,
                                 {QStringLiteral("张三"), QStringLiteral("李|四")}, {4, 9}),
                 QStringLiteral("S|一等奖|1|张三$李‖四$|4$9$"));
        QCOMPARE(
            luckPlayPayload(style, QStringLiteral("一等奖"), QStringLiteral("电视"), 1, 2, {}, {}),
            QStringLiteral("S|一等奖  奖品∶电视|2||"));
    }
};

QTEST_GUILESS_MAIN(TestPayloads)
#include "tst_payloads.moc"
