#pragma once

#include <QWidget>

#include <memory>

#include "awards/awardbook.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class Stage;

// The fields of one award and its prize picture, shared by the award manager and the add-award
// dialog. The picture is shown by a small viewer stage; the editor keeps the picture's state
// ("no", "camre" or the path of a picture file) until the dialog saves.
class AwardEditor : public QWidget {
    Q_OBJECT
public:
    // caller is the name the camera is told ("AwardManagerDialog" or "AddAwardDialog"); filter is
    // the file dialog's filter in "text|patterns|text|patterns" form.
    AwardEditor(const QString &caller, const QString &filter, QWidget *parent = nullptr);
    ~AwardEditor() override;

    AwardInput input() const;
    // Loads a stored award, picture included.
    void fill(const AwardRow &row);
    // The empty editor: no texts, counts "0", no picture.
    void clear();
    void setExcludeWinners(bool exclude);
    void focusField(AwardField field);
    void setPictureToolsEnabled(bool enabled);

private:
    QWidget *buildFields();
    QWidget *buildPicture();
    void onViewerCommand(const QString &command, const QString &args);
    // Sends a picture to the viewer (absolute path, or empty to clear it).
    void showPicture(const QString &path);
    void chooseFile();
    void removePicture();
    void takePhoto();
    // The range type decides which range boxes show.
    void showRangeFields();

    QString m_caller;
    QString m_filter;
    QLineEdit *m_nameEdit = nullptr;
    QLineEdit *m_slotsEdit = nullptr;
    QLineEdit *m_batchesEdit = nullptr;
    QLineEdit *m_prizeEdit = nullptr;
    QComboBox *m_rangeCombo = nullptr;
    QLineEdit *m_rangeFromEdit = nullptr;
    QLineEdit *m_rangeToEdit = nullptr;
    QLabel *m_rangeDash = nullptr;
    QCheckBox *m_excludeWinnersCheck = nullptr;
    QPushButton *m_cameraButton = nullptr;
    QPushButton *m_fileButton = nullptr;
    QPushButton *m_removeButton = nullptr;
    std::unique_ptr<Stage> m_viewer;
    QLabel *m_emptyPicture = nullptr;
    bool m_viewerReady = false;
    QString m_pendingPicture;
    QString m_picture = QStringLiteral("no");
};
