// Frame times of the draw stage while 60 cells roll at 1920x1080, on whatever Qt Quick backend
// the environment selects (the figures in the notes use QT_QPA_PLATFORM=offscreen and
// QT_QUICK_BACKEND=software, the slowest case: no GPU at all).
//
//   bench_stage [seconds]

#include <QApplication>
#include <QElapsedTimer>
#include <QQuickWindow>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <vector>

#include "core/widgethelpers.h"
#include "stage/protocol.h"
#include "stage/qmlstage.h"

namespace {

QString names(int count, int first) {
    static const QStringList family{"王", "李", "张", "刘", "陈", "杨", "黄", "赵", "周", "吴"};
    static const QStringList given{"伟", "芳", "娜", "敏", "静", "磊", "洋",   "艳", "勇",
                                   "军", "杰", "娟", "涛", "明", "超", "秀英", "华", "慧"};
    QStringList parts{QStringLiteral("0")};
    for (int i = 0; i < count; ++i)
        parts << family[(first + i) % family.size()] + given[(first * 7 + i * 3) % given.size()] +
                     QStringLiteral("$") + QString::number(first + i);
    return parts.join(QStringLiteral("|"));
}

double percentile(std::vector<double> values, double p) {
    if (values.empty()) return 0;
    std::sort(values.begin(), values.end());
    return values[size_t(p * double(values.size() - 1))];
}

}  // namespace

int main(int argc, char **argv) {
    QApplication app(argc, argv);
    installFontSubstitutes();
    const int seconds = argc > 1 ? std::max(1, atoi(argv[1])) : 5;

    QmlStage stage(nullptr, QmlStage::Host::Window);
    stage.widget()->resize(1920, 1080);
    bool asked = false;
    QObject::connect(&stage, &Stage::FSCommand, [&](const QString &command, const QString &) {
        if (command == proto::cmd::loadok) stage.SetVariable(proto::gotoPlay2, proto::go);
        if (command == proto::cmd::asok) asked = true;
    });
    if (!stage.loadMovie(QStringLiteral(QUELLIO_FACTORY_DIR "/sys/stage.qml"))) {
        std::fprintf(stderr, "cannot load the stage: %s\n",
                     qPrintable(stage.errors().join(QLatin1Char('\n'))));
        return 1;
    }
    stage.widget()->show();
    QElapsedTimer wait;
    wait.start();
    while (!asked && wait.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);

    stage.SetVariable(proto::setAsBgColor, QStringLiteral("1920|1080|0x9E1B22|0"));
    stage.SetVariable(proto::ClsPage, proto::yes);
    stage.SetVariable(proto::vbAddJpBox, QStringLiteral("ssm_vornex|160|200|1600|760|7"));
    stage.SetVariable(proto::vbndluck, names(60, 1));
    stage.SetVariable(
        proto::vbLoadBlock,
        QStringLiteral("欧阳秀英|160|160|0|60|round|0xFFF4D6|92|12|12|8|黑体|0xB0171F|"
                       "32|100|true|false|false|center|0|s|"));
    stage.SetVariable(proto::changBtn, proto::buttons::start);

    // Time each frame from the start of its scene-graph sync to the end of its rendering.
    QQuickWindow *window = stage.quickWindow();
    std::vector<double> frames, intervals;
    QElapsedTimer clock, frame;
    clock.start();
    qint64 lastSwap = -1;
    QObject::connect(
        window, &QQuickWindow::beforeSynchronizing, window, [&] { frame.start(); },
        Qt::DirectConnection);
    // The first second (cells created, glyphs cached) is a warm-up and is not counted.
    const qint64 warmUpNs = 1000LL * 1000 * 1000;
    QObject::connect(
        window, &QQuickWindow::afterRendering, window,
        [&] {
            if (clock.nsecsElapsed() < warmUpNs) return;
            if (frame.isValid()) frames.push_back(double(frame.nsecsElapsed()) / 1e6);
            const qint64 now = clock.nsecsElapsed();
            if (lastSwap >= 0) intervals.push_back(double(now - lastSwap) / 1e6);
            lastSwap = now;
        },
        Qt::DirectConnection);

    QElapsedTimer push;
    push.start();
    int pushes = 0;
    while (clock.elapsed() < (seconds + 1) * 1000) {
        if (push.elapsed() >= 200) {  // the program's 5 Hz sample
            push.restart();
            stage.SetVariable(proto::vbPushLst, names(60, 100 + (pushes++ % 50) * 60));
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }

    std::printf("stage, 60 rolling cells at 1920x1080, %d s after 1 s warm-up, backend %s\n",
                seconds,
                qPrintable(QQuickWindow::sceneGraphBackend().isEmpty()
                               ? QStringLiteral("default")
                               : QQuickWindow::sceneGraphBackend()));
    std::printf("frames rendered: %zu\n", frames.size());
    std::printf("frame time (sync+render): median %.2f ms, 95%% %.2f ms, worst %.2f ms\n",
                percentile(frames, 0.5), percentile(frames, 0.95), percentile(frames, 1.0));
    std::printf("frame interval: median %.2f ms, worst %.2f ms\n", percentile(intervals, 0.5),
                percentile(intervals, 1.0));
    return 0;
}
