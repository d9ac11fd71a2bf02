// The worked example of docs/fairness.md through the program's own functions: whoever follows
// the page gets the program's commitment, seeds, pools, digest and winners.
#include <QtTest>

#include "draw/drawsecret.h"
#include "draw/selection.h"

using Ids = std::vector<qint64>;

class TestFairnessDoc : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void workedExample() {
        QByteArray bytes;
        draw::Roster roster;
        for (int i = 0; i < 32; ++i)
            bytes += char(i);
        for (qint64 id = 1; id <= 10; ++id) {
            roster.ids.push_back(id);
            roster.diffNums.push_back(id);
        }
        const draw::DrawSecret secret(bytes);
        QCOMPARE(
            secret.commitment(),
            QStringLiteral("630dcd2966c4336691125448bbb25b4ff412a49c732db2c8abc1b8581bd710dd"));
        QCOMPARE(secret.fingerprint(), QStringLiteral("630D CD29 66C4"));
        const quint64 seed = secret.pressSeed(1);
        QCOMPARE(seed, 0x6061c4386d7a1788ULL);
        // Participant 2 gave up; the award takes nobody twice and prefers 3 < DiffNum < 8.
        const draw::Candidates pools = draw::selectCandidates(roster, {2}, {1, 1, 4, 3, 8});
        QCOMPARE(pools.primary, (Ids{4, 5, 6, 7}));
        QCOMPARE(pools.fallback, (Ids{1, 3, 8, 9, 10}));
        QCOMPARE(
            draw::candidateDigest(pools),
            QStringLiteral("bcf74ed1a95a3ff84bfc050ecbb3b0b720b23e9f410125ffafc0763873aa4690"));
        QCOMPARE(draw::orderKey(seed, 4), 0x61e22ce0d1db9369ULL);
        QCOMPARE(draw::pickWinners(pools.primary, pools.fallback, seed, 5), (Ids{4, 5, 7, 6, 9}));
    }
};

QTEST_APPLESS_MAIN(TestFairnessDoc)
#include "tst_fairnessdoc.moc"
