#pragma once

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
// The participants of one batch under their award, in ID order; ids is the last Start's winner
// IDs as the draw keeps them, "12,5,31".
bool printBatch(const QString &ids, int awardId);
