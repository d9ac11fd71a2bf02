#include "app/commandline.h"

#include <QDir>

namespace {

const QString kHome = QStringLiteral("home");
const QString kFreshDemo = QStringLiteral("fresh-demo");
const QString kDraw = QStringLiteral("draw");

QString absolute(const QString &path) {
    return path.isEmpty() ? path : QDir(path).absolutePath();
}

}  // namespace

CommandLine::CommandLine() {
    define();
}

void CommandLine::define() {
    m_parser.setApplicationDescription(tr("年会、活动现场抽奖软件。"));
    m_parser.addHelpOption();
    m_parser.addVersionOption();
    m_parser.addOption(
        {kHome, tr("使用此文件夹作为程序文件夹(与环境变量 QUELLIO_HOME 相同)。"), tr("文件夹")});
    m_parser.addOption({kFreshDemo,
                        tr("在此空文件夹中创建带示例名单和奖项的演示程序文件夹,然后在其上启动。"),
                        tr("文件夹")});
    QCommandLineOption draw(kDraw, QStringLiteral("Open the draw screen without the console."));
    draw.setFlags(QCommandLineOption::HiddenFromHelp);
    m_parser.addOption(draw);
}

bool CommandLine::wantsTextOnly(const QStringList &arguments) {
    // Looked for by hand: before QApplication exists its own options (-platform, -style...) are
    // still among the arguments, and a parser would take them for mistakes.
    static const QStringList textOptions = {QStringLiteral("-h"), QStringLiteral("--help"),
                                            QStringLiteral("-?"), QStringLiteral("--help-all"),
                                            QStringLiteral("-v"), QStringLiteral("--version")};
    for (const QString &argument : arguments.mid(1)) {
        if (argument == QLatin1String("--")) return false;
        if (textOptions.contains(argument)) return true;
    }
    return false;
}

void CommandLine::process() {
    m_parser.process(*QCoreApplication::instance());
    if (!m_parser.positionalArguments().isEmpty()) {
        fputs(qPrintable(tr("多余的参数: %1").arg(m_parser.positionalArguments().join(u' ')) +
                         QLatin1Char('\n')),
              stderr);
        ::exit(1);
    }
    if (m_parser.isSet(kHome) && m_parser.isSet(kFreshDemo)) {
        fputs(qPrintable(tr("--home 与 --fresh-demo 不能同时使用。") + QLatin1Char('\n')), stderr);
        ::exit(1);
    }
}

QString CommandLine::home() const {
    return absolute(m_parser.isSet(kFreshDemo) ? m_parser.value(kFreshDemo)
                                               : m_parser.value(kHome));
}

QString CommandLine::freshDemo() const {
    return absolute(m_parser.value(kFreshDemo));
}

bool CommandLine::drawOnly() const {
    return m_parser.isSet(kDraw);
}
