#pragma once

#include <QList>
#include <QPair>
#include <QString>

#include <vector>

#include "draw/selection.h"

// The audit log of the draw, History/draw-audit.log: one line per event that changes who can win
// (the window opening with its roster, each press, record, cancel, give-up, make-up, restart, the
// window closing with its secret). Each line starts with its number and the SHA-256 of the line
// before it, so a line edited, removed or moved breaks the chain. Lines are tab-separated
// "key=value" fields; docs/fairness.md gives every field.
namespace draw {

struct AuditEvent {
    explicit AuditEvent(const QString &kind = QString()) : kind(kind) {}
    AuditEvent &add(const QString &key, const QString &value);
    AuditEvent &add(const QString &key, qint64 value);
    QString value(const QString &key) const;
    bool has(const QString &key) const;

    QString kind;
    QList<QPair<QString, QString>> fields;
};

// A line as read back: its place in the chain and its event.
struct AuditLine {
    qint64 seq = 0;
    QString prev;
    QString text;  // the whole line, what the next line's prev hashes
    AuditEvent event;
};

QString auditLogPath(const QString &appPath);
// The prev of the first line.
QString chainStart();
// The text of a line: seq, prev, event and the fields, in that order.
QString auditLineText(qint64 seq, const QString &prev, const AuditEvent &event);
// Parses a line; false when it is not seq, prev and event followed by key=value fields.
bool parseAuditLine(const QString &text, AuditLine *line);
// Appends an event after the log's last line (with the time now). False when the line could not
// be written: the caller must then not go on with what it logs. A durable line is forced to disk
// with every line before it; a press line need not be, since nothing is stored before the
// record line that follows it.
bool appendAuditEvent(const QString &appPath, AuditEvent event, bool durable = true);

// One press of Start as its line holds it.
struct PressRecord {
    quint64 number = 0;  // from 1 in each session
    int awardId = 0;
    AwardRule rule;
    int batchCount = 0;
    quint64 seed = 0;
    qint64 candidateCount = 0;
    QString digest;
    std::vector<qint64> winners;
};
// The press line's fields after session and press, which the session adds.
AuditEvent pressEvent(const PressRecord &press);
bool parsePress(const AuditEvent &event, PressRecord *press);

// The field texts shared by the writers and the verifier.
QString idListText(const std::vector<qint64> &ids);
bool parseIdList(const QString &text, std::vector<qint64> *ids);
QString ruleText(const AwardRule &rule);
bool parseRule(const QString &text, int awardId, AwardRule *rule);
QString seedText(quint64 seed);

}  // namespace draw
