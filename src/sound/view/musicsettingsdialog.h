#pragma once

#include <QDialog>
#include <QTimer>

#include <array>
#include <memory>

#include "sound/musicsettings.h"

class QCheckBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class MusicPlayer;

// "音乐设置": a sound for each moment of the draw (background, start, win, parade), each switched
// on or off and tried here. Saving copies the chosen files into Music/.
class MusicSettingsDialog : public QDialog {
    Q_OBJECT
public:
    // One row: the check box, the hidden path, the file name shown, and its three buttons.
    struct Row {
        QCheckBox *chk = nullptr;
        QFrame *frame = nullptr;
        QLineEdit *txt = nullptr;
        QLabel *lab = nullptr;
        QPushButton *cmdSet = nullptr;
        QPushButton *cmdTest = nullptr;
        QPushButton *cmdStop = nullptr;
    };

    explicit MusicSettingsDialog(QWidget *parent = nullptr);
    ~MusicSettingsDialog() override;

    // In the order of music::Slot: chkBg/txtBg/labBg..., chkStart..., chkLuck..., chkPlay...
    std::array<Row, music::SlotCount> rows;
    QPushButton *cmdSave = nullptr;
    QPushButton *cmdCancel = nullptr;
    QTimer tmM;

    // The row being listened to, 1 to 4; 0 for none.
    int testRow() const { return m_testRow; }
    MusicPlayer *player() const { return m_player.get(); }

    void chooseFile(int row);
    void startTest(int row);
    void stopTest(int row);
    void tmM_Timer();
    void save();

private:
    QWidget *buildRows();
    void load();
    void applyRowEnabling(int row);
    void applyTestRule(int row);

    std::unique_ptr<MusicPlayer> m_player;
    int m_testRow = 0;
};
