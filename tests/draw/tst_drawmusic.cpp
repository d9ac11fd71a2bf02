#include <QTemporaryDir>
#include <QtTest>

#include "draw/drawmusic.h"
#include "sound/musicplayer.h"
#include "support/fakemediabackend.h"
#include "support/filebytes.h"

using namespace Qt::StringLiterals;

namespace {

// The four sounds as files in a temporary folder the fake player knows the lengths of.
struct Sounds {
    QTemporaryDir dir;
    FakeMedia *media = installFakeMedia();
    QString bg = file(QStringLiteral("bg.mp3"), 60000);
    QString start = file(QStringLiteral("start.mp3"), 5000);
    QString win = file(QStringLiteral("win.wav"), 2000);
    QString parade = file(QStringLiteral("parade.mp3"), 30000);

    QString file(const QString &name, qint64 lengthMs) {
        const QString path = writeFile(dir.filePath(name), "x");
        media->lengths.insert(path, lengthMs);
        return path;
    }
    // Each sound on or off, by the letters b(ackground), s(tart), w(in), p(arade).
    music::Settings settings(const QString &on) const {
        music::Settings result;
        const QString paths[] = {bg, start, win, parade};
        const QString letters = QStringLiteral("bswp");
        for (int slot = 0; slot < music::SlotCount; ++slot) {
            result[size_t(slot)].on = on.contains(letters[slot]);
            result[size_t(slot)].path = paths[slot];
        }
        return result;
    }
    FakeMediaBackend *player() const { return media->last(); }
    // The letter of the sound that plays, or "-" in silence.
    QString nowPlaying(const draw::DrawMusic &music) const {
        if (player()->current != MediaBackend::State::Playing) return u"-"_s;
        return QStringList{u"b"_s, u"s"_s, u"w"_s, u"p"_s}.value(
            QStringList{bg, start, win, parade}.indexOf(music.current()), u"?"_s);
    }
};

}  // namespace

class TestDrawMusic : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void winSoundIsTheOperatorsOrTheChime() {
        music::Settings settings;
        QCOMPARE(draw::winSoundPath(settings, QStringLiteral("/party/")),
                 QStringLiteral("/party/sys/win.wav"));
        settings[music::Luck].path = QStringLiteral("/party/Music/gong.wav");
        QCOMPARE(draw::winSoundPath(settings, QStringLiteral("/party/")),
                 QStringLiteral("/party/Music/gong.wav"));
    }

    void loopsAndComesBackWhereItWasLeft() {
        Sounds sounds;
        draw::DrawMusic music;
        music.setSettings(sounds.settings(QStringLiteral("bsw")), sounds.win);
        music.startBackground();
        FakeMediaBackend *player = sounds.player();
        player->position = 12400;
        // What plays and where, e.g. "b 12000".
        const auto at = [&] {
            return sounds.nowPlaying(music) + ' ' + QString::number(player->position);
        };
        music.playStartSound();
        player->finish();  // the start sound loops
        QCOMPARE(at(), u"s 0"_s);
        music.playWinSound();
        QCOMPARE(at(), u"w 0"_s);
        // The chime ends: back to the background, at the whole second it was left.
        player->finish();
        QCOMPARE(at(), u"b 12000"_s);
        player->finish();  // the background loops from its beginning
        QCOMPARE(at(), u"b 0"_s);
        // A background that plays already is left alone.
        player->calls.clear();
        music.backToBackground();
        music.endParade();
        QVERIFY(player->calls.isEmpty());
    }

    void whatFollowsAMoment_data() {
        QTest::addColumn<QString>("on");
        QTest::addColumn<QString>("moment");
        QTest::addColumn<QString>("playing");  // the letter of the sound playing after it, or "-"
        QTest::newRow("win sound") << u"bw"_s << u"win"_s << u"w"_s;
        QTest::newRow("no win sound: the background") << u"b"_s << u"win"_s << u"b"_s;
        QTest::newRow("no win sound, no background: silence") << u"s"_s << u"win"_s << u"-"_s;
        QTest::newRow("win file missing: start goes on") << u"swx"_s << u"win"_s << u"s"_s;
        QTest::newRow("start sound off: what plays goes on") << u"w"_s << u"start"_s << u"w"_s;
        QTest::newRow("parade music") << u"bp"_s << u"parade"_s << u"p"_s;
        QTest::newRow("parade over: the background") << u"bp"_s << u"paradeEnd"_s << u"b"_s;
        QTest::newRow("parade over, no background: silence") << u"p"_s << u"paradeEnd"_s << u"-"_s;
        QTest::newRow("after a cancel: the background") << u"bw"_s << u"back"_s << u"b"_s;
        QTest::newRow("cancel, no background: what plays goes on") << u"w"_s << u"back"_s << u"w"_s;
    }

    // Each moment starts from the start sound, or the win sound when the start sound is off.
    void whatFollowsAMoment() {
        QFETCH(QString, on);
        QFETCH(QString, moment);
        QFETCH(QString, playing);
        Sounds sounds;
        draw::DrawMusic music;
        music.setSettings(sounds.settings(on), sounds.win);
        if (on.contains('x')) QFile::remove(sounds.win);
        music.playStartSound();
        if (!on.contains('s')) music.playWinSound();
        if (moment == QLatin1String("win")) music.playWinSound();
        if (moment == QLatin1String("start")) music.playStartSound();
        if (moment == QLatin1String("parade")) music.playParadeMusic();
        if (moment == QLatin1String("paradeEnd")) {
            music.playParadeMusic();
            music.endParade();
        }
        if (moment == QLatin1String("back")) music.backToBackground();
        // Silence holds also when the player still reports the end of what it was told to stop.
        if (playing == QLatin1String("-")) sounds.player()->finish();
        QCOMPARE(sounds.nowPlaying(music), playing);
    }

    // The mute and the minimised window hold across the change of file.
    void muteAndMinimiseHoldForEveryFile() {
        Sounds sounds;
        draw::DrawMusic music;
        music.setSettings(sounds.settings(u"bsp"_s), sounds.win);
        music.startBackground();
        music.setMuted(true);
        music.playStartSound();
        QCOMPARE(sounds.player()->volume, 0.0f);
        music.setMuted(false);
        QCOMPARE(sounds.player()->volume, 1.0f);
        music.setMinimised(true);
        QCOMPARE(sounds.player()->current, MediaBackend::State::Paused);
        music.setMinimised(false);
        QCOMPARE(sounds.player()->current, MediaBackend::State::Playing);
        // A parade that ended in silence stays silent when the window comes back.
        music.setSettings(sounds.settings(u"p"_s), sounds.win);
        music.playParadeMusic();
        music.endParade();
        music.setMinimised(true);
        music.setMinimised(false);
        QCOMPARE(sounds.player()->current, MediaBackend::State::Stopped);
    }
};

QTEST_MAIN(TestDrawMusic)
#include "tst_drawmusic.moc"
