#include <QDir>
#include <QtTest>

#include "core/appstate.h"
#include "core/store.h"
#include "design/stageload.h"
#include "stage/protocol.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

using namespace design;

Q_DECLARE_METATYPE(design::Reader)

namespace {

const QString k43 = QStringLiteral("skin/通用模板（4:3).jsk");

}  // namespace

// Templates read from .jsk files and pushed onto a recording stage, as the three screens do.
class TestStageLoad : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void factoryTemplatesUseNoDefault_data() {
        QTest::addColumn<QString>("file");
        TempProgramFolder folder;
        const QStringList files = QDir(folder.path(QStringLiteral("skin"))).entryList({"*.jsk"});
        QVERIFY(files.size() >= 2);
        for (const QString &file : files)
            QTest::newRow(qPrintable(file)) << QStringLiteral("skin/") + file;
    }

    void factoryTemplatesUseNoDefault() {
        QFETCH(QString, file);
        TempProgramFolder folder;
        QVERIFY(folder.start());
        TemplateData data;
        QString error;
        QVERIFY2(readTemplateFile(folder.path(file), &data, &error), qPrintable(error));
        QCOMPARE(data.defaultsUsed, QStringList());
        QCOMPARE(data.objects.size(), 8);
        for (const Reader reader : {Reader::Console, Reader::Designer, Reader::Draw}) {
            RecordingStage stage;
            const LoadReport report = fullLoad(stage, data, contextFor(reader));
            QCOMPARE(report.defaultsUsed, QStringList());
            // Every system object reaches the stage; only the empty prize picture is a block.
            QVERIFY(report.sentNames.contains(sysobj::ssm_vornex));
            QCOMPARE(report.blockPictures,
                     reader == Reader::Designer ? QStringList{sysobj::img_jpimgs} : QStringList());
            QCOMPARE(report.prizePictureHead.isEmpty(), reader != Reader::Draw);
        }
        // The connection was for this task only.
        QVERIFY(!QSqlDatabase::contains(QStringLiteral("quellio.template.read")));
    }

    void fullLoadConversation_data() {
        QTest::addColumn<Reader>("reader");
        QTest::addColumn<bool>("hidden");  // every object switched off
        QTest::addColumn<QString>("commands");
        // The page first, then the objects in depth order. The console sends the scale and no
        // empty background picture; the draw screen keeps the prize picture back; the designer
        // asks for the depths last. Each value's fields are the payloads' own business.
        const QString objects = QStringLiteral(" vbAddTxt vbAddTxt vbAddTxt vbAddTxt vbAddTxt ");
        const QString console = QStringLiteral("vbSetScale setAsBgColor ClsPage");
        const QString page = QStringLiteral("setAsBgColor setAsBgImg ClsPage");
        QTest::newRow("console") << Reader::Console << false
                                 << console + objects + "vbAddImg vbAddJpBox vbAddStxt";
        QTest::newRow("designer") << Reader::Designer << false
                                  << page + objects + "vbAddImg vbAddJpBox vbAddStxt getAsDepth";
        QTest::newRow("draw") << Reader::Draw << false << page + objects + "vbAddJpBox vbAddStxt";
        QTest::newRow("console, all hidden") << Reader::Console << true << console;
        QTest::newRow("designer, all hidden") << Reader::Designer << true << page + " getAsDepth";
        QTest::newRow("draw, all hidden") << Reader::Draw << true << page;
    }

    void fullLoadConversation() {
        QFETCH(Reader, reader);
        QFETCH(bool, hidden);
        QFETCH(QString, commands);
        TempProgramFolder folder;
        QVERIFY(folder.start());
        if (hidden) editTemplate(folder.path(k43), {"UPDATE LuckObj SET isVisible=0"});
        RecordingStage stage;
        LoadReport report;
        QVERIFY(loadTemplateFile(stage, folder.path(k43), contextFor(reader), &report));
        QCOMPARE(stage.names().join(QLatin1Char(' ')), commands);
        QCOMPARE(report.sentNames.isEmpty(), hidden);
        if (hidden) return;
        // The columns reach the fields they belong to.
        QCOMPARE(stage.values(proto::vbAddStxt).value(0).section('|', 0, 20),
                 QStringLiteral("false|scr_luckls|8|0|48|700|928|40|0x000000|30|round|8||100|黑体|"
                                "0xFFE08A|20|false|false|false|3"));
        QCOMPARE(
            stage.values(proto::vbAddTxt).value(4).section('|', 0, 16),
            QStringLiteral("false|txt_jpinfo|5|48|276|100|0x000000|0|0|box|名额 $1 名，剩余 $2 "
                           "名|黑体|0xFFF4D6|20|false|false|false"));
    }

    void missingRowsFallBack() {
        TempProgramFolder folder;
        QVERIFY(folder.start());
        editTemplate(folder.path(k43),
                     {"DELETE FROM LuckBg", "DELETE FROM LuckPlay",
                      "UPDATE LuckObj SET fFont=NULL, SrcV=NULL WHERE ObjName='txt_zbt'"});
        TemplateData data;
        QVERIFY(readTemplateFile(folder.path(k43), &data));
        // A NULL in a column the text kind does not use (SrcV) is no default.
        QCOMPARE(data.defaultsUsed,
                 (QStringList{"LuckBg", "LuckObj:txt_zbt.fFont", "LuckPlay:blockValue",
                              "LuckPlay:playTitle", "LuckPlay:playName"}));
        QCOMPARE(data.objects.first().fFont, QStringLiteral("宋体"));
        QVERIFY(!data.playTitle.found);
        QCOMPARE(data.playName.fSize, 16);  // the name row's own default, not a bare row's

        // The console tells the operator itself and sends nothing; the designer skips the page.
        RecordingStage console;
        QVERIFY(!fullLoad(console, data, contextFor(Reader::Console)).bgFound);
        QVERIFY(console.calls.isEmpty());
        RecordingStage designer;
        fullLoad(designer, data, contextFor(Reader::Designer));
        QCOMPARE(designer.names().first(), proto::ClsPage);
        QVERIFY(!designer.names().contains(proto::setAsBgColor));

        // A file that is no template is reported, not read.
        QString error;
        QVERIFY(!readTemplateFile(folder.path(QStringLiteral("skin/none.jsk")), &data, &error));
        QVERIFY(!error.isEmpty());
    }

    void prizePictureHead() {
        TempProgramFolder folder;
        QVERIFY(folder.start());
        TemplateData data;
        QVERIFY(readTemplateFile(folder.path(k43), &data));
        const QString head = QStringLiteral("false|img_jpimgs|6|48|320|280|210|100|true|");
        QCOMPARE(design::prizePictureHead(data), head);

        editTemplate(folder.path(k43),
                     {"UPDATE LuckObj SET isVisible=0 WHERE ObjName='img_jpimgs'"});
        QVERIFY(readTemplateFile(folder.path(k43), &data));
        QCOMPARE(design::prizePictureHead(data), QString());
    }

    void refreshOneObject() {
        TempProgramFolder folder;
        QVERIFY(folder.start());
        editTemplate(folder.path(k43),
                     {"UPDATE LuckObj SET isVisible=0 WHERE ObjName='txt_jpinfo'",
                      "UPDATE LuckObj SET fTxt='ignored' WHERE ObjName='txt_zbt'"});
        QVERIFY(store::openTemplate(folder.path(k43), QStringLiteral("skinConn"), nullptr));
        const PayloadContext context = contextFor(Reader::Designer);
        RecordingStage stage;
        {
            const QSqlDatabase db = QSqlDatabase::database(QStringLiteral("skinConn"));
            for (const QString &name : {sysobj::ssm_vornex, sysobj::txt_zbt, sysobj::txt_jpinfo,
                                        QStringLiteral("txt_gone")})
                refreshObject(stage, db, name, context);
        }
        store::close(QStringLiteral("skinConn"));
        QCOMPARE(stage.lines(),
                 (QStringList{
                     "vbAddJpBox=ssm_vornex|360|168|616|500|7|黑体|0xB0171F|30|true|false|false",
                     "vbAddTxt=false|txt_zbt|1|312|28|100|0x000000|0|0|box|2026年度盛典|黑体|"
                     "0xFFE08A|52|true|false|false|0|center|1",
                     "delObj=txt_jpinfo", "delObj=txt_gone"}));
    }

    void loadBlockFromTheTemplate() {
        TempProgramFolder folder;
        QVERIFY(folder.start());
        ScriptedUi *ui = installScriptedUi();
        QCOMPARE(longestUserName(folder.db()), proto::demoText);
        folder.addUsers({"张三", "欧阳娜娜", "司马相如", "李四"});
        QCOMPARE(longestUserName(folder.db()), QStringLiteral("欧阳娜娜"));
        QVERIFY(store::exec(folder.db(), "INSERT INTO UserList (ID, UserName) VALUES (9, ?)",
                            {QStringLiteral("上官|婉儿$")}));
        QCOMPARE(longestUserName(folder.db()), QStringLiteral("上官|婉儿$"));

        // Three different paddings, so that no two of them can swap unseen.
        editTemplate(folder.path(k43), {"UPDATE LuckPlay SET DotY=13 WHERE ObjName='blockValue'"});
        LoadBlockValues values{longestUserName(folder.db()), 200, 180, 1, 3};
        QCOMPARE(loadBlockValue(folder.path(k43), values),
                 QStringLiteral("上官‖婉儿＄|200|180|1|3|round|0xFFF4D6|92|14|13|12|"
                                "黑体|0xB0171F|30|100|true|false|false|center|0|s|"));
        QVERIFY(ui->records.isEmpty());

        editTemplate(folder.path(k43), {"DELETE FROM LuckPlay WHERE ObjName='blockValue'"});
        QCOMPARE(loadBlockValue(folder.path(k43), values),
                 QStringLiteral(
                     "上官‖婉儿＄|200|180||黑体|0xFF0000|26|100|true|false|false|center|1|s|"));
        QCOMPARE(ui->texts(), QStringList{"找不到抽奖滚动文字样式数据!"});
        QCOMPARE(ui->last().title, QStringLiteral("错误"));
        QCOMPARE(ui->last().style, MsgStyle::Critical);
        QVERIFY(!QSqlDatabase::contains(QStringLiteral("quellio.template.block")));
    }

    void userPicturesAndKeys() {
        TempProgramFolder folder;
        QVERIFY(folder.start());
        const QList<int> ids = folder.addUsers({"张三", "李四", "王五"});
        QVERIFY(store::exec(folder.db(), "UPDATE UserList SET UserPhoto=? WHERE ID=?",
                            {QStringLiteral("Photos/U1.jpg"), ids[0]}));
        QVERIFY(store::exec(folder.db(), "UPDATE UserList SET UserPhoto=? WHERE ID=?",
                            {QStringLiteral("Photos\\U3.jpg"), ids[2]}));
        QCOMPARE(loadAllUserPicsPayload(appState().appPath, userPhotos(folder.db())),
                 folder.path() + QStringLiteral("|Photos/U1.jpg$1|Photos/U3.jpg$3"));
        QCOMPARE(keysPayload(keyCodes(folder.db())), QStringLiteral("32|32|8|46|69|80|76|77|70"));
        QVERIFY(store::exec(folder.db(), "DELETE FROM KeyBoard WHERE KeyName='soundKey'"));
        QCOMPARE(keysPayload(keyCodes(folder.db())), QStringLiteral("32|32|8|46|69|80|76|-1|70"));
    }

private:
    // Runs statements on a template of the folder, as an editor would have left it.
    void editTemplate(const QString &path, const QStringList &statements) {
        QString error;
        QVERIFY2(store::openTemplate(path, QStringLiteral("edit"), &error), qPrintable(error));
        for (const QString &sql : statements)
            QVERIFY(store::exec(QSqlDatabase::database(QStringLiteral("edit")), sql));
        store::close(QStringLiteral("edit"));
    }
};

QTEST_MAIN(TestStageLoad)
#include "tst_stageload.moc"
