#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

// Reading a roster text file: one participant a line, fields split by the operator's separator.
namespace textimport {

// The whole file as text. A UTF-8 or UTF-16 byte-order mark decides the encoding; otherwise valid
// UTF-8 is UTF-8 and anything else GB18030. No byte is skipped but a DOS end-of-file mark at the
// end. False (with a message) for data that is not text in any of these, such as a picture or a
// program: a NUL anywhere, or more unreadable lines (see isRosterLine) than readable ones.
bool decodeText(const QByteArray &bytes, QString *text, QString *error);
// Whether a line can be a participant: no control character but tab and form feed, no
// replacement character. The import passes over other lines and says so.
bool isRosterLine(const QString &line);
// What a file that is not roster text is told.
QString notTextMessage();
// Lines end at CR LF, LF or CR.
QStringList splitLines(const QString &text);

struct TxtRow {
    QString name;
    QString part;
    QString photo;
    int diffNum = 0;
    bool diffNumTooLarge = false;  // a number past 32 bits, stored as 0
};

// Turns lines into rows. Remark, photo and distinction number of a line that has no separator
// (or more than three) are carried over from the line before, as operators' files rely on it.
class TxtLineParser {
public:
    explicit TxtLineParser(const QString &separator) : m_separator(separator) {}
    // The row for one line; its name is empty for a line to pass over.
    TxtRow parse(const QString &line);

private:
    QString m_separator;
    TxtRow m_last;
};

// A distinction number typed as text: a number becomes a 32-bit integer, anything else 0;
// tooLarge tells a number that does not fit.
int diffNumber(const QString &text, bool *tooLarge = nullptr);

}  // namespace textimport
