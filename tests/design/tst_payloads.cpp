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

// Rows as the table holds them, column by column.
ObjRow textRow(const QString &name = QStringLiteral("txt_jpinfo")) {
    return {name, proto::vbAddTxt, 3,       0,      12.5,  40,           0,      0,
            90,   "0x112233",      30,      2,      "box", "名额 $1 名", "黑体", "0xFF0000",
            24,   "true",          "false", "true", 1.5,   "center",     1,      1,
            "",   "false"};
}

ObjRow scrollRow() {
    return {"scr_luckls", proto::vbAddStxt, 3,       2,      12.5,  40,       280,    20,
            90,           "0x112233",       30,      2,      "box", "欢迎",   "黑体", "0xFF0000",
            24,           "true",           "false", "true", 1.5,   "center", 1,      4,
            "",           "false"};
}

ObjRow pictureRow(const QString &name, const QString &type, const QString &path) {
    return {name,       type,    5, 0,       10, 20,     200,        150,   80,
            "0xFFFFFF", 50,      5, "round", "", "宋体", "0x000000", 16,    "false",
            "false",    "false", 0, "left",  0,  1,      path,       "true"};
}

ObjRow boxRow() {
    ObjRow r = pictureRow("ssm_vornex", proto::vbAddJpBox, QString());
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
    if (kind == QLatin1String("img"))  // an old row's backslashes
        return pictureRow("img_0123456789abcdef", proto::vbAddImg, "skin\\sPhoto\\imgk3j9x0aa.png");
    if (kind == QLatin1String("swf"))
        return pictureRow("swf_0123456789abcdef", proto::vbAddSwf, "skin/sPhoto/swfp0p0p0p0.gif");
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

// One case of objectCommand: the command sent as "name=value", or "" for nothing sent.
void objectRow(const char *tag, const char *kind, Reader reader, const QString &command,
               bool filesExist = true, ObjectForm form = ObjectForm::Load) {
    QTest::newRow(tag) << kind << reader << form << filesExist << command;
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
        QTest::addColumn<QString>("command");
        const Reader console = Reader::Console, designer = Reader::Designer, draw = Reader::Draw;
        const QString txt = "vbAddTxt=false|txt_jpinfo|3|12.5|40|90|0x112233|30|2|box|";
        objectRow("txt console: 17 fields", "txt", console,
                  txt + "名额 $1 名|黑体|0xFF0000|24|true|false|true");
        objectRow("subtitle in the designer", "fbt", designer,
                  "vbAddTxt=false|txt_fbt|3|12.5|40|90|0x112233|30|2|box|幸运大抽奖|黑体|"
                  "0xFF0000|24|true|false|true|1.5|center|1");
        const QString scr =
            "vbAddStxt=false|scr_luckls|3|2|12.5|40|280|20|0x112233|30|box|2|"
            "欢迎|90|黑体|0xFF0000|24|true|false|true|4";
        objectRow("scr console: 21 fields", "scr", console, scr);
        objectRow("scr draw: 22 fields", "scr", draw, scr + "|1");
        const QString img = "vbAddImg=false|img_0123456789abcdef|5|10|20|";
        const QString block = img + "128|128|80|true|/opt/q/skin/Src/block.png";
        objectRow("img console, no file test", "img", console, img + "200|150|80|true|" + kPicture,
                  false);
        objectRow("img designer", "img", designer, img + "200|150|80|true|" + kPicture);
        objectRow("img designer, file gone", "img", designer, block, false);
        objectRow("img draw, file gone", "img", draw, block, false);
        objectRow("swf console: not shown", "swf", console, "");
        objectRow("swf designer", "swf", designer,
                  "vbAddSwf=false|swf_0123456789abcdef|5|10|20|200|150|" + kAnimation);
        objectRow("swf designer, file gone", "swf", designer,
                  "vbAddSwf=false|swf_0123456789abcdef|5|10|20|128|128|/opt/q/skin/Src/block.png",
                  false);
        const QString box = "vbAddJpBox=ssm_vornex|360|168|616|500|7";
        const QString font = "|黑体|0xB0171F|30|true|false|false";
        objectRow("ssm console: long", "ssm", console, box + font);
        objectRow("ssm designer load: short", "ssm", designer, box);
        objectRow("ssm designer refresh: long", "ssm", designer, box + font, true,
                  ObjectForm::Refresh);
        objectRow("ssm draw: short", "ssm", draw, box);
        objectRow("unknown type: nothing", "odd", designer, "");
    }

    void objectPayloads() {
        QFETCH(QString, kind);
        QFETCH(Reader, reader);
        QFETCH(ObjectForm, form);
        QFETCH(bool, filesExist);
        const StageCommand sent = objectCommand(rowOf(kind), context(reader, filesExist), form);
        QTEST(sent.isEmpty() ? QString() : sent.name + '=' + sent.value, "command");
        QCOMPARE(sent.usedBlockPicture, sent.value.contains(QLatin1String("block.png")));
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
        BgRow bg{true, 1024, 768, QStringLiteral("0x9E1B22"), QString()};
        QCOMPARE(backgroundColorPayload(bg, context(Reader::Designer)),
                 QStringLiteral("1024|768|0x9E1B22"));
        QCOMPARE(backgroundColorPayload(bg, context(Reader::Draw)),
                 QStringLiteral("1024|768|0x9E1B22|10"));
        // An empty picture still sends the folder itself, except in the console.
        QCOMPARE(backgroundImagePayload(bg, kApp), QStringLiteral("/opt/q/|1024|768"));
        const auto sends = [&bg](Reader reader, bool filesExist = true) {
            return sendsBackgroundImage(bg, context(reader, filesExist));
        };
        QCOMPARE(
            (QList<bool>{sends(Reader::Designer), sends(Reader::Draw), sends(Reader::Console)}),
            (QList<bool>{true, true, false}));
        bg.BgImg = QStringLiteral("skin\\sPhoto\\imgk3j9x0aa.png");
        QCOMPARE(backgroundImagePayload(bg, kApp), kPicture + QStringLiteral("|1024|768"));
        QCOMPARE((QList<bool>{sends(Reader::Console), sends(Reader::Console, false)}),
                 (QList<bool>{true, false}));

        QCOMPARE(selectObjectPayload(QStringLiteral("txt_zbt")), QStringLiteral("txt_zbt|true"));
        QCOMPARE(swapDepthPayload(QStringLiteral("a"), QStringLiteral("b")), QStringLiteral("a|b"));
        QCOMPARE((QStringList{startScrollPayload(true, 5, Reader::Designer),
                              startScrollPayload(false, 5, Reader::Designer),
                              startScrollPayload(true, 5, Reader::Draw)}),
                 (QStringList{"yes|5", "no|5", "yes"}));
    }

    void previewFit_data() {
        QTest::addColumn<QSize>("page");
        QTest::addColumn<QString>("fit");  // width x height, scale
        QTest::newRow("4:3") << QSize(1024, 768) << "236x177 23.046875";
        QTest::newRow("the box itself") << QSize(257, 177) << "257x177 100";
        QTest::newRow("16:9") << QSize(1920, 1080) << "257x144 13.3854166666667";
        QTest::newRow("tall") << QSize(600, 1200) << "88x177 14.75";
        QTest::newRow("no page") << QSize(0, 0) << "257x177 100";
    }

    void previewFit() {
        QFETCH(QSize, page);
        const PreviewFit fit = design::previewFit(page.width(), page.height());
        QTEST(QStringLiteral("%1x%2 ").arg(fit.width).arg(fit.height) + previewScalePayload(fit),
              "fit");
    }

    void stageScale_data() {
        QTest::addColumn<QSize>("host");
        QTest::addColumn<bool>("fullScreen");
        QTest::addColumn<QString>("value");
        QTest::newRow("full screen 1920x1080") << QSize(1920, 1080) << true << "187.5|140.625";
        QTest::newRow("window keeps the frame") << QSize(1026, 798) << false << "100|100";
        QTest::newRow("window, odd size") << QSize(802, 630) << false << "78.125|78.125";
    }

    void stageScale() {
        QFETCH(QSize, host);
        QFETCH(bool, fullScreen);
        QTEST(stageScalePayload(host.width(), host.height(), fullScreen, 1024, 768), "value");
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
        QCOMPARE(
            (QList<int>{playbackSide(50, 1023), playbackSide(50, 1021), playbackSide(70, 1024)}),
            (QList<int>{512, 510, 717}));
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
