#include <QAbstractButton>
#include <QtTest>

#include "awards/view/awardmanagerdialog.h"
#include "console/consolewindow.h"
#include "core/language.h"
#include "results/view/winnerlistdialog.h"
#include "roster/view/addparticipantdialog.h"
#include "roster/view/rostermanagerdialog.h"
#include "sound/view/hotkeysettingsdialog.h"
#include "sound/view/musicsettingsdialog.h"
#include "support/fakemediabackend.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
#include "support/showntexts.h"
#include "support/tempprogramfolder.h"

namespace {

QWidget *consoleOnPage(const char *tab) {
    auto *console = new ConsoleWindow;
    if (tab) console->findChild<QAbstractButton *>(QString::fromLatin1(tab))->click();
    return console;
}

QWidget *openWindow(const QByteArray &name) {
    if (name == "winner list") return new WinnerListDialog;
    if (name == "music") return new MusicSettingsDialog;
    if (name == "hotkeys") return new HotkeySettingsDialog;
    if (name == "console") return consoleOnPage(nullptr);
    if (name == "console awards page") return consoleOnPage("awardsTab");
    if (name == "roster manager") return new RosterManagerDialog;
    if (name == "award manager") return new AwardManagerDialog;
    return new AddParticipantDialog;
}

}  // namespace

class TestEnglish : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(language::install(language::Language::English)); }

    void init() {
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
        installScriptedUi();
        installFakeMedia();
        installRecordingStages();
    }

    void windowShowsNoChinese_data() {
        QTest::addColumn<QByteArray>("window");
        for (const char *window :
             {"winner list", "music", "hotkeys", "console", "console awards page", "roster manager",
              "award manager", "add participant"})
            QTest::newRow(window) << QByteArray(window);
    }

    void windowShowsNoChinese() {
        QFETCH(QByteArray, window);
        const std::unique_ptr<QWidget> shown(openWindow(window));
        shown->show();
        QVERIFY(QTest::qWaitForWindowExposed(shown.get()));
        verifyNoChinese(shownTexts(*shown));
    }

private:
    std::unique_ptr<TempProgramFolder> m_folder;
};

QTEST_MAIN(TestEnglish)
#include "tst_english.moc"
