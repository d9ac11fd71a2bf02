#pragma once

#include <QDialog>
#include <QString>

#include <array>
#include <memory>

#include "sound/musicsettings.h"

class QCheckBox;
class QFrame;
class QLabel;
class QPushButton;
class MusicPlayer;

// "音乐设置": a sound for each moment of the draw (background, start, win, parade), each switched
// on or off and tried here. Saving copies the chosen files into Music/.
class MusicSettingsDialog : public QDialog {
    Q_OBJECT
public:
    explicit MusicSettingsDialog(QWidget *parent = nullptr);
    ~MusicSettingsDialog() override;

private:
    // One row: the switch, the file name shown in a frame with its three buttons, and the full
    // path of the chosen file.
    struct SoundRow {
        QCheckBox *enabledBox = nullptr;
        QFrame *frame = nullptr;
        QLabel *fileLabel = nullptr;
        QPushButton *chooseButton = nullptr;
        QPushButton *listenButton = nullptr;
        QPushButton *stopButton = nullptr;
        QString path;
    };

    QWidget *buildRows();
    void load();
    void setPath(int row, const QString &path);
    void applyRowEnabling(int row);
    void applyListenRule(int row);
    void chooseFile(int row);
    void startListening(int row);
    void stopListening();
    void finishListening();
    void releasePlayer();
    void save();

    // In the order of music::Slot.
    std::array<SoundRow, music::SlotCount> m_rows;
    QPushButton *m_saveButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
    std::unique_ptr<MusicPlayer> m_player;
    int m_listeningRow = -1;
};
