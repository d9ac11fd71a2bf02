#include <QTemporaryDir>
#include <QtTest>

#include "core/ui.h"

// Where the file dialogs open: imports where the operator's files are, exports in record/.
class TestDialogFolders : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void openStart_data() {
        QTest::addColumn<QString>("requested");
        QTest::addColumn<QString>("lastUsed");
        QTest::addColumn<QString>("expected");
        const QString last = m_last.path();
        QTest::newRow("first import") << QString() << QString() << QStringLiteral("/home/docs");
        QTest::newRow("next import") << QString() << last << last;
        QTest::newRow("last folder gone")
            << QString() << QStringLiteral("/no/such/folder") << QStringLiteral("/home/docs");
        QTest::newRow("the caller's own")
            << QStringLiteral("/app/Music") << last << QStringLiteral("/app/Music");
    }

    void openStart() {
        QFETCH(QString, requested);
        QFETCH(QString, lastUsed);
        QTEST(dialogfolders::openStart(requested, lastUsed, QStringLiteral("/home/docs")),
              "expected");
    }

    void saveStart_data() {
        QTest::addColumn<QString>("suggested");
        QTest::addColumn<QString>("expected");
        QTest::newRow("bare name")
            << QStringLiteral("中奖名单.csv") << QStringLiteral("/app/record/中奖名单.csv");
        QTest::newRow("full path") << QStringLiteral("/tmp/x.csv") << QStringLiteral("/tmp/x.csv");
    }

    void saveStart() {
        QFETCH(QString, suggested);
        QTEST(dialogfolders::saveStart(suggested, QStringLiteral("/app/record")), "expected");
    }

private:
    QTemporaryDir m_last;
};

QTEST_GUILESS_MAIN(TestDialogFolders)
#include "tst_dialogfolders.moc"
