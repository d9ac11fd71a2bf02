#include <QFile>
#include <QLockFile>
#include <QStandardPaths>
#include <QtTest>

#include "core/appstate.h"
#include "core/programfolder.h"
#include "core/startup.h"
#include "core/store.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"
#include "support/testpaths.h"

class TestStartup : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_ui = installScriptedUi(); }

    void startsOnTheFactoryFolder() {
        TempProgramFolder folder;
        QVERIFY(folder.start());
        QVERIFY(m_ui->records.isEmpty());
        const AppState &state = appState();
        QCOMPARE(state.appPath, folder.path());
        QVERIFY(state.appPath.endsWith(QLatin1Char('/')));
        QCOMPARE(state.iniPath, folder.path(QStringLiteral("config.ini")));
        QCOMPARE((QList<qint16>{state.maxImgWidth, state.maxImgHeight, state.timeProtectNum}),
                 (QList<qint16>{200, 200, 3}));
        QCOMPARE(state.hideReStr, QStringLiteral("*"));
        QVERIFY(!state.BT1.isEmpty());
        QCOMPARE(state.title1, state.BT1);
        QCOMPARE(state.title2, state.BT2);
        QVERIFY(store::mainConn().isOpen());
    }

    void loadErrors_data() {
        QTest::addColumn<QStringList>("keyValue");  // the key alone: removed
        QTest::newRow("missing key") << QStringList{"selJxid"};
        QTest::newRow("empty luckDelay") << QStringList{"luckDelay", ""};
        QTest::newRow("not a number") << QStringList{"maxImgWidth", "wide"};
        QTest::newRow("beyond 16 bits") << QStringList{"hideLeft", "40000"};
        QTest::newRow("a fraction") << QStringList{"timeProtectNum", "2.5"};
    }

    // The message names the key, so that the operator can mend the file.
    void loadErrors() {
        QFETCH(QStringList, keyValue);
        const QString key = keyValue.first();
        TempProgramFolder folder;
        if (keyValue.size() == 1)
            folder.removeConfigKey(key);
        else
            folder.setConfig(QStringLiteral("main"), key, keyValue.last());
        QVERIFY(!folder.start());
        QCOMPARE(m_ui->records.size(), 1);
        QCOMPARE(m_ui->last().title, QStringLiteral("加载错误"));
        QCOMPARE(m_ui->last().style, MsgStyle::Critical);
        QVERIFY2(m_ui->last().text.contains(key), qPrintable(m_ui->last().text));
        QVERIFY(m_ui->openedUrls.isEmpty());
        QVERIFY(!store::mainConn().isOpen());
    }

    void missingStoreIsALoadErrorAndStaysMissing() {
        for (const QString &lost :
             {QStringLiteral("quellio.db"), QStringLiteral("sys/preview.qml")}) {
            TempProgramFolder folder;
            QVERIFY(QFile::remove(folder.path(lost)));
            QVERIFY(!folder.start());
            QCOMPARE(m_ui->last().title, QStringLiteral("加载错误"));
            QVERIFY(m_ui->last().text.contains(lost));
            QVERIFY(!QFile::exists(folder.path(lost)));
            m_ui->clear();
        }
    }

    void secondInstanceIsRefused() {
        TempProgramFolder folder;
        QLockFile other(folder.path(QStringLiteral("quellio.lock")));
        QVERIFY(other.tryLock(0));
        QVERIFY(!folder.start());
        QCOMPARE(m_ui->last().title + m_ui->last().text, QStringLiteral("提示程序已经在运行!!"));
        QCOMPARE(m_ui->last().style, MsgStyle::Exclamation);
        other.unlock();
        m_ui->clear();
        QVERIFY(folder.start());
        QVERIFY(m_ui->records.isEmpty());
    }

    void programFolderResolution() {
        QTemporaryDir root;
        const QString bin = root.filePath(QStringLiteral("bin"));
        QDir().mkpath(bin);
        qputenv("XDG_DATA_HOME", root.filePath(QStringLiteral("userdata")).toUtf8());
        qunsetenv("QUELLIO_HOME");

        // Installed: no config.ini beside the binary, nothing seeded yet, no factory files.
        QCOMPARE(programfolder::resolve(bin), QString());

        // With the factory files installed, the per-user folder is seeded from them.
        QVERIFY(programfolder::copyTree(testpaths::factoryDir(), programfolder::factoryDir(bin)));
        const QString user = programfolder::resolve(bin);
        QVERIFY(user.startsWith(root.filePath(QStringLiteral("userdata"))));
        QVERIFY(QFile::exists(user + QStringLiteral("quellio.db")));
        QVERIFY(QFile::exists(user + QStringLiteral("History")));

        // A portable copy: config.ini beside the binary wins.
        QFile::copy(user + QStringLiteral("config.ini"), bin + QStringLiteral("/config.ini"));
        QCOMPARE(programfolder::resolve(bin), bin + QLatin1Char('/'));

        // QUELLIO_HOME wins over everything.
        qputenv("QUELLIO_HOME", root.filePath(QStringLiteral("elsewhere")).toUtf8());
        QCOMPARE(programfolder::resolve(bin), root.filePath(QStringLiteral("elsewhere/")));
        qunsetenv("QUELLIO_HOME");
        qunsetenv("XDG_DATA_HOME");
    }

private:
    ScriptedUi *m_ui = nullptr;
};

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
