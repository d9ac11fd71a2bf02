#pragma once

#include <QWidget>

#include <memory>

#include "awards/awardbook.h"

class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class Stage;

// The fields of one award and its prize picture, shared by the award manager and the add-award
// dialog. The picture is shown by a small viewer stage; txtPhoto keeps the picture state
// ("no", "camre" or the path of a picture file) until the dialog saves.
class AwardEditor : public QWidget {
    Q_OBJECT
public:
    // caller is the name the camera is told ("AwardManagerDialog" or "AddAwardDialog"); filter is
    // the file dialog's filter in "text|patterns|text|patterns" form.
    AwardEditor(const QString &caller, const QString &filter, QWidget *parent = nullptr);
    ~AwardEditor() override;

    QLineEdit *txtJxName = nullptr;
    QLineEdit *txtJxNum = nullptr;
    QLineEdit *txtJxGroup = nullptr;
    QLineEdit *txtJpName = nullptr;
    QComboBox *ComboRange = nullptr;
    QLineEdit *txtRangeNum1 = nullptr;
    QLineEdit *txtRangeNum2 = nullptr;
    QLabel *Label7 = nullptr;
    QCheckBox *chkIsReLuck = nullptr;
    QLineEdit *txtPhoto = nullptr;  // hidden
    QFrame *picPhoto = nullptr;
    QPushButton *cmdCamera = nullptr;
    QPushButton *cmdFile = nullptr;
    QPushButton *cmdRemove = nullptr;
    Stage *imgView = nullptr;

    AwardInput input() const;
    // Loads a stored award, picture included.
    void fill(const AwardRow &row);
    // The empty editor: no texts, counts "0", no picture.
    void clear();
    void focusField(AwardField field);
    // Sends a picture to the viewer (absolute path, or empty to clear it).
    void showPicture(const QString &path);
    void setPictureToolsEnabled(bool enabled);

    void chooseFile();
    void removePicture();
    void takePhoto();
    // ComboRange's item decides which range boxes show.
    void showRangeFields();

private:
    QWidget *buildFields();
    QWidget *buildPicture();
    void onViewerCommand(const QString &command, const QString &args);

    QString m_caller;
    QString m_filter;
    std::unique_ptr<Stage> m_viewer;
    QLabel *m_emptyPicture = nullptr;
    bool m_viewerReady = false;
    QString m_pendingPicture;
};
