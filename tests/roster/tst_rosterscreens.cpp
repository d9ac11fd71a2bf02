// Renders the roster screens with data, and each import mid-way and finished. The pictures go to
// the folder named by QUELLIO_SCREENSHOTS (docs/screenshots when refreshing them), otherwise to a
// temporary folder: either way every screen is laid out and painted once.
#include <QCheckBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QSqlQuery>
#include <QTreeWidget>
#include <QtTest>

#include "chrome/widgethelpers.h"
#include "core/fonts.h"
#include "roster/view/addparticipantdialog.h"
#include "roster/view/cameracapturedialog.h"
#include "roster/view/excelimportdialog.h"
#include "roster/view/numbergeneratordialog.h"
#include "roster/view/photoimportdialog.h"
#include "roster/view/rostermanagerdialog.h"
#include "roster/view/textimportdialog.h"
#include "stage/view/stagefactory.h"
#include "support/childwidget.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"
#include "xlsxwriter.h"

namespace {

QString fixture(const QString &name) {
    return QStringLiteral(QUELLIO_SOURCE_DIR "/tests/roster/fixtures/") + name;
}

class Shots {
public:
    Shots() {
        const QByteArray target = qgetenv("QUELLIO_SCREENSHOTS");
        m_dir = target.isEmpty() ? m_temp.path() : QString::fromLocal8Bit(target);
        QDir().mkpath(m_dir);
    }
    void take(QWidget &widget, const QString &name) {
        widget.show();
        QCoreApplication::processEvents();
        const QImage image = widget.grab().toImage();
        QVERIFY(!image.isNull());
        QVERIFY(image.save(m_dir + QLatin1Char('/') + name + QStringLiteral(".png")));
    }

private:
    QTemporaryDir m_temp;
    QString m_dir;
};

// Grabs the dialog once, at the first progress report that is not the end.
void grabMidway(ImportDialog &dialog, Shots &shots, const QString &name) {
    auto grabbed = std::make_shared<bool>(false);
    QObject::connect(dialog.job(), &RosterImport::progress, &dialog,
                     [&dialog, &shots, name, grabbed](qint64 done, qint64 total) {
                         if (*grabbed || done >= total) return;
                         *grabbed = true;
                         shots.take(dialog, name);
                     });
}

void fillDemoRoster(QSqlDatabase db) {
    const QStringList names = QStringLiteral(
                                  "王伟 李娜 张敏 刘洋 陈静 杨磊 黄丽 赵强 吴芳 周杰 徐婷 孙浩 "
                                  "马超 朱琳 胡斌 郭蕾 何平 高翔 "
                                  "林雪 罗佳 梁晨 宋雨桐 唐一诺 许子涵 韩浩然 冯欣怡")
                                  .split(QLatin1Char(' '));
    const QStringList parts =
        QStringLiteral("研发部 市场部 销售部 财务部 人力资源部 行政部").split(QLatin1Char(' '));
    db.transaction();
    QSqlQuery insert(db);
    insert.prepare(
        "INSERT INTO UserList (ID, UserName, UserPart, UserPhoto, DiffNum, UserStatus) "
        "VALUES (?, ?, ?, ?, ?, ?)");
    for (int i = 0; i < names.size(); ++i) {
        insert.addBindValue(i + 1);
        insert.addBindValue(names.at(i));
        insert.addBindValue(parts.at(i % parts.size()));
        insert.addBindValue(i % 4 == 0 ? QStringLiteral("Photos/U%1.jpg").arg(i + 1) : QString(""));
        insert.addBindValue(1000 + i);
        insert.addBindValue(i % 7 == 3 ? 3 : (i == 5 ? 1 : (i == 8 ? 2 : 0)));
        insert.exec();
    }
    db.commit();
}

}  // namespace

class TestRosterScreens : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { installFontSubstitutes(); }
    void rosterManager();
    void editorsAndCamera();
    void excelImport();
    void textImport();
    void photoImport();
    void numberGenerator();
};

void TestRosterScreens::rosterManager() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    fillDemoRoster(folder.db());
    installScriptedUi();
    Shots shots;
    for (int id : {1, 5, 9, 13, 17, 21, 25}) {
        QImage photo(300, 400, QImage::Format_RGB32);
        photo.fill(QColor::fromHsv(id * 13, 90, 210));
        QPainter painter(&photo);
        painter.setBrush(QColor(250, 226, 200));
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(QRect(90, 70, 120, 150));
        painter.drawRoundedRect(QRect(50, 240, 200, 200), 80, 80);
        painter.end();
        photo.save(folder.path(QStringLiteral("Photos/U%1.jpg").arg(id)));
    }
    setStageFactory({});  // the real picture viewer
    RosterManagerDialog form;
    form.show();  // laid out first: the viewer decodes at the size it is shown
    auto *list = child<QTreeWidget>(form, "participantList");
    QTRY_COMPARE(list->topLevelItemCount(), 26);
    list->setCurrentItem(list->topLevelItem(24));
    list->topLevelItem(2)->setCheckState(0, Qt::Checked);
    list->topLevelItem(3)->setCheckState(0, Qt::Checked);
    QTest::qWait(1500);  // the viewer decodes the picture asynchronously
    shots.take(form, QStringLiteral("roster-manager"));
}

void TestRosterScreens::editorsAndCamera() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    setStageFactory({});
    Shots shots;
    AddParticipantDialog add;
    add.show();
    QTest::qWait(300);
    shots.take(add, QStringLiteral("roster-add-user"));
    CameraCaptureDialog camera;
    auto *status = child<QLabel>(camera, "statusLabel");
    // The camera opens once the event loop runs: failed (no camera) or live (label hidden).
    QTRY_VERIFY(status->text() != QStringLiteral("正在开启摄像头...") || status->isHidden());
    shots.take(camera, QStringLiteral("roster-camera-missing"));
}

void TestRosterScreens::excelImport() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    installScriptedUi();
    Shots shots;
    QTemporaryDir dir;
    ExcelImportDialog form(fixture(QStringLiteral("libreoffice.xlsx")));
    form.waitForSheet();
    child<QTreeWidget>(form, "columnList")->topLevelItem(1)->setCheckState(0, Qt::Checked);
    child<QCheckBox>(form, "headerRowBox")->setChecked(true);
    shots.take(form, QStringLiteral("import-excel-preview"));
    child<QPushButton>(form, "startButton")->click();
    form.waitForJob();
    shots.take(form, QStringLiteral("import-excel-finished"));

    QList<QStringList> rows{{QStringLiteral("姓名"), QStringLiteral("部门")}};
    for (int i = 0; i < 60000; ++i)
        rows << QStringList{QStringLiteral("员工%1").arg(i), QStringLiteral("部门%1").arg(i % 9)};
    const QString bigFile = dir.filePath(QStringLiteral("big.xlsx"));
    QVERIFY(testxlsx::write(bigFile, QStringLiteral("全体员工"), rows));
    ExcelImportDialog big(bigFile);
    big.waitForSheet();
    child<QTreeWidget>(big, "columnList")->topLevelItem(0)->setCheckState(0, Qt::Checked);
    child<QCheckBox>(big, "headerRowBox")->setChecked(true);
    child<QPushButton>(big, "startButton")->click();
    grabMidway(big, shots, QStringLiteral("import-excel-midway"));
    big.waitForJob();
}

void TestRosterScreens::textImport() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    installScriptedUi();
    Shots shots;
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("big.txt"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QByteArray bytes;
    for (int i = 0; i < 120000; ++i)
        bytes += QStringLiteral("员工%1,部门%2\r\n").arg(i % 119990).arg(i % 9).toUtf8();
    file.write(bytes);
    file.close();
    TextImportDialog form(path);
    child<QPushButton>(form, "startButton")->click();
    grabMidway(form, shots, QStringLiteral("import-txt-midway"));
    form.waitForJob();
    shots.take(form, QStringLiteral("import-txt-finished"));
}

void TestRosterScreens::photoImport() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    ScriptedUi *scripted = installScriptedUi();
    Shots shots;
    QTemporaryDir dir;
    QStringList files;
    for (int i = 0; i < 30; ++i) {
        QImage image(1600, 1200, QImage::Format_RGB32);
        image.fill(QColor::fromHsv(i * 6, 120, 200));
        files << dir.filePath(QStringLiteral("员工%1,宣传部.jpg").arg(i));
        image.save(files.last());
    }
    files << dir.filePath(QStringLiteral("员工1,宣传部.jpg"));
    PhotoImportDialog form;
    scripted->fileLists.enqueue(files);
    child<QPushButton>(form, "chooseButton")->click();
    shots.take(form, QStringLiteral("import-photos-chosen"));
    child<QPushButton>(form, "startButton")->click();
    grabMidway(form, shots, QStringLiteral("import-photos-midway"));
    form.waitForJob();
    shots.take(form, QStringLiteral("import-photos-finished"));
}

void TestRosterScreens::numberGenerator() {
    TempProgramFolder folder;
    QVERIFY(folder.start());
    ScriptedUi *scripted = installScriptedUi();
    Shots shots;
    NumberGeneratorDialog form;
    child<QLineEdit>(form, "maskEdit")->setText(QStringLiteral("4,13"));
    QLineEdit *end = child<QLineEdit>(form, "endEdit");
    end->clear();
    QTest::keyClicks(end, QStringLiteral("99999"));  // typed, so the sample follows
    shots.take(form, QStringLiteral("numbers-setup"));
    scripted->answers.enqueue(true);
    child<QPushButton>(form, "startButton")->click();
    grabMidway(form, shots, QStringLiteral("numbers-midway"));
    form.waitForJob();
    shots.take(form, QStringLiteral("numbers-finished"));
}

QTEST_MAIN(TestRosterScreens)
#include "tst_rosterscreens.moc"
