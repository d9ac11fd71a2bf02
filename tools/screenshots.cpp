// Renders the operator's screens offscreen into PNG files, on a demo program folder:
//
//   screenshots --home DIR --out DIR
//
// Each screen is grabbed as the operator would see it, so the pictures in docs/screenshots/
// can be remade after every change.

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QSqlQuery>
#include <QTabWidget>
#include <QTextStream>
#include <QTimer>

#include "awards/view/awardmanagerdialog.h"
#include "awards/view/drawwizarddialog.h"
#include "chrome/style.h"
#include "chrome/widgethelpers.h"
#include "chrome/widgetui.h"
#include "console/changepassworddialog.h"
#include "console/consolewindow.h"
#include "console/passwordpromptdialog.h"
#include "core/appstate.h"
#include "core/language.h"
#include "core/settings.h"
#include "core/startup.h"
#include "core/store.h"
#include "design/designerdocument.h"
#include "design/templatepage.h"
#include "design/view/designerwindow.h"
#include "design/view/objectdialogs.h"
#include "design/view/textdialogs.h"
#include "draw/view/giveupdialog.h"
#include "draw/view/makeupdrawdialog.h"
#include "results/printout.h"
#include "results/view/winnerlistdialog.h"
#include "results/winnerrows.h"
#include "roster/view/addparticipantdialog.h"
#include "roster/view/cameracapturedialog.h"
#include "roster/view/numbergeneratordialog.h"
#include "roster/view/rostermanagerdialog.h"
#include "sound/view/hotkeysettingsdialog.h"
#include "sound/view/musicsettingsdialog.h"
#include "stage/view/qmlstage.h"

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
    while (timer.elapsed() < milliseconds)
        QApplication::processEvents(QEventLoop::AllEvents, 20);
}

void save(QWidget *widget, const QString &file) {
    widget->show();
    settle(600);
    widget->grab().save(file);
    QTextStream(stdout) << file << '\n';
}

void shootConsole(const QString &out) {
    ConsoleWindow console;
    setConsoleWindow(&console);
    save(&console, out + QStringLiteral("/console.png"));
    auto *slide = console.findChild<QTimer *>(QStringLiteral("panelSlideTimer"));
    const char *tabs[] = {"rosterTab", "awardsTab", "interfaceTab"};
    const char *pages[] = {"console-roster.png", "console-awards.png", "console-interface.png"};
    for (int i = 0; i < 3; ++i) {
        console.findChild<QPushButton *>(QString::fromLatin1(tabs[i]))->click();
        console.findChild<QAbstractButton *>(QStringLiteral("settingsButton"))->click();
        while (slide->isActive())
            QApplication::processEvents(QEventLoop::AllEvents, 20);
        save(&console, out + QLatin1Char('/') + QLatin1String(pages[i]));
    }
}

void shootDialogs(const QString &out) {
    DrawWizardDialog guide(DrawWizardDialog::Purpose::EditSettings);
    save(&guide, out + QStringLiteral("/guide-mode.png"));
    guide.findChild<QTabWidget *>(QStringLiteral("tabs"))->setCurrentIndex(1);
    guide.findChild<QCheckBox *>(QStringLiteral("maskCheck"))->setChecked(true);
    save(&guide, out + QStringLiteral("/guide-mask.png"));
    PasswordPromptDialog login(PasswordPromptDialog::Purpose::OpenSettings);
    save(&login, out + QStringLiteral("/login.png"));
    ChangePasswordDialog pass;
    save(&pass, out + QStringLiteral("/password.png"));
}

void shootHotkeySettings(const QString &out) {
    HotkeySettingsDialog keys;
    save(&keys, out + QStringLiteral("/keyboard.png"));
}

// The first page of the winner printout at 150 dpi, the demo roster standing in as winners.
void shootPrintout(const QString &out) {
    printout::Document document;
    document.title = appState().title1;
    const QList<results::Award> awards = results::awardsInOrder(store::mainConn());
    QSqlQuery query(store::mainConn());
    query.exec(QStringLiteral("SELECT UserName FROM UserList ORDER BY ID LIMIT 60"));
    for (int i = 0; query.next() && !awards.isEmpty(); ++i) {
        const results::Award &award = awards.at(i * awards.size() / 60);
        document.rows.append(
            {QString::number(i + 1), award.name, award.prize, query.value(0).toString()});
    }
    const double dpi = 150;
    QImage page(qRound(210 / 25.4 * dpi), qRound(297 / 25.4 * dpi), QImage::Format_RGB32);
    page.setDotsPerMeterX(qRound(dpi / 0.0254));
    page.setDotsPerMeterY(qRound(dpi / 0.0254));
    page.fill(Qt::white);
    QPainter painter(&page);
    printout::paintPage(painter, dpi / 25.4, document, 1);
    painter.end();
    page.save(out + QStringLiteral("/print-page1.png"));
    QTextStream(stdout) << out << "/print-page1.png\n";
}

// The roster's own screens on the demo roster; the camera dialog as it is without a camera.
void shootRoster(const QString &out) {
    RosterManagerDialog roster;
    save(&roster, out + QStringLiteral("/roster-manager.png"));
    AddParticipantDialog add;
    save(&add, out + QStringLiteral("/roster-add-user.png"));
    CameraCaptureDialog camera;
    save(&camera, out + QStringLiteral("/roster-camera-missing.png"));
    NumberGeneratorDialog numbers;
    save(&numbers, out + QStringLiteral("/numbers-setup.png"));
}

// The dialogs around the draw, on the demo evening's awards and winners.
void shootDrawDialogs(const QString &out) {
    AwardManagerDialog awards;
    save(&awards, out + QStringLiteral("/award-manager.png"));
    WinnerListDialog winners;
    save(&winners, out + QStringLiteral("/winner-list.png"));
    GiveUpDialog giveUp;
    save(&giveUp, out + QStringLiteral("/give-up.png"));
    MakeUpDrawDialog makeUp(1);
    save(&makeUp, out + QStringLiteral("/add-award-draw.png"));
    MusicSettingsDialog music;
    save(&music, out + QStringLiteral("/music.png"));
}

void sendMouse(QWindow *window, QEvent::Type type, const QPointF &at) {
    QMouseEvent event(type, at, at, Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(window, &event);
}

// The designer on the 16:9 factory template: each tab, the title selected and dragged onto the
// page's centre line, the text and font dialogs.
void shootDesigner(const QString &out) {
    const AppState &state = appState();
    const QStringList names = design::listTemplates(state.appPath);
    const QString name = names.filter(QStringLiteral("16")).value(0, names.value(0));
    design::copyToWorkingFile(state.appPath, name);
    appState().skinFile = design::templatePath(state.appPath, name);
    DesignerWindow designer;
    designer.resize(1366, 800);
    designer.findChild<QComboBox *>(QStringLiteral("zoomCombo"))
        ->setCurrentText(QStringLiteral("50%"));
    save(&designer, out + QStringLiteral("/designer-objects.png"));
    auto *tabs = designer.findChild<QTabWidget *>(QStringLiteral("tabs"));
    tabs->setCurrentIndex(1);
    save(&designer, out + QStringLiteral("/designer-drawarea.png"));
    tabs->setCurrentIndex(2);
    save(&designer, out + QStringLiteral("/designer-playback.png"));
    tabs->setCurrentIndex(0);
    settle(300);
    // Drag the award name (page 96,250) so its left edge nears the prize picture's edge.
    QWindow *view = static_cast<QmlStage &>(designer.stage()).quickWindow();
    const QPointF from(100 * 0.5, 260 * 0.5);
    sendMouse(view, QEvent::MouseButtonPress, from);
    sendMouse(view, QEvent::MouseMove, from + QPointF(20, 40));
    sendMouse(view, QEvent::MouseMove, from + QPointF(3, 60));
    save(&designer, out + QStringLiteral("/designer-selected.png"));
    sendMouse(view, QEvent::MouseButtonRelease, from + QPointF(3, 60));
    TextObjectDialog text(designer.document(), design::sysobj::txt_jxname);
    save(&text, out + QStringLiteral("/designer-text-dialog.png"));
    DrawFontDialog font(designer.document(), design::rows::blockValue);
    save(&font, out + QStringLiteral("/designer-font-dialog.png"));
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
    // The program's own choice of language, so LANG=en_US.UTF-8 gives the English screens.
    language::install(language::choose(language::systemLocale(), settings::language()));
    style::apply();
    const QString out = parser.value(QStringLiteral("out"));
    QDir().mkpath(out);
    shootConsole(out);
    shootDialogs(out);
    shootHotkeySettings(out);
    shootPrintout(out);
    shootRoster(out);
    shootDrawDialogs(out);
    shootDesigner(out);
    shutDown();
    return 0;
}
