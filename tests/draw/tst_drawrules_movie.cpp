// The draw's rules where an operator under pressure breaks them, on the real draw movie: a slot
// the batch plan forgot, a parade with nothing to show.
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

}  // namespace

class TestDrawRulesMovie : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aGivenUpSlotIsDrawnThenTheDrawEnds();
    void paradeWithoutAwardsLeavesNoMusic();
};

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
