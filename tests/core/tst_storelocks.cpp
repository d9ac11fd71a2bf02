#include <QAbstractFileIconProvider>
#include <QDir>
#include <QFile>
#include <QtTest>

#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include "core/appstate.h"
#include "core/store.h"
#include "roster/replaceguard.h"
#include "roster/rosterimport.h"
#include "roster/rosterpage.h"
#include "roster/workbook.h"
#include "support/tempprogramfolder.h"

namespace {

// Whether this process holds a POSIX lock on the file, as the kernel lists it in /proc/locks
// ("1: POSIX  ADVISORY  READ <pid> <major>:<minor>:<inode> <start> <end>").
bool holdsLock(const QString &path) {
    struct stat info;
    if (::stat(QFile::encodeName(path).constData(), &info) != 0) return false;
    const QString inode = QStringLiteral("%1:%2:%3")
                              .arg(major(info.st_dev), 2, 16, QLatin1Char('0'))
                              .arg(minor(info.st_dev), 2, 16, QLatin1Char('0'))
                              .arg(info.st_ino);
    QFile locks(QStringLiteral("/proc/locks"));
    if (!locks.open(QIODevice::ReadOnly | QIODevice::Text)) return false;
    const QString pid = QString::number(::getpid());
    for (const QByteArray &line : locks.readAll().split('\n')) {
        const QStringList fields =
            QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (fields.size() >= 6 && fields.at(4) == pid && fields.at(5) == inode) return true;
    }
    return false;
}

}  // namespace

// POSIX drops every lock a process holds on a file when any of its descriptors to that file
// closes. The store must keep its lock on quellio.db whatever else the program does, or an
// outside reader takes the write-ahead log away from under it.
class TestStoreLocks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_folder.reset(); }
    void heldAfterImportAndExport();
    void heldAfterListingTheProgramFolder();
    void storeFilesAreNeverReadAsImports_data();
    void storeFilesAreNeverReadAsImports();

private:
    // The store's read lock on its file and the write-ahead log's lock on its shared memory.
    static bool holdsStoreLocks() {
        return holdsLock(appState().mainConnStr) &&
               holdsLock(appState().mainConnStr + QStringLiteral("-shm"));
    }
    std::unique_ptr<TempProgramFolder> m_folder;
};

void TestStoreLocks::init() {
    m_folder = std::make_unique<TempProgramFolder>();
    QVERIFY(m_folder->start());
    m_folder->addUsers({"甲", "乙"});
    QVERIFY(holdsStoreLocks());
}

void TestStoreLocks::heldAfterImportAndExport() {
    TxtImport job({QStringLiteral("丙,部门"), QStringLiteral("丁,部门")}, QStringLiteral(","),
                  false);
    QCOMPARE(job.runToEnd(), RosterImport::Outcome::Finished);
    QVERIFY(holdsStoreLocks());
    QString error;
    QVERIFY(!roster::writeRosterSnapshot(m_folder->db(), appState().appPath,
                                         QDateTime::currentDateTime(), &error)
                 .isEmpty());
    QVERIFY(roster::writeCsv(m_folder->path("record/名单.csv"), {{"甲"}}, &error));
    QVERIFY(holdsStoreLocks());
}

// What a file dialog's model does for each file of the program folder: an icon and a type.
void TestStoreLocks::heldAfterListingTheProgramFolder() {
    const QAbstractFileIconProvider provider;
    const QFileInfoList files =
        QDir(m_folder->path()).entryInfoList(QDir::Files | QDir::Hidden | QDir::System);
    QVERIFY(files.size() > 3);
    for (const QFileInfo &file : files) {
        provider.icon(file);
        provider.type(file);
    }
    QVERIFY(holdsStoreLocks());
}

void TestStoreLocks::storeFilesAreNeverReadAsImports_data() {
    QTest::addColumn<QString>("file");
    QTest::newRow("store") << "quellio.db";
    QTest::newRow("log") << "quellio.db-wal";
    QTest::newRow("shared memory") << "quellio.db-shm";
}

void TestStoreLocks::storeFilesAreNeverReadAsImports() {
    QFETCH(QString, file);
    const QString path = m_folder->path(file);
    QVERIFY(QFile::exists(path));
    QString error;
    workbook::Workbook book;
    QVERIFY(!book.open(path, &error));
    QVERIFY(!error.isEmpty());
    QStringList lines;
    QVERIFY(!TxtImport::readLines(path, &lines, &error));
    QVERIFY(holdsStoreLocks());
}

QTEST_MAIN(TestStoreLocks)
#include "tst_storelocks.moc"
