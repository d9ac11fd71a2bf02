#include <QSignalSpy>
#include <QtTest>

#include "sound/musicplayer.h"
#include "support/fakemediabackend.h"

namespace {

const QString kSong = QStringLiteral("/music/song.mp3");
const QString kChime = QStringLiteral("/sys/win.wav");

}  // namespace

class TestClsMusic : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void volume_data();
    void volume();
    void balanceAndSpeedAreClamped();
    void stateNumbering();
    void playWithoutFileDoesNothing();
    void playAfterTheEndRewinds();
    void positionIsClamped_data();
    void positionIsClamped();
    void positionBeforeTheLengthIsKnown();
    void secondFileStopsTheFirst();
    void unreadableFileIsSilent();
    void releasingStopsTheSound();
    void qtBackendWithoutSoundCard();

private:
    FakeMedia *m_media = nullptr;
};

void TestClsMusic::init() {
    m_media = installFakeMedia();
    m_media->lengths.insert(kSong, 180000);
    m_media->lengths.insert(kChime, 2500);
}

void TestClsMusic::volume_data() {
    QTest::addColumn<int>("set");
    QTest::addColumn<int>("stored");
    QTest::addColumn<float>("linear");
    QTest::newRow("full") << 0 << 0 << 1.0f;
    QTest::newRow("positive becomes full") << 5 << 0 << 1.0f;
    QTest::newRow("-20 dB") << -2000 << -2000 << 0.1f;
    QTest::newRow("-6 dB") << -600 << -600 << 0.501187f;
    QTest::newRow("silence") << -10000 << -10000 << 0.0f;
    QTest::newRow("below silence") << -20000 << -10000 << 0.0f;
}

void TestClsMusic::volume() {
    QFETCH(int, set);
    QFETCH(int, stored);
    QFETCH(float, linear);
    MusicPlayer music;
    music.setFileName(kSong);
    music.setVolume(set);
    QCOMPARE(music.Volume(), stored);
    QVERIFY(qAbs(m_media->last()->volume - linear) < 1e-5f);
}

void TestClsMusic::balanceAndSpeedAreClamped() {
    MusicPlayer music;
    music.setFileName(kSong);
    music.setBalance(20000);
    QCOMPARE(music.Balance(), 10000);
    music.setBalance(-20000);
    QCOMPARE(music.Balance(), -10000);
    music.setSpeed(0);
    QCOMPARE(music.Speed(), 0.1);
    QCOMPARE(m_media->last()->rate, 0.1);
    music.setSpeed(1.5);
    QCOMPARE(music.Speed(), 1.5);

    // A new file starts at full volume, centred, at normal speed.
    music.setVolume(-10000);
    music.setFileName(kChime);
    QCOMPARE(music.Volume(), 0);
    QCOMPARE(music.Balance(), 0);
    QCOMPARE(music.Speed(), 1.0);
    QCOMPARE(m_media->last()->volume, 1.0f);
}

void TestClsMusic::stateNumbering() {
    MusicPlayer music;
    QSignalSpy states(&music, &MusicPlayer::stateChanged);
    QSignalSpy ends(&music, &MusicPlayer::ended);
    music.setFileName(kSong);
    QCOMPARE(music.State(), 0);
    QVERIFY(music.hasEnded());
    music.Play();
    QCOMPARE(music.State(), 1);
    QVERIFY(!music.hasEnded());
    music.Pause();
    QCOMPARE(music.State(), 2);
    music.Play();
    music.StopPlaying();
    QCOMPARE(music.State(), 0);
    QCOMPARE(states.size(), 4);
    const QList<int> seen = {states.at(0).at(0).toInt(), states.at(1).at(0).toInt(),
                             states.at(2).at(0).toInt(), states.at(3).at(0).toInt()};
    QCOMPARE(seen, (QList<int>{1, 2, 1, 0}));
    QCOMPARE(ends.size(), 0);
}

void TestClsMusic::playWithoutFileDoesNothing() {
    MusicPlayer music;
    music.Play();
    QCOMPARE(music.State(), 0);
    QVERIFY(!m_media->last()->calls.contains(QStringLiteral("play")));
}

void TestClsMusic::playAfterTheEndRewinds() {
    MusicPlayer music;
    QSignalSpy ends(&music, &MusicPlayer::ended);
    music.setFileName(kChime);
    music.Play();
    FakeMediaBackend *player = m_media->last();
    player->finish();
    QCOMPARE(ends.size(), 1);
    QVERIFY(music.hasEnded());
    QCOMPARE(music.Position(), music.Duration());
    player->calls.clear();
    music.Play();
    QCOMPARE(player->calls, (QStringList{"seek 0", "play"}));
    QCOMPARE(music.State(), 1);

    // Resuming in the middle does not rewind.
    music.Pause();
    music.setPosition(1.0);
    player->calls.clear();
    music.Play();
    QCOMPARE(player->calls, QStringList{"play"});
}

void TestClsMusic::positionIsClamped_data() {
    QTest::addColumn<double>("set");
    QTest::addColumn<double>("position");
    QTest::newRow("inside") << 1.25 << 1.25;
    QTest::newRow("negative") << -5.0 << 0.0;
    QTest::newRow("past the end") << 99.0 << 2.5;
}

void TestClsMusic::positionIsClamped() {
    QFETCH(double, set);
    QFETCH(double, position);
    MusicPlayer music;
    music.setFileName(kChime);
    QCOMPARE(music.Duration(), 2.5);
    music.setPosition(set);
    QCOMPARE(music.Position(), position);
}

void TestClsMusic::positionBeforeTheLengthIsKnown() {
    // The background music resumes where it was left, right after opening the file again.
    MusicPlayer music;
    m_media->last()->deferLength = true;
    music.setFileName(kSong);
    music.setPosition(42.5);
    music.Play();
    QCOMPARE(music.Position(), 42.5);
    m_media->last()->reportLength();
    QCOMPARE(m_media->last()->position, 42500);
    QCOMPARE(music.Position(), 42.5);
}

void TestClsMusic::secondFileStopsTheFirst() {
    MusicPlayer music;
    music.setFileName(kSong);
    music.Play();
    FakeMediaBackend *player = m_media->last();
    player->calls.clear();
    music.setFileName(kChime);
    QCOMPARE(player->calls.first(), QStringLiteral("load ") + kChime);
    QCOMPARE(music.State(), 0);
    QCOMPARE(music.fileName(), kChime);
}

void TestClsMusic::unreadableFileIsSilent() {
    MusicPlayer music;
    music.setFileName(QStringLiteral("/nowhere/missing.mp3"));
    QVERIFY(!music.HasAudio());
    QCOMPARE(music.Duration(), 0.0);
    music.Play();
    QCOMPARE(music.State(), 0);
    QVERIFY(music.hasEnded());
    QCOMPARE(music.Width(), 0);
    QCOMPARE(music.Height(), 0);
}

void TestClsMusic::releasingStopsTheSound() {
    auto *music = new MusicPlayer;
    music->setFileName(kSong);
    music->Play();
    QPointer<FakeMediaBackend> player = m_media->last();
    QCOMPARE(player->current, MediaBackend::State::Playing);
    player->calls.clear();
    delete music;
    QVERIFY(player.isNull());
}

void TestClsMusic::qtBackendWithoutSoundCard() {
    // The real player must neither fail nor block on a machine without an audio device.
    setMediaBackendFactory({});
    MusicPlayer music;
    music.setFileName(QStringLiteral("/nowhere/missing.wav"));
    music.setVolume(-10000);
    music.Play();
    QTest::qWait(200);
    QVERIFY(!music.HasAudio());
    QCOMPARE(music.Duration(), 0.0);
    music.StopPlaying();
    QCOMPARE(music.State(), 0);
}

QTEST_MAIN(TestClsMusic)
#include "tst_musicplayer.moc"
