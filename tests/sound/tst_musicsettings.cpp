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
        save({{music::Background, music("drum.wav")},
              {music::Start, writeFile(outside("new.wav"), "new")}});
        QCOMPARE(keys(), (QStringList{"drum.wav", "new.wav", "no", "no"}));
        // bg.mp3 was replaced and is named by no row.
        QCOMPARE(musicFolder(), (QStringList{"drum.wav=drum", "new.wav=new"}));
    }

    // The start row's drum.wav is replaced, while the background takes a drum.wav from elsewhere.
    void fileJustCopiedUnderTheOldNameStays() {
        writeFile(music("drum.wav"), "old drum");
        store(music::Start, "drum.wav");
        QDir().mkpath(outside("other"));
        save({{music::Background, writeFile(outside("other/drum.wav"), "new drum")},
              {music::Start, writeFile(outside("new.wav"), "new")}});
        QCOMPARE(keys(), (QStringList{"drum.wav", "new.wav", "no", "no"}));
        QCOMPARE(musicFolder(), (QStringList{"drum.wav=new drum", "new.wav=new"}));
    }

    void sameNameFromElsewhereReplacesTheRowsOwnFile() {
        writeFile(music("drum.wav"), "old drum");
        store(music::Background, "drum.wav");
        save({{music::Background, writeFile(outside("drum.wav"), "new drum")}});
        QCOMPARE(keys(), (QStringList{"drum.wav", "no", "no", "no"}));
        QCOMPARE(musicFolder(), QStringList{"drum.wav=new drum"});
    }

    void sameNameFromElsewhereBesideAnotherRowsSound() {
        writeFile(music("drum.wav"), "background drum");
        store(music::Background, "drum.wav");
        save({{music::Start, writeFile(outside("drum.wav"), "start drum")}});
        QCOMPARE(keys(), (QStringList{"drum.wav", "drum-2.wav", "no", "no"}));
        QCOMPARE(musicFolder(), (QStringList{"drum-2.wav=start drum", "drum.wav=background drum"}));
    }

    void fileInsideMusicIsSaved() {
        writeFile(music("fanfare.mp3"), "fanfare");
        save({{music::Luck, music("fanfare.mp3")}});
        QCOMPARE(keys(), (QStringList{"no", "no", "fanfare.mp3", "no"}));
        QCOMPARE(music::readSettings(appState().appPath)[music::Luck].path, music("fanfare.mp3"));
    }

    // A hand-edited key naming a file outside Music/ is replaced, never followed to delete.
    void keyLeadingOutOfMusicNeverDeletes() {
        writeFile(m_folder->path("demo.mp3"), "the operator's");
        store(music::Background, "../demo.mp3");
        save({{music::Background, writeFile(outside("party.mp3"), "party")}});
        QCOMPARE(keys().value(0), QStringLiteral("party.mp3"));
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
    QStringList keys() const {
        QStringList all;
        for (int slot = 0; slot < music::SlotCount; ++slot)
            all << readIni(settings::kMusic, QLatin1String(music::keysOf(slot).fileKey),
                           appState().iniPath);
        return all;
    }
    // What Music/ holds, as "name=bytes" by name.
    QStringList musicFolder() const {
        QStringList files;
        for (const QString &name : QDir(music(QString())).entryList(QDir::Files, QDir::Name))
            files << name + '=' + QString::fromUtf8(readFile(music(name)));
        return files;
    }
    // Saves what the dialog hands over: every row's file as shown, with these rows chosen anew.
    void save(const QList<QPair<int, QString>> &choices) const {
        music::Settings settings = music::readSettings(appState().appPath);
        for (music::SlotSetting &slot : settings)
            slot.on = true;
        for (const auto &[slot, path] : choices)
            settings[size_t(slot)].path = path;
        music::saveSettings(appState().appPath, settings);
    }

    std::unique_ptr<TempProgramFolder> m_folder;
    QTemporaryDir m_outside;
};

QTEST_GUILESS_MAIN(TestMusicSettings)
#include "tst_musicsettings.moc"
