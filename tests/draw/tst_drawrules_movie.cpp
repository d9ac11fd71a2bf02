// The draw's rules where an operator under pressure breaks them, on the real draw movie: a cancel
// after moving on, a slot the batch plan forgot, keys pressed while the winners land, a parade
// with nothing to show.
#include "draw/view/endofdrawdialog.h"
#include "livescreen.h"
#include "stage/protocol.h"

namespace {

QStringList names(int count) {
    QStringList rows;
    for (int i = 0; i < count; ++i)
        rows << QStringLiteral("嘉宾%1").arg(i + 1);
    return rows;
}

QStringList visibleButtons(LiveScreen &s) {
    QVariant shown;
    QMetaObject::invokeMethod(s.stage()->root(), "visibleButtons", Q_RETURN_ARG(QVariant, shown));
    return shown.toStringList();
}

}  // namespace

class TestDrawRulesMovie : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cancelEndsWhenTheDrawMovesOn();
    void aGivenUpSlotIsDrawnThenTheDrawEnds();
    void keysWaitForTheLanding();
    void paradeWithoutAwardsLeavesNoMusic();
};

void TestDrawRulesMovie::cancelEndsWhenTheDrawMovesOn() {
    LiveScreen s;
    QVERIFY(s.started);
    const QList<int> ids = s.folder.addUsers(names(3));
    // The second award is open to earlier winners: a winner of the first may hold it too.
    const int first = s.folder.addAward(QStringLiteral("一等奖"), 3, 1, 0);
    const int second = s.folder.addAward(QStringLiteral("二等奖"), 3, 1, 0);
    for (int id : ids)
        store::exec(s.folder.db(),
                    QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=3 WHERE ID=?"),
                    {store::awardMarker(second), id});
    QVERIFY(s.open());
    QCOMPARE(s.session().award.id, first);
    QVERIFY(s.drawWithSpace());
    QVERIFY(visibleButtons(s).contains(proto::btn::btnCancel));

    QVERIFY(s.click(proto::btn::btnNext));
    QCOMPARE(s.session().award.id, second);
    QTRY_VERIFY(!visibleButtons(s).contains(proto::btn::btnCancel));
    s.ui->answers.enqueue(true);
    s.key(Qt::Key_Delete);
    QVERIFY(s.ui->records.isEmpty());
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE JxID=?"),
                     {store::awardMarker(second) + store::awardMarker(first)}),
             3);
}

void TestDrawRulesMovie::aGivenUpSlotIsDrawnThenTheDrawEnds() {
    LiveScreen s;
    QVERIFY(s.started);
    const QList<int> ids = s.folder.addUsers(names(12));
    // 10 slots in 6 batches, all drawn in five batches of two; then one winner gave up.
    const int award = s.folder.addAward(QStringLiteral("一等奖"), 10, 6);
    for (int i = 0; i < 10; ++i)
        store::exec(s.folder.db(),
                    QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=?, UpdateTime=? "
                                   "WHERE ID=?"),
                    {i == 0 ? QStringLiteral("无") : store::awardMarker(award), i == 0 ? 1 : 3,
                     store::nowText(), ids[i]});
    QVERIFY(s.open());
    QCOMPARE(s.session().batchCount, 1);
    QVERIFY(s.drawWithSpace());
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE JxID LIKE ?"),
                     {store::awardPattern(award)}),
             10);

    bool prompted = false;
    whenDialogOpens<EndOfDrawDialog>([](EndOfDrawDialog &dialog) { dialog.reject(); }, &prompted);
    s.key(Qt::Key_Space);
    QTRY_VERIFY(prompted);
}

void TestDrawRulesMovie::keysWaitForTheLanding() {
    LiveScreen s;
    QVERIFY(s.started);
    s.folder.addUsers(names(6));
    const int award = s.folder.addAward(QStringLiteral("一等奖"), 6, 2);
    QVERIFY(s.open());
    s.key(Qt::Key_Space);
    QVERIFY(s.waitState(draw::Running, 3000));
    QTRY_VERIFY_WITH_TIMEOUT(!s.timer("stopGuardTimer")->isActive(), 5000);
    s.key(Qt::Key_Space);
    // The winners land: clear, cancel, the arrows and the parade key change nothing.
    for (int key : {Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Right, Qt::Key_L})
        s.key(key);
    QVERIFY(s.waitState(draw::Result));
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE JxID LIKE ?"),
                     {store::awardPattern(award)}),
             3);
    QVERIFY(s.ui->records.isEmpty());
}

void TestDrawRulesMovie::paradeWithoutAwardsLeavesNoMusic() {
    LiveScreen s;
    QVERIFY(s.started);
    QDir().mkpath(s.folder.path(QStringLiteral("Music")));
    const QString parade = s.folder.path(QStringLiteral("Music/parade.mp3"));
    QFile file(parade);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("x");
    file.close();
    s.media->lengths = {{parade, 30000}};
    s.folder.setConfig(QStringLiteral("music"), QStringLiteral("isPlayMusic"), QStringLiteral("1"));
    s.folder.setConfig(QStringLiteral("music"), QStringLiteral("PlayMusicFile"),
                       QStringLiteral("parade.mp3"));
    QVERIFY(s.open());

    s.key(Qt::Key_L);
    QVERIFY(s.waitState(draw::Idle, 3000));
    // A player may still report the end of a file it was told to stop.
    for (const QPointer<FakeMediaBackend> &player : s.media->players)
        if (player && player->source == parade) player->finish();
    for (const QPointer<FakeMediaBackend> &player : s.media->players)
        QVERIFY(!player || player->current != MediaBackend::State::Playing);
}

int main(int argc, char *argv[]) {
    return runOnProjector<TestDrawRulesMovie>(argc, argv);
}
#include "tst_drawrules_movie.moc"
