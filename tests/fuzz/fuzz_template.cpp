// Any bytes as a stage template (.jsk): opened and read whole, as the console and the draw do.
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include "design/templatemodel.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    static int argc = 1;
    static char name[] = "fuzz_template";
    static char *argv[] = {name, nullptr};
    static QCoreApplication app(argc, argv);  // the SQL driver is a plugin
    static QTemporaryDir dir;
    static const QString path = dir.filePath(QStringLiteral("template.jsk"));
    QFile::remove(path);
    QFile::remove(path + QStringLiteral("-journal"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return 0;
    file.write(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    file.close();
    design::TemplateData template_;
    QString error;
    design::readTemplateFile(path, &template_, &error);
    return 0;
}
