#include "draw/audit.h"

#include <QDir>
#include <QFile>
#include <QStringList>

namespace draw {

namespace {

QString idList(const std::vector<qint64> &ids) {
    QStringList parts;
    parts.reserve(qsizetype(ids.size()));
    for (qint64 id : ids)
        parts << QString::number(id);
    return parts.join(QLatin1Char(','));
}

}  // namespace

QString auditLogPath(const QString &appPath) {
    return appPath + QStringLiteral("History/draw-audit.log");
}

QString auditLine(const PressRecord &r) {
    const QString rule = QStringLiteral("%1,%2,%3,%4")
                             .arg(r.rule.isReLuck)
                             .arg(r.rule.rangeType)
                             .arg(r.rule.rangeNum1)
                             .arg(r.rule.rangeNum2);
    return QStringList{
        QStringLiteral("time=") + r.time.toString(Qt::ISODateWithMs),
        QStringLiteral("award=") + QString::number(r.awardId),
        QStringLiteral("rule=") + rule,
        QStringLiteral("batch=") + QString::number(r.batchCount),
        QStringLiteral("seed=") + QString::number(r.seed, 16).rightJustified(16, QLatin1Char('0')),
        QStringLiteral("candidates=") + QString::number(r.candidateCount),
        QStringLiteral("digest=") + r.digest,
        QStringLiteral("winners=") + idList(r.winners),
    }
        .join(QLatin1Char('\t'));
}

bool parseAuditLine(const QString &line, PressRecord *record) {
    QHash<QString, QString> fields;
    for (const QString &field : line.trimmed().split(QLatin1Char('\t'))) {
        const qsizetype eq = field.indexOf(QLatin1Char('='));
        if (eq > 0) fields.insert(field.left(eq), field.mid(eq + 1));
    }
    const QStringList rule = fields.value(QStringLiteral("rule")).split(QLatin1Char(','));
    bool seedOk = false;
    PressRecord r;
    r.time = QDateTime::fromString(fields.value(QStringLiteral("time")), Qt::ISODateWithMs);
    r.awardId = fields.value(QStringLiteral("award")).toInt();
    r.batchCount = fields.value(QStringLiteral("batch")).toInt();
    r.seed = fields.value(QStringLiteral("seed")).toULongLong(&seedOk, 16);
    r.candidateCount = fields.value(QStringLiteral("candidates")).toLongLong();
    r.digest = fields.value(QStringLiteral("digest"));
    if (!seedOk || rule.size() != 4 || !fields.contains(QStringLiteral("winners"))) return false;
    r.rule = {r.awardId, rule[0].toInt(), rule[1].toInt(), rule[2].toInt(), rule[3].toInt()};
    for (const QString &id :
         fields.value(QStringLiteral("winners")).split(QLatin1Char(','), Qt::SkipEmptyParts))
        r.winners.push_back(id.toLongLong());
    *record = r;
    return true;
}

bool appendAudit(const QString &appPath, const PressRecord &record) {
    QDir().mkpath(appPath + QStringLiteral("History"));
    QFile file(auditLogPath(appPath));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text)) return false;
    const QByteArray line = (auditLine(record) + QLatin1Char('\n')).toUtf8();
    const bool written = file.write(line) == line.size();
    return file.flush() && written;
}

bool verifyPress(const PressRecord &record, const Candidates &candidates) {
    if (candidates.count() != record.candidateCount) return false;
    if (candidateDigest(candidates) != record.digest) return false;
    return pickWinners(candidates.primary, candidates.fallback, record.seed, record.batchCount) ==
           record.winners;
}

}  // namespace draw
