#pragma once

// Writes a plain workbook of text rows, shared strings in the first column and inline strings
// in the others, as spreadsheet programs do. The benchmark makes its big workbooks with it rather
// than storing them in the repository.
#include <QByteArray>
#include <QFile>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

#include <zip.h>

namespace testxlsx {

inline QByteArray escaped(const QString &text) {
    return text.toHtmlEscaped().toUtf8();
}

inline QByteArray columnName(int column) {
    return QByteArray(1, static_cast<char>('A' + column));
}

inline bool write(const QString &path, const QString &sheetName, const QList<QStringList> &rows) {
    QByteArray strings =
        "<?xml version=\"1.0\"?><sst xmlns=\"http://schemas.openxmlformats.org/"
        "spreadsheetml/2006/main\">";
    QByteArray sheet =
        "<?xml version=\"1.0\"?><worksheet xmlns=\"http://schemas.openxmlformats."
        "org/spreadsheetml/2006/main\"><sheetData>";
    for (int i = 0; i < rows.size(); ++i) {
        const QByteArray r = QByteArray::number(i + 1);
        sheet += "<row r=\"" + r + "\">";
        const QStringList &row = rows.at(i);
        for (int c = 0; c < row.size(); ++c) {
            const QByteArray ref = columnName(c) + r;
            if (c == 0) {
                strings += "<si><t>" + escaped(row.at(c)) + "</t></si>";
                sheet += "<c r=\"" + ref + "\" t=\"s\"><v>" + QByteArray::number(i) + "</v></c>";
            } else {
                sheet += "<c r=\"" + ref + "\" t=\"inlineStr\"><is><t>" + escaped(row.at(c)) +
                         "</t></is></c>";
            }
        }
        sheet += "</row>";
    }
    strings += "</sst>";
    sheet += "</sheetData></worksheet>";
    const QByteArray book =
        "<?xml version=\"1.0\"?><workbook xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/"
        "2006/main\" xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/"
        "relationships\"><sheets><sheet name=\"" +
        escaped(sheetName) + "\" sheetId=\"1\" r:id=\"rId1\"/></sheets></workbook>";
    const QByteArray rels =
        "<?xml version=\"1.0\"?><Relationships xmlns=\"http://schemas.openxmlformats.org/package/"
        "2006/relationships\"><Relationship Id=\"rId1\" Target=\"worksheets/sheet1.xml\"/>"
        "</Relationships>";
    int error = 0;
    zip_t *archive =
        zip_open(QFile::encodeName(path).constData(), ZIP_CREATE | ZIP_TRUNCATE, &error);
    if (!archive) return false;
    const QList<QPair<const char *, const QByteArray *>> parts{
        {"xl/workbook.xml", &book},
        {"xl/_rels/workbook.xml.rels", &rels},
        {"xl/sharedStrings.xml", &strings},
        {"xl/worksheets/sheet1.xml", &sheet}};
    for (const auto &part : parts) {
        zip_source_t *source = zip_source_buffer(archive, part.second->constData(),
                                                 static_cast<zip_uint64_t>(part.second->size()), 0);
        if (!source || zip_file_add(archive, part.first, source, ZIP_FL_OVERWRITE) < 0) {
            zip_discard(archive);
            return false;
        }
    }
    return zip_close(archive) == 0;
}

}  // namespace testxlsx
