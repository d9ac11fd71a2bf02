#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include "chrome/style.h"
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

}  // namespace

class TestFrmMusic : public QObject {
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
    void screenshot();

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

void TestFrmMusic::init() {
    m_folder = std::make_unique<TempProgramFolder>();
    QVERIFY(m_folder->start());
    m_ui = installScriptedUi();
    m_media = installFakeMedia();
}

void TestFrmMusic::loadShowsStoredFiles() {
    writeFile(music("bg.mp3"), "bg");
    store(music::Background, "bg.mp3", true);
    store(music::Start, "no", true);
    store(music::Luck, "gone.wav", false);  // chosen once, since deleted by hand
    MusicSettingsDialog form;
    const auto &rows = form.rows;
    QCOMPARE(form.windowTitle(), QStringLiteral("音乐设置"));
    QCOMPARE(rows[0].chk->text(), QStringLiteral("背景音乐"));
    QCOMPARE(rows[3].chk->text(), QStringLiteral("播放中奖音乐"));
    QCOMPARE(rows[0].lab->text(), QStringLiteral("bg.mp3"));
    QCOMPARE(rows[0].txt->text(), music("bg.mp3"));
    QVERIFY(rows[0].chk->isChecked());
    for (int i : {1, 2, 3}) {
        QCOMPARE(rows[size_t(i)].lab->text(), QStringLiteral("未设置音乐"));
        QVERIFY(rows[size_t(i)].txt->text().isEmpty());
    }
    QVERIFY(rows[1].chk->isChecked());
    QVERIFY(!rows[2].chk->isChecked());
}

void TestFrmMusic::rowEnabling() {
    writeFile(music("bg.mp3"), "bg");
    store(music::Background, "bg.mp3", true);
    store(music::Start, "no", true);
    store(music::Luck, "no", false);
    MusicSettingsDialog form;
    auto &rows = form.rows;
    // On with a file: everything but stop; on without one: nothing to try.
    QVERIFY(rows[0].frame->isEnabled() && rows[0].cmdSet->isEnabled());
    QVERIFY(rows[0].cmdTest->isEnabled());
    QVERIFY(!rows[0].cmdStop->isEnabled());
    QVERIFY(rows[1].cmdSet->isEnabled() && !rows[1].cmdTest->isEnabled());
    QVERIFY(!rows[2].frame->isEnabled() && !rows[2].cmdSet->isEnabled());
    // A click switches the row off and on again; the file stays chosen.
    rows[0].chk->click();
    QVERIFY(!rows[0].frame->isEnabled() && !rows[0].cmdTest->isEnabled());
    QCOMPARE(rows[0].lab->text(), QStringLiteral("bg.mp3"));
    rows[0].chk->click();
    QVERIFY(rows[0].cmdTest->isEnabled());
    // A path that appears makes the row testable.
    rows[1].txt->setText(music("bg.mp3"));
    QVERIFY(rows[1].cmdTest->isEnabled());
}

void TestFrmMusic::choosingAFile() {
    store(music::Start, "no", true);
    MusicSettingsDialog form;
    auto &row = form.rows[1];
    m_ui->files.enqueue(appState().path("sys/roll.wav"));
    row.cmdSet->click();
    QCOMPARE(m_ui->last().kind, QStringLiteral("file"));
    QCOMPARE(m_ui->last().title, QStringLiteral("添加音乐"));
    QCOMPARE(row.lab->text(), QStringLiteral("roll.wav"));
    QCOMPARE(row.txt->text(), appState().path("sys/roll.wav"));
    QVERIFY(row.cmdTest->isEnabled());
    // Cancelled, or a file that is not there: the choice stays.
    m_ui->files.enqueue(QString());
    row.cmdSet->click();
    m_ui->files.enqueue(outside("missing.mp3"));
    row.cmdSet->click();
    QCOMPARE(row.lab->text(), QStringLiteral("roll.wav"));
    // Nothing is copied before saving.
    QVERIFY(!QFile::exists(music("roll.wav")));
}

void TestFrmMusic::listening() {
    const QString bg = writeFile(music("bg.mp3"), "bg");
    const QString start = writeFile(music("start.mp3"), "start");
    m_media->lengths.insert(bg, 60000);
    m_media->lengths.insert(start, 8000);
    store(music::Background, "bg.mp3", true);
    store(music::Start, "start.mp3", true);
    MusicSettingsDialog form;
    auto &rows = form.rows;

    rows[0].cmdTest->click();
    QCOMPARE(form.testRow(), 1);
    QCOMPARE(form.player()->state(), 1);
    QVERIFY(form.tmM.isActive());
    QVERIFY(rows[0].cmdStop->isEnabled() && !rows[0].cmdTest->isEnabled());
    // Trying another row stops the first and gives it back its test button.
    const QPointer<FakeMediaBackend> first = m_media->last();
    rows[1].cmdTest->click();
    QVERIFY(first.isNull() || first->state() == MediaBackend::State::Stopped);
    QVERIFY(rows[0].cmdTest->isEnabled() && !rows[0].cmdStop->isEnabled());
    QCOMPARE(form.testRow(), 2);
    QCOMPARE(m_media->last()->source, start);
    // Played to its end: the next tick puts the row back and stops the timer.
    form.tmM_Timer();
    QVERIFY(form.tmM.isActive());
    m_media->last()->finish();
    form.tmM_Timer();
    QVERIFY(!form.tmM.isActive());
    QCOMPARE(form.testRow(), 0);
    QVERIFY(rows[1].cmdTest->isEnabled() && !rows[1].cmdStop->isEnabled());
    // Stop: the sound ends at once, the timer tidies up.
    rows[0].cmdTest->click();
    rows[0].cmdStop->click();
    QCOMPARE(form.player()->state(), 0);
    QVERIFY(!rows[0].cmdStop->isEnabled());
    form.tmM_Timer();
    QVERIFY(rows[0].cmdTest->isEnabled());
    QVERIFY(!form.tmM.isActive());
}

void TestFrmMusic::saving_data() {
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

void TestFrmMusic::saving() {
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
        form.rows[0].cmdSet->click();
    }
    form.rows[3].chk->click();  // switched off; only the flag changes
    form.cmdSave->click();

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

void TestFrmMusic::drawScreenReadsTheSameKeys() {
    store(music::Background, "no", true);
    store(music::Luck, "no", true);
    MusicSettingsDialog form;
    m_ui->files.enqueue(writeFile(outside("party.mp3"), "party"));
    form.rows[0].cmdSet->click();
    form.save();
    const music::Settings read = music::readSettings(appState().appPath);
    QVERIFY(read[music::Background].on && read[music::Luck].on);
    QCOMPARE(read[music::Background].path, music("party.mp3"));
    // No win sound of one's own: the program's chime.
    QCOMPARE(draw::winSoundPath(read, appState().appPath), appState().path("sys/win.wav"));
}

// Renders the dialog for docs/screenshots when QUELLIO_SCREENSHOTS names a folder.
void TestFrmMusic::screenshot() {
    const QString out = qEnvironmentVariable("QUELLIO_SCREENSHOTS");
    if (out.isEmpty()) QSKIP("QUELLIO_SCREENSHOTS not set");
    style::apply();
    writeFile(music("年会背景音乐.mp3"), "bg");
    store(music::Background, "年会背景音乐.mp3", true);
    store(music::Start, "no", true);
    store(music::Luck, "no", false);
    MusicSettingsDialog form;
    m_ui->files.enqueue(appState().path("sys/roll.wav"));
    form.rows[1].cmdSet->click();
    form.show();
    QTest::qWait(60);
    QDir().mkpath(out);
    QVERIFY(form.grab().save(out + QStringLiteral("/music.png")));
}

QTEST_MAIN(TestFrmMusic)
#include "tst_musicsettingsdialog.moc"
