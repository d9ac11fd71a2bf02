#include "core/profile.h"

#include <QFile>
#include <QSaveFile>
#include <QStringDecoder>

namespace {

constexpr int kMaxValueLength = 10000;

bool isComment(const QString &trimmed) {
    return trimmed.startsWith(QLatin1Char(';')) || trimmed.startsWith(QLatin1Char('#'));
}

// The name of a "[name]" line, or a null string for any other line.
QString sectionName(const QString &line) {
    const QString t = line.trimmed();
    if (t.size() < 2 || !t.startsWith(QLatin1Char('[')) || !t.endsWith(QLatin1Char(']')))
        return QString();
    return t.mid(1, t.size() - 2).trimmed();
}

QString keyOf(const QString &line) {
    const QString t = line.trimmed();
    if (t.isEmpty() || isComment(t)) return QString();
    const int eq = t.indexOf(QLatin1Char('='));
    return eq < 0 ? QString() : t.left(eq).trimmed();
}

QString valueOf(const QString &line) {
    QString v = line.mid(line.indexOf(QLatin1Char('=')) + 1).trimmed();
    if (v.size() >= 2 && (v.front() == QLatin1Char('"') || v.front() == QLatin1Char('\'')) &&
        v.back() == v.front())
        v = v.mid(1, v.size() - 2);
    return v;
}

// UTF-8 when the bytes are valid UTF-8; otherwise a file saved by a Chinese Windows editor,
// read as GB18030 (GBK and GB2312 are subsets) and written back as UTF-8 on the next save.
QString decodeSettings(const QByteArray &bytes) {
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QString text = utf8(bytes);
    if (!utf8.hasError()) return text;
    QStringDecoder gb18030("GB18030", QStringConverter::Flag::Stateless);
    text = gb18030(bytes);
    return gb18030.isValid() ? text : QString::fromUtf8(bytes);
}

bool sameName(const QString &a, const QString &b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

}  // namespace

ProfileFile::ProfileFile(QString fileName) : m_fileName(std::move(fileName)) {
    QFile file(m_fileName);
    if (!file.open(QIODevice::ReadOnly)) return;
    m_exists = true;
    QByteArray bytes = file.readAll();
    if (bytes.startsWith("\xEF\xBB\xBF")) {
        m_bom = true;
        bytes.remove(0, 3);
    }
    QString text = decodeSettings(bytes);
    if (text.contains(QLatin1String("\r\n"))) m_eol = QStringLiteral("\r\n");
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    m_lines = text.split(QLatin1Char('\n'));
    if (!m_lines.isEmpty() && m_lines.last().isEmpty()) m_lines.removeLast();
}

int ProfileFile::findSection(const QString &section) const {
    for (int i = 0; i < m_lines.size(); ++i) {
        const QString name = sectionName(m_lines.at(i));
        if (!name.isNull() && sameName(name, section)) return i;
    }
    return -1;
}

int ProfileFile::sectionEnd(int headerLine) const {
    int end = headerLine + 1;
    while (end < m_lines.size() && sectionName(m_lines.at(end)).isNull())
        ++end;
    return end;
}

int ProfileFile::findKey(const QString &section, const QString &key) const {
    const int header = findSection(section);
    if (header < 0) return -1;
    const int end = sectionEnd(header);
    for (int i = header + 1; i < end; ++i) {
        if (sameName(keyOf(m_lines.at(i)), key)) return i;
    }
    return -1;
}

bool ProfileFile::contains(const QString &section, const QString &key) const {
    return findKey(section, key) >= 0;
}

QString ProfileFile::value(const QString &section, const QString &key) const {
    const int line = findKey(section, key);
    if (line < 0) return QString();
    QString v = valueOf(m_lines.at(line));
    v.remove(QChar(u'\0'));
    return v.left(kMaxValueLength);
}

void ProfileFile::setValue(const QString &section, const QString &key, const QString &value) {
    const QString line = key + QLatin1Char('=') + value;
    const int existing = findKey(section, key);
    if (existing >= 0) {
        m_lines[existing] = line;
        return;
    }
    const int header = findSection(section);
    if (header < 0) {
        m_lines << QLatin1Char('[') + section + QLatin1Char(']') << line;
        return;
    }
    // After the section's last entry, before any blank lines that separate it from the next.
    int insertAt = sectionEnd(header);
    while (insertAt > header + 1 && m_lines.at(insertAt - 1).trimmed().isEmpty())
        --insertAt;
    m_lines.insert(insertAt, line);
}

bool ProfileFile::save() const {
    QSaveFile file(m_fileName);
    if (!file.open(QIODevice::WriteOnly)) return false;
    QByteArray bytes;
    if (m_bom) bytes += "\xEF\xBB\xBF";
    for (const QString &line : m_lines)
        bytes += (line + m_eol).toUtf8();
    file.write(bytes);
    return file.commit();
}

QString readIni(const QString &section, const QString &key, const QString &file) {
    return ProfileFile(file).value(section, key);
}

bool writeIni(const QString &section, const QString &key, const QString &value,
              const QString &file) {
    ProfileFile profile(file);
    profile.setValue(section, key, value);
    return profile.save();
}
