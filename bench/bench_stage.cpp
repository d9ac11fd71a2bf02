// Frame times of the draw stage while 60 cells roll at 1920x1080, on whatever Qt Quick backend
// the environment selects (the figures in the notes use QT_QPA_PLATFORM=offscreen and
// QT_QUICK_BACKEND=software, the slowest case: no GPU at all). Three rolls: names only; photos
// and names from a roster of 1,000 photos; the same from 20,000 photo paths, to show that the
// decoded-photo cache keeps memory bounded.
//
//   bench_stage [seconds per roll] [widget|view] [photo folder] [names|1000|20000]
//
// With "widget" the stage is hosted in a QQuickWidget instead of the QQuickView that the draw
// screen uses, to compare the two hosts. A photo folder given is kept, so a second run skips
// writing the portraits and a profiler sees only the rolls. The last argument runs one roll.

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QQuickWindow>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QWidget>

#include <time.h>

#include <algorithm>
#include <cstdio>
#include <vector>

#include "chrome/widgethelpers.h"
#include "core/fonts.h"
#include "stage/photoprovider.h"
#include "stage/protocol.h"
#include "stage/view/qmlstage.h"

namespace {

QString nameOf(int id) {
    static const QStringList family{"王", "李", "张", "刘", "陈", "杨", "黄", "赵", "周", "吴"};
    static const QStringList given{"伟", "芳", "娜", "敏", "静", "磊", "洋",   "艳", "勇",
                                   "军", "杰", "娟", "涛", "明", "超", "秀英", "华", "慧"};
    return family[id % family.size()] + given[(id / 10) % given.size()];
}

// "luckType|name$id|..." for `count` random ids below `roster`.
QString sample(int luckType, int count, int roster) {
    QStringList parts{QString::number(luckType)};
    for (int i = 0; i < count; ++i) {
        const int id = 1 + int(QRandomGenerator::global()->bounded(roster));
        parts << nameOf(id) + QStringLiteral("$") + QString::number(id);
    }
    return parts.join(QStringLiteral("|"));
}

double percentile(std::vector<double> values, double p) {
    if (values.empty()) return 0;
    std::sort(values.begin(), values.end());
    return values[size_t(p * double(values.size() - 1))];
}

// CPU time of the calling thread: on a machine shared with other work, the wall clock of a
// frame also counts the time the thread waited for a core.
double threadCpuMs() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return double(t.tv_sec) * 1e3 + double(t.tv_nsec) / 1e6;
}

long residentKb() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) return -1;
    for (const QByteArray &line : status.readAll().split('\n'))
        if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').value(0).toLong();
    return -1;
}

// 1,000 camera-sized portraits (1200 x 1600 JPEG); `paths` distinct paths cycle over them
// through symbolic links, as a roster of that many photos would.
QString makePhotos(const QString &dir, int files, int paths) {
    QImage image(1200, 1600, QImage::Format_RGB32);
    for (int i = 0; i < files; ++i) {
        if (QFile::exists(dir + QStringLiteral("/f%1.jpg").arg(i))) continue;
        QPainter p(&image);
        p.fillRect(image.rect(), QColor::fromHsv((i * 37) % 360, 120, 200));
        p.setBrush(QColor(246, 214, 186));
        p.drawEllipse(QRectF(360, 300, 480, 560));
        p.end();
        image.save(dir + QStringLiteral("/f%1.jpg").arg(i), "JPG", 85);
    }
    QStringList value{dir + QLatin1Char('/')};
    for (int id = 1; id <= paths; ++id) {
        QString name = QStringLiteral("f%1.jpg").arg((id - 1) % files);
        if (id > files) {
            const QString link = QStringLiteral("p%1.jpg").arg(id);
            QFile::link(dir + QLatin1Char('/') + name, dir + QLatin1Char('/') + link);
            name = link;
        }
        value << name + QStringLiteral("$") + QString::number(id);
    }
    return value.join(QStringLiteral("|"));
}

QmlStage::Host host = QmlStage::Host::Window;

void runRoll(const char *label, int luckType, const QString &photos, int roster, int seconds) {
    QmlStage stage(nullptr, host);
    stage.widget()->resize(1920, 1080);
    bool asked = false;
    QObject::connect(&stage, &Stage::commandReceived, [&](const QString &command, const QString &) {
        if (command == proto::cmd::loadok) stage.setVariable(proto::gotoPlay2, proto::go);
        if (command == proto::cmd::asok) asked = true;
    });
    if (!stage.loadMovie(QStringLiteral(QUELLIO_FACTORY_DIR "/sys/stage.qml"))) {
        std::fprintf(stderr, "cannot load the stage: %s\n",
                     qPrintable(stage.errors().join(QLatin1Char('\n'))));
        return;
    }
    stage.widget()->show();
    QElapsedTimer wait;
    wait.start();
    while (!asked && wait.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);

    if (!photos.isEmpty()) stage.setVariable(proto::loadAllUserPics, photos);
    // luckDelay 10, the factory setting: a name change every 150 ms, 180 ms with photos.
    stage.setVariable(proto::setAsBgColor, QStringLiteral("1920|1080|0x9E1B22|10"));
    stage.setVariable(proto::ClsPage, proto::yes);
    stage.setVariable(proto::vbAddJpBox, QStringLiteral("ssm_vornex|120|120|1680|860|7"));
    stage.setVariable(proto::vbndluck, sample(luckType, 60, roster));
    stage.setVariable(proto::vbLoadBlock,
                      QStringLiteral("欧阳秀英|160|160|%1|60|round|0xFFF4D6|92|12|12|8|黑体|"
                                     "0xB0171F|32|100|true|false|false|center|0|s|")
                          .arg(luckType));
    stage.setVariable(proto::changBtn, proto::buttons::start);

    // Each frame from the start of its scene-graph sync to the end of its rendering; the first
    // second (cells created, glyphs cached) is a warm-up and is not counted.
    QQuickWindow *window = stage.quickWindow();
    std::vector<double> frames, intervals, cpu;
    double cpuStart = 0;
    QElapsedTimer clock, frame;
    clock.start();
    qint64 lastSwap = -1;
    const qint64 warmUpNs = 1000LL * 1000 * 1000;
    QObject::connect(
        window, &QQuickWindow::beforeSynchronizing, window,
        [&] {
            frame.start();
            cpuStart = threadCpuMs();
        },
        Qt::DirectConnection);
    QObject::connect(
        window, &QQuickWindow::afterRendering, window,
        [&] {
            const qint64 now = clock.nsecsElapsed();
            if (now < warmUpNs) return;
            if (frame.isValid()) {
                frames.push_back(double(frame.nsecsElapsed()) / 1e6);
                cpu.push_back(threadCpuMs() - cpuStart);
            }
            if (lastSwap >= 0) intervals.push_back(double(now - lastSwap) / 1e6);
            lastSwap = now;
        },
        Qt::DirectConnection);

    QElapsedTimer push;
    push.start();
    while (clock.elapsed() < (seconds + 1) * 1000) {
        if (push.elapsed() >= 200) {  // the program's 5 Hz sample
            push.restart();
            stage.setVariable(proto::vbPushLst, sample(luckType, 60, roster));
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    std::printf("%s\n", label);
    std::printf("  frames: %zu in %d s\n", frames.size(), seconds);
    std::printf("  frame time (sync+render): median %.2f ms, 95%% %.2f ms, worst %.2f ms\n",
                percentile(frames, 0.5), percentile(frames, 0.95), percentile(frames, 1.0));
    std::printf(
        "  frame CPU time of the render thread: median %.2f ms, 95%% %.2f ms, worst %.2f ms\n",
        percentile(cpu, 0.5), percentile(cpu, 0.95), percentile(cpu, 1.0));
    std::printf("  frame interval: median %.2f ms, worst %.2f ms\n", percentile(intervals, 0.5),
                percentile(intervals, 1.0));
    std::printf("  resident memory %ld MB, decoded-photo cache %d MB (limit %d MB)\n",
                residentKb() / 1024, PhotoProvider::cachedKb() / 1024,
                PhotoProvider::cacheLimitKb() / 1024);
}

}  // namespace

int main(int argc, char **argv) {
    QApplication app(argc, argv);
    installFontSubstitutes();
    const int seconds = argc > 1 ? std::max(1, atoi(argv[1])) : 5;
    if (argc > 2 && QByteArray(argv[2]) == "widget") host = QmlStage::Host::Widget;
    std::printf("stage at 1920x1080 in a %s, 60 rolling cells, platform %s, Qt Quick backend %s\n",
                host == QmlStage::Host::Widget ? "QQuickWidget" : "QQuickView",
                qPrintable(QGuiApplication::platformName()),
                qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND")
                    ? "default"
                    : qPrintable(qEnvironmentVariable("QT_QUICK_BACKEND")));
    const QByteArray only = argc > 4 ? QByteArray(argv[4]) : QByteArray();
    const auto wanted = [&](const char *roll) { return only.isEmpty() || only == roll; };
    if (wanted("names")) runRoll("names only", 0, QString(), 5000, seconds);
    if (only == "names") return 0;

    QTemporaryDir temporary;
    const QString folder = argc > 3 ? QString::fromLocal8Bit(argv[3]) : temporary.path();
    QDir().mkpath(folder);
    QElapsedTimer making;
    making.start();
    const QString thousand = makePhotos(folder, 1000, 1000);
    std::printf("(1,000 portraits of 1200x1600 written in %.1f s)\n", making.elapsed() / 1000.0);
    if (wanted("1000"))
        runRoll("photo and name, roster of 1,000 photos", 2, thousand, 1000, seconds);
    PhotoProvider::clearCache();
    const QString twenty = makePhotos(folder, 1000, 20000);
    if (wanted("20000"))
        runRoll("photo and name, roster of 20,000 photos", 2, twenty, 20000, seconds);
    return 0;
}
