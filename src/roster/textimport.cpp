#include "roster/textimport.h"

#include <QCoreApplication>
#include <QStringDecoder>

#include <algorithm>
#include <cmath>
#include <limits>

namespace textimport {

namespace {

bool decodeWith(QStringConverter::Encoding encoding, QByteArrayView bytes, QString *text) {
    QStringDecoder decoder(encoding, QStringConverter::Flag::Stateless);
    *text = decoder(bytes);
    return !decoder.hasError();
}

bool isUnreadable(QChar c) {
    const char16_t u = c.unicode();
    return (u < 0x20 && u != u'\t' && u != u'\r' && u != u'\n' && u != u'\f') || u == 0xFFFD;
}

// A NUL is never in text; otherwise a file is text when most of its lines are. One pass over the
// characters, as a roster can have a million lines.
bool looksLikeText(const QString &text) {
    qsizetype lines = 0;
    qsizetype unreadable = 0;
    bool content = false;
    bool bad = false;
    const auto endLine = [&] {
        lines += content ? 1 : 0;
        unreadable += content && bad ? 1 : 0;
        content = bad = false;
    };
    for (const QChar c : text) {
        if (c.unicode() == 0) return false;
        if (c == QLatin1Char('\r') || c == QLatin1Char('\n')) {
            endLine();
            continue;
        }
        bad = bad || isUnreadable(c);
        content = content || !c.isSpace();
    }
    endLine();
    return unreadable * 2 <= lines;
}

}  // namespace

QString notTextMessage() {
    return QCoreApplication::translate(
        "textimport", "文件不是可以导入的文本文件，请选择文本格式(*.txt)的名单文件。");
}

bool decodeText(const QByteArray &bytes, QString *text, QString *error) {
    const QString notText = notTextMessage();
    bool ok = false;
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        ok = decodeWith(QStringConverter::Utf8, QByteArrayView(bytes).sliced(3), text);
    } else if (bytes.startsWith("\xFF\xFE")) {
        ok = decodeWith(QStringConverter::Utf16LE, QByteArrayView(bytes).sliced(2), text);
    } else if (bytes.startsWith("\xFE\xFF")) {
        ok = decodeWith(QStringConverter::Utf16BE, QByteArrayView(bytes).sliced(2), text);
    } else {
        ok = decodeWith(QStringConverter::Utf8, bytes, text);
        if (!ok) {
            // Neither a mark nor valid UTF-8: Chinese Windows text (GB2312 is a subset).
            QStringDecoder decoder("GB18030", QStringConverter::Flag::Stateless);
            *text = decoder(bytes);
            ok = decoder.isValid() && !decoder.hasError();
        }
    }
    // A DOS end-of-file mark closes many old files; it is no part of the roster.
    while (text->endsWith(QChar(0x1A)))
        text->chop(1);
    if (!ok || !looksLikeText(*text)) {
        text->clear();
        *error = notText;
        return false;
    }
    return true;
}

bool isRosterLine(const QString &line) {
    return std::none_of(line.cbegin(), line.cend(), isUnreadable);
}

QStringList splitLines(const QString &text) {
    QStringList lines;
    qsizetype start = 0;
    const qsizetype size = text.size();
    for (qsizetype i = 0; i < size; ++i) {
        const QChar c = text.at(i);
        if (c != QLatin1Char('\r') && c != QLatin1Char('\n')) continue;
        lines.append(text.mid(start, i - start));
        if (c == QLatin1Char('\r') && i + 1 < size && text.at(i + 1) == QLatin1Char('\n')) ++i;
        start = i + 1;
    }
    lines.append(text.mid(start));
    return lines;
}

int diffNumber(const QString &text, bool *tooLarge) {
    bool ok = false;
    const double value = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(value)) return 0;
    if (value > std::numeric_limits<int>::max() || value < std::numeric_limits<int>::min()) {
        if (tooLarge) *tooLarge = true;
        return 0;
    }
    return static_cast<int>(std::lround(value));
}

TxtRow TxtLineParser::parse(const QString &line) {
    const QStringList fields = m_separator.isEmpty() ? QStringList{line} : line.split(m_separator);
    TxtRow row = m_last;
    row.diffNumTooLarge = false;
    row.name = fields.at(0).trimmed();
    switch (fields.size()) {
        case 1:
            row.part.clear();
            break;
        case 2:
            row.part = fields.at(1).trimmed();
            row.photo.clear();
            row.diffNum = 0;
            break;
        case 3:
            row.part = fields.at(1).trimmed();
            row.photo = fields.at(2).trimmed();
            row.diffNum = 0;
            break;
        case 4:
            row.part = fields.at(1).trimmed();
            row.photo = fields.at(2).trimmed();
            row.diffNum = diffNumber(fields.at(3), &row.diffNumTooLarge);
            break;
        default:
            break;
    }
    // An empty separator splits nothing: the whole line is the name and the rest carries over.
    if (m_separator.isEmpty()) row.part = m_last.part;
    m_last = row;
    return row;
}

}  // namespace textimport
