#include <QSignalSpy>
#include <QTemporaryDir>
#include <QUrl>
#include <QVBoxLayout>
#include <QtTest>

#include "stage/keycodes.h"
#include "stage/photoprovider.h"
#include "stage/view/qmlstage.h"
#include "stage/view/stagefactory.h"

namespace {

// A movie of the stage's shape with the given members, in `dir`.
QString writeMovie(const QTemporaryDir &dir, const char *members) {
    const QString path = dir.path() + QStringLiteral("/movie.qml");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return QString();
    file.write(QByteArray("import QtQuick\nItem {\n id: root\n"
                          " signal fsCommand(string command, string args)\n") +
               members + "}\n");
    return path;
}

}  // namespace

// The host side of the stage: key numbering, photo decoding and the QmlStage plumbing.
class TestStageHost : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keyCodes_data() {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("code");
        QTest::newRow("A") << int(Qt::Key_A) << 0 << 65;
        QTest::newRow("shifted letter") << int(Qt::Key_Q) << int(Qt::ShiftModifier) << 81;
        QTest::newRow("Z") << int(Qt::Key_Z) << 0 << 90;
        QTest::newRow("0") << int(Qt::Key_0) << 0 << 48;
        QTest::newRow("9") << int(Qt::Key_9) << 0 << 57;
        QTest::newRow("keypad 9") << int(Qt::Key_9) << int(Qt::KeypadModifier) << 105;
        QTest::newRow("keypad enter") << int(Qt::Key_Enter) << int(Qt::KeypadModifier) << 13;
        QTest::newRow("escape") << int(Qt::Key_Escape) << 0 << 27;
        QTest::newRow("page down") << int(Qt::Key_PageDown) << 0 << 34;
        QTest::newRow("down") << int(Qt::Key_Down) << 0 << 40;
        QTest::newRow("delete") << int(Qt::Key_Delete) << 0 << 46;
        QTest::newRow("F1") << int(Qt::Key_F1) << 0 << 112;
        QTest::newRow("keypad minus") << int(Qt::Key_Minus) << int(Qt::KeypadModifier) << 109;
        QTest::newRow("minus") << int(Qt::Key_Minus) << 0 << 189;
        QTest::newRow("unknown") << int(Qt::Key_VolumeUp) << 0 << -1;
    }

    void keyCodes() {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(int, code);
        QCOMPARE(stagekeys::windowsKeyCode(key, Qt::KeyboardModifiers(modifiers)), code);
    }

    void photosDecodeAtTheSizeShown() {
        QTemporaryDir dir;
        const QString path = dir.path() + QStringLiteral("/big.jpg");
        QImage big(4000, 3000, QImage::Format_RGB32);
        big.fill(Qt::darkRed);
        QVERIFY(big.save(path, "JPG"));
        // Fills the box exactly, never the whole picture.
        QCOMPARE(PhotoProvider::decode(path, QSize(200, 200)).size(), QSize(200, 200));
        // A picture smaller than the box is not blown up.
        QCOMPARE(PhotoProvider::decode(path, QSize(8000, 8000)).size(), QSize(4000, 3000));
        QVERIFY(PhotoProvider::decode(dir.path() + QStringLiteral("/none.jpg"), QSize(50, 50))
                    .isNull());
    }

    void photoCacheStaysWithinItsLimit() {
        QTemporaryDir dir;
        QImage image(640, 640, QImage::Format_RGB32);
        PhotoProvider::clearCache();
        PhotoProvider provider;
        // 1,500 different photos at 300 by 300 would need over 500 MB if all were kept.
        for (int i = 0; i < 1500; ++i) {
            image.fill(QColor::fromHsv(i % 360, 200, 200));
            const QString path = dir.path() + QStringLiteral("/p%1.png").arg(i);
            if (i < 40) QVERIFY(image.save(path, "PNG"));
            QSize size;
            const QString id = QString::fromUtf8(
                QUrl::toPercentEncoding(dir.path() + QStringLiteral("/p%1.png").arg(i % 40)));
            provider.requestImage(id + QStringLiteral("?%1").arg(i), &size, QSize(300, 300));
            provider.requestImage(id, &size, QSize(300 + i % 200, 300));
            QVERIFY(PhotoProvider::cachedKb() <= PhotoProvider::cacheLimitKb());
        }
        QVERIFY(PhotoProvider::cachedKb() > PhotoProvider::cacheLimitKb() / 2);
        PhotoProvider::clearCache();
    }

    void warmUpDecodesAhead() {
        QTemporaryDir dir;
        QStringList paths;
        QImage image(800, 600, QImage::Format_RGB32);
        for (int i = 0; i < 12; ++i) {
            image.fill(QColor::fromHsv(15 + i * 30, 200, 200));
            paths << dir.path() + QStringLiteral("/w%1.jpg").arg(i);
            QVERIFY(image.save(paths.last(), "JPG"));
        }
        paths << dir.path() + QStringLiteral("/missing.jpg");
        PhotoProvider::clearCache();
        PhotoProvider::warm(paths, QSize(120, 160));
        PhotoProvider::waitForWarmUp();
        // 12 photos of 120 x 160 in 32 bits: 75 KB each.
        QCOMPARE(PhotoProvider::cachedKb(), 12 * 75);
        PhotoProvider provider;
        QSize size;
        const QImage hit = provider.requestImage(
            QString::fromUtf8(QUrl::toPercentEncoding(paths.first())), &size, QSize(120, 160));
        QCOMPARE(size, QSize(120, 160));
        QVERIFY(qAbs(hit.pixelColor(60, 80).hue() - 15) <= 4);
        QCOMPARE(PhotoProvider::cachedKb(), 12 * 75);
        PhotoProvider::clearCache();
    }

    void rollingTakesOnlyDecodedPhotos() {
        QTemporaryDir dir;
        QImage image(300, 300, QImage::Format_RGB32);
        image.fill(Qt::darkRed);
        const QString decoded = dir.path() + QStringLiteral("/decoded.jpg");
        const QString fresh = dir.path() + QStringLiteral("/fresh.jpg");
        QVERIFY(image.save(decoded) && image.save(fresh));
        PhotoProvider::clearCache();
        PhotoProvider provider;
        const QSize box(100, 100);
        const auto request = [&](const QString &path) {
            return provider.requestImage(QString::fromUtf8(QUrl::toPercentEncoding(path)), nullptr,
                                         box);
        };
        QCOMPARE(request(decoded).size(), box);
        PhotoProvider::setDecodeOnRequest(false);
        const QList<QSize> rolled{request(decoded).size(), request(fresh).size()};
        PhotoProvider::setDecodeOnRequest(true);
        QCOMPARE(rolled, (QList<QSize>{box, QSize(1, 1)}));
        QCOMPARE(request(fresh).size(), box);
    }

    void missingOrBrokenMovieFailsCleanly() {
        QmlStage stage;
        QVERIFY(!stage.loadMovie(QStringLiteral("/nowhere/stage.qml")));
        QVERIFY(!stage.errors().isEmpty());
        stage.setVariable(QStringLiteral("ClsPage"), QStringLiteral("yes"));  // no crash
        QTemporaryDir dir;
        QVERIFY(!stage.loadMovie(writeMovie(dir, " this is not qml\n")));
        QVERIFY(!stage.errors().isEmpty());
    }

    void commandsArriveAsFsCommand() {
        QTemporaryDir dir;
        const QString movie =
            writeMovie(dir,
                       " function setVariable(name, value) { fsCommand(name, value) }\n"
                       " function keyDown(code) { fsCommand(\"key\", code) }\n");
        QmlStage stage(nullptr, QmlStage::Host::Widget);
        QVERIFY2(stage.loadMovie(movie), qPrintable(stage.errors().join('\n')));
        QCOMPARE(stage.widget()->contextMenuPolicy(), Qt::NoContextMenu);
        QSignalSpy spy(&stage, &Stage::commandReceived);
        // Delivered synchronously: the answer is there when setVariable returns.
        stage.setVariable(QStringLiteral("vbLoadJx"), QStringLiteral("一等奖|3|1|3|电脑|"));
        QCOMPARE(spy, (QList<QVariantList>{{"vbLoadJx", "一等奖|3|1|3|电脑|"}}));
        QKeyEvent key(QEvent::KeyPress, Qt::Key_7, Qt::KeypadModifier);
        QCoreApplication::sendEvent(stage.widget()->findChild<QWidget *>(), &key);
        QCOMPARE(spy.value(1), (QVariantList{"key", "103"}));
    }

    void movieMovedIntoAWindowStillTalks() {
        // The console builds its pages before their window; under a display server the widget then
        // builds its movie anew (tst_stagehost_x11 runs this case on Xvfb).
        QTemporaryDir dir;
        const QString movie = writeMovie(dir,
                                         " Timer { interval: 0; running: true; onTriggered: "
                                         "root.fsCommand(\"hello\", \"\") }\n");
        auto *page = new QWidget;
        QmlStage stage(page, QmlStage::Host::Widget);
        QVERIFY(stage.loadMovie(movie));
        QWidget window;
        auto *layout = new QVBoxLayout(&window);
        layout->addWidget(page);
        window.show();
        QSignalSpy spy(&stage, &Stage::commandReceived);
        QTRY_COMPARE(spy, (QList<QVariantList>{{"hello", ""}}));
    }

    void factoryGivesQmlStages() {
        setStageFactory(nullptr);
        std::unique_ptr<Stage> stage = createStage(nullptr);
        QVERIFY(qobject_cast<QmlStage *>(stage.get()));
    }
};

QTEST_MAIN(TestStageHost)
#include "tst_stagehost.moc"
