#include <QtTest>

#include "core/language.h"

using language::Language;

class TestLanguage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { language::install(Language::Chinese); }

    void choiceInstallsItsTranslator_data() {
        QTest::addColumn<QString>("systemLocale");
        QTest::addColumn<bool>("english");
        QTest::addColumn<QString>("configured");
        QTest::newRow("English system") << "en_US.UTF-8" << true << "";
        QTest::newRow("British system") << "en_GB" << true << "";
        QTest::newRow("Chinese system") << "zh_CN.UTF-8" << false << "";
        QTest::newRow("German system") << "de_DE.UTF-8" << false << "";
        QTest::newRow("C locale") << "C.UTF-8" << false << "";
        QTest::newRow("no locale") << "" << false << "";
        QTest::newRow("config English on Chinese") << "zh_CN.UTF-8" << true << "en";
        QTest::newRow("config Chinese on English") << "en_US.UTF-8" << false << "zh_CN";
        QTest::newRow("config blank follows system") << "en_US.UTF-8" << true << "  ";
        QTest::newRow("config unknown follows system") << "en_US.UTF-8" << true << "fr";
    }

    // The program's own texts and Qt's dialog texts both follow the choice: English gives the
    // embedded English, Chinese keeps the program's source texts and gives Qt's dialogs Chinese.
    void choiceInstallsItsTranslator() {
        QFETCH(QString, systemLocale);
        QFETCH(bool, english);
        QFETCH(QString, configured);
        const Language chosen = language::choose(systemLocale, configured);
        QCOMPARE(chosen == Language::English, english);
        QVERIFY(language::install(chosen));
        QCOMPARE(QCoreApplication::translate("titles", "提示"),
                 english ? QStringLiteral("Notice") : QStringLiteral("提示"));
        QCOMPARE(QCoreApplication::translate("QFileDialog", "Look in:") == "Look in:", english);
    }
};

QTEST_GUILESS_MAIN(TestLanguage)
#include "tst_language.moc"
