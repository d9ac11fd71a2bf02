#pragma once

#include <QDialog>
#include <QList>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSlider;

// The hotkeys of the draw screen and the guard time between start and stop. Each row takes the
// key pressed in its box; saving writes KeyBoard and the two guard settings, then stays open so
// the ticks and the refused rows can be read.
class HotkeySettingsDialog : public QDialog {
    Q_OBJECT
public:
    explicit HotkeySettingsDialog(QWidget *parent = nullptr);

    QList<QLabel *> labT;
    QList<QLineEdit *> txtKey;
    QList<QLabel *> labCode;  // hidden: the code to save, "0" for none
    QList<QLabel *> labS;     // the tick of a saved row
    QCheckBox *chkDelay = nullptr;
    QSlider *sldDelay = nullptr;
    QLabel *labDelay = nullptr;
    QPushButton *cmdSave = nullptr;
    QPushButton *cmdCancel = nullptr;

    void onSave();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *buildKeyRows();
    QWidget *buildDelayRow();
    void load();
    void setKeyText(int row, const QString &text, bool bad);
    void keyPressed(int row, int code);
};
