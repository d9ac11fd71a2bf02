#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSlider;
class QTabWidget;

// The draw wizard: what scrolls on the stage, how fast, and whether names are masked. Opened as
// settings ("guidebtn") or on the way into the draw ("startbtn"); in the second case an accepted
// wizard means "open the draw screen now".
class DrawWizardDialog : public QDialog {
    Q_OBJECT
public:
    explicit DrawWizardDialog(QWidget *parent = nullptr);

    QTabWidget *sTab = nullptr;
    QRadioButton *Opt0 = nullptr;
    QRadioButton *Opt1 = nullptr;
    QRadioButton *Opt2 = nullptr;
    QSlider *sldSpeed = nullptr;
    QCheckBox *chkMsg = nullptr;
    QCheckBox *chkIsHideName = nullptr;
    QLineEdit *txtLeft = nullptr;
    QLineEdit *txtRight = nullptr;
    QLineEdit *txtReStr = nullptr;
    QLabel *labSS = nullptr;
    QLabel *labDemo = nullptr;
    QPushButton *cmdOk = nullptr;
    QPushButton *cmdEsc = nullptr;

private:
    QWidget *buildModePage();
    QWidget *buildMaskPage();
    void loadSettings();
    void runDemo();
    void onOk();
};
