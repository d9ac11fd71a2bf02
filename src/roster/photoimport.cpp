#include "roster/photoimport.h"

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QImageWriter>

#include <cmath>

#include "core/helpers.h"
#include "core/store.h"

namespace photoimport {

namespace {

PhotoName splitAt(const QString &fileName, const QString &comma) {
    PhotoName result;
    result.name = fileName.left(fileName.indexOf(comma));
    QString rest = fileName;
    if (!result.name.isEmpty()) rest.remove(result.name);
    rest.remove(comma);
    rest = rest.trimmed();
    result.part = rest.left(qMax<qsizetype>(0, rest.size() - 4));
    return result;
}

bool copyOver(const QString &source, const QString &target) {
    if (QFile::exists(target)) QFile::remove(target);
    return QFile::copy(source, target);
}

}  // namespace

PhotoName parsePhotoName(const QString &fileName) {
    const QString ascii = QStringLiteral(",");
    const QString wide = QStringLiteral("，");
    if (fileName.contains(ascii)) return splitAt(fileName, ascii);
    if (fileName.contains(wide)) return splitAt(fileName, wide);
    return {fileName.left(qMax<qsizetype>(0, fileName.size() - 4)), QString()};
}

QSize shrunkSize(const QSize &size, int sliderValue) {
    const int limit = sliderValue * 100;
    const int w = size.width();
    const int h = size.height();
    if (w <= limit && h <= limit) return QSize();
    const float ratio = static_cast<float>(w) / static_cast<float>(h);
    if (w <= h) return QSize(static_cast<int>(std::lround(limit * ratio)), limit);
    return QSize(limit, static_cast<int>(std::lround(limit / ratio)));
}

bool saveJpeg(const QImage &image, const QString &target) {
    if (QFile::exists(target)) QFile::remove(target);
    QImageWriter writer(target, "jpg");
    writer.setQuality(100);
    return writer.write(image.convertToFormat(QImage::Format_RGB32));
}

Settled settlePicture(const QString &source, const QString &target, bool compress,
                      int sliderValue) {
    if (store::isStoreFile(source)) return Settled::Failed;
    if (!compress) return copyOver(source, target) ? Settled::Copied : Settled::Failed;
    if (getExt(source).toLower() == QLatin1String(".png"))
        return copyOver(source, target) ? Settled::PngCopied : Settled::Failed;
    QImageReader reader(source);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (!size.isValid()) return Settled::Failed;
    const QSize shrunk = shrunkSize(size, sliderValue);
    if (!shrunk.isValid()) return copyOver(source, target) ? Settled::Copied : Settled::Failed;
    // Decoded straight at the new size: a camera's 48-megapixel photo never exists in memory
    // at full size (JPEG decodes at a fraction of its size; other formats scale while reading).
    reader.setScaledSize(shrunk);
    const QImage scaled = reader.read();
    if (scaled.isNull()) return Settled::Failed;
    return saveJpeg(scaled, target) ? Settled::Shrunk : Settled::Failed;
}

}  // namespace photoimport
