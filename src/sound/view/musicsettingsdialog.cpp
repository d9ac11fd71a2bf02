#include "sound/view/musicsettingsdialog.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "chrome/widgets.h"
#include "core/appstate.h"
#include "core/helpers.h"
#include "core/language.h"
#include "core/ui.h"
#include "sound/musicplayer.h"

namespace {

const char *const kCaptions[music::SlotCount] = {
    QT_TRANSLATE_NOOP("MusicSettingsDialog", "背景音乐"),
    QT_TRANSLATE_NOOP("MusicSettingsDialog", "开始抽奖音乐"),
    QT_TRANSLATE_NOOP("MusicSettingsDialog", "中奖提示音乐"),
    QT_TRANSLATE_NOOP("MusicSettingsDialog", "播放中奖音乐")};
const char *const kTips[music::SlotCount] = {
    QT_TRANSLATE_NOOP("MusicSettingsDialog", "启用或禁止背景音乐"),
    QT_TRANSLATE_NOOP("MusicSettingsDialog", "启用或禁止抽奖音乐"),
    QT_TRANSLATE_NOOP("MusicSettingsDialog", "启用或禁止中奖音乐"), ""};
// The first word of each row's object names, by music::Slot.
const char *const kRowNames[music::SlotCount] = {"background", "start", "win", "parade"};
const TranslatedText kNotSet{"MusicSettingsDialog",
                             QT_TRANSLATE_NOOP("MusicSettingsDialog", "未设置音乐")};
const TranslatedText kFilter{
    "MusicSettingsDialog",
    QT_TRANSLATE_NOOP(
        "MusicSettingsDialog",
        "音乐文件(*.mp3,*.wav)|*.mp3;*.wav|MP3 Files(*.mp3)|*.mp3|WAV Files(*.wav)|*.wav")};

}  // namespace

MusicSettingsDialog::MusicSettingsDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(tr("音乐设置"));
    QHBoxLayout *buttons = okEscButtons(this, &m_saveButton, &m_cancelButton, tr("保存"));
    m_saveButton->setObjectName(QStringLiteral("saveButton"));
    m_cancelButton->setObjectName(QStringLiteral("cancelButton"));
    auto *hint =
        new QLabel(tr("保存时选择的音乐会复制到程序的 Music 文件夹,程序搬到别处也能找到。"), this);
    hint->setProperty("role", QStringLiteral("hint"));
    hint->setWordWrap(true);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(buildRows());
    layout->addWidget(hint);
    layout->addLayout(buttons);

    connect(m_saveButton, &QPushButton::clicked, this, &MusicSettingsDialog::save);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    load();
    setMinimumWidth(520);
    adjustSize();
    centerForm(this);
}

MusicSettingsDialog::~MusicSettingsDialog() {
    releasePlayer();
}

QWidget *MusicSettingsDialog::buildRows() {
    auto *box = new QWidget(this);
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    for (int i = 0; i < music::SlotCount; ++i) {
        SoundRow &row = m_rows[size_t(i)];
        const QString name = QLatin1String(kRowNames[i]);
        row.enabledBox = new QCheckBox(tr(kCaptions[i]), box);
        row.enabledBox->setObjectName(name + QStringLiteral("EnabledBox"));
        if (*kTips[i]) row.enabledBox->setToolTip(tr(kTips[i]));
        row.frame = new QFrame(box);
        row.frame->setObjectName(name + QStringLiteral("Frame"));
        row.frame->setFrameShape(QFrame::StyledPanel);
        row.fileLabel = new QLabel(kNotSet, row.frame);
        row.fileLabel->setObjectName(name + QStringLiteral("FileLabel"));
        row.fileLabel->setMinimumWidth(220);
        row.chooseButton = new QPushButton(tr("设置"), row.frame);
        row.chooseButton->setObjectName(name + QStringLiteral("ChooseButton"));
        row.listenButton = new QPushButton(tr("试听"), row.frame);
        row.listenButton->setObjectName(name + QStringLiteral("ListenButton"));
        row.stopButton = new QPushButton(tr("停止"), row.frame);
        row.stopButton->setObjectName(name + QStringLiteral("StopButton"));
        row.stopButton->setEnabled(false);
        auto *line = new QHBoxLayout(row.frame);
        line->setContentsMargins(8, 4, 4, 4);
        line->addWidget(row.fileLabel, 1);
        for (QPushButton *button : {row.chooseButton, row.listenButton, row.stopButton}) {
            button->setAutoDefault(false);
            button->setProperty("role", QStringLiteral("compact"));
            line->addWidget(button);
        }
        grid->addWidget(row.enabledBox, i, 0);
        grid->addWidget(row.frame, i, 1);

        connect(row.enabledBox, &QCheckBox::clicked, this, [this, i] { applyRowEnabling(i); });
        connect(row.chooseButton, &QPushButton::clicked, this, [this, i] { chooseFile(i); });
        connect(row.listenButton, &QPushButton::clicked, this, [this, i] { startListening(i); });
        connect(row.stopButton, &QPushButton::clicked, this, &MusicSettingsDialog::stopListening);
    }
    return box;
}

void MusicSettingsDialog::load() {
    const music::Settings stored = music::readSettings(appState().appPath);
    for (int i = 0; i < music::SlotCount; ++i) {
        const music::SlotSetting &setting = stored[size_t(i)];
        SoundRow &row = m_rows[size_t(i)];
        row.enabledBox->setChecked(setting.on);
        setPath(i, setting.path);
        row.fileLabel->setText(setting.path.isEmpty() ? kNotSet : setting.storedName);
        applyRowEnabling(i);
    }
}

void MusicSettingsDialog::setPath(int row, const QString &path) {
    SoundRow &r = m_rows[size_t(row)];
    r.path = path;
    r.fileLabel->setToolTip(QDir::toNativeSeparators(path));
    applyListenRule(row);
}

void MusicSettingsDialog::applyRowEnabling(int row) {
    const SoundRow &r = m_rows[size_t(row)];
    const bool on = r.enabledBox->isChecked();
    r.frame->setEnabled(on);
    r.chooseButton->setEnabled(on);
    if (!on) r.stopButton->setEnabled(false);
    applyListenRule(row);
}

void MusicSettingsDialog::applyListenRule(int row) {
    const SoundRow &r = m_rows[size_t(row)];
    r.listenButton->setEnabled(r.enabledBox->isChecked() && fileExists(r.path));
}

void MusicSettingsDialog::chooseFile(int row) {
    // The built-in drum roll and fanfare are the first choices offered.
    const QString current = m_rows[size_t(row)].path;
    const QString folder = current.isEmpty() ? appState().path(QStringLiteral("sys/"))
                                             : QFileInfo(current).absolutePath();
    const QString file = ui().openFile(tr("添加音乐"), folder, dialogFilter(kFilter));
    if (file.isEmpty() || !fileExists(file)) return;
    m_rows[size_t(row)].fileLabel->setText(QFileInfo(file).fileName());
    setPath(row, file);
}

void MusicSettingsDialog::startListening(int row) {
    finishListening();
    releasePlayer();
    const SoundRow &r = m_rows[size_t(row)];
    r.stopButton->setEnabled(true);
    r.listenButton->setEnabled(false);
    m_listeningRow = row;
    if (!fileExists(r.path)) {
        finishListening();
        return;
    }
    m_player = std::make_unique<MusicPlayer>();
    m_player->setFileName(r.path);
    // Played to its end or stopped, by the stop button or by a file the player cannot read.
    connect(m_player.get(), &MusicPlayer::ended, this, &MusicSettingsDialog::finishListening);
    connect(m_player.get(), &MusicPlayer::stateChanged, this, [this](int state) {
        if (state == 0) finishListening();
    });
    m_player->play();
    if (m_player->state() == 0) finishListening();
}

void MusicSettingsDialog::stopListening() {
    if (m_player) m_player->stop();
    finishListening();
}

void MusicSettingsDialog::finishListening() {
    if (m_listeningRow < 0) return;
    const int row = m_listeningRow;
    m_listeningRow = -1;
    if (m_player) m_player->stop();
    m_rows[size_t(row)].stopButton->setEnabled(false);
    applyListenRule(row);
}

void MusicSettingsDialog::releasePlayer() {
    if (!m_player) return;
    m_player->disconnect(this);
    m_player.reset();
}

void MusicSettingsDialog::save() {
    music::Settings chosen;
    for (int i = 0; i < music::SlotCount; ++i) {
        chosen[size_t(i)].on = m_rows[size_t(i)].enabledBox->isChecked();
        chosen[size_t(i)].path = m_rows[size_t(i)].path;
    }
    music::saveSettings(appState().appPath, chosen);
    releasePlayer();
    ui().message(tr("音乐设置保存成功!"), MsgStyle::Information, titles::notice);
    accept();
}
