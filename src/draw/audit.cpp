#include "draw/audit.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QStringList>

#include <unistd.h>

#include <algorithm>

#include "draw/drawsecret.h"

namespace draw {

namespace {

const QString kSeq = QStringLiteral("seq");
const QString kPrev = QStringLiteral("prev");
const QString kEvent = QStringLiteral("event");

// The last line of the file (without its line break), read backwards in blocks; empty for an
// empty file.
QByteArray lastLine(QFile &file) {
    qint64 end = file.size();
    if (end > 0 && file.seek(end - 1) && file.read(1) == "\n") --end;
    constexpr qint64 kBlock = 4096;
    QByteArray tail;
    for (qint64 start = end; start > 0;) {
        const qint64 from = qMax<qint64>(0, start - kBlock);
        if (!file.seek(from)) return {};
        tail.prepend(file.read(start - from));
        start = from;
        const qsizetype cut = tail.lastIndexOf('\n');
        if (cut >= 0) return tail.mid(cut + 1);
    }
    return tail;
}

}  // namespace

AuditEvent &AuditEvent::add(const QString &key, const QString &value) {
    fields.append({key, value});
    return *this;
}

AuditEvent &AuditEvent::add(const QString &key, qint64 value) {
    return add(key, QString::number(value));
}

QString AuditEvent::value(const QString &key) const {
    for (const auto &field : fields)
        if (field.first == key) return field.second;
    return QString();
}

bool AuditEvent::has(const QString &key) const {
    for (const auto &field : fields)
        if (field.first == key) return true;
    return false;
}

QString auditLogPath(const QString &appPath) {
    return appPath + QStringLiteral("History/draw-audit.log");
}

QString chainStart() {
    return QString(64, QLatin1Char('0'));
}

QString auditLineText(qint64 seq, const QString &prev, const AuditEvent &event) {
    QStringList parts{kSeq + QLatin1Char('=') + QString::number(seq),
                      kPrev + QLatin1Char('=') + prev, kEvent + QLatin1Char('=') + event.kind};
    for (const auto &field : event.fields)
        parts << field.first + QLatin1Char('=') + field.second;
    return parts.join(QLatin1Char('\t'));
}

bool parseAuditLine(const QString &text, AuditLine *line) {
    const QStringList parts = text.split(QLatin1Char('\t'));
    if (parts.size() < 3) return false;
    AuditLine parsed;
    parsed.text = text;
    QStringList heads{kSeq, kPrev, kEvent};
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const qsizetype eq = parts[i].indexOf(QLatin1Char('='));
        if (eq <= 0) return false;
        const QString key = parts[i].left(eq);
        const QString value = parts[i].mid(eq + 1);
        if (i < 3 && key != heads[i]) return false;
        if (i == 0) {
            bool ok = false;
            parsed.seq = value.toLongLong(&ok);
            if (!ok) return false;
        } else if (i == 1) {
            parsed.prev = value;
        } else if (i == 2) {
            parsed.event.kind = value;
        } else {
            parsed.event.add(key, value);
        }
    }
    *line = parsed;
    return true;
}

bool appendAuditEvent(const QString &appPath, AuditEvent event, bool durable) {
    QDir().mkpath(appPath + QStringLiteral("History"));
    QFile file(auditLogPath(appPath));
    if (!file.open(QIODevice::ReadWrite)) return false;
    const QByteArray last = lastLine(file);
    AuditLine previous;
    qint64 seq = 1;
    QString prev = chainStart();
    if (!last.isEmpty()) {
        prev = sha256Hex(last);
        seq = parseAuditLine(QString::fromUtf8(last), &previous) ? previous.seq + 1 : 0;
    }
    const QDateTime now = QDateTime::currentDateTime();
    event.fields.prepend(
        {QStringLiteral("time"), now.toOffsetFromUtc(now.offsetFromUtc()).toString(Qt::ISODate)});
    QByteArray text = auditLineText(seq, prev, event).toUtf8();
    // A line cut short by a crash is closed first, so that the new line stays whole.
    if (file.size() > 0) {
        file.seek(file.size() - 1);
        if (file.read(1) != "\n") text.prepend('\n');
    }
    text.append('\n');
    if (!file.seek(file.size()) || file.write(text) != text.size() || !file.flush()) return false;
    return !durable || ::fdatasync(file.handle()) == 0;
}

AuditEvent pressEvent(const PressRecord &press) {
    AuditEvent event(QStringLiteral("press"));
    event.add(QStringLiteral("award"), press.awardId)
        .add(QStringLiteral("rule"), ruleText(press.rule))
        .add(QStringLiteral("batch"), press.batchCount)
        .add(QStringLiteral("seed"), seedText(press.seed))
        .add(QStringLiteral("candidates"), press.candidateCount)
        .add(QStringLiteral("digest"), press.digest)
        .add(QStringLiteral("winners"), idListText(press.winners));
    return event;
}

bool parsePress(const AuditEvent &event, PressRecord *press) {
    PressRecord parsed;
    bool ok[5] = {};
    parsed.number = event.value(QStringLiteral("press")).toULongLong(&ok[0]);
    parsed.awardId = event.value(QStringLiteral("award")).toInt(&ok[1]);
    parsed.batchCount = event.value(QStringLiteral("batch")).toInt(&ok[2]);
    parsed.seed = event.value(QStringLiteral("seed")).toULongLong(&ok[3], 16);
    parsed.candidateCount = event.value(QStringLiteral("candidates")).toLongLong(&ok[4]);
    parsed.digest = event.value(QStringLiteral("digest"));
    if (std::find(std::begin(ok), std::end(ok), false) != std::end(ok)) return false;
    if (!parseRule(event.value(QStringLiteral("rule")), parsed.awardId, &parsed.rule) ||
        !parseIdList(event.value(QStringLiteral("winners")), &parsed.winners))
        return false;
    *press = parsed;
    return true;
}

QString idListText(const std::vector<qint64> &ids) {
    QStringList parts;
    parts.reserve(qsizetype(ids.size()));
    for (qint64 id : ids)
        parts << QString::number(id);
    return parts.join(QLatin1Char(','));
}

bool parseIdList(const QString &text, std::vector<qint64> *ids) {
    ids->clear();
    if (text.isEmpty()) return true;
    for (const QString &part : text.split(QLatin1Char(','))) {
        bool ok = false;
        ids->push_back(part.toLongLong(&ok));
        if (!ok) return false;
    }
    return true;
}

QString ruleText(const AwardRule &rule) {
    return QStringLiteral("%1,%2,%3,%4")
        .arg(rule.isReLuck)
        .arg(rule.rangeType)
        .arg(rule.rangeNum1)
        .arg(rule.rangeNum2);
}

bool parseRule(const QString &text, int awardId, AwardRule *rule) {
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() != 4) return false;
    int values[4];
    for (int i = 0; i < 4; ++i) {
        bool ok = false;
        values[i] = parts[i].toInt(&ok);
        if (!ok) return false;
    }
    *rule = {awardId, values[0], values[1], values[2], values[3]};
    return true;
}

QString seedText(quint64 seed) {
    return QString::number(seed, 16).rightJustified(16, QLatin1Char('0'));
}

}  // namespace draw
