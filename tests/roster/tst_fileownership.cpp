#include <QDir>
#include <QFile>
#include <QtTest>

#include "core/appstate.h"
#include "core/store.h"
#include "roster/rosterimport.h"
#include "roster/rosterpage.h"
#include "support/filebytes.h"
#include "support/tempprogramfolder.h"

namespace {

bool touch(const QString &path) {
    return !writeFile(path, "x").isEmpty();
}

QStringList photosFolder(const TempProgramFolder &folder) {
    return QDir(folder.path("Photos")).entryList(QDir::Files);
}

void setPhoto(QSqlDatabase db, int id, const QString &photo) {
    QVERIFY(
        store::exec(db, QStringLiteral("UPDATE UserList SET UserPhoto=? WHERE ID=?"), {photo, id}));
}

}  // namespace

// The program deletes only the photo files it owns: inside Photos/, named by no other row.
class TestFileOwnership : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
        m_outside = std::make_unique<QTemporaryDir>();
        m_outsideFile = m_outside->filePath(QStringLiteral("zs.jpg"));
        QVERIFY(touch(m_outsideFile));
        m_outsideStored = QDir(m_folder->path()).relativeFilePath(m_outsideFile);
        QVERIFY(m_outsideStored.startsWith(QStringLiteral("../")));
    }

    void cleanup() {
        m_folder.reset();
        m_outside.reset();
    }

    void deletingParticipants() {
        QSqlDatabase db = m_folder->db();
        const QList<int> ids = m_folder->addUsers({"外", "甲", "乙", "丙", "丁"});
        for (const QString name : {"shared.jpg", "U4.jpg", "U5.jpg"})
            QVERIFY(touch(m_folder->path("Photos/") + name));
        setPhoto(db, ids[0], m_outsideStored);
        setPhoto(db, ids[1], QStringLiteral("Photos/shared.jpg"));
        setPhoto(db, ids[2],
                 QStringLiteral("Photos\\shared.jpg"));  // the same file, older spelling
        setPhoto(db, ids[3], QStringLiteral("Photos/U4.jpg"));
        setPhoto(db, ids[4], QStringLiteral("Photos/U5.jpg"));
        const int award = m_folder->addAward(QStringLiteral("一等奖"), 1, 1);
        QVERIFY(store::exec(
            db, QStringLiteral("UPDATE JPList SET JPPhoto='Photos/U5.jpg' WHERE ID=?"), {award}));
        QString error;
        QVERIFY(roster::deleteParticipants(db, {ids[0], ids[1], ids[3], ids[4]}, &error));
        QVERIFY(QFile::exists(m_outsideFile));
        // 乙 still names shared.jpg, and U5.jpg is the prize's picture.
        QCOMPARE(photosFolder(*m_folder), (QStringList{"shared.jpg", "U5.jpg"}));
        QVERIFY(roster::deleteParticipants(db, {ids[2]}, &error));
        QCOMPARE(photosFolder(*m_folder), QStringList{"U5.jpg"});
    }

    void clearingAPhoto_data() {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<bool>("sharedWithAnother");
        QTest::addColumn<bool>("removed");
        QTest::newRow("own photo") << "Photos/U1.jpg" << false << true;
        QTest::newRow("shared photo") << "Photos/U1.jpg" << true << false;
        QTest::newRow("outside the program folder") << "" << false << false;
    }

    void clearingAPhoto() {
        QFETCH(QString, stored);
        QFETCH(bool, sharedWithAnother);
        QFETCH(bool, removed);
        QSqlDatabase db = m_folder->db();
        const QList<int> ids = m_folder->addUsers({"甲", "乙"});
        const QString photo = stored.isEmpty() ? m_outsideStored : stored;
        const QString file = stored.isEmpty() ? m_outsideFile : m_folder->path(stored);
        QVERIFY(touch(file));
        setPhoto(db, ids[0], photo);
        if (sharedWithAnother) setPhoto(db, ids[1], photo);
        QCOMPARE(roster::settlePhoto(ids[0], QStringLiteral("no"), photo), QString());
        QCOMPARE(QFile::exists(file), !removed);
    }

    // A replace removes the photos of the rows it replaced and the program's own leftovers, never
    // an operator's file in Photos/, a file outside, or a file a new row names.
    void replacingTheRoster() {
        QSqlDatabase db = m_folder->db();
        const QList<int> ids = m_folder->addUsers({"旧甲", "旧乙", "旧丙"});
        m_folder->addAward(QStringLiteral("一等奖"), 3, 1);
        for (const QString name :
             {"U1.jpg", "U7.jpg", "LIU.jpg", "zhang.jpg", "U2.jpg", "JP1.jpg", "camertemp.jpg"})
            QVERIFY(touch(m_folder->path("Photos/") + name));
        setPhoto(db, ids[0], QStringLiteral("Photos/zhang.jpg"));
        setPhoto(db, ids[1], m_outsideStored);
        TxtImport job(
            {QStringLiteral("新人,部门,Photos/U1.jpg"), QStringLiteral("刘,部门,Photos/LIU.jpg")},
            QStringLiteral(","), true);
        QCOMPARE(job.runToEnd(), RosterImport::Outcome::Finished);
        QCOMPARE(job.imported(), 2);
        // Kept: the camera's last shot, the prize's picture and what the new rows name.
        QCOMPARE(photosFolder(*m_folder),
                 (QStringList{"camertemp.jpg", "JP1.jpg", "LIU.jpg", "U1.jpg"}));
        QVERIFY(QFile::exists(m_outsideFile));
        QCOMPARE(store::scalar(db, QStringLiteral("SELECT COUNT(*) FROM JPList")).toInt(), 1);

        // Without the new rows naming it, a file whose name merely holds a "U" stays as well.
        setPhoto(db, 2, QString());
        ExcelImport excel({{"王五"}}, {true}, QStringLiteral(" "), false, true);
        QCOMPARE(excel.runToEnd(), RosterImport::Outcome::Finished);
        QCOMPARE(photosFolder(*m_folder), (QStringList{"camertemp.jpg", "JP1.jpg", "LIU.jpg"}));
    }

private:
    std::unique_ptr<TempProgramFolder> m_folder;
    std::unique_ptr<QTemporaryDir> m_outside;
    QString m_outsideFile;  // the operator's own picture, beside the program folder
    QString m_outsideStored;
};

QTEST_MAIN(TestFileOwnership)
#include "tst_fileownership.moc"
