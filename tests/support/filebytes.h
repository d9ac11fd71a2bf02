#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QFile>
#include <QString>

// Writes a file with the given bytes, so that tests can tell copies apart; returns the path.
inline QString writeFile(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return QString();
    file.write(bytes);
    return path;
}

inline QByteArray readFile(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// What a file holds, short: two files with the same digest hold the same bytes.
inline QByteArray fileDigest(const QString &path) {
    return QCryptographicHash::hash(readFile(path), QCryptographicHash::Md5);
}
