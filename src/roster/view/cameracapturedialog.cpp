#include "roster/view/cameracapturedialog.h"

#include <QCamera>
#include <QFile>
#include <QHBoxLayout>
#include <QImageCapture>
#include <QLabel>
#include <QMediaCaptureSession>
#include <QMediaDevices>
#include <QPushButton>
#include <QSoundEffect>
#include <QStackedLayout>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>
#include <QVideoWidget>

#include "core/appstate.h"
#include "core/language.h"
#include "core/logging.h"
#include "roster/photoimport.h"

namespace {
const TranslatedText kTake{"CameraCaptureDialog", QT_TRANSLATE_NOOP("CameraCaptureDialog", "拍照")};
const TranslatedText kSave{"CameraCaptureDialog", QT_TRANSLATE_NOOP("CameraCaptureDialog", "保存")};
const TranslatedText kCancel{"CameraCaptureDialog",
                             QT_TRANSLATE_NOOP("CameraCaptureDialog", "取消")};
const TranslatedText kRetake{"CameraCaptureDialog",
                             QT_TRANSLATE_NOOP("CameraCaptureDialog", "重拍")};
const TranslatedText kOpening{"CameraCaptureDialog",
                              QT_TRANSLATE_NOOP("CameraCaptureDialog", "正在开启摄像头...")};
constexpr QSize kScreenSize(600, 450);
}  // namespace

CameraCaptureDialog::CameraCaptureDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(tr("拍照"));
    m_screen = new QWidget(this);
    m_screen->setFixedSize(kScreenSize);
    m_screen->setStyleSheet(QStringLiteral("background:#202024;"));
    auto *stack = new QStackedLayout(m_screen);
    stack->setStackingMode(QStackedLayout::StackAll);
    m_statusLabel = new QLabel(kOpening, m_screen);
    m_statusLabel->setObjectName(QStringLiteral("statusLabel"));
    m_statusLabel->setAlignment(Qt::AlignCenter);
    m_statusLabel->setStyleSheet(QStringLiteral("color:#e8e8ee; font-size:16px;"));
    m_frozenLabel = new QLabel(m_screen);
    m_frozenLabel->setAlignment(Qt::AlignCenter);
    m_frozenLabel->hide();
    stack->addWidget(m_statusLabel);
    stack->addWidget(m_frozenLabel);

    m_captureButton = new QPushButton(kTake, this);
    m_captureButton->setObjectName(QStringLiteral("captureButton"));
    m_cancelButton = new QPushButton(kCancel, this);
    m_cancelButton->setObjectName(QStringLiteral("cancelButton"));
    m_captureButton->setEnabled(false);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_captureButton);
    buttons->addWidget(m_cancelButton);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_screen);
    layout->addLayout(buttons);
    connect(m_captureButton, &QPushButton::clicked, this, &CameraCaptureDialog::captureOrSave);
    connect(m_cancelButton, &QPushButton::clicked, this, &CameraCaptureDialog::cancelOrRetake);
    QTimer::singleShot(0, this, &CameraCaptureDialog::openCamera);
}

CameraCaptureDialog::~CameraCaptureDialog() {
    closeCamera();
}

QString CameraCaptureDialog::takePhoto(QWidget *parent, const QString &caller) {
    CameraCaptureDialog camera(parent);
    camera.m_caller = caller;
    QString saved;
    connect(&camera, &CameraCaptureDialog::saved, &camera,
            [&saved](const QString &path) { saved = path; });
    camera.exec();
    return saved;
}

bool CameraCaptureDialog::openCamera() {
    closeCamera();
    const QCameraDevice device = QMediaDevices::defaultVideoInput();
    if (device.isNull()) {
        showCameraFailure();
        return false;
    }
    m_session = new QMediaCaptureSession(this);
    m_camera = new QCamera(device, this);
    m_capture = new QImageCapture(this);
    m_preview = new QVideoWidget(m_screen);
    m_preview->setGeometry(QRect(QPoint(0, 0), kScreenSize));
    m_session->setCamera(m_camera);
    m_session->setImageCapture(m_capture);
    m_session->setVideoOutput(m_preview);
    connect(m_camera, &QCamera::errorOccurred, this, [this](QCamera::Error, const QString &text) {
        qCWarning(lcRoster) << "camera failed:" << text;
        showCameraFailure();
    });
    connect(m_capture, &QImageCapture::errorOccurred, this,
            [](int, QImageCapture::Error, const QString &text) {
                qCWarning(lcRoster) << "photo capture failed:" << text;
            });
    connect(m_capture, &QImageCapture::imageCaptured, this,
            [this](int, const QImage &image) { freeze(image); });
    m_camera->start();
    m_preview->show();
    m_statusLabel->hide();
    m_captureButton->setEnabled(true);
    return true;
}

void CameraCaptureDialog::showCameraFailure() {
    m_statusLabel->setText(tr("打开摄像头失败..."));
    m_statusLabel->show();
    m_captureButton->setEnabled(false);
}

void CameraCaptureDialog::playShutter() {
    const QString sound = appState().path(QStringLiteral("sys/1.wav"));
    if (!QFile::exists(sound)) return;
    if (!m_shutterSound) m_shutterSound = new QSoundEffect(this);
    m_shutterSound->setSource(QUrl::fromLocalFile(sound));
    m_shutterSound->play();
}

void CameraCaptureDialog::closeCamera() {
    if (m_camera) m_camera->stop();
    delete m_preview;
    delete m_capture;
    delete m_camera;
    delete m_session;
    m_preview = nullptr;
    m_capture = nullptr;
    m_camera = nullptr;
    m_session = nullptr;
}

void CameraCaptureDialog::freeze(const QImage &frame) {
    m_frozen = frame;
    closeCamera();
    m_frozenLabel->setPixmap(QPixmap::fromImage(
        frame.scaled(kScreenSize, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    m_frozenLabel->show();
    m_statusLabel->hide();
    m_captureButton->setText(kSave);
    m_captureButton->setEnabled(true);
    m_cancelButton->setText(kRetake);
}

void CameraCaptureDialog::captureOrSave() {
    if (m_captureButton->text() == kTake) {
        if (m_capture && m_capture->isReadyForCapture()) {
            playShutter();
            m_captureButton->setEnabled(false);
            m_capture->capture();
        }
        return;
    }
    const QString path = appState().path(QStringLiteral("Photos/camertemp.jpg"));
    if (!photoimport::saveJpeg(m_frozen, path)) {
        qCWarning(lcRoster) << "cannot save the camera photo to" << path;
        return;
    }
    qCDebug(lcRoster) << "camera photo saved for" << m_caller;
    emit saved(path);
    accept();
}

void CameraCaptureDialog::cancelOrRetake() {
    if (m_cancelButton->text() == kRetake) {
        m_captureButton->setText(kTake);
        m_cancelButton->setText(kCancel);
        m_captureButton->setEnabled(false);
        m_frozenLabel->hide();
        m_statusLabel->setText(kOpening);
        m_statusLabel->show();
        QTimer::singleShot(0, this, &CameraCaptureDialog::openCamera);
        return;
    }
    reject();
}
