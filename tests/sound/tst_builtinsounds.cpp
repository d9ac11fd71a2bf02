#include <QFile>
#include <QtEndian>
#include <QtTest>

#include "sound/builtinsounds.h"
#include "sound/musicplayer.h"
#include "support/testpaths.h"

namespace {

struct WavInfo {
    bool valid = false;
    int channels = 0;
    int sampleRate = 0;
    int bits = 0;
    double seconds = 0;
    double peak = 0;
    double rms = 0;
};

WavInfo readWav(const QByteArray &bytes) {
    WavInfo info;
    if (bytes.size() < 44 || !bytes.startsWith("RIFF") || bytes.mid(8, 8) != "WAVEfmt " ||
        bytes.mid(36, 4) != "data")
        return info;
    const auto *data = reinterpret_cast<const uchar *>(bytes.constData());
    info.channels = qFromLittleEndian<quint16>(data + 22);
    info.sampleRate = static_cast<int>(qFromLittleEndian<quint32>(data + 24));
    info.bits = qFromLittleEndian<quint16>(data + 34);
    const quint32 dataBytes = qFromLittleEndian<quint32>(data + 40);
    info.valid = qFromLittleEndian<quint32>(data + 4) == quint32(bytes.size() - 8) &&
                 dataBytes == quint32(bytes.size() - 44);
    const int count = static_cast<int>(dataBytes / 2);
    double sum = 0;
    for (int i = 0; i < count; ++i) {
        const double s = qFromLittleEndian<qint16>(data + 44 + 2 * i) / 32768.0;
        info.peak = qMax(info.peak, qAbs(s));
        sum += s * s;
    }
    info.seconds = count / double(qMax(1, info.sampleRate));
    info.rms = count > 0 ? std::sqrt(sum / count) : 0;
    return info;
}

}  // namespace

class TestBuiltInSounds : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void factoryFolderHasTheSounds_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<double>("minSeconds");
        QTest::addColumn<double>("maxSeconds");
        QTest::newRow("win chime") << sound::kWinSound << 1.0 << 3.0;
        QTest::newRow("drum roll") << sound::kRollSound << 2.0 << 5.0;
        QTest::newRow("fanfare") << sound::kFanfareSound << 2.0 << 5.0;
    }

    void factoryFolderHasTheSounds() {
        QFETCH(QString, file);
        QFETCH(double, minSeconds);
        QFETCH(double, maxSeconds);
        QFile wav(testpaths::factoryDir() + file);
        QVERIFY2(wav.open(QIODevice::ReadOnly), qPrintable(wav.fileName()));
        const WavInfo info = readWav(wav.readAll());
        QVERIFY(info.valid);
        QCOMPARE((QList<int>{info.channels, info.sampleRate, info.bits}),
                 (QList<int>{1, 44100, 16}));
        QVERIFY(info.seconds >= minSeconds && info.seconds <= maxSeconds);
        // Loud enough to hear in a hall, with headroom left.
        QVERIFY(info.peak > 0.7 && info.peak < 0.95);
        QVERIFY(info.rms > 0.03);
    }

    void samplesAreClippedNotWrapped() {
        const WavInfo info = readWav(sound::wavFile({0.0f, 2.0f, -2.0f, 0.5f}, 8000));
        QVERIFY(info.valid);
        QCOMPARE(info.sampleRate, 8000);
        QVERIFY(info.peak > 0.999);
        const QByteArray bytes = sound::wavFile({2.0f, -2.0f}, 8000);
        QCOMPARE(bytes.mid(44), QByteArray::fromHex("ff7f0180"));  // 32767, -32767
    }

    void realPlayerReadsTheChime() {
        // Qt Multimedia opens the file and knows its length also without an audio device.
        MusicPlayer music;
        music.setFileName(testpaths::factoryDir() + sound::kWinSound);
        music.setVolume(MusicPlayer::kSilence);
        QTRY_VERIFY_WITH_TIMEOUT(music.duration() > 2.0, 5000);
        QVERIFY(music.duration() < 2.5);
        QCOMPARE(music.state(), 0);
        music.setPosition(99);
        QTRY_COMPARE(music.position(), music.duration());
    }
};

QTEST_MAIN(TestBuiltInSounds)
#include "tst_builtinsounds.moc"
