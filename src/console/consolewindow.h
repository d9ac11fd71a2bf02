#pragma once

#include <QPointer>
#include <QTimer>
#include <memory>

#include "chrome/framelesswindow.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;
class CardButton;
class ToolButton;
class LinkLabel;
class Stage;

// The console: the operator's home screen. It shows the draw's progress, opens every other
// screen, and carries a sliding settings panel with three pages (roster, awards, interface);
// the interface page hosts a small live preview of the stage.
class ConsoleWindow : public FramelessWindow {
    Q_OBJECT
public:
    explicit ConsoleWindow(QWidget *parent = nullptr);
    ~ConsoleWindow() override;

    // Routines other screens call.
    void showSet();
    void tjJX();
    void getLuckPos();
    void reFrashObj();
    void reloadTemplate();
    void AddUserRefrash();
    // labsetJx: the award manager, then the award figures again.
    void openAwards();

    // The panel: -247 hidden, 96 open, 30 pixels a tick.
    static constexpr int kPanelHidden = -247;
    static constexpr int kPanelOpen = 96;
    void moveStep();
    bool panelClosing = false;

    // Controls, public so that tests can drive them like an operator.
    CardButton *imgBtnSet = nullptr;
    CardButton *imgBtnStart = nullptr;
    ToolButton *imgTool[5] = {};
    QLabel *labJD = nullptr;
    QLabel *labJD2 = nullptr;
    LinkLabel *imgReluck = nullptr;
    QWidget *picSetBox = nullptr;
    QStackedWidget *pages = nullptr;
    QPushButton *imgSetLab[3] = {};
    LinkLabel *labMD[5] = {};
    QLabel *labJxNum[3] = {};
    LinkLabel *labsetJx = nullptr;
    LinkLabel *labHelp = nullptr;  // shown when the deployment names a tutorial page
    QComboBox *ComboMB = nullptr;
    QLineEdit *txtBTm = nullptr;
    QLineEdit *txtBTs = nullptr;
    QLineEdit *txtW = nullptr;
    QLineEdit *txtH = nullptr;
    QLineEdit *txtBgImg = nullptr;
    LinkLabel *labJmSet = nullptr;
    LinkLabel *labHF = nullptr;
    QPushButton *cmdSave = nullptr;
    QPushButton *cmdEditSkin = nullptr;
    QWidget *picView = nullptr;
    Stage *previewStage = nullptr;
    QTimer tmMove;
    qint64 luckTotal = 0;

Q_SIGNALS:
    // The operator asked for the draw screen (through the wizard or directly).
    void drawRequested();

private:
    QWidget *buildBanner();
    QWidget *buildHome();
    QWidget *buildPanel();
    QWidget *buildRosterPage();
    QWidget *buildAwardPage();
    QWidget *buildInterfacePage();
    void selectPage(int index);
    void openSettings();
    void openStart();
    void openTool(int index);
    void openRosterAction(int index);
    void comingSoon(const QString &screen);
    void resetDraw();

    // The interface page (consolewindow_templates.cpp).
    void createPreviewStage();
    void onPreviewCommand(const QString &command, const QString &args);
    void listTemplates();
    void loadTemplate();
    void cmdSave_Click();
    void labJmSet_Click();
    void labHF_Click();
    void openDesigner();

    std::unique_ptr<Stage> m_preview;
    bool skipSkinSave = false;
    bool skinListing = false;
};
