// Renders the operator's screens offscreen into PNG files, on a demo program folder:
//
//   screenshots --home DIR --out DIR
//
// Each screen is grabbed as the operator would see it, so the pictures in docs/screenshots/
// can be remade after every change.

#include <QApplication>
#include <QCheckBox>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmap>
#include <QPushButton>
#include <QTabWidget>
#include <QTextStream>

#include "awards/frmGuide.h"
#include "chrome/style.h"
#include "core/appstate.h"
#include "core/frmLogin.h"
#include "core/frmMain.h"
#include "core/frmPass.h"
#include "core/startup.h"
#include "core/ui.h"
#include "core/widgethelpers.h"

namespace {

// Prints what would be shown in a box, so an unattended run never waits on a dialog.
class PrintingUi : public WidgetUi {
public:
    void message(const QString &text, MsgStyle, const QString &title) override {
        QTextStream(stderr) << title << ": " << text << '\n';
    }
    bool question(const QString &text, const QString &title) override {
        message(text, MsgStyle::Information, title);
        return false;
    }
};

// Lets movies answer and animations settle before a picture is taken.
void settle(int milliseconds) {
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds) QApplication::processEvents(QEventLoop::AllEvents, 20);
}

void save(QWidget *widget, const QString &file) {
    widget->show();
    settle(600);
    widget->grab().save(file);
    QTextStream(stdout) << file << '\n';
}

void shootConsole(const QString &out) {
    frmMain console;
    setConsoleWindow(&console);
    save(&console, out + QStringLiteral("/console.png"));
    const char *pages[] = {"console-roster.png", "console-awards.png", "console-interface.png"};
    for (int i = 0; i < 3; ++i) {
        console.imgSetLab[i]->click();
        console.showSet();
        while (console.tmMove.isActive())
            console.moveStep();
        save(&console, out + QLatin1Char('/') + QLatin1String(pages[i]));
    }
}

void shootDialogs(const QString &out) {
    appState().guideFor = QStringLiteral("guidebtn");
    frmGuide guide;
    save(&guide, out + QStringLiteral("/guide-mode.png"));
    guide.sTab->setCurrentIndex(1);
    guide.chkIsHideName->setChecked(true);
    save(&guide, out + QStringLiteral("/guide-mask.png"));
    frmLogin login;
    save(&login, out + QStringLiteral("/login.png"));
    frmPass pass;
    save(&pass, out + QStringLiteral("/password.png"));
}

}  // namespace

int main(int argc, char *argv[]) {
    QApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addOption(
        {QStringLiteral("home"), QStringLiteral("program folder"), QStringLiteral("dir")});
    parser.addOption(
        {QStringLiteral("out"), QStringLiteral("output folder"), QStringLiteral("dir")});
    parser.process(app);
    setUi(std::make_unique<PrintingUi>());
    qputenv("QUELLIO_HOME", parser.value(QStringLiteral("home")).toUtf8());
    if (!startUp(parser.value(QStringLiteral("home")))) return 1;
    style::apply();
    const QString out = parser.value(QStringLiteral("out"));
    QDir().mkpath(out);
    shootConsole(out);
    shootDialogs(out);
    shutDown();
    return 0;
}
