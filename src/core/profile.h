#pragma once

#include <QString>
#include <QStringList>

// A classic "[section]" / "key=value" profile file, read and written one key at a time.
// Reading: sections and keys match without regard to case, the first "=" splits, blanks around
// the value and one pair of matching quotes are dropped. Writing: the key's line is replaced in
// place; key order, comments and unknown keys are kept; a missing key is added at the end of its
// section and a missing section at the end of the file. The file is UTF-8 and is replaced
// atomically, so a crash never leaves half a settings file.
class ProfileFile {
public:
    explicit ProfileFile(QString fileName);

    bool exists() const { return m_exists; }
    QString value(const QString &section, const QString &key) const;
    bool contains(const QString &section, const QString &key) const;
    void setValue(const QString &section, const QString &key, const QString &value);
    bool save() const;

private:
    int findSection(const QString &section) const;
    int sectionEnd(int headerLine) const;
    int findKey(const QString &section, const QString &key) const;

    QString m_fileName;
    QStringList m_lines;
    QString m_eol = QStringLiteral("\n");
    bool m_bom = false;
    bool m_exists = false;
};

// Reads one key; a missing key or file gives an empty text. At most 10000 characters are
// returned and NUL characters are removed.
QString readIni(const QString &section, const QString &key, const QString &file);
// Writes one key, creating the file or section when needed. Returns false when the file could
// not be written; callers of the settings do not report it.
bool writeIni(const QString &section, const QString &key, const QString &value,
              const QString &file);
