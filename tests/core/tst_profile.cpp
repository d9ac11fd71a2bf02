#include <QFile>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <QtTest>

#include "core/profile.h"
#include "support/filebytes.h"

class TestProfile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void reading_data() {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("section");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("expected");

        const auto row = [](const char *tag, const QByteArray &content, const char *section,
                            const char *key, const QString &expected) {
            QTest::newRow(tag) << content << QString::fromUtf8(section) << QString::fromUtf8(key)
                               << expected;
        };
        const QByteArray basic = "[main]\nBT1=年会\nluckDelay=\n[music]\nBT1=other\n";
        row("plain", basic, "main", "BT1", QStringLiteral("年会"));
        row("empty value", basic, "main", "luckDelay", "");
        row("missing key", basic, "main", "nothing", "");
        row("missing section", basic, "other", "BT1", "");
        row("other section", basic, "music", "BT1", "other");
        row("any case", basic, "MAIN", "bt1", QStringLiteral("年会"));
        row("first equals splits", QByteArray("[main]\nBT1=a=b;c\n"), "main", "BT1", "a=b;c");
        row("blanks dropped", QByteArray("[main]\n  BT1 =   x y  \n"), "main", "BT1", "x y");
        row("double quotes dropped", QByteArray("[main]\nBT1=\"  quoted \"\n"), "main", "BT1",
            "  quoted ");
        row("single quotes dropped", QByteArray("[main]\nBT1='x'\n"), "main", "BT1", "x");
        row("unmatched quotes stay", QByteArray("[main]\nBT1=\"x'\n"), "main", "BT1", "\"x'");
        row("CR LF lines", QByteArray("[main]\r\nBT1=v\r\nBT2=w\r\n"), "main", "BT2", "w");
        row("byte-order mark", QByteArray("\xEF\xBB\xBF[main]\nBT1=v\n"), "main", "BT1", "v");
        row("comment is no key", QByteArray("[main]\n;BT1=no\n"), "main", "BT1", "");
    }

    void reading() {
        QFETCH(QByteArray, content);
        QFETCH(QString, section);
        QFETCH(QString, key);
        writeFile(file(), content);
        QTEST(readIni(section, key, file()), "expected");
    }

    void writingKeepsTheRestOfTheFile_data() {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QStringList>("sectionKeyValue");
        QTest::addColumn<QByteArray>("after");
        const QByteArray head = "; settings\n[main]\nBT1=a\nmyOwnKey=keep\n";
        const QByteArray base = head + "selJxid=0\n\n[music]\nx=1\n";
        QTest::newRow("replace in place")
            << base << QStringList{"main", "selJxid", "7"} << head + "selJxid=7\n\n[music]\nx=1\n";
        QTest::newRow("replace keeps case of nothing else")
            << base << QStringList{"main", "bt1", "b"}
            << QByteArray("; settings\n[main]\nbt1=b\nmyOwnKey=keep\nselJxid=0\n\n[music]\nx=1\n");
        QTest::newRow("new key at end of its section")
            << base << QStringList{"main", "newKey", "a=b;c"}
            << head + "selJxid=0\nnewKey=a=b;c\n\n[music]\nx=1\n";
        QTest::newRow("new section at end")
            << base << QStringList{"extra", "k", "v"} << base + "[extra]\nk=v\n";
        QTest::newRow("CR LF kept")
            << QByteArray("[main]\r\nBT1=a\r\n") << QStringList{"main", "BT1", "b"}
            << QByteArray("[main]\r\nBT1=b\r\n");
        QTest::newRow("byte-order mark kept")
            << QByteArray("\xEF\xBB\xBF[main]\nBT1=a\n") << QStringList{"main", "BT1", "b"}
            << QByteArray("\xEF\xBB\xBF[main]\nBT1=b\n");
        QTest::newRow("file created") << QByteArray() << QStringList{"main", "BT1", "标题"}
                                      << QStringLiteral("[main]\nBT1=标题\n").toUtf8();
    }

    void writingKeepsTheRestOfTheFile() {
        QFETCH(QByteArray, before);
        QFETCH(QStringList, sectionKeyValue);
        QFile::remove(file());
        if (!before.isEmpty()) writeFile(file(), before);
        QVERIFY(writeIni(sectionKeyValue[0], sectionKeyValue[1], sectionKeyValue[2], file()));
        QTEST(readFile(file()), "after");
    }

    void longValuesAndNulCharacters() {
        writeFile(file(), "[main]\nBT1=" + QByteArray(12000, 'x') + "\nBT2=a" +
                              QByteArray(1, '\0') + "b\n");
        QCOMPARE(readIni(QStringLiteral("main"), QStringLiteral("BT1"), file()).size(), 10000);
        QCOMPARE(readIni(QStringLiteral("main"), QStringLiteral("BT2"), file()),
                 QStringLiteral("ab"));
    }

    // A settings file saved by a Chinese Windows editor: read as GB18030, written back as UTF-8.
    void fileSavedAsGbkIsReadAndRewrittenAsUtf8() {
        QStringEncoder gbk("GB18030");
        const QByteArray bytes =
            gbk(QStringLiteral("[main]\r\nBT1=二〇二六年会抽奖\r\nBT2=欢迎\r\n"));
        QVERIFY(!gbk.hasError());
        writeFile(file(), bytes);
        QCOMPARE(readIni(QStringLiteral("main"), QStringLiteral("BT1"), file()),
                 QStringLiteral("二〇二六年会抽奖"));
        QVERIFY(writeIni(QStringLiteral("main"), QStringLiteral("BT2"), QStringLiteral("你好"),
                         file()));
        QCOMPARE(readFile(file()),
                 QStringLiteral("[main]\r\nBT1=二〇二六年会抽奖\r\nBT2=你好\r\n").toUtf8());
    }

private:
    QTemporaryDir m_dir;
    QString file() const { return m_dir.filePath(QStringLiteral("config.ini")); }
};

QTEST_GUILESS_MAIN(TestProfile)
#include "tst_profile.moc"
