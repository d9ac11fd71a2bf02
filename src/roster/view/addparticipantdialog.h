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

    // The ID of the participant just added (0 before).
    int addedId() const { return m_addedId; }

private:
    // "添加": validates, stores the participant and closes; stays open when something stops it.
    void addParticipant();

    QLineEdit *m_nameEdit = nullptr;
    QLineEdit *m_remarkEdit = nullptr;
    QLineEdit *m_diffNumEdit = nullptr;
    QLineEdit *m_photoStateEdit = nullptr;  // hidden: "no", "camre" or a chosen file
    PictureBox *m_pictureBox = nullptr;
    QToolBar *m_photoToolbar = nullptr;
    QPushButton *m_addButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
    int m_addedId = 0;
};
