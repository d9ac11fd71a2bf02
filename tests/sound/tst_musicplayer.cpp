#include <QSignalSpy>
#include <QtTest>

#include "sound/musicplayer.h"
#include "support/fakemediabackend.h"

namespace {

const QString kSong = QStringLiteral("/music/song.mp3");
const QString kChime = QStringLiteral("/sys/win.wav");

}  // namespace

class TestMusicPlayer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_media = installFakeMedia();
        m_media->lengths.insert(kSong, 180000);
        m_media->lengths.insert(kChime, 2500);
    }

    void volume_data() {
        QTest::addColumn<int>("set");
        QTest::addColumn<int>("stored");
        QTest::addColumn<float>("linear");
        QTest::newRow("positive becomes full") << 5 << 0 << 1.0f;
        QTest::newRow("-20 dB") << -2000 << -2000 << 0.1f;
        QTest::newRow("-6 dB") << -600 << -600 << 0.501187f;
        QTest::newRow("below silence") << -20000 << -10000 << 0.0f;
    }

    void volume() {
        QFETCH(int, set);
        QFETCH(int, stored);
        QFETCH(float, linear);
        MusicPlayer music;
        music.setFileName(kSong);
        music.setVolume(set);
        QCOMPARE(music.volume(), stored);
        QVERIFY(qAbs(m_media->last()->volume - linear) < 1e-5f);
    }

    void stateNumbering() {
        MusicPlayer music;
        QSignalSpy states(&music, &MusicPlayer::stateChanged);
        QSignalSpy ends(&music, &MusicPlayer::ended);
        music.setFileName(kSong);
        QList<int> seen{music.state(), music.hasEnded()};
        music.play();
        seen << music.state() << music.hasEnded();
        music.pause();
        seen << music.state();
        music.play();
        music.stop();
        QCOMPARE(seen << music.state(), (QList<int>{0, true, 1, false, 2, 0}));
        QCOMPARE(states, (QList<QVariantList>{{1}, {2}, {1}, {0}}));
        QCOMPARE(ends.size(), 0);
    }

    void playAfterTheEndRewinds() {
        MusicPlayer music;
        QSignalSpy ends(&music, &MusicPlayer::ended);
        music.setFileName(kChime);
        music.play();
        FakeMediaBackend *player = m_media->last();
        player->finish();
        QCOMPARE(ends.size(), 1);
        QVERIFY(music.hasEnded());
        QCOMPARE(music.position(), music.duration());
        player->calls.clear();
        music.play();
        QCOMPARE(player->calls, (QStringList{"seek 0", "play"}));
        QCOMPARE(music.state(), 1);

        // Resuming in the middle does not rewind.
        music.pause();
        music.setPosition(1.0);
        player->calls.clear();
        music.play();
        QCOMPARE(player->calls, QStringList{"play"});
    }

    void positionIsClamped_data() {
        QTest::addColumn<double>("set");
        QTest::addColumn<double>("position");
        QTest::newRow("inside") << 1.25 << 1.25;
        QTest::newRow("negative") << -5.0 << 0.0;
        QTest::newRow("past the end") << 99.0 << 2.5;
    }

    void positionIsClamped() {
        QFETCH(double, set);
        QFETCH(double, position);
        MusicPlayer music;
        music.setFileName(kChime);
        music.setPosition(set);
        QCOMPARE(music.position(), position);
    }

    void positionBeforeTheLengthIsKnown() {
        // The background music resumes where it was left, right after opening the file again.
        MusicPlayer music;
        m_media->last()->deferLength = true;
        music.setFileName(kSong);
        music.setPosition(42.5);
        music.play();
        QCOMPARE(music.position(), 42.5);
        m_media->last()->reportLength();
        QCOMPARE(m_media->last()->position, 42500);
        QCOMPARE(music.position(), 42.5);
    }

    void secondFileStopsTheFirst() {
        MusicPlayer music;
        music.setFileName(kSong);
        music.setVolume(-10000);
        music.play();
        FakeMediaBackend *player = m_media->last();
        player->calls.clear();
        music.setFileName(kChime);
        QCOMPARE(player->calls.first(), QStringLiteral("load ") + kChime);
        QCOMPARE(music.fileName(), kChime);
        // Stopped, and a new file starts at full volume.
        QCOMPARE((QList<int>{music.state(), music.volume()}), (QList<int>{0, 0}));
        QCOMPARE(player->volume, 1.0f);
    }

    void nothingToPlayIsSilent() {
        MusicPlayer music;
        music.play();  // no file yet
        QVERIFY(!m_media->last()->calls.contains(QStringLiteral("play")));
        music.setFileName(QStringLiteral("/nowhere/missing.mp3"));
        QCOMPARE(music.duration(), 0.0);
        music.play();
        QCOMPARE(music.state(), 0);
        QVERIFY(music.hasEnded());
    }

    void releasingStopsTheSound() {
        auto *music = new MusicPlayer;
        music->setFileName(kSong);
        music->play();
        QPointer<FakeMediaBackend> player = m_media->last();
        QCOMPARE(player->current, MediaBackend::State::Playing);
        delete music;
        QVERIFY(player.isNull());
    }

private:
    FakeMedia *m_media = nullptr;
};

QTEST_MAIN(TestMusicPlayer)
#include "tst_musicplayer.moc"
