#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QtTest>

#include "core/appstate.h"
#include "core/profile.h"
#include "core/settings.h"
#include "draw/drawmusic.h"
#include "sound/musicplayer.h"
#include "sound/view/musicsettingsdialog.h"
#include "support/fakemediabackend.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

// Writes a file with the given bytes, so that tests can tell copies apart.
QString writeFile(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return QString();
    file.write(bytes);
    return path;
}

QByteArray readFile(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

template <typename T>
T *child(const QWidget &form, const QString &name) {
    T *widget = form.findChild<T *>(name);
    if (!widget) qFatal("no %s", qPrintable(name));
    return widget;
}

// The controls of one sound's row, by music::Slot.
struct Row {
    Row(const QWidget &form, int slot) {
        const char *const names[] = {"background", "start", "win", "parade"};
        const QString name = QLatin1String(names[slot]);
        enabled = child<QCheckBox>(form, name + QStringLiteral("EnabledBox"));
        frame = child<QFrame>(form, name + QStringLiteral("Frame"));
        file = child<QLabel>(form, name + QStringLiteral("FileLabel"));
        choose = child<QPushButton>(form, name + QStringLiteral("ChooseButton"));
        listen = child<QPushButton>(form, name + QStringLiteral("ListenButton"));
        stop = child<QPushButton>(form, name + QStringLiteral("StopButton"));
    }
    QCheckBox *enabled;
    QFrame *frame;
    QLabel *file;
    QPushButton *choose;
    QPushButton *listen;
    QPushButton *stop;
};

void save(const QWidget &form) {
    child<QPushButton>(form, QStringLiteral("saveButton"))->click();
}

}  // namespace

class TestMusicSettingsDialog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_folder.reset(); }
    void loadShowsStoredFiles();
    void rowEnabling();
    void choosingAFile();
    void listening();
    void saving_data();
    void saving();
    void drawScreenReadsTheSameKeys();

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

void TestMusicSettingsDialog::init() {
    m_folder = std::make_unique<TempProgramFolder>();
    QVERIFY(m_folder->start());
    m_ui = installScriptedUi();
    m_media = installFakeMedia();
}

void TestMusicSettingsDialog::loadShowsStoredFiles() {
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
}

void TestMusicSettingsDialog::rowEnabling() {
    writeFile(music("bg.mp3"), "bg");
    store(music::Background, "bg.mp3", true);
    store(music::Start, "no", true);
    store(music::Luck, "no", false);
    MusicSettingsDialog form;
    const Row background(form, music::Background);
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

void TestMusicSettingsDialog::choosingAFile() {
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

void TestMusicSettingsDialog::listening() {
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

void TestMusicSettingsDialog::saving_data() {
    QTest::addColumn<QString>("stored");  // the background file before
    QTest::addColumn<QString>("chosen");  // a file outside, or empty for no new choice
    QTest::addColumn<QString>("expectedKey");
    QTest::addColumn<QByteArray>("expectedBytes");  // of Music/<expectedKey>
    QTest::addColumn<bool>("oldFileKept");
    QTest::newRow("a new file replaces the old one") << "old.mp3"
                                                     << "new.mp3"
                                                     << "new.mp3" << QByteArray("new") << false;
    QTest::newRow("unchanged row copies nothing") << "old.mp3"
                                                  << ""
                                                  << "old.mp3" << QByteArray("old") << true;
    QTest::newRow("same name from elsewhere is copied, not deleted")
        << "old.mp3"
        << "old.mp3"
        << "old.mp3" << QByteArray("new") << true;
    QTest::newRow("first choice") << "no"
                                  << "new.mp3"
                                  << "new.mp3" << QByteArray("new") << false;
}

void TestMusicSettingsDialog::saving() {
    QFETCH(QString, stored);
    QFETCH(QString, chosen);
    QFETCH(QString, expectedKey);
    QFETCH(QByteArray, expectedBytes);
    QFETCH(bool, oldFileKept);
    if (stored != "no") writeFile(music(stored), "old");
    store(music::Background, stored, true);
    store(music::Start, "no", true);
    store(music::Play, "no", true);
    MusicSettingsDialog form;
    if (!chosen.isEmpty()) {
        m_ui->files.enqueue(writeFile(outside(chosen), "new"));
        Row(form, music::Background).choose->click();
    }
    Row(form, music::Play).enabled->click();  // switched off; only the flag changes
    save(form);

    QCOMPARE(m_ui->last().text, QStringLiteral("音乐设置保存成功!"));
    QCOMPARE(m_ui->last().title, QStringLiteral("提示"));
    QCOMPARE(form.result(), int(QDialog::Accepted));
    QCOMPARE(key("BgMusicFile"), expectedKey);
    QCOMPARE(readFile(music(expectedKey)), expectedBytes);
    if (stored != "no" && stored != expectedKey)
        QCOMPARE(QFile::exists(music(stored)), oldFileKept);
    QCOMPARE(key("isBgMusic"), QStringLiteral("1"));
    QCOMPARE(key("isPlayMusic"), QStringLiteral("0"));
    QCOMPARE(key("PlayMusicFile"), QStringLiteral("no"));
    QVERIFY(!QFile::exists(music(expectedKey + ".part")));
}

void TestMusicSettingsDialog::drawScreenReadsTheSameKeys() {
    store(music::Background, "no", true);
    store(music::Luck, "no", true);
    MusicSettingsDialog form;
    m_ui->files.enqueue(writeFile(outside("party.mp3"), "party"));
    Row(form, music::Background).choose->click();
    save(form);
    const music::Settings read = music::readSettings(appState().appPath);
    QVERIFY(read[music::Background].on && read[music::Luck].on);
    QCOMPARE(read[music::Background].path, music("party.mp3"));
    // No win sound of one's own: the program's chime.
    QCOMPARE(draw::winSoundPath(read, appState().appPath), appState().path("sys/win.wav"));
}

QTEST_MAIN(TestMusicSettingsDialog)
#include "tst_musicsettingsdialog.moc"
