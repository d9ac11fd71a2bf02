// The draw screen on the real movie as an operator meets it on the night: a projector beside
// the desk, a winner who gave up, a program not set up yet.

#include <QComboBox>
#include <QScreen>

#include "awards/view/drawwizarddialog.h"
#include "draw/drawdialogs.h"
#include "draw/livescreen.h"
#include "stage/protocol.h"
#include "stage/stagescreens.h"
#include "support/childwidget.h"
#include "support/moviecall.h"

namespace {

QString objectText(LiveScreen &s, const QString &name) {
    return callMovie(s.stage()->root(), "objectText", name).toString();
}

QScreen *screenNamed(const QString &name) {
    for (QScreen *screen : QGuiApplication::screens())
        if (screen->name() == name) return screen;
    return nullptr;
}

}  // namespace

class TestStageNight : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void defaultScreen_data() {
        QTest::addColumn<QList<QRect>>("screens");
        QTest::addColumn<int>("console");
        QTest::addColumn<int>("expected");
        const QRect laptop(0, 0, 1366, 768), projector(1366, 0, 1024, 768), wall(0, 0, 3840, 2160);
        QTest::newRow("one screen") << QList<QRect>{laptop} << 0 << 0;
        QTest::newRow("smaller projector") << QList<QRect>{laptop, projector} << 0 << 1;
        QTest::newRow("console on the big one") << QList<QRect>{wall, laptop} << 0 << 1;
        QTest::newRow("largest of the others") << QList<QRect>{laptop, projector, wall} << 0 << 2;
        QTest::newRow("console unknown") << QList<QRect>{laptop, wall} << -1 << 1;
    }

    void defaultScreen() {
        QFETCH(QList<QRect>, screens);
        QFETCH(int, console);
        QTEST(stagescreens::defaultIndex(screens, console), "expected");
    }

    void stageOpensOnTheLargestScreenBesideTheConsole() {
        LiveScreen s;
        QVERIFY(s.started);
        s.folder.addUsers({QStringLiteral("张伟")});
        s.folder.addAward(QStringLiteral("一等奖"), 1, 1);
        QVERIFY(s.open());
        QCOMPARE(s.form->screen()->name(), QStringLiteral("hall"));
        QTRY_COMPARE(s.form->geometry(), screenNamed(QStringLiteral("hall"))->geometry());
    }

    void wizardOffersTheScreensByNameAndSize() {
        TempProgramFolder folder;
        QVERIFY(folder.start());
        installScriptedUi();
        DrawWizardDialog wizard(DrawWizardDialog::Purpose::StartDraw);
        auto *screens = child<QComboBox>(wizard, "screenCombo");
        QCOMPARE(screens->count(), 2);
        QCOMPARE(screens->currentText(), QStringLiteral("hall  1920 × 1080"));
        screens->setCurrentIndex(screens->findText(QStringLiteral("desk  1280 × 1024")));
        child<QPushButton>(wizard, "okButton")->click();
        QCOMPARE(appState().stageScreen, QStringLiteral("desk"));
        appState().stageScreen.clear();
    }

    // The give-up dialog changes the stage's buttons while the press that opened it is still on
    // the stack; the dialog stays open a moment after, as it does for the operator.
    void giveUpRightAfterABatchLands() {
        LiveScreen s;
        QVERIFY(s.started);
        s.folder.addUsers({QStringLiteral("张伟"), QStringLiteral("王芳"), QStringLiteral("李娜")});
        s.folder.addAward(QStringLiteral("一等奖"), 2, 1);
        QVERIFY(s.open());
        QVERIFY(s.drawWithSpace());
        const qint64 absent =
            s.session().lastWinnerIds.section(QLatin1Char(','), 0, 0).toLongLong();
        bool opened = false;
        whenDialogOpens<GiveUpDialog>(
            [&](GiveUpDialog &dialog) {
                tick(dialog, absent);
                s.ui->answers.enqueue(true);
                button(dialog, "giveUpButton")->click();
                QTimer::singleShot(300, &dialog, &QDialog::reject);
            },
            &opened);
        QVERIFY(s.click(proto::btn::btnGiveUp));
        QTRY_VERIFY(opened);
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=1")), 1);
        // The stage goes on: the freed place is drawn again.
        QVERIFY(s.drawWithSpace());
    }

    void windowModeIsARealWindowThatKeepsTheKeyboard() {
        LiveScreen s;
        QVERIFY(s.started);
        s.folder.addUsers({QStringLiteral("张伟"), QStringLiteral("王芳")});
        s.folder.addAward(QStringLiteral("一等奖"), 1, 1);
        QVERIFY(s.open());
        QVERIFY(s.click(proto::btn::btnScreenN));
        const QRect hall = s.form->screen()->geometry();
        QTRY_VERIFY(s.form->width() < hall.width() && s.form->height() < hall.height());
        // The picture fills the window: the same scale both ways, no strip.
        QTRY_VERIFY([&] {
            const QVariantList xy = callMovie(s.stage()->root(), "stageScale").toList();
            return qAbs(xy[0].toDouble() - xy[1].toDouble()) < 0.01 &&
                   qAbs(xy[0].toDouble() * appState().bgW - s.form->width()) <= 2;
        }());
        // The keyboard goes on working without a click on the stage.
        QTRY_COMPARE(QGuiApplication::focusWindow(),
                     static_cast<QWindow *>(s.stage()->quickWindow()));
        QVERIFY(s.click(proto::btn::btnScreenF));
        QTRY_COMPARE(s.form->geometry(), hall);
        QTRY_COMPARE(QGuiApplication::focusWindow(),
                     static_cast<QWindow *>(s.stage()->quickWindow()));
    }

    void anEmptyProgramSaysWhatIsMissing() {
        LiveScreen s;
        QVERIFY(s.started);
        QVERIFY(s.open());
        for (const char *name : {"txt_jxname", "txt_jpname", "txt_jpinfo"})
            QVERIFY2(!objectText(s, QLatin1String(name)).contains(QLatin1Char('$')), name);
        s.ui->clear();
        s.key(Qt::Key_Space);
        QTRY_COMPARE(s.ui->records.size(), 1);
        QVERIFY(s.ui->last().text.contains(QStringLiteral("名单设置")));
        QVERIFY(s.ui->last().text.contains(QStringLiteral("奖项设置")));
        QCOMPARE(s.state(), int(draw::Idle));
    }
};

// A desk monitor that shows the console, and the hall's projector beside it.
int main(int argc, char *argv[]) {
    QTemporaryDir dir;
    const QString config = dir.filePath(QStringLiteral("screens.json"));
    QFile file(config);
    if (!file.open(QIODevice::WriteOnly)) return 1;
    file.write(R"({"screens": [
        {"name": "desk", "x": 0, "y": 0, "width": 1280, "height": 1024,
         "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
        {"name": "hall", "x": 1280, "y": 0, "width": 1920, "height": 1080,
         "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    file.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + config.toLocal8Bit());
    QApplication app(argc, argv);
    TestStageNight test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_stagenight.moc"
