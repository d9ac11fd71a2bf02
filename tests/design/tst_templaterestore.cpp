#include <QFile>
#include <QLabel>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include "core/appstate.h"
#include "design/templatepage.h"
#include "design/view/templaterestoredialog.h"
#include "support/childwidget.h"
#include "support/filebytes.h"
#include "support/tempprogramfolder.h"

class TestTemplateRestore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void restore_data() {
        QTest::addColumn<bool>("withFactoryCopy");
        QTest::addColumn<QString>("notice");
        QTest::newRow("factory copy present") << true << "正在打开备份文件...";
        QTest::newRow("factory copy missing") << false << "找不到原始数据文件无法恢复...";
    }

    void restore() {
        QFETCH(bool, withFactoryCopy);
        QFETCH(QString, notice);
        TempProgramFolder folder;
        QVERIFY(folder.start());
        const QString name = QStringLiteral("通用模板（4:3)");
        const QString jsk = design::templatePath(folder.path(), name);
        const QString bak =
            folder.path(QStringLiteral("skin/bak/")) + name + QStringLiteral(".jsk");
        appState().skinFile = jsk;
        writeFile(jsk, readFile(jsk) + "edited");
        const QByteArray edited = fileDigest(jsk);
        if (!withFactoryCopy) QVERIFY(QFile::remove(bak));

        TemplateRestoreDialog dialog;
        QSignalSpy reload(&dialog, &TemplateRestoreDialog::reloadRequested);
        auto *steps = child<QTimer>(dialog, "stepTimer");
        steps->stop();
        QVERIFY(!dialog.close());  // not while a step is under way
        steps->start(0);
        QVERIFY(reload.wait());
        QCOMPARE(reload.count(), 1);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        auto *status = child<QLabel>(dialog, "statusLabel");
        QCOMPARE(status->text(), notice);
        QCOMPARE(status->styleSheet().contains(QStringLiteral("220,0,0")), !withFactoryCopy);
        if (withFactoryCopy) {
            QCOMPARE(fileDigest(jsk), fileDigest(bak));
            QCOMPARE(fileDigest(appState().skinTmpConnStr), fileDigest(bak));
        } else {
            QCOMPARE(fileDigest(jsk), edited);
        }
    }
};

QTEST_MAIN(TestTemplateRestore)
#include "tst_templaterestore.moc"
