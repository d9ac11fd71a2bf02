#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

#include "awards/awardbook.h"
#include "awards/view/addawarddialog.h"
#include "awards/view/awardeditor.h"
#include "awards/view/awardmanagerdialog.h"
#include "awards/view/camerahook.h"
#include "core/appstate.h"
#include "core/events.h"
#include "core/store.h"
#include "stage/protocol.h"
#include "stage/view/stagefactory.h"
#include "support/childwidget.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"
#include "support/treerows.h"

namespace {

void click(const QWidget &parent, const char *name) {
    child<QAbstractButton>(parent, name)->click();
}

QLineEdit *edit(const QWidget &parent, const char *name) {
    return child<QLineEdit>(parent, name);
}

QTreeWidget *awardList(const QWidget &manager) {
    return child<QTreeWidget>(manager, "awardList");
}

QTreeWidgetItem *rowOf(const QWidget &manager, int id) {
    QTreeWidget *list = awardList(manager);
    const QString key = QStringLiteral("K") + QString::number(id);
    for (int i = 0; i < list->topLevelItemCount(); ++i)
        if (list->topLevelItem(i)->data(AwardManagerDialog::ColCheck, Qt::UserRole) == key)
            return list->topLevelItem(i);
    qFatal("no row for award %d", id);
}

// Selecting a row loads its award into the editor.
void selectAward(const QWidget &manager, int id) {
    awardList(manager)->setCurrentItem(rowOf(manager, id));
}

void tick(const QWidget &manager, int id) {
    rowOf(manager, id)->setCheckState(AwardManagerDialog::ColCheck, Qt::Checked);
}

// The selected award's ID, 0 when none.
int selectedId(const QWidget &manager) {
    const QTreeWidgetItem *item = awardList(manager)->currentItem();
    return item ? item->data(AwardManagerDialog::ColCheck, Qt::UserRole).toString().mid(1).toInt()
                : 0;
}

// What the editor holds as the prize picture: "no", "camre" or a file.
QString pictureOf(const QWidget &dialog) {
    return child<AwardEditor>(dialog, "awardEditor")->input().txtPhoto;
}

}  // namespace

class TestAwardScreens : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
        m_ui = installScriptedUi();
        m_stages = &installRecordingStages();
        m_stages->clear();
    }

    void cleanup() { m_folder.reset(); }

    void listColumnsAndColours() {
        addAwards();
        AwardManagerDialog dialog;
        QTreeWidget *list = awardList(dialog);
        QCOMPARE(list->headerItem()->text(AwardManagerDialog::ColRange),
                 QStringLiteral("区分编号范围"));
        QCOMPARE(treeRows(awardList(dialog)),
                 (QStringList{"|1|特等奖|1|1|新能源汽车||否|不限制",
                              "|2|一等奖|3|1|笔记本电脑||是|100 < (介于) < 500",
                              "|3|二等奖|10|2|平板电脑||否|大于(>) 2000"}));
        const QTreeWidgetItem *second = list->topLevelItem(1);
        QCOMPARE(second->data(AwardManagerDialog::ColCheck, Qt::UserRole).toString(),
                 QStringLiteral("K2"));
        QCOMPARE(second->foreground(AwardManagerDialog::ColRepeatWins).color(), QColor(255, 0, 0));
        const QTreeWidgetItem *first = list->topLevelItem(0);
        QCOMPARE(first->foreground(AwardManagerDialog::ColRepeatWins).color(), QColor(18, 118, 0));
        QCOMPARE(first->foreground(AwardManagerDialog::ColRange).color(), QColor(18, 118, 0));
        // With no key the last award is selected and in the editor.
        QCOMPARE(selectedId(dialog), 3);
        QCOMPARE(edit(dialog, "awardNameEdit")->text(), QStringLiteral("二等奖"));
        QCOMPARE(child<QComboBox>(dialog, "rangeCombo")->currentIndex(), 1);
        selectAward(dialog, 2);
        QCOMPARE(edit(dialog, "rangeToEdit")->text(), QStringLiteral("500"));
        QVERIFY(!child<QCheckBox>(dialog, "excludeWinnersCheck")->isChecked());
    }

    void rangeFieldsFollowTheType_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("shown");  // the boxes shown: from, to
        const QStringList shown{"", "from", "from", "from", "from to"};
        for (int type = 0; type < shown.size(); ++type)
            QTest::addRow("type %d", type) << type << shown.at(type);
    }

    void rangeFieldsFollowTheType() {
        QFETCH(int, type);
        QFETCH(QString, shown);
        AddAwardDialog dialog;
        child<QComboBox>(dialog, "rangeCombo")->setCurrentIndex(type);
        QCOMPARE(edit(dialog, "rangeFromEdit")->isVisibleTo(&dialog), shown.contains("from"));
        QCOMPARE(edit(dialog, "rangeToEdit")->isVisibleTo(&dialog), shown.contains("to"));
        QCOMPARE(child<QLabel>(dialog, "rangeDash")->isVisibleTo(&dialog), shown.contains("to"));
    }

    void saveStopsAtTheFirstFault() {
        addAwards();
        AwardManagerDialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QLineEdit *slotsBox = edit(dialog, "slotsEdit");
        QLineEdit *prize = edit(dialog, "prizeEdit");
        slotsBox->setText(QStringLiteral("32768"));
        prize->clear();
        click(dialog, "removePictureButton");
        click(dialog, "saveEditButton");
        QCOMPARE(m_ui->last().text, QStringLiteral("奖品名额最多为32767个"));
        QCOMPARE(m_ui->last().title, QStringLiteral("提示"));
        QCOMPARE(QApplication::focusWidget(), slotsBox);
        slotsBox->setText(QStringLiteral("5"));
        click(dialog, "saveEditButton");
        QCOMPARE(m_ui->last().text, QStringLiteral("奖品名称和奖品图片不能同时为空"));
        QCOMPARE(QApplication::focusWidget(), prize);
        QCOMPARE(AwardBook().find(3)->JXNum, 10);  // nothing written
        prize->setText(QStringLiteral("手机"));
        click(dialog, "saveEditButton");
        QCOMPARE(m_ui->texts().last(), QStringLiteral("奖项数据更新成功！"));
        QCOMPARE(AwardBook().find(3)->JXNum, 5);
        QCOMPARE(selectedId(dialog), 3);
        QCOMPARE(awardList(dialog)->currentItem()->text(AwardManagerDialog::ColPrize),
                 QStringLiteral("手机"));
    }

    void editWithWinnersAsks_data() {
        QTest::addColumn<bool>("answer");
        QTest::newRow("yes") << true;
        QTest::newRow("no") << false;
    }

    void editWithWinnersAsks() {
        QFETCH(bool, answer);
        addAwards();
        m_folder->addUsers({QStringLiteral("张三")});
        store::exec(m_folder->db(),
                    QStringLiteral("UPDATE UserList SET JxID='|1||3|', UserStatus=3"));
        AwardManagerDialog dialog;
        selectAward(dialog, 1);
        edit(dialog, "prizeEdit")->setText(QStringLiteral("电动车"));
        m_ui->answers.enqueue(answer);
        click(dialog, "saveEditButton");
        const ScriptedUi::Record asked = m_ui->records.first();
        QCOMPARE((QStringList{asked.kind, asked.title, asked.text}),
                 (QStringList{"question", "警告",
                              "注意：当前编辑奖项已经存在中奖记录\n本操作将清除所有与之对应的中奖"
                              "记录!\n确认要编辑么?"}));
        QCOMPARE(store::scalar(m_folder->db(), "SELECT JxID FROM UserList").toString(),
                 answer ? QStringLiteral("|3|") : QStringLiteral("|1||3|"));
        QCOMPARE(AwardBook().find(1)->JPName,
                 answer ? QStringLiteral("电动车") : QStringLiteral("新能源汽车"));
        QCOMPARE(m_ui->records.size(), answer ? 2 : 1);
    }

    void deleteTicked() {
        addAwards();
        AwardManagerDialog dialog;
        QTreeWidget *list = awardList(dialog);
        QSignalSpy changed(&events(), &Events::awardsChanged);
        click(dialog, "deleteAwardsButton");
        QCOMPARE(m_ui->last().text, QStringLiteral("请选择需要删除的奖项!"));
        QCOMPARE(m_ui->last().title, QStringLiteral("删除失败"));
        QCOMPARE(m_ui->last().style, MsgStyle::Critical);
        tick(dialog, 1);
        tick(dialog, 2);
        click(dialog, "deleteAwardsButton");  // the question goes unanswered: No
        QCOMPARE(m_ui->last().text,
                 QStringLiteral("“删除奖项”将清除与之对应的中奖记录\n确认要删除么?"));
        QCOMPARE(list->topLevelItemCount(), 3);
        m_ui->answers.enqueue(true);
        click(dialog, "deleteAwardsButton");
        QCOMPARE(treeRows(awardList(dialog)),
                 QStringList{"|1|二等奖|10|2|平板电脑||否|大于(>) 2000"});
        QCOMPARE(selectedId(dialog), 3);
        QCOMPARE(changed.count(), 1);
    }

    void moveKeepsSelection() {
        addAwards();
        AwardManagerDialog dialog;
        QTreeWidget *list = awardList(dialog);
        selectAward(dialog, 1);
        click(dialog, "moveUpButton");
        QCOMPARE(selectedId(dialog), 1);
        QCOMPARE(list->topLevelItem(0)->text(AwardManagerDialog::ColName),
                 QStringLiteral("特等奖"));
        click(dialog, "moveDownButton");
        QCOMPARE(selectedId(dialog), 1);
        QCOMPARE(list->topLevelItem(1)->text(AwardManagerDialog::ColName),
                 QStringLiteral("特等奖"));
        QCOMPARE(list->topLevelItem(1)->text(AwardManagerDialog::ColOrder), QStringLiteral("2"));
    }

    void emptyListDisablesEditor() {
        AwardManagerDialog dialog;
        QCOMPARE(awardList(dialog)->topLevelItemCount(), 0);
        for (const char *name :
             {"awardEditor", "deleteAwardsButton", "moveUpButton", "moveDownButton"})
            QVERIFY2(!child<QWidget>(dialog, name)->isEnabled(), name);
        QVERIFY(child<QPushButton>(dialog, "addAwardButton")->isEnabled());
        QCOMPARE(edit(dialog, "slotsEdit")->text(), QStringLiteral("0"));
        QCOMPARE(pictureOf(dialog), QStringLiteral("no"));
    }

    void viewerShowsThePicture() {
        m_folder->addAward(QStringLiteral("奖"), 1, 1);
        store::exec(m_folder->db(), QStringLiteral("UPDATE JPList SET JPPhoto='Photos\\JP1.png'"));
        AwardManagerDialog dialog;
        RecordingStage *stage = viewer();
        QVERIFY(stage);
        QCOMPARE(stage->movie, m_folder->path(QStringLiteral("sys/viewer.qml")));
        QVERIFY(stage->values(proto::vbAddImg).isEmpty());  // nothing before the movie is ready
        stage->reply(proto::cmd::loadok);
        const QString stored = m_folder->path(QStringLiteral("Photos/JP1.png"));
        QCOMPARE(pictureOf(dialog), stored);
        stage->reply(proto::cmd::msg, QStringLiteral("图片无法加载"));
        QCOMPARE(m_ui->last().title + m_ui->last().text, QStringLiteral("AS 消息图片无法加载"));

        QVERIFY(!child<QPushButton>(dialog, "cameraButton")->isVisibleTo(&dialog));  // no camera
        m_ui->files.enqueue(QStringLiteral("/tmp/prize.png"));
        click(dialog, "choosePictureButton");
        QCOMPARE(m_ui->last().title, QStringLiteral("添加奖品图片"));
        QCOMPARE(pictureOf(dialog), QStringLiteral("/tmp/prize.png"));
        click(dialog, "choosePictureButton");  // cancelled: the choice stays
        QCOMPARE(pictureOf(dialog), QStringLiteral("/tmp/prize.png"));
        click(dialog, "removePictureButton");
        QCOMPARE(pictureOf(dialog), QStringLiteral("no"));
        QCOMPARE(stage->values(proto::vbAddImg), (QStringList{stored, "/tmp/prize.png", ""}));
        QCOMPARE(dialogFilter(QStringLiteral("图片(*.png)|*.png;*.jpg|GIF|*.gif")),
                 QStringLiteral("图片(*.png) (*.png *.jpg);;GIF (*.gif)"));
    }

    void cameraPhoto() {
        QString caller;
        awardcamera::setShot([this, &caller](QWidget *, const QString &askedBy) {
            caller = askedBy;
            QDir().mkpath(m_folder->path(QStringLiteral("Photos")));
            QFile file(m_folder->path(AwardBook::kCameraFile));
            return file.open(QIODevice::WriteOnly) ? file.fileName() : QString();
        });
        const auto unregister = qScopeGuard([] { awardcamera::setShot(nullptr); });
        AddAwardDialog dialog;
        QVERIFY(child<QPushButton>(dialog, "cameraButton")->isVisibleTo(&dialog));
        click(dialog, "cameraButton");
        QCOMPARE(caller, QStringLiteral("AddAwardDialog"));
        QCOMPARE(pictureOf(dialog), QStringLiteral("camre"));
    }

    // The add dialog sends the focus to the first fault's field, refuses an award past a full
    // book, and adds with its own defaults.
    void addDialog() {
        addAwards();
        AddAwardDialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QVERIFY(child<QCheckBox>(dialog, "excludeWinnersCheck")->isChecked());
        QCOMPARE(child<QComboBox>(dialog, "rangeCombo")->currentIndex(), 0);
        QCOMPARE(pictureOf(dialog), QStringLiteral("no"));
        edit(dialog, "awardNameEdit")->setText(QStringLiteral("奖"));
        click(dialog, "addButton");
        QCOMPARE(QApplication::focusWidget(), edit(dialog, "slotsEdit"));
        const QStringList typed{"三等奖", "20", "4", "保温杯"};
        const char *boxes[] = {"awardNameEdit", "slotsEdit", "batchesEdit", "prizeEdit"};
        for (int i = 0; i < 4; ++i)
            edit(dialog, boxes[i])->setText(typed.at(i));
        store::exec(m_folder->db(),
                    "INSERT INTO JPList (ID, JXName, OrderNum) VALUES (32767, 'A', 4)");
        click(dialog, "addButton");
        QCOMPARE(m_ui->last().text, AwardBook::kFullMessage);
        QCOMPARE(AwardBook().list().size(), 4);
        QVERIFY(dialog.result() != QDialog::Accepted);
        store::exec(m_folder->db(), "DELETE FROM JPList WHERE ID=32767");
        click(dialog, "addButton");
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(m_ui->records.size(), 2);  // no confirmation
        const AwardRow row = AwardBook().find(4).value();
        QCOMPARE((QStringList{row.JXName, QString::number(row.JXNum), QString::number(row.JXGroup),
                              row.JPName, QString::number(row.isReLuck)}),
                 typed + QStringList{"1"});
    }

private:
    void addAwards() {
        m_folder->addAward(QStringLiteral("特等奖"), 1, 1, 1, 0, 0, 0,
                           QStringLiteral("新能源汽车"));
        m_folder->addAward(QStringLiteral("一等奖"), 3, 1, 0, 4, 100, 500,
                           QStringLiteral("笔记本电脑"));
        m_folder->addAward(QStringLiteral("二等奖"), 10, 2, 1, 1, 2000, 0,
                           QStringLiteral("平板电脑"));
    }

    RecordingStage *viewer() const {
        return m_stages->isEmpty() ? nullptr : m_stages->last().data();
    }

    std::unique_ptr<TempProgramFolder> m_folder;
    ScriptedUi *m_ui = nullptr;
    QList<QPointer<RecordingStage>> *m_stages = nullptr;
};

QTEST_MAIN(TestAwardScreens)
#include "tst_awardscreens.moc"
