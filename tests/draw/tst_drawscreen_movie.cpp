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
    void wholeDrawsOnTheRealMovie();
    void paradeToItsEndTwice();
};

void TestDrawScreenMovie::wholeDrawsOnTheRealMovie() {
    LiveScreen s;
    QVERIFY(s.started);
    s.folder.addUsers(roster());
    const int first = s.folder.addAward(QStringLiteral("一等奖"), 10, 1, 1, 0, 0, 0,
                                        QStringLiteral("笔记本电脑"));
    const int second = s.folder.addAward(QStringLiteral("二等奖"), 5, 1);
    QVERIFY2(s.open(), qPrintable(s.stageErrors()));
    QCOMPARE(s.session().award.id, first);
    QCOMPARE(s.stage()->grab().size(), QSize(1920, 1080));

    // Space starts (the same key as stop); an early stop is refused by the guard.
    s.key(Qt::Key_Space);
    QVERIFY(s.waitState(draw::Running, 3000));
    QTRY_VERIFY(s.timer("scrollSampleTimer")->isActive());
    s.key(Qt::Key_Space);
    QVERIFY(s.stopGuardPanel()->isVisible());
    QCOMPARE(s.state(), int(draw::Running));
    s.save(QStringLiteral("drawscreen-stopguard.png"));
    // Esc while the names roll: no question.
    s.key(Qt::Key_Escape);
    QVERIFY(s.ui->records.isEmpty());
    QTRY_VERIFY_WITH_TIMEOUT(!s.timer("stopGuardTimer")->isActive(), 5000);
    QTest::qWait(400);
    s.save(QStringLiteral("drawscreen-rolling.png"));
    s.key(Qt::Key_Space);
    QVERIFY(!s.timer("scrollSampleTimer")->isActive());
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=3")), 0);
    QVERIFY(s.waitState(draw::Result));
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=3")), 10);
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(DISTINCT UpdateTime) FROM UserList WHERE "
                                    "UserStatus=3")),
             1);
    QTest::qWait(1200);
    s.save(QStringLiteral("drawscreen-landed.png"));

    // The cancel key (Delete) takes the batch back; the screen stays in its result state.
    s.ui->answers.enqueue(true);
    s.key(Qt::Key_Delete);
    QCOMPARE(s.ui->last().text, QStringLiteral("确定要撤消此次产生的中奖结果么?"));
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE JxID > ''")), 0);
    QCOMPARE(s.state(), int(draw::Result));

    QVERIFY(s.drawWithSpace());
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=3")), 10);
    // The award is full: Start moves on to the next one and draws nobody.
    s.key(Qt::Key_Space);
    QCOMPARE(s.session().award.id, second);
    QCOMPARE(s.state(), int(draw::Idle));
    QVERIFY(s.drawWithSpace());
    QCOMPARE(s.count(QStringLiteral("SELECT COUNT(*) FROM UserList WHERE UserStatus=3")), 12);
    // Three places left and nobody to fill them.
    s.ui->clear();
    s.key(Qt::Key_Space);
    QCOMPARE(s.ui->texts(), QStringList{QStringLiteral("已无符合条件的抽奖名单可抽取!")});
    QCOMPARE(s.state(), int(draw::Idle));

    // Esc at rest asks; No keeps the screen.
    s.key(Qt::Key_Escape);
    QCOMPARE(s.ui->last().text, QStringLiteral("确认要退出当前抽奖界面么?"));
    QVERIFY(s.form->isVisible());
}

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
