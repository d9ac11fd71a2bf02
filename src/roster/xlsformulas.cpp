#include "roster/xlsformulas.h"

#include <QList>

#include <cstring>

#include "roster/workbook.h"

namespace workbook {

namespace {

constexpr quint32 kEndOfChain = 0xFFFFFFFE;
constexpr quint32 kFreeSector = 0xFFFFFFFF;

quint16 u16(const QByteArray &bytes, qint64 at) {
    if (at < 0 || at + 2 > bytes.size()) return 0;
    const auto *p = reinterpret_cast<const uchar *>(bytes.constData() + at);
    return quint16(p[0] | (p[1] << 8));
}

quint32 u32(const QByteArray &bytes, qint64 at) {
    if (at < 0 || at + 4 > bytes.size()) return kFreeSector;
    const auto *p = reinterpret_cast<const uchar *>(bytes.constData() + at);
    return quint32(p[0]) | (quint32(p[1]) << 8) | (quint32(p[2]) << 16) | (quint32(p[3]) << 24);
}

QString utf16Text(const QByteArray &bytes, qint64 at, qint64 count) {
    QString text;
    text.reserve(count);
    for (qint64 i = 0; i < count; ++i)
        text += QChar(u16(bytes, at + 2 * i));
    return text;
}

// The compound file (the container of every .xls): sectors, their allocation table, and the
// streams that chains of sectors make.
class CompoundFile {
public:
    explicit CompoundFile(const QByteArray &file) : m_file(file) {}

    bool open() {
        static const char signature[] = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
        if (m_file.size() < 512 || std::memcmp(m_file.constData(), signature, 8) != 0) return false;
        const quint16 shift = u16(m_file, 0x1E);
        if (shift != 9 && shift != 12) return false;
        m_sectorSize = 1 << shift;
        m_sectorCount = (m_file.size() - 512) / m_sectorSize + 1;
        return readAllocationTable() && readDirectory();
    }

    // A directory entry's name is at most 64 bytes; a longer claim is a damaged file.
    bool namesFitTheirEntries() const { return m_namesFit; }

    // A stream of the root storage by name; empty when there is none.
    QByteArray stream(const QString &name) const {
        for (const Entry &entry : m_entries) {
            if (entry.name != name || entry.type != 2) continue;
            if (entry.size < m_miniCutoff) return miniStream(entry);
            return chain(entry.start, entry.size);
        }
        return QByteArray();
    }

private:
    struct Entry {
        QString name;
        int type = 0;
        quint32 start = 0;
        qint64 size = 0;
    };

    bool readAllocationTable() {
        QList<quint32> fatSectors;
        // A table larger than the file's sectors need is a false claim.
        const quint32 fatCount = u32(m_file, 0x2C);
        if (fatCount > m_sectorCount / (m_sectorSize / 4) + 1) return false;
        for (quint32 i = 0; i < qMin<quint32>(fatCount, 109); ++i)
            fatSectors << u32(m_file, 0x4C + 4 * i);
        quint32 difat = u32(m_file, 0x44);
        for (qint64 hops = 0; fatSectors.size() < qint64(fatCount); ++hops) {
            if (difat >= m_sectorCount || hops > m_sectorCount) return false;
            const qint64 at = sectorOffset(difat);
            const int perSector = m_sectorSize / 4 - 1;
            for (int i = 0; i < perSector && fatSectors.size() < qint64(fatCount); ++i)
                fatSectors << u32(m_file, at + 4 * i);
            difat = u32(m_file, at + 4 * perSector);
        }
        m_fat.reserve(fatSectors.size() * (m_sectorSize / 4));
        for (quint32 sector : std::as_const(fatSectors)) {
            if (sector >= m_sectorCount) return false;
            const qint64 at = sectorOffset(sector);
            for (int i = 0; i < m_sectorSize / 4; ++i)
                m_fat << u32(m_file, at + 4 * i);
        }
        return true;
    }

    bool readDirectory() {
        const QByteArray directory = chain(u32(m_file, 0x30), -1);
        for (qint64 at = 0; at + 128 <= directory.size(); at += 128) {
            Entry entry;
            const int claimedBytes = u16(directory, at + 0x40);
            m_namesFit = m_namesFit && claimedBytes <= 64;
            const int nameBytes = qMin(claimedBytes, 64);
            entry.name = utf16Text(directory, at, qMax(0, nameBytes / 2 - 1));
            entry.type = static_cast<uchar>(directory.at(at + 0x42));
            entry.start = u32(directory, at + 0x74);
            entry.size = u32(directory, at + 0x78);
            if (entry.type == 5) m_root = entry;
            m_entries << entry;
        }
        m_miniCutoff = u32(m_file, 0x38);
        return !m_entries.isEmpty();
    }

    qint64 sectorOffset(quint32 sector) const { return (qint64(sector) + 1) * m_sectorSize; }

    // The bytes of a chain of sectors; `size` < 0 reads the whole chain. A loop or a sector past
    // the file ends the chain.
    QByteArray chain(quint32 start, qint64 size) const {
        QByteArray bytes;
        quint32 sector = start;
        for (qint64 hops = 0; sector < m_sectorCount && hops <= m_sectorCount; ++hops) {
            bytes += m_file.mid(sectorOffset(sector), m_sectorSize);
            if (size >= 0 && bytes.size() >= size) break;
            sector = sector < quint32(m_fat.size()) ? m_fat.at(sector) : kEndOfChain;
        }
        return size >= 0 ? bytes.left(size) : bytes;
    }

    QByteArray miniStream(const Entry &entry) const {
        const QByteArray container = chain(m_root.start, m_root.size);
        const QByteArray miniFat = chain(u32(m_file, 0x3C), -1);
        constexpr int kMiniSector = 64;
        const qint64 miniCount = container.size() / kMiniSector;
        QByteArray bytes;
        quint32 sector = entry.start;
        for (qint64 hops = 0; sector < miniCount && hops <= miniCount; ++hops) {
            bytes += container.mid(qint64(sector) * kMiniSector, kMiniSector);
            if (bytes.size() >= entry.size) break;
            sector = u32(miniFat, 4 * qint64(sector));
        }
        return bytes.left(entry.size);
    }

    const QByteArray &m_file;
    int m_sectorSize = 512;
    quint32 m_sectorCount = 0;
    quint32 m_miniCutoff = 4096;
    QList<quint32> m_fat;
    QList<Entry> m_entries;
    Entry m_root;
    bool m_namesFit = true;
};

struct Record {
    quint16 id = 0;
    qint64 at = 0;  // first byte of the record's data
    int size = 0;
};

Record recordAt(const QByteArray &stream, qint64 at) {
    if (at + 4 > stream.size()) return {};
    const int size = u16(stream, at + 2);
    if (at + 4 + size > stream.size()) return {};
    return {u16(stream, at), at + 4, size};
}

// A BIFF8 text of `count` characters at `at`: a flags byte, then Latin-1 or UTF-16LE.
QString biffText(const QByteArray &stream, qint64 at, qint64 end, int count) {
    if (at >= end) return QString();
    const bool wide = stream.at(at) & 1;
    const qint64 bytes = qMin<qint64>(wide ? 2 * count : count, end - at - 1);
    if (!wide) return QString::fromLatin1(stream.constData() + at + 1, bytes);
    return utf16Text(stream, at + 1, bytes / 2);
}

// Where the sheet of that name begins in the stream, from the workbook's BOUNDSHEET records.
qint64 sheetStart(const QByteArray &stream, const QString &name) {
    for (Record r = recordAt(stream, 0); r.id != 0; r = recordAt(stream, r.at + r.size)) {
        if (r.id == 0x000A) break;  // end of the workbook's globals
        if (r.id != 0x0085 || r.size < 8) continue;
        const int count = static_cast<uchar>(stream.at(r.at + 6));
        if (biffText(stream, r.at + 7, r.at + r.size, count) == name) return u32(stream, r.at);
    }
    return -1;
}

QString formulaValue(const QByteArray &stream, const Record &formula, bool *textFollows) {
    const qint64 result = formula.at + 6;
    *textFollows = false;
    if (u16(stream, result + 6) != 0xFFFF) {
        double value = 0;
        std::memcpy(&value, stream.constData() + result, sizeof value);
        return numberText(value);
    }
    switch (static_cast<uchar>(stream.at(result))) {
        case 0:
            *textFollows = true;
            return QString();
        case 1:
            return stream.at(result + 2) ? QStringLiteral("TRUE") : QStringLiteral("FALSE");
        case 3:
            return QStringLiteral("");
        default:
            return QString();  // an error value shows as an empty cell
    }
}

}  // namespace

bool xlsContainerIsSound(const QByteArray &file) {
    CompoundFile compound(file);
    return compound.open() && compound.namesFitTheirEntries();
}

FormulaResults xlsFormulaResults(const QByteArray &file, const QString &sheetName) {
    CompoundFile compound(file);
    if (!compound.open()) return {};
    const QByteArray stream = compound.stream(QStringLiteral("Workbook"));
    const qint64 start = sheetStart(stream, sheetName);
    if (start <= 0) return {};
    FormulaResults results;
    quint64 pendingText = 0;
    bool textPending = false;
    for (Record r = recordAt(stream, start); r.id != 0; r = recordAt(stream, r.at + r.size)) {
        if (r.id == 0x000A) break;  // end of the sheet
        if (r.id == 0x0006 && r.size >= 20) {
            const quint64 key = cellKey(u16(stream, r.at), u16(stream, r.at + 2));
            bool textFollows = false;
            const QString value = formulaValue(stream, r, &textFollows);
            if (!value.isNull()) results.insert(key, value);
            pendingText = key;
            textPending = textFollows;
        } else if (r.id == 0x0207 && textPending && r.size >= 3) {
            results.insert(pendingText,
                           biffText(stream, r.at + 2, r.at + r.size, u16(stream, r.at)));
            textPending = false;
        }
    }
    return results;
}

}  // namespace workbook
