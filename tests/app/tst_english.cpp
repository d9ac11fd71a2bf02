#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTabBar>
#include <QTreeWidget>
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
#include "support/tempprogramfolder.h"

namespace {

void addItemTexts(QWidget *widget, QStringList *texts) {
    if (auto *combo = qobject_cast<QComboBox *>(widget))
        for (int i = 0; i < combo->count(); ++i)
            *texts << combo->itemText(i);
    if (auto *tabs = qobject_cast<QTabBar *>(widget))
        for (int i = 0; i < tabs->count(); ++i)
            *texts << tabs->tabText(i);
    if (auto *tree = qobject_cast<QTreeWidget *>(widget))
        for (int c = 0; c < tree->columnCount(); ++c)
            *texts << tree->headerItem()->text(c) << tree->headerItem()->toolTip(c);
}

// Every text a visible widget of the window shows: titles, captions, labels, tips, headers,
// the items of lists to choose from.
QStringList shownTexts(QWidget &window) {
    QStringList texts{window.windowTitle()};
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisibleTo(&window)) continue;
        texts << widget->toolTip();
        if (auto *label = qobject_cast<QLabel *>(widget)) texts << label->text();
        if (auto *button = qobject_cast<QAbstractButton *>(widget)) texts << button->text();
        if (auto *box = qobject_cast<QGroupBox *>(widget)) texts << box->title();
        if (auto *edit = qobject_cast<QLineEdit *>(widget))
            texts << edit->text() << edit->placeholderText();
        addItemTexts(widget, &texts);
    }
    return texts;
}

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
    void init();
    void windowShowsNoChinese_data();
    void windowShowsNoChinese();

private:
    std::unique_ptr<TempProgramFolder> m_folder;
};

void TestEnglish::init() {
    m_folder = std::make_unique<TempProgramFolder>();
    QVERIFY(m_folder->start());
    installScriptedUi();
    installFakeMedia();
    installRecordingStages();
}

void TestEnglish::windowShowsNoChinese_data() {
    QTest::addColumn<QByteArray>("window");
    for (const char *window : {"winner list", "music", "hotkeys", "console", "console awards page",
                               "roster manager", "award manager", "add participant"})
        QTest::newRow(window) << QByteArray(window);
}

void TestEnglish::windowShowsNoChinese() {
    QFETCH(QByteArray, window);
    const std::unique_ptr<QWidget> shown(openWindow(window));
    shown->show();
    QVERIFY(QTest::qWaitForWindowExposed(shown.get()));
    static const QRegularExpression chinese(
        QStringLiteral("[\\x{3000}-\\x{9fff}\\x{ff00}-\\x{ffef}]"));
    for (const QString &text : shownTexts(*shown))
        QVERIFY2(!text.contains(chinese), qPrintable(text));
}

QTEST_MAIN(TestEnglish)
#include "tst_english.moc"
