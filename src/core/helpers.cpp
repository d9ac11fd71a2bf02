#include "core/helpers.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>

bool fileExists(const QString &path) {
    return !path.isEmpty() && QFileInfo(path).isFile();
}

QString getExt(const QString &path) {
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? QString() : path.mid(dot);
}

QString getFileName(const QString &path) {
    const int slash =
        std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    return path.mid(slash + 1);
}

int clearUserPhotos(const QString &folder) {
    QDir dir(folder);
    int removed = 0;
    const QStringList files = dir.entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString &name : files) {
        if (name.contains(QLatin1Char('U')) && dir.remove(name)) ++removed;
    }
    return removed;
}

QString makeRandomName(int length) {
    static const char symbols[] = "0123456789abcdefghijklmnopqrstuvwxyz";
    QString name;
    name.reserve(length);
    for (int i = 0; i < length; ++i)
        name += QLatin1Char(symbols[QRandomGenerator::global()->bounded(36)]);
    return name;
}

QString md5(const QString &text, int form) {
    const QByteArray digest =
        QCryptographicHash::hash(text.trimmed().toUtf8(), QCryptographicHash::Md5).toHex();
    const QString hex = QString::fromLatin1(digest);
    return form == 32 ? hex : hex.mid(8, 16);
}

QString normalizeSlashes(QString path) {
    return path.replace(QLatin1Char('\\'), QLatin1Char('/'));
}

QString hideName(const QString &text, int left, int right, const QString &replacement) {
    // Counted in characters, so a name with a character outside the basic plane masks right.
    const QList<uint> codes = text.toUcs4();
    const std::u32string characters(codes.begin(), codes.end());
    const int length = static_cast<int>(characters.size());
    left = std::max(0, left);
    right = std::max(0, right);
    if (text.isEmpty() || left + right >= length) return text;
    return QString::fromStdU32String(characters.substr(0, left)) +
           replacement.repeated(length - left - right) +
           QString::fromStdU32String(characters.substr(length - right));
}
