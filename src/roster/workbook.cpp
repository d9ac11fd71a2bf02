#include "roster/workbook.h"

#include <QDateTime>
#include <QFile>
#include <QHash>
#include <QXmlStreamReader>

#include "core/language.h"
#include "core/store.h"
#include "roster/xlsformulas.h"

#include <freexl.h>
#include <zip.h>

#include <algorithm>
#include <cmath>

namespace workbook {

namespace {

const TranslatedText kUnreadable{
    "workbook", QT_TRANSLATE_NOOP("workbook", "无法读取Excel文件，文件已损坏或不是Excel工作簿。")};
const TranslatedText kTooLarge{"workbook", QT_TRANSLATE_NOOP("workbook", "文件过大或已损坏")};

zip_t *zipOf(void *handle) {
    return static_cast<zip_t *>(handle);
}

bool cancelled(const ReadControl &control) {
    return control.cancel && control.cancel->load(std::memory_order_relaxed);
}

// One part of the archive, unpacked as it is read and never past its limit: a part that claims
// or turns out to unpack to more fails, so a small file cannot swell into gigabytes.
class PartStream : public QIODevice {
public:
    PartStream(zip_t *archive, const QString &name, qint64 limit) : m_limit(limit) {
        const QByteArray utf8 = name.toUtf8();
        zip_stat_t stat;
        zip_stat_init(&stat);
        if (zip_stat(archive, utf8.constData(), 0, &stat) != 0) return;
        if (stat.valid & ZIP_STAT_SIZE) {
            m_declared = static_cast<qint64>(qMin<zip_uint64_t>(stat.size, 1ull << 62));
            if (m_declared > m_limit) {
                m_tooLarge = true;
                return;
            }
        }
        m_file = zip_fopen(archive, utf8.constData(), 0);
        if (m_file) open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    ~PartStream() override {
        if (m_file) zip_fclose(m_file);
    }
    bool isSequential() const override { return true; }
    bool tooLarge() const { return m_tooLarge; }
    // What the archive says the part unpacks to (0 when it does not say).
    qint64 declaredSize() const { return m_declared; }
    qint64 unpacked() const { return m_read; }
    QString fault() const { return m_tooLarge ? kTooLarge : kUnreadable; }

protected:
    qint64 readData(char *data, qint64 maxSize) override {
        if (!m_file || m_tooLarge) return -1;
        const zip_int64_t count = zip_fread(m_file, data, static_cast<zip_uint64_t>(maxSize));
        if (count < 0) return -1;
        m_read += count;
        if (m_read > m_limit) {
            m_tooLarge = true;
            return -1;
        }
        return count;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    zip_file_t *m_file = nullptr;
    qint64 m_limit;
    qint64 m_declared = 0;
    qint64 m_read = 0;
    bool m_tooLarge = false;
};

// "B12" -> row 11 and column 1 (from 0). False for anything but one to three capital letters and a
// row number, or a cell outside the grid.
bool parseReference(QStringView reference, int *row, int *column) {
    int letters = 0;
    int columnNumber = 0;
    while (letters < reference.size() && reference.at(letters) >= QLatin1Char('A') &&
           reference.at(letters) <= QLatin1Char('Z')) {
        if (++letters > 3) return false;
        columnNumber = columnNumber * 26 + (reference.at(letters - 1).unicode() - 'A' + 1);
    }
    const QStringView digits = reference.mid(letters);
    if (letters == 0 || digits.isEmpty() || digits.size() > 7) return false;
    bool ok = false;
    const int rowNumber = digits.toInt(&ok);
    if (!ok || rowNumber < 1 || rowNumber > kMaxRows || columnNumber > kMaxColumns) return false;
    *row = rowNumber - 1;
    *column = columnNumber - 1;
    return true;
}

// A row's "r": 1 to kMaxRows; -1 otherwise.
int parseRowNumber(QStringView text) {
    bool ok = false;
    const int number = text.size() <= 7 ? text.toInt(&ok) : 0;
    return ok && number >= 1 && number <= kMaxRows ? number - 1 : -1;
}

// The text inside the current element and all it holds, read in a loop: a file may nest
// elements deeper than any stack.
QString readNestedText(QXmlStreamReader &xml) {
    QString text;
    for (int depth = 1; depth > 0 && !xml.atEnd();) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            ++depth;
        else if (token == QXmlStreamReader::EndElement)
            --depth;
        else if (token == QXmlStreamReader::Characters ||
                 token == QXmlStreamReader::EntityReference)
            text += xml.text();
    }
    return text;
}

// Text of the <t> runs below the current element, leaving out phonetic guides (<rPh>).
QString readRichText(QXmlStreamReader &xml) {
    const QString end = xml.name().toString();
    QString text;
    int phonetic = 0;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::StartElement) {
            if (xml.name() == QLatin1String("rPh"))
                ++phonetic;
            else if (xml.name() == QLatin1String("t") && phonetic == 0)
                text += readNestedText(xml);
        } else if (token == QXmlStreamReader::EndElement) {
            if (xml.name() == QLatin1String("rPh"))
                --phonetic;
            else if (xml.name() == end)
                break;
        }
    }
    return text;
}

QString resolveTarget(const QString &target) {
    if (target.startsWith(QLatin1Char('/'))) return target.mid(1);
    return QStringLiteral("xl/") + target;
}

}  // namespace

Row::Row(std::initializer_list<QString> cells) : Row(QStringList(cells)) {}

Row::Row(const QStringList &cells) {
    for (int column = 0; column < cells.size(); ++column)
        if (!cells.at(column).isNull()) set(column, cells.at(column));
}

QString Row::value(int column) const {
    const auto at = std::lower_bound(m_columns.cbegin(), m_columns.cend(), column);
    if (at == m_columns.cend() || *at != column) return QString();
    return m_texts.at(at - m_columns.cbegin());
}

void Row::set(int column, const QString &text) {
    if (m_columns.isEmpty() || m_columns.last() < column) {
        m_columns.append(column);
        m_texts.append(text);
        return;
    }
    const auto at = std::lower_bound(m_columns.begin(), m_columns.end(), column);
    const qsizetype place = at - m_columns.begin();
    if (*at == column) {
        m_texts[place] = text;
        return;
    }
    m_columns.insert(place, column);
    m_texts.insert(place, text);
}

QStringList Row::toList() const {
    QStringList cells(size());
    for (qsizetype i = 0; i < m_columns.size(); ++i)
        cells[m_columns.at(i)] = m_texts.at(i);
    return cells;
}

bool Row::operator==(const Row &other) const {
    return m_columns == other.m_columns && m_texts == other.m_texts;
}

QString numberText(double value) {
    if (std::isfinite(value) && value == std::floor(value) && std::fabs(value) < 1e17)
        return QString::number(static_cast<qint64>(value));
    return QString::number(value, 'g', QLocale::FloatingPointShortest);
}

QString dateSerialText(double serial, bool date1904) {
    const qint64 totalSeconds = std::llround(serial * 86400.0);
    const qint64 days = totalSeconds / 86400;
    const qint64 seconds = totalSeconds % 86400;
    const QTime time = QTime(0, 0).addSecs(static_cast<int>(seconds));
    if (serial < 1.0 && !date1904) return time.toString(QStringLiteral("HH:mm:ss"));
    const QDate base = date1904 ? QDate(1904, 1, 1) : QDate(1899, 12, 30);
    const QString date = base.addDays(days).toString(QStringLiteral("yyyy-MM-dd"));
    return seconds == 0 ? date
                        : date + QLatin1Char(' ') + time.toString(QStringLiteral("HH:mm:ss"));
}

bool isDateFormat(int numFmtId, const QString &formatCode) {
    if ((numFmtId >= 14 && numFmtId <= 22) || (numFmtId >= 27 && numFmtId <= 36) ||
        (numFmtId >= 45 && numFmtId <= 47) || (numFmtId >= 50 && numFmtId <= 58))
        return true;
    if (formatCode.isEmpty()) return false;
    // Letters inside quotes, after a backslash or in [colour]/[locale] brackets are literal.
    bool quoted = false;
    int bracket = 0;
    for (int i = 0; i < formatCode.size(); ++i) {
        const QChar c = formatCode.at(i);
        if (c == QLatin1Char('"'))
            quoted = !quoted;
        else if (quoted)
            continue;
        else if (c == QLatin1Char('\\'))
            ++i;
        else if (c == QLatin1Char('['))
            ++bracket;
        else if (c == QLatin1Char(']'))
            bracket = qMax(0, bracket - 1);
        else if (bracket == 0 && QStringLiteral("yYdDmMhHsS").contains(c))
            return true;
    }
    return false;
}

Workbook::~Workbook() {
    close();
}

void Workbook::close() {
    if (m_zip) zip_discard(zipOf(m_zip));
    if (m_xls) freexl_close(m_xls);
    m_zip = nullptr;
    m_xls = nullptr;
    m_kind = Kind::None;
    m_xlsxSheets.clear();
    m_xlsSheets.clear();
    m_sharedStrings.clear();
    m_sharedLoaded = false;
    m_dateStyles.clear();
    m_date1904 = false;
}

bool Workbook::open(const QString &path, QString *error) {
    close();
    m_path = path;
    if (store::isStoreFile(path)) {
        *error = kUnreadable;
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QCoreApplication::translate("workbook", "无法打开文件：") + path;
        return false;
    }
    const QByteArray head = file.read(8);
    file.close();
    if (head.startsWith("PK\x03\x04")) return openXlsx(error);
    if (head.startsWith(QByteArray::fromHex("d0cf11e0a1b11ae1"))) return openXls(error);
    *error = kUnreadable;
    return false;
}

QStringList Workbook::sheetNames() const {
    if (m_kind == Kind::Xls) return m_xlsSheets;
    QStringList names;
    for (const XlsxSheet &sheet : m_xlsxSheets)
        names << sheet.name;
    return names;
}

bool Workbook::readSheet(int index, int limit, Sheet *sheet, QString *error,
                         const ReadControl &control) {
    *sheet = Sheet();
    if (index < 0 || index >= sheetNames().size()) {
        *error = QCoreApplication::translate("workbook", "找不到工作表");
        return false;
    }
    Sheet read;
    read.name = sheetNames().at(index);
    const bool ok = m_kind == Kind::Xlsx ? readXlsxSheet(index, limit, &read, error, control)
                                         : readXlsSheet(index, limit, &read, error, control);
    if (!ok) {
        if (cancelled(control)) error->clear();
        return false;
    }
    *sheet = std::move(read);
    return true;
}

// ---- xlsx ----

bool Workbook::readPart(const QString &part, QByteArray *bytes, QString *error) const {
    PartStream stream(zipOf(m_zip), part, m_partLimit);
    if (stream.isOpen()) *bytes = stream.readAll();
    if (!stream.isOpen() || stream.tooLarge()) {
        if (error) *error = stream.fault();
        return false;
    }
    return true;
}

bool Workbook::openXlsx(QString *error) {
    int code = 0;
    zip_t *archive = zip_open(QFile::encodeName(m_path).constData(), ZIP_RDONLY, &code);
    if (!archive) {
        *error = kUnreadable;
        return false;
    }
    m_zip = archive;
    QByteArray rels;
    QByteArray book;
    if (!readPart(QStringLiteral("xl/_rels/workbook.xml.rels"), &rels, error) ||
        !readPart(QStringLiteral("xl/workbook.xml"), &book, error)) {
        close();
        return false;
    }
    QHash<QString, QString> targets;
    QXmlStreamReader relsXml(rels);
    while (!relsXml.atEnd()) {
        if (relsXml.readNext() == QXmlStreamReader::StartElement &&
            relsXml.name() == QLatin1String("Relationship"))
            targets.insert(relsXml.attributes().value(QLatin1String("Id")).toString(),
                           relsXml.attributes().value(QLatin1String("Target")).toString());
    }
    QXmlStreamReader xml(book);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        const auto attributes = xml.attributes();
        if (xml.name() == QLatin1String("workbookPr")) {
            const auto value = attributes.value(QLatin1String("date1904"));
            m_date1904 = value == QLatin1String("1") || value == QLatin1String("true");
        } else if (xml.name() == QLatin1String("sheet")) {
            QString id;
            for (const auto &attribute : attributes)
                if (attribute.name() == QLatin1String("id")) id = attribute.value().toString();
            const QString target = targets.value(id);
            if (!target.isEmpty())
                m_xlsxSheets.append(
                    {attributes.value(QLatin1String("name")).toString(), resolveTarget(target)});
        }
    }
    if (xml.hasError()) {
        close();
        *error = kUnreadable;
        return false;
    }
    m_kind = Kind::Xlsx;
    loadStyles();
    return true;
}

bool Workbook::loadSharedStrings(QString *error, const ReadControl &control) {
    if (m_sharedLoaded) return true;
    const QString name = QStringLiteral("xl/sharedStrings.xml");
    if (zip_name_locate(zipOf(m_zip), name.toUtf8().constData(), 0) < 0) {
        m_sharedLoaded = true;
        return true;
    }
    PartStream part(zipOf(m_zip), name, m_partLimit);
    QXmlStreamReader xml(&part);
    QStringList strings;
    while (part.isOpen() && !xml.atEnd() && !cancelled(control)) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("si"))
            strings.append(readRichText(xml));
    }
    if (!part.isOpen() || xml.hasError() || cancelled(control)) {
        *error = part.fault();
        return false;
    }
    m_sharedStrings = std::move(strings);
    m_sharedLoaded = true;
    return true;
}

bool Workbook::loadStyles() {
    QByteArray bytes;
    if (zip_name_locate(zipOf(m_zip), "xl/styles.xml", 0) < 0 ||
        !readPart(QStringLiteral("xl/styles.xml"), &bytes, nullptr))
        return false;
    QHash<int, QString> codes;
    QXmlStreamReader xml(bytes);
    bool inCellXfs = false;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::EndElement && xml.name() == QLatin1String("cellXfs"))
            inCellXfs = false;
        if (token != QXmlStreamReader::StartElement) continue;
        const auto attributes = xml.attributes();
        if (xml.name() == QLatin1String("numFmt")) {
            codes.insert(attributes.value(QLatin1String("numFmtId")).toInt(),
                         attributes.value(QLatin1String("formatCode")).toString());
        } else if (xml.name() == QLatin1String("cellXfs")) {
            inCellXfs = true;
        } else if (inCellXfs && xml.name() == QLatin1String("xf")) {
            const int id = attributes.value(QLatin1String("numFmtId")).toInt();
            m_dateStyles.append(isDateFormat(id, codes.value(id)));
        }
    }
    return !xml.hasError();
}

namespace {

// The text of a cell as the spreadsheet shows it, from its type, its raw value and its style.
QString cellText(const QString &type, QString value, bool dateStyle, bool date1904,
                 const QStringList &sharedStrings) {
    if (type == QLatin1String("s")) {
        bool ok = false;
        const int index = value.toInt(&ok);
        const QString text = ok ? sharedStrings.value(index) : QString();
        return text.isNull() ? QStringLiteral("") : text;
    }
    if (type == QLatin1String("inlineStr") || type == QLatin1String("str") ||
        type == QLatin1String("e"))
        return value.isNull() ? QStringLiteral("") : value;
    if (type == QLatin1String("b"))
        return value == QLatin1String("1") ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
    if (type == QLatin1String("d")) return value.replace(QLatin1Char('T'), QLatin1Char(' '));
    bool ok = false;
    const double number = value.toDouble(&ok);
    if (!ok) return value;
    return dateStyle ? dateSerialText(number, date1904) : numberText(number);
}

// The raw value of the current <c>: its <v>, or the text of its inline <is>; null when the cell
// holds neither (a styled empty cell).
QString readCellValue(QXmlStreamReader &xml) {
    QString value;
    while (!xml.atEnd()) {
        const auto token = xml.readNext();
        if (token == QXmlStreamReader::EndElement && xml.name() == QLatin1String("c")) break;
        if (token != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("v")) {
            value = xml.readElementText();
            if (value.isNull()) value = QStringLiteral("");
        } else if (xml.name() == QLatin1String("is")) {
            value = readRichText(xml);
            if (value.isNull()) value = QStringLiteral("");
        }
    }
    return value;
}

}  // namespace

bool Workbook::readXlsxSheet(int index, int limit, Sheet *sheet, QString *error,
                             const ReadControl &control) {
    if (!loadSharedStrings(error, control)) return false;
    PartStream part(zipOf(m_zip), m_xlsxSheets.at(index).part, m_partLimit);
    QXmlStreamReader xml(&part);
    int nextRow = 0;
    int nextColumn = 0;
    int rowNumber = -1;
    bool outside = false;  // a reference past the grid
    qint64 reported = -1;
    while (part.isOpen() && !xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("row")) {
            if (cancelled(control)) break;
            // Reported as the unpacked bytes grow, once per block the XML reader takes in.
            if (control.progress && part.unpacked() != reported) {
                reported = part.unpacked();
                control.progress(reported, qMax(reported, part.declaredSize()));
            }
            const auto reference = xml.attributes().value(QLatin1String("r"));
            const int number = reference.isEmpty() ? nextRow : parseRowNumber(reference);
            if (number < 0 || number >= kMaxRows) {
                outside = true;
                break;
            }
            if (limit >= 0 && number >= limit) break;
            rowNumber = number;
            nextRow = number + 1;
            nextColumn = 0;
        } else if (xml.name() == QLatin1String("c") && rowNumber >= 0) {
            const auto attributes = xml.attributes();
            const auto reference = attributes.value(QLatin1String("r"));
            int row = rowNumber;
            int column = nextColumn;
            if (!reference.isEmpty() && !parseReference(reference, &row, &column)) {
                outside = true;
                break;
            }
            if (column >= kMaxColumns) {
                outside = true;
                break;
            }
            if (row != rowNumber) continue;
            nextColumn = column + 1;
            const QString type = attributes.value(QLatin1String("t")).toString();
            const int style = attributes.value(QLatin1String("s")).toInt();
            const QString value = readCellValue(xml);
            if (value.isNull()) continue;
            // Rows are made only for cells with a value: a styled but empty row far down the
            // sheet must not turn into a million blank rows.
            if (sheet->rows.size() <= rowNumber) sheet->rows.resize(rowNumber + 1);
            sheet->rows[rowNumber].set(column, cellText(type, value, m_dateStyles.value(style),
                                                        m_date1904, m_sharedStrings));
            sheet->columns = qMax(sheet->columns, column + 1);
        }
    }
    if (!part.isOpen() || outside || xml.hasError() || cancelled(control)) {
        *error = outside ? kTooLarge : part.fault();
        return false;
    }
    return true;
}

// ---- xls ----

bool Workbook::openXls(QString *error) {
    QFile file(m_path);
    if (file.size() > kMaxPartBytes || !file.open(QIODevice::ReadOnly) ||
        !xlsContainerIsSound(file.readAll())) {
        *error = kUnreadable;
        return false;
    }
    file.close();
    const void *handle = nullptr;
    if (freexl_open(QFile::encodeName(m_path).constData(), &handle) != FREEXL_OK) {
        if (handle) freexl_close(handle);
        *error = kUnreadable;
        return false;
    }
    m_xls = handle;
    unsigned int count = 0;
    if (freexl_get_info(handle, FREEXL_BIFF_SHEET_COUNT, &count) != FREEXL_OK) {
        close();
        *error = kUnreadable;
        return false;
    }
    for (unsigned int i = 0; i < count; ++i) {
        const char *name = nullptr;
        if (freexl_get_worksheet_name(handle, static_cast<unsigned short>(i), &name) != FREEXL_OK)
            name = "";
        m_xlsSheets << QString::fromUtf8(name);
    }
    m_kind = Kind::Xls;
    return true;
}

namespace {

QString xlsCellText(const FreeXL_CellValue &cell) {
    switch (cell.type) {
        case FREEXL_CELL_INT:
            return QString::number(cell.value.int_value);
        case FREEXL_CELL_DOUBLE:
            return numberText(cell.value.double_value);
        case FREEXL_CELL_TEXT:
        case FREEXL_CELL_SST_TEXT:
        case FREEXL_CELL_DATE:
        case FREEXL_CELL_DATETIME:
        case FREEXL_CELL_TIME: {
            const QString text = QString::fromUtf8(cell.value.text_value);
            return text.isNull() ? QStringLiteral("") : text;
        }
        default:
            return QString();
    }
}

// FreeXL leaves formula cells empty; their cached results come from the file once more.
FormulaResults readFormulaResults(const QString &path, const QString &sheetName) {
    QFile file(path);
    if (file.size() > kMaxPartBytes || !file.open(QIODevice::ReadOnly)) return {};
    return xlsFormulaResults(file.readAll(), sheetName);
}

}  // namespace

bool Workbook::readXlsSheet(int index, int limit, Sheet *sheet, QString *error,
                            const ReadControl &control) {
    unsigned int rows = 0;
    unsigned short columns = 0;
    if (freexl_select_active_worksheet(m_xls, static_cast<unsigned short>(index)) != FREEXL_OK ||
        freexl_worksheet_dimensions(m_xls, &rows, &columns) != FREEXL_OK) {
        *error = kUnreadable;
        return false;
    }
    if (rows > static_cast<unsigned int>(kMaxRows) || columns > kMaxColumns) {
        *error = kTooLarge;
        return false;
    }
    if (limit >= 0) rows = qMin(rows, static_cast<unsigned int>(limit));
    const FormulaResults formulas = readFormulaResults(m_path, m_xlsSheets.value(index));
    for (unsigned int r = 0; r < rows; ++r) {
        if (cancelled(control)) return false;
        if (control.progress && r % 1024 == 0) control.progress(r, rows);
        Row row;
        for (unsigned short c = 0; c < columns; ++c) {
            FreeXL_CellValue cell;
            if (freexl_get_cell_value(m_xls, r, c, &cell) != FREEXL_OK) {
                *error = kUnreadable;
                return false;
            }
            QString text = xlsCellText(cell);
            if (text.isNull()) text = formulas.value(cellKey(r, c));
            if (text.isNull()) continue;
            row.set(c, text);
            sheet->columns = qMax(sheet->columns, c + 1);
        }
        sheet->rows.append(row);
    }
    return true;
}

}  // namespace workbook
