#include <QAbstractButton>
#include <QtTest>

#include "awards/view/awardmanagerdialog.h"
#include "console/consolewindow.h"
#include "core/appstate.h"
#include "core/language.h"
#include "design/templatepage.h"
#include "design/view/designerwindow.h"
#include "draw/view/giveupdialog.h"
#include "draw/view/makeupdrawdialog.h"
#include "results/view/winnerlistdialog.h"
#include "roster/view/addparticipantdialog.h"
#include "roster/view/rostermanagerdialog.h"
#include "sound/view/hotkeysettingsdialog.h"
#include "sound/view/musicsettingsdialog.h"
#include "stage/protocol.h"
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

// The designer on the working copy of a factory template, its movie loaded.
QWidget *openDesigner(const TempProgramFolder &folder,
                      const QList<QPointer<RecordingStage>> &stages) {
    const QString name = QStringLiteral("通用模板（16:9)");
    design::copyToWorkingFile(folder.path(), name);
    appState().skinFile = design::templatePath(folder.path(), name);
    auto *designer = new DesignerWindow;
    stages.last()->reply(proto::cmd::loadok);
    return designer;
}

QWidget *openWindow(const QByteArray &name, const TempProgramFolder &folder,
                    const QList<QPointer<RecordingStage>> &stages) {
    if (name == "designer") return openDesigner(folder, stages);
    if (name == "give up") return new GiveUpDialog;
    if (name == "make up") return new MakeUpDrawDialog;
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
        m_stages = &installRecordingStages();
    }

    void windowShowsNoChinese_data() {
        QTest::addColumn<QByteArray>("window");
        for (const char *window :
             {"winner list", "music", "hotkeys", "console", "console awards page", "roster manager",
              "award manager", "add participant", "designer", "give up", "make up"})
            QTest::newRow(window) << QByteArray(window);
    }

    void windowShowsNoChinese() {
        QFETCH(QByteArray, window);
        m_folder->addAward(QStringLiteral("First"), 3, 1);
        const std::unique_ptr<QWidget> shown(openWindow(window, *m_folder, *m_stages));
        shown->show();
        QVERIFY(QTest::qWaitForWindowExposed(shown.get()));
        verifyNoChinese(shownTexts(*shown));
    }

private:
    std::unique_ptr<TempProgramFolder> m_folder;
    QList<QPointer<RecordingStage>> *m_stages = nullptr;
};

QTEST_MAIN(TestEnglish)
#include "tst_english.moc"
