#pragma once

#include "chrome/framelesswindow.h"

class QHBoxLayout;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTimer;

// The console: the operator's home screen. It shows the draw's progress, opens every other
// screen, and carries a sliding settings panel with three pages (roster, awards, interface);
// the interface page is a TemplatePanel with a small live preview of the stage.
class ConsoleWindow : public FramelessWindow {
    Q_OBJECT
public:
    explicit ConsoleWindow(QWidget *parent = nullptr);

    // The award count, slot and batch sums, then the progress; after the draw screen closes.
    void refreshAwardFigures();

    // The settings panel's top edge when it is tucked away behind the banner and when it is open.
    static constexpr int kPanelHidden = -247;
    static constexpr int kPanelOpen = 96;

Q_SIGNALS:
    // The operator asked for the draw screen (through the wizard or directly).
    void drawRequested();

private:
    QWidget *buildBanner();
    QWidget *buildHome();
    QHBoxLayout *buildToolStrip(QWidget *home);
    QWidget *buildPanel();
    QWidget *buildRosterPage();
    QWidget *buildAwardPage();
    void selectPage(int index);
    void openPanel();
    void closePanel();
    void slidePanelStep();
    void openSettings();
    void openStart();
    void openWinnerList();
    void openHotkeys();
    void openMusic();
    void openWizard();
    void openPasswordSettings();
    void openAwardManager();
    void refreshProgress();
    void resetDraw();

    QLabel *m_progressLabel = nullptr;
    QLabel *m_panelProgressLabel = nullptr;
    QWidget *m_panel = nullptr;
    QStackedWidget *m_pages = nullptr;
    QPushButton *m_pageTabs[3] = {};
    QLabel *m_awardCountLabel = nullptr;
    QLabel *m_slotSumLabel = nullptr;
    QLabel *m_batchSumLabel = nullptr;
    // Slides the panel 30 pixels a tick, down into view or up behind the banner.
    QTimer *m_panelSlideTimer = nullptr;
    bool m_panelClosing = false;
    // All awards' slots together: what the progress is a share of.
    qint64 m_slotSum = 0;
};
