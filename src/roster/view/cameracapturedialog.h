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

    // Runs the dialog modally for the screen named by caller; the saved file, or an empty text
    // when no photo was taken.
    static QString takePhoto(QWidget *parent, const QString &caller);

    // Shows a captured frame and offers to save it (the capture calls this; tests hand one in).
    void freeze(const QImage &frame);

Q_SIGNALS:
    void saved(const QString &path);

private:
    // Starts the camera, once the dialog is shown or after "重拍"; false without one.
    bool openCamera();
    void closeCamera();
    void showCameraFailure();
    // "拍照" takes a frame, "保存" stores the frozen one.
    void captureOrSave();
    // "取消" closes, "重拍" drops the frozen frame and opens the camera again.
    void cancelOrRetake();
    // The shutter sound, when the program folder has one.
    void playShutter();

    QWidget *m_screen = nullptr;
    QLabel *m_statusLabel = nullptr;
    QLabel *m_frozenLabel = nullptr;
    QPushButton *m_captureButton = nullptr;
    QPushButton *m_cancelButton = nullptr;
    QVideoWidget *m_preview = nullptr;
    QCamera *m_camera = nullptr;
    QImageCapture *m_capture = nullptr;
    QMediaCaptureSession *m_session = nullptr;
    QSoundEffect *m_shutterSound = nullptr;
    QImage m_frozen;
    QString m_caller;
};
