#include "results/exportwinners.h"

#include <QCoreApplication>
#include <QSaveFile>

#include "core/appstate.h"
#include "core/store.h"
#include "core/ui.h"
#include "results/winnerrows.h"

namespace results {

namespace {

const QByteArray kLineEnd = QByteArrayLiteral("\r\n");

// The third title is written this way on purpose; it differs from the printed "奖品名称".
QStringList header() {
    return {QCoreApplication::translate("results", "序号"),
            QCoreApplication::translate("results", "奖项名称"),
            QCoreApplication::translate("results", "奖品成名"),
            QCoreApplication::translate("results", "中奖名单"),
            QCoreApplication::translate("results", "备注")};
}

QByteArray csvField(const QString &text) {
    QByteArray bytes = text.toUtf8();
    if (!bytes.contains(',') && !bytes.contains('"') && !bytes.contains('\n') &&
        !bytes.contains('\r'))
        return bytes;
    bytes.replace('"', QByteArrayLiteral("\"\""));
    return '"' + bytes + '"';
}

QByteArray winnersCsv() {
    QSqlDatabase db = store::mainConn();
    QByteArray out = QByteArrayLiteral("\xEF\xBB\xBF") + csvLine(header()) + kLineEnd;
    int number = 1;
    for (const Award &award : awardsInOrder(db)) {
        const auto winners = winnersOf(db, award.id, WinnerOrder::EarliestFirst);
        for (const Winner &winner : winners)
            out += csvLine({QString::number(number++), award.name, award.prize, winner.name,
                            winner.remark}) +
                   kLineEnd;
    }
    return out;
}

}  // namespace

QByteArray csvLine(const QStringList &fields) {
    QByteArray line;
    for (int i = 0; i < fields.size(); ++i) {
        if (i > 0) line += ',';
        line += csvField(fields.at(i));
    }
    return line;
}

QString defaultExportPath(const QDateTime &time) {
    const QDate date = time.date();
    const QTime clock = time.time();
    return appState().path(QStringLiteral("record/") +
                           QCoreApplication::translate("results", "中奖记录")) +
           QString::number(date.year()) + QString::number(date.month()) +
           QString::number(date.day()) + QString::number(clock.hour()) +
           QString::number(clock.minute()) + QStringLiteral(".csv");
}

}  // namespace results

QString exportWinners(const QString &path, bool showDone) {
    if (results::awardsInOrder(store::mainConn()).isEmpty()) {
        ui().message(QCoreApplication::translate("results", "没有奖项导出失败!"),
                     MsgStyle::Exclamation, titles::warning);
        return QString();
    }
    const QString target =
        path.isEmpty() ? results::defaultExportPath(QDateTime::currentDateTime()) : path;
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly) || file.write(results::winnersCsv()) < 0 ||
        !file.commit()) {
        ui().message(file.errorString(), MsgStyle::Critical, titles::error);
        return QString();
    }
    if (showDone)
        ui().message(
            target + QLatin1Char('\n') + QCoreApplication::translate("results", "导出名单完毕!!"),
            MsgStyle::Information, titles::notice);
    return target;
}
