#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTabWidget>
#include <QTextEdit>
#include <QtTest>

#include "console/templatepanel.h"
#include "core/events.h"
#include "design/designerdocument.h"
#include "design/templatepage.h"
#include "design/view/designerwindow.h"
#include "design/view/objectdialogs.h"
#include "design/view/textdialogs.h"
#include "draw/livescreen.h"
#include "stage/protocol.h"
#include "support/childwidget.h"
#include "support/filebytes.h"
#include "support/moviecall.h"
#include "support/recordingstage.h"

namespace {

const QString kTemplate = QStringLiteral("通用模板（16:9)");

QString templateFile(const TempProgramFolder &folder) {
    return design::templatePath(folder.path(), kTemplate);
}

std::unique_ptr<DesignerWindow> openDesigner(const TempProgramFolder &folder) {
    design::copyToWorkingFile(folder.path(), kTemplate);
    appState().skinFile = templateFile(folder);
    auto window = std::make_unique<DesignerWindow>();
    window->resize(1600, 900);
    window->show();
    return window;
}

QVariant column(DesignerWindow &window, const QString &table, const QString &name,
                const QString &col) {
    return store::scalar(window.document().db(),
                         QStringLiteral("SELECT %1 FROM %2 WHERE ObjName=?").arg(col, table),
                         {name});
}

bool saveLit(DesignerWindow &window) {
    return window.findChild<QAction *>(QStringLiteral("saveAction"))->isEnabled();
}

// The designer on the real movie, at 100 %, so page pixels are stage pixels.
struct LiveDesigner {
    LiveScreen live;
    std::unique_ptr<DesignerWindow> window;

    bool open() {
        window = openDesigner(live.folder);
        return QTest::qWaitFor([&] { return !info(design::sysobj::ssm_vornex).isEmpty(); }, 15000);
    }
    QmlStage &stage() { return static_cast<QmlStage &>(window->stage()); }
    QVariantMap info(const QString &name) {
        if (!window || !stage().root()) return {};
        return callMovie(stage().root(), "objectInfo", name).toMap();
    }
    void drag(QPoint from, QPoint to, const std::function<void()> &whileHeld = {}) {
        QWindow *surface = stage().quickWindow();
        QTest::mousePress(surface, Qt::LeftButton, {}, from);
        for (int step = 1; step <= 4; ++step)
            QTest::mouseMove(surface, from + (to - from) * step / 4);
        if (whileHeld) whileHeld();
        QTest::mouseRelease(surface, Qt::LeftButton, {}, to);
    }
    QVariant stored(const QString &name, const QString &col) {
        return column(*window, QStringLiteral("LuckObj"), name, col);
    }
};

// The designer on a recording stage that has answered loadok.
struct RecordedDesigner {
    TempProgramFolder folder;
    ScriptedUi *ui = installScriptedUi();
    QList<QPointer<RecordingStage>> &stages = installRecordingStages();
    std::unique_ptr<DesignerWindow> window;

    RecordedDesigner() {
        folder.start();
        window = openDesigner(folder);
        stage().reply(proto::cmd::loadok);
    }
    ~RecordedDesigner() {
        window.reset();
        setStageFactory({});
    }
    RecordingStage &stage() { return *stages.last(); }
    QStringList lastFields(const QString &variable) {
        return stage().values(variable).value(stage().values(variable).size() - 1).split('|');
    }
    QVariant stored(const QString &table, const QString &name, const QString &col) {
        return column(*window, table, name, col);
    }
};

}  // namespace

class TestDesignerWindow : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void dragSnapResizeKeysAndUndo() {
        LiveDesigner d;
        QVERIFY2(d.open(), qPrintable(d.stage().errors().join('\n')));
        const QByteArray original = fileDigest(d.window->document().workingFile());

        // The award name dropped 4 px off the column the other texts share snaps onto an edge, with
        // a guide on it while held.
        QVariant guide;
        d.drag({110, 270}, {114, 300}, [&] { guide = d.stage().root()->property("guideX"); });
        QCOMPARE(d.window->selectedObject(), design::sysobj::txt_jxname);
        const int x = d.stored("txt_jxname", "ObjX").toInt();
        const int w = d.info("txt_jxname").value("width").toInt();
        QVERIFY(QList<int>({x, x + w / 2, x + w}).contains(guide.toInt()));
        QVERIFY(x != 100);
        QVERIFY(d.stored("txt_jxname", "ObjY").toInt() > 250);

        // The draw area's bottom-right handle resizes it.
        d.drag({600 + 100, 240 + 100}, {600 + 100, 240 + 100});  // select it
        d.drag({600 + 1224, 240 + 700}, {600 + 1124, 240 + 650});
        QCOMPARE(d.stored("ssm_vornex", "ObjW").toInt(), 1124);
        QCOMPARE(d.stored("ssm_vornex", "ObjH").toInt(), 650);

        QWidget *surface = d.window->findChild<QQuickWidget *>();
        QTest::keyClick(surface, Qt::Key_Right);
        QTest::keyClick(surface, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(d.stored("ssm_vornex", "ObjX").toInt(), 601);
        QCOMPARE(d.stored("ssm_vornex", "ObjY").toInt(), 250);
        QTRY_COMPARE(d.info("ssm_vornex").value("x").toInt(), 601);

        for (int i = 0; i < 4; ++i)
            QTest::keyClick(d.window.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(fileDigest(d.window->document().workingFile()), original);
        QVERIFY(!saveLit(*d.window));
        QTest::keyClick(d.window.get(), Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(d.stored("txt_jxname", "ObjX").toInt(), x);
        QVERIFY(saveLit(*d.window));

        const QString added = d.window->document().addText();
        QTRY_COMPARE(d.window->selectedObject(), added);
        QTest::keyClick(surface, Qt::Key_Delete);
        QVERIFY(!d.stored(added, "ObjName").isValid());
        QTRY_VERIFY(d.info(added).isEmpty());
    }

    // Open on the 16:9 template, restyle it, save, and the draw screen shows the new look.
    void restyleReachesTheDrawStage() {
        LiveDesigner d;
        d.live.folder.addUsers({QStringLiteral("张三"), QStringLiteral("李四")});
        d.live.folder.addAward(QStringLiteral("一等奖"), 1, 1);
        QVERIFY(d.open());

        bool opened = false;
        whenDialogOpens<TextObjectDialog>(
            [](TextObjectDialog &dialog) {
                child<QTextEdit>(dialog, "contentEdit")->setPlainText("本轮：$Name2");
                child<QPushButton>(dialog, "colorButton")->click();
                child<QPushButton>(dialog, "okButton")->click();
            },
            &opened);
        d.live.ui->colors.enqueue(QColor(0x12, 0x34, 0x56));
        d.window->editObject(design::sysobj::txt_jxname);
        QVERIFY(opened);
        QCOMPARE(d.stored("txt_jxname", "fColor").toString(), QStringLiteral("0x123456"));

        QImage picture(64, 48, QImage::Format_RGB32);
        picture.fill(Qt::yellow);
        const QString file = d.live.folder.path("logo.png");
        picture.save(file);
        d.live.ui->files.enqueue(file);
        child<QPushButton>(*d.window, "addImageButton")->click();
        const QString logo = d.window->selectedObject();
        QVERIFY(logo.startsWith("img_"));

        QSignalSpy saved(&events(), &Events::templateSaved);
        d.window->findChild<QAction *>(QStringLiteral("saveAction"))->trigger();
        QCOMPARE(saved.size(), 1);
        d.window->close();

        appState().skinConnStr = templateFile(d.live.folder);
        QVERIFY(d.live.open());
        QObject *draw = d.live.stage()->root();
        QVERIFY(callMovie(draw, "objectNames").toStringList().contains(logo));
        QVERIFY(callMovie(draw, "objectText", design::sysobj::txt_jxname)
                    .toString()
                    .startsWith(QStringLiteral("本轮：")));
    }

    void panelsReachThePreviewsAndTheFontPick() {
        RecordedDesigner d;
        auto *tabs = d.window->findChild<QTabWidget *>(QStringLiteral("tabs"));
        tabs->setCurrentIndex(1);
        auto *dotX = d.window->findChild<QLineEdit *>(QStringLiteral("dotXEdit"));
        dotX->setText(QStringLiteral("33"));
        QCOMPARE(d.lastFields(proto::vbLuckBox).value(16), QStringLiteral("33"));
        Q_EMIT dotX->editingFinished();
        QCOMPARE(d.stored("LuckPlay", "blockValue", "DotX").toInt(), 33);

        bool opened = false;
        whenDialogOpens<DrawFontDialog>(
            [](DrawFontDialog &dialog) {
                child<QComboBox>(dialog, "sizeCombo")->setCurrentText("86px");
                child<QPushButton>(dialog, "okButton")->click();
            },
            &opened);
        d.window->findChild<QPushButton *>(QStringLiteral("fontButton"))->click();
        QVERIFY(opened);
        QCOMPARE(d.stored("LuckPlay", "blockValue", "fSize").toInt(), 86);
        QCOMPARE(d.lastFields(proto::vbLuckBox).value(2), QStringLiteral("86"));
        d.window->activateWindow();
        QTRY_VERIFY(d.window->isActiveWindow());
        QTest::keyClick(d.window.get(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(d.stored("LuckPlay", "blockValue", "fSize").toInt(), 44);

        tabs->setCurrentIndex(2);
        d.window->findChild<QSlider *>(QStringLiteral("boxWSlider"))->setValue(100);
        QCOMPARE(d.stored("LuckPlay", "playTitle", "boxW").toInt(), 100);
        QCOMPARE(d.lastFields(proto::vbLuckPlay).value(0), QStringLiteral("1920"));
        d.window->findChild<QCheckBox *>(QStringLiteral("scrollCheck"))->click();
        QCOMPARE(d.stage().values(proto::vbStartScroll).last(), QStringLiteral("yes|5"));
    }

    void shortSelectionReport() {
        RecordedDesigner d;
        d.stage().reply(proto::cmd::selObj, QStringLiteral("txt_zbt|1|2|3|4|5"));
        d.stage().reply(proto::cmd::selObj, QStringLiteral("txt_fbt|1|2|3|4"));
        QCOMPARE(d.ui->last().text, QStringLiteral("参数传递错误,数组数量少于5"));
        QCOMPARE(d.window->selectedObject(), design::sysobj::txt_zbt);
    }

    void restoreFromTheFactoryCopy() {
        RecordedDesigner d;
        d.window->document().addText();
        d.window->save();
        const QString backup = d.folder.path("skin/bak/") + kTemplate + QStringLiteral(".jsk");
        QVERIFY(fileDigest(templateFile(d.folder)) != fileDigest(backup));
        d.ui->answers.enqueue(true);
        d.window->restoreTemplate();
        QCOMPARE(fileDigest(d.window->document().workingFile()), fileDigest(backup));
        QVERIFY(!saveLit(*d.window));
        QVERIFY(d.stage().names().contains(proto::ClsPage));
    }

    void closeAsksOnlyWhenChanged_data() {
        QTest::addColumn<bool>("change");
        QTest::addColumn<bool>("answer");
        QTest::newRow("unchanged") << false << false;
        QTest::newRow("changed, kept") << true << true;
        QTest::newRow("changed, dropped") << true << false;
    }

    void closeAsksOnlyWhenChanged() {
        QFETCH(bool, change);
        QFETCH(bool, answer);
        RecordedDesigner d;
        const QByteArray before = fileDigest(templateFile(d.folder));
        if (change) d.window->document().addText();
        d.ui->answers.enqueue(answer);
        d.window->close();
        QCOMPARE(d.ui->texts().contains(QStringLiteral("是否保存修改内容?")), change);
        QCOMPARE(fileDigest(templateFile(d.folder)) != before, change && answer);
        QVERIFY(!QFile::exists(d.folder.path("skin/sdb.tmp")));
    }

    void consoleOpensTheDesigner() {
        TempProgramFolder folder;
        installScriptedUi();
        installRecordingStages();
        folder.start();
        {
            TemplatePanel panel;
            for (QPushButton *button : panel.findChildren<QPushButton *>())
                if (button->text() == QStringLiteral("编辑模板")) button->click();
            QPointer<DesignerWindow> designer = panel.findChild<DesignerWindow *>();
            QVERIFY(designer);
            QVERIFY(QFile::exists(folder.path("skin/sdb.tmp")));
            designer->close();
        }
        setStageFactory({});
    }
};

int main(int argc, char *argv[]) {
    return runOnProjector<TestDesignerWindow>(argc, argv);
}
#include "tst_designerwindow.moc"
