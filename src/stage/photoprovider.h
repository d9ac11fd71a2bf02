#pragma once

#include <QQuickImageProvider>

// Participants' photos for the movies, as "image://photo/<percent-encoded absolute path>".
// Each photo is decoded at the size it is shown (the reader scales while decoding, so a
// 12-megapixel picture never lands in memory whole) on Qt Quick's loader threads, and kept in
// one process-wide cache bounded in bytes: a roster of 20,000 photos rolls through it without
// exhausting memory, a roster of 1,000 stays decoded.
class PhotoProvider : public QQuickImageProvider {
public:
    PhotoProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

    // Decodes one file to cover `box` (aspect kept); a null image when it cannot be read.
    static QImage decode(const QString &path, const QSize &box);
    // The cache's limit and what it holds now, in kilobytes.
    static int cacheLimitKb();
    static int cachedKb();
    static void clearCache();
};
