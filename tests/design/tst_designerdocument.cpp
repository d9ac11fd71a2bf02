#include <QFile>
#include <QtTest>

#include "core/appstate.h"
#include "core/store.h"
#include "design/designerdocument.h"
#include "design/designvalues.h"
#include "design/templatepage.h"
#include "stage/protocol.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

const QString kTemplate = QStringLiteral("通用模板（16:9)");

// The designer's document on a fresh working copy of the 16:9 factory template.
struct Workbench {
    TempProgramFolder folder;
    ScriptedUi *ui = installScriptedUi();
    RecordingStage stage;
    std::unique_ptr<design::DesignerDocument> doc;

    Workbench() {
        folder.start();
        design::copyToWorkingFile(folder.path(), kTemplate);
        doc = std::make_unique<design::DesignerDocument>(
            folder.path(), design::templatePath(folder.path(), kTemplate), stage);
        doc->open();
        doc->loadStage();
        stage.clear();
    }
    // One column of a LuckObj row of the working copy; invalid when the row is gone.
    QVariant column(const QString &name, const QString &col) const {
        return store::scalar(
            doc->db(), QStringLiteral("SELECT %1 FROM LuckObj WHERE ObjName=?").arg(col), {name});
    }
    QString picture() const {
        const QString file = folder.path(QStringLiteral("pic.png"));
        QImage image(40, 30, QImage::Format_RGB32);
        image.fill(Qt::green);
        image.save(file);
        return file;
    }
    QString add(const QString &kind) {
        if (kind == QLatin1String("txt")) return doc->addText();
        if (kind == QLatin1String("scr")) return doc->addScrollText();
        if (kind == QLatin1String("img")) return doc->addImage(picture());
        return doc->addAnimation(picture());
    }
};

}  // namespace

class TestDesignerDocument : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void objectOfEachKind_data() {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("sized");  // text objects keep no size
        const auto row = [](const char *kind, const char *command, bool sized) {
            QTest::newRow(kind) << kind << command << sized;
        };
        row("txt", "vbAddTxt", false);
        row("scr", "vbAddStxt", true);
        row("img", "vbAddImg", true);
        row("swf", "vbAddSwf", true);
    }

    // Add, move and resize, hide, re-layer and delete, each checked against the stored row.
    void objectOfEachKind() {
        QFETCH(QString, kind);
        QFETCH(QString, command);
        QFETCH(bool, sized);
        Workbench bench;
        const QString name = bench.add(kind);
        QCOMPARE(name.size(), 20);
        QCOMPARE(bench.column(name, "ObjType").toString(), command);
        QCOMPARE(bench.column(name, "ObjX").toInt(), 50);
        QCOMPARE(bench.stage.names().value(0), command);
        QCOMPARE(bench.doc->insertionPoint(), QPoint(70, 70));

        QVERIFY(bench.doc->storeGeometry(name, "312", "140", "220", "90"));
        QCOMPARE(bench.column(name, "ObjX").toInt(), 312);
        QCOMPARE(bench.column(name, "ObjY").toInt(), 140);
        QCOMPARE(bench.column(name, "ObjW").toInt(), sized ? 220 : kind == "scr" ? 280 : 0);

        const int depth = bench.column(name, "ObjDepth").toInt();
        QVERIFY(!bench.doc->moveDepth(name, true));  // the newest object is on top
        QVERIFY(bench.doc->moveDepth(name, false));
        QCOMPARE(bench.column(name, "ObjDepth").toInt(), depth - 1);
        QVERIFY(bench.stage.values(proto::resetAsDepth).value(0).startsWith(name + "|"));

        bench.doc->setVisible(name, false);
        QCOMPARE(bench.column(name, "isVisible").toInt(), 0);
        QCOMPARE(bench.stage.values(proto::delObj).value(0), name);
        bench.doc->setVisible(name, true);

        QCOMPARE(bench.doc->deleteObject(name), design::DeleteOutcome::Deleted);
        QVERIFY(!bench.column(name, "ObjName").isValid());
        // A picture's file goes only when the deletion is saved.
        QCOMPARE(bench.doc->removedFiles().size(), kind == "img" || kind == "swf" ? 1 : 0);
    }

    void saveLitByDigestAndUndoneToTheSameBytes() {
        Workbench bench;
        QVERIFY(!bench.doc->isModified());
        const QString name = bench.doc->addText();
        bench.doc->storeGeometry(name, "400", "300", "0", "0");
        QVERIFY(bench.doc->isModified());
        bench.stage.clear();
        bench.doc->undoStack()->undo();
        bench.doc->undoStack()->undo();
        QVERIFY(!bench.doc->isModified());
        QVERIFY(!bench.column(name, "ObjName").isValid());
        QVERIFY(bench.stage.names().contains(proto::ClsPage));  // the stage was reloaded
        bench.doc->undoStack()->redo();
        bench.doc->undoStack()->redo();
        QCOMPARE(bench.column(name, "ObjX").toInt(), 400);
        QVERIFY(bench.doc->isModified());
        QVERIFY(bench.doc->save());
        QVERIFY(!bench.doc->isModified());
    }

    void positionThatIsNotANumber() {
        Workbench bench;
        QVERIFY(!bench.doc->storeGeometry("txt_zbt", "NaN?", "10", "1", "1"));
        QCOMPARE(bench.ui->last().text, QStringLiteral("坐标数据错误,非数字类型"));
        QCOMPARE(bench.column("txt_zbt", "ObjX").toInt(), 660);
        QVERIFY(!bench.doc->isModified());
    }

    void systemObjectsAreHiddenNotDeleted() {
        Workbench bench;
        QCOMPARE(bench.doc->deleteObject("txt_jpinfo"), design::DeleteOutcome::Hidden);
        QCOMPARE(bench.column("txt_jpinfo", "isVisible").toInt(), 0);
        QCOMPARE(bench.doc->deleteObject("ssm_vornex"), design::DeleteOutcome::Refused);
        QCOMPARE(bench.ui->last().text, QStringLiteral("系统变量不能删除!"));
        QCOMPARE(bench.column("ssm_vornex", "isVisible").toInt(), 1);
    }

    // An undone deletion puts the picture back in use: saving must not take its file.
    void pictureDeletedOnlyWhenNoRowNamesIt() {
        Workbench bench;
        const QString name = bench.doc->addImage(bench.picture());
        const QString file = bench.folder.path() + bench.column(name, "ImgPath").toString();
        bench.doc->save();
        bench.doc->deleteObject(name);
        bench.doc->undoStack()->undo();
        bench.doc->save();
        QVERIFY(QFile::exists(file));
        bench.doc->deleteObject(name);
        bench.doc->save();
        QVERIFY(!QFile::exists(file));

        const QString added = bench.doc->addImage(bench.picture());
        const QString addedFile = bench.folder.path() + bench.column(added, "ImgPath").toString();
        bench.doc->discard();
        QVERIFY(!QFile::exists(addedFile));
    }

    void colourKeepsSixDigits_data() {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("written");
        const auto row = [](const char *tag, const char *stored, const char *written) {
            QTest::newRow(tag) << stored << written;
        };
        row("leading zeros", "0x0000FF", "0x0000FF");
        row("short", "0xFF", "0x0000FF");
        row("lower case", "0xfac996", "0xFAC996");
        row("unreadable", "red", "0x000000");
    }

    void colourKeepsSixDigits() {
        QFETCH(QString, stored);
        QFETCH(QString, written);
        QCOMPARE(design::colorText(design::colorFromText(stored)), written);
    }
};

QTEST_MAIN(TestDesignerDocument)
#include "tst_designerdocument.moc"
