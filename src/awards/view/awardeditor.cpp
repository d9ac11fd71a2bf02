#include "awards/view/awardeditor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QTimer>
#include <QVBoxLayout>

#include "awards/view/camerahook.h"
#include "chrome/widgethelpers.h"
#include "chrome/widgets.h"
#include "core/appstate.h"
#include "core/helpers.h"
#include "core/ui.h"
#include "stage/protocol.h"
#include "stage/view/stagefactory.h"

namespace {

// The picture viewer's size on the editor.
constexpr int kViewerWidth = 189;
constexpr int kViewerHeight = 152;

QLineEdit *numberBox(const QString &name, QWidget *parent, int digits, int width) {
    auto *edit = new QLineEdit(QStringLiteral("0"), parent);
    edit->setObjectName(name);
    edit->setMaxLength(digits);
    edit->setFixedWidth(width);
    edit->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), edit));
    selectAllOnFocus(edit);
    return edit;
}

QLabel *hint(const QString &text, QWidget *parent) {
    auto *label = new QLabel(text, parent);
    label->setProperty("role", "hint");
    return label;
}

}  // namespace

AwardEditor::AwardEditor(const QString &caller, const QString &filter, QWidget *parent)
    : QWidget(parent), m_caller(caller), m_filter(filter) {
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(16);
    layout->addWidget(buildFields(), 1);
    layout->addWidget(buildPicture(), 0, Qt::AlignTop);
    connect(m_rangeCombo, &QComboBox::currentIndexChanged, this, &AwardEditor::showRangeFields);
    showRangeFields();
}

AwardEditor::~AwardEditor() = default;

QWidget *AwardEditor::buildFields() {
    auto *page = new QWidget(this);
    m_nameEdit = new QLineEdit(page);
    m_nameEdit->setObjectName(QStringLiteral("awardNameEdit"));
    m_nameEdit->setMaxLength(100);
    m_slotsEdit = numberBox(QStringLiteral("slotsEdit"), page, 6, 72);
    m_batchesEdit = numberBox(QStringLiteral("batchesEdit"), page, 6, 72);
    m_prizeEdit = new QLineEdit(page);
    m_prizeEdit->setObjectName(QStringLiteral("prizeEdit"));
    m_prizeEdit->setMaxLength(100);
    m_rangeCombo = new ChevronCombo(page);
    m_rangeCombo->setObjectName(QStringLiteral("rangeCombo"));
    m_rangeCombo->addItems(awardtext::rangeItems());
    m_rangeCombo->setMinimumWidth(132);
    m_rangeCombo->setStyleSheet(QStringLiteral(
        "QComboBox::drop-down { subcontrol-origin: padding; subcontrol-position: center right;"
        " width: 22px; border: none; }"));
    m_rangeFromEdit = numberBox(QStringLiteral("rangeFromEdit"), page, 5, 64);
    m_rangeToEdit = numberBox(QStringLiteral("rangeToEdit"), page, 5, 64);
    m_rangeDash = new QLabel(QStringLiteral("-"), page);
    m_rangeDash->setObjectName(QStringLiteral("rangeDash"));
    m_excludeWinnersCheck = new QCheckBox(tr("排除已中奖的人"), page);
    m_excludeWinnersCheck->setObjectName(QStringLiteral("excludeWinnersCheck"));

    auto *counts = new QHBoxLayout;
    counts->addWidget(m_slotsEdit);
    counts->addSpacing(18);
    counts->addWidget(new QLabel(tr("抽奖批次："), page));
    counts->addWidget(m_batchesEdit);
    counts->addSpacing(4);
    counts->addWidget(hint(tr("(分几次抽取)"), page));
    counts->addStretch();
    auto *range = new QHBoxLayout;
    range->setSpacing(6);
    range->addWidget(m_rangeCombo);
    range->addSpacing(4);
    range->addWidget(m_rangeFromEdit);
    range->addWidget(m_rangeDash);
    range->addWidget(m_rangeToEdit);
    range->addStretch();
    auto *reLuck = new QHBoxLayout;
    reLuck->addWidget(m_excludeWinnersCheck);
    reLuck->addWidget(hint(tr("(禁止重复中奖)"), page));
    reLuck->addStretch();

    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(10);
    grid->addWidget(new QLabel(tr("奖项名称："), page), 0, 0);
    grid->addWidget(m_nameEdit, 0, 1);
    grid->addWidget(new QLabel(tr("奖品名额："), page), 1, 0);
    grid->addLayout(counts, 1, 1);
    grid->addWidget(new QLabel(tr("奖品名称："), page), 2, 0);
    grid->addWidget(m_prizeEdit, 2, 1);
    grid->addWidget(new QLabel(tr("编号范围："), page), 3, 0);
    grid->addLayout(range, 3, 1);
    grid->addLayout(reLuck, 4, 1);
    grid->setRowStretch(5, 1);
    grid->setColumnStretch(1, 1);
    return page;
}

QWidget *AwardEditor::buildPicture() {
    auto *box = new QWidget(this);
    auto *title = new QLabel(tr("奖品图片"), box);
    title->setProperty("role", "heading");
    auto *pictureFrame = new QFrame(box);
    pictureFrame->setObjectName(QStringLiteral("pictureFrame"));
    pictureFrame->setFixedSize(kViewerWidth + 2, kViewerHeight + 2);
    pictureFrame->setStyleSheet(
        QStringLiteral("#pictureFrame { background: white; border: 1px solid rgb(220,170,174); "
                       "border-radius: 4px; }"));
    m_emptyPicture = new QLabel(tr("暂无奖品图片"), pictureFrame);
    m_emptyPicture->setProperty("role", "hint");
    m_emptyPicture->setAlignment(Qt::AlignCenter);
    m_emptyPicture->setGeometry(1, 1, kViewerWidth, kViewerHeight);

    m_viewer = createStage(pictureFrame);
    if (QWidget *view = m_viewer->widget()) {
        view->setParent(pictureFrame);
        view->setGeometry(1, 1, kViewerWidth, kViewerHeight);
        view->show();
    }
    connect(m_viewer.get(), &Stage::commandReceived, this, &AwardEditor::onViewerCommand);
    m_viewer->loadMovie(appState().path(appState().moviePhoto));

    m_cameraButton = new QPushButton(tr("拍照"), box);
    m_cameraButton->setObjectName(QStringLiteral("cameraButton"));
    m_fileButton = new QPushButton(tr("选择图片"), box);
    m_fileButton->setObjectName(QStringLiteral("choosePictureButton"));
    m_removeButton = new QPushButton(tr("删除图片"), box);
    m_removeButton->setObjectName(QStringLiteral("removePictureButton"));
    // The camera lives with the roster; until it is registered the button stays hidden.
    m_cameraButton->setVisible(bool(awardcamera::shot()));
    auto *tools = new QHBoxLayout;
    tools->setSpacing(6);
    for (QPushButton *button : {m_cameraButton, m_fileButton, m_removeButton}) {
        button->setStyleSheet(QStringLiteral("padding: 4px 8px; min-width: 0;"));
        tools->addWidget(button);
    }
    connect(m_cameraButton, &QPushButton::clicked, this, &AwardEditor::takePhoto);
    connect(m_fileButton, &QPushButton::clicked, this, &AwardEditor::chooseFile);
    connect(m_removeButton, &QPushButton::clicked, this, &AwardEditor::removePicture);

    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(title);
    layout->addWidget(pictureFrame);
    layout->addLayout(tools);
    return box;
}

void AwardEditor::onViewerCommand(const QString &command, const QString &args) {
    if (command == proto::cmd::loadok) {
        m_viewerReady = true;
        m_viewer->setVariable(proto::vbAddImg, m_pendingPicture);
    } else if (command == proto::cmd::msg) {
        ui().message(args, MsgStyle::Information, tr("AS 消息"));
    }
}

void AwardEditor::showPicture(const QString &path) {
    const QString sent = normalizeSlashes(path);
    m_pendingPicture = sent;
    m_emptyPicture->setVisible(sent.isEmpty());
    // Before the movie says it is ready the picture waits; loadok sends it.
    if (m_viewerReady) m_viewer->setVariable(proto::vbAddImg, sent);
}

AwardInput AwardEditor::input() const {
    AwardInput input;
    input.JXName = m_nameEdit->text();
    input.JXNum = m_slotsEdit->text();
    input.JXGroup = m_batchesEdit->text();
    input.JPName = m_prizeEdit->text();
    input.txtPhoto = m_picture;
    input.isReLuck = m_excludeWinnersCheck->isChecked();
    input.RangeType = m_rangeCombo->currentIndex();
    input.RangeNum1 = m_rangeFromEdit->text();
    input.RangeNum2 = m_rangeToEdit->text();
    return input;
}

void AwardEditor::fill(const AwardRow &row) {
    if (!row.JPPhoto.trimmed().isEmpty()) {
        const QString path = appState().path(row.JPPhoto.trimmed());
        showPicture(path);
        m_picture = path;
    } else {
        showPicture(QString());
        m_picture = QStringLiteral("no");
    }
    m_nameEdit->setText(row.JXName);
    m_slotsEdit->setText(QString::number(row.JXNum));
    m_batchesEdit->setText(QString::number(row.JXGroup));
    m_prizeEdit->setText(row.JPName);
    m_excludeWinnersCheck->setChecked(row.isReLuck != 0);
    m_rangeCombo->setCurrentIndex(row.RangeType >= 0 && row.RangeType <= 4 ? row.RangeType : 0);
    m_rangeFromEdit->setText(QString::number(row.RangeNum1));
    m_rangeToEdit->setText(QString::number(row.RangeNum2));
}

void AwardEditor::clear() {
    showPicture(QString());
    m_picture = QStringLiteral("no");
    m_nameEdit->clear();
    m_prizeEdit->clear();
    m_slotsEdit->setText(QStringLiteral("0"));
    m_batchesEdit->setText(QStringLiteral("0"));
}

void AwardEditor::setExcludeWinners(bool exclude) {
    m_excludeWinnersCheck->setChecked(exclude);
}

void AwardEditor::focusField(AwardField field) {
    QLineEdit *edit = nullptr;
    switch (field) {
        case AwardField::JxName:
            edit = m_nameEdit;
            break;
        case AwardField::JxNum:
            edit = m_slotsEdit;
            break;
        case AwardField::JxGroup:
            edit = m_batchesEdit;
            break;
        case AwardField::JpName:
            edit = m_prizeEdit;
            break;
        case AwardField::RangeNum2:
            edit = m_rangeToEdit;
            break;
        case AwardField::None:
            return;
    }
    edit->setFocus();
}

void AwardEditor::setPictureToolsEnabled(bool enabled) {
    for (QPushButton *button : {m_cameraButton, m_fileButton, m_removeButton})
        button->setEnabled(enabled);
}

void AwardEditor::showRangeFields() {
    const int type = m_rangeCombo->currentIndex();
    m_rangeFromEdit->setVisible(type >= 1);
    m_rangeDash->setVisible(type == 4);
    m_rangeToEdit->setVisible(type == 4);
}

void AwardEditor::chooseFile() {
    const QString file =
        ui().openFile(tr("添加奖品图片"), appState().appPath, dialogFilter(m_filter));
    if (file.trimmed().isEmpty()) return;
    showPicture(file);
    m_picture = file;
}

void AwardEditor::removePicture() {
    showPicture(QString());
    m_picture = QStringLiteral("no");
}

void AwardEditor::takePhoto() {
    const awardcamera::Shot &shot = awardcamera::shot();
    if (!shot) return;
    const QString file = shot(window(), m_caller);
    if (file.isEmpty()) return;
    showPicture(file);
    m_picture = file == appState().path(AwardBook::kCameraFile) ? QStringLiteral("camre") : file;
}
