// Builds a complete program folder from the text in data/ and the movies: config.ini, the data
// store, every template with its factory copy, the block picture, the built-in sounds and the
// empty folders.
// With --demo it also fills the store with a sample roster and three awards.
//
//   mkfactory --data DIR --movies DIR --out DIR [--demo]

#include <QCommandLineParser>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QSqlDatabase>
#include <QTextStream>

#include "core/demofolder.h"
#include "core/programfolder.h"
#include "core/store.h"
#include "sound/builtinsounds.h"

namespace {

int fail(const QString &text) {
    QTextStream(stderr) << "mkfactory: " << text << '\n';
    return 1;
}

bool runScripts(const QString &file, const QStringList &scripts, const QString &connection,
                QString *error) {
    QFile::remove(file);
    if (!store::openTemplate(file, connection, error, true)) return false;
    bool ok = true;
    for (const QString &script : scripts)
        ok = ok && store::applyScript(QSqlDatabase::database(connection), script, error);
    store::close(connection);
    return ok;
}

bool makeStore(const QString &data, const QString &out, QString *error) {
    const QString file = out + QStringLiteral("/quellio.db");
    if (!runScripts(file,
                    {QStringLiteral(":/sql/store.sql"), data + QStringLiteral("/store-rows.sql")},
                    QStringLiteral("factory-store"), error))
        return false;
    if (!store::openTemplate(file, QStringLiteral("factory-store"), error)) return false;
    const bool ok =
        store::exec(QSqlDatabase::database(QStringLiteral("factory-store")),
                    QStringLiteral("PRAGMA user_version=%1").arg(store::kSchemaVersion), {}, error);
    store::close(QStringLiteral("factory-store"));
    return ok;
}

QString templateName(const QString &sqlFile) {
    QFile file(sqlFile);
    if (!file.open(QIODevice::ReadOnly)) return QString();
    const QString first = QString::fromUtf8(file.readLine()).trimmed();
    const QString prefix = QStringLiteral("-- name:");
    return first.startsWith(prefix) ? first.mid(prefix.size()).trimmed() : QString();
}

bool makeTemplates(const QString &data, const QString &out, QString *error) {
    QDir dir(data + QStringLiteral("/templates"));
    const QStringList files = dir.entryList({QStringLiteral("*.sql")}, QDir::Files, QDir::Name);
    for (const QString &name : files) {
        const QString source = dir.filePath(name);
        const QString title = templateName(source);
        if (title.isEmpty()) {
            *error = source + QStringLiteral(": first line must be '-- name: ...'");
            return false;
        }
        const QString jsk = out + QStringLiteral("/skin/") + title + QStringLiteral(".jsk");
        const QString bak = out + QStringLiteral("/skin/bak/") + title + QStringLiteral(".jsk");
        if (!runScripts(jsk, {QStringLiteral(":/sql/template.sql"), source},
                        QStringLiteral("factory-template"), error))
            return false;
        QFile::remove(bak);
        if (!QFile::copy(jsk, bak)) {
            *error = QStringLiteral("cannot copy ") + jsk;
            return false;
        }
    }
    return true;
}

// The picture the stage shows in place of a lost image or animation file.
bool makeBlockPicture(const QString &out) {
    QImage image(128, 128, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(0x9a, 0x9a, 0xa6), 4, Qt::DashLine));
    p.setBrush(QColor(0xee, 0xee, 0xf2, 220));
    p.drawRoundedRect(QRectF(4, 4, 120, 120), 14, 14);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0xb4, 0xb4, 0xc0));
    QPainterPath hills;
    hills.moveTo(22, 100);
    hills.lineTo(52, 58);
    hills.lineTo(72, 84);
    hills.lineTo(84, 70);
    hills.lineTo(106, 100);
    hills.closeSubpath();
    p.drawPath(hills);
    p.setBrush(QColor(0xd9, 0xa4, 0x2a));
    p.drawEllipse(QPointF(88, 40), 11, 11);
    p.end();
    return image.save(out + QStringLiteral("/skin/Src/block.png"));
}

bool copyMovies(const QString &movies, const QString &out) {
    QDirIterator it(movies, QDir::Files, QDirIterator::Subdirectories);
    const QDir from(movies);
    bool ok = true;
    while (it.hasNext()) {
        const QString path = it.next();
        const QString target = out + QStringLiteral("/sys/") + from.relativeFilePath(path);
        QDir().mkpath(QFileInfo(target).path());
        QFile::remove(target);
        ok = QFile::copy(path, target) && ok;
    }
    return ok;
}

bool copyConfig(const QString &data, const QString &out) {
    const QString target = out + QStringLiteral("/config.ini");
    QFile::remove(target);
    return QFile::copy(data + QStringLiteral("/config.ini"), target) &&
           QFile::setPermissions(
               target, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
}

// The sample workbooks that "打开excel模板" opens.
bool copyDemoWorkbooks(const QString &data, const QString &out) {
    bool ok = true;
    for (const char *name : {"demo.xlsx", "demo.xls"}) {
        QFile::remove(out + QLatin1Char('/') + QLatin1String(name));
        ok = QFile::copy(data + QLatin1Char('/') + QLatin1String(name),
                         out + QLatin1Char('/') + QLatin1String(name)) &&
             ok;
    }
    return ok;
}

}  // namespace

int main(int argc, char *argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addOption(
        {QStringLiteral("data"), QStringLiteral("data folder"), QStringLiteral("dir")});
    parser.addOption(
        {QStringLiteral("movies"), QStringLiteral("movies folder"), QStringLiteral("dir")});
    parser.addOption(
        {QStringLiteral("out"), QStringLiteral("program folder"), QStringLiteral("dir")});
    parser.addOption({QStringLiteral("demo"), QStringLiteral("add a sample roster and awards")});
    parser.process(app);
    const auto absolute = [&](const char *option) {
        const QString value = parser.value(QString::fromLatin1(option));
        return value.isEmpty() ? value : QDir(value).absolutePath();
    };
    const QString data = absolute("data");
    const QString movies = absolute("movies");
    const QString out = absolute("out");
    if (data.isEmpty() || movies.isEmpty() || out.isEmpty())
        return fail(QStringLiteral("usage: mkfactory --data DIR --movies DIR --out DIR [--demo]"));

    QString error;
    if (!programfolder::ensureFolders(out + QLatin1Char('/')))
        return fail(QStringLiteral("cannot create folders under ") + out);
    if (!copyConfig(data, out)) return fail(QStringLiteral("cannot write config.ini"));
    if (!makeStore(data, out, &error)) return fail(error);
    if (!makeTemplates(data, out, &error)) return fail(error);
    if (!makeBlockPicture(out)) return fail(QStringLiteral("cannot write block.png"));
    if (!copyMovies(movies, out)) return fail(QStringLiteral("cannot copy the movies"));
    if (!sound::writeBuiltInSounds(out + QLatin1Char('/')))
        return fail(QStringLiteral("cannot write the built-in sounds"));
    if (!copyDemoWorkbooks(data, out))
        return fail(QStringLiteral("cannot copy the demo workbooks"));
    if (parser.isSet(QStringLiteral("demo")) &&
        !demofolder::fillSampleEvening(out + QStringLiteral("/quellio.db"), &error))
        return fail(error);
    return 0;
}
