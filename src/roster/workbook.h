#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// Reads Excel workbooks without any office suite: .xlsx through libzip and QXmlStreamReader,
// .xls (BIFF) through FreeXL. The file's first bytes decide the reader, not its extension, so a
// "name.XLSX" or a workbook saved under the wrong extension still opens.
//
// A cell is text as the spreadsheet shows it; an empty cell is a null QString (the "Null" of the
// import rules), which is not the same as a cell holding empty text.
namespace workbook {

using Row = QStringList;

struct Sheet {
    QString name;
    QList<Row> rows;  // every row padded to `columns` cells
    int columns = 0;
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
    // Reads the first `limit` rows of a sheet (all of them when limit < 0).
    bool readSheet(int index, int limit, Sheet *sheet, QString *error);

private:
    enum class Kind { None, Xlsx, Xls };
    struct XlsxSheet {
        QString name;
        QString part;  // path of the sheet's XML inside the archive
    };

    bool openXlsx(QString *error);
    bool openXls(QString *error);
    bool readXlsxSheet(int index, int limit, Sheet *sheet, QString *error);
    bool readXlsSheet(int index, int limit, Sheet *sheet, QString *error);
    bool loadSharedStrings(QString *error);
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
