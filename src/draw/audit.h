#pragma once

#include <QDateTime>
#include <QString>

#include <vector>

#include "draw/selection.h"

// The audit trail of the draw: one line per press of Start, appended to History/draw-audit.log
// and flushed at once, with everything needed to show afterwards that the press was fair: the
// seed, the rule, how many could win and a digest of who, and the winners drawn.
namespace draw {

struct PressRecord {
    QDateTime time;
    int awardId = 0;
    AwardRule rule;
    int batchCount = 0;
    quint64 seed = 0;
    qint64 candidateCount = 0;
    QString digest;
    std::vector<qint64> winners;
};

// The log file of the program folder appPath (ending in "/").
QString auditLogPath(const QString &appPath);
// One line of text, tab-separated "key=value" fields, without the line break.
QString auditLine(const PressRecord &record);
// Parses a line written by auditLine; false for anything else.
bool parseAuditLine(const QString &line, PressRecord *record);
// Appends one line and flushes it; creates History/ when it is missing.
bool appendAudit(const QString &appPath, const PressRecord &record);

// The winners a press must have drawn, worked out again from its seed and the candidates: true
// when they match the record (the candidates' digest and the winners in their order).
bool verifyPress(const PressRecord &record, const Candidates &candidates);

}  // namespace draw
