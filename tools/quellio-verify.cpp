// quellio-verify <program folder>: checks the draw's audit log of a program folder and prints a
// verdict per press and a summary. Exit status 0 only when everything holds.
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QTextStream>

#include "draw/verifier.h"

namespace {

const char *const kHelp =
    "用法: quellio-verify <程序文件夹>\n"
    "\n"
    "核对程序文件夹中 History/draw-audit.log 记录的每一次抽奖:\n"
    "  记录链是否完整, 每次抽奖的候选名单能否由名单快照和之后的事件重建,\n"
    "  中奖者能否由种子重新推出, 种子是否由会话密钥推出(密钥在关闭抽奖窗口时公开),\n"
    "  每一批入库的中奖者是否与库中一致。\n"
    "每次抽奖打印一行结论, 最后打印汇总。全部相符时退出码为0, 否则为1, 用法错误为2。\n"
    "算法见 docs/fairness.md。\n";

// The store as it is, read only: verifying never changes what it checks.
QSqlDatabase openStoreReadOnly(const QString &path) {
    QSqlDatabase db =
        QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("verify"));
    db.setDatabaseName(path);
    db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    if (QFileInfo::exists(path)) db.open();
    return db;
}

}  // namespace

int main(int argc, char *argv[]) {
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    const QStringList args = app.arguments().mid(1);
    if (args.contains(QStringLiteral("--help")) || args.contains(QStringLiteral("-h"))) {
        out << QString::fromUtf8(kHelp);
        return 0;
    }
    if (args.size() != 1 || !QFileInfo(args.first()).isDir()) {
        QTextStream(stderr) << QString::fromUtf8(kHelp);
        return 2;
    }
    const QString appPath = QDir(args.first()).absolutePath() + QLatin1Char('/');
    const draw::VerifyReport report = draw::verifyProgramFolder(
        appPath, openStoreReadOnly(appPath + QStringLiteral("quellio.db")));
    out << draw::reportText(report);
    return report.holds() ? 0 : 1;
}
