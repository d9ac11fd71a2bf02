#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPagedPaintDevice>
#include <QPushButton>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

#include "chrome/widgets.h"
#include "core/appstate.h"
#include "core/settings.h"
#include "core/store.h"
#include "draw/engine.h"
#include "draw/giveup.h"
#include "draw/makeup.h"
#include "draw/view/endofdrawdialog.h"
#include "draw/view/giveupdialog.h"
#include "draw/view/makeupdrawdialog.h"
#include "draw/winners.h"
#include "drawdialogs.h"
#include "results/view/printwinners.h"
#include "stage/protocol.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

// A started program folder with the draw engine on a recording stage, as the draw screen has it.
struct Rig {
    TempProgramFolder folder;
    RecordingStage stage;
    draw::DrawEngine engine{stage};
    const draw::DrawSession &session = engine.session();
    bool started = folder.start();

    void setWins(qint64 id, const QString &jxId, int status, const QString &time = QString()) {
        store::exec(folder.db(),
                    QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=?, UpdateTime=? "
                                   "WHERE ID=?"),
                    {jxId, status, time.isEmpty() ? QVariant() : QVariant(time), id});
    }
    QVariant cell(qint64 id, const QString &column) {
        return store::scalar(
            folder.db(), QStringLiteral("SELECT %1 FROM UserList WHERE ID=?").arg(column), {id});
    }
    int winners(int award) { return draw::countAwardWinners(folder.db(), award); }
};

}  // namespace

class TestMakeupGiveUp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_ui = installScriptedUi(); }
    void cleanup() { setPrinterFactory({}); }

    void makeupShiftsTheBatchPlan_data();
    void makeupShiftsTheBatchPlan();
    void makeupSlotChecks_data();
    void makeupSlotChecks();
    void makeupWithoutAwardsDoesNothing();
    void newAwardChecksInOrder_data();
    void newAwardChecksInOrder();
    void newAwardGoesLastAndLoads();
    void giveUpFreesEveryAwardOfTheHolder();
    void giveUpAsksFirst();
    void giveUpListPagesAndSearches();
    void giveUpListColumns();
    void restartWritesASnapshot();
    void askEndExportPrintParade();

private:
    ScriptedUi *m_ui = nullptr;
};

void TestMakeupGiveUp::makeupShiftsTheBatchPlan_data() {
    QTest::addColumn<int>("slotCount");
    QTest::addColumn<int>("batches");
    QTest::addColumn<int>("have");
    QTest::addColumn<int>("added");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    // A full award opens again, capped at the new slots.
    QTest::newRow("full 10/3 + 2") << 10 << 3 << 10 << 2 << 0 << 2;
    // P rises from 3 to 4: the next batch grows.
    QTest::newRow("10/3 one batch drawn + 2") << 10 << 3 << 3 << 2 << 3 << 4;
}

// The dialog adds the slots, names the award, and loading it works out the new batch size.
void TestMakeupGiveUp::makeupShiftsTheBatchPlan() {
    QFETCH(int, slotCount);
    QFETCH(int, batches);
    QFETCH(int, have);
    QFETCH(int, added);
    QFETCH(int, before);
    QFETCH(int, after);
    Rig rig;
    QVERIFY(rig.started);
    rig.folder.addAward(QStringLiteral("一等奖"), 5, 1);
    const int award = rig.folder.addAward(QStringLiteral("二等奖"), slotCount, batches);
    QStringList names;
    for (int i = 0; i < have + 10; ++i)
        names << QStringLiteral("嘉宾%1").arg(i);
    const QList<int> ids = rig.folder.addUsers(names);
    for (int i = 0; i < have; ++i)
        rig.setWins(ids[i], store::awardMarker(award), 3);
    QVERIFY(rig.engine.loadAward(award, true));
    QCOMPARE(rig.session.batchCount, before);

    MakeUpDrawDialog dialog(award);
    QCOMPARE(awardCombo(dialog)->currentData().toInt(), award);
    QVERIFY(!awardCombo(dialog)->currentText().contains(QLatin1Char('|')));
    QSignalSpy load(&dialog, &MakeUpDrawDialog::awardChanged);
    edit(dialog, "addedSlotsEdit")->setText(QString::number(added));
    button(dialog, "okButton")->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(load.count(), 1);
    QCOMPARE(load.at(0).at(0).toInt(), award);
    QVERIFY(m_ui->records.isEmpty());
    QCOMPARE(draw::slotsOf(rig.folder.db(), award), slotCount + added);
    QCOMPARE(store::scalar(rig.folder.db(), "SELECT JXGroup FROM JPList WHERE ID=?", {award}),
             QVariant(batches));

    rig.stage.clear();
    QVERIFY(rig.engine.loadAward(load.at(0).at(0).toInt(), true));
    QCOMPARE(rig.session.batchCount, after);
    QCOMPARE(rig.session.drawState, int(draw::Idle));
    QCOMPARE(rig.stage.values(proto::changBtn), QStringList({"defulte"}));
}

void TestMakeupGiveUp::makeupSlotChecks_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("message");
    QTest::newRow("empty") << ""
                           << "至少追加一个名额!";
    QTest::newRow("zero") << "0"
                          << "至少追加一个名额!";
    QTest::newRow("beyond 16 bits") << "32758"
                                    << "追加后奖品名额最多为32767个";
    QTest::newRow("five digits") << "99999"
                                 << "追加后奖品名额最多为32767个";
}

void TestMakeupGiveUp::makeupSlotChecks() {
    QFETCH(QString, typed);
    QFETCH(QString, message);
    Rig rig;
    QVERIFY(rig.started);
    const int award = rig.folder.addAward(QStringLiteral("一等奖"), 10, 2);
    MakeUpDrawDialog dialog(award);
    dialog.show();
    edit(dialog, "addedSlotsEdit")->setText(typed);
    button(dialog, "okButton")->click();
    QCOMPARE(m_ui->texts(), QStringList({message}));
    QCOMPARE(m_ui->last().title, QStringLiteral("提示"));
    QCOMPARE(m_ui->last().style, MsgStyle::Information);
    QVERIFY(dialog.isVisible());
    QCOMPARE(draw::slotsOf(rig.folder.db(), award), 10);
    // The largest make-up that fits is taken.
    m_ui->clear();
    edit(dialog, "addedSlotsEdit")->setText(QStringLiteral("32757"));
    button(dialog, "okButton")->click();
    QVERIFY(m_ui->records.isEmpty());
    QCOMPARE(draw::slotsOf(rig.folder.db(), award), 32767);
}

void TestMakeupGiveUp::makeupWithoutAwardsDoesNothing() {
    Rig rig;
    QVERIFY(rig.started);
    MakeUpDrawDialog dialog;
    QCOMPARE(awardCombo(dialog)->currentText(), QStringLiteral("无任何奖项"));
    QSignalSpy load(&dialog, &MakeUpDrawDialog::awardChanged);
    edit(dialog, "addedSlotsEdit")->setText(QStringLiteral("3"));
    button(dialog, "okButton")->click();
    QVERIFY(m_ui->records.isEmpty());
    QCOMPARE(load.count(), 0);
}

void TestMakeupGiveUp::newAwardChecksInOrder_data() {
    QTest::addColumn<QStringList>("fields");  // name, slots, batches, prize
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("focus");  // index of the field that gets the focus
    QTest::newRow("blank name") << QStringList{"  ", "", "", ""} << "请输入奖项名称!" << 0;
    QTest::newRow("no slots") << QStringList{"特等奖", "", "", ""} << "至少存在1个名额" << 1;
    QTest::newRow("zero slots") << QStringList{"特等奖", "0", "1", "车"} << "至少存在1个名额" << 1;
    QTest::newRow("slots 32768") << QStringList{"特等奖", "32768", "1", "车"}
                                 << "奖品名额最多为32767个" << 1;
    QTest::newRow("no batches") << QStringList{"特等奖", "3", "", "车"} << "至少存在1个抽奖批次"
                                << 2;
    QTest::newRow("batches 40000")
        << QStringList{"特等奖", "3", "40000", "车"} << "抽奖批次最多为32767次" << 2;
    QTest::newRow("blank prize") << QStringList{"特等奖", "3", "1", " "} << "奖品名称不能为空" << 3;
}

void TestMakeupGiveUp::newAwardChecksInOrder() {
    QFETCH(QStringList, fields);
    QFETCH(QString, message);
    QFETCH(int, focus);
    Rig rig;
    QVERIFY(rig.started);
    MakeUpDrawDialog dialog;
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    tabs(dialog)->setCurrentIndex(1);
    QLineEdit *boxes[] = {edit(dialog, "awardNameEdit"), edit(dialog, "slotCountEdit"),
                          edit(dialog, "batchCountEdit"), edit(dialog, "prizeNameEdit")};
    for (int i = 0; i < 4; ++i)
        boxes[i]->setText(fields[i]);
    button(dialog, "okButton")->click();
    QCOMPARE(m_ui->texts(), QStringList({message}));
    QCOMPARE(m_ui->last().title, QStringLiteral("提示"));
    QCOMPARE(QApplication::focusWidget(), boxes[focus]);
    QCOMPARE(store::scalar(rig.folder.db(), "SELECT COUNT(*) FROM JPList").toInt(), 0);
}

void TestMakeupGiveUp::newAwardGoesLastAndLoads() {
    Rig rig;
    QVERIFY(rig.started);
    rig.folder.addAward(QStringLiteral("一等奖"), 1, 1);
    rig.folder.addAward(QStringLiteral("二等奖"), 2, 1);
    MakeUpDrawDialog dialog(1);
    QSignalSpy load(&dialog, &MakeUpDrawDialog::awardChanged);
    tabs(dialog)->setCurrentIndex(1);
    edit(dialog, "awardNameEdit")->setText(QStringLiteral("加码奖 ' |$"));
    edit(dialog, "slotCountEdit")->setText(QStringLiteral("3"));
    edit(dialog, "batchCountEdit")->setText(QStringLiteral("5"));
    edit(dialog, "prizeNameEdit")->setText(QStringLiteral("红包"));
    child<QCheckBox>(dialog, "excludeWinnersCheck")->setChecked(false);
    button(dialog, "okButton")->click();
    QVERIFY(m_ui->records.isEmpty());
    QCOMPARE(load.count(), 1);
    const int id = load.at(0).at(0).toInt();
    QCOMPARE(id, 3);
    QSqlQuery query(rig.folder.db());
    query.exec(
        QStringLiteral("SELECT JXName, JXNum, JXGroup, JPName, JPPhoto, OrderNum, "
                       "isReLuck, RangeType FROM JPList WHERE ID=3"));
    QVERIFY(query.next());
    QCOMPARE(query.value(0).toString(), QStringLiteral("加码奖 ' |$"));
    QCOMPARE(query.value(1).toInt(), 3);
    QCOMPARE(query.value(2).toInt(), 5);  // stored as typed, shown clamped
    QCOMPARE(query.value(3).toString(), QStringLiteral("红包"));
    QCOMPARE(query.value(4).toString(), QString());
    QCOMPARE(query.value(5).toInt(), 3);
    QCOMPARE(query.value(6).toInt(), 0);
    QCOMPARE(query.value(7).toInt(), 0);

    QVERIFY(rig.engine.loadAward(id, true));
    QCOMPARE(rig.stage.values(proto::vbLoadJx).constLast().section(QLatin1Char('|'), 2, 3),
             QStringLiteral("3|3"));
    QCOMPARE(rig.session.batchCount, 1);

    // No 16-bit ID left: a message, nothing stored, the dialog stays.
    store::exec(rig.folder.db(), QStringLiteral("UPDATE JPList SET ID=32767 WHERE ID=3"));
    MakeUpDrawDialog full;
    QSignalSpy fullLoad(&full, &MakeUpDrawDialog::awardChanged);
    tabs(full)->setCurrentIndex(1);
    edit(full, "awardNameEdit")->setText(QStringLiteral("再加一个"));
    edit(full, "slotCountEdit")->setText(QStringLiteral("1"));
    edit(full, "batchCountEdit")->setText(QStringLiteral("1"));
    edit(full, "prizeNameEdit")->setText(QStringLiteral("红包"));
    button(full, "okButton")->click();
    QCOMPARE(m_ui->texts(), QStringList({draw::kAwardsFullMessage}));
    QCOMPARE(m_ui->last().title, QStringLiteral("提示"));
    QCOMPARE(fullLoad.count(), 0);
    QCOMPARE(store::scalar(rig.folder.db(), "SELECT COUNT(*) FROM JPList").toInt(), 3);
}

// A holder of two awards gives up: both awards get their slot back, the participant stays in
// the list as given up, and the draw screen is told.
void TestMakeupGiveUp::giveUpFreesEveryAwardOfTheHolder() {
    Rig rig;
    QVERIFY(rig.started);
    const int first = rig.folder.addAward(QStringLiteral("一等奖"), 2, 1);
    const int second = rig.folder.addAward(QStringLiteral("二等奖"), 2, 1);
    const QList<int> ids = rig.folder.addUsers({"张三", "李四", "王五"});
    rig.setWins(ids[0], "|1||2|", 3, "2026-11-05 20:00:00");
    rig.setWins(ids[1], "|1|", 3, "2026-11-05 19:00:00");
    rig.setWins(ids[2], "|2|", 3, "2026-11-05 21:00:00");
    QVERIFY(rig.engine.loadAward(first, false));
    QCOMPARE(rig.session.batchCount, 0);

    GiveUpDialog dialog;
    QSignalSpy given(&dialog, &GiveUpDialog::givenUp);
    QCOMPARE(row(dialog, 1)->text(GiveUpDialog::ColName), QStringLiteral("张三"));
    tick(dialog, ids[0]);
    m_ui->answers.enqueue(true);
    button(dialog, "giveUpButton")->click();
    QCOMPARE(m_ui->texts(), QStringList({"确认要将选择的中奖名单做弃奖么?"}));
    QCOMPARE(m_ui->last().title, QStringLiteral("警告"));
    QCOMPARE(given.count(), 1);
    QCOMPARE(rig.cell(ids[0], "JxID").toString(), QStringLiteral("无"));
    QCOMPARE(rig.cell(ids[0], "UserStatus").toInt(), 1);
    QCOMPARE(rig.cell(ids[1], "JxID").toString(), QStringLiteral("|1|"));
    QCOMPARE(rig.winners(first), 1);
    QCOMPARE(rig.winners(second), 1);

    // Still listed, as given up, with nothing in the awards column.
    QCOMPARE(winnerList(dialog)->topLevelItemCount(), 3);
    QTreeWidgetItem *gaveUp = row(dialog, 1);
    QCOMPARE(gaveUp->text(GiveUpDialog::ColName), QStringLiteral("张三"));
    QCOMPARE(gaveUp->text(GiveUpDialog::ColAwards), QString());
    QCOMPARE(gaveUp->text(GiveUpDialog::ColStatus), QStringLiteral("已弃奖"));

    // What the draw screen does on givenUp: one more draw of one on the first award.
    rig.engine.reloadAward(true, true);
    QCOMPARE(rig.session.batchCount, 1);
    QCOMPARE(rig.stage.values(proto::vbLoadJx).constLast().section(QLatin1Char('|'), 3, 3),
             QStringLiteral("1"));
}

void TestMakeupGiveUp::giveUpAsksFirst() {
    Rig rig;
    QVERIFY(rig.started);
    rig.folder.addAward(QStringLiteral("一等奖"), 2, 1);
    const QList<int> ids = rig.folder.addUsers({"张三"});
    rig.setWins(ids[0], "|1|", 3);
    GiveUpDialog dialog;
    QSignalSpy given(&dialog, &GiveUpDialog::givenUp);
    button(dialog, "giveUpButton")->click();
    QCOMPARE(m_ui->texts(), QStringList({"请勾选需要做弃奖的的名单!"}));
    QCOMPARE(m_ui->last().title, QStringLiteral("提示"));
    QCOMPARE(m_ui->last().style, MsgStyle::Exclamation);
    m_ui->clear();
    tick(dialog, ids[0]);
    m_ui->answers.enqueue(false);
    button(dialog, "giveUpButton")->click();
    QCOMPARE(m_ui->texts(), QStringList({"确认要将选择的中奖名单做弃奖么?"}));
    QCOMPARE(rig.cell(ids[0], "JxID").toString(), QStringLiteral("|1|"));
    QCOMPARE(given.count(), 0);
}

// A roster of 1234 winners in batches of ten: fifty to a page, newest batch first, ties by ID.
void TestMakeupGiveUp::giveUpListPagesAndSearches() {
    Rig rig;
    QVERIFY(rig.started);
    rig.folder.addAward(QStringLiteral("一等奖"), 2000, 10);
    QStringList names;
    for (int i = 1; i <= 1234; ++i)
        names << QStringLiteral("嘉宾%1").arg(i, 4, 10, QLatin1Char('0'));
    names[99] = QStringLiteral("王_五");
    names[100] = QStringLiteral("李雷");
    names[700] = QStringLiteral("李雷雷");
    QCOMPARE(rig.folder.addUsers(names).size(), 1234);
    QVERIFY(store::exec(rig.folder.db(),
                        "UPDATE UserList SET JxID='|1|', UserStatus=3, UpdateTime=strftime("
                        "'%Y-%m-%d %H:%M:%S', '2026-11-05 18:00:00', '+' || ((ID-1)/10) || "
                        "' minutes')"));
    const QString free = QStringLiteral("无人");
    rig.folder.addUsers({free});  // no win: never listed

    GiveUpDialog dialog;
    QCOMPARE(pageInfo(dialog), QStringLiteral("总计∶1234 人, 当前第1页/共25页"));
    QCOMPARE(winnerList(dialog)->topLevelItemCount(), 50);
    QCOMPARE(row(dialog, 0)->text(GiveUpDialog::ColName), QStringLiteral("嘉宾1231"));
    QCOMPARE(row(dialog, 4)->text(GiveUpDialog::ColName), QStringLiteral("嘉宾1221"));
    QCOMPARE(row(dialog, 49)->text(GiveUpDialog::ColNumber), QStringLiteral("50"));
    QCOMPARE(winnerList(dialog)->currentItem(), row(dialog, 0));
    QVERIFY(!button(dialog, "previousPageButton")->isEnabled());
    QVERIFY(button(dialog, "nextPageButton")->isEnabled());

    // Ticks on one page are not carried to the next.
    row(dialog, 0)->setCheckState(GiveUpDialog::ColNumber, Qt::Checked);
    button(dialog, "nextPageButton")->click();
    QCOMPARE(pageInfo(dialog), QStringLiteral("总计∶1234 人, 当前第2页/共25页"));
    QCOMPARE(row(dialog, 0)->text(GiveUpDialog::ColNumber), QStringLiteral("1"));
    QCOMPARE(row(dialog, 0)->text(GiveUpDialog::ColName), QStringLiteral("嘉宾1187"));
    QVERIFY(button(dialog, "previousPageButton")->isEnabled());
    button(dialog, "giveUpButton")->click();
    QCOMPARE(m_ui->texts(), QStringList({"请勾选需要做弃奖的的名单!"}));

    for (int page = 2; page < 25; ++page)
        button(dialog, "nextPageButton")->click();
    QCOMPARE(winnerList(dialog)->topLevelItemCount(), 34);
    QCOMPARE(row(dialog, 33)->text(GiveUpDialog::ColName), QStringLiteral("嘉宾0010"));
    QVERIFY(!button(dialog, "nextPageButton")->isEnabled());
    // A page beyond either end is the last or the first.
    QCOMPARE(draw::giveUpPage(rig.folder.db(), QString(), 99).pageNo, 25);
    QCOMPARE(draw::giveUpPage(rig.folder.db(), QString(), -3).pageNo, 1);

    edit(dialog, "searchEdit")->setText(QStringLiteral(" 李雷 "));
    button(dialog, "searchButton")->click();
    QCOMPARE(pageInfo(dialog), QStringLiteral("总计∶2 人, 当前第1页/共1页"));
    QCOMPARE(row(dialog, 0)->text(GiveUpDialog::ColName), QStringLiteral("李雷雷"));
    QVERIFY(!button(dialog, "previousPageButton")->isEnabled() &&
            !button(dialog, "nextPageButton")->isEnabled());
    QVERIFY(button(dialog, "giveUpButton")->isEnabled());
    // The user's _ is a character, not a wildcard.
    edit(dialog, "searchEdit")->setText(QStringLiteral("_"));
    button(dialog, "searchButton")->click();
    QCOMPARE(winnerList(dialog)->topLevelItemCount(), 1);
    QCOMPARE(row(dialog, 0)->text(GiveUpDialog::ColName), QStringLiteral("王_五"));
    edit(dialog, "searchEdit")->setText(QStringLiteral("%"));
    button(dialog, "searchButton")->click();
    QCOMPARE(winnerList(dialog)->topLevelItemCount(), 0);
    QCOMPARE(pageInfo(dialog), QStringLiteral("总计∶0 人, 当前第1页/共1页"));
    QVERIFY(!button(dialog, "previousPageButton")->isEnabled() &&
            !button(dialog, "nextPageButton")->isEnabled() &&
            !button(dialog, "giveUpButton")->isEnabled());
    child<QToolButton>(dialog, "clearSearchButton")->click();
    QCOMPARE(edit(dialog, "searchEdit")->text(), QString());
    QCOMPARE(winnerList(dialog)->topLevelItemCount(), 50);
    QVERIFY(button(dialog, "giveUpButton")->isEnabled());
}

void TestMakeupGiveUp::giveUpListColumns() {
    Rig rig;
    QVERIFY(rig.started);
    rig.folder.addAward(QStringLiteral("三等奖"), 5, 1);
    for (int i = 2; i <= 13; ++i)
        rig.folder.addAward(QStringLiteral("奖%1").arg(i), 5, 1);
    const QList<int> ids = rig.folder.addUsers({"甲", "乙", "丙", "丁"});
    rig.setWins(ids[0], "|13||1|", 3, "2026-11-05 20:00:04");
    rig.setWins(ids[1], "无", 1, "2026-11-05 20:00:03");
    rig.setWins(ids[2], "|3|", 2, "2026-11-05 20:00:02");
    rig.setWins(ids[3], "|1||99|", 7, "2026-11-05 20:00:01");
    GiveUpDialog dialog;
    const QStringList awards = {"三等奖 奖13", "", "奖3", "三等奖"};
    const QStringList statuses = {"已中奖", "已弃奖", "已领奖", ""};
    const QList<QColor> colours = {QColor(18, 118, 0), QColor(255, 0, 0), QColor(0, 0, 255),
                                   QColor()};
    for (int i = 0; i < 4; ++i) {
        QTreeWidgetItem *item = row(dialog, i);
        QCOMPARE(item->data(GiveUpDialog::ColNumber, Qt::UserRole).toString(),
                 QStringLiteral("K%1").arg(ids[i]));
        QCOMPARE(item->text(GiveUpDialog::ColAwards), awards[i]);
        QCOMPARE(item->text(GiveUpDialog::ColStatus), statuses[i]);
        if (colours[i].isValid())
            QCOMPARE(item->foreground(GiveUpDialog::ColStatus).color(), colours[i]);
    }
}

void TestMakeupGiveUp::restartWritesASnapshot() {
    Rig rig;
    QVERIFY(rig.started);
    rig.folder.addAward(QStringLiteral("一等奖"), 1, 1, 1, 0, 0, 0, "车");
    const int second = rig.folder.addAward(QStringLiteral("二等奖"), 1, 1);
    const QList<int> ids = rig.folder.addUsers({"张三|研发部", "李四", "王五"});
    rig.setWins(ids[0], "|1|", 3, "2026-11-05 20:00:00");
    rig.setWins(ids[1], "|2|", 3, "2026-11-05 20:01:00");
    rig.setWins(ids[2], "无", 1);
    QVERIFY(rig.engine.loadAward(second, false));

    EndOfDrawDialog prompt(rig.engine);
    QSignalSpy restarted(&prompt, &EndOfDrawDialog::restartDone);
    m_ui->answers.enqueue(true);
    choice(prompt, "restartChoice")->click();
    QCOMPARE(restarted.count(), 1);
    QCOMPARE(prompt.result(), int(QDialog::Accepted));
    const QStringList snapshots =
        QDir(rig.folder.path("History")).entryList({QStringLiteral("*.tmp")}, QDir::Files);
    QCOMPARE(snapshots.size(), 1);
    QVERIFY(snapshots[0].endsWith(QStringLiteral(".tmp")));
    QFile file(rig.folder.path("History/") + snapshots[0]);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    QVERIFY(text.contains(QStringLiteral("1,一等奖,车,张三,研发部\r\n")));
    QVERIFY(text.contains(QStringLiteral("2,二等奖,,李四,\r\n")));
    QVERIFY(!text.contains(QStringLiteral("王五")));
}

void TestMakeupGiveUp::askEndExportPrintParade() {
    Rig rig;
    QVERIFY(rig.started);
    rig.folder.addAward(QStringLiteral("一等奖"), 1, 1);
    const QList<int> ids = rig.folder.addUsers({"张三"});
    rig.setWins(ids[0], "|1|", 3);
    EndOfDrawDialog prompt(rig.engine);
    QCOMPARE(prompt.size(), QSize(430, 248));
    QCOMPARE(prompt.windowTitle(), QStringLiteral("系统提示"));
    QCOMPARE(child<QLabel>(prompt, "headline")->text(),
             QStringLiteral("所有的奖项均已经抽取完毕!"));

    choice(prompt, "exportChoice")->click();  // cancelled dialog: nothing
    QCOMPARE(m_ui->last().kind, QStringLiteral("file"));
    QCOMPARE(m_ui->last().title, QStringLiteral("导出文件"));
    QVERIFY(m_ui->texts().isEmpty());
    const QString csv = rig.folder.path("out.csv");
    m_ui->files.enqueue(csv);
    choice(prompt, "exportChoice")->click();
    QVERIFY(QFile::exists(csv));
    QCOMPARE(m_ui->texts(), QStringList({csv + "\n导出名单完毕!!"}));

    m_ui->clear();
    setPrinterFactory([] { return std::unique_ptr<QPagedPaintDevice>(); });
    choice(prompt, "printChoice")->click();
    QCOMPARE(m_ui->texts(), QStringList({"找不到打印机"}));
    QVERIFY(prompt.result() != QDialog::Accepted);

    QSignalSpy parade(&prompt, &EndOfDrawDialog::paradeRequested);
    choice(prompt, "paradeChoice")->click();
    QCOMPARE(parade.count(), 1);
    QCOMPARE(prompt.result(), int(QDialog::Accepted));
    QCOMPARE(rig.cell(ids[0], "JxID").toString(), QStringLiteral("|1|"));
}

QTEST_MAIN(TestMakeupGiveUp)
#include "tst_makeup_giveup.moc"
