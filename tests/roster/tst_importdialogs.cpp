#include <QCheckBox>
#include <QCloseEvent>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSqlQuery>
#include <QTreeWidget>
#include <QtTest>

#include "core/appstate.h"
#include "core/store.h"
#include "roster/view/excelimportdialog.h"
#include "roster/view/numbergeneratordialog.h"
#include "roster/view/photoimportdialog.h"
#include "roster/view/rosterscreens.h"
#include "roster/view/textimportdialog.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

QString fixture(const QString &name) {
    return QStringLiteral(QUELLIO_SOURCE_DIR "/tests/roster/fixtures/") + name;
}

QStringList roster(QSqlDatabase db) {
    QSqlQuery query(QStringLiteral("SELECT ID || '|' || UserName || '|' || ifnull(UserPart, '') || "
                                   "'|' || DiffNum FROM UserList ORDER BY ID"),
                    db);
    QStringList rows;
    while (query.next())
        rows << query.value(0).toString();
    return rows;
}

// Sends the dialog a close request, as the window's close button does.
bool tryClose(QDialog &dialog) {
    QCloseEvent event;
    QCoreApplication::sendEvent(&dialog, &event);
    return event.isAccepted();
}

}  // namespace

class TestImportDialogs : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void excelPreviewAndImport_data();
    void excelPreviewAndImport();
    void excelWarnsAboutWideSheets();
    void unreadableFilesEndInError_data();
    void unreadableFilesEndInError();
    void excelTemplateOpensDemo();
    void txtImportShowsResult();
    void closeDuringImportAsks_data();
    void closeDuringImportAsks();
    void photoDialogFlow();
    void numberToolsPreviewAndQuestion();
    void blankFileChoiceStops();
    void dialogDestroyedMidwayRollsBack();
};

void TestImportDialogs::excelPreviewAndImport_data() {
    QTest::addColumn<QString>("file");
    QTest::newRow("LibreOffice xlsx") << "libreoffice.xlsx";
    QTest::newRow("LibreOffice xls") << "libreoffice.xls";
    QTest::newRow("openpyxl xlsx") << "openpyxl.xlsx";
}

void TestImportDialogs::excelPreviewAndImport() {
    QFETCH(QString, file);
    TempProgramFolder folder;
    QVERIFY(folder.start());
    folder.addUsers({"旧人"});
    ScriptedUi *scripted = installScriptedUi();
    appState().excelFile = fixture(file);
    ExcelImportDialog form;
    QCOMPARE(form.lstTable->count(), 2);
    QCOMPARE(form.lstTable->item(1)->text(), QStringLiteral("Sheet 2"));
    QCOMPARE(form.lstTitle->topLevelItemCount(), 7);
    QCOMPARE(form.lstTitle->topLevelItem(0)->text(1), QStringLiteral("F1"));
    QVERIFY(!form.cmdStart->isEnabled());
    form.lstTitle->topLevelItem(1)->setCheckState(0, Qt::Checked);
    QVERIFY(form.cmdStart->isEnabled());
    QCOMPARE(form.lstUser->topLevelItemCount(), 4);
    QCOMPARE(form.lstUser->topLevelItem(0)->text(1), QStringLiteral("姓名 "));
    form.chkIsTitleLine->setChecked(true);
    QCOMPARE(form.lstUser->topLevelItem(0)->text(1), QStringLiteral("张三 "));
    QVERIFY(form.lstUser->topLevelItem(0)->text(2).startsWith(
        QStringLiteral("10001 研发部 13800138000 2023-05-08 12.5 ")));
    QCOMPARE(form.lstUser->topLevelItem(3)->text(1), QStringLiteral("以下省略更多内容..."));

    form.lstTable->setCurrentRow(1);
    QCOMPARE(form.lstTitle->topLevelItemCount(), 2);
    form.lstTitle->topLevelItem(0)->setCheckState(0, Qt::Checked);
    form.cmdStartClicked();
    QVERIFY(form.isImporting());
    QVERIFY(!form.lstTable->isEnabled());
    form.waitForJob();
    QCOMPARE(form.labMsg->text(), QStringLiteral("共导入数据2条，屏蔽重复数据1条"));
    QCOMPARE(form.Frame2->title(), QStringLiteral("重复数据"));
    QCOMPARE(form.txtSame->toPlainText(), QStringLiteral("重复数据：陈七"));
    QVERIFY(!form.cmdOK->isHidden());
    QVERIFY(form.cmdStart->isHidden());
    QCOMPARE(roster(folder.db()), (QStringList{"1|陈七|行政部|0", "2|周八|客服部|0"}));
    QCOMPARE(scripted->records.size(), 0);
}

void TestImportDialogs::excelWarnsAboutWideSheets() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    ScriptedUi *scripted = installScriptedUi();
    appState().excelFile = fixture(QStringLiteral("wide.xlsx"));
    ExcelImportDialog form;
    QCOMPARE(scripted->last().text,
             QStringLiteral("Excel中存在过多的列，这样会导致导入速度十分缓慢\n"
                            "建议您修改Excel文件删除无用列再进行导入！"));
    QCOMPARE(scripted->last().title, QStringLiteral("警告"));
    QCOMPARE(form.lstTitle->topLevelItemCount(), 12);
}

void TestImportDialogs::unreadableFilesEndInError_data() {
    QTest::addColumn<bool>("excel");
    QTest::addColumn<QString>("file");
    QTest::newRow("broken workbook") << true << "broken.xlsx";
    QTest::newRow("text as workbook") << true << "utf8-lf.txt";
    QTest::newRow("binary as text") << false << "binary.txt";
}

void TestImportDialogs::unreadableFilesEndInError() {
    QFETCH(bool, excel);
    QFETCH(QString, file);
    TempProgramFolder folder;
    QVERIFY(folder.start());
    folder.addUsers({"甲|一部|3"});
    const QStringList before = roster(folder.db());
    ScriptedUi *scripted = installScriptedUi();
    if (excel) {
        appState().excelFile = fixture(file);
        ExcelImportDialog form;
        QVERIFY(!form.lstTable->isEnabled());
        QVERIFY(!form.cmdStart->isEnabled());
    } else {
        appState().txtFile = fixture(file);
        TextImportDialog form;
        form.cmdStartClicked();
        QVERIFY(!form.isImporting());
        QVERIFY(form.cmdStart->isEnabled());
    }
    QCOMPARE(scripted->records.size(), 1);
    QCOMPARE(scripted->last().title, QStringLiteral("错误"));
    QCOMPARE(scripted->last().style, MsgStyle::Critical);
    QVERIFY(!scripted->last().text.isEmpty());
    QCOMPARE(roster(folder.db()), before);
}

void TestImportDialogs::excelTemplateOpensDemo() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    ScriptedUi *scripted = installScriptedUi();
    appState().excelFile = folder.path("demo.xlsx");
    ExcelImportDialog form;
    QCOMPARE(form.lstTable->item(0)->text(), QStringLiteral("抽奖名单"));
    form.cmdMB->click();
    QCOMPARE(scripted->openedUrls.size(), 1);
    QCOMPARE(scripted->openedUrls.first().toLocalFile(), folder.path("demo.xlsx"));
}

void TestImportDialogs::txtImportShowsResult() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    folder.addUsers({"旧人"});
    installScriptedUi();
    appState().txtFile = fixture(QStringLiteral("utf16le-crlf.txt"));
    TextImportDialog form;
    QCOMPARE(form.txtJG->text(), QStringLiteral(","));
    QVERIFY(form.opt2->isChecked());
    form.opt1->setChecked(true);
    form.cmdStartClicked();
    form.waitForJob();
    QCOMPARE(form.labMsg->text(), QStringLiteral("共导入数据4条，屏蔽重复数据1条"));
    QCOMPARE(form.txtSame->toPlainText(), QStringLiteral("重复数据：张三,研发部"));
    QCOMPARE(roster(folder.db()).size(), 5);
    QCOMPARE(roster(folder.db()).first(), QStringLiteral("1|旧人||0"));
}

void TestImportDialogs::closeDuringImportAsks_data() {
    QTest::addColumn<bool>("yes");
    QTest::newRow("No keeps importing") << false;
    QTest::newRow("Yes cancels") << true;
}

void TestImportDialogs::closeDuringImportAsks() {
    QFETCH(bool, yes);
    TempProgramFolder folder;
    QVERIFY(folder.start());
    folder.addUsers({"甲|一部|3"});
    const QStringList before = roster(folder.db());
    ScriptedUi *scripted = installScriptedUi();
    NumberGeneratorDialog form;
    form.txtEnd->setText(QStringLiteral("99999"));
    scripted->answers.enqueue(true);
    form.cmdStartClicked();
    QVERIFY(form.isImporting());
    QTRY_VERIFY(form.pBar->value() > 0);
    scripted->answers.enqueue(yes);
    QCOMPARE(tryClose(form), yes);
    QCOMPARE(scripted->last().text, QStringLiteral("编号正在生成当中...，确认要退出么？"));
    QCOMPARE(scripted->last().title, QStringLiteral("提示"));
    if (yes) {
        QVERIFY(!form.isImporting());
        QCOMPARE(roster(folder.db()), before);
        return;
    }
    form.waitForJob();
    QCOMPARE(form.labMsg->text(), QStringLiteral("共导入99999条，屏蔽0条"));
    QCOMPARE(roster(folder.db()).size(), 99999);
}

void TestImportDialogs::photoDialogFlow() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    ScriptedUi *scripted = installScriptedUi();
    QTemporaryDir dir;
    QImage image(1200, 900, QImage::Format_RGB32);
    image.fill(Qt::blue);
    const QStringList files{dir.filePath(QStringLiteral("张三,宣传部.jpg")),
                            dir.filePath(QStringLiteral("李四.jpg"))};
    for (const QString &file : files)
        QVERIFY(image.save(file));
    PhotoImportDialog form;
    QCOMPARE(form.labmsg->text(), QStringLiteral("请选择照片"));
    form.sld->setValue(5);
    QCOMPARE(form.labFW->text(), QStringLiteral("像素范围(500x500)内"));
    scripted->fileLists.enqueue(files);
    form.cmdOpen->click();
    QCOMPARE(form.labmsg->text(), QStringLiteral("共加载图片2张，请点开始导入。"));
    form.cmdStartClicked();
    form.waitForJob();
    QCOMPARE(form.txtInfo->toPlainText(), QStringLiteral("导入名单2条\n重复0条,请点确定按钮刷新"));
    QCOMPARE(roster(folder.db()), (QStringList{"1|张三|宣传部 |0", "2|李四| |0"}));
    QCOMPARE(QImage(folder.path("Photos/U1.jpg")).size(), QSize(500, 375));
}

void TestImportDialogs::numberToolsPreviewAndQuestion() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    folder.addUsers({"甲"});
    ScriptedUi *scripted = installScriptedUi();
    NumberGeneratorDialog form;
    QCOMPARE(form.labYS->text(), QStringLiteral("ST0001E - ST1000E"));
    form.txtStart->setText(QStringLiteral("99999"));
    QVERIFY(!form.showPreview());
    QCOMPARE(scripted->last().text, QStringLiteral("开始数值只能小于终止数值!"));
    QCOMPARE(form.labYS->text(), QString());
    form.txtStart->setText(QStringLiteral("1"));
    form.txtEnd->setText(QStringLiteral("100"));
    QVERIFY(form.showPreview());
    QCOMPARE(form.labYS->text(), QStringLiteral("ST001E - ST100E"));
    form.txtMsk->setText(QStringLiteral("4,13"));
    scripted->answers.enqueue(false);
    form.cmdStartClicked();
    QCOMPARE(scripted->last().text,
             QStringLiteral("生成数字编号将会完全覆盖原来名单\n您确认要生成编号么？"));
    QCOMPARE(scripted->last().title, QStringLiteral("重要提示"));
    QCOMPARE(roster(folder.db()), QStringList{"1|甲||0"});
    scripted->answers.enqueue(true);
    form.cmdStartClicked();
    QVERIFY(!form.cmdOk->isEnabled() || !form.isImporting());
    form.waitForJob();
    QCOMPARE(form.labMsg->text(), QStringLiteral("共导入80条，屏蔽20条"));
    QVERIFY(
        form.txtTJ->toPlainText().startsWith(QStringLiteral("屏蔽数据如下：\nST004E\nST013E\n")));
    QVERIFY(form.cmdOk->isEnabled());
    QCOMPARE(roster(folder.db()).first(), QStringLiteral("1|ST001E||0"));
}

void TestImportDialogs::blankFileChoiceStops() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    ScriptedUi *scripted = installScriptedUi();
    QVERIFY(!rosterscreens::importExcel(nullptr, true));
    QVERIFY(!rosterscreens::importTxt(nullptr, true));
    QCOMPARE(scripted->records.size(), 2);
    QCOMPARE(scripted->records.at(0).title, QStringLiteral("导入Excel文件"));
    QCOMPARE(scripted->records.at(1).title, QStringLiteral("导入Txt文件"));
    QVERIFY(appState().excelFile.isEmpty());
}

void TestImportDialogs::dialogDestroyedMidwayRollsBack() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    folder.addUsers({"甲|一部|3"});
    const QStringList before = roster(folder.db());
    ScriptedUi *scripted = installScriptedUi();
    auto form = std::make_unique<NumberGeneratorDialog>();
    form->txtEnd->setText(QStringLiteral("99999"));
    scripted->answers.enqueue(true);
    form->cmdStartClicked();
    QTRY_VERIFY(form->pBar->value() > 0);
    form.reset();
    QCOMPARE(roster(folder.db()), before);
}

QTEST_MAIN(TestImportDialogs)
#include "tst_importdialogs.moc"
