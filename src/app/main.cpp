#include <QApplication>

#include "chrome/style.h"
#include "core/frmMain.h"
#include "core/startup.h"
#include "core/widgethelpers.h"
#include "roster/rosterscreens.h"
#include "sound/mediabackend.h"

int main(int argc, char *argv[]) {
    chooseMediaBackend();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("quellio"));
    QApplication::setOrganizationName(QStringLiteral("quellio"));
    QApplication::setApplicationDisplayName(QStringLiteral("Quellio抽奖(全能版)"));
    if (!startUp(QApplication::applicationDirPath())) return 1;
    style::apply();
    rosterscreens::installCamera();

    frmMain console;
    setConsoleWindow(&console);
    centerForm(&console);
    console.show();
    const int code = QApplication::exec();
    exitProgram(true);
    return code;
}
