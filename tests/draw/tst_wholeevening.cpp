#include <QSqlQuery>

#include "chrome/style.h"
#include "core/appstate.h"
#include "draw/verifier.h"
#include "drawdialogs.h"
#include "livescreen.h"
#include "stage/protocol.h"
#include "support/filebytes.h"

using namespace Qt::StringLiterals;

namespace {

// 200 participants with names that are all different, so that the exported list, which carries
// names, can be traced back to the store.
QStringList partyRoster() {
    QStringList rows;
    for (int i = 0; i < 200; ++i)
        rows << u"嘉宾%1|部门%2"_s.arg(i).arg(i % 7);
    return rows;
}

QList<qint64> idList(const QString &joined) {
    QList<qint64> ids;
    for (const QString &id : joined.split(QLatin1Char(','), Qt::SkipEmptyParts))
        ids << id.toLongLong();
    return ids;
}

}  // namespace

// A whole evening on the real draw movie, pressed as the operator presses it: keys for start and
// stop, the stage's buttons for cancel, give-up and make-up, and the real dialogs they open.
class TestWholeEvening : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void fromFirstBatchToTheExport() {
        style::apply();
        LiveScreen s;
        QVERIFY(s.started);
        appState().isTimeProtect = 0;
        s.folder.addUsers(partyRoster());
        const int third = s.folder.addAward(QStringLiteral("三等奖"), 20, 2, 1, 0, 0, 0,
                                            QStringLiteral("蓝牙耳机"));
        const int second = s.folder.addAward(QStringLiteral("二等奖"), 7, 3, 1, 0, 0, 0,
                                             QStringLiteral("平板电脑"));
        // The first prize is open to earlier winners.
        const int first = s.folder.addAward(QStringLiteral("一等奖"), 2, 1, 0, 0, 0, 0,
                                            QStringLiteral("笔记本电脑"));
        QVERIFY2(s.open(), qPrintable(s.stageErrors()));

        // Third prize: a batch of ten, taken back with the cancel button, then both batches.
        drawBatch(s, third, 10, 10);
        s.ui->answers.enqueue(true);
        QVERIFY(s.click(proto::btn::btnCancel));
        QCOMPARE(s.ui->last().text, QStringLiteral("确定要撤消此次产生的中奖结果么?"));
        QTRY_COMPARE(winners(s, third), 0);
        drawBatch(s, third, 10, 10);
        drawBatch(s, third, 10, 20);

        // Second prize, 7 in 3 batches: 2, 2, then 3. Start on the full award moves on first.
        s.key(Qt::Key_Space);
        QCOMPARE(s.state(), int(draw::Idle));
        drawBatch(s, second, 2, 2);
        drawBatch(s, second, 2, 4);

        // Both of the batch just drawn did not come: given up through the stage's button.
        const QList<qint64> absent = idList(s.session().lastWinnerIds);
        bool opened = false;
        whenDialogOpens<GiveUpDialog>(
            [&](GiveUpDialog &dialog) {
                for (qint64 id : absent)
                    tick(dialog, id);
                s.ui->answers.enqueue(true);
                button(dialog, "giveUpButton")->click();
                dialog.reject();
            },
            &opened);
        QVERIFY(s.click(proto::btn::btnGiveUp));
        QTRY_VERIFY(opened);
        QCOMPARE(s.ui->last().text, QStringLiteral("确认要将选择的中奖名单做弃奖么?"));
        QCOMPARE(winners(s, second), 2);
        // Their two places are drawn again, among the others.
        drawBatch(s, second, 2, 4);
        for (qint64 id : idList(s.session().lastWinnerIds))
            QVERIFY(!absent.contains(id));
        drawBatch(s, second, 3, 7);

        // Three more second prizes, added in the middle of the draw: the plan becomes 10 in 3
        // batches, and the seven already drawn leave one batch of three.
        whenDialogOpens<MakeUpDrawDialog>(
            [&](MakeUpDrawDialog &dialog) {
                QCOMPARE(awardCombo(dialog)->currentData().toInt(), second);
                edit(dialog, "addedSlotsEdit")->setText(QStringLiteral("3"));
                button(dialog, "okButton")->click();
            },
            &opened);
        QVERIFY(s.click(proto::btn::btnAdd));
        QTRY_VERIFY(opened);
        QTRY_COMPARE(s.session().batchCount, 3);
        drawBatch(s, second, 3, 10);

        // First prize, then an award nobody planned: both through the make-up dialog's second page.
        s.key(Qt::Key_Space);
        drawBatch(s, first, 2, 2);
        whenDialogOpens<MakeUpDrawDialog>(
            [&](MakeUpDrawDialog &dialog) {
                addNewAward(dialog, {u"老板加码奖"_s, "3", "1", u"现金红包"_s});
            },
            &opened);
        QVERIFY(s.click(proto::btn::btnAdd));
        QTRY_VERIFY(opened);
        const int bonus = s.session().award.id;
        QCOMPARE(s.session().award.name, QStringLiteral("老板加码奖"));
        drawBatch(s, bonus, 3, 3);

        // Everything is drawn: Start brings the end-of-draw prompt, which exports the list.
        const QString csv = s.folder.path(QStringLiteral("record/晚会中奖名单.csv"));
        whenDialogOpens<EndOfDrawDialog>(
            [&](EndOfDrawDialog &dialog) {
                s.ui->files.enqueue(csv);
                choice(dialog, "exportChoice")->click();
                button(dialog, "cancelButton")->click();
            },
            &opened);
        s.key(Qt::Key_Space);
        QTRY_VERIFY(opened);
        QVERIFY(s.ui->texts().contains(csv + QStringLiteral("\n导出名单完毕!!")));
        QCOMPARE(s.ui->unanswered, 0);

        // Asked again, the prompt starts the parade of all winners, which outlives the prompt.
        whenDialogOpens<EndOfDrawDialog>(
            [&](EndOfDrawDialog &dialog) { choice(dialog, "paradeChoice")->click(); }, &opened);
        s.key(Qt::Key_Space);
        QTRY_VERIFY(opened);
        QTRY_COMPARE(s.state(), int(draw::Playback));
        // Stopped as the parade key stops it.
        s.stage()->setVariable(proto::vbCallPlay, proto::no);
        QVERIFY(s.waitState(draw::Idle, 5000));

        // The file holds the store's winners: award by award in draw order, batch by batch, with
        // nobody who gave up.
        const QStringList lines =
            QString::fromUtf8(readFile(csv)).split(u"\r\n"_s, Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 1 + 20 + 10 + 2 + 3);
        QSqlQuery query(s.folder.db());
        QVERIFY(query.exec(
            u"SELECT UserName, UserPart, UpdateTime, JxID FROM UserList WHERE UserStatus=3"_s));
        QHash<QString, QStringList> stored;  // name -> part, time, award markers
        while (query.next())
            stored.insert(
                query.value(0).toString(),
                {query.value(1).toString(), query.value(2).toString(), query.value(3).toString()});
        const QList<std::pair<int, QString>> awards = {{third, u"三等奖"_s},
                                                       {second, u"二等奖"_s},
                                                       {first, u"一等奖"_s},
                                                       {bonus, u"老板加码奖"_s}};
        const QList<int> slotCounts = {20, 10, 2, 3};
        for (int a = 0, row = 1; a < awards.size(); ++a) {
            QString lastTime;
            for (int i = 0; i < slotCounts[a]; ++i, ++row) {
                const QStringList fields =
                    lines[row].split(',');  // number, award, prize, name, part
                const QStringList winner = stored.value(fields[3]);
                QCOMPARE(fields[1], awards[a].second);
                QCOMPARE(fields[4], winner.value(0));
                QVERIFY(winner.value(1) >= lastTime);
                QVERIFY(winner.value(2).contains(store::awardMarker(awards[a].first)));
                lastTime = winner.value(1);
            }
        }
        // The check written beside the list finds the evening's ten presses as drawn.
        const QString checked =
            QString::fromUtf8(readFile(s.folder.path(u"record/晚会中奖名单-核对.txt"_s)));
        QVERIFY2(checked.contains(QStringLiteral("10次抽奖: 10次相符")), qPrintable(checked));

        // A restart, then the window closes and reveals its secret: the log still holds, and every
        // seed follows from the secret whose fingerprint the title showed.
        const QString title = s.form->windowTitle();
        whenDialogOpens<EndOfDrawDialog>(
            [&](EndOfDrawDialog &dialog) {
                s.ui->answers.enqueue(true);
                choice(dialog, "restartChoice")->click();
            },
            &opened);
        s.key(Qt::Key_Space);
        QTRY_VERIFY(opened);
        QCOMPARE(winners(s, third), 0);
        drawBatch(s, third, 10, 10);
        s.ui->answers.enqueue(true);
        QVERIFY(s.form->close());
        const draw::VerifyReport report =
            draw::verifyProgramFolder(appState().appPath, s.folder.db());
        QVERIFY2(report.holds(), qPrintable(draw::reportText(report)));
        QCOMPARE(report.presses.size(), size_t(11));
        QCOMPARE(report.unrevealedCount(), 0);
        const QString session = report.presses.front().session.toUpper();
        QVERIFY(title.endsWith(session.left(4) + ' ' + session.mid(4, 4) + ' ' + session.mid(8)));
    }

private:
    void drawBatch(LiveScreen &s, int award, int expectedSize, int expectedTotal) {
        QCOMPARE(s.session().award.id, award);
        QCOMPARE(s.session().batchCount, expectedSize);
        QVERIFY(s.drawWithSpace());
        QCOMPARE(idList(s.session().lastWinnerIds).size(), expectedSize);
        QCOMPARE(winners(s, award), expectedTotal);
    }
    int winners(LiveScreen &s, int award) {
        return s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE JxID LIKE ?"),
                       {store::awardPattern(award)});
    }
};

int main(int argc, char *argv[]) {
    return runOnProjector<TestWholeEvening>(argc, argv);
}
#include "tst_wholeevening.moc"
