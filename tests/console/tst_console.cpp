#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
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
#include "support/childwidget.h"
#include "support/dialogwatch.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

using namespace Qt::StringLiterals;

namespace {

void markWinner(TempProgramFolder &folder, int award, int user) {
    store::exec(folder.db(),
                QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=3, UpdateTime=? WHERE ID=?"),
                {store::awardMarker(award), store::nowText(), user});
}

void click(const QWidget &parent, const char *name) {
    if (auto *link = parent.findChild<LinkLabel *>(QString::fromLatin1(name)))
        Q_EMIT link->clicked();
    else
        child<QAbstractButton>(parent, name)->click();
}

void fillAndOk(ChangePasswordDialog &dialog, bool guard, const QString &password,
               const QString &confirm) {
    child<QCheckBox>(dialog, "guardCheck")->setChecked(guard);
    child<QLineEdit>(dialog, "passwordEdit")->setText(password);
    child<QLineEdit>(dialog, "confirmEdit")->setText(confirm);
    click(dialog, "okButton");
}

}  // namespace

class TestConsole : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
        m_ui = installScriptedUi();
        m_stages = &installRecordingStages();
    }
    void cleanup() { m_folder.reset(); }

    void stageSizeChecksRunInOrder_data() {
        QTest::addColumn<QString>("width");
        QTest::addColumn<QString>("height");
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("widthField");
        const auto row = [](const char *tag, const char *width, const char *height,
                            const char *message, bool widthField) {
            QTest::newRow(tag) << width << height << message << widthField;
        };
        row("smallest size passes", "257", "177", "", true);
        row("width first even with a bad height", "256", "100", "分辨率宽度最小不低于257px", true);
        row("empty width is no number", "", "768", "分辨率宽度需要输入数字", true);
        row("height not a number", "1024", "x", "分辨率高度需要输入数字", false);
        row("numbers before sizes", "100", "", "分辨率高度需要输入数字", false);
        row("height too small", "1024", "176", "分辨率高度不能低于177px", false);
        row("width past 16 bits", "40000", "768", "分辨率宽度最大不能超过32767px", true);
        row("height far past 32 bits", "1024", "99999999999", "分辨率高度最大不能超过32767px",
            false);
    }

    void stageSizeChecksRunInOrder() {
        QFETCH(QString, width);
        QFETCH(QString, height);
        const design::SizeCheck check = design::checkStageSize(width, height);
        QTEST(check.message, "message");
        if (!check.message.isEmpty()) QTEST(check.widthField, "widthField");
    }

    void previewLoadsSwitchesAndSavesTheTemplate() {
        const QString broken = design::templatePath(m_folder->path(), QStringLiteral("坏模板"));
        QFile::copy(design::templatePath(m_folder->path(), QStringLiteral("通用模板（4:3)")),
                    broken);
        QString error;
        QVERIFY(store::openTemplate(broken, QStringLiteral("broken"), &error));
        store::exec(QSqlDatabase::database(QStringLiteral("broken")),
                    QStringLiteral("DELETE FROM LuckBg"));
        store::close(QStringLiteral("broken"));
        ConsoleWindow console;
        RecordingStage &stage = *m_stages->first();
        QVERIFY(stage.movie.endsWith(QStringLiteral("sys/preview.qml")));
        auto *templates = child<QComboBox>(console, "templateCombo");
        stage.reply(proto::cmd::asload);
        QCOMPARE(stage.values(proto::getIsOk), QStringList{proto::yes});
        stage.clear();
        stage.reply(proto::cmd::startskin);
        QCOMPARE(templates->currentText(), appState().selSkinName);
        QCOMPARE(stage.values(proto::ClsPage).size(), 1);
        QCOMPARE(stage.values(proto::vbAddJpBox).size(), 1);
        QCOMPARE(child<QLineEdit>(console, "widthEdit")->text(), QStringLiteral("1920"));

        // A template without its page row is refused and the shown one stays.
        const QString before = appState().selSkinName;
        stage.clear();
        templates->setCurrentIndex(templates->findText(QStringLiteral("坏模板")));
        QCOMPARE(m_ui->texts(), QStringList{QStringLiteral("界面数据文件损坏!")});
        QCOMPARE(m_ui->last().title, QStringLiteral("错误"));
        QVERIFY(stage.calls.isEmpty());
        QCOMPARE(appState().selSkinName, before);

        // Another template: loaded, and remembered as the selected one.
        m_ui->records.clear();
        templates->setCurrentIndex(templates->findText(QStringLiteral("通用模板（4:3)")));
        QCOMPARE(stage.values(proto::vbSetScale), QStringList{QStringLiteral("23.046875")});
        QCOMPARE(appState().selSkinName, QStringLiteral("通用模板（4:3)"));

        // Saving checks the size first, then stores the page, its titles and its picture.
        auto *width = child<QLineEdit>(console, "widthEdit");
        auto *height = child<QLineEdit>(console, "heightEdit");
        width->setText(QStringLiteral("256"));
        height->setText(QStringLiteral("100"));
        click(console, "saveButton");
        QCOMPARE(m_ui->texts(), QStringList{QStringLiteral("分辨率宽度最小不低于257px")});
        QCOMPARE(m_ui->last().title, QStringLiteral("警告"));
        const QString picture = m_folder->path(QStringLiteral("bg.png"));
        QImage(8, 8, QImage::Format_RGB32).save(picture);
        m_ui->files.enqueue(picture);
        click(console, "changeBackgroundLink");
        width->setText(QStringLiteral("1280"));
        height->setText(QStringLiteral("720"));
        child<QLineEdit>(console, "mainTitleEdit")->setText(QStringLiteral("新标题"));
        click(console, "saveButton");
        QCOMPARE(appState().title1, QStringLiteral("新标题"));
        QCOMPARE(appState().BT1, QStringLiteral("新标题"));
        QVERIFY(QFile::exists(
            m_folder->path(QStringLiteral("skin/sPhoto/%1.png").arg(appState().selSkinName))));
        QCOMPARE(appState().bgW, qint16(1280));
        QCOMPARE(width->text(), QStringLiteral("1280"));
    }

    void oneKeyReset_data() {
        QTest::addColumn<int>("awardSlots");
        QTest::addColumn<int>("winners");
        QTest::addColumn<QString>("progress");
        QTest::addColumn<bool>("asks");
        QTest::newRow("nothing drawn: silent") << 100 << 0 << "0%" << false;
        QTest::newRow("one of a hundred: asks") << 100 << 1 << "1%" << true;
        QTest::newRow("one of 300 shows 0%: asks all the same") << 300 << 1 << "0%" << true;
    }

    void oneKeyReset() {
        QFETCH(int, awardSlots);
        QFETCH(int, winners);
        QFETCH(bool, asks);
        const int award = m_folder->addAward(QStringLiteral("一等奖"), awardSlots, 1);
        const QList<int> ids = m_folder->addUsers({"甲|研发部", "乙|市场部"});
        for (int i = 0; i < winners; ++i)
            markWinner(*m_folder, award, ids.at(i));
        ConsoleWindow console;
        auto *progressLabel = child<QLabel>(console, "progressLabel");
        QTEST(progressLabel->text(), "progress");
        m_ui->answers.enqueue(true);
        click(console, "resetLink");
        QCOMPARE(store::scalar(m_folder->db(), "SELECT COUNT(*) FROM UserList WHERE UserStatus<>0")
                     .toInt(),
                 0);
        QCOMPARE(progressLabel->text(), QStringLiteral("0%"));
        QCOMPARE(QDir(m_folder->path(QStringLiteral("History")))
                     .entryList({QStringLiteral("*.csv")}, QDir::Files)
                     .size(),
                 int(asks));
        QCOMPARE(m_ui->texts().size(), asks ? 2 : 0);
        if (!asks) return;
        QVERIFY(m_ui->texts().first().startsWith(QStringLiteral("将清除现有 1 条中奖记录")));
        QCOMPARE(m_ui->texts().last(), QStringLiteral("已恢复至初始抽奖状态!"));
    }

    // The right password is let in by passwordGuardsSettingsAndPasswordDialog; blanks around it
    // are the digest's own rule.
    void loginRefused_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("left");  // what the field holds after OK
        QTest::newRow("empty") << u"   "_s << u"请输入密码!"_s << u"   "_s;
        QTest::newRow("wrong") << u"123456"_s << u"密码错误"_s << QString();
    }

    void loginRefused() {
        QFETCH(QString, typed);
        PasswordPromptDialog dialog(PasswordPromptDialog::Purpose::OpenSettings);
        auto *password = child<QLineEdit>(dialog, "passwordEdit");
        password->setText(typed);
        click(dialog, "okButton");
        QTEST(m_ui->texts().join(u'\n'), "message");
        QVERIFY(dialog.result() != QDialog::Accepted);
        QTEST(password->text(), "left");
    }

    void passwordDialogKeepsTheOldPasswordOnEmptyFields() {
        {
            ChangePasswordDialog dialog;
            QVERIFY(!child<QCheckBox>(dialog, "guardCheck")->isChecked());
            QVERIFY(!child<QLineEdit>(dialog, "passwordEdit")->isEnabled());
            fillAndOk(dialog, true, u"a"_s, u"b"_s);
            QCOMPARE(m_ui->last().text, u"两次输入的密码不一致"_s);
            QCOMPARE(child<QLineEdit>(dialog, "confirmEdit")->selectedText(), u"b"_s);
            QVERIFY(!password::isPassWordOn());
            fillAndOk(dialog, true, QString(), QString());
        }
        QCOMPARE(m_ui->last().text, u"设置成功!"_s);
        QVERIFY(password::isPassWordOn());
        QVERIFY(password::matches(u"628413"_s));
        {
            ChangePasswordDialog dialog;
            QVERIFY(child<QCheckBox>(dialog, "guardCheck")->isChecked());
            fillAndOk(dialog, true, u" abc "_s, u"abc"_s);
        }
        QVERIFY(password::matches(u"abc"_s));
        QVERIFY(!password::matches(u"628413"_s));
        ChangePasswordDialog dialog;
        fillAndOk(dialog, false, QString(), QString());
        QVERIFY(!password::isPassWordOn());
        QVERIFY(password::matches(QStringLiteral("abc")));
    }

    // With the guard on, the right password leads on to what was asked for: the panel, or the
    // password dialog.
    void passwordGuardsSettingsAndPasswordDialog() {
        password::save(true, QString());
        ConsoleWindow console;
        auto *panel = child<QWidget>(console, "settingsPanel");
        QCOMPARE(panel->y(), ConsoleWindow::kPanelHidden);
        const auto enterPassword = [](PasswordPromptDialog &prompt) {
            child<QLineEdit>(prompt, "passwordEdit")->setText(QStringLiteral("628413"));
            click(prompt, "okButton");
        };
        bool asked = false;
        whenDialogOpens<PasswordPromptDialog>(enterPassword, &asked);
        click(console, "settingsButton");
        QVERIFY(asked);
        QTRY_COMPARE(panel->y(), ConsoleWindow::kPanelOpen);
        click(console, "closePanelButton");
        QTRY_COMPARE(panel->y(), ConsoleWindow::kPanelHidden);

        bool changing = false;
        whenDialogOpens<PasswordPromptDialog>(enterPassword, &asked);
        whenDialogOpens<ChangePasswordDialog>([](ChangePasswordDialog &dialog) { dialog.reject(); },
                                              &changing);
        click(console, "passwordButton");
        QVERIFY(asked);
        QVERIFY(changing);
        QVERIFY(m_ui->records.isEmpty());
    }

    void everyEntryOpensItsScreen_data() {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("screen");
        const auto row = [](const char *tag, const char *entry, const char *screen) {
            QTest::newRow(tag) << QString::fromLatin1(entry) << QString::fromLatin1(screen);
        };
        row("winner list", "winnerListButton", "WinnerListDialog");
        row("hotkeys", "hotkeysButton", "HotkeySettingsDialog");
        row("music", "musicButton", "MusicSettingsDialog");
        row("guide", "wizardButton", "DrawWizardDialog");
        row("password", "passwordButton", "ChangePasswordDialog");
        row("roster manager", "manageRosterLink", "RosterManagerDialog");
        row("photo import", "photoImportLink", "PhotoImportDialog");
        row("number generator", "numberGeneratorLink", "NumberGeneratorDialog");
        row("award manager", "manageAwardsLink", "AwardManagerDialog");
    }

    // Each entry of the console opens its modal screen; none says it is still to come.
    void everyEntryOpensItsScreen() {
        QFETCH(QString, entry);
        QFETCH(QString, screen);
        ConsoleWindow console;
        QString opened;
        const QPointer<QTimer> watch = closeNextDialog(&opened);
        click(console, qPrintable(entry));
        delete watch.data();
        QCOMPARE(opened, screen);
        QVERIFY2(m_ui->records.isEmpty(), qPrintable(m_ui->texts().join('\n')));
    }

    void consoleImportEndsInTheRosterManager() {
        bool generated = false;
        whenDialogOpens<NumberGeneratorDialog>(
            [this](NumberGeneratorDialog &form) {
                form.findChild<QLineEdit *>(QStringLiteral("endEdit"))
                    ->setText(QStringLiteral("20"));
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
        click(console, "numberGeneratorLink");
        QVERIFY(generated);
        QVERIFY(managerShown);
    }

    // Deleting the winners from the roster takes their share of the progress away at once.
    void progressFollowsTheRoster() {
        const QList<int> ids = m_folder->addUsers({QStringLiteral("张三"), QStringLiteral("李四")});
        const int award = m_folder->addAward(QStringLiteral("一等奖"), 4, 1);
        markWinner(*m_folder, award, ids[0]);
        ConsoleWindow console;
        auto *progressLabel = child<QLabel>(console, "progressLabel");
        QCOMPARE(progressLabel->text(), QStringLiteral("25%"));
        store::exec(m_folder->db(), QStringLiteral("DELETE FROM UserList"));
        Q_EMIT events().rosterChanged();
        QCOMPARE(progressLabel->text(), QStringLiteral("0%"));
    }

    void tutorialLinkOnlyWithAnAddress() {
        {
            ConsoleWindow console;
            QVERIFY(child<LinkLabel>(console, "tutorialLink")->isHidden());
        }
        const QString address = QStringLiteral("https://example.org/quellio/教程");
        m_folder->setConfig(QStringLiteral("main"), QStringLiteral("TutorialUrl"), address);
        ConsoleWindow console;
        auto *link = child<LinkLabel>(console, "tutorialLink");
        QVERIFY(!link->isHidden());
        QCOMPARE(link->text(), QStringLiteral("视频教程"));
        Q_EMIT link->clicked();
        QCOMPARE(m_ui->openedUrls, QList<QUrl>{QUrl(address)});
    }

private:
    std::unique_ptr<TempProgramFolder> m_folder;
    ScriptedUi *m_ui = nullptr;
    QList<QPointer<RecordingStage>> *m_stages = nullptr;
};

QTEST_MAIN(TestConsole)
#include "tst_console.moc"
