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

    // Each row, lists joined by "|": Music/ before ("name=bytes", "../" for the program folder),
    // the stored keys, the rows chosen anew ("path=bytes" written outside, a bare path inside the
    // program folder), then the keys and files after the save.
    void saveKeepsCopiesAndDeletes_data() {
        for (const char *column : {"before", "stored", "choices", "keysAfter", "after"})
            QTest::addColumn<QString>(column);
        const auto row = [](const char *tag, const char *before, const char *stored,
                            const char *choices, const char *keysAfter, const char *after) {
            QTest::newRow(tag) << QString(before) << QString(stored) << QString(choices)
                               << QString(keysAfter) << QString(after);
        };
        row("sound moved to another row is kept, the replaced one goes", "bg.mp3=bg|drum.wav=drum",
            "bg.mp3|drum.wav", "Music/drum.wav|new.wav=new", "drum.wav|new.wav|no|no",
            "drum.wav=drum|new.wav=new");
        row("file just copied under the old name stays", "drum.wav=old drum", "no|drum.wav",
            "drum.wav=new drum|new.wav=new", "drum.wav|new.wav|no|no",
            "drum.wav=new drum|new.wav=new");
        row("same name from elsewhere replaces the row's own file", "drum.wav=old drum", "drum.wav",
            "drum.wav=new drum", "drum.wav|no|no|no", "drum.wav=new drum");
        row("same name from elsewhere beside another row's sound", "drum.wav=background drum",
            "drum.wav", "|drum.wav=start drum", "drum.wav|drum-2.wav|no|no",
            "drum-2.wav=start drum|drum.wav=background drum");
        row("file inside Music/ is saved by name", "fanfare.mp3=fanfare", "no",
            "||Music/fanfare.mp3", "no|no|fanfare.mp3|no", "fanfare.mp3=fanfare");
        // A hand-edited key naming a file outside Music/ is replaced, never followed to delete.
        row("key leading out of Music/ never deletes", "../demo.mp3=the operator's", "../demo.mp3",
            "party.mp3=party", "party.mp3|no|no|no", "../demo.mp3=the operator's|party.mp3=party");
    }
    void saveKeepsCopiesAndDeletes() {
        QFETCH(QString, before);
        QFETCH(QString, stored);
        QFETCH(QString, choices);
        for (const QString &file : before.split('|'))
            writeFile(music(file.section('=', 0, 0)), file.section('=', 1).toUtf8());
        const QStringList storedNames = stored.split('|');
        for (int slot = 0; slot < storedNames.size(); ++slot)
            store(slot, storedNames[slot]);
        save(choices.split('|'));
        QTEST(keys().join('|'), "keysAfter");
        QTEST(files().join('|'), "after");
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
    // The sound files of the program folder ("../"), then all of Music/, as "name=bytes" by name.
    QStringList files() const {
        QStringList files;
        for (const QString &name : QDir(m_folder->path()).entryList({"*.mp3", "*.wav"}))
            files << "../" + name + '=' + QString::fromUtf8(readFile(m_folder->path(name)));
        for (const QString &name : QDir(music(QString())).entryList(QDir::Files))
            files << name + '=' + QString::fromUtf8(readFile(music(name)));
        return files;
    }
    // Saves what the dialog hands over: every row's file as shown, the chosen rows replaced.
    void save(const QStringList &choices) const {
        music::Settings settings = music::readSettings(appState().appPath);
        for (music::SlotSetting &slot : settings)
            slot.on = true;
        for (int slot = 0; slot < choices.size(); ++slot) {
            QString &path = settings[size_t(slot)].path;
            if (choices[slot].contains('='))
                path = writeFile(outside(choices[slot].section('=', 0, 0)),
                                 choices[slot].section('=', 1).toUtf8());
            else if (!choices[slot].isEmpty())
                path = m_folder->path(choices[slot]);
        }
        music::saveSettings(appState().appPath, settings);
    }

    std::unique_ptr<TempProgramFolder> m_folder;
    QTemporaryDir m_outside;
};

QTEST_GUILESS_MAIN(TestMusicSettings)
#include "tst_musicsettings.moc"
