#include "sound/view/musicsettingsdialog.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "chrome/widgets.h"
#include "core/appstate.h"
#include "core/helpers.h"
#include "core/ui.h"
#include "sound/musicplayer.h"

namespace {

const char *const kCaptions[music::SlotCount] = {"背景音乐", "开始抽奖音乐", "中奖提示音乐",
                                                 "播放中奖音乐"};
const char *const kTips[music::SlotCount] = {"启用或禁止背景音乐", "启用或禁止抽奖音乐",
                                             "启用或禁止中奖音乐", ""};
const QString kNotSet = QStringLiteral("未设置音乐");
const QString kFilter = QStringLiteral(
    "音乐文件(*.mp3,*.wav)|*.mp3;*.wav|MP3 Files(*.mp3)|*.mp3|WAV Files(*.wav)|*.wav");

}  // namespace

MusicSettingsDialog::MusicSettingsDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("音乐设置"));
    QHBoxLayout *buttons = okEscButtons(this, &cmdSave, &cmdCancel, QStringLiteral("保存"));
    auto *hint = new QLabel(
        QStringLiteral("保存时选择的音乐会复制到程序的 Music 文件夹,程序搬到别处也能找到。"), this);
    hint->setProperty("role", QStringLiteral("hint"));
    hint->setWordWrap(true);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(buildRows());
    layout->addWidget(hint);
    layout->addLayout(buttons);

    tmM.setInterval(100);
    connect(&tmM, &QTimer::timeout, this, &MusicSettingsDialog::tmM_Timer);
    connect(cmdSave, &QPushButton::clicked, this, &MusicSettingsDialog::save);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    load();
    setMinimumWidth(520);
    adjustSize();
    centerForm(this);
}

MusicSettingsDialog::~MusicSettingsDialog() = default;

QWidget *MusicSettingsDialog::buildRows() {
    auto *box = new QWidget(this);
    auto *grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    for (int i = 0; i < music::SlotCount; ++i) {
        Row &row = rows[size_t(i)];
        row.chk = new QCheckBox(QString::fromUtf8(kCaptions[i]), box);
        if (*kTips[i]) row.chk->setToolTip(QString::fromUtf8(kTips[i]));
        row.frame = new QFrame(box);
        row.frame->setFrameShape(QFrame::StyledPanel);
        row.txt = new QLineEdit(row.frame);
        row.txt->hide();
        row.lab = new QLabel(kNotSet, row.frame);
        row.lab->setMinimumWidth(220);
        row.cmdSet = new QPushButton(QStringLiteral("设置"), row.frame);
        row.cmdTest = new QPushButton(QStringLiteral("试听"), row.frame);
        row.cmdStop = new QPushButton(QStringLiteral("停止"), row.frame);
        row.cmdStop->setEnabled(false);
        auto *line = new QHBoxLayout(row.frame);
        line->setContentsMargins(8, 4, 4, 4);
        line->addWidget(row.lab, 1);
        for (QPushButton *button : {row.cmdSet, row.cmdTest, row.cmdStop}) {
            button->setAutoDefault(false);
            button->setProperty("role", QStringLiteral("compact"));
            line->addWidget(button);
        }
        grid->addWidget(row.chk, i, 0);
        grid->addWidget(row.frame, i, 1);

        connect(row.chk, &QCheckBox::clicked, this, [this, i] { applyRowEnabling(i); });
        connect(row.txt, &QLineEdit::textChanged, this, [this, i](const QString &path) {
            rows[size_t(i)].lab->setToolTip(QDir::toNativeSeparators(path));
            applyTestRule(i);
        });
        connect(row.cmdSet, &QPushButton::clicked, this, [this, i] { chooseFile(i); });
        connect(row.cmdTest, &QPushButton::clicked, this, [this, i] { startTest(i); });
        connect(row.cmdStop, &QPushButton::clicked, this, [this, i] { stopTest(i); });
    }
    return box;
}

void MusicSettingsDialog::load() {
    const music::Settings stored = music::readSettings(appState().appPath);
    for (int i = 0; i < music::SlotCount; ++i) {
        const music::SlotSetting &setting = stored[size_t(i)];
        Row &row = rows[size_t(i)];
        row.chk->setChecked(setting.on);
        row.txt->setText(setting.path);
        row.lab->setText(setting.path.isEmpty() ? kNotSet : setting.storedName);
        applyRowEnabling(i);
    }
}

void MusicSettingsDialog::applyRowEnabling(int row) {
    const Row &r = rows[size_t(row)];
    const bool on = r.chk->isChecked();
    r.frame->setEnabled(on);
    r.cmdSet->setEnabled(on);
    if (!on) r.cmdStop->setEnabled(false);
    applyTestRule(row);
}

void MusicSettingsDialog::applyTestRule(int row) {
    const Row &r = rows[size_t(row)];
    r.cmdTest->setEnabled(r.chk->isChecked() && fileExists(r.txt->text()));
}

void MusicSettingsDialog::chooseFile(int row) {
    Row &r = rows[size_t(row)];
    // The built-in drum roll and fanfare are the first choices offered.
    const QString current = r.txt->text();
    const QString folder = current.isEmpty() ? appState().path(QStringLiteral("sys/"))
                                             : QFileInfo(current).absolutePath();
    const QString file = ui().openFile(QStringLiteral("添加音乐"), folder, dialogFilter(kFilter));
    if (file.isEmpty() || !fileExists(file)) return;
    r.lab->setText(QFileInfo(file).fileName());
    r.txt->setText(file);
}

void MusicSettingsDialog::startTest(int row) {
    if (m_testRow > 0) {
        if (m_player) m_player->stop();
        applyTestRule(m_testRow - 1);
        rows[size_t(m_testRow - 1)].cmdStop->setEnabled(false);
    }
    const Row &r = rows[size_t(row)];
    m_player = std::make_unique<MusicPlayer>();
    if (fileExists(r.txt->text())) {
        m_player->setFileName(r.txt->text());
        m_player->play();
    } else {
        m_player.reset();
    }
    tmM.start();
    r.cmdStop->setEnabled(true);
    r.cmdTest->setEnabled(false);
    m_testRow = row + 1;
}

void MusicSettingsDialog::stopTest(int row) {
    if (m_player) m_player->stop();
    rows[size_t(row)].cmdStop->setEnabled(false);
}

void MusicSettingsDialog::tmM_Timer() {
    // Without a player there is nothing to wait for either.
    if (m_player && m_player->state() != 0 && m_player->position() != m_player->duration()) return;
    if (m_player) m_player->stop();
    if (m_testRow > 0) {
        rows[size_t(m_testRow - 1)].cmdStop->setEnabled(false);
        applyTestRule(m_testRow - 1);
    }
    m_testRow = 0;
    tmM.stop();
}

void MusicSettingsDialog::save() {
    music::Settings chosen;
    for (int i = 0; i < music::SlotCount; ++i) {
        chosen[size_t(i)].on = rows[size_t(i)].chk->isChecked();
        chosen[size_t(i)].path = rows[size_t(i)].txt->text();
    }
    music::saveSettings(appState().appPath, chosen);
    m_player.reset();
    ui().message(QStringLiteral("音乐设置保存成功!"), MsgStyle::Information, titles::notice);
    accept();
}
