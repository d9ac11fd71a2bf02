#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

// The results that a .xls workbook keeps for its formula cells. FreeXL reads every other cell
// but passes formulas over, so the workbook's "Workbook" stream is walked here once more for its
// FORMULA records: a number, a text, a truth value or an empty text, as the spreadsheet last
// showed it. Errors stay empty.
//
// The file is outside input: every offset, length and sector chain is checked against the bytes
// at hand, and a file that does not hold what it claims gives no results rather than a fault.
namespace workbook {

// (row << 16) | column -> the cell's text.
using FormulaResults = QHash<quint64, QString>;

inline quint64 cellKey(quint32 row, quint32 column) {
    return (quint64(row) << 16) | column;
}

// Whether the file's container holds what it claims where FreeXL trusts it: FreeXL converts each
// directory entry's name at the length the entry gives, reading past the entry when that is more
// than the 64 bytes it has room for.
bool xlsContainerIsSound(const QByteArray &file);

// The cached results of the formulas on the sheet of that name in a BIFF8 file's bytes.
FormulaResults xlsFormulaResults(const QByteArray &file, const QString &sheetName);

}  // namespace workbook
