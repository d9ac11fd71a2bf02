// Any bytes as a roster text file: decoded, split into lines and parsed as the text import does.
#include <QByteArray>

#include "roster/textimport.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QString text;
    QString error;
    if (!textimport::decodeText(bytes, &text, &error)) return 0;
    for (const QString separator : {",", "|", ""}) {
        textimport::TxtLineParser parser(separator);
        for (const QString &line : textimport::splitLines(text))
            if (textimport::isRosterLine(line)) parser.parse(line);
    }
    return 0;
}
