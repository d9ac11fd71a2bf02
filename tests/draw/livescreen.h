#pragma once

// The draw screen on the real draw movie, offscreen, on one screen the size of a projector.

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPainter>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <memory>

#include "chrome/widgethelpers.h"
#include "core/appstate.h"
#include "core/fonts.h"
#include "core/store.h"
#include "draw/view/drawwindow.h"
#include "stage/view/qmlstage.h"
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

    LiveScreen() {
        installFontSubstitutes();
        started = folder.start();
        appState().luckDelay = 0;
        appState().isTimeProtect = 1;
        appState().timeProtectNum = 1;
    }
    // Opens the screen and waits for the movie's start-up dialogue; `prepare` may replace the
    // screen's dialog hooks first.
    bool open(const std::function<void(DrawWindow &)> &prepare = {}) {
        form = std::make_unique<DrawWindow>();
        if (prepare) prepare(*form);
        form->show();
        QElapsedTimer clock;
        clock.start();
        while (!form->isStageReady() && clock.elapsed() < 15000)
            QTest::qWait(20);
        if (!form->isStageReady() || !stage() || !stage()->root()) return false;
        // The button bar stays up, so that the test can click it at any time.
        stage()->root()->setProperty("restMs", 600000);
        return true;
    }
    QString stageErrors() const { return stage() ? stage()->errors().join('\n') : QString(); }
    QmlStage *stage() const { return qobject_cast<QmlStage *>(form->stage()); }
    int state() const { return form->session().drawState; }
    // A key as the operator presses it on the stage.
    void key(int qtKey) {
        QKeyEvent press(QEvent::KeyPress, qtKey, Qt::NoModifier);
        QCoreApplication::sendEvent(stage()->quickWindow(), &press);
        QTest::qWait(30);
    }
    bool click(const QString &button) {
        return clickStageItem(stage()->quickWindow(), stage()->root(), button);
    }
    int count(const QString &sql, const QVariantList &values = {}) {
        return store::scalar(folder.db(), sql, values).toInt();
    }
    bool waitState(int wanted, int timeoutMs = kLandingMs) {
        QElapsedTimer clock;
        clock.start();
        while (state() != wanted && clock.elapsed() < timeoutMs)
            QTest::qWait(20);
        return state() == wanted;
    }
    // Space starts, and once the stop guard is over, space stops; true once landed and stored.
    bool drawWithSpace() {
        key(Qt::Key_Space);
        if (!waitState(draw::Running, 3000)) return false;
        QElapsedTimer clock;
        clock.start();
        while (form->tmDelay().isActive() && clock.elapsed() < 5000)
            QTest::qWait(20);
        key(Qt::Key_Space);
        return waitState(draw::Result);
    }
    // The stage as the hall sees it, with the stop guard's panel when it is up.
    void save(const QString &name) {
        const QString dir = qEnvironmentVariable("QUELLIO_SCREENSHOT_DIR");
        QTest::qWait(80);
        QImage image = stage()->grab();
        if (form->picInfo()->isVisible()) {
            QPainter painter(&image);
            const QPixmap panel = form->picInfo()->grab();
            painter.drawPixmap(form->mapFromGlobal(form->picInfo()->pos()), panel);
        }
        QVERIFY(!image.isNull());
        if (dir.isEmpty()) return;
        QDir().mkpath(dir);
        QVERIFY(image.save(dir + QLatin1Char('/') + name));
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
