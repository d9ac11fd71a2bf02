#include "results/view/printwinners.h"

#include <QCoreApplication>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>

#include "core/appstate.h"
#include "core/store.h"
#include "core/ui.h"
#include "results/printout.h"
#include "results/winnerrows.h"

namespace {

std::unique_ptr<QPagedPaintDevice> defaultPrinter() {
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull()) return nullptr;
    auto printer = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    printer->setFullPage(true);
    printer->setDocName(QCoreApplication::translate("results", "中奖名单"));
    return printer;
}

PrinterFactory &printerFactory() {
    static PrinterFactory factory = defaultPrinter;
    return factory;
}

// The printer, or after "找不到打印机" a PDF file the operator names; null when there is neither.
std::unique_ptr<QPagedPaintDevice> openPrinter() {
    if (auto device = printerFactory()()) return device;
    ui().message(QCoreApplication::translate("results", "找不到打印机"), MsgStyle::Exclamation,
                 titles::warning);
    const QString file = ui().saveFile(QCoreApplication::translate("results", "保存为PDF文件"),
                                       QCoreApplication::translate("results", "中奖名单.pdf"),
                                       QCoreApplication::translate("results", "PDF文件 (*.pdf)"));
    if (file.isEmpty()) return nullptr;
    auto writer = std::make_unique<QPdfWriter>(file);
    writer->setResolution(600);
    writer->setTitle(QCoreApplication::translate("results", "中奖名单"));
    return writer;
}

bool paint(QPagedPaintDevice *device, const printout::Document &document) {
    if (printout::paintDocument(device, document) > 0) return true;
    ui().message(QCoreApplication::translate("results", "打印错误"), MsgStyle::Critical,
                 titles::error);
    return false;
}

void sayNoAward() {
    ui().message(QCoreApplication::translate("results", "没有奖项无法打印!"), MsgStyle::Exclamation,
                 titles::warning);
}

printout::Row printRow(int number, const results::Award &award, const results::Winner &winner) {
    return {QString::number(number), award.name, award.prize, winner.name};
}

}  // namespace

void setPrinterFactory(PrinterFactory factory) {
    printerFactory() = factory ? std::move(factory) : PrinterFactory(defaultPrinter);
}

bool printWinners(bool showDone) {
    const auto device = openPrinter();
    if (!device) return false;
    QSqlDatabase db = store::mainConn();
    const QList<results::Award> awards = results::awardsInOrder(db);
    if (awards.isEmpty()) {
        sayNoAward();
        return false;
    }
    printout::Document document;
    document.title = appState().title1;
    for (const results::Award &award : awards)
        for (const results::Winner &winner :
             results::winnersOf(db, award.id, results::WinnerOrder::LatestFirst))
            document.rows.append(printRow(document.rows.size() + 1, award, winner));
    if (!paint(device.get(), document)) return false;
    if (showDone)
        ui().message(QCoreApplication::translate("results", "打印完成!"), MsgStyle::Information,
                     titles::notice);
    return true;
}

bool printBatch(const QString &ids, int awardId) {
    QList<qint64> idList;
    for (const QString &part : ids.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        bool ok = false;
        const qint64 id = part.trimmed().toLongLong(&ok);
        if (ok) idList << id;
    }
    if (idList.isEmpty()) {
        ui().message(QCoreApplication::translate("results", "找不到当前获奖名单!"),
                     MsgStyle::Exclamation, titles::warning);
        return false;
    }
    const auto device = openPrinter();
    if (!device) return false;
    QSqlDatabase db = store::mainConn();
    const results::Award award = results::awardById(db, awardId);
    if (award.id == 0) {
        sayNoAward();
        return false;
    }
    printout::Document document;
    document.title = appState().title1;
    document.footWithTime = true;
    document.printTime = store::nowText();
    for (const results::Winner &winner : results::participantsById(db, idList))
        document.rows.append(printRow(document.rows.size() + 1, award, winner));
    if (!paint(device.get(), document)) return false;
    ui().message(QCoreApplication::translate("results", "当前中奖名单打印完成!"),
                 MsgStyle::Information, titles::notice);
    return true;
}
