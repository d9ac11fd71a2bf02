#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include "chrome/widgets.h"
#include "console/changepassworddialog.h"
#include "console/consolewindow.h"
#include "console/passwordpromptdialog.h"
#include "core/appstate.h"
#include "core/events.h"
#include "core/password.h"
#include "core/store.h"
#include "design/templatepage.h"
#include "roster/view/numbergeneratordialog.h"
#include "roster/view/rostermanagerdialog.h"
#include "stage/protocol.h"
#include "support/dialogwatch.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

class TestConsole : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_folder.reset(); }
    void stageSizeChecksRunInOrder_data();
    void stageSizeChecksRunInOrder();
    void previewDialogueLoadsTheStoredTemplate();
    void savingThePage();
    void templateWithoutPageRowIsReported();
    void panelSlidesBetweenItsTwoPlaces();
    void oneKeyReset_data();
    void oneKeyReset();
    void login_data();
    void login();
    void passwordDialogKeepsTheOldPasswordOnEmptyFields();
    void passwordMismatch();
    void everyEntryOpensItsScreen_data();
    void everyEntryOpensItsScreen();
    void consoleImportEndsInTheRosterManager();
    void progressFollowsTheRoster();
    void tutorialLinkOnlyWithAnAddress();

private:
    std::unique_ptr<TempProgramFolder> m_folder;
    ScriptedUi *m_ui = nullptr;
    QList<QPointer<RecordingStage>> *m_stages = nullptr;
};

void TestConsole::init() {
    m_folder = std::make_unique<TempProgramFolder>();
    QVERIFY(m_folder->start());
    m_ui = installScriptedUi();
    m_stages = &installRecordingStages();
}

void TestConsole::stageSizeChecksRunInOrder_data() {
    QTest::addColumn<QString>("width");
    QTest::addColumn<QString>("height");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("widthField");
    QTest::newRow("smallest size passes") << "257"
                                          << "177"
                                          << "" << true;
    QTest::newRow("width first even with a bad height") << "256"
                                                        << "100"
                                                        << "分辨率宽度最小不低于257px" << true;
    QTest::newRow("empty width is no number") << ""
                                              << "768"
                                              << "分辨率宽度需要输入数字" << true;
    QTest::newRow("height not a number") << "1024"
                                         << "x"
                                         << "分辨率高度需要输入数字" << false;
    QTest::newRow("numbers before sizes") << "100"
                                          << ""
                                          << "分辨率高度需要输入数字" << false;
    QTest::newRow("height too small") << "1024"
                                      << "176"
                                      << "分辨率高度不能低于177px" << false;
}

void TestConsole::stageSizeChecksRunInOrder() {
    QFETCH(QString, width);
    QFETCH(QString, height);
    QFETCH(QString, message);
    QFETCH(bool, widthField);
    const design::SizeCheck check = design::checkStageSize(width, height);
    QCOMPARE(check.message, message);
    if (!message.isEmpty()) QCOMPARE(check.widthField, widthField);
}

void TestConsole::previewDialogueLoadsTheStoredTemplate() {
    ConsoleWindow console;
    QCOMPARE(m_stages->size(), 1);
    RecordingStage &stage = *m_stages->first();
    QVERIFY(stage.movie.endsWith(QStringLiteral("sys/preview.qml")));
    QCOMPARE(console.ComboMB->count(), 2);
    stage.reply(proto::cmd::asload);
    QCOMPARE(stage.values(proto::getIsOk), QStringList{proto::yes});
    stage.clear();
    stage.reply(proto::cmd::startskin);
    QCOMPARE(console.ComboMB->currentText(), appState().selSkinName);
    QCOMPARE(stage.values(proto::ClsPage).size(), 1);
    QCOMPARE(stage.values(proto::vbAddJpBox).size(), 1);
    QCOMPARE(console.txtW->text(), QStringLiteral("1920"));
    QCOMPARE(appState().bgW, qint16(1920));

    // Another template: loaded, and remembered as the selected one.
    stage.clear();
    console.ComboMB->setCurrentIndex(console.ComboMB->findText(QStringLiteral("通用模板（4:3)")));
    QCOMPARE(stage.values(proto::vbSetScale), QStringList{QStringLiteral("23.046875")});
    QCOMPARE(appState().selSkinName, QStringLiteral("通用模板（4:3)"));
    QVERIFY(m_ui->records.isEmpty());
}

void TestConsole::savingThePage() {
    ConsoleWindow console;
    m_stages->first()->reply(proto::cmd::startskin);
    console.txtW->setText(QStringLiteral("256"));
    console.txtH->setText(QStringLiteral("100"));
    console.cmdSave->click();
    QCOMPARE(m_ui->texts(), QStringList{QStringLiteral("分辨率宽度最小不低于257px")});
    QCOMPARE(m_ui->last().title, QStringLiteral("警告"));

    const QString picture = m_folder->path(QStringLiteral("bg.png"));
    QImage(8, 8, QImage::Format_RGB32).save(picture);
    m_ui->files.enqueue(picture);
    Q_EMIT console.labJmSet->clicked();
    console.txtW->setText(QStringLiteral("1280"));
    console.txtH->setText(QStringLiteral("720"));
    console.txtBTm->setText(QStringLiteral("新标题"));
    console.cmdSave->click();
    QCOMPARE(appState().title1, QStringLiteral("新标题"));
    QCOMPARE(appState().BT1, QStringLiteral("新标题"));
    const QString stored =
        QStringLiteral("skin/sPhoto/") + appState().selSkinName + QStringLiteral(".png");
    QVERIFY(QFile::exists(m_folder->path(stored)));
    QCOMPARE(appState().bgW, qint16(1280));
    QCOMPARE(console.txtW->text(), QStringLiteral("1280"));
}

void TestConsole::templateWithoutPageRowIsReported() {
    const QString broken = design::templatePath(m_folder->path(), QStringLiteral("坏模板"));
    QFile::copy(design::templatePath(m_folder->path(), QStringLiteral("通用模板（4:3)")), broken);
    QString error;
    QVERIFY(store::openTemplate(broken, QStringLiteral("broken"), &error));
    store::exec(QSqlDatabase::database(QStringLiteral("broken")),
                QStringLiteral("DELETE FROM LuckBg"));
    store::close(QStringLiteral("broken"));

    ConsoleWindow console;
    RecordingStage &stage = *m_stages->first();
    stage.reply(proto::cmd::startskin);
    const QString before = appState().selSkinName;
    stage.clear();
    console.ComboMB->setCurrentIndex(console.ComboMB->findText(QStringLiteral("坏模板")));
    QCOMPARE(m_ui->texts(), QStringList{QStringLiteral("界面数据文件损坏!")});
    QCOMPARE(m_ui->last().title, QStringLiteral("错误"));
    QVERIFY(stage.calls.isEmpty());
    QCOMPARE(appState().selSkinName, before);
}

void TestConsole::panelSlidesBetweenItsTwoPlaces() {
    ConsoleWindow console;
    QCOMPARE(console.picSetBox->y(), ConsoleWindow::kPanelHidden);
    console.showSet();
    int ticks = 0;
    while (console.tmMove.isActive()) {
        console.moveStep();
        ++ticks;
    }
    QCOMPARE(console.picSetBox->y(), ConsoleWindow::kPanelOpen);
    QCOMPARE(ticks, 12);
    console.panelClosing = true;
    console.tmMove.start();
    while (console.tmMove.isActive())
        console.moveStep();
    QCOMPARE(console.picSetBox->y(), ConsoleWindow::kPanelHidden);
    QVERIFY(!console.panelClosing);
}

void TestConsole::oneKeyReset_data() {
    QTest::addColumn<int>("winners");
    QTest::addColumn<QString>("progress");
    QTest::addColumn<bool>("asks");
    QTest::newRow("nothing drawn: silent") << 0 << "0%" << false;
    QTest::newRow("one of a hundred: asks") << 1 << "1%" << true;
}

void TestConsole::oneKeyReset() {
    QFETCH(int, winners);
    QFETCH(QString, progress);
    QFETCH(bool, asks);
    const int award = m_folder->addAward(QStringLiteral("一等奖"), 100, 1);
    const QList<int> ids = m_folder->addUsers({"甲|研发部", "乙|市场部"});
    for (int i = 0; i < winners; ++i)
        store::exec(
            m_folder->db(),
            QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=3, UpdateTime=? WHERE ID=?"),
            {store::awardMarker(award), store::nowText(), ids.at(i)});
    ConsoleWindow console;
    QCOMPARE(console.labJxNum[1]->text(), QStringLiteral("100"));
    QCOMPARE(console.labJD->text(), progress);
    m_ui->answers.enqueue(true);
    Q_EMIT console.imgReluck->clicked();
    QCOMPARE(store::scalar(m_folder->db(),
                           QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus<>0"))
                 .toInt(),
             0);
    QCOMPARE(console.labJD->text(), QStringLiteral("0%"));
    const QStringList snapshots = QDir(m_folder->path(QStringLiteral("History")))
                                      .entryList({QStringLiteral("*.tmp")}, QDir::Files);
    if (!asks) {
        QVERIFY(m_ui->records.isEmpty());
        QVERIFY(snapshots.isEmpty());
        return;
    }
    QCOMPARE(m_ui->texts(),
             (QStringList{QStringLiteral("重要提示∶\n确认要清空所有中奖记录,复原至初始状态么?"),
                          QStringLiteral("已恢复至初始抽奖状态!")}));
    QCOMPARE(snapshots.size(), 1);
}

void TestConsole::login_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("empty") << "   "
                           << "请输入密码!" << false;
    QTest::newRow("wrong") << "123456"
                           << "密码错误" << false;
    QTest::newRow("right") << "628413"
                           << "" << true;
    QTest::newRow("right with blanks") << " 628413 "
                                       << "" << true;
}

void TestConsole::login() {
    QFETCH(QString, typed);
    QFETCH(QString, message);
    QFETCH(bool, accepted);
    appState().loginFor = QStringLiteral("setluck");
    PasswordPromptDialog dialog;
    dialog.pwd->setText(typed);
    dialog.cmdOk->click();
    QCOMPARE(m_ui->texts(), message.isEmpty() ? QStringList() : QStringList{message});
    QCOMPARE(dialog.result() == QDialog::Accepted, accepted);
    if (!accepted && typed.trimmed().size()) QVERIFY(dialog.pwd->text().isEmpty());
}

void TestConsole::passwordDialogKeepsTheOldPasswordOnEmptyFields() {
    {
        ChangePasswordDialog dialog;
        QVERIFY(!dialog.chkIsPWD->isChecked());
        QVERIFY(!dialog.pwd1->isEnabled());
        dialog.chkIsPWD->setChecked(true);
        dialog.cmdOk->click();
    }
    QCOMPARE(m_ui->texts(), QStringList{QStringLiteral("设置成功!")});
    QVERIFY(password::isPassWordOn());
    QVERIFY(password::matches(QStringLiteral("628413")));
    {
        ChangePasswordDialog dialog;
        QVERIFY(dialog.chkIsPWD->isChecked());
        dialog.pwd1->setText(QStringLiteral(" abc "));
        dialog.pwd2->setText(QStringLiteral("abc"));
        dialog.cmdOk->click();
    }
    QVERIFY(password::matches(QStringLiteral("abc")));
    QVERIFY(!password::matches(QStringLiteral("628413")));
    {
        ChangePasswordDialog dialog;
        dialog.chkIsPWD->setChecked(false);
        dialog.cmdOk->click();
    }
    QVERIFY(!password::isPassWordOn());
    QVERIFY(password::matches(QStringLiteral("abc")));
}

void TestConsole::passwordMismatch() {
    ChangePasswordDialog dialog;
    dialog.chkIsPWD->setChecked(true);
    dialog.pwd1->setText(QStringLiteral("a"));
    dialog.pwd2->setText(QStringLiteral("b"));
    dialog.cmdOk->click();
    QCOMPARE(m_ui->texts(), QStringList{QStringLiteral("两次输入的密码不一致")});
    QCOMPARE(m_ui->last().title, QStringLiteral("警告"));
    QVERIFY(!password::isPassWordOn());
    QCOMPARE(dialog.pwd2->selectedText(), QStringLiteral("b"));
}

void TestConsole::everyEntryOpensItsScreen_data() {
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("screen");
    QTest::newRow("winner list") << "imgTool1"
                                 << "WinnerListDialog";
    QTest::newRow("hotkeys") << "imgTool2"
                             << "HotkeySettingsDialog";
    QTest::newRow("music") << "imgTool3"
                           << "MusicSettingsDialog";
    QTest::newRow("guide") << "imgTool4"
                           << "DrawWizardDialog";
    QTest::newRow("password") << "imgTool5"
                              << "ChangePasswordDialog";
    QTest::newRow("roster manager") << "labMD0"
                                    << "RosterManagerDialog";
    QTest::newRow("photo import") << "labMD3"
                                  << "PhotoImportDialog";
    QTest::newRow("number generator") << "labMD4"
                                      << "NumberGeneratorDialog";
    QTest::newRow("award manager") << "labsetJx"
                                   << "AwardManagerDialog";
}

// Each entry of the console opens its modal screen; none says it is still to come.
void TestConsole::everyEntryOpensItsScreen() {
    QFETCH(QString, entry);
    QFETCH(QString, screen);
    ConsoleWindow console;
    QString opened;
    const QPointer<QTimer> watch = closeNextDialog(&opened);
    if (entry.startsWith("imgTool"))
        console.imgTool[entry.right(1).toInt() - 1]->click();
    else if (entry.startsWith("labMD"))
        Q_EMIT console.labMD[entry.right(1).toInt()]->clicked();
    else
        Q_EMIT console.labsetJx->clicked();
    delete watch.data();
    QCOMPARE(opened, screen);
    QVERIFY2(m_ui->records.isEmpty(), qPrintable(m_ui->texts().join('\n')));
}

void TestConsole::consoleImportEndsInTheRosterManager() {
    bool generated = false;
    whenDialogOpens<NumberGeneratorDialog>(
        [this](NumberGeneratorDialog &form) {
            form.findChild<QLineEdit *>(QStringLiteral("endEdit"))->setText(QStringLiteral("20"));
            m_ui->answers.enqueue(true);
            form.findChild<QPushButton *>(QStringLiteral("startButton"))->click();
            form.waitForJob();
            form.findChild<QPushButton *>(QStringLiteral("okButton"))->click();
        },
        &generated);
    bool managerShown = false;
    whenDialogOpens<RosterManagerDialog>([](RosterManagerDialog &manager) { manager.reject(); },
                                         &managerShown);
    ConsoleWindow console;
    Q_EMIT console.labMD[4]->clicked();
    QVERIFY(generated);
    QVERIFY(managerShown);
}

// Deleting the winners from the roster takes their share of the progress away at once.
void TestConsole::progressFollowsTheRoster() {
    const QList<int> ids = m_folder->addUsers({QStringLiteral("张三"), QStringLiteral("李四")});
    const int award = m_folder->addAward(QStringLiteral("一等奖"), 4, 1);
    store::exec(m_folder->db(),
                QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=3 WHERE ID=?"),
                {store::awardMarker(award), ids[0]});
    ConsoleWindow console;
    QCOMPARE(console.labJD->text(), QStringLiteral("25%"));
    store::exec(m_folder->db(), QStringLiteral("DELETE FROM UserList"));
    Q_EMIT events().rosterChanged();
    QCOMPARE(console.labJD->text(), QStringLiteral("0%"));
}

void TestConsole::tutorialLinkOnlyWithAnAddress() {
    {
        ConsoleWindow console;
        QVERIFY(console.labHelp->isHidden());
    }
    const QString address = QStringLiteral("https://example.org/quellio/教程");
    m_folder->setConfig(QStringLiteral("main"), QStringLiteral("TutorialUrl"), address);
    ConsoleWindow console;
    QVERIFY(!console.labHelp->isHidden());
    QCOMPARE(console.labHelp->text(), QStringLiteral("视频教程"));
    Q_EMIT console.labHelp->clicked();
    QCOMPARE(m_ui->openedUrls, QList<QUrl>{QUrl(address)});
}

QTEST_MAIN(TestConsole)
#include "tst_console.moc"
