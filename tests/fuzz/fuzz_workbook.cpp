// Bytes as a workbook file, as the reader picks it by its first bytes. Built twice: fuzz_xlsx
// keeps to zip archives and fuzz_xls to compound documents, so that each can run on while the
// other has a finding.
#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

#include "roster/workbook.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
#ifdef QUELLIO_FUZZ_XLS
    static const QByteArray magic = QByteArray::fromHex("d0cf11e0a1b11ae1");
#else
    static const QByteArray magic("PK\x03\x04");
#endif
    if (!QByteArrayView(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size))
             .startsWith(magic))
        return 0;
    static QTemporaryDir dir;
    static const QString path = dir.filePath(QStringLiteral("book"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return 0;
    file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    file.close();
    workbook::Workbook book;
    book.setPartLimit(16 * 1024 * 1024);  // the limit itself is tested; keep each run quick
    QString error;
    if (!book.open(path, &error)) return 0;
    const int sheets = static_cast<int>(qMin<qsizetype>(book.sheetNames().size(), 4));
    for (int index = 0; index < sheets; ++index) {
        workbook::Sheet sheet;
        book.readSheet(index, -1, &sheet, &error);
        for (const workbook::Row &row : std::as_const(sheet.rows))
            row.value(sheet.columns - 1);
    }
    return 0;
}
