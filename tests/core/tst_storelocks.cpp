#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QPushButton>
#include <QtTest>

#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include "core/appstate.h"
#include "core/store.h"
#include "roster/rosterimport.h"
#include "roster/view/rostermanagerdialog.h"
#include "roster/view/textimportdialog.h"
#include "roster/workbook.h"
#include "support/childwidget.h"
#include "support/filebytes.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
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
    void init() {
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
        m_folder->addUsers({"甲", "乙"});
        QVERIFY(holdsStoreLocks());
    }
    void cleanup() { m_folder.reset(); }

    void heldAfterImportAndExport() {
        ScriptedUi *scripted = installScriptedUi();
        installRecordingStages();
        QTemporaryDir dir;
        TextImportDialog import(
            writeFile(dir.filePath(QStringLiteral("名单.txt")), "丙,部门\n丁,部门\n"));
        child<QPushButton>(import, "startButton")->click();
        import.waitForJob();
        QVERIFY(holdsStoreLocks());

        RosterManagerDialog manager;
        manager.showParticipants(QString(), 1);
        scripted->files.enqueue(m_folder->path("record/名单.csv"));
        child<QPushButton>(manager, "exportButton")->click();
        QCOMPARE(scripted->last().text, QStringLiteral("导出完毕"));
        QVERIFY(holdsStoreLocks());
    }

    // A file dialog's model reads an icon and a type for each file of the folder it shows.
    void heldAfterAFileDialogShowsTheProgramFolder() {
        QFileDialog dialog(nullptr, QStringLiteral("导入Txt文件"), m_folder->path());
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setFilter(QDir::AllEntries | QDir::Hidden | QDir::System);
        auto *model = dialog.findChild<QFileSystemModel *>();
        QVERIFY(model);
        QSignalSpy loaded(model, &QFileSystemModel::directoryLoaded);
        dialog.show();
        QVERIFY(loaded.count() > 0 || loaded.wait());
        const QModelIndex folder = model->index(m_folder->path());
        QTRY_VERIFY(model->rowCount(folder) > 3);
        const auto everyTypeKnown = [&] {
            for (int row = 0; row < model->rowCount(folder); ++row)
                if (model->index(row, 2, folder).data().toString().isEmpty()) return false;
            return true;
        };
        QTRY_VERIFY(everyTypeKnown());
        QVERIFY(holdsStoreLocks());
    }

    void storeFilesAreNeverReadAsImports_data() {
        QTest::addColumn<QString>("file");
        QTest::newRow("store") << "quellio.db";
        QTest::newRow("log") << "quellio.db-wal";
        QTest::newRow("shared memory") << "quellio.db-shm";
    }

    void storeFilesAreNeverReadAsImports() {
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

private:
    // The store's read lock on its file and the write-ahead log's lock on its shared memory.
    static bool holdsStoreLocks() {
        return holdsLock(appState().mainConnStr) &&
               holdsLock(appState().mainConnStr + QStringLiteral("-shm"));
    }
    std::unique_ptr<TempProgramFolder> m_folder;
};

QTEST_MAIN(TestStoreLocks)
#include "tst_storelocks.moc"
