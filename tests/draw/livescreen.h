#pragma once

// The draw screen on the real draw movie, offscreen, on one screen the size of a projector.

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QPointer>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <memory>

#include "chrome/widgethelpers.h"
#include "core/appstate.h"
#include "core/fonts.h"
#include "core/store.h"
#include "draw/engine.h"
#include "draw/view/drawwindow.h"
#include "stage/view/qmlstage.h"
#include "stage/view/stagefactory.h"
#include "support/dialogwatch.h"
#include "support/fakemediabackend.h"
#include "support/scriptedui.h"
#include "support/stageclick.h"
#include "support/tempprogramfolder.h"

constexpr int kLandingMs = 15000;

struct LiveScreen {
    TempProgramFolder folder;
    ScriptedUi *ui = installScriptedUi();
    FakeMedia *media = installFakeMedia();
    bool started = false;
    std::unique_ptr<DrawWindow> form;
    QPointer<QmlStage> movie;  // the stage the screen made

    LiveScreen() {
        installFontSubstitutes();
        started = folder.start();
        appState().luckDelay = 0;
        appState().isTimeProtect = 1;
        appState().timeProtectNum = 1;
        setStageFactory([this](QWidget *parent) {
            auto made = std::make_unique<QmlStage>(parent);
            movie = made.get();
            return made;
        });
    }
    ~LiveScreen() {
        form.reset();
        setStageFactory({});
    }
    // Opens the screen and waits for the movie's start-up dialogue.
    bool open() {
        form = std::make_unique<DrawWindow>();
        QSignalSpy ready(form.get(), &DrawWindow::stageReady);
        form->show();
        if (ready.isEmpty() && !ready.wait(15000)) return false;
        if (!stage() || !stage()->root()) return false;
        // The button bar stays up, so that the test can click it at any time.
        stage()->root()->setProperty("restMs", 600000);
        return true;
    }
    QString stageErrors() const { return stage() ? stage()->errors().join('\n') : QString(); }
    QmlStage *stage() const { return movie; }
    draw::DrawEngine &engine() const { return *form->findChild<draw::DrawEngine *>(); }
    const draw::DrawSession &session() const { return engine().session(); }
    int state() const { return engine().state(); }
    QTimer *timer(const char *name) const { return form->findChild<QTimer *>(QLatin1String(name)); }
    // A key as the operator presses it on the stage.
    void key(int qtKey) {
        QKeyEvent press(QEvent::KeyPress, qtKey, Qt::NoModifier);
        QCoreApplication::sendEvent(stage()->quickWindow(), &press);
        QCoreApplication::processEvents();
    }
    bool click(const QString &button) {
        return clickStageItem(stage()->quickWindow(), stage()->root(), button);
    }
    int count(const QString &sql, const QVariantList &values = {}) {
        return store::scalar(folder.db(), sql, values).toInt();
    }
    bool waitState(int wanted, int timeoutMs = kLandingMs) {
        return QTest::qWaitFor([&] { return state() == wanted; }, timeoutMs);
    }
    // Space starts, and once the stop guard is over, space stops; true once landed and stored.
    bool drawWithSpace() {
        key(Qt::Key_Space);
        if (!waitState(draw::Running, 3000)) return false;
        if (!QTest::qWaitFor([&] { return !timer("stopGuardTimer")->isActive(); }, 5000))
            return false;
        key(Qt::Key_Space);
        return waitState(draw::Result);
    }
};

// Runs a test object on the offscreen platform with one screen the size of a projector, so that
// full screen means 1920 x 1080 as in the hall.
template <class Test>
int runOnProjector(int argc, char *argv[]) {
    QTemporaryDir dir;
    const QString config = dir.filePath(QStringLiteral("screens.json"));
    QFile file(config);
    if (!file.open(QIODevice::WriteOnly)) return 1;
    file.write(R"({"screens": [{"name": "hall", "x": 0, "y": 0, "width": 1920, "height": 1080,
                   "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    file.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + config.toLocal8Bit());
    QApplication app(argc, argv);
    Test test;
    return QTest::qExec(&test, argc, argv);
}
