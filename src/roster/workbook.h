#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <initializer_list>

// Reads Excel workbooks without any office suite: .xlsx through libzip and QXmlStreamReader,
// .xls (BIFF) through FreeXL. The file's first bytes decide the reader, not its extension, so a
// "name.XLSX" or a workbook saved under the wrong extension still opens.
//
// A cell is text as the spreadsheet shows it; an empty cell is a null QString (the "Null" of the
// import rules), which is not the same as a cell holding empty text.
//
// Sheets are read within Excel's own grid (1,048,576 rows, 16,384 columns) and only over the cells
// the file holds: one stray cell in the far corner costs one cell, not a padded grid. A reference
// past the grid, or a part of the archive that would unpack past the part limit, gives
// "文件过大或已损坏".
namespace workbook {

constexpr int kMaxRows = 1048576;
constexpr int kMaxColumns = 16384;
constexpr qint64 kMaxPartBytes = qint64(256) * 1024 * 1024;

// One row: the cells the file holds, by column.
class Row {
public:
    Row() = default;
    // Cells from column 0 on, as a test or a text source writes them.
    Row(std::initializer_list<QString> cells);
    Row(const QStringList &cells);  // NOLINT: a list of texts is a row

    // The cell's text; null for a cell the file does not hold.
    QString value(int column) const;
    void set(int column, const QString &text);
    // One past the last column held.
    int size() const { return m_columns.isEmpty() ? 0 : m_columns.last() + 1; }
    // Every cell up to the last one held, empty ones as null texts.
    QStringList toList() const;
    bool operator==(const Row &other) const;
    bool operator!=(const Row &other) const { return !(*this == other); }

private:
    QList<int> m_columns;  // ascending
    QStringList m_texts;
};

struct Sheet {
    QString name;
    QList<Row> rows;  // a row the file leaves out is an empty Row
    int columns = 0;  // one past the last column held in any row
};

// What a reading thread is told and tells: a cancel flag it looks at between cells, and the
// progress it reports (parts of the work done out of a total, both in the reader's own unit).
struct ReadControl {
    const std::atomic_bool *cancel = nullptr;
    std::function<void(qint64 done, qint64 total)> progress;
};

class Workbook {
public:
    Workbook() = default;
    ~Workbook();
    Workbook(const Workbook &) = delete;
    Workbook &operator=(const Workbook &) = delete;

    // Opens the file and lists its sheets; a clear Chinese message in error on failure.
    bool open(const QString &path, QString *error);
    void close();
    bool isOpen() const { return m_kind != Kind::None; }

    QStringList sheetNames() const;
    // Reads the first `limit` rows of a sheet (all of them when limit < 0). On failure the sheet
    // is left empty, never holding the rows read before the fault; a cancel fails with an empty
    // error. May run on a worker thread, as long as one thread at a time uses the workbook.
    bool readSheet(int index, int limit, Sheet *sheet, QString *error,
                   const ReadControl &control = {});
    // The most bytes one part of an .xlsx archive may unpack to (kMaxPartBytes unless set).
    void setPartLimit(qint64 bytes) { m_partLimit = bytes; }

private:
    enum class Kind { None, Xlsx, Xls };
    struct XlsxSheet {
        QString name;
        QString part;  // path of the sheet's XML inside the archive
    };

    bool openXlsx(QString *error);
    bool openXls(QString *error);
    bool readXlsxSheet(int index, int limit, Sheet *sheet, QString *error,
                       const ReadControl &control);
    bool readXlsSheet(int index, int limit, Sheet *sheet, QString *error,
                      const ReadControl &control);
    bool loadSharedStrings(QString *error, const ReadControl &control);
    bool loadStyles();
    bool readPart(const QString &part, QByteArray *bytes, QString *error) const;

    Kind m_kind = Kind::None;
    QString m_path;
    void *m_zip = nullptr;
    const void *m_xls = nullptr;
    QList<XlsxSheet> m_xlsxSheets;
    QStringList m_xlsSheets;
    QStringList m_sharedStrings;
    bool m_sharedLoaded = false;
    QList<bool> m_dateStyles;  // by cell style index: does the style show a date or time?
    bool m_date1904 = false;
    qint64 m_partLimit = kMaxPartBytes;
};

// A number as a spreadsheet shows it in a General cell: whole numbers without ".0" (also at 15
// digits: 13800138000 stays 13800138000), others in their shortest exact form.
QString numberText(double value);
// A date serial as yyyy-MM-dd, with " HH:mm:ss" when it has a time of day, or the time alone
// for a value below one day.
QString dateSerialText(double serial, bool date1904 = false);
// Whether a number format code shows a date or a time.
bool isDateFormat(int numFmtId, const QString &formatCode);

}  // namespace workbook
