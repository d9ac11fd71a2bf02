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
#include "roster/photoimport.h"

namespace {
const QString kTake = QStringLiteral("拍照");
const QString kSave = QStringLiteral("保存");
const QString kCancel = QStringLiteral("取消");
const QString kRetake = QStringLiteral("重拍");
}  // namespace

CameraCaptureDialog::CameraCaptureDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("拍照"));
    picPhoto = new QWidget(this);
    picPhoto->setFixedSize(600, 450);
    picPhoto->setStyleSheet(QStringLiteral("background:#202024;"));
    auto *stack = new QStackedLayout(picPhoto);
    stack->setStackingMode(QStackedLayout::StackAll);
    labInfo = new QLabel(QStringLiteral("正在开启摄像头..."), picPhoto);
    labInfo->setAlignment(Qt::AlignCenter);
    labInfo->setStyleSheet(QStringLiteral("color:#e8e8ee; font-size:16px;"));
    picBox = new QLabel(picPhoto);
    picBox->setAlignment(Qt::AlignCenter);
    picBox->hide();
    stack->addWidget(labInfo);
    stack->addWidget(picBox);

    cmdOk = new QPushButton(kTake, this);
    cmdEsc = new QPushButton(kCancel, this);
    cmdOk->setEnabled(false);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOk);
    buttons->addWidget(cmdEsc);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(picPhoto);
    layout->addLayout(buttons);
    connect(cmdOk, &QPushButton::clicked, this, &CameraCaptureDialog::cmdOkClicked);
    connect(cmdEsc, &QPushButton::clicked, this, &CameraCaptureDialog::cmdEscClicked);
    QTimer::singleShot(0, this, &CameraCaptureDialog::openCamera);
}

CameraCaptureDialog::~CameraCaptureDialog() {
    closeCamera();
}

QString CameraCaptureDialog::takePhoto(QWidget *parent) {
    CameraCaptureDialog camera(parent);
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
        labInfo->setText(QStringLiteral("打开摄像头失败..."));
        labInfo->show();
        return false;
    }
    session = new QMediaCaptureSession(this);
    camera = new QCamera(device, this);
    capture = new QImageCapture(this);
    preview = new QVideoWidget(picPhoto);
    preview->setGeometry(0, 0, 600, 450);
    session->setCamera(camera);
    session->setImageCapture(capture);
    session->setVideoOutput(preview);
    connect(camera, &QCamera::errorOccurred, this, [this] {
        labInfo->setText(QStringLiteral("打开摄像头失败..."));
        labInfo->show();
        cmdOk->setEnabled(false);
    });
    connect(capture, &QImageCapture::imageCaptured, this,
            [this](int, const QImage &image) { freeze(image); });
    camera->start();
    preview->show();
    labInfo->hide();
    cmdOk->setEnabled(true);
    return true;
}

void CameraCaptureDialog::playShutter() {
    const QString sound = appState().path(QStringLiteral("sys/1.wav"));
    if (!QFile::exists(sound)) return;
    if (!shutter) shutter = new QSoundEffect(this);
    shutter->setSource(QUrl::fromLocalFile(sound));
    shutter->play();
}

void CameraCaptureDialog::closeCamera() {
    if (camera) camera->stop();
    delete preview;
    delete capture;
    delete camera;
    delete session;
    preview = nullptr;
    capture = nullptr;
    camera = nullptr;
    session = nullptr;
}

void CameraCaptureDialog::freeze(const QImage &frame) {
    frozen = frame;
    closeCamera();
    picBox->setPixmap(
        QPixmap::fromImage(frame.scaled(600, 450, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    picBox->show();
    labInfo->hide();
    cmdOk->setText(kSave);
    cmdOk->setEnabled(true);
    cmdEsc->setText(kRetake);
}

void CameraCaptureDialog::cmdOkClicked() {
    if (cmdOk->text() == kTake) {
        if (capture && capture->isReadyForCapture()) {
            playShutter();
            cmdOk->setEnabled(false);
            capture->capture();
        }
        return;
    }
    const QString path = appState().path(QStringLiteral("Photos/camertemp.jpg"));
    if (!photoimport::saveJpeg(frozen, path)) return;
    emit saved(path);
    accept();
}

void CameraCaptureDialog::cmdEscClicked() {
    if (cmdEsc->text() == kRetake) {
        cmdOk->setText(kTake);
        cmdEsc->setText(kCancel);
        cmdOk->setEnabled(false);
        picBox->hide();
        labInfo->setText(QStringLiteral("正在开启摄像头..."));
        labInfo->show();
        QTimer::singleShot(0, this, &CameraCaptureDialog::openCamera);
        return;
    }
    reject();
}
