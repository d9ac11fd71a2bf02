#include <QtTest>

#include "draw/hotkeyaction.h"

using draw::HotkeyAction;
using A = HotkeyAction;
Q_DECLARE_METATYPE(HotkeyAction)

class TestHotkeyAction : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void actions_data() {
        QTest::addColumn<QList<int>>("codes");
        QTest::addColumn<int>("code");
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("landing");
        QTest::addColumn<HotkeyAction>("expected");
        const QList<int> shared{32, 32, 67, 90, 79, 80, 76, 77, 70};
        const QList<int> apart{13, 32, 67, 90, 79, 80, 76, 77, 70};
        QTest::newRow("shared key starts when idle") << shared << 32 << 0 << false << A::Start;
        QTest::newRow("shared key stops while running") << shared << 32 << 1 << false << A::Stop;
        QTest::newRow("shared key in the parade") << shared << 32 << 3 << false << A::Start;
        QTest::newRow("own stop key") << apart << 32 << 0 << false << A::Stop;
        QTest::newRow("own start key while running") << apart << 13 << 1 << false << A::Start;
        QTest::newRow("clear") << apart << 67 << 1 << false << A::Clear;
        QTest::newRow("screen") << apart << 70 << 0 << false << A::Screen;
        QTest::newRow("unknown") << apart << 81 << 0 << false << A::None;
        QTest::newRow("a key the stage cannot name")
            << QList<int>{32, 32, -1, -1, 79, 80, 76, 77, 70} << -1 << 2 << false << A::None;
        QTest::newRow("the first of the seven wins")
            << QList<int>{13, 32, 67, 67, 79, 80, 76, 77, 70} << 67 << 2 << false << A::Clear;
        QTest::newRow("a later row replaces start")
            << QList<int>{13, 32, 67, 90, 13, 80, 76, 77, 70} << 13 << 0 << false << A::Export;
        // While the winners land only sound and screen act.
        QTest::newRow("clear while landing") << apart << 67 << 1 << true << A::None;
        QTest::newRow("stop while landing") << shared << 32 << 1 << true << A::None;
        QTest::newRow("sound while landing") << apart << 77 << 1 << true << A::Sound;
        QTest::newRow("screen while landing") << apart << 70 << 1 << true << A::Screen;
    }

    void actions() {
        QFETCH(QList<int>, codes);
        QFETCH(int, code);
        QFETCH(int, state);
        QFETCH(bool, landing);
        QFETCH(HotkeyAction, expected);
        QCOMPARE(draw::hotkeyAction(code, codes, draw::DrawState(state), landing), expected);
    }
};

QTEST_APPLESS_MAIN(TestHotkeyAction)
#include "tst_hotkeyaction.moc"
