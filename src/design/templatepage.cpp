#include "design/templatepage.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>

#include "core/helpers.h"
#include "core/logging.h"
#include "core/store.h"

namespace design {

namespace {

// The page size is kept as a 16-bit value.
constexpr qlonglong kMaxStageSide = 32767;

bool isNumber(const QString &text) {
    bool ok = false;
    text.trimmed().toLongLong(&ok);
    return ok;
}

bool replaceFile(const QString &source, const QString &target) {
    if (QFileInfo(source).absoluteFilePath() == QFileInfo(target).absoluteFilePath()) return true;
    QFile::remove(target);
    if (QFile::copy(source, target)) return true;
    qCWarning(lcDesign) << "cannot copy" << source << "to" << target;
    return false;
}

}  // namespace

QStringList listTemplates(const QString &appPath) {
    QStringList names;
    const QStringList files = QDir(appPath + QStringLiteral("skin"))
                                  .entryList({QStringLiteral("*.jsk")}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        names << file.chopped(4);
    return names;
}

QString templatePath(const QString &appPath, const QString &name) {
    return appPath + QStringLiteral("skin/") + name + QStringLiteral(".jsk");
}

SizeCheck checkStageSize(const QString &width, const QString &height) {
    if (!isNumber(width))
        return {QCoreApplication::translate("design", "分辨率宽度需要输入数字"), true};
    if (!isNumber(height))
        return {QCoreApplication::translate("design", "分辨率高度需要输入数字"), false};
    if (width.trimmed().toLongLong() < 257)
        return {QCoreApplication::translate("design", "分辨率宽度最小不低于257px"), true};
    if (height.trimmed().toLongLong() < 177)
        return {QCoreApplication::translate("design", "分辨率高度不能低于177px"), false};
    if (width.trimmed().toLongLong() > kMaxStageSide)
        return {QCoreApplication::translate("design", "分辨率宽度最大不能超过32767px"), true};
    if (height.trimmed().toLongLong() > kMaxStageSide)
        return {QCoreApplication::translate("design", "分辨率高度最大不能超过32767px"), false};
    return {};
}

bool saveTemplatePage(const QString &appPath, const QString &templateName, int width, int height,
                      const QString &backgroundFile, QString *error) {
    QString sql = QStringLiteral("UPDATE LuckBg SET BgW=?, BgH=?");
    QVariantList values{width, height};
    if (!backgroundFile.trimmed().isEmpty() && fileExists(backgroundFile)) {
        const QString relative =
            QStringLiteral("skin/sPhoto/") + templateName + getExt(getFileName(backgroundFile));
        replaceFile(backgroundFile, appPath + relative);
        sql += QStringLiteral(", BgImg=?");
        values << relative;
    }
    const QString connection = QStringLiteral("console-template");
    if (!store::openTemplate(templatePath(appPath, templateName), connection, error)) return false;
    const bool ok = store::exec(QSqlDatabase::database(connection), sql, values, error);
    store::close(connection);
    return ok;
}

bool copyToWorkingFile(const QString &appPath, const QString &templateName) {
    return replaceFile(templatePath(appPath, templateName),
                       appPath + QStringLiteral("skin/sdb.tmp"));
}

RestoreResult restoreFactoryTemplate(const QString &appPath, const QString &templateFile) {
    const QString backup = appPath + QStringLiteral("skin/bak/") + getFileName(templateFile);
    if (!fileExists(backup))
        return {false, QCoreApplication::translate("design", "找不到原始数据文件无法恢复...")};
    const bool ok = replaceFile(backup, templateFile) &&
                    replaceFile(backup, appPath + QStringLiteral("skin/sdb.tmp"));
    return {ok, QCoreApplication::translate("design", "正在打开备份文件...")};
}

}  // namespace design
