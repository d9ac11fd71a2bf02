#include <QAbstractButton>
#include <QQuickItem>

#include "core/language.h"
#include "draw/view/endofdrawdialog.h"
#include "livescreen.h"
#include "support/showntexts.h"

namespace {

// The caption and the tip of every button the stage's bar shows.
QStringList barTexts(QQuickItem *item) {
    QStringList texts;
    if (!item->isVisible()) return texts;
    if (item->property("caption").isValid())
        texts << item->property("caption").toString() << item->property("tip").toString();
    for (QQuickItem *child : item->childItems())
        texts << barTexts(child);
    return texts;
}

}  // namespace

class TestDrawEnglish : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(language::install(language::Language::English)); }

    // The draw window's own widgets and the movie's fixed words: the bar, the key hint, the guard.
    void drawStageSpeaksEnglish() {
        LiveScreen s;
        QVERIFY(s.started);
        appState().title1 = QStringLiteral("Gala");
        s.folder.addUsers({QStringLiteral("Ann"), QStringLiteral("Bob"), QStringLiteral("Cy")});
        s.folder.addAward(QStringLiteral("First"), 1, 1);
        QVERIFY2(s.open(), qPrintable(s.stageErrors()));

        const QStringList bar = barTexts(s.stage()->root());
        QVERIFY(bar.contains(QStringLiteral("Start")));
        verifyNoChinese(bar);
        const QString hint = s.stage()->root()->property("keyHint").toString();
        QVERIFY(hint.startsWith(QStringLiteral("Press ")));
        verifyNoChinese({hint});

        s.key(Qt::Key_Space);
        QVERIFY(s.waitState(draw::Running, 3000));
        s.key(Qt::Key_Space);
        QVERIFY(s.form->findChild<QWidget *>(QStringLiteral("stopGuardPanel"))->isVisible());
        verifyNoChinese(shownTexts(*s.form));
        const std::unique_ptr<QWidget> end(new EndOfDrawDialog(s.engine()));
        verifyNoChinese(shownTexts(*end));
    }
};

int main(int argc, char *argv[]) {
    return runOnProjector<TestDrawEnglish>(argc, argv);
}
#include "tst_drawenglish.moc"
