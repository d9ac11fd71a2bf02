#pragma once

#include <QImage>
#include <QSize>
#include <QString>

// Rules of the photo import: who a picture file is, and how big its copy may be.
namespace photoimport {

struct PhotoName {
    QString name;
    QString part;
    // A file whose name part is blank (",市场部.jpg") names nobody and is not imported.
    bool hasName() const { return !name.trimmed().isEmpty(); }
};

// "张三.jpg" is 张三 without remark; "张三,宣传部.jpg" (or with "，") is 张三 of 宣传部. The cut
// of the extension is always four characters, as operators' files are named *.jpg / *.png.
PhotoName parsePhotoName(const QString &fileName);

// The size a picture of `size` is shrunk to for the slider value (limit = value x 100 pixels a
// side), or an invalid size when it fits and is copied unchanged.
QSize shrunkSize(const QSize &size, int sliderValue);

enum class Settled { Copied, Shrunk, PngCopied, Failed };

// Puts the picture at target: copied unchanged when compression is off, the file is a PNG or it
// fits the limit; otherwise scaled and written as JPEG at quality 100 under the target's name.
// Failed when neither a copy nor a shrunk picture could be written.
Settled settlePicture(const QString &source, const QString &target, bool compress, int sliderValue);

// Writes an image as JPEG at quality 100, the one picture format the program writes.
bool saveJpeg(const QImage &image, const QString &target);

}  // namespace photoimport
