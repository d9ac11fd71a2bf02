#include <memory>

#include <QSet>
#include <QtTest>

#include "core/appstate.h"
#include "core/store.h"
#include "draw/batchplan.h"
#include "draw/selection.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

using draw::AwardRule;
using namespace Qt::StringLiterals;
using IdList = QList<qint64>;

namespace {

IdList toList(const std::vector<qint64> &ids) {
    return IdList(ids.begin(), ids.end());
}

// Chi-square of observed counts against a uniform expectation.
double chiSquare(const QList<int> &counts) {
    double total = 0;
    for (int c : counts)
        total += c;
    const double expected = total / counts.size();
    double chi = 0;
    for (int c : counts)
        chi += (c - expected) * (c - expected) / expected;
    return chi;
}

}  // namespace

class TestSelection : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { installScriptedUi(); }

    void batchTable_data() {
        QTest::addColumn<int>("slotCount");
        QTest::addColumn<int>("batches");
        QTest::addColumn<QList<int>>("run");
        QTest::newRow("10 over 3") << 10 << 3 << QList<int>{3, 3, 4};
        QTest::newRow("11 over 3") << 11 << 3 << QList<int>{4, 4, 3};
        QTest::newRow("10 over 6") << 10 << 6 << QList<int>{2, 2, 2, 2, 2};
        QTest::newRow("9 over 6") << 9 << 6 << QList<int>{2, 2, 2, 2, 1};
        QTest::newRow("1 over 5") << 1 << 5 << QList<int>{1};
    }

    void batchTable() {
        QFETCH(int, slotCount);
        QFETCH(int, batches);
        QList<int> drawn;
        int have = 0;
        for (int guard = 0; guard < 20; ++guard) {
            const int next = draw::planBatch(slotCount, batches, have).batchCount;
            if (next == 0) break;
            drawn << next;
            have += next;
        }
        QTEST(drawn, "run");
        QCOMPARE(draw::planBatch(slotCount, batches, have).remaining, 0);
    }

    void batchEdges_data() {
        QTest::addColumn<int>("slotCount");
        QTest::addColumn<int>("batches");
        QTest::addColumn<int>("have");
        QTest::addColumn<int>("shownBatches");
        QTest::addColumn<int>("remaining");
        QTest::addColumn<int>("batchCount");
        QTest::newRow("full") << 5 << 2 << 5 << 2 << 0 << 0;
        QTest::newRow("slots reduced below winners") << 3 << 1 << 5 << 1 << -2 << 0;
        QTest::newRow("batches above slots shown clamped") << 3 << 5 << 0 << 3 << 3 << 1;
        QTest::newRow("no slot") << 0 << 1 << 0 << 0 << 0 << 0;
        QTest::newRow("no batch") << 4 << 0 << 0 << 0 << 4 << 0;
        // A short first batch shifts the plan: 10 over 3 after 2 is 3, then 4, then the last 1.
        QTest::newRow("10 over 3, a short first batch") << 10 << 3 << 2 << 3 << 8 << 3;
        QTest::newRow("10 over 3, then the last batch") << 10 << 3 << 5 << 3 << 5 << 4;
        QTest::newRow("10 over 3, one slot left over") << 10 << 3 << 9 << 3 << 1 << 1;
        QTest::newRow("make-up on a full award, capped") << 12 << 3 << 10 << 3 << 2 << 2;
        // The plan's formula gives 0 for a batch after its last one; a slot freed by a give-up or
        // added by a make-up is still drawn.
        QTest::newRow("10 over 6, a give-up after all five batches") << 10 << 6 << 9 << 6 << 1 << 1;
        QTest::newRow("6 over 4, a give-up") << 6 << 4 << 5 << 4 << 1 << 1;
    }

    void batchEdges() {
        QFETCH(int, slotCount);
        QFETCH(int, batches);
        QFETCH(int, have);
        const draw::BatchPlan plan = draw::planBatch(slotCount, batches, have);
        QTEST(plan.batches, "shownBatches");
        QTEST(plan.remaining, "remaining");
        QTEST(plan.batchCount, "batchCount");
    }

    void rangePoolsAndFallback_data() {
        QTest::addColumn<int>("rangeType");
        QTest::addColumn<int>("n1");
        QTest::addColumn<int>("n2");
        QTest::addColumn<QList<int>>("diffNums");  // participant i+1 has diffNums[i]
        QTest::addColumn<IdList>("primary");
        QTest::addColumn<IdList>("fallback");
        const QList<int> tenZeros(10, 0);
        QTest::newRow("greater: four in range")
            << 1 << 5 << 0 << QList<int>{6, 7, 8, 9, 1, 2} << IdList{1, 2, 3, 4} << IdList{5, 6};
        QTest::newRow("greater: one in range")
            << 1 << 5 << 0 << (QList<int>{9} + tenZeros) << IdList{1}
            << IdList{2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
        QTest::newRow("greater: nobody in range")
            << 1 << 5 << 0 << tenZeros << IdList{} << IdList{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
        QTest::newRow("equals 5, nobody has 5: only DiffNum 0 behind")
            << 2 << 5 << 0 << QList<int>{0, 7, 0, 7} << IdList{} << IdList{1, 3};
        QTest::newRow("equals 0, only 7 left")
            << 2 << 0 << 0 << QList<int>{7} << IdList{} << IdList{1};
        QTest::newRow("less") << 3 << 5 << 0 << QList<int>{4, 5, 6} << IdList{1} << IdList{2, 3};
        QTest::newRow("between 10 and 20, edges outside")
            << 4 << 10 << 20 << QList<int>{9, 10, 11, 19, 20, 21} << IdList{3, 4}
            << IdList{1, 2, 5, 6};
        QTest::newRow("no range") << 0 << 5 << 9 << QList<int>{1, 7, 3} << IdList{1, 2, 3}
                                  << IdList{};
        QTest::newRow("unknown type is no range")
            << 9 << 5 << 9 << QList<int>{1, 7} << IdList{1, 2} << IdList{};
    }

    void rangePoolsAndFallback() {
        QFETCH(int, rangeType);
        QFETCH(int, n1);
        QFETCH(int, n2);
        QFETCH(QList<int>, diffNums);
        draw::Roster roster;
        for (int i = 0; i < diffNums.size(); ++i) {
            roster.ids.push_back(i + 1);
            roster.diffNums.push_back(diffNums[i]);
        }
        const draw::Candidates candidates =
            draw::selectCandidates(roster, {}, AwardRule{1, 1, rangeType, n1, n2});
        QTEST(toList(candidates.primary), "primary");
        QTEST(toList(candidates.fallback), "fallback");
    }

    void whoMayWinAgain_data() {
        QTest::addColumn<int>("isReLuck");
        QTest::addColumn<int>("awardId");
        QTest::addColumn<IdList>("eligible");
        // 1 NULL, 2 empty, 3 |3||5|, 4 gave up "无", 5 |13|, 6 empty but status 1, 7 |5|
        QTest::newRow("exclude all winners") << 1 << 3 << IdList{1, 2};
        QTest::newRow("not twice award 3; 13 is not 3") << 0 << 3 << IdList{1, 2, 5, 7};
        QTest::newRow("holder of 3 and 5 may win 7") << 0 << 7 << IdList{1, 2, 3, 5, 7};
        QTest::newRow("not twice award 5") << 0 << 5 << IdList{1, 2, 5};
        QTest::newRow("isReLuck 2 acts like 0") << 2 << 5 << IdList{1, 2, 5};
    }

    void whoMayWinAgain() {
        QFETCH(int, isReLuck);
        QFETCH(int, awardId);
        QFETCH(IdList, eligible);
        if (!m_sevenStates) {
            m_sevenStates = std::make_unique<TempProgramFolder>();
            QVERIFY(m_sevenStates->start());
            m_sevenStates->addUsers({"a", "b", "c", "d", "e", "f", "g"});
            const QList<QVariantList> states = {
                {QVariant(), 0, 1}, {"", 0, 2}, {"|3||5|", 3, 3}, {"无", 1, 4},
                {"|13|", 3, 5},     {"", 1, 6}, {"|5|", 3, 7}};
            for (const QVariantList &s : states)
                QVERIFY(store::exec(m_sevenStates->db(),
                                    u"UPDATE UserList SET JxID=?, UserStatus=? WHERE ID=?"_s, s));
        }
        const draw::Candidates candidates =
            draw::loadCandidates(m_sevenStates->db(), AwardRule{awardId, isReLuck, 0, 0, 0});
        QCOMPARE(toList(candidates.primary), eligible);
        QCOMPARE(candidates.sampleSize(), size_t(eligible.size()));
    }

    void scrollSampleNarrowsOnlyTheEqualsType() {
        const std::optional<qint64> none;
        QVERIFY(!draw::inScrollSample(AwardRule{1, 1, 2, 5, 0}, none));
        QVERIFY(draw::inScrollSample(AwardRule{1, 1, 2, 0, 0}, 7));
        // A greater-than range does not narrow the sample: names the result cannot hold may scroll.
        QVERIFY(draw::inScrollSample(AwardRule{1, 1, 1, 5, 0}, 1));
        QVERIFY(draw::inScrollSample(AwardRule{1, 1, 4, 10, 20}, none));
        QCOMPARE(draw::classify(AwardRule{1, 1, 1, 5, 0}, none), draw::Pool::Excluded);
        QCOMPARE(draw::classify(AwardRule{1, 1, 0, 5, 0}, none), draw::Pool::Primary);
    }

    void namesForTheStage_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("hide");
        QTest::addColumn<int>("left");
        QTest::addColumn<int>("right");
        QTest::addColumn<QString>("mask");
        QTest::addColumn<QString>("shown");
        QTest::newRow("separators replaced") << u"a|b$c"_s << 0 << 1 << 1 << u"*"_s << u"a‖b＄c"_s;
        QTest::newRow("three characters") << u"张小明"_s << 1 << 1 << 1 << u"*"_s << u"张*明"_s;
        QTest::newRow("two characters shown whole")
            << u"张三"_s << 1 << 1 << 1 << u"*"_s << u"张三"_s;
        QTest::newRow("first kept, two stars") << u"张小明"_s << 1 << 1 << 0 << u"*"_s << u"张**"_s;
        QTest::newRow("longer mask text")
            << u"abcdef"_s << 1 << 2 << 1 << u"##"_s << u"ab######f"_s;
        QTest::newRow("empty stays empty") << QString() << 1 << 0 << 0 << u"*"_s << QString();
        QTest::newRow("masking off") << u"张小明"_s << 0 << 1 << 0 << u"*"_s << u"张小明"_s;
        QTest::newRow("cleaned before masking")
            << u"a|b$c"_s << 1 << 1 << 1 << u"*"_s << u"a***c"_s;
    }

    void namesForTheStage() {
        QFETCH(QString, name);
        QFETCH(int, hide);
        QFETCH(int, left);
        QFETCH(int, right);
        QFETCH(QString, mask);
        resetAppState();
        appState().isHideName = qint16(hide);
        appState().hideLeft = qint16(left);
        appState().hideRight = qint16(right);
        appState().hideReStr = mask;
        QTEST(draw::stageName(name), "shown");
        resetAppState();
    }

    void winsAreUniform() {
        // 12 participants, 24000 presses of one winner, then of batches of 3: every count should be
        // near 2000 and 6000. The bound is the 0.01% point of chi-square with 11 degrees of
        // freedom.
        std::vector<qint64> roster;
        for (qint64 id = 101; id <= 112; ++id)
            roster.push_back(id);
        for (int batch : {1, 3}) {
            QList<int> counts(12, 0);
            for (int press = 0; press < 24000; ++press) {
                for (qint64 id : draw::pickWinners(roster, {}, draw::newSeed(), batch))
                    ++counts[int(id - 101)];
            }
            const double chi = chiSquare(counts);
            QVERIFY2(chi < 37.7, qPrintable(QStringLiteral("chi-square %1").arg(chi)));
        }
    }

    void ordersAreNotFromAFewSeeds() {
        // With 1000 possible seeds a press could only yield 1000 orders. Full orders of 8 people
        // (40320 possible) over 5000 presses must nearly all differ.
        std::vector<qint64> roster = {3, 5, 8, 13, 21, 34, 55, 89};
        QSet<QString> orders;
        for (int press = 0; press < 5000; ++press) {
            QStringList order;
            for (qint64 id : draw::pickWinners(roster, {}, draw::newSeed(), 8))
                order << QString::number(id);
            orders.insert(order.join(','));
        }
        QVERIFY2(orders.size() > 4400, qPrintable(QString::number(orders.size())));
    }

private:
    // The rows of whoMayWinAgain read one store, set up by the first row.
    std::unique_ptr<TempProgramFolder> m_sevenStates;
};

QTEST_GUILESS_MAIN(TestSelection)
#include "tst_selection.moc"
