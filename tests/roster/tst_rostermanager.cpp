#include <QAction>
#include <QCameraDevice>
#include <QCheckBox>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMediaDevices>
#include <QPushButton>
#include <QSqlQuery>
#include <QTreeWidget>
#include <QtTest>

#include "core/appstate.h"
#include "core/store.h"
#include "roster/rosterpage.h"
#include "roster/view/addparticipantdialog.h"
#include "roster/view/cameracapturedialog.h"
#include "roster/view/rostermanagerdialog.h"
#include "stage/protocol.h"
#include "stage/view/stagefactory.h"
#include "support/childwidget.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"
#include "support/treerows.h"

namespace {

void fillRoster(QSqlDatabase db, int count) {
    db.transaction();
    QSqlQuery insert(db);
    insert.prepare(
        "INSERT INTO UserList (ID, UserName, UserPart, UserPhoto, DiffNum, UserStatus) "
        "VALUES (?, ?, ?, '', ?, ?)");
    for (int i = 1; i <= count; ++i) {
        insert.addBindValue(i);
        insert.addBindValue(QStringLiteral("人%1").arg(i));
        insert.addBindValue(QStringLiteral("部%1").arg(i % 7));
        insert.addBindValue(i % 5);
        insert.addBindValue(i % 10 == 0 ? 3 : (i % 10 == 1 ? 1 : (i % 10 == 2 ? 2 : 0)));
        insert.exec();
    }
    db.commit();
}

QTreeWidget *participants(const QWidget &form) {
    return child<QTreeWidget>(form, "participantList");
}

QLineEdit *edit(const QWidget &form, const char *name) {
    return child<QLineEdit>(form, name);
}

QPushButton *button(const QWidget &form, const char *name) {
    return child<QPushButton>(form, name);
}

QString labelText(const QWidget &form, const char *name) {
    return child<QLabel>(form, name)->text();
}

// Fills the editor, presses 保存 (or the button named) and returns what the operator is told.
QString saveAs(const QWidget &form, const ScriptedUi *ui, const char *name, const char *remark,
               const char *diffNum, const char *button = "saveButton") {
    child<QLineEdit>(form, "nameEdit")->setText(QString::fromUtf8(name));
    child<QLineEdit>(form, "remarkEdit")->setText(QString::fromUtf8(remark));
    child<QLineEdit>(form, "diffNumEdit")->setText(QString::fromUtf8(diffNum));
    child<QPushButton>(form, button)->click();
    return ui->last().text;
}

void trigger(const QWidget &form, const char *action) {
    child<QAction>(form, action)->trigger();
}

// The manager after its viewer has reported "loadok".
std::unique_ptr<RosterManagerDialog> openManager() {
    auto &stages = installRecordingStages();
    auto form = std::make_unique<RosterManagerDialog>();
    stages.last()->reply(proto::cmd::loadok, QStringLiteral("yes"));
    return form;
}

}  // namespace

class TestRosterManager : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
        m_ui = installScriptedUi();
    }
    void cleanup() { m_folder.reset(); }

    void firstFillWaitsForViewer() {
        m_folder->addUsers({"甲|一部", "乙|二部"});
        auto &stages = installRecordingStages();
        RosterManagerDialog form;
        QCOMPARE(stages.last()->movie, m_folder->path("sys/viewer.qml"));
        QCOMPARE(participants(form)->topLevelItemCount(), 0);
        stages.last()->reply(QStringLiteral("other"), QStringLiteral("yes"));
        QCOMPARE(participants(form)->topLevelItemCount(), 0);
        stages.last()->reply(proto::cmd::loadok, QStringLiteral("yes"));
        QCOMPARE(treeRows(participants(form), {1}), (QStringList{"1", "2"}));
        // The row count equals the table's, so the last row is selected and loaded.
        QCOMPARE(edit(form, "nameEdit")->text(), QStringLiteral("乙"));
    }

    // Without a viewer the list fills at once; with the real one, when it reports.
    void fillsWithoutARecordingViewer() {
        m_folder->addUsers({"甲|一部"});
        setStageFactory([](QWidget *parent) { return std::make_unique<SilentStage>(parent); });
        QCOMPARE(participants(RosterManagerDialog())->topLevelItemCount(), 1);
        setStageFactory({});
        RosterManagerDialog form;
        QTRY_COMPARE(participants(form)->topLevelItemCount(), 1);
        QCOMPARE(edit(form, "nameEdit")->text(), QStringLiteral("甲"));
    }

    void pagesAreClamped_data() {
        QTest::addColumn<QString>("search");
        QTest::addColumn<int>("page");
        QTest::addColumn<QString>("state");  // rows|page label|total label|previous page enabled
        QTest::newRow("first") << "" << 1 << "1000|当前第∶1页/ 共3页|总计人数：2500|0";
        QTest::newRow("last") << "" << 3 << "500|当前第∶3页/ 共3页|总计人数：2500|1";
        QTest::newRow("beyond") << "" << 9 << "500|当前第∶3页/ 共3页|总计人数：2500|1";
        QTest::newRow("below") << "" << 0 << "1000|当前第∶1页/ 共3页|总计人数：2500|0";
        QTest::newRow("search from page 3")
            << "人1" << 3 << "111|当前第∶2页/ 共2页|总计人数：1111|1";
        QTest::newRow("no hits") << "无此人" << 3 << "0|当前第∶3页/ 共0页|总计人数：0|0";
        QTest::newRow("wildcards are text") << "%" << 1 << "0|当前第∶1页/ 共0页|总计人数：0|0";
    }

    void pagesAreClamped() {
        QFETCH(QString, search);
        QFETCH(int, page);
        fillRoster(m_folder->db(), 2500);
        auto form = openManager();
        form->showParticipants(search, page);
        const int rows = participants(*form)->topLevelItemCount();
        QTEST(QStringList({QString::number(rows), labelText(*form, "pageLabel"),
                           labelText(*form, "totalLabel"),
                           QString::number(button(*form, "previousPageButton")->isEnabled())})
                  .join(QLatin1Char('|')),
              "state");
        // A long roster selects no row, so the editor waits for a click before it can save.
        QVERIFY(!button(*form, "saveButton")->isEnabled());
        if (rows == 0) return;
        participants(*form)->setCurrentItem(participants(*form)->topLevelItem(0));
        QVERIFY(button(*form, "saveButton")->isEnabled());
    }

    void sortModes_data() {
        QTest::addColumn<int>("sort");
        QTest::addColumn<QStringList>("firstIds");
        QTest::newRow("ID") << 0 << QStringList{"1", "2", "3"};
        QTest::newRow("remark") << 1 << QStringList{"7", "14", "21"};
        QTest::newRow("distinction number") << 2 << QStringList{"5", "10", "15"};
        QTest::newRow("status") << 3 << QStringList{"3", "4", "5"};
    }

    void sortModes() {
        QFETCH(int, sort);
        fillRoster(m_folder->db(), 2500);
        roster::Page first;
        QString error;
        QVERIFY(roster::readPage(m_folder->db(), QString(), sort, 1, &first, &error));
        QStringList ids;
        for (int i = 0; i < 3; ++i)
            ids << QString::number(first.rows.at(i).id);
        QTEST(ids, "firstIds");
    }

    void countersAndStatusWords() {
        fillRoster(m_folder->db(), 10);
        auto form = openManager();
        QCOMPARE(labelText(*form, "wonLabel"), QStringLiteral("已中奖人数：1"));
        QCOMPARE(labelText(*form, "gaveUpLabel"), QStringLiteral("弃奖∶1"));
        QCOMPARE(treeRows(participants(*form), {5}),
                 (QStringList{"已弃奖", "已领奖", "", "", "", "", "", "", "", "已中奖"}));
        QCOMPARE(participants(*form)->topLevelItem(0)->foreground(5).color(), QColor(255, 0, 0));
        QCOMPARE(participants(*form)->topLevelItem(9)->foreground(5).color(), QColor(18, 118, 0));
        appState().selJxid = 4;
        store::exec(m_folder->db(), "UPDATE UserList SET UserStatus=0");
        form->showParticipants(QString(), 1);
        QCOMPARE(appState().selJxid, qint16(0));
    }

    void saveKeepsWinAndRefusesDuplicates() {
        m_folder->addUsers({"甲|一部|1", "乙|二部|2"});
        store::exec(m_folder->db(), "UPDATE UserList SET UserStatus=3, JxID='|1|' WHERE ID=2");
        auto form = openManager();
        participants(*form)->setCurrentItem(participants(*form)->topLevelItem(1));
        QCOMPARE(saveAs(*form, m_ui, "甲", "一部", "2"), "名单重复,已经存在同样的人员信息");
        QCOMPARE(m_ui->last().title, QStringLiteral("编辑失败"));
        edit(*form, "diffNumEdit")->setValidator(nullptr);
        QCOMPARE(saveAs(*form, m_ui, "甲", "三部", "x1"), "“区分编号”只能填写数字");
        QCOMPARE(saveAs(*form, m_ui, "甲", "三部", "12345678901"), roster::kDiffNumTooLarge);
        QCOMPARE(saveAs(*form, m_ui, "   ", "三部", "9"), "请输入抽奖名单!");
        QCOMPARE(saveAs(*form, m_ui, "甲 ", "三部", "9"), "数据更新成功！");
        QCOMPARE(store::scalar(m_folder->db(),
                               "SELECT UserName || '/' || UserPart || '/' || DiffNum || "
                               "'/' || UserStatus || JxID FROM UserList WHERE ID=2")
                     .toString(),
                 QStringLiteral("甲 /三部/9/3|1|"));
        // Saving a row unchanged is no duplicate of itself.
        button(*form, "saveButton")->click();
        QCOMPARE(m_ui->last().text, QStringLiteral("数据更新成功！"));
        QCOMPARE(participants(*form)->currentItem()->text(1), QStringLiteral("2"));
    }

    void savePictureStates() {
        m_folder->addUsers({"甲|一部"});
        auto form = openManager();
        const auto savePhoto = [&form, this](const QString &state) {
            edit(*form, "photoStateEdit")->setText(state);
            button(*form, "saveButton")->click();
            return store::scalar(m_folder->db(), "SELECT UserPhoto FROM UserList").toString();
        };
        QTemporaryDir dir;
        const QString chosen = dir.filePath(QStringLiteral("face.png"));
        QImage(20, 20, QImage::Format_RGB32).save(chosen);
        QCOMPARE(savePhoto(chosen), QStringLiteral("Photos/U1.png"));
        QVERIFY(QFile::exists(m_folder->path("Photos/U1.png")));
        QCOMPARE(edit(*form, "photoStateEdit")->text(), QStringLiteral("yes"));
        QImage(30, 30, QImage::Format_RGB32).save(m_folder->path("Photos/camertemp.jpg"));
        QCOMPARE(savePhoto(QStringLiteral("camre")), QStringLiteral("Photos/U1.jpg"));
        QCOMPARE(QImage(m_folder->path("Photos/U1.jpg")).size(), QSize(30, 30));
        QCOMPARE(savePhoto(QStringLiteral("no")), QString());
        QVERIFY(!QFile::exists(m_folder->path("Photos/U1.jpg")));
        QVERIFY(QFile::exists(m_folder->path("Photos/camertemp.jpg")));
    }

    void deleteTicked() {
        fillRoster(m_folder->db(), 1001);
        auto form = openManager();
        trigger(*form, "deleteAction");
        QCOMPARE(m_ui->last().text, QStringLiteral("请勾选需要删除的名单!"));
        form->showParticipants(QString(), 2);
        trigger(*form, "tickAllAction");
        QVERIFY(child<QCheckBox>(*form, "tickAllBox")->isChecked());
        m_ui->answers.enqueue(false);
        trigger(*form, "deleteAction");
        QCOMPARE(m_ui->last().text, QStringLiteral("确认要删除选择的抽奖名单么?"));
        QCOMPARE(store::scalar(m_folder->db(), "SELECT COUNT(*) FROM UserList").toInt(), 1001);
        m_ui->answers.enqueue(true);
        trigger(*form, "deleteAction");
        QCOMPARE(store::scalar(m_folder->db(), "SELECT COUNT(*) FROM UserList").toInt(), 1000);
        // The emptied last page clamps to the new last one.
        QCOMPARE(labelText(*form, "pageLabel"), QStringLiteral("当前第∶1页/ 共1页"));
    }

    void batchDistinctionNumber_data() {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("message");
        QTest::newRow("number") << "42"
                                << "42,1"
                                << "数据更新成功！";
        QTest::newRow("cancel") << ""
                                << "1,1"
                                << "请输入区分编号\n只能输入数字";
        QTest::newRow("text") << "4a"
                              << "1,1"
                              << "您没输入正确的区分编号!";
        QTest::newRow("beyond 32 bits") << "99999999999"
                                        << "1,1"
                                        << "您没输入正确的区分编号!";
    }

    void batchDistinctionNumber() {
        QFETCH(QString, answer);
        m_folder->addUsers({"甲|一部|1", "乙|二部|1"});
        auto form = openManager();
        button(*form, "setDiffNumButton")->click();
        QCOMPARE(m_ui->last().text, QStringLiteral("请勾选需要设置区分编号的名单!"));
        participants(*form)->topLevelItem(0)->setCheckState(0, Qt::Checked);
        m_ui->inputs.enqueue(answer);
        button(*form, "setDiffNumButton")->click();
        QTEST(m_ui->last().text, "message");
        QTEST(
            store::scalar(m_folder->db(),
                          "SELECT group_concat(DiffNum) FROM (SELECT * FROM UserList ORDER BY ID)")
                .toString(),
            "stored");
    }

    void exportsShownPage() {
        m_folder->addUsers({"甲,乙|一部|3", "丙\"|二部"});
        auto form = openManager();
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("out.csv"));
        m_ui->files.enqueue(path);
        button(*form, "exportButton")->click();
        QCOMPARE(m_ui->last().text, QStringLiteral("导出完毕"));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(),
                 QByteArray("\xEF\xBB\xBF") +
                     QStringLiteral("排序,抽奖名单(抽奖时滚动的内容),备注,照片,状态,区分编号\r\n"
                                    "1,\"甲,乙\",一部,,,3\r\n2,\"丙\"\"\",二部,,,0\r\n")
                         .toUtf8());
        QVERIFY(button(*form, "exportButton")->isEnabled());
    }

    void addUserRules() {
        m_folder->addUsers({"甲|一部"});
        installRecordingStages();
        AddParticipantDialog form;
        QCOMPARE(edit(form, "diffNumEdit")->text(), QStringLiteral("0"));
        QCOMPARE(saveAs(form, m_ui, "", "", "0", "addButton"), "请输入抽奖名单!");
        saveAs(form, m_ui, " 甲 ", "一部", "0", "addButton");
        QCOMPARE(m_ui->last().title, QStringLiteral("新增失败"));
        QCOMPARE(form.result(), int(QDialog::Rejected));
        QCOMPARE(saveAs(form, m_ui, " 甲 ", "二部", "12345678901", "addButton"),
                 roster::kDiffNumTooLarge);
        QImage(10, 10, QImage::Format_RGB32).save(m_folder->path("Photos/camertemp.jpg"));
        edit(form, "photoStateEdit")->setText(QStringLiteral("camre"));
        saveAs(form, m_ui, " 甲 ", "二部", "", "addButton");
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QCOMPARE(form.addedId(), 2);
        QCOMPARE(store::scalar(m_folder->db(),
                               "SELECT UserName || '/' || UserPart || '/' || DiffNum || "
                               "'/' || UserPhoto FROM UserList WHERE ID=2")
                     .toString(),
                 QStringLiteral("甲/二部/0/Photos/U2.jpg"));
        QVERIFY(QFile::exists(m_folder->path("Photos/U2.jpg")));
    }

    void cameraMissing() {
        CameraCaptureDialog camera;
        QLabel *status = child<QLabel>(camera, "statusLabel");
        QCOMPARE(status->text(), QStringLiteral("正在开启摄像头..."));
        QVERIFY(!button(camera, "captureButton")->isEnabled());
        if (!QMediaDevices::defaultVideoInput().isNull()) QSKIP("this machine has a camera");
        QTRY_COMPARE(status->text(), QStringLiteral("打开摄像头失败..."));
        QVERIFY(!button(camera, "captureButton")->isEnabled());
        button(camera, "cancelButton")->click();
        QCOMPARE(camera.result(), int(QDialog::Rejected));
    }

    void cameraSaveHandsOver() {
        CameraCaptureDialog camera;
        QImage frame(640, 480, QImage::Format_RGB32);
        frame.fill(Qt::red);
        camera.freeze(frame);
        QPushButton *capture = button(camera, "captureButton");
        QCOMPARE(capture->text(), QStringLiteral("保存"));
        QCOMPARE(button(camera, "cancelButton")->text(), QStringLiteral("重拍"));
        QString handed;
        connect(&camera, &CameraCaptureDialog::saved, this,
                [&handed](const QString &path) { handed = path; });
        capture->click();
        QCOMPARE(handed, m_folder->path("Photos/camertemp.jpg"));
        QCOMPARE(QImage(handed).size(), QSize(640, 480));
        QCOMPARE(camera.result(), int(QDialog::Accepted));
    }

private:
    std::unique_ptr<TempProgramFolder> m_folder;
    ScriptedUi *m_ui = nullptr;
};

QTEST_MAIN(TestRosterManager)
#include "tst_rostermanager.moc"
