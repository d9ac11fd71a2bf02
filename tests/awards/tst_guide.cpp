#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QtTest>

#include "awards/view/drawwizarddialog.h"
#include "core/appstate.h"
#include "core/helpers.h"
#include "core/profile.h"
#include "support/childwidget.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

class TestGuide : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
        m_ui = installScriptedUi();
    }
    void cleanup() { m_folder.reset(); }

    void masking_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("left");
        QTest::addColumn<int>("right");
        QTest::addColumn<QString>("replacement");
        QTest::addColumn<QString>("masked");
        const auto row = [](const char *tag, const char *text, int left, int right,
                            const char *replacement, const char *masked) {
            QTest::newRow(tag) << QString(text) << left << right << QString(replacement)
                               << QString(masked);
        };
        row("three characters", "张小明", 1, 1, "*", "张*明");
        row("two characters stay", "王五", 1, 1, "*", "王五");
        row("sum equals length", "13800138000", 5, 6, "*", "13800138000");
        row("one left over", "13800138000", 5, 5, "*", "13800*38000");
        row("whole name", "李四", 0, 0, "#", "##");
        row("empty", "", 0, 0, "*", "");
        row("longer replacement", "ABCD", 1, 1, "xy", "AxyxyD");
    }

    void masking() {
        QFETCH(QString, text);
        QFETCH(int, left);
        QFETCH(int, right);
        QFETCH(QString, replacement);
        QTEST(hideName(text, left, right, replacement), "masked");
    }

    void demoFollowsTheBoxes() {
        DrawWizardDialog guide(DrawWizardDialog::Purpose::EditSettings);
        auto *demo = child<QLabel>(guide, "maskedSampleLabel");
        auto *left = child<QLineEdit>(guide, "keepLeftEdit");
        auto *right = child<QLineEdit>(guide, "keepRightEdit");
        QCOMPARE(demo->text(), QStringLiteral("13800138000"));
        QVERIFY(!left->isEnabled());
        child<QCheckBox>(guide, "maskCheck")->setChecked(true);
        QVERIFY(left->isEnabled());
        QCOMPARE(demo->text(), QStringLiteral("1*********0"));
        left->setText(QStringLiteral("3"));
        right->setText(QStringLiteral("4"));
        QCOMPARE(demo->text(), QStringLiteral("138****8000"));
        right->clear();  // an empty box leaves the demo alone
        QCOMPARE(demo->text(), QStringLiteral("138****8000"));
    }

    void storesEveryKey() {
        DrawWizardDialog guide(DrawWizardDialog::Purpose::EditSettings);
        auto *speed = child<QSlider>(guide, "speedSlider");
        QCOMPARE(speed->value(), 20 - appState().luckDelay);
        child<QRadioButton>(guide, "pictureAndTextMode")->setChecked(true);
        child<QCheckBox>(guide, "rememberCheck")->setChecked(true);
        child<QCheckBox>(guide, "maskCheck")->setChecked(true);
        child<QLineEdit>(guide, "keepLeftEdit")->clear();
        child<QLineEdit>(guide, "keepRightEdit")->setText(QStringLiteral("2"));
        child<QLineEdit>(guide, "replacementEdit")->setText(QStringLiteral(" "));
        speed->setValue(20);
        child<QPushButton>(guide, "okButton")->click();
        const QString ini = m_folder->path(QStringLiteral("config.ini"));
        QStringList stored;
        for (const char *key : {"luckType", "guideHide", "isHideName", "hideLeft", "hideRight",
                                "hideReStr", "luckDelay"})
            stored << readIni(QStringLiteral("main"), key, ini);
        QCOMPARE(stored, (QStringList{"2", "1", "1", "0", "2", "*", "0"}));
        const AppState &state = appState();  // the running program sees the same
        QCOMPARE((QList<qint16>{state.luckType, state.hideLeft, state.luckDelay}),
                 (QList<qint16>{2, 0, 0}));
        QCOMPARE(state.hideReStr, QStringLiteral("*"));
        QCOMPARE(m_ui->texts(), QStringList{QStringLiteral("参数保存成功!")});
        QCOMPARE(guide.result(), int(QDialog::Accepted));
        // On the way to the draw the guide closes without a word.
        DrawWizardDialog onTheWay(DrawWizardDialog::Purpose::StartDraw);
        child<QPushButton>(onTheWay, "okButton")->click();
        QCOMPARE(onTheWay.result(), int(QDialog::Accepted));
        QCOMPARE(m_ui->texts().size(), 1);
    }

private:
    std::unique_ptr<TempProgramFolder> m_folder;
    ScriptedUi *m_ui = nullptr;
};

QTEST_MAIN(TestGuide)
#include "tst_guide.moc"
