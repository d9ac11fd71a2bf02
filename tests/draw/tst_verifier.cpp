#include <QtTest>

#include <functional>

#include "core/store.h"
#include "draw/audit.h"
#include "draw/drawsecret.h"
#include "draw/engine.h"
#include "draw/rostersnapshot.h"
#include "draw/verifier.h"
#include "stage/protocol.h"
#include "support/filebytes.h"
#include "support/recordingstage.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

// An evening of four recorded presses: two of a first prize, one of a prize for distinction
// number 5 only (with its fallback), one of a prize open to earlier winners.
struct Evening {
    TempProgramFolder folder;
    bool started = folder.start();
    RecordingStage stage;
    std::unique_ptr<draw::DrawEngine> engine = std::make_unique<draw::DrawEngine>(stage);
    int fiveHolder = 0;  // the one participant with distinction number 5

    bool draw(int award) {
        return engine->loadAward(award, true) &&
               engine->pressStart() == draw::DrawEngine::StartOutcome::Drawn &&
               engine->recordWinners();
    }
    bool run() {
        QStringList rows;
        for (int i = 0; i < 40; ++i)
            rows << QStringLiteral("p%1||%2").arg(i).arg(i == 7 ? 5 : 0);
        fiveHolder = folder.addUsers(rows).at(7);
        const int first = folder.addAward(QStringLiteral("一等奖"), 6, 2);
        // Open to earlier winners, so that the holder of 5 is always in its pool.
        const int fives = folder.addAward(QStringLiteral("五号奖"), 3, 1, 0, 2, 5);
        const int open = folder.addAward(QStringLiteral("惊喜奖"), 2, 1, 0);
        return started && draw(first) && draw(first) && draw(fives) && draw(open);
    }
    QStringList logLines() const {
        return QString::fromUtf8(readFile(draw::auditLogPath(folder.path())))
            .split('\n', Qt::SkipEmptyParts);
    }
    void writeLog(const QStringList &lines) const {
        writeFile(draw::auditLogPath(folder.path()), (lines.join('\n') + '\n').toUtf8());
    }
    draw::VerifyReport verify() const {
        return draw::verifyProgramFolder(folder.path(), folder.db());
    }
};

// The line of an event ("press" 2, "record" 2...).
int lineOf(const QStringList &lines, const QString &kind, int press) {
    for (int i = 0; i < lines.size(); ++i)
        if (lines[i].contains("\tevent=" + kind + "\t") &&
            lines[i].contains(QStringLiteral("\tpress=%1\t").arg(press)))
            return i;
    return -1;
}

QString field(const QString &line, const QString &key) {
    for (const QString &part : line.split('\t'))
        if (part.startsWith(key + '=')) return part.mid(key.size() + 1);
    return QString();
}

QString withField(const QString &line, const QString &key, const QString &value) {
    QStringList parts = line.split('\t');
    for (QString &part : parts)
        if (part.startsWith(key + '=')) part = key + '=' + value;
    return parts.join('\t');
}

// What a careful forger does after an edit: numbers and hashes the lines again.
void rechain(QStringList &lines) {
    QString prev = draw::chainStart();
    for (int i = 0; i < lines.size(); ++i) {
        lines[i] =
            QStringLiteral("seq=%1\tprev=%2\t").arg(i + 1).arg(prev) + lines[i].section('\t', 2);
        prev = draw::sha256Hex(lines[i].toUtf8());
    }
}

// Edits the winners on the line of that kind of the fourth press.
void editWinners(QStringList &lines, const QString &kind,
                 const std::function<void(QStringList &)> &edit) {
    QString &line = lines[lineOf(lines, kind, 4)];
    QStringList winners = field(line, "winners").split(',');
    edit(winners);
    line = withField(line, "winners", winners.join(','));
}

QList<quint64> failedPresses(const draw::VerifyReport &report) {
    QList<quint64> failed;
    for (const draw::PressVerdict &verdict : report.presses)
        if (!verdict.holds() && !failed.contains(verdict.number)) failed << verdict.number;
    return failed;
}

using Tamper = std::function<void(Evening &, QStringList &)>;

}  // namespace
Q_DECLARE_METATYPE(Tamper)

class TestVerifier : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_ui = installScriptedUi(); }

    void eveningHoldsBeforeAndAfterTheReveal() {
        Evening evening;
        QVERIFY(evening.run());
        // As after a crash: nothing revealed, every press still checked by its logged seed.
        draw::VerifyReport report = evening.verify();
        QVERIFY2(report.holds(), qPrintable(draw::reportText(report)));
        QCOMPARE(report.presses.size(), size_t(4));
        QCOMPARE(report.unrevealedCount(), 4);

        const QString secret = evening.engine->secret().hex();
        evening.engine.reset();
        report = evening.verify();
        QVERIFY2(report.holds(), qPrintable(draw::reportText(report)));
        QCOMPARE(report.unrevealedCount(), 0);
        QCOMPARE(field(evening.logLines().last(), "secret"), secret);
    }

    void tamperingFailsExactlyThatPress_data() {
        QTest::addColumn<Tamper>("tamper");
        QTest::addColumn<quint64>("press");
        // Edits a forger numbers and hashes again are found by what the lines say.
        QTest::newRow("a winner edited") << Tamper([](Evening &, QStringList &lines) {
            editWinners(lines, "press", [](QStringList &winners) {
                winners[0] = QString::number(winners[0].toLongLong() % 40 + 1);
            });
            rechain(lines);
        }) << quint64(4);
        QTest::newRow("last winner dropped, count lowered") << Tamper([](Evening &,
                                                                         QStringList &lines) {
            for (const QString kind : {"press", "record"})
                editWinners(lines, kind, [](QStringList &winners) { winners.removeLast(); });
            QString &press = lines[lineOf(lines, "press", 4)];
            press = withField(press, "batch", QString::number(field(press, "batch").toInt() - 1));
            rechain(lines);
        }) << quint64(4);
        QTest::newRow("a seed changed") << Tamper([](Evening &, QStringList &lines) {
            QString &line = lines[lineOf(lines, "press", 1)];
            line = withField(line, "seed",
                             draw::seedText(field(line, "seed").toULongLong(nullptr, 16) ^ 1));
            rechain(lines);
        }) << quint64(1);
        QTest::newRow("the roster behind a press changed") << Tamper([](Evening &e, QStringList &) {
            const QString hash = field(e.logLines().first(), "roster");
            const QString path = draw::rosterFilePath(e.folder.path(), hash);
            const QByteArray holder = QByteArray::number(e.fiveHolder);
            writeFile(path, readFile(path).replace(holder + ",5\n", holder + ",6\n"));
        }) << quint64(3);
        // Lines removed or moved break the chain where they were.
        QTest::newRow("a line removed") << Tamper([](Evening &, QStringList &lines) {
            lines.removeAt(lineOf(lines, "press", 3));
        }) << quint64(3);
        QTest::newRow("two lines swapped") << Tamper([](Evening &, QStringList &lines) {
            lines.swapItemsAt(lineOf(lines, "press", 3), lineOf(lines, "record", 3));
        }) << quint64(3);
    }

    void tamperingFailsExactlyThatPress() {
        QFETCH(Tamper, tamper);
        QFETCH(quint64, press);
        Evening evening;
        QVERIFY(evening.run());
        evening.engine.reset();
        QStringList lines = evening.logLines();
        tamper(evening, lines);
        evening.writeLog(lines);
        const draw::VerifyReport report = evening.verify();
        QVERIFY(!report.holds());
        QVERIFY2(failedPresses(report) == QList<quint64>{press},
                 qPrintable(draw::reportText(report)));
    }

    // Decision: the log is the proof, so a press it cannot hold does not happen.
    void pressNotLoggedIsNotDrawn() {
        Evening evening;
        QVERIFY(evening.started);
        evening.folder.addUsers({"甲", "乙"});
        const int award = evening.folder.addAward(QStringLiteral("一等奖"), 1, 1);
        QVERIFY(QDir().mkpath(draw::auditLogPath(evening.folder.path())));  // unwritable: a folder
        QVERIFY(evening.engine->loadAward(award, true));
        QCOMPARE(evening.engine->pressStart(), draw::DrawEngine::StartOutcome::NotLogged);
        QCOMPARE(m_ui->last().text, QStringLiteral("无法写入抽奖记录,本次抽奖未进行!"));
        QVERIFY(evening.stage.values(proto::vbndluck).isEmpty());
        QCOMPARE(evening.engine->state(), int(draw::Idle));
    }

private:
    ScriptedUi *m_ui = nullptr;
};

QTEST_MAIN(TestVerifier)
#include "tst_verifier.moc"
