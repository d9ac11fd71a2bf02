// The draw re-implemented from docs/fairness.md alone, with none of the program's selection or
// audit code: the page's worked example, and a press of the program's own log.
#include <QCryptographicHash>
#include <QFile>
#include <QtEndian>
#include <QtTest>

#include <algorithm>

#include "draw/engine.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

quint64 mix(quint64 z) {
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
    return z ^ (z >> 31);
}

quint64 key(quint64 s, qint64 id) {
    return mix(mix(quint64(id) * 0x9e3779b97f4a7c15ULL ^ s) + ((s << 32) | (s >> 32)));
}

QByteArray sha(const QByteArray &bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

quint64 seedOf(const QByteArray &secret, quint64 press) {
    char number[8];
    qToBigEndian(press, number);
    return qFromBigEndian<quint64>(sha(secret + QByteArray(number, 8)).constData());
}

QList<qint64> byKey(QList<qint64> pool, quint64 seed) {
    std::sort(pool.begin(), pool.end(),
              [seed](qint64 a, qint64 b) { return key(seed, a) < key(seed, b); });
    return pool;
}

QList<qint64> winners(const QList<qint64> &primary, const QList<qint64> &fallback, quint64 seed,
                      int batch) {
    QList<qint64> drawn = byKey(primary, seed).mid(0, batch);
    drawn += byKey(fallback, seed).mid(0, batch - drawn.size());
    return drawn;
}

void varint(QByteArray &out, quint64 v) {
    do {
        const char low = char(v & 0x7f);
        v >>= 7;
        out += v ? char(low | 0x80) : low;
    } while (v);
}

QString digest(const QList<qint64> &primary, const QList<qint64> &fallback) {
    QByteArray bytes;
    for (const QList<qint64> *pool : {&primary, &fallback}) {
        varint(bytes, quint64(pool->size()));
        for (qint64 id : *pool)
            varint(bytes, quint64(id));
    }
    return QString::fromLatin1(sha(bytes).toHex());
}

QHash<QString, QString> fields(const QString &line) {
    QHash<QString, QString> result;
    for (const QString &part : line.split('\t'))
        result.insert(part.section('=', 0, 0), part.section('=', 1));
    return result;
}

}  // namespace

class TestFairnessDoc : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void workedExample();
    void aLoggedPress();
};

void TestFairnessDoc::workedExample() {
    QByteArray secret;
    for (int i = 0; i < 32; ++i)
        secret += char(i);
    QCOMPARE(sha(secret).toHex().left(12), QByteArray("630dcd2966c4"));
    const quint64 seed = seedOf(secret, 1);
    QCOMPARE(seed, 0x6061c4386d7a1788ULL);
    const QList<qint64> primary{4, 5, 6, 7}, fallback{1, 3, 8, 9, 10};
    QCOMPARE(digest(primary, fallback),
             QStringLiteral("bcf74ed1a95a3ff84bfc050ecbb3b0b720b23e9f410125ffafc0763873aa4690"));
    QCOMPARE(key(seed, 4), 0x61e22ce0d1db9369ULL);
    QCOMPARE(winners(primary, fallback, seed, 5), QList<qint64>({4, 5, 7, 6, 9}));
}

void TestFairnessDoc::aLoggedPress() {
    installScriptedUi();
    TempProgramFolder folder;
    QVERIFY(folder.start());
    QStringList rows;
    for (int i = 0; i < 25; ++i)
        rows << QStringLiteral("p%1").arg(i);
    folder.addUsers(rows);
    const int award = folder.addAward(QStringLiteral("一等奖"), 4, 1);
    {
        RecordingStage stage;
        draw::DrawEngine engine(stage);
        QVERIFY(engine.loadAward(award, true));
        QCOMPARE(engine.pressStart(), draw::DrawEngine::StartOutcome::Drawn);
    }  // the window closes: the secret is revealed

    QFile log(folder.path("History/draw-audit.log"));
    QVERIFY(log.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(log.readAll()).split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 3);
    const auto open = fields(lines[0]), press = fields(lines[1]), close = fields(lines[2]);
    QCOMPARE(fields(lines[1])["prev"], QString::fromLatin1(sha(lines[0].toUtf8()).toHex()));

    // Nobody has won yet and the award has no range: everybody of the roster file is primary.
    QFile rosterFile(folder.path("History/roster-" + open["roster"].left(16) + ".txt"));
    QVERIFY(rosterFile.open(QIODevice::ReadOnly));
    const QByteArray roster = rosterFile.readAll();
    QCOMPARE(QString::fromLatin1(sha(roster).toHex()), open["roster"]);
    QList<qint64> everybody;
    for (const QByteArray &line : roster.split('\n'))
        if (!line.isEmpty()) everybody << line.split(',').first().toLongLong();
    QCOMPARE(everybody.size(), 25);

    const QByteArray secret = QByteArray::fromHex(close["secret"].toLatin1());
    QCOMPARE(QString::fromLatin1(sha(secret).toHex()), open["commit"]);
    const quint64 seed = seedOf(secret, 1);
    QCOMPARE(press["seed"].toULongLong(nullptr, 16), seed);
    QCOMPARE(press["digest"], digest(everybody, {}));
    QStringList drawn;
    for (qint64 id : winners(everybody, {}, seed, press["batch"].toInt()))
        drawn << QString::number(id);
    QCOMPARE(press["winners"], drawn.join(','));
}

QTEST_MAIN(TestFairnessDoc)
#include "tst_fairnessdoc.moc"
