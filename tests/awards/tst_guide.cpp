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
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

class TestGuide : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_folder.reset(); }
    void masking_data();
    void masking();
    void demoFollowsTheBoxes();
    void storesEveryKey();
    void purposes_data();
    void purposes();

private:
    std::unique_ptr<TempProgramFolder> m_folder;
    ScriptedUi *m_ui = nullptr;
};

void TestGuide::init() {
    m_folder = std::make_unique<TempProgramFolder>();
    QVERIFY(m_folder->start());
    m_ui = installScriptedUi();
}

void TestGuide::masking_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("left");
    QTest::addColumn<int>("right");
    QTest::addColumn<QString>("replacement");
    QTest::addColumn<QString>("masked");
    QTest::newRow("three characters") << "张小明" << 1 << 1 << "*"
                                      << "张*明";
    QTest::newRow("two characters stay") << "王五" << 1 << 1 << "*"
                                         << "王五";
    QTest::newRow("sum equals length") << "13800138000" << 5 << 6 << "*"
                                       << "13800138000";
    QTest::newRow("one left over") << "13800138000" << 5 << 5 << "*"
                                   << "13800*38000";
    QTest::newRow("whole name") << "李四" << 0 << 0 << "#"
                                << "##";
    QTest::newRow("empty") << "" << 0 << 0 << "*"
                           << "";
    QTest::newRow("longer replacement") << "ABCD" << 1 << 1 << "xy"
                                        << "AxyxyD";
}

void TestGuide::masking() {
    QFETCH(QString, text);
    QFETCH(int, left);
    QFETCH(int, right);
    QFETCH(QString, replacement);
    QFETCH(QString, masked);
    QCOMPARE(hideName(text, left, right, replacement), masked);
}

void TestGuide::demoFollowsTheBoxes() {
    DrawWizardDialog guide;
    QCOMPARE(guide.labDemo->text(), guide.labSS->text());
    QVERIFY(!guide.txtLeft->isEnabled());
    guide.chkIsHideName->setChecked(true);
    QVERIFY(guide.txtLeft->isEnabled());
    QCOMPARE(guide.labDemo->text(), QStringLiteral("1*********0"));
    guide.txtLeft->setText(QStringLiteral("3"));
    guide.txtRight->setText(QStringLiteral("4"));
    QCOMPARE(guide.labDemo->text(), QStringLiteral("138****8000"));
    guide.txtRight->clear();  // an empty box leaves the demo alone
    QCOMPARE(guide.labDemo->text(), QStringLiteral("138****8000"));
}

void TestGuide::storesEveryKey() {
    appState().guideFor = QStringLiteral("guidebtn");
    DrawWizardDialog guide;
    QCOMPARE(guide.sldSpeed->value(), 20 - appState().luckDelay);
    guide.Opt2->setChecked(true);
    guide.chkMsg->setChecked(true);
    guide.chkIsHideName->setChecked(true);
    guide.txtLeft->clear();
    guide.txtRight->setText(QStringLiteral("2"));
    guide.txtReStr->setText(QStringLiteral(" "));
    guide.sldSpeed->setValue(20);
    guide.cmdOk->click();
    const QString ini = m_folder->path(QStringLiteral("config.ini"));
    const QStringList expected{"2", "1", "1", "0", "2", "*", "0"};
    const QStringList keys{"luckType",  "guideHide", "isHideName", "hideLeft",
                           "hideRight", "hideReStr", "luckDelay"};
    for (int i = 0; i < keys.size(); ++i)
        QCOMPARE(readIni(QStringLiteral("main"), keys.at(i), ini), expected.at(i));
    const AppState &state = appState();
    QCOMPARE(state.luckType, qint16(2));
    QCOMPARE(state.hideLeft, qint16(0));
    QCOMPARE(state.hideReStr, QStringLiteral("*"));
    QCOMPARE(state.luckDelay, qint16(0));
}

void TestGuide::purposes_data() {
    QTest::addColumn<QString>("purpose");
    QTest::addColumn<QString>("message");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("settings") << "guidebtn"
                              << "参数保存成功!" << true;
    QTest::newRow("on the way to the draw") << "startbtn"
                                            << "" << true;
    QTest::newRow("unknown") << ""
                             << "变量传递失败" << false;
}

void TestGuide::purposes() {
    QFETCH(QString, purpose);
    QFETCH(QString, message);
    QFETCH(bool, accepted);
    appState().guideFor = purpose;
    DrawWizardDialog guide;
    guide.cmdOk->click();
    QCOMPARE(m_ui->texts(), message.isEmpty() ? QStringList() : QStringList{message});
    QCOMPARE(guide.result() == QDialog::Accepted, accepted);
}

QTEST_MAIN(TestGuide)
#include "tst_guide.moc"
