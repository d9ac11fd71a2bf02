#include <QDir>
#include <QImage>
#include <QSqlQuery>
#include <QtTest>

#include "core/helpers.h"
#include "core/profile.h"
#include "core/settings.h"
#include "core/store.h"

// Checks the program folder the build delivers: every file a first start and a first draw need.
class TestFactory : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void configHasEveryKey();
    void storeHasItsRows();
    void templatesHaveTheirRows_data();
    void templatesHaveTheirRows();
    void bothTemplateShapesAreDelivered();
    void foldersAndPictures();

private:
    const QString m_dir = QStringLiteral(QUELLIO_FACTORY_DIR "/");
};

void TestFactory::configHasEveryKey() {
    const ProfileFile ini(m_dir + QStringLiteral("config.ini"));
    const QStringList integers{"maxImgWidth", "maxImgHeight",  "playType",       "playTitleType",
                               "selJxid",     "isTimeProtect", "timeProtectNum", "luckType",
                               "luckDelay",   "guideHide",     "isHideName",     "hideLeft",
                               "hideRight"};
    for (const QString &key : integers) {
        qint16 value = 0;
        QVERIFY2(settings::toInt16(ini.value(QStringLiteral("main"), key), &value),
                 qPrintable(key));
    }
    for (const char *key : {"BT1", "BT2", "selSkinName", "hideReStr"})
        QVERIFY2(ini.contains(QStringLiteral("main"), QLatin1String(key)), key);
    QCOMPARE(ini.value(QStringLiteral("main"), QStringLiteral("maxImgWidth")),
             QStringLiteral("200"));
    QCOMPARE(ini.value(QStringLiteral("main"), QStringLiteral("timeProtectNum")),
             QStringLiteral("3"));
    for (const char *key : {"isBgMusic", "isStartMusic", "isLuckMusic", "isPlayMusic"})
        QCOMPARE(ini.value(QStringLiteral("music"), QLatin1String(key)), QStringLiteral("0"));
    for (const char *key : {"BgMusicFile", "StartMusicFile", "LuckMusicFile", "PlayMusicFile"})
        QCOMPARE(ini.value(QStringLiteral("music"), QLatin1String(key)), QStringLiteral("no"));
    const QString selected = ini.value(QStringLiteral("main"), QStringLiteral("selSkinName"));
    QVERIFY(QFile::exists(m_dir + QStringLiteral("skin/") + selected + QStringLiteral(".jsk")));
}

void TestFactory::storeHasItsRows() {
    QString error;
    QVERIFY2(store::openTemplate(m_dir + QStringLiteral("quellio.db"), QStringLiteral("f"), &error),
             qPrintable(error));
    QSqlDatabase db = QSqlDatabase::database(QStringLiteral("f"));
    QSqlQuery keys(QStringLiteral("SELECT ID, KeyName, KeyAsc FROM KeyBoard ORDER BY ID"), db);
    QStringList rows;
    while (keys.next())
        rows << QStringLiteral("%1 %2 %3")
                    .arg(keys.value(0).toInt())
                    .arg(keys.value(1).toString())
                    .arg(keys.value(2).toInt());
    QCOMPARE(rows, (QStringList{"1 starKey 32", "2 stopKey 32", "3 clearKey 8", "4 cancelKey 46",
                                "5 lstOutKey 69", "6 lstPrtKey 80", "7 playLuckKey 76",
                                "8 soundKey 77", "9 screenKey 70"}));
    QSqlQuery pass(QStringLiteral("SELECT isPassWord, pwd FROM UPassWord WHERE ID=1"), db);
    QVERIFY(pass.next());
    QCOMPARE(pass.value(0).toInt(), 0);
    QCOMPARE(pass.value(1).toString(), md5(QStringLiteral("628413"), 16));
    QCOMPARE(store::scalar(db, QStringLiteral("SELECT COUNT(*) FROM UserList")).toInt(), 0);
    QCOMPARE(store::scalar(db, QStringLiteral("SELECT COUNT(*) FROM JPList")).toInt(), 0);
    QCOMPARE(store::scalar(db, QStringLiteral("PRAGMA user_version")).toInt(),
             store::kSchemaVersion);
    const QVariant indexes = store::scalar(
        db, QStringLiteral("SELECT COUNT(*) FROM sqlite_master WHERE type='index' AND "
                           "tbl_name='UserList' AND name LIKE 'UserList_%'"));
    QVERIFY(indexes.toInt() >= 3);
    store::close(QStringLiteral("f"));
}

void TestFactory::templatesHaveTheirRows_data() {
    QTest::addColumn<QString>("file");
    const QStringList folders{QStringLiteral("skin/"), QStringLiteral("skin/bak/")};
    for (const QString &folder : folders) {
        const QStringList files = QDir(m_dir + folder).entryList({QStringLiteral("*.jsk")});
        for (const QString &file : files)
            QTest::newRow(qPrintable(folder + file)) << m_dir + folder + file;
    }
}

void TestFactory::templatesHaveTheirRows() {
    QFETCH(QString, file);
    QString error;
    QVERIFY2(store::openTemplate(file, QStringLiteral("t"), &error), qPrintable(error));
    QSqlDatabase db = QSqlDatabase::database(QStringLiteral("t"));
    QCOMPARE(store::scalar(db, QStringLiteral("SELECT COUNT(*) FROM LuckBg")).toInt(), 1);
    const QStringList systemObjects{"ssm_vornex", "img_jpimgs", "txt_jpname", "txt_jxname",
                                    "txt_jpinfo", "scr_luckls", "txt_zbt",    "txt_fbt"};
    for (const QString &name : systemObjects) {
        QCOMPARE(store::scalar(db, QStringLiteral("SELECT isVisible FROM LuckObj WHERE ObjName=?"),
                               {name})
                     .toInt(),
                 1);
    }
    for (const char *name : {"blockValue", "playTitle", "playName"}) {
        QCOMPARE(store::scalar(db, QStringLiteral("SELECT COUNT(*) FROM LuckPlay WHERE ObjName=?"),
                               {QString::fromLatin1(name)})
                     .toInt(),
                 1);
    }
    QCOMPARE(
        store::scalar(db, QStringLiteral("SELECT fTxt FROM LuckObj WHERE ObjName='txt_jxname'"))
            .toString(),
        QStringLiteral("$Name2"));
    QVERIFY(store::scalar(db, QStringLiteral("SELECT fTxt FROM LuckObj WHERE ObjName='txt_jpinfo'"))
                .toString()
                .contains(QStringLiteral("$2")));
    QCOMPARE(store::scalar(db, QStringLiteral("PRAGMA journal_mode")).toString(),
             QStringLiteral("delete"));
    store::close(QStringLiteral("t"));
}

void TestFactory::bothTemplateShapesAreDelivered() {
    const auto size = [&](const QString &name) {
        QString error;
        store::openTemplate(m_dir + QStringLiteral("skin/") + name + QStringLiteral(".jsk"),
                            QStringLiteral("s"), &error);
        const QSqlDatabase db = QSqlDatabase::database(QStringLiteral("s"));
        const QString result =
            store::scalar(db, QStringLiteral("SELECT BgW || 'x' || BgH FROM LuckBg")).toString();
        store::close(QStringLiteral("s"));
        return result;
    };
    QCOMPARE(size(QStringLiteral("通用模板（4:3)")), QStringLiteral("1024x768"));
    QCOMPARE(size(QStringLiteral("通用模板（16:9)")), QStringLiteral("1920x1080"));
}

void TestFactory::foldersAndPictures() {
    for (const char *folder : {"Photos", "Music", "History", "record", "skin/sPhoto", "sys"})
        QVERIFY2(QDir(m_dir + QLatin1String(folder)).exists(), folder);
    QCOMPARE(QImage(m_dir + QStringLiteral("skin/Src/block.png")).size(), QSize(128, 128));
    for (const char *movie : {"sys/stage.qml", "sys/preview.qml", "sys/viewer.qml"})
        QVERIFY2(QFile::exists(m_dir + QLatin1String(movie)), movie);
}

QTEST_GUILESS_MAIN(TestFactory)
#include "tst_factory.moc"
