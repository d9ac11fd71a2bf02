#include "sound/view/hotkeysettingsdialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "chrome/widgets.h"
#include "core/appstate.h"
#include "core/events.h"
#include "core/settings.h"
#include "core/store.h"
#include "sound/hotkeys.h"

namespace {

const char *const kCaptions[hotkeys::kRowCount] = {
    QT_TRANSLATE_NOOP("HotkeySettingsDialog", "开始抽奖∶"),
    QT_TRANSLATE_NOOP("HotkeySettingsDialog", "停止抽奖∶"),
    QT_TRANSLATE_NOOP("HotkeySettingsDialog", "取消滚动∶"),
    QT_TRANSLATE_NOOP("HotkeySettingsDialog", "撤消中奖∶"),
    QT_TRANSLATE_NOOP("HotkeySettingsDialog", "导出中奖∶"),
    QT_TRANSLATE_NOOP("HotkeySettingsDialog", "打印中奖∶"),
    QT_TRANSLATE_NOOP("HotkeySettingsDialog", "中奖播放∶"),
    QT_TRANSLATE_NOOP("HotkeySettingsDialog", "音量控制∶"),
    QT_TRANSLATE_NOOP("HotkeySettingsDialog", "全屏切换∶")};
// The first word of each row's object names.
const char *const kRowNames[hotkeys::kRowCount] = {"start", "stop",   "clear", "cancel", "export",
                                                   "print", "parade", "sound", "screen"};

}  // namespace

HotkeySettingsDialog::HotkeySettingsDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(tr("快捷键设置"));
    QHBoxLayout *buttons = okEscButtons(this, &m_saveButton, &m_cancelButton, tr("保存"));
    m_saveButton->setObjectName(QStringLiteral("saveButton"));
    m_cancelButton->setObjectName(QStringLiteral("cancelButton"));
    auto *hint =
        new QLabel(tr("点击输入框后直接按下要设置的键。开始与停止可以使用同一个键。"), this);
    hint->setProperty("role", QStringLiteral("hint"));
    hint->setWordWrap(true);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(buildKeyRows());
    layout->addWidget(hint);
    layout->addWidget(buildGuardRow());
    layout->addLayout(buttons);

    load();
    connect(m_saveButton, &QPushButton::clicked, this, &HotkeySettingsDialog::save);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    setMinimumWidth(420);
    adjustSize();
    centerForm(this);
}

QWidget *HotkeySettingsDialog::buildKeyRows() {
    auto *box = new QGroupBox(tr("抽奖快捷键"), this);
    auto *grid = new QGridLayout(box);
    grid->setColumnStretch(1, 1);
    for (int i = 0; i < hotkeys::kRowCount; ++i) {
        const QString name = QLatin1String(kRowNames[i]);
        auto *caption = new QLabel(tr(kCaptions[i]), box);
        caption->setObjectName(name + QStringLiteral("KeyCaption"));
        auto *edit = new QLineEdit(hotkeys::kNone, box);
        edit->setObjectName(name + QStringLiteral("KeyEdit"));
        edit->setToolTip(tr("直接按下您需要设置的键"));
        edit->setMinimumWidth(190);
        edit->setContextMenuPolicy(Qt::NoContextMenu);
        edit->installEventFilter(this);
        auto *tick = new QLabel(QStringLiteral("√ "), box);
        tick->setObjectName(name + QStringLiteral("SavedTick"));
        tick->setStyleSheet(QStringLiteral("color: rgb(30,140,60); font-weight: bold;"));
        tick->setMinimumWidth(20);
        tick->setVisible(false);
        grid->addWidget(caption, i, 0);
        grid->addWidget(edit, i, 1);
        grid->addWidget(tick, i, 2);
        m_keyEdits << edit;
        m_savedTicks << tick;
        m_codes << 0;
    }
    return box;
}

QWidget *HotkeySettingsDialog::buildGuardRow() {
    auto *box = new QGroupBox(tr("防误操作"), this);
    m_guardBox = new QCheckBox(tr("开始/停止按键间隔时间(单位∶秒)"), box);
    m_guardBox->setObjectName(QStringLiteral("guardBox"));
    m_guardBox->setToolTip(tr("启用后在开始抽奖后的指定时间内无法按停止键"));
    m_guardSlider = new QSlider(Qt::Horizontal, box);
    m_guardSlider->setObjectName(QStringLiteral("guardSlider"));
    m_guardSlider->setRange(1, 100);
    m_guardSlider->setSingleStep(1);
    m_guardSlider->setPageStep(5);
    m_guardSlider->setValue(1);
    m_guardLabel = new QLabel(box);
    m_guardLabel->setObjectName(QStringLiteral("guardLabel"));
    m_guardLabel->setMinimumWidth(48);
    m_guardLabel->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto *row = new QHBoxLayout;
    row->addWidget(m_guardSlider, 1);
    row->addWidget(m_guardLabel);
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(m_guardBox);
    layout->addLayout(row);
    connect(m_guardBox, &QCheckBox::toggled, m_guardSlider, &QSlider::setEnabled);
    connect(m_guardBox, &QCheckBox::toggled, m_guardLabel, &QLabel::setEnabled);
    connect(m_guardSlider, &QSlider::valueChanged, this, &HotkeySettingsDialog::showGuardTime);
    return box;
}

void HotkeySettingsDialog::load() {
    const QList<int> codes = hotkeys::loadKeys(store::mainConn());
    for (int i = 0; i < hotkeys::kRowCount; ++i) {
        const QString name = hotkeys::keyName(codes.at(i));
        setKeyText(i, name, name == hotkeys::kUnsupported);
        m_savedTicks.at(i)->setVisible(false);
        m_codes[i] = codes.at(i);
    }
    const AppState &state = appState();
    m_guardBox->setChecked(state.isTimeProtect == 1);
    m_guardSlider->setValue(state.timeProtectNum);
    showGuardTime(m_guardSlider->value());
    m_guardSlider->setEnabled(m_guardBox->isChecked());
    m_guardLabel->setEnabled(m_guardBox->isChecked());
}

void HotkeySettingsDialog::showGuardTime(int seconds) {
    m_guardLabel->setText(tr("%1 秒").arg(seconds));
}

void HotkeySettingsDialog::setKeyText(int row, const QString &text, bool bad) {
    QLineEdit *edit = m_keyEdits.at(row);
    edit->setText(text);
    edit->setStyleSheet(bad ? QStringLiteral("color: rgb(220,0,0);")
                            : QStringLiteral("color: rgb(0,60,220);"));
    edit->setCursorPosition(text.size());
}

void HotkeySettingsDialog::keyPressed(int row, int code) {
    const QString name = hotkeys::keyName(code);
    setKeyText(row, name, name == hotkeys::kUnsupported);
    // An unsupported key is kept as its code all the same: saving writes it.
    m_codes[row] = code;
}

bool HotkeySettingsDialog::eventFilter(QObject *watched, QEvent *event) {
    const int row = m_keyEdits.indexOf(static_cast<QLineEdit *>(watched));
    if (row < 0) return QDialog::eventFilter(watched, event);
    switch (event->type()) {
        case QEvent::KeyPress: {
            auto *key = static_cast<QKeyEvent *>(event);
            if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) return false;
            keyPressed(row, hotkeys::keyCodeFromQt(key->key(), key->modifiers()));
            return true;
        }
        case QEvent::KeyRelease:
        case QEvent::InputMethod:
            return true;
        case QEvent::FocusIn: {
            QLineEdit *edit = m_keyEdits.at(row);
            if (edit->text() == hotkeys::kClash || edit->text() == hotkeys::kNone) edit->clear();
            m_savedTicks.at(row)->setVisible(false);
            return false;
        }
        case QEvent::FocusOut:
            if (m_keyEdits.at(row)->text().isEmpty()) setKeyText(row, hotkeys::kNone, false);
            return false;
        default:
            return false;
    }
}

void HotkeySettingsDialog::save() {
    const QList<hotkeys::SaveOutcome> outcomes = hotkeys::saveKeys(m_codes, store::mainConn());
    for (int i = 0; i < outcomes.size(); ++i) {
        if (outcomes.at(i) == hotkeys::SaveOutcome::Saved) m_savedTicks.at(i)->setVisible(true);
        if (outcomes.at(i) == hotkeys::SaveOutcome::Clash) setKeyText(i, hotkeys::kClash, true);
    }
    settings::write(QStringLiteral("isTimeProtect"), m_guardBox->isChecked() ? 1 : 0);
    settings::write(QStringLiteral("timeProtectNum"), m_guardSlider->value());
    Q_EMIT events().settingsChanged();
}
