#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QPagedPaintDevice>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QToolButton>
#include <QtTest>

#include "core/appstate.h"
#include "draw/giveup.h"
#include "draw/makeup.h"
#include "drawdialogs.h"
#include "enginerig.h"
#include "results/view/printwinners.h"
#include "stage/protocol.h"
#include "support/filebytes.h"
#include "support/scriptedui.h"
#include "support/treerows.h"

using namespace Qt::StringLiterals;

namespace {

// The give-up list's columns the tests read: "name|awards|status".
const QList<int> kShownColumns{GiveUpDialog::ColName, GiveUpDialog::ColAwards,
                               GiveUpDialog::ColStatus};

}  // namespace

class TestMakeupGiveUp : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_ui = installScriptedUi();
        m_rig = std::make_unique<EngineRig>();
        QVERIFY(m_rig->started);
    }
    void cleanup() {
        setPrinterFactory({});
        m_rig.reset();
    }

    // The dialog adds the slots and names the award; loading it works out the larger next batch.
    void makeupAddsSlots() {
        EngineRig &rig = *m_rig;
        rig.folder.addAward(u"一等奖"_s, 5, 1);
        const int award = rig.folder.addAward(u"二等奖"_s, 10, 3);
        const QList<int> ids = rig.folder.addUsers(QStringList(13, u"嘉宾"_s));
        for (int i = 0; i < 3; ++i)
            rig.setWins(ids[i], store::awardMarker(award), 3);
        QVERIFY(rig.engine.loadAward(award, true));
        QCOMPARE(rig.session.batchCount, 3);
        MakeUpDrawDialog dialog(award);
        QCOMPARE(awardCombo(dialog)->currentData().toInt(), award);
        QVERIFY(!awardCombo(dialog)->currentText().contains(QLatin1Char('|')));
        QSignalSpy load(&dialog, &MakeUpDrawDialog::awardChanged);
        edit(dialog, "addedSlotsEdit")->setText(u"2"_s);
        button(dialog, "okButton")->click();
        QCOMPARE(load, (QList<QVariantList>{{award}}));
        QCOMPARE(store::scalar(rig.folder.db(),
                               "SELECT JXNum || '/' || JXGroup FROM JPList "
                               "WHERE ID=?",
                               {award}),
                 u"12/3"_s);
        QVERIFY(rig.engine.loadAward(award, true));
        QCOMPARE(rig.session.batchCount, 4);
    }

    void makeupSlotChecks_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("message");
        QTest::addColumn<int>("slotCount");
        QTest::newRow("empty") << QString() << u"至少追加一个名额!"_s << 10;
        QTest::newRow("zero") << u"0"_s << u"至少追加一个名额!"_s << 10;
        QTest::newRow("beyond 16 bits") << u"32758"_s << u"追加后奖品名额最多为32767个"_s << 10;
        QTest::newRow("five digits") << u"99999"_s << u"追加后奖品名额最多为32767个"_s << 10;
        QTest::newRow("the largest that fits") << u"32757"_s << QString() << 32767;
    }

    void makeupSlotChecks() {
        QFETCH(QString, typed);
        QFETCH(QString, message);
        EngineRig &rig = *m_rig;
        const int award = rig.folder.addAward(u"一等奖"_s, 10, 2);
        MakeUpDrawDialog dialog(award);
        dialog.show();
        edit(dialog, "addedSlotsEdit")->setText(typed);
        button(dialog, "okButton")->click();
        QCOMPARE(m_ui->texts(), message.isEmpty() ? QStringList() : QStringList{message});
        QCOMPARE(dialog.isVisible(), !message.isEmpty());
        QTEST(draw::slotsOf(rig.folder.db(), award), "slotCount");
    }

    void makeupWithoutAwardsDoesNothing() {
        MakeUpDrawDialog dialog;
        QCOMPARE(awardCombo(dialog)->currentText(), QStringLiteral("无任何奖项"));
        QSignalSpy load(&dialog, &MakeUpDrawDialog::awardChanged);
        edit(dialog, "addedSlotsEdit")->setText(QStringLiteral("3"));
        button(dialog, "okButton")->click();
        QVERIFY(m_ui->records.isEmpty());
        QCOMPARE(load.count(), 0);
    }

    void newAwardChecksInOrder_data() {
        QTest::addColumn<QStringList>("fields");  // name, slots, batches, prize
        QTest::addColumn<QString>("message");
        QTest::addColumn<QString>("focus");  // the field that gets the focus, less its "Edit"
        const auto row = [](const char *tag, const char *fields, const char *message,
                            const char *focus) {
            QTest::newRow(tag) << QString::fromUtf8(fields).split('|') << message << focus;
        };
        row("blank name", "  |||", "请输入奖项名称!", "awardName");
        row("no slots", "特等奖|||", "至少存在1个名额", "slotCount");
        row("zero slots", "特等奖|0|1|车", "至少存在1个名额", "slotCount");
        row("slots 32768", "特等奖|32768|1|车", "奖品名额最多为32767个", "slotCount");
        row("no batches", "特等奖|3||车", "至少存在1个抽奖批次", "batchCount");
        row("batches 40000", "特等奖|3|40000|车", "抽奖批次最多为32767次", "batchCount");
        row("blank prize", "特等奖|3|1| ", "奖品名称不能为空", "prizeName");
    }

    void newAwardChecksInOrder() {
        QFETCH(QStringList, fields);
        QFETCH(QString, message);
        EngineRig &rig = *m_rig;
        MakeUpDrawDialog dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        addNewAward(dialog, fields);
        QCOMPARE(m_ui->texts(), QStringList({message}));
        QTEST(QApplication::focusWidget()->objectName().chopped(4), "focus");
        QCOMPARE(store::scalar(rig.folder.db(), "SELECT COUNT(*) FROM JPList").toInt(), 0);
    }

    void newAwardGoesLastAndLoads() {
        EngineRig &rig = *m_rig;
        rig.folder.addAward(u"一等奖"_s, 1, 1);
        rig.folder.addAward(u"二等奖"_s, 2, 1);
        MakeUpDrawDialog dialog(1);
        QSignalSpy load(&dialog, &MakeUpDrawDialog::awardChanged);
        child<QCheckBox>(dialog, "excludeWinnersCheck")->setChecked(false);
        addNewAward(dialog, {u"加码奖 ' |$"_s, u"3"_s, u"5"_s, u"红包"_s});
        QVERIFY(m_ui->records.isEmpty());
        QCOMPARE(load, (QList<QVariantList>{{3}}));
        // Batches stored as typed, shown clamped.
        QCOMPARE(store::scalar(
                     rig.folder.db(),
                     u"SELECT printf('%s,%s,%s,%s,%s,%s,%s,%s', JXName, JXNum, JXGroup, JPName, "
                     "JPPhoto, OrderNum, isReLuck, RangeType) FROM JPList WHERE ID=3"_s),
                 u"加码奖 ' |$,3,5,红包,,3,0,0"_s);
        QVERIFY(rig.engine.loadAward(3, true));
        QCOMPARE(rig.stage.values(proto::vbLoadJx).constLast().section(QLatin1Char('|'), 2, 3),
                 u"3|3"_s);

        // No 16-bit ID left: a message, nothing stored, the dialog stays.
        store::exec(rig.folder.db(), u"UPDATE JPList SET ID=32767 WHERE ID=3"_s);
        MakeUpDrawDialog full;
        QSignalSpy fullLoad(&full, &MakeUpDrawDialog::awardChanged);
        addNewAward(full, {u"再加一个"_s, u"1"_s, u"1"_s, u"红包"_s});
        QCOMPARE(m_ui->texts(), QStringList({draw::kAwardsFullMessage}));
        QVERIFY(fullLoad.isEmpty());
        QCOMPARE(store::scalar(rig.folder.db(), "SELECT COUNT(*) FROM JPList").toInt(), 3);
    }

    // A holder of two awards gives up: both awards get their slot back, the participant stays in
    // the list as given up, and the draw screen is told. Nothing ticked or answered No: nothing.
    void giveUpFreesEveryAwardOfTheHolder() {
        EngineRig &rig = *m_rig;
        const int first = rig.folder.addAward(u"一等奖"_s, 2, 1);
        const int second = rig.folder.addAward(u"二等奖"_s, 2, 1);
        const QList<int> ids = rig.folder.addUsers({"张三", "李四", "王五"});
        rig.setWins(ids[0], "|1||2|", 3, "2026-11-05 20:00:00");
        rig.setWins(ids[1], "|1|", 3, "2026-11-05 19:00:00");
        rig.setWins(ids[2], "|2|", 3, "2026-11-05 21:00:00");
        QVERIFY(rig.engine.loadAward(first, false));
        GiveUpDialog dialog;
        QSignalSpy given(&dialog, &GiveUpDialog::givenUp);
        button(dialog, "giveUpButton")->click();
        QCOMPARE(m_ui->texts(), QStringList({"请勾选需要做弃奖的的名单!"}));
        m_ui->clear();
        tick(dialog, ids[0]);
        m_ui->answers.enqueue(false);
        button(dialog, "giveUpButton")->click();
        QCOMPARE(rig.cell(ids[0], "JxID").toString(), u"|1||2|"_s);
        m_ui->answers.enqueue(true);
        button(dialog, "giveUpButton")->click();
        QCOMPARE(m_ui->texts(), QStringList(2, "确认要将选择的中奖名单做弃奖么?"));
        QCOMPARE(given.count(), 1);
        QCOMPARE(rig.cell(ids[0], "JxID").toString() + rig.cell(ids[0], "UserStatus").toString(),
                 u"无1"_s);
        QCOMPARE(QList<int>({rig.winners(first), rig.winners(second)}), QList<int>({1, 1}));
        // Still listed, as given up, with nothing in the awards column.
        QCOMPARE(
            treeRows(winnerList(dialog), kShownColumns),
            QStringList({u"王五|二等奖|已中奖"_s, u"张三||已弃奖"_s, u"李四|一等奖|已中奖"_s}));
        // What the draw screen does on givenUp: one more draw of one on the first award.
        rig.engine.reloadAward(true, true);
        QCOMPARE(rig.session.batchCount, 1);
    }

    // A roster of 1234 winners in batches of ten: fifty to a page, newest batch first, ties by ID.
    void giveUpListPagesAndSearches() {
        EngineRig &rig = *m_rig;
        rig.folder.addAward(u"一等奖"_s, 2000, 10);
        QStringList names;
        for (int i = 1; i <= 1234; ++i)
            names << u"嘉宾%1"_s.arg(i, 4, 10, QLatin1Char('0'));
        names[99] = u"王_五"_s;
        names[100] = u"李雷"_s;
        names[700] = u"李雷雷"_s;
        rig.folder.addUsers(names);
        QVERIFY(store::exec(rig.folder.db(),
                            "UPDATE UserList SET JxID='|1|', UserStatus=3, UpdateTime=strftime("
                            "'%Y-%m-%d %H:%M:%S', '2026-11-05 18:00:00', '+' || ((ID-1)/10) || "
                            "' minutes')"));
        rig.folder.addUsers({u"无人"_s});  // no win: never listed
        GiveUpDialog dialog;
        // The page line, how many rows, the first and the last name, and whether previous page,
        // next page and give-up can be pressed.
        const auto shown = [&] {
            const QStringList rows = treeRows(winnerList(dialog), kShownColumns);
            QStringList view{pageInfo(dialog), QString::number(rows.size()),
                             rows.value(0).section('|', 0, 0),
                             rows.value(rows.size() - 1).section('|', 0, 0)};
            for (const char *name : {"previousPageButton", "nextPageButton", "giveUpButton"})
                view << QString::number(button(dialog, name)->isEnabled());
            return view.join(' ');
        };
        const auto search = [&](const QString &text) {
            edit(dialog, "searchEdit")->setText(text);
            button(dialog, "searchButton")->click();
        };
        const QString firstPage = u"总计∶1234 人, 当前第1页/共25页 50 嘉宾1231 嘉宾1186 0 1 1"_s;
        QCOMPARE(shown(), firstPage);
        // Ticks on one page are not carried to the next, which numbers its rows from 1 again.
        row(dialog, 0)->setCheckState(GiveUpDialog::ColNumber, Qt::Checked);
        button(dialog, "nextPageButton")->click();
        QCOMPARE(shown(), u"总计∶1234 人, 当前第2页/共25页 50 嘉宾1187 嘉宾1136 1 1 1"_s);
        QCOMPARE(row(dialog, 0)->text(GiveUpDialog::ColNumber), u"1"_s);
        button(dialog, "giveUpButton")->click();
        QCOMPARE(m_ui->texts(), QStringList({"请勾选需要做弃奖的的名单!"}));
        for (int page = 2; page < 25; ++page)
            button(dialog, "nextPageButton")->click();
        QCOMPARE(shown(), u"总计∶1234 人, 当前第25页/共25页 34 嘉宾0037 嘉宾0010 1 0 1"_s);
        // A page beyond either end is the last or the first.
        QCOMPARE(draw::giveUpPage(rig.folder.db(), QString(), 99).pageNo, 25);
        QCOMPARE(draw::giveUpPage(rig.folder.db(), QString(), -3).pageNo, 1);

        search(u" 李雷 "_s);
        QCOMPARE(shown(), u"总计∶2 人, 当前第1页/共1页 2 李雷雷 李雷 0 0 1"_s);
        // The user's _ and % are characters, not wildcards.
        search(u"_"_s);
        QCOMPARE(shown(), u"总计∶1 人, 当前第1页/共1页 1 王_五 王_五 0 0 1"_s);
        search(u"%"_s);
        QCOMPARE(shown(), u"总计∶0 人, 当前第1页/共1页 0   0 0 0"_s);
        child<QToolButton>(dialog, "clearSearchButton")->click();
        QCOMPARE(edit(dialog, "searchEdit")->text(), QString());
        QCOMPARE(shown(), firstPage);
    }

    void giveUpListColumns() {
        EngineRig &rig = *m_rig;
        rig.folder.addAward(u"三等奖"_s, 5, 1);
        for (int i = 2; i <= 13; ++i)
            rig.folder.addAward(u"奖%1"_s.arg(i), 5, 1);
        const QList<int> ids = rig.folder.addUsers({"甲", "乙", "丙", "丁"});
        rig.setWins(ids[0], "|13||1|", 3, "2026-11-05 20:00:04");
        rig.setWins(ids[1], "无", 1, "2026-11-05 20:00:03");
        rig.setWins(ids[2], "|3|", 2, "2026-11-05 20:00:02");
        rig.setWins(ids[3], "|1||99|", 7, "2026-11-05 20:00:01");
        GiveUpDialog dialog;
        QCOMPARE(
            treeRows(winnerList(dialog), kShownColumns),
            QStringList({"甲|三等奖 奖13|已中奖", "乙||已弃奖", "丙|奖3|已领奖", "丁|三等奖|"}));
        QList<QColor> colours;
        for (int i = 0; i < 3; ++i)
            colours << row(dialog, i)->foreground(GiveUpDialog::ColStatus).color();
        QCOMPARE(colours, (QList<QColor>{QColor(18, 118, 0), Qt::red, Qt::blue}));
    }

    // Every choice of the prompt reaches its action; the restart's snapshot is the winner list,
    // without those who gave up.
    void askEndExportPrintParadeRestart() {
        EngineRig &rig = *m_rig;
        rig.folder.addAward(u"一等奖"_s, 1, 1, 1, 0, 0, 0, "车");
        const QList<int> ids = rig.folder.addUsers({"张三|研发部", "王五"});
        rig.setWins(ids[0], "|1|", 3, "2026-11-05 20:00:00");
        rig.setWins(ids[1], "无", 1);
        EndOfDrawDialog prompt(rig.engine);
        choice(prompt, "exportChoice")->click();  // cancelled dialog: nothing
        QCOMPARE(m_ui->last().title, u"导出文件"_s);
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
        QCOMPARE(rig.cell(ids[0], "JxID").toString(), u"|1|"_s);

        QSignalSpy restarted(&prompt, &EndOfDrawDialog::restartDone);
        m_ui->answers.enqueue(true);
        choice(prompt, "restartChoice")->click();
        QCOMPARE(restarted.count(), 1);
        const QStringList snapshots = QDir(rig.folder.path("History")).entryList({u"*.tmp"_s});
        QCOMPARE(snapshots.size(), 1);
        QVERIFY(readFile(rig.folder.path("History/") + snapshots[0])
                    .endsWith(u"\r\n1,一等奖,车,张三,研发部\r\n"_s.toUtf8()));
        QCOMPARE(rig.cell(ids[0], "JxID").toString(), QString());
    }

private:
    ScriptedUi *m_ui = nullptr;
    std::unique_ptr<EngineRig> m_rig;
};

QTEST_MAIN(TestMakeupGiveUp)
#include "tst_makeup_giveup.moc"
