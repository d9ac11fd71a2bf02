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

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *buildKeyRows();
    QWidget *buildGuardRow();
    void load();
    void setKeyText(int row, const QString &text, bool bad);
    void keyPressed(int row, int code);
    void showGuardTime(int seconds);
    void save();

    QList<QLineEdit *> m_keyEdits;
    QList<QLabel *> m_savedTicks;
    QList<int> m_codes;  // what saving writes per row, 0 for none
    QCheckBox *m_guardBox = nullptr;
    QSlider *m_guardSlider = nullptr;
    QLabel *m_guardLabel = nullptr;
    QPushButton *m_saveButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
};
