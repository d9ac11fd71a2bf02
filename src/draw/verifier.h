#pragma once

#include <QByteArray>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

// The check anyone can run on an evening's audit log: the chain of lines, each press re-derived
// from its seed and a pool rebuilt from the roster snapshot and the logged events, each seed
// against the session's revealed secret, and each recorded batch against the store.
namespace draw {

struct PressVerdict {
    QString session;
    quint64 number = 0;
    int awardId = 0;
    bool revealed = false;  // the session's secret is in the log, so the seed is checked too
    bool recorded = false;  // a batch of winners went to the store
    bool cancelled = false;
    QStringList problems;
    bool holds() const { return problems.isEmpty(); }
};

struct VerifyReport {
    std::vector<PressVerdict> presses;
    QStringList problems;  // those of no single press
    int lines = 0;
    int failedCount() const;
    int unrevealedCount() const;
    bool holds() const { return problems.isEmpty() && failedCount() == 0; }
};

// The bytes of a roster file of History/ by its hash; empty when there is none.
using RosterFileReader = std::function<QByteArray(const QString &rosterHash)>;

// Verifies a log. `store` may be invalid: then the batches are not compared with the store.
VerifyReport verifyAuditLog(const QByteArray &log, const RosterFileReader &readRosterFile,
                            QSqlDatabase store);
// The log, roster files and store of a program folder (ending in "/").
VerifyReport verifyProgramFolder(const QString &appPath, QSqlDatabase store);

QString verdictText(const PressVerdict &verdict);
// The closing lines: the counts and the conclusion.
QString summaryText(const VerifyReport &report);
// One line per press, the problems of no press, then the summary.
QString reportText(const VerifyReport &report);
// Verifies this program folder's log and writes the report beside an exported winner list
// ("名单.csv" gets "名单-核对.txt"). Returns the path written, or an empty text.
QString writeReportBeside(const QString &exportedPath);

}  // namespace draw
