// Any text as a picture's file name, as the photo import reads who it shows.
#include <QString>

#include "roster/photoimport.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QString name =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const photoimport::PhotoName parsed = photoimport::parsePhotoName(name);
    if (parsed.hasName() && parsed.name.size() > name.size()) __builtin_trap();
    return 0;
}
