#include "core/helpers.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

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

bool isParticipantPhotoName(const QString &fileName) {
    static const QRegularExpression pattern(QStringLiteral("^U[0-9]+(\\.[^./\\\\]*)?$"));
    return pattern.match(fileName).hasMatch();
}

QString ownedFile(const QString &appPath, const QString &folder, const QString &storedPath) {
    const QString relative = normalizeSlashes(storedPath.trimmed());
    if (relative.isEmpty() || QDir::isAbsolutePath(relative)) return QString();
    const QString root = QFileInfo(QDir(appPath).filePath(folder)).canonicalFilePath();
    const QString file = QDir::cleanPath(QDir(appPath).filePath(relative));
    const QFileInfo info(file);
    // The folder holding the file, with its links followed; the file itself may be a link, which
    // a removal deletes without touching what it points to.
    const QString parent = QFileInfo(info.absolutePath()).canonicalFilePath();
    if (root.isEmpty() || parent.isEmpty()) return QString();
    if (parent != root && !parent.startsWith(root + QLatin1Char('/'))) return QString();
    return parent + QLatin1Char('/') + info.fileName();
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
