#include <QApplication>

#include "chrome/style.h"
#include "chrome/widgethelpers.h"
#include "chrome/widgetui.h"
#include "console/consolewindow.h"
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

}  // namespace

int main(int argc, char *argv[]) {
    chooseMediaBackend();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quellio"));
    QApplication::setOrganizationName(QStringLiteral("quellio"));
    QApplication::setApplicationDisplayName(QStringLiteral("Quellio抽奖(全能版)"));
    setUi(std::make_unique<WidgetUi>());
    style::apply();
    if (!startUp(QApplication::applicationDirPath())) return 1;
    rosterscreens::installCamera();

    ConsoleWindow console;
    setConsoleWindow(&console);
    centerForm(&console);
    QObject::connect(&console, &ConsoleWindow::drawRequested, &console,
                     [&console] { openDrawScreen(&console); });
    // Development switch: straight to the draw screen (scripts/run.sh --draw).
    if (QApplication::arguments().contains(QStringLiteral("--draw")))
        openDrawScreen(nullptr);
    else
        console.show();
    const int code = QApplication::exec();
    exitProgram(true);
    return code;
}
