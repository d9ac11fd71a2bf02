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

    // The file shown, then what the row offers: "on", and each button that can be pressed.
    QString state() const {
        QStringList shown{file->text()};
        if (enabled->isChecked()) shown << "on";
        if (frame->isEnabled() && choose->isEnabled()) shown << "choose";
        if (listen->isEnabled()) shown << "listen";
        if (stop->isEnabled()) shown << "stop";
        return shown.join(' ');
    }
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
        QCOMPARE(background.file->toolTip(), QDir::toNativeSeparators(music("bg.mp3")));
        QVERIFY(Row(form, music::Start).file->toolTip().isEmpty());
        // On with a file: everything but stop; on without one: nothing to try.
        const QStringList shown{"bg.mp3 on choose listen", "未设置音乐 on choose", "未设置音乐",
                                "未设置音乐"};
        QCOMPARE(states(form), shown);
        // A click switches the row off and on again; the file stays chosen.
        background.enabled->click();
        QCOMPARE(background.state(), QStringLiteral("bg.mp3"));
        background.enabled->click();
        QCOMPARE(states(form), shown);
    }

    void choosingAFile() {
        store(music::Start, "no", true);
        MusicSettingsDialog form;
        const Row row(form, music::Start);
        m_ui->files.enqueue(appState().path("sys/roll.wav"));
        row.choose->click();
        QCOMPARE(m_ui->last().kind, QStringLiteral("file"));
        QCOMPARE(m_ui->last().title, QStringLiteral("添加音乐"));
        QCOMPARE(row.state(), QStringLiteral("roll.wav on choose listen"));
        QCOMPARE(row.file->toolTip(), QDir::toNativeSeparators(appState().path("sys/roll.wav")));
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
        QCOMPARE(states(form).mid(0, 2),
                 (QStringList{"bg.mp3 on choose stop", "start.mp3 on choose listen"}));
        // Trying another row stops the first and gives it back its test button.
        const QPointer<FakeMediaBackend> firstPlayer = m_media->last();
        second.listen->click();
        QVERIFY(firstPlayer.isNull() || firstPlayer->state() == MediaBackend::State::Stopped);
        QCOMPARE(m_media->last()->source, start);
        QCOMPARE(states(form).mid(0, 2),
                 (QStringList{"bg.mp3 on choose listen", "start.mp3 on choose stop"}));
        // Played to its end: the row is put back.
        m_media->last()->finish();
        QCOMPARE(second.state(), QStringLiteral("start.mp3 on choose listen"));
        // Stop: the sound ends at once and the row is put back.
        first.listen->click();
        first.stop->click();
        QCOMPARE(m_media->last()->state(), MediaBackend::State::Stopped);
        QCOMPARE(first.state(), QStringLiteral("bg.mp3 on choose listen"));
    }

    // The second row takes a new file, the fourth is switched off: only its flag changes.
    void saving() {
        writeFile(music("old.mp3"), "old");
        for (int slot : {music::Background, music::Play})
            store(slot, "no", true);
        store(music::Start, "old.mp3", true);
        MusicSettingsDialog form;
        m_ui->files.enqueue(writeFile(outside("new.mp3"), "new"));
        Row(form, music::Start).choose->click();
        Row(form, music::Play).enabled->click();
        save(form);
        QCOMPARE(m_ui->last().text, QStringLiteral("音乐设置保存成功!"));
        QCOMPARE(m_ui->last().title, QStringLiteral("提示"));
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QCOMPARE((QStringList{key("StartMusicFile"), key("isStartMusic"), key("PlayMusicFile"),
                              key("isPlayMusic")}),
                 (QStringList{"new.mp3", "1", "no", "0"}));
        QCOMPARE(readFile(music("new.mp3")), QByteArray("new"));
        QVERIFY(!QFile::exists(music("old.mp3")));
        QVERIFY(!QFile::exists(music("new.mp3.part")));
    }

private:
    static QStringList states(const QWidget &form) {
        QStringList all;
        for (int slot = 0; slot < music::SlotCount; ++slot)
            all << Row(form, slot).state();
        return all;
    }
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
