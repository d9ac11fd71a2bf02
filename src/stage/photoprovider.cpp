#include "stage/photoprovider.h"

#include <QAtomicInt>
#include <QCache>
#include <QCoreApplication>
#include <QImageReader>
#include <QMutex>
#include <QThreadPool>
#include <QUrl>

namespace {

constexpr int kCacheLimitKb = 160 * 1024;

QMutex &cacheLock() {
    static QMutex lock;
    return lock;
}

// Never destroyed: a warm-up thread may still be storing a photo while the program exits.
QCache<QString, QImage> &cache() {
    static auto *instance = new QCache<QString, QImage>(kCacheLimitKb);
    return *instance;
}

int costKb(const QImage &image) {
    return qMax(1, int(image.sizeInBytes() / 1024));
}

QString cacheKey(const QString &path, const QSize &size) {
    return path + QLatin1Char('@') + QString::number(size.width()) + QLatin1Char('x') +
           QString::number(size.height());
}

QAtomicInt &warmGeneration() {
    static QAtomicInt generation;
    return generation;
}

// One thread for warming, so the other core stays with the render loop. A warm-up still under
// way when the application ends is called off before the image plugins are unloaded.
QThreadPool &warmPool() {
    static QThreadPool *pool = [] {
        auto *p = new QThreadPool;
        p->setMaxThreadCount(1);
        qAddPostRoutine([] {
            warmGeneration().fetchAndAddOrdered(1);
            warmPool().waitForDone();
        });
        return p;
    }();
    return *pool;
}

QAtomicInt &decodeOnRequestFlag() {
    static QAtomicInt on(1);
    return on;
}

// Stands for a photo that is not decoded yet while names roll: the cell shows its placeholder.
const QImage &notYetDecoded() {
    static const QImage blank = [] {
        QImage image(1, 1, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        return image;
    }();
    return blank;
}

bool cached(const QString &key) {
    QMutexLocker locker(&cacheLock());
    return cache().contains(key);
}

void store(const QString &key, const QImage &image) {
    QMutexLocker locker(&cacheLock());
    cache().insert(key, new QImage(image), costKb(image));
}

}  // namespace

PhotoProvider::PhotoProvider()
    : QQuickImageProvider(QQuickImageProvider::Image,
                          QQuickImageProvider::ForceAsynchronousImageLoading) {}

QImage PhotoProvider::decode(const QString &path, const QSize &box) {
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QSize natural = reader.size();
    if (box.isValid() && natural.isValid() &&
        (natural.width() > box.width() || natural.height() > box.height())) {
        reader.setScaledSize(natural.scaled(box, Qt::KeepAspectRatioByExpanding));
    }
    QImage image = reader.read();
    if (image.isNull() || !box.isValid()) return image;
    if (image.width() > box.width() + 1 || image.height() > box.height() + 1)
        image = image.scaled(box, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    // Cut to the box, centred: the stage then draws it pixel for pixel, with no scaling at
    // each frame.
    if (image.width() >= box.width() && image.height() >= box.height() && image.size() != box)
        image = image.copy((image.width() - box.width()) / 2, (image.height() - box.height()) / 2,
                           box.width(), box.height());
    return image;
}

QImage PhotoProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize) {
    const QString path = QUrl::fromPercentEncoding(id.toUtf8());
    const QString key = cacheKey(path, requestedSize);
    {
        QMutexLocker locker(&cacheLock());
        if (const QImage *hit = cache().object(key)) {
            if (size) *size = hit->size();
            return *hit;
        }
    }
    if (!decodesOnRequest()) {
        if (size) *size = notYetDecoded().size();
        return notYetDecoded();
    }
    const QImage image = decode(path, requestedSize);
    if (size) *size = image.size();
    if (!image.isNull()) store(key, image);
    return image;
}

void PhotoProvider::warm(const QStringList &paths, const QSize &box) {
    const int generation = warmGeneration().fetchAndAddOrdered(1) + 1;
    if (paths.isEmpty() || !box.isValid()) return;
    warmPool().start([paths, box, generation] {
        int usedKb = 0;
        for (const QString &path : paths) {
            if (warmGeneration().loadAcquire() != generation) return;
            const QString key = cacheKey(path, box);
            if (cached(key)) continue;
            const QImage image = decode(path, box);
            if (image.isNull()) continue;
            // Stop short of the limit: what the roll asks for itself must still fit.
            usedKb += costKb(image);
            if (usedKb > kCacheLimitKb * 3 / 4) return;
            store(key, image);
        }
    });
}

void PhotoProvider::waitForWarmUp() {
    warmPool().waitForDone();
}

void PhotoProvider::setDecodeOnRequest(bool on) {
    decodeOnRequestFlag().storeRelease(on ? 1 : 0);
}

bool PhotoProvider::decodesOnRequest() {
    return decodeOnRequestFlag().loadAcquire() != 0;
}

int PhotoProvider::cacheLimitKb() {
    return kCacheLimitKb;
}

int PhotoProvider::cachedKb() {
    QMutexLocker locker(&cacheLock());
    return int(cache().totalCost());
}

void PhotoProvider::clearCache() {
    QMutexLocker locker(&cacheLock());
    cache().clear();
}
