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

QLineEdit *numberBox(QWidget *parent, int digits, int width) {
    auto *edit = new QLineEdit(QStringLiteral("0"), parent);
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
    connect(ComboRange, &QComboBox::currentIndexChanged, this, &AwardEditor::showRangeFields);
    showRangeFields();
}

AwardEditor::~AwardEditor() = default;

QWidget *AwardEditor::buildFields() {
    auto *page = new QWidget(this);
    txtJxName = new QLineEdit(page);
    txtJxName->setMaxLength(100);
    txtJxNum = numberBox(page, 6, 72);
    txtJxGroup = numberBox(page, 6, 72);
    txtJpName = new QLineEdit(page);
    txtJpName->setMaxLength(100);
    ComboRange = new ChevronCombo(page);
    ComboRange->addItems(awardtext::rangeItems());
    ComboRange->setMinimumWidth(132);
    ComboRange->setStyleSheet(QStringLiteral(
        "QComboBox::drop-down { subcontrol-origin: padding; subcontrol-position: center right;"
        " width: 22px; border: none; }"));
    txtRangeNum1 = numberBox(page, 5, 64);
    txtRangeNum2 = numberBox(page, 5, 64);
    Label7 = new QLabel(QStringLiteral("-"), page);
    chkIsReLuck = new QCheckBox(QStringLiteral("排除已中奖的人"), page);
    txtPhoto = new QLineEdit(QStringLiteral("no"), page);
    txtPhoto->hide();

    auto *counts = new QHBoxLayout;
    counts->addWidget(txtJxNum);
    counts->addSpacing(18);
    counts->addWidget(new QLabel(QStringLiteral("抽奖批次："), page));
    counts->addWidget(txtJxGroup);
    counts->addSpacing(4);
    counts->addWidget(hint(QStringLiteral("(分几次抽取)"), page));
    counts->addStretch();
    auto *range = new QHBoxLayout;
    range->setSpacing(6);
    range->addWidget(ComboRange);
    range->addSpacing(4);
    range->addWidget(txtRangeNum1);
    range->addWidget(Label7);
    range->addWidget(txtRangeNum2);
    range->addStretch();
    auto *reLuck = new QHBoxLayout;
    reLuck->addWidget(chkIsReLuck);
    reLuck->addWidget(hint(QStringLiteral("(禁止重复中奖)"), page));
    reLuck->addStretch();

    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(10);
    grid->addWidget(new QLabel(QStringLiteral("奖项名称："), page), 0, 0);
    grid->addWidget(txtJxName, 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("奖品名额："), page), 1, 0);
    grid->addLayout(counts, 1, 1);
    grid->addWidget(new QLabel(QStringLiteral("奖品名称："), page), 2, 0);
    grid->addWidget(txtJpName, 2, 1);
    grid->addWidget(new QLabel(QStringLiteral("编号范围："), page), 3, 0);
    grid->addLayout(range, 3, 1);
    grid->addLayout(reLuck, 4, 1);
    grid->setRowStretch(5, 1);
    grid->setColumnStretch(1, 1);
    return page;
}

QWidget *AwardEditor::buildPicture() {
    auto *box = new QWidget(this);
    auto *title = new QLabel(QStringLiteral("奖品图片"), box);
    title->setProperty("role", "heading");
    picPhoto = new QFrame(box);
    picPhoto->setObjectName(QStringLiteral("picPhoto"));
    picPhoto->setFixedSize(kViewerWidth + 2, kViewerHeight + 2);
    picPhoto->setStyleSheet(
        QStringLiteral("#picPhoto { background: white; border: 1px solid rgb(220,170,174); "
                       "border-radius: 4px; }"));
    m_emptyPicture = new QLabel(QStringLiteral("暂无奖品图片"), picPhoto);
    m_emptyPicture->setProperty("role", "hint");
    m_emptyPicture->setAlignment(Qt::AlignCenter);
    m_emptyPicture->setGeometry(1, 1, kViewerWidth, kViewerHeight);

    m_viewer = createStage(picPhoto);
    imgView = m_viewer.get();
    if (QWidget *view = m_viewer->widget()) {
        view->setParent(picPhoto);
        view->setGeometry(1, 1, kViewerWidth, kViewerHeight);
        view->show();
    }
    connect(m_viewer.get(), &Stage::commandReceived, this, &AwardEditor::onViewerCommand);
    m_viewer->loadMovie(appState().path(appState().moviePhoto));

    cmdCamera = new QPushButton(QStringLiteral("拍照"), box);
    cmdFile = new QPushButton(QStringLiteral("选择图片"), box);
    cmdRemove = new QPushButton(QStringLiteral("删除图片"), box);
    // The camera lives with the roster; until it is registered the button stays hidden.
    cmdCamera->setVisible(bool(awardcamera::shot()));
    auto *tools = new QHBoxLayout;
    tools->setSpacing(6);
    for (QPushButton *button : {cmdCamera, cmdFile, cmdRemove}) {
        button->setStyleSheet(QStringLiteral("padding: 4px 8px; min-width: 0;"));
        tools->addWidget(button);
    }
    connect(cmdCamera, &QPushButton::clicked, this, &AwardEditor::takePhoto);
    connect(cmdFile, &QPushButton::clicked, this, &AwardEditor::chooseFile);
    connect(cmdRemove, &QPushButton::clicked, this, &AwardEditor::removePicture);

    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(title);
    layout->addWidget(picPhoto);
    layout->addLayout(tools);
    return box;
}

void AwardEditor::onViewerCommand(const QString &command, const QString &args) {
    if (command == proto::cmd::loadok) {
        m_viewerReady = true;
        m_viewer->setVariable(proto::vbAddImg, m_pendingPicture);
    } else if (command == proto::cmd::msg) {
        ui().message(args, MsgStyle::Information, QStringLiteral("AS 消息"));
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
    input.JXName = txtJxName->text();
    input.JXNum = txtJxNum->text();
    input.JXGroup = txtJxGroup->text();
    input.JPName = txtJpName->text();
    input.txtPhoto = txtPhoto->text();
    input.isReLuck = chkIsReLuck->isChecked();
    input.RangeType = ComboRange->currentIndex();
    input.RangeNum1 = txtRangeNum1->text();
    input.RangeNum2 = txtRangeNum2->text();
    return input;
}

void AwardEditor::fill(const AwardRow &row) {
    if (!row.JPPhoto.trimmed().isEmpty()) {
        const QString path = appState().path(row.JPPhoto.trimmed());
        showPicture(path);
        txtPhoto->setText(path);
    } else {
        showPicture(QString());
        txtPhoto->setText(QStringLiteral("no"));
    }
    txtJxName->setText(row.JXName);
    txtJxNum->setText(QString::number(row.JXNum));
    txtJxGroup->setText(QString::number(row.JXGroup));
    txtJpName->setText(row.JPName);
    chkIsReLuck->setChecked(row.isReLuck != 0);
    ComboRange->setCurrentIndex(row.RangeType >= 0 && row.RangeType <= 4 ? row.RangeType : 0);
    txtRangeNum1->setText(QString::number(row.RangeNum1));
    txtRangeNum2->setText(QString::number(row.RangeNum2));
}

void AwardEditor::clear() {
    showPicture(QString());
    txtPhoto->setText(QStringLiteral("no"));
    txtJxName->clear();
    txtJpName->clear();
    txtJxNum->setText(QStringLiteral("0"));
    txtJxGroup->setText(QStringLiteral("0"));
}

void AwardEditor::focusField(AwardField field) {
    QLineEdit *edit = nullptr;
    switch (field) {
        case AwardField::JxName:
            edit = txtJxName;
            break;
        case AwardField::JxNum:
            edit = txtJxNum;
            break;
        case AwardField::JxGroup:
            edit = txtJxGroup;
            break;
        case AwardField::JpName:
            edit = txtJpName;
            break;
        case AwardField::RangeNum2:
            edit = txtRangeNum2;
            break;
        case AwardField::None:
            return;
    }
    edit->setFocus();
}

void AwardEditor::setPictureToolsEnabled(bool enabled) {
    for (QPushButton *button : {cmdCamera, cmdFile, cmdRemove})
        button->setEnabled(enabled);
}

void AwardEditor::showRangeFields() {
    const int type = ComboRange->currentIndex();
    txtRangeNum1->setVisible(type >= 1);
    Label7->setVisible(type == 4);
    txtRangeNum2->setVisible(type == 4);
}

void AwardEditor::chooseFile() {
    const QString file =
        ui().openFile(QStringLiteral("添加奖品图片"), appState().appPath, dialogFilter(m_filter));
    if (file.trimmed().isEmpty()) return;
    showPicture(file);
    txtPhoto->setText(file);
}

void AwardEditor::removePicture() {
    showPicture(QString());
    txtPhoto->setText(QStringLiteral("no"));
}

void AwardEditor::takePhoto() {
    const awardcamera::Shot &shot = awardcamera::shot();
    if (!shot) return;
    const QString file = shot(window(), m_caller);
    if (file.isEmpty()) return;
    showPicture(file);
    txtPhoto->setText(file == appState().path(AwardBook::kCameraFile) ? QStringLiteral("camre")
                                                                      : file);
}
