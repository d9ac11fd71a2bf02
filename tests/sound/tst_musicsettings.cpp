#include <QFile>
#include <QtTest>

#include "core/appstate.h"
#include "core/profile.h"
#include "core/settings.h"
#include "sound/musicsettings.h"
#include "support/filebytes.h"
#include "support/tempprogramfolder.h"

// Which sound files a save keeps, copies and deletes; the dialog itself is tested on its own.
class TestMusicSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
        for (int slot = 0; slot < music::SlotCount; ++slot)
            store(slot, QStringLiteral("no"));
    }
    void cleanup() { m_folder.reset(); }

    // The start sound moves to the background row and the start row gets a new sound.
    void movingASoundToAnotherRowKeepsIt() {
        writeFile(music("bg.mp3"), "bg");
        writeFile(music("drum.wav"), "drum");
        store(music::Background, "bg.mp3");
        store(music::Start, "drum.wav");
        music::Settings chosen = shown();
        chosen[music::Background].path = music("drum.wav");
        chosen[music::Start].path = writeFile(outside("new.wav"), "new");
        music::saveSettings(appState().appPath, chosen);
        QCOMPARE(key(music::Background), QStringLiteral("drum.wav"));
        QCOMPARE(key(music::Start), QStringLiteral("new.wav"));
        QCOMPARE(readFile(music("drum.wav")), QByteArray("drum"));
        QCOMPARE(readFile(music("new.wav")), QByteArray("new"));
        QVERIFY(!QFile::exists(music("bg.mp3")));  // replaced and named by no row
    }

    // The start row's drum.wav is replaced, while the background takes a drum.wav from elsewhere.
    void fileJustCopiedUnderTheOldNameStays() {
        writeFile(music("drum.wav"), "old drum");
        store(music::Start, "drum.wav");
        music::Settings chosen = shown();
        QDir().mkpath(outside("other"));
        chosen[music::Background].path = writeFile(outside("other/drum.wav"), "new drum");
        chosen[music::Start].path = writeFile(outside("new.wav"), "new");
        music::saveSettings(appState().appPath, chosen);
        QCOMPARE(key(music::Background), QStringLiteral("drum.wav"));
        QCOMPARE(key(music::Start), QStringLiteral("new.wav"));
        QCOMPARE(readFile(music("drum.wav")), QByteArray("new drum"));
    }

    void sameNameFromElsewhereReplacesTheRowsOwnFile() {
        writeFile(music("drum.wav"), "old drum");
        store(music::Background, "drum.wav");
        music::Settings chosen = shown();
        chosen[music::Background].path = writeFile(outside("drum.wav"), "new drum");
        music::saveSettings(appState().appPath, chosen);
        QCOMPARE(key(music::Background), QStringLiteral("drum.wav"));
        QCOMPARE(readFile(music("drum.wav")), QByteArray("new drum"));
    }

    void sameNameFromElsewhereBesideAnotherRowsSound() {
        writeFile(music("drum.wav"), "background drum");
        store(music::Background, "drum.wav");
        music::Settings chosen = shown();
        chosen[music::Start].path = writeFile(outside("drum.wav"), "start drum");
        music::saveSettings(appState().appPath, chosen);
        QCOMPARE(key(music::Background), QStringLiteral("drum.wav"));
        QCOMPARE(readFile(music("drum.wav")), QByteArray("background drum"));
        QCOMPARE(key(music::Start), QStringLiteral("drum-2.wav"));
        QCOMPARE(readFile(music("drum-2.wav")), QByteArray("start drum"));
    }

    void fileInsideMusicIsSaved() {
        writeFile(music("fanfare.mp3"), "fanfare");
        music::Settings chosen = shown();
        chosen[music::Luck].path = music("fanfare.mp3");
        music::saveSettings(appState().appPath, chosen);
        QCOMPARE(key(music::Luck), QStringLiteral("fanfare.mp3"));
        QCOMPARE(music::readSettings(appState().appPath)[music::Luck].path, music("fanfare.mp3"));
    }

    // A hand-edited key naming a file outside Music/ is replaced, never followed to delete.
    void keyLeadingOutOfMusicNeverDeletes() {
        writeFile(m_folder->path("demo.mp3"), "the operator's");
        store(music::Background, "../demo.mp3");
        music::Settings chosen = shown();
        chosen[music::Background].path = writeFile(outside("party.mp3"), "party");
        music::saveSettings(appState().appPath, chosen);
        QCOMPARE(key(music::Background), QStringLiteral("party.mp3"));
        QCOMPARE(readFile(m_folder->path("demo.mp3")), QByteArray("the operator's"));
    }

private:
    QString music(const QString &name) const { return m_folder->path("Music/" + name); }
    QString outside(const QString &name) const { return m_outside.filePath(name); }
    void store(int slot, const QString &name) {
        const music::SlotKeys &keys = music::keysOf(slot);
        m_folder->setConfig(settings::kMusic, keys.fileKey, name);
        m_folder->setConfig(settings::kMusic, keys.flagKey, "1");
    }
    QString key(int slot) const {
        return readIni(settings::kMusic, QLatin1String(music::keysOf(slot).fileKey),
                       appState().iniPath);
    }
    // What the dialog hands over: every row's file as shown, the new choices among them.
    music::Settings shown() const {
        music::Settings settings = music::readSettings(appState().appPath);
        for (music::SlotSetting &slot : settings)
            slot.on = true;
        return settings;
    }

    std::unique_ptr<TempProgramFolder> m_folder;
    QTemporaryDir m_outside;
};

QTEST_GUILESS_MAIN(TestMusicSettings)
#include "tst_musicsettings.moc"
