#include <QSignalSpy>
#include <QtTest>

#include "core/appstate.h"
#include "core/store.h"
#include "draw/paraderunner.h"
#include "stage/protocol.h"
#include "support/recordingstage.h"
#include "support/tempprogramfolder.h"

namespace {

// A started program folder and a parade on a recording stage, with a stand-in style.
struct Rig {
    TempProgramFolder folder;
    RecordingStage stage;
    draw::ParadeRunner parade{stage, [] { return QStringLiteral("style"); }};
    bool started = folder.start();

    void setWin(int id, int award, const QString &time) {
        store::exec(folder.db(),
                    QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=3, UpdateTime=? "
                                   "WHERE ID=?"),
                    {store::awardMarker(award), time, id});
    }
    // The fields after the style: title, running number, names, IDs.
    QStringList shown(const QString &variable, int index = 0) {
        return stage.values(variable).value(index).split(QLatin1Char('|')).mid(1);
    }
};

}  // namespace

class TestParadeRunner : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyAwardInDrawOrderNewestFirst() {
        Rig rig;
        QVERIFY(rig.started);
        appState().playTitleType = 1;
        const QList<int> ids = rig.folder.addUsers({"张三", "李四", "王五"});
        const int second = rig.folder.addAward("二等奖", 2, 1, 1, 0, 0, 0, "手机");
        rig.folder.addAward("一等奖", 1, 1, 1, 0, 0, 0, "电脑");
        rig.setWin(ids[1], second, "2026-11-05 20:00:00");
        rig.setWin(ids[2], second, "2026-11-05 20:05:00");
        QSignalSpy started(&rig.parade, &draw::ParadeRunner::started);
        QSignalSpy finished(&rig.parade, &draw::ParadeRunner::finished);

        rig.parade.start();
        QCOMPARE(started.count(), 1);
        QCOMPARE(
            rig.stage.lines(),
            (QStringList{"changBtn=luckplay",
                         QStringLiteral("vbLuckPlay=style|二等奖  奖品∶手机|1|王五$李四$|%1$%2$")
                             .arg(ids[2])
                             .arg(ids[1])}));

        // An award without winners is shown too.
        rig.parade.showNextAward();
        QCOMPARE(rig.shown(proto::vbLuckPlay1), (QStringList{"一等奖  奖品∶电脑", "2", "", ""}));
        // Past the last award the list keeps scrolling.
        rig.stage.clear();
        rig.parade.showNextAward();
        QCOMPARE(rig.stage.lines(), (QStringList{"changBtn=luckplay", "vbStartScroll=yes"}));
        QCOMPARE(rig.parade.lastShownOrder(), 2);

        rig.parade.finish();
        QCOMPARE(finished.count(), 1);
    }

    void numbersGoOnAndEachParadeScrolls() {
        Rig rig;
        QVERIFY(rig.started);
        rig.folder.addAward("二等奖", 2, 1);
        rig.folder.addAward("一等奖", 1, 1);
        rig.parade.start();
        rig.parade.showNextAward();
        // The start and stop keys pause and resume the list.
        rig.parade.toggleScroll();
        rig.parade.toggleScroll();
        rig.parade.toggleScroll();
        QCOMPARE(rig.stage.values(proto::vbStartScroll), (QStringList{"no", "yes", "no"}));
        rig.parade.finish();

        // A second parade starts at the first award, scrolling, and goes on counting.
        rig.stage.clear();
        rig.parade.start();
        QCOMPARE(rig.stage.values(proto::vbLuckPlay).size(), 1);
        QCOMPARE(rig.shown(proto::vbLuckPlay).value(1), QStringLiteral("3"));
        QCOMPARE(rig.parade.nextNumber(), 4);
        rig.parade.toggleScroll();
        QCOMPARE(rig.stage.values(proto::vbStartScroll), QStringList{"no"});
    }
};

QTEST_MAIN(TestParadeRunner)
#include "tst_paraderunner.moc"
