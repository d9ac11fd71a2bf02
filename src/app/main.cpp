#include <QApplication>
#include <QFileInfo>

#include <cstdio>
#include <memory>

#include "app/commandline.h"
#include "chrome/style.h"
#include "chrome/widgethelpers.h"
#include "chrome/widgetui.h"
#include "console/consolewindow.h"
#include "core/demofolder.h"
#include "core/language.h"
#include "core/programfolder.h"
#include "core/settings.h"
#include "core/startup.h"
#include "draw/view/drawwindow.h"
#include "roster/view/rosterscreens.h"
#include "sound/mediabackend.h"

namespace {

// The draw screen in front of a hidden console; when the operator leaves it, the console comes
// back with fresh figures. With no console (the --draw switch) leaving the draw ends the program.
void openDrawScreen(ConsoleWindow *console) {
    auto *screen = new DrawWindow;
    screen->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(screen, &DrawWindow::closed, screen, [console] {
        if (!console) return;
        console->show();
        console->refreshAwardFigures();
    });
    if (console) console->hide();
    screen->show();
}

QStringList argumentsOf(int argc, char *argv[]) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

// The portable program folder doubles as the factory when the program runs from where it was
// built; an installed program has its factory files beside it under share/.
QString factoryFolder() {
    const QString executableDir = QCoreApplication::applicationDirPath();
    const QString installed = programfolder::factoryDir(executableDir);
    return QFileInfo::exists(installed + QStringLiteral("/config.ini")) ? installed : executableDir;
}

bool makeDemoFolder(const QString &target) {
    QString error;
    if (demofolder::make(factoryFolder(), target, &error)) return true;
    std::fputs(qPrintable(error + QLatin1Char('\n')), stderr);
    return false;
}

int runConsole(const CommandLine &commandLine) {
    setUi(std::make_unique<WidgetUi>());
    style::apply();
    if (!startUp(QApplication::applicationDirPath())) return 1;
    language::install(language::choose(language::systemLocale(), settings::language()));
    QApplication::setApplicationDisplayName(
        QCoreApplication::translate("main", "Quellio抽奖(全能版)"));
    rosterscreens::installCamera();

    ConsoleWindow console;
    setConsoleWindow(&console);
    centerForm(&console);
    QObject::connect(&console, &ConsoleWindow::drawRequested, &console,
                     [&console] { openDrawScreen(&console); });
    if (commandLine.drawOnly())
        openDrawScreen(nullptr);
    else
        console.show();
    const int code = QApplication::exec();
    exitProgram(true);
    return code;
}

}  // namespace

int main(int argc, char *argv[]) {
    // Help and version need no display: they must work in a terminal without one.
    const bool textOnly = CommandLine::wantsTextOnly(argumentsOf(argc, argv));
    if (!textOnly) chooseMediaBackend();
    const std::unique_ptr<QCoreApplication> app =
        textOnly ? std::make_unique<QCoreApplication>(argc, argv)
                 : std::make_unique<QApplication>(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("quellio"));
    QCoreApplication::setOrganizationName(QStringLiteral("quellio"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QUELLIO_VERSION));
    // The system's language until config.ini, read at start-up, may name another.
    language::install(language::choose(language::systemLocale(), QString()));

    CommandLine commandLine;
    commandLine.process();
    if (!commandLine.freshDemo().isEmpty() && !makeDemoFolder(commandLine.freshDemo())) return 1;
    if (!commandLine.home().isEmpty()) qputenv("QUELLIO_HOME", commandLine.home().toLocal8Bit());
    return runConsole(commandLine);
}
