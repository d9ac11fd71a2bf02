#include <QCryptographicHash>
#include <QFile>
#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

#include "core/appstate.h"
#include "design/templatepage.h"
#include "design/view/templaterestoredialog.h"
#include "support/tempprogramfolder.h"

namespace {

QByteArray digest(const QString &file) {
    QFile f(file);
    f.open(QIODevice::ReadOnly);
    return QCryptographicHash::hash(f.readAll(), QCryptographicHash::Md5);
}

void spoil(const QString &file) {
    QFile f(file);
    f.open(QIODevice::Append);
    f.write("edited");
}

}  // namespace

class TestSkinBack : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void restore_data();
    void restore();
};

void TestSkinBack::restore_data() {
    QTest::addColumn<bool>("withFactoryCopy");
    QTest::newRow("factory copy present") << true;
    QTest::newRow("factory copy missing") << false;
}

void TestSkinBack::restore() {
    QFETCH(bool, withFactoryCopy);
    TempProgramFolder folder;
    QVERIFY(folder.start());
    const QString name = QStringLiteral("通用模板（4:3)");
    const QString jsk = design::templatePath(folder.path(), name);
    const QString bak = folder.path(QStringLiteral("skin/bak/")) + name + QStringLiteral(".jsk");
    appState().skinFile = jsk;
    spoil(jsk);
    const QByteArray edited = digest(jsk);
    if (!withFactoryCopy) QVERIFY(QFile::remove(bak));

    TemplateRestoreDialog dialog;
    QSignalSpy reload(&dialog, &TemplateRestoreDialog::reloadRequested);
    dialog.tm.stop();
    QVERIFY(!dialog.close());  // not while a step is under way
    for (int tick = 0; tick < 10 && dialog.result() != QDialog::Accepted; ++tick)
        dialog.tm_Timer();
    QCOMPARE(reload.count(), 1);
    QCOMPARE(dialog.restored, withFactoryCopy);
    if (withFactoryCopy) {
        QCOMPARE(digest(jsk), digest(bak));
        QCOMPARE(digest(appState().skinTmpConnStr), digest(bak));
    } else {
        QCOMPARE(dialog.labInfo->text(), QStringLiteral("找不到原始数据文件无法恢复..."));
        QVERIFY(dialog.labInfo->styleSheet().contains(QStringLiteral("220,0,0")));
        QCOMPARE(digest(jsk), edited);
    }
}

QTEST_MAIN(TestSkinBack)
#include "tst_templaterestore.moc"
