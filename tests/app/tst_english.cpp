#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTreeWidget>
#include <QtTest>

#include "core/language.h"
#include "results/view/winnerlistdialog.h"
#include "sound/view/hotkeysettingsdialog.h"
#include "sound/view/musicsettingsdialog.h"
#include "support/fakemediabackend.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

// Every text a visible widget of the window shows: titles, captions, labels, tips, headers.
QStringList shownTexts(QWidget &window) {
    QStringList texts{window.windowTitle()};
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisibleTo(&window)) continue;
        texts << widget->toolTip();
        if (auto *label = qobject_cast<QLabel *>(widget)) texts << label->text();
        if (auto *button = qobject_cast<QAbstractButton *>(widget)) texts << button->text();
        if (auto *box = qobject_cast<QGroupBox *>(widget)) texts << box->title();
        if (auto *edit = qobject_cast<QLineEdit *>(widget)) texts << edit->text();
        if (auto *tree = qobject_cast<QTreeWidget *>(widget))
            for (int c = 0; c < tree->columnCount(); ++c)
                texts << tree->headerItem()->text(c);
    }
    return texts;
}

QWidget *openWindow(const QByteArray &name) {
    if (name == "winner list") return new WinnerListDialog;
    if (name == "music") return new MusicSettingsDialog;
    return new HotkeySettingsDialog;
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
}

void TestEnglish::windowShowsNoChinese_data() {
    QTest::addColumn<QByteArray>("window");
    QTest::newRow("winner list") << QByteArray("winner list");
    QTest::newRow("music") << QByteArray("music");
    QTest::newRow("hotkeys") << QByteArray("hotkeys");
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
