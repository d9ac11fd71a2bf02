#include <QCheckBox>
#include <QCloseEvent>
#include <QDir>
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

#include "core/store.h"
#include "roster/replaceguard.h"
#include "roster/view/excelimportdialog.h"
#include "roster/view/numbergeneratordialog.h"
#include "roster/view/photoimportdialog.h"
#include "roster/view/rosterscreens.h"
#include "roster/view/textimportdialog.h"
#include "support/childwidget.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"
#include "support/testpaths.h"
#include "support/treerows.h"

namespace {

QString fixture(const QString &name) {
    return testpaths::rosterFixture(name);
}

QStringList rosterRows(QSqlDatabase db) {
    QSqlQuery query(QStringLiteral("SELECT ID || '|' || UserName || '|' || ifnull(UserPart, '') || "
                                   "'|' || DiffNum FROM UserList ORDER BY ID"),
                    db);
    QStringList rows;
    while (query.next())
        rows << query.value(0).toString();
    return rows;
}

QPushButton *button(const QWidget &form, const char *name) {
    return child<QPushButton>(form, name);
}

QLineEdit *edit(const QWidget &form, const char *name) {
    return child<QLineEdit>(form, name);
}

QString labelText(const QWidget &form, const char *name) {
    return child<QLabel>(form, name)->text();
}

QString logText(const QWidget &form, const char *name) {
    return child<QPlainTextEdit>(form, name)->toPlainText();
}

// Types into a box as the operator does, so that the box reports each edit.
void typeInto(QLineEdit *box, const QString &text) {
    box->clear();
    QTest::keyClicks(box, text);
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
    void init() {
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
        m_ui = installScriptedUi();
    }
    void cleanup() { m_folder.reset(); }

    void excelPreviewAndImport() {
        m_folder->addUsers({"旧人"});
        ExcelImportDialog form(fixture(QStringLiteral("libreoffice.xlsx")));
        form.waitForSheet();
        auto *sheets = child<QListWidget>(form, "sheetList");
        auto *columns = child<QTreeWidget>(form, "columnList");
        auto *preview = child<QTreeWidget>(form, "previewList");
        QPushButton *start = button(form, "startButton");
        QCOMPARE(sheets->item(1)->text(), QStringLiteral("Sheet 2"));
        QCOMPARE(treeRows(columns, {1}), (QStringList{"F1", "F2", "F3", "F4", "F5", "F6", "F7"}));
        QVERIFY(!start->isEnabled());
        columns->topLevelItem(1)->setCheckState(0, Qt::Checked);
        QVERIFY(start->isEnabled());
        QCOMPARE(preview->topLevelItem(0)->text(1), QStringLiteral("姓名 "));
        child<QCheckBox>(form, "headerRowBox")->setChecked(true);
        QCOMPARE(treeRows(preview, {1}),
                 (QStringList{"张三 ", "李四 ", "王五 ", "以下省略更多内容..."}));
        QVERIFY(preview->topLevelItem(0)->text(2).startsWith(
            QStringLiteral("10001 研发部 13800138000 2023-05-08 12.5 ")));

        sheets->setCurrentRow(1);
        form.waitForSheet();
        QCOMPARE(columns->topLevelItemCount(), 2);
        columns->topLevelItem(0)->setCheckState(0, Qt::Checked);
        // Someone is on the roster: the dialog opened on append, and a replace asks first.
        QVERIFY(child<QRadioButton>(form, "appendButton")->isChecked());
        child<QRadioButton>(form, "replaceButton")->setChecked(true);
        m_ui->answers.enqueue(true);
        start->click();
        QVERIFY(form.isImporting());
        QVERIFY(!sheets->isEnabled());
        form.waitForJob();
        QCOMPARE((QStringList{labelText(form, "resultLabel"),
                              child<QGroupBox>(form, "previewBox")->title(),
                              logText(form, "duplicatesEdit")}),
                 (QStringList{"共导入数据2条，屏蔽重复数据1条", "重复数据", "重复数据：陈七"}));
        QVERIFY(!button(form, "okButton")->isHidden());
        QVERIFY(start->isHidden());
        QCOMPARE(rosterRows(m_folder->db()), (QStringList{"1|陈七|行政部|0", "2|周八|客服部|0"}));
        QCOMPARE(m_ui->texts(),
                 QStringList{roster::replaceQuestion(roster::StoredRecords{1, 0, 0})});
        QCOMPARE(QDir(m_folder->path("History")).entryList({"名单快照*.csv"}).size(), 1);
    }

    void excelWarnsAboutWideSheets() {
        ExcelImportDialog form(fixture(QStringLiteral("wide.xlsx")));
        form.waitForSheet();
        QCOMPARE(m_ui->last().text,
                 QStringLiteral("Excel中存在过多的列，这样会导致导入速度十分缓慢\n"
                                "建议您修改Excel文件删除无用列再进行导入！"));
        QCOMPARE(m_ui->last().title, QStringLiteral("警告"));
        QCOMPARE(child<QTreeWidget>(form, "columnList")->topLevelItemCount(), 12);
    }

    void unreadableFilesEndInError_data() {
        QTest::addColumn<bool>("excel");
        QTest::addColumn<QString>("file");
        QTest::newRow("broken workbook") << true << "broken.xlsx";
        QTest::newRow("binary as text") << false << "binary.txt";
    }

    void unreadableFilesEndInError() {
        QFETCH(bool, excel);
        QFETCH(QString, file);
        m_folder->addUsers({"甲|一部|3"});
        const QStringList before = rosterRows(m_folder->db());
        if (excel) {
            ExcelImportDialog form(fixture(file));
            QVERIFY(!child<QListWidget>(form, "sheetList")->isEnabled());
            QVERIFY(!button(form, "startButton")->isEnabled());
        } else {
            TextImportDialog form(fixture(file));
            button(form, "startButton")->click();
            QVERIFY(!form.isImporting());
            QVERIFY(button(form, "startButton")->isEnabled());
        }
        QCOMPARE(m_ui->records.size(), 1);
        QCOMPARE(m_ui->last().title, QStringLiteral("错误"));
        QCOMPARE(m_ui->last().style, MsgStyle::Critical);
        QVERIFY(!m_ui->last().text.isEmpty());
        QCOMPARE(rosterRows(m_folder->db()), before);
    }

    void excelTemplateOpensDemo() {
        ExcelImportDialog form(m_folder->path("demo.xlsx"));
        form.waitForSheet();
        QCOMPARE(child<QListWidget>(form, "sheetList")->item(0)->text(),
                 QStringLiteral("抽奖名单"));
        button(form, "templateButton")->click();
        QCOMPARE(m_ui->openedUrls, QList<QUrl>{QUrl::fromLocalFile(m_folder->path("demo.xlsx"))});
    }

    void textDialogOpensOnAppendOnlyOverARoster_data() {
        QTest::addColumn<bool>("empty");
        QTest::newRow("empty roster: replace without a question") << true;
        QTest::newRow("someone on the roster: append") << false;
    }

    void textDialogOpensOnAppendOnlyOverARoster() {
        QFETCH(bool, empty);
        if (!empty) m_folder->addUsers({"旧人"});
        TextImportDialog form(fixture(QStringLiteral("utf16le-crlf.txt")));
        QCOMPARE(child<QRadioButton>(form, "appendButton")->isChecked(), !empty);
        button(form, "startButton")->click();
        form.waitForJob();
        QVERIFY(m_ui->records.isEmpty());
        QCOMPARE(labelText(form, "resultLabel"), QStringLiteral("共导入数据4条，屏蔽重复数据1条"));
        QCOMPARE(logText(form, "duplicatesEdit"), QStringLiteral("重复数据：张三,研发部"));
        QCOMPARE(rosterRows(m_folder->db()).size(), empty ? 4 : 5);
        QVERIFY(rosterRows(m_folder->db())
                    .contains(QStringLiteral("%1|张三|研发部|7").arg(empty ? 1 : 2)));
    }

    void closeDuringImportAsks_data() {
        QTest::addColumn<bool>("yes");
        QTest::newRow("No keeps importing") << false;
        QTest::newRow("Yes cancels") << true;
    }

    // A dialog closed or destroyed half way rolls back as a cancel does.
    void closeDuringImportAsks() {
        QFETCH(bool, yes);
        m_folder->addUsers({"甲|一部|3"});
        const QStringList before = rosterRows(m_folder->db());
        auto form = std::make_unique<NumberGeneratorDialog>();
        edit(*form, "endEdit")->setText(QStringLiteral("99999"));
        m_ui->answers.enqueue(true);
        button(*form, "startButton")->click();
        QTRY_VERIFY(child<QProgressBar>(*form, "progressBar")->value() > 0);
        m_ui->answers.enqueue(yes);
        QCOMPARE(tryClose(*form), yes);
        QCOMPARE(m_ui->last().text, QStringLiteral("编号正在生成当中...，确认要退出么？"));
        QCOMPARE(m_ui->last().title, QStringLiteral("提示"));
        QCOMPARE(form->isImporting(), !yes);
        form.reset();
        QCOMPARE(rosterRows(m_folder->db()), before);
    }

    void photoDialogFlow() {
        QTemporaryDir dir;
        QImage image(1200, 900, QImage::Format_RGB32);
        image.fill(Qt::blue);
        const QStringList files{dir.filePath(QStringLiteral("张三,宣传部.jpg")),
                                dir.filePath(QStringLiteral("李四.jpg"))};
        for (const QString &file : files)
            QVERIFY(image.save(file));
        PhotoImportDialog form;
        QCOMPARE(labelText(form, "statusLabel"), QStringLiteral("请选择照片"));
        child<QSlider>(form, "sizeSlider")->setValue(5);
        QCOMPARE(labelText(form, "sizeLabel"), QStringLiteral("像素范围(500x500)内"));
        m_ui->fileLists.enqueue(files);
        button(form, "chooseButton")->click();
        QCOMPARE(labelText(form, "statusLabel"), QStringLiteral("共加载图片2张，请点开始导入。"));
        button(form, "startButton")->click();
        form.waitForJob();
        QCOMPARE(logText(form, "logEdit"), QStringLiteral("导入名单2条\n重复0条,请点确定按钮刷新"));
        QCOMPARE(QImage(m_folder->path("Photos/U1.jpg")).size(), QSize(500, 375));
    }

    void numberToolsPreviewAndQuestion() {
        m_folder->addUsers({"甲"});
        NumberGeneratorDialog form;
        QCOMPARE(labelText(form, "sampleLabel"), QStringLiteral("ST0001E - ST1000E"));
        typeInto(edit(form, "startEdit"), QStringLiteral("99999"));
        QCOMPARE(m_ui->last().text, QStringLiteral("开始数值只能小于终止数值!"));
        QCOMPARE(labelText(form, "sampleLabel"), QString());
        typeInto(edit(form, "startEdit"), QStringLiteral("1"));
        typeInto(edit(form, "endEdit"), QStringLiteral("100"));
        QCOMPARE(labelText(form, "sampleLabel"), QStringLiteral("ST001E - ST100E"));
        edit(form, "maskEdit")->setText(QStringLiteral("4,13"));
        QPushButton *start = button(form, "startButton");
        m_ui->answers.enqueue(false);
        start->click();
        QCOMPARE(m_ui->last().text, roster::replaceQuestion(roster::StoredRecords{1, 0, 0}));
        QCOMPARE(m_ui->last().title, QStringLiteral("重要提示"));
        QCOMPARE(rosterRows(m_folder->db()), QStringList{"1|甲||0"});
        m_ui->answers.enqueue(true);
        start->click();
        form.waitForJob();
        QCOMPARE(labelText(form, "resultLabel"), QStringLiteral("共导入80条，屏蔽20条"));
        QVERIFY(logText(form, "maskedCodesEdit")
                    .startsWith(QStringLiteral("屏蔽数据如下：\nST004E\nST013E\n")));
        QVERIFY(button(form, "okButton")->isEnabled());
    }

    void blankFileChoiceStops() {
        QVERIFY(!rosterscreens::importExcel(nullptr, true));
        QVERIFY(!rosterscreens::importText(nullptr, true));
        QCOMPARE(m_ui->records.size(), 2);
        QCOMPARE(m_ui->records.at(0).title, QStringLiteral("导入Excel文件"));
        QCOMPARE(m_ui->records.at(1).title, QStringLiteral("导入Txt文件"));
    }

    void failedSheetCannotBeImported() {
        ExcelImportDialog form(fixture(QStringLiteral("half-broken.xlsx")));
        form.waitForSheet();
        auto *columns = child<QTreeWidget>(form, "columnList");
        columns->topLevelItem(0)->setCheckState(0, Qt::Checked);
        QVERIFY(button(form, "startButton")->isEnabled());
        child<QListWidget>(form, "sheetList")->setCurrentRow(1);
        form.waitForSheet();
        QCOMPARE(m_ui->last().title, QStringLiteral("错误"));
        QCOMPARE(columns->topLevelItemCount(), 0);
        QVERIFY(!button(form, "startButton")->isEnabled());
    }

    void cancelledSheetReadLeavesNothing() {
        ExcelImportDialog form(fixture(QStringLiteral("libreoffice.xlsx")));
        QVERIFY(form.isReadingSheet());
        QVERIFY(!child<QProgressBar>(form, "progressBar")->isHidden());
        child<QPushButton>(form, "cancelButton")->click();
        QVERIFY(!form.isReadingSheet());
        QCOMPARE(child<QTreeWidget>(form, "columnList")->topLevelItemCount(), 0);
        QVERIFY(!button(form, "startButton")->isEnabled());
    }

    void refusedMaskOrJobKeepsDialogUsable() {
        m_folder->addUsers({"甲"});
        NumberGeneratorDialog form;
        edit(form, "maskEdit")->setText(QStringLiteral("0, 1"));
        button(form, "startButton")->click();
        QCOMPARE(m_ui->texts(), QStringList{numbergen::kNoCodeLeftMessage});
        QVERIFY(!button(form, "startButton")->isHidden());
        // A store that refuses the transaction: the job cannot start, the dialog stays usable.
        edit(form, "maskEdit")->clear();
        QVERIFY(m_folder->db().transaction());
        m_ui->answers.enqueue(true);
        button(form, "startButton")->click();
        QVERIFY(!form.isImporting());
        QVERIFY(!button(form, "startButton")->isHidden());
        QVERIFY(button(form, "startButton")->isEnabled());
        QVERIFY(m_folder->db().rollback());
        QCOMPARE(rosterRows(m_folder->db()), QStringList{"1|甲||0"});
    }

private:
    std::unique_ptr<TempProgramFolder> m_folder;
    ScriptedUi *m_ui = nullptr;
};

QTEST_MAIN(TestImportDialogs)
#include "tst_importdialogs.moc"
