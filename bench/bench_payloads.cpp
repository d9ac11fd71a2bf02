// Reads a template with many objects and pushes it onto a stage that only counts, for each
// reader: the time a screen waits between opening a template and the last setVariable.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QSqlDatabase>
#include <QTemporaryDir>
#include <QTextStream>

#include "core/store.h"
#include "design/stageload.h"
#include "stage/stage.h"

namespace {

class CountingStage : public Stage {
public:
    qint64 calls = 0;
    qint64 bytes = 0;
    bool loadMovie(const QString &) override { return true; }
    void setVariable(const QString &name, const QString &value) override {
        ++calls;
        bytes += name.size() + value.size();
    }
};

bool makeTemplate(const QString &path, int objects) {
    const QString connection = QStringLiteral("bench");
    if (!store::openTemplate(path, connection, nullptr, true)) return false;
    {
        QSqlDatabase db = QSqlDatabase::database(connection);
        store::applyScript(db, QStringLiteral(":/sql/template.sql"), nullptr);
        db.transaction();
        store::exec(db, QStringLiteral("INSERT INTO LuckBg (BgW, BgH, BgColor) VALUES "
                                       "(1920, 1080, '0x9E1B22')"));
        const QStringList types{QStringLiteral("vbAddTxt"), QStringLiteral("vbAddStxt"),
                                QStringLiteral("vbAddImg"), QStringLiteral("vbAddSwf")};
        const QStringList prefixes{QStringLiteral("txt_"), QStringLiteral("scr_"),
                                   QStringLiteral("img_"), QStringLiteral("swf_")};
        for (int i = 0; i < objects; ++i) {
            const int kind = i % 4;
            store::exec(
                db,
                QStringLiteral("INSERT INTO LuckObj (ObjName, ObjType, ObjDepth, ObjX, "
                               "ObjY, fTxt, ImgPath) VALUES (?, ?, ?, ?, ?, ?, ?)"),
                {prefixes[kind] + QStringLiteral("%1").arg(i, 16, 10, QLatin1Char('0')),
                 types[kind], i + 1, i % 1900, i % 1000, QStringLiteral("第%1行文字 $Name1").arg(i),
                 QStringLiteral("skin/sPhoto/img%1.png").arg(i)});
        }
        db.commit();
    }
    store::close(connection);
    return true;
}

}  // namespace

int main(int argc, char **argv) {
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTemporaryDir dir;
    for (int objects : {10, 200, 2000}) {
        const QString path = dir.filePath(QStringLiteral("bench%1.jsk").arg(objects));
        if (!makeTemplate(path, objects)) return 1;
        for (design::Reader reader :
             {design::Reader::Console, design::Reader::Designer, design::Reader::Draw}) {
            design::PayloadContext context;
            context.reader = reader;
            context.appPath = dir.path() + QLatin1Char('/');
            CountingStage stage;
            QElapsedTimer timer;
            timer.start();
            const int rounds = 5;
            for (int round = 0; round < rounds; ++round)
                design::loadTemplateFile(stage, path, context);
            const double ms = timer.nsecsElapsed() / 1e6 / rounds;
            const char *name = reader == design::Reader::Console    ? "console"
                               : reader == design::Reader::Designer ? "designer"
                                                                    : "draw";
            out << QStringLiteral("full load, %1 objects, %2: %3 ms (%4 commands, %5 chars)\n")
                       .arg(objects)
                       .arg(QLatin1String(name), -8)
                       .arg(ms, 0, 'f', 2)
                       .arg(stage.calls / rounds)
                       .arg(stage.bytes / rounds);
        }
    }
    return 0;
}
