#include "design/templatepage.h"
#include "livescreen.h"
#include "stage/protocol.h"

namespace {

const QStringList &roster() {
    static const QStringList names{
        QStringLiteral("张伟"), QStringLiteral("王芳"),   QStringLiteral("李娜"),
        QStringLiteral("刘洋"), QStringLiteral("陈静"),   QStringLiteral("杨帆"),
        QStringLiteral("赵磊"), QStringLiteral("黄晓明"), QStringLiteral("周杰"),
        QStringLiteral("吴昊"), QStringLiteral("徐丽"),   QStringLiteral("欧阳明月")};
    return names;
}

}  // namespace

class TestDrawScreenMovie : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void paradeToItsEndTwice();
};

void TestDrawScreenMovie::paradeToItsEndTwice() {
    LiveScreen s;
    QVERIFY(s.started);
    // A quick parade, so the test sees both of its awards pass.
    const QString templateFile = design::templatePath(appState().appPath, appState().selSkinName);
    {
        QString error;
        QVERIFY2(store::openTemplate(templateFile, QStringLiteral("speed"), &error),
                 qPrintable(error));
        store::exec(QSqlDatabase::database(QStringLiteral("speed")),
                    QStringLiteral("UPDATE LuckPlay SET Speed=30 WHERE ObjName='playTitle'"), {});
    }
    QSqlDatabase::removeDatabase(QStringLiteral("speed"));
    const QList<int> ids = s.folder.addUsers(roster());
    const int first = s.folder.addAward(QStringLiteral("二等奖"), 3, 1);
    s.folder.addAward(QStringLiteral("一等奖"), 1, 1);
    for (int i = 0; i < 3; ++i)
        store::exec(s.folder.db(),
                    QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=3, UpdateTime=? "
                                   "WHERE ID=?"),
                    {store::awardMarker(first), store::nowText(), ids[i]});
    QVERIFY(s.open());

    // The play-list key (L) presses the stage's parade button, which comes back as btnPlayLuck.
    s.key(Qt::Key_L);
    QCOMPARE(s.state(), int(draw::Playback));
    QVERIFY(s.waitState(draw::Idle, 20000));
    QCOMPARE(s.parade().nextNumber(), 3);
    QCOMPARE(s.parade().lastShownOrder(), 2);
    s.key(Qt::Key_L);
    QCOMPARE(s.state(), int(draw::Playback));
    QVERIFY(s.waitState(draw::Idle, 20000));
    QCOMPARE(s.parade().nextNumber(), 5);
}

int main(int argc, char *argv[]) {
    return runOnProjector<TestDrawScreenMovie>(argc, argv);
}
#include "tst_drawscreen_movie.moc"
