#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <memory>

class QPagedPaintDevice;

// Printing of the winners on the default printer. When there is none, the operator is told and
// may keep the same pages as a PDF file instead.

// Makes the device a printout goes to; null when there is no printer. The program uses the
// default printer; tests hand in a PDF writer or nothing.
using PrinterFactory = std::function<std::unique_ptr<QPagedPaintDevice>()>;
// Installs the factory; an empty one restores the default printer.
void setPrinterFactory(PrinterFactory factory);

// All winners of all awards, each award's latest first. True when the pages were printed.
bool printWinners(bool showDone);
// The participants of one batch (the last Start's winner IDs) under their award, in ID order.
bool printBatch(const QList<int> &ids, int awardId);
