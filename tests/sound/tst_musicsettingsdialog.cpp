#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include "core/appstate.h"
#include "core/profile.h"
#include "core/settings.h"
#include "sound/musicplayer.h"
#include "sound/musicsettings.h"
#include "sound/view/musicsettingsdialog.h"
#include "support/childwidget.h"
#include "support/fakemediabackend.h"
#include "support/filebytes.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

// The controls of one sound's row, by music::Slot.
struct Row {
    Row(const QWidget &form, int slot) : form(form), slot(slot) {}
    template <typename T>
    T *part(const char *name) const {
        const char *const rows[] = {"background", "start", "win", "parade"};
        return child<T>(form, QByteArray(rows[slot]).append(name).constData());
    }
    const QWidget &form;
    const int slot;
    QCheckBox *const enabled = part<QCheckBox>("EnabledBox");
    QFrame *const frame = part<QFrame>("Frame");
    QLabel *const file = part<QLabel>("FileLabel");
    QPushButton *const choose = part<QPushButton>("ChooseButton");
    QPushButton *const listen = part<QPushButton>("ListenButton");
    QPushButton *const stop = part<QPushButton>("StopButton");
};

void save(const QWidget &form) {
    child<QPushButton>(form, "saveButton")->click();
}

}  // namespace

class TestMusicSettingsDialog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
        m_ui = installScriptedUi();
        m_media = installFakeMedia();
    }
    void cleanup() { m_folder.reset(); }

    void loadShowsStoredFilesAndEnablesRows() {
        writeFile(music("bg.mp3"), "bg");
        store(music::Background, "bg.mp3", true);
        store(music::Start, "no", true);
        store(music::Luck, "gone.wav", false);  // chosen once, since deleted by hand
        MusicSettingsDialog form;
        QCOMPARE(form.windowTitle(), QStringLiteral("音乐设置"));
        const Row background(form, music::Background);
        QCOMPARE(background.enabled->text(), QStringLiteral("背景音乐"));
        QCOMPARE(Row(form, music::Play).enabled->text(), QStringLiteral("播放中奖音乐"));
        QCOMPARE(background.file->text(), QStringLiteral("bg.mp3"));
        QCOMPARE(background.file->toolTip(), QDir::toNativeSeparators(music("bg.mp3")));
        QVERIFY(background.enabled->isChecked());
        for (int slot : {music::Start, music::Luck, music::Play}) {
            QCOMPARE(Row(form, slot).file->text(), QStringLiteral("未设置音乐"));
            QVERIFY(Row(form, slot).file->toolTip().isEmpty());
        }
        QVERIFY(Row(form, music::Start).enabled->isChecked());
        QVERIFY(!Row(form, music::Luck).enabled->isChecked());

        const Row start(form, music::Start);
        const Row win(form, music::Luck);
        // On with a file: everything but stop; on without one: nothing to try.
        QVERIFY(background.frame->isEnabled() && background.choose->isEnabled());
        QVERIFY(background.listen->isEnabled());
        QVERIFY(!background.stop->isEnabled());
        QVERIFY(start.choose->isEnabled() && !start.listen->isEnabled());
        QVERIFY(!win.frame->isEnabled() && !win.choose->isEnabled());
        // A click switches the row off and on again; the file stays chosen.
        background.enabled->click();
        QVERIFY(!background.frame->isEnabled() && !background.listen->isEnabled());
        QCOMPARE(background.file->text(), QStringLiteral("bg.mp3"));
        background.enabled->click();
        QVERIFY(background.listen->isEnabled());
    }

    void choosingAFile() {
        store(music::Start, "no", true);
        MusicSettingsDialog form;
        const Row row(form, music::Start);
        m_ui->files.enqueue(appState().path("sys/roll.wav"));
        row.choose->click();
        QCOMPARE(m_ui->last().kind, QStringLiteral("file"));
        QCOMPARE(m_ui->last().title, QStringLiteral("添加音乐"));
        QCOMPARE(row.file->text(), QStringLiteral("roll.wav"));
        QCOMPARE(row.file->toolTip(), QDir::toNativeSeparators(appState().path("sys/roll.wav")));
        QVERIFY(row.listen->isEnabled());
        // Cancelled, or a file that is not there: the choice stays.
        m_ui->files.enqueue(QString());
        row.choose->click();
        m_ui->files.enqueue(outside("missing.mp3"));
        row.choose->click();
        QCOMPARE(row.file->text(), QStringLiteral("roll.wav"));
        // Nothing is copied before saving.
        QVERIFY(!QFile::exists(music("roll.wav")));
    }

    void listening() {
        const QString bg = writeFile(music("bg.mp3"), "bg");
        const QString start = writeFile(music("start.mp3"), "start");
        m_media->lengths.insert(bg, 60000);
        m_media->lengths.insert(start, 8000);
        store(music::Background, "bg.mp3", true);
        store(music::Start, "start.mp3", true);
        MusicSettingsDialog form;
        const Row first(form, music::Background);
        const Row second(form, music::Start);

        first.listen->click();
        QCOMPARE(m_media->last()->source, bg);
        QCOMPARE(m_media->last()->state(), MediaBackend::State::Playing);
        QVERIFY(first.stop->isEnabled() && !first.listen->isEnabled());
        // Trying another row stops the first and gives it back its test button.
        const QPointer<FakeMediaBackend> firstPlayer = m_media->last();
        second.listen->click();
        QVERIFY(firstPlayer.isNull() || firstPlayer->state() == MediaBackend::State::Stopped);
        QVERIFY(first.listen->isEnabled() && !first.stop->isEnabled());
        QCOMPARE(m_media->last()->source, start);
        QVERIFY(second.stop->isEnabled() && !second.listen->isEnabled());
        // Played to its end: the row is put back.
        m_media->last()->finish();
        QVERIFY(second.listen->isEnabled() && !second.stop->isEnabled());
        // Stop: the sound ends at once and the row is put back.
        first.listen->click();
        first.stop->click();
        QCOMPARE(m_media->last()->state(), MediaBackend::State::Stopped);
        QVERIFY(!first.stop->isEnabled());
        QVERIFY(first.listen->isEnabled());
    }

    void saving_data() {
        QTest::addColumn<QString>("row");     // as the keys of config.ini name it; it holds old.mp3
        QTest::addColumn<QString>("chosen");  // a file outside, or empty for no new choice
        QTest::addColumn<QString>("expectedKey");
        QTest::addColumn<QByteArray>("expectedBytes");  // of Music/<expectedKey>
        QTest::newRow("unchanged row copies nothing") << "Bg"
                                                      << ""
                                                      << "old.mp3" << QByteArray("old");
        QTest::newRow("same name from elsewhere") << "Bg"
                                                  << "old.mp3"
                                                  << "old.mp3" << QByteArray("new");
        QTest::newRow("second row replaces its file") << "Start"
                                                      << "new.mp3"
                                                      << "new.mp3" << QByteArray("new");
    }

    void saving() {
        QFETCH(QString, row);
        const int slot = row == QLatin1String("Bg") ? music::Background : music::Start;
        QFETCH(QString, chosen);
        QFETCH(QString, expectedKey);
        QFETCH(QByteArray, expectedBytes);
        writeFile(music("old.mp3"), "old");
        store(music::Background, "no", true);
        store(music::Start, "no", true);
        store(music::Play, "no", true);
        store(slot, "old.mp3", true);
        MusicSettingsDialog form;
        if (!chosen.isEmpty()) {
            m_ui->files.enqueue(writeFile(outside(chosen), "new"));
            Row(form, slot).choose->click();
        }
        Row(form, music::Play).enabled->click();  // switched off; only the flag changes
        save(form);

        QCOMPARE(m_ui->last().text, QStringLiteral("音乐设置保存成功!"));
        QCOMPARE(m_ui->last().title, QStringLiteral("提示"));
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QCOMPARE(key(qPrintable(row + "MusicFile")), expectedKey);
        QCOMPARE(readFile(music(expectedKey)), expectedBytes);
        QCOMPARE(QFile::exists(music("old.mp3")), expectedKey == "old.mp3");
        QCOMPARE(key(qPrintable("is" + row + "Music")), QStringLiteral("1"));
        QCOMPARE(key("isPlayMusic"), QStringLiteral("0"));
        QCOMPARE(key("PlayMusicFile"), QStringLiteral("no"));
        QVERIFY(!QFile::exists(music(expectedKey + ".part")));
    }

private:
    QString music(const QString &name) const { return m_folder->path("Music/" + name); }
    QString outside(const QString &name) const { return m_outside.filePath(name); }
    void store(int slot, const QString &name, bool on) {
        const music::SlotKeys &keys = music::keysOf(slot);
        m_folder->setConfig(settings::kMusic, keys.fileKey, name);
        m_folder->setConfig(settings::kMusic, keys.flagKey, on ? "1" : "0");
    }
    QString key(const char *name) const {
        return readIni(settings::kMusic, QLatin1String(name), appState().iniPath);
    }

    std::unique_ptr<TempProgramFolder> m_folder;
    QTemporaryDir m_outside;
    ScriptedUi *m_ui = nullptr;
    FakeMedia *m_media = nullptr;
};

QTEST_MAIN(TestMusicSettingsDialog)
#include "tst_musicsettingsdialog.moc"
