#pragma once

#include <QDialog>
#include <QImage>

class QCamera;
class QImageCapture;
class QLabel;
class QMediaCaptureSession;
class QPushButton;
class QSoundEffect;
class QVideoWidget;

// Takes a photo with the webcam: live picture, "拍照" freezes a frame, "保存" writes it to
// Photos/camertemp.jpg (JPEG, quality 100) and hands the path to the caller through saved().
// "重拍" goes back to the live picture. Without a camera only "取消" works.
class CameraCaptureDialog : public QDialog {
    Q_OBJECT
public:
    explicit CameraCaptureDialog(QWidget *parent = nullptr);
    ~CameraCaptureDialog() override;

    // Runs the dialog modally for appState().cameraCaller; the saved file, or an empty text when
    // no photo was taken.
    static QString takePhoto(QWidget *parent);

    QPushButton *cmdOk = nullptr;
    QPushButton *cmdEsc = nullptr;
    QLabel *labInfo = nullptr;
    QLabel *picBox = nullptr;

    // Starts the camera (as the dialog's timer does once it is shown); false without one.
    bool openCamera();
    // The frozen frame, as the capture handed it over (tests put one here).
    void freeze(const QImage &frame);

Q_SIGNALS:
    void saved(const QString &path);

private:
    void cmdOkClicked();
    void cmdEscClicked();
    void closeCamera();
    // The shutter sound, when the program folder has one.
    void playShutter();

    QWidget *picPhoto = nullptr;
    QVideoWidget *preview = nullptr;
    QCamera *camera = nullptr;
    QImageCapture *capture = nullptr;
    QMediaCaptureSession *session = nullptr;
    QSoundEffect *shutter = nullptr;
    QImage frozen;
};
