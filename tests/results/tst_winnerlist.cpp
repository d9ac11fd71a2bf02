#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPagedPaintDevice>
#include <QPushButton>
#include <QTreeWidget>
#include <QtTest>

#include "core/store.h"
#include "results/view/printwinners.h"
#include "results/view/winnerlistdialog.h"
#include "results/winnerlist.h"
#include "support/childwidget.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

QTreeWidget *winnerList(const QWidget &dialog) {
    return child<QTreeWidget>(dialog, "winnerList");
}

// The rows listed and the two totals under the list.
QString totals(const QWidget &dialog) {
    return QString::number(winnerList(dialog)->topLevelItemCount()) + ' ' +
           child<QLabel>(dialog, "winnerCountLabel")->text() + ' ' +
           child<QLabel>(dialog, "prizeTotalLabel")->text();
}

}  // namespace

class TestWinnerList : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_ui = installScriptedUi();
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
    }
    void cleanup() {
        setPrinterFactory({});
        m_folder.reset();
    }

    // Awards by OrderNum, each award's winners earliest first (ties by ID); a holder of two awards
    // has two rows; give-ups that no longer hold the award are not listed.
    void rowsFollowTheDrawOrder() {
        fillEvening();
        const results::WinnerList list = results::readWinnerList(m_folder->db());
        QStringList lines;
        for (const results::WinnerListRow &row : list.rows)
            lines << QString::number(row.number) + ',' + row.awardName + ',' + row.prizeName + ',' +
                         row.winnerName + ',' + row.remark + ',' + row.status;
        QCOMPARE(
            lines,
            QStringList({"1,一等奖,笔记本,李四,市场部,中奖", "2,一等奖,笔记本,张三,研发部,中奖",
                         "3,二等奖,平板电脑,李四,市场部,中奖", "4,二等奖,平板电脑,王五,财务部,中奖",
                         "5,二等奖,平板电脑,赵六,行政部,弃奖"}));
        QCOMPARE(list.prizeTotal, 15);
    }

    void statusTexts_data() {
        QTest::addColumn<QVariant>("status");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("greyRow");
        QTest::addColumn<bool>("greyStatus");
        QTest::newRow("0") << QVariant(0) << "正常" << false << false;
        QTest::newRow("1") << QVariant(1) << "弃奖" << true << false;
        QTest::newRow("2") << QVariant(2) << "已领奖" << false << false;
        QTest::newRow("3") << QVariant(3) << "中奖" << false << false;
        QTest::newRow("7") << QVariant(7) << "未知" << false << true;
        QTest::newRow("NULL") << QVariant() << "未知" << false << true;
    }

    void statusTexts() {
        QFETCH(QVariant, status);
        m_folder->addAward(QStringLiteral("一等奖"), 1, 1);
        const QList<int> ids = m_folder->addUsers({"张三"});
        setWins(ids[0], "|1|", status, "2026-11-05 20:00:00");
        const results::WinnerList list = results::readWinnerList(m_folder->db());
        QCOMPARE(list.rows.size(), 1);
        QTEST(list.rows[0].status, "text");
        QTEST(list.rows[0].greyRow, "greyRow");
        QTEST(list.rows[0].greyStatus, "greyStatus");
    }

    void listShowsRowsAndTotals() {
        m_folder->addUsers({"张三"});
        WinnerListDialog empty;
        QCOMPARE(totals(empty), QStringLiteral("0 中奖人数：0 奖品总数：0"));
        fillEvening();
        WinnerListDialog dialog;
        QCOMPARE(totals(dialog), QStringLiteral("5 中奖人数：5 奖品总数：15"));
        QTreeWidgetItem *first = winnerList(dialog)->topLevelItem(0);
        QCOMPARE(first->data(WinnerListDialog::NumberColumn, Qt::UserRole).toString(),
                 QStringLiteral("K1"));
        QCOMPARE(first->text(WinnerListDialog::WinnerColumn), QStringLiteral("李四"));
        QTreeWidgetItem *gaveUp = winnerList(dialog)->topLevelItem(4);
        for (int column = 0; column < WinnerListDialog::ColumnCount; ++column)
            QCOMPARE(gaveUp->foreground(column).color(), QColor(98, 98, 98));
        dialog.resize(200, 300);
        QCOMPARE(dialog.width(), 420);

        // Its buttons export and print that list.
        child<QPushButton>(dialog, "exportButton")->click();
        QCOMPARE(m_ui->last().kind, QStringLiteral("file"));
        QCOMPARE(m_ui->last().title, QStringLiteral("导出文件"));
        QVERIFY(m_ui->texts().isEmpty());

        const QString csv = m_folder->path("名单.csv");
        m_ui->files.enqueue(csv);
        child<QPushButton>(dialog, "exportButton")->click();
        QCOMPARE(m_ui->texts(), QStringList({csv + "\n导出名单完毕!!"}));
        QVERIFY(QFile::exists(csv));

        m_ui->clear();
        setPrinterFactory([] { return std::unique_ptr<QPagedPaintDevice>(); });
        child<QPushButton>(dialog, "printButton")->click();
        QCOMPARE(m_ui->texts(), QStringList({"找不到打印机"}));
    }

private:
    void setWins(qint64 id, const QVariant &jxId, const QVariant &status, const QString &time) {
        store::exec(m_folder->db(),
                    QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=?, UpdateTime=? "
                                   "WHERE ID=?"),
                    {jxId, status, time, id});
    }
    // Three awards, the second first in the draw order, and five winners.
    void fillEvening() {
        m_folder->addAward(QStringLiteral("二等奖"), 3, 1, 1, 0, 0, 0, QStringLiteral("平板电脑"));
        m_folder->addAward(QStringLiteral("一等奖"), 2, 1, 1, 0, 0, 0, QStringLiteral("笔记本"));
        m_folder->addAward(QStringLiteral("三等奖"), 10, 2, 1, 0, 0, 0, QStringLiteral("耳机"));
        store::exec(m_folder->db(), QStringLiteral("UPDATE JPList SET OrderNum=3-ID WHERE ID<3"));
        const QList<int> ids = m_folder->addUsers(
            {"张三|研发部", "李四|市场部", "王五|财务部", "赵六|行政部", "钱七|销售部", "孙八|"});
        setWins(ids[0], "|2|", 3, "2026-11-05 20:10:00");
        setWins(ids[1], "|2||1|", 3, "2026-11-05 20:00:00");
        setWins(ids[2], "|1|", 3, "2026-11-05 20:20:00");
        setWins(ids[3], "|1|", 1, "2026-11-05 20:20:00");  // gave up in an older store
        setWins(ids[4], "无", 1, "2026-11-05 20:30:00");
        setWins(ids[5], "|13|", 3, "2026-11-05 20:30:00");  // an award that is gone
    }

    ScriptedUi *m_ui = nullptr;
    std::unique_ptr<TempProgramFolder> m_folder;
};

QTEST_MAIN(TestWinnerList)
#include "tst_winnerlist.moc"
