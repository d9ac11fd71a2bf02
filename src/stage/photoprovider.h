#pragma once

#include <QObject>
#include <QQuickImageProvider>
#include <QStringList>

// Participants' photos for the movies, as "image://photo/<percent-encoded absolute path>".
// Each photo is decoded at the size it is shown (the reader scales while decoding, so a
// 12-megapixel picture never lands in memory whole) on Qt Quick's loader threads, and kept in
// one process-wide cache bounded in bytes: a roster of 20,000 photos rolls through it without
// exhausting memory, a roster of 1,000 stays decoded.
class PhotoProvider : public QQuickImageProvider {
public:
    PhotoProvider();
    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;

    // Decodes one file to fill `box` exactly: scaled with its aspect kept, then the overhang
    // cut off evenly. Smaller pictures stay as they are. A null image when it cannot be read.
    static QImage decode(const QString &path, const QSize &box);
    // Decodes the given files at `box` on a background thread, in order, until the cache is
    // full, so a roll starts with its photos ready. A new call replaces a warm-up under way.
    static void warm(const QStringList &paths, const QSize &box);
    // Blocks until the warm-up under way, if any, has ended (for tests and benchmarks).
    static void waitForWarmUp();
    // While names roll, a photo is shown only when it is decoded already: a cell changes its
    // name several times a second, so a photo decoded on request would come too late to be
    // seen, and a large roster would keep the loader busy on the cores the stage draws with.
    static void setDecodeOnRequest(bool on);
    static bool decodesOnRequest();
    // The cache's limit and what it holds now, in kilobytes.
    static int cacheLimitKb();
    static int cachedKb();
    static void clearCache();
};

// What a movie sees of the photo cache, as the context property "photoCache".
class PhotoCacheControl : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    Q_INVOKABLE void warm(const QStringList &paths, int width, int height) {
        PhotoProvider::warm(paths, QSize(width, height));
    }
    Q_INVOKABLE void setDecodeOnRequest(bool on) { PhotoProvider::setDecodeOnRequest(on); }
};
