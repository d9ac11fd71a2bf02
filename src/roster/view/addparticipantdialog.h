#pragma once

#include <QDialog>

class QLineEdit;
class QPushButton;
class QToolBar;
class PictureBox;

// Adds one participant by hand, with a picture from a file or the camera.
class AddParticipantDialog : public QDialog {
    Q_OBJECT
public:
    explicit AddParticipantDialog(QWidget *parent = nullptr);

    QLineEdit *txtUserName = nullptr;
    QLineEdit *txtUserPart = nullptr;
    QLineEdit *txtDiffNum = nullptr;
    QLineEdit *txtIsPhoto = nullptr;  // hidden picture state
    PictureBox *imgViewBox = nullptr;
    QToolBar *toolPhoto = nullptr;
    QPushButton *cmdOk = nullptr;
    QPushButton *cmdEsc = nullptr;

    // "添加": validates, stores the participant and closes; false when something stopped it.
    bool cmdOkClicked();
    // The ID of the participant just added (0 before).
    int addedId() const { return m_addedId; }

private:
    int m_addedId = 0;
};
