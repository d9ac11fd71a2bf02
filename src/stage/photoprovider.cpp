#include "stage/photoprovider.h"

#include <QCache>
#include <QImageReader>
#include <QMutex>
#include <QUrl>

namespace {

constexpr int kCacheLimitKb = 160 * 1024;

QMutex &cacheLock() {
    static QMutex lock;
    return lock;
}

QCache<QString, QImage> &cache() {
    static QCache<QString, QImage> instance(kCacheLimitKb);
    return instance;
}

int costKb(const QImage &image) {
    return qMax(1, int(image.sizeInBytes() / 1024));
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
    if (!image.isNull() && box.isValid() &&
        (image.width() > 2 * box.width() || image.height() > 2 * box.height()))
        image = image.scaled(box, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    return image;
}

QImage PhotoProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize) {
    const QString path = QUrl::fromPercentEncoding(id.toUtf8());
    const QString key = path + QLatin1Char('@') + QString::number(requestedSize.width()) +
                        QLatin1Char('x') + QString::number(requestedSize.height());
    {
        QMutexLocker locker(&cacheLock());
        if (const QImage *hit = cache().object(key)) {
            if (size) *size = hit->size();
            return *hit;
        }
    }
    const QImage image = decode(path, requestedSize);
    if (size) *size = image.size();
    if (!image.isNull()) {
        QMutexLocker locker(&cacheLock());
        cache().insert(key, new QImage(image), costKb(image));
    }
    return image;
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
