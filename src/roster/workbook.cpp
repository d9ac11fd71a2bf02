#include "roster/workbook.h"

#include <QDateTime>
#include <QFile>
#include <QHash>
#include <QXmlStreamReader>

#include <freexl.h>
#include <zip.h>

#include <cmath>

namespace workbook {

namespace {

const QString kUnreadable = QStringLiteral("无法读取Excel文件，文件已损坏或不是Excel工作簿。");

zip_t *zipOf(void *handle) {
    return static_cast<zip_t *>(handle);
}

// "B12" -> column 1 (from 0); -1 when the reference has no letters.
int columnOf(QStringView reference) {
    int column = 0;
    int letters = 0;
    for (const QChar c : reference) {
        if (c < QLatin1Char('A') || c > QLatin1Char('Z')) break;
        column = column * 26 + (c.unicode() - 'A' + 1);
        ++letters;
    }
    return letters == 0 ? -1 : column - 1;
}

int rowOf(QStringView reference) {
    int i = 0;
    while (i < reference.size() && reference.at(i).isLetter())
        ++i;
    return reference.mid(i).toInt() - 1;
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
                text += xml.readElementText(QXmlStreamReader::IncludeChildElements);
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

void padRows(Sheet *sheet) {
    for (Row &row : sheet->rows)
        while (row.size() < sheet->columns)
            row.append(QString());
}

}  // namespace

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
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("无法打开文件：") + path;
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

bool Workbook::readSheet(int index, int limit, Sheet *sheet, QString *error) {
    *sheet = Sheet();
    if (index < 0 || index >= sheetNames().size()) {
        *error = QStringLiteral("找不到工作表");
        return false;
    }
    sheet->name = sheetNames().at(index);
    const bool ok = m_kind == Kind::Xlsx ? readXlsxSheet(index, limit, sheet, error)
                                         : readXlsSheet(index, limit, sheet, error);
    if (ok) padRows(sheet);
    return ok;
}

// ---- xlsx ----

bool Workbook::readPart(const QString &part, QByteArray *bytes, QString *error) const {
    zip_t *archive = zipOf(m_zip);
    const QByteArray name = part.toUtf8();
    zip_stat_t stat;
    zip_stat_init(&stat);
    if (zip_stat(archive, name.constData(), 0, &stat) != 0 || !(stat.valid & ZIP_STAT_SIZE)) {
        if (error) *error = kUnreadable;
        return false;
    }
    zip_file_t *file = zip_fopen(archive, name.constData(), 0);
    if (!file) {
        if (error) *error = kUnreadable;
        return false;
    }
    bytes->resize(static_cast<qsizetype>(stat.size));
    const zip_int64_t read = zip_fread(file, bytes->data(), stat.size);
    zip_fclose(file);
    if (read != static_cast<zip_int64_t>(stat.size)) {
        if (error) *error = kUnreadable;
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

bool Workbook::loadSharedStrings(QString *error) {
    if (m_sharedLoaded) return true;
    m_sharedLoaded = true;
    QByteArray bytes;
    if (zip_name_locate(zipOf(m_zip), "xl/sharedStrings.xml", 0) < 0) return true;
    if (!readPart(QStringLiteral("xl/sharedStrings.xml"), &bytes, error)) return false;
    QXmlStreamReader xml(bytes);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("si"))
            m_sharedStrings.append(readRichText(xml));
    }
    if (xml.hasError()) {
        *error = kUnreadable;
        return false;
    }
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

bool Workbook::readXlsxSheet(int index, int limit, Sheet *sheet, QString *error) {
    if (!loadSharedStrings(error)) return false;
    QByteArray bytes;
    if (!readPart(m_xlsxSheets.at(index).part, &bytes, error)) return false;
    QXmlStreamReader xml(bytes);
    int nextRow = 0;
    int nextColumn = 0;
    int rowNumber = -1;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("row")) {
            const auto reference = xml.attributes().value(QLatin1String("r"));
            const int number = reference.isEmpty() ? nextRow : reference.toInt() - 1;
            if (limit >= 0 && number >= limit) break;
            rowNumber = number;
            nextRow = number + 1;
            nextColumn = 0;
        } else if (xml.name() == QLatin1String("c") && rowNumber >= 0) {
            const auto attributes = xml.attributes();
            const auto reference = attributes.value(QLatin1String("r"));
            int column = reference.isEmpty() ? nextColumn : columnOf(reference);
            if (column < 0) column = nextColumn;
            if (!reference.isEmpty() && rowOf(reference) != nextRow - 1) continue;
            nextColumn = column + 1;
            const QString type = attributes.value(QLatin1String("t")).toString();
            const int style = attributes.value(QLatin1String("s")).toInt();
            QString value;  // stays null for an empty cell
            bool hasValue = false;
            while (!xml.atEnd()) {
                const auto token = xml.readNext();
                if (token == QXmlStreamReader::EndElement && xml.name() == QLatin1String("c"))
                    break;
                if (token != QXmlStreamReader::StartElement) continue;
                if (xml.name() == QLatin1String("v")) {
                    value = xml.readElementText();
                    hasValue = true;
                } else if (xml.name() == QLatin1String("is")) {
                    value = readRichText(xml);
                    hasValue = true;
                }
            }
            if (!hasValue) continue;
            QString text;
            if (type == QLatin1String("s")) {
                text = m_sharedStrings.value(value.toInt());
                if (text.isNull()) text = QLatin1String("");
            } else if (type == QLatin1String("inlineStr") || type == QLatin1String("str") ||
                       type == QLatin1String("e")) {
                text = value.isNull() ? QLatin1String("") : value;
            } else if (type == QLatin1String("b")) {
                text =
                    value == QLatin1String("1") ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
            } else if (type == QLatin1String("d")) {
                text = value.replace(QLatin1Char('T'), QLatin1Char(' '));
            } else {
                bool ok = false;
                const double number = value.toDouble(&ok);
                if (!ok)
                    text = value;
                else if (m_dateStyles.value(style))
                    text = dateSerialText(number, m_date1904);
                else
                    text = numberText(number);
            }
            // Rows are made only for cells with a value: a styled but empty row far down the
            // sheet must not turn into a million blank rows.
            while (sheet->rows.size() <= rowNumber)
                sheet->rows.append(Row());
            Row &row = sheet->rows[rowNumber];
            while (row.size() <= column)
                row.append(QString());
            row[column] = text;
            sheet->columns = qMax(sheet->columns, column + 1);
        }
    }
    if (xml.hasError()) {
        *error = kUnreadable;
        return false;
    }
    return true;
}

// ---- xls ----

bool Workbook::openXls(QString *error) {
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

bool Workbook::readXlsSheet(int index, int limit, Sheet *sheet, QString *error) {
    unsigned int rows = 0;
    unsigned short columns = 0;
    if (freexl_select_active_worksheet(m_xls, static_cast<unsigned short>(index)) != FREEXL_OK ||
        freexl_worksheet_dimensions(m_xls, &rows, &columns) != FREEXL_OK) {
        *error = kUnreadable;
        return false;
    }
    if (limit >= 0) rows = qMin(rows, static_cast<unsigned int>(limit));
    sheet->columns = columns;
    for (unsigned int r = 0; r < rows; ++r) {
        Row row;
        row.reserve(columns);
        for (unsigned short c = 0; c < columns; ++c) {
            FreeXL_CellValue cell;
            if (freexl_get_cell_value(m_xls, r, c, &cell) != FREEXL_OK) {
                *error = kUnreadable;
                return false;
            }
            switch (cell.type) {
                case FREEXL_CELL_INT:
                    row << QString::number(cell.value.int_value);
                    break;
                case FREEXL_CELL_DOUBLE:
                    row << numberText(cell.value.double_value);
                    break;
                case FREEXL_CELL_TEXT:
                case FREEXL_CELL_SST_TEXT:
                case FREEXL_CELL_DATE:
                case FREEXL_CELL_DATETIME:
                case FREEXL_CELL_TIME:
                    row << QString::fromUtf8(cell.value.text_value);
                    break;
                default:
                    row << QString();
                    break;
            }
        }
        sheet->rows.append(row);
    }
    return true;
}

}  // namespace workbook
