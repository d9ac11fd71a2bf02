#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include "chrome/widgethelpers.h"
#include "core/helpers.h"
#include "support/filebytes.h"

class TestHelpers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pathParts_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("ext");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *tag, const char *path, const char *ext, const char *name) {
            QTest::newRow(tag) << QString(path) << QString(ext) << QString(name);
        };
        row("double extension", "a.tar.gz", ".gz", "a.tar.gz");
        row("no dot", "name", "", "name");
        row("dotted folder", "/data/photos.2026/name", ".2026/name", "name");
        row("upper case kept", "Photos/U1.JPG", ".JPG", "U1.JPG");
        row("backslash from old data", "Photos\\U3.jpg", ".jpg", "U3.jpg");
        row("folder", "a/b/", "", "");
        row("empty", "", "", "");
    }

    void pathParts() {
        QFETCH(QString, path);
        QTEST(getExt(path), "ext");
        QTEST(getFileName(path), "name");
    }

    void fileExistsOnlyForFiles() {
        QTemporaryDir dir;
        QVERIFY(fileExists(writeFile(dir.filePath(QStringLiteral("x.txt")), "x")));
        QVERIFY(!fileExists(dir.path()));
        QVERIFY(!fileExists(QString()));
        QVERIFY(!fileExists(dir.filePath(QStringLiteral("missing.txt"))));
    }

    void ownedFiles_data() {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("owned");  // relative to the program folder; empty: not owned
        const auto row = [](const char *tag, const char *stored, const char *owned) {
            QTest::newRow(tag) << QString(stored) << QString(owned);
        };
        row("photo", "Photos/U1.jpg", "Photos/U1.jpg");
        row("old backslashes", "Photos\\U1.jpg", "Photos/U1.jpg");
        row("detour that stays inside", "Photos/../Photos/./a.jpg", "Photos/a.jpg");
        row("out of the program folder", "../photos/zs.jpg", "");
        row("out through the folder", "Photos/../../zs.jpg", "");
        row("the settings beside it", "Photos/../config.ini", "");
        row("absolute", "/etc/hostname", "");
        row("another folder of the program", "Music/a.mp3", "");
        row("the folder itself", "Photos", "");
        row("through a linked folder", "Photos/elsewhere/zs.jpg", "");
        row("empty", "", "");
    }

    void ownedFiles() {
        QFETCH(QString, stored);
        QFETCH(QString, owned);
        QTemporaryDir outside;
        QTemporaryDir dir;
        const QString appPath = dir.path() + QStringLiteral("/");
        QVERIFY(QDir(appPath).mkpath(QStringLiteral("Photos")));
        QVERIFY(QFile::link(outside.path(), appPath + QStringLiteral("Photos/elsewhere")));
        const QString expected =
            owned.isEmpty() ? QString()
                            : QFileInfo(appPath + QStringLiteral("Photos")).canonicalFilePath() +
                                  owned.mid(owned.indexOf(QLatin1Char('/')));
        QCOMPARE(ownedFile(appPath, QStringLiteral("Photos/"), stored), expected);
    }

    void randomNames() {
        const QString a = makeRandomName(16);
        QVERIFY(QRegularExpression(QStringLiteral("^[0-9a-z]{16}$")).match(a).hasMatch());
        QVERIFY(a != makeRandomName(16));
    }

    void digest_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("form");
        QTest::addColumn<QString>("digest");
        QTest::newRow("factory password") << "628413" << 16 << "c6363a424fa0677a";
        QTest::newRow("full form") << "628413" << 32 << "9a475f31c6363a424fa0677a3670f77b";
        QTest::newRow("blanks trimmed") << "  abc  " << 16 << "3cd24fb0d6963f7d";
        QTest::newRow("same as untrimmed") << "abc" << 16 << "3cd24fb0d6963f7d";
        QTest::newRow("empty") << "" << 32 << "d41d8cd98f00b204e9800998ecf8427e";
    }

    void digest() {
        QFETCH(QString, text);
        QFETCH(int, form);
        QTEST(md5(text, form), "digest");
    }

    void selectComboFallsBackToTheFirstItem_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("index");
        QTest::newRow("match with blanks in the item") << "B" << 1;
        QTest::newRow("last item") << "C" << 2;
        QTest::newRow("no match") << "Z" << 0;
    }

    void selectComboFallsBackToTheFirstItem() {
        QFETCH(QString, text);
        QComboBox combo;
        combo.addItems({"A", " B ", "C"});
        combo.setCurrentIndex(2);
        selectCombo(&combo, text);
        QTEST(combo.currentIndex(), "index");
    }

    void centerFormNeverLeavesTheScreen() {
        QWidget console;
        console.setGeometry(0, 0, 200, 100);
        console.show();
        setConsoleWindow(&console);
        QWidget dialog;
        dialog.resize(600, 400);
        centerForm(&dialog);
        QCOMPARE(dialog.pos(), QPoint(0, 0));
        console.setGeometry(100, 100, 757, 448);
        dialog.resize(357, 248);
        centerForm(&dialog);
        QVERIFY((dialog.geometry().center() - console.frameGeometry().center()).manhattanLength() <=
                4);
        // During the draw the console is hidden: a dialog of the draw window centres on it.
        console.hide();
        QWidget drawWindow;
        drawWindow.setGeometry(300, 200, 1000, 600);
        drawWindow.show();
        QDialog overDraw(&drawWindow);
        overDraw.resize(400, 200);
        centerForm(&overDraw);
        QVERIFY((overDraw.geometry().center() - drawWindow.frameGeometry().center())
                    .manhattanLength() <= 4);
        setConsoleWindow(nullptr);
    }
};

QTEST_MAIN(TestHelpers)
#include "tst_helpers.moc"
