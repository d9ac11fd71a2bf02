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

const char *const kCaptions[hotkeys::kRowCount] = {"开始抽奖∶", "停止抽奖∶", "取消滚动∶",
                                                   "撤消中奖∶", "导出中奖∶", "打印中奖∶",
                                                   "中奖播放∶", "音量控制∶", "全屏切换∶"};

}  // namespace

HotkeySettingsDialog::HotkeySettingsDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("快捷键设置"));
    QHBoxLayout *buttons = okEscButtons(this, &cmdSave, &cmdCancel, QStringLiteral("保存"));
    auto *hint = new QLabel(
        QStringLiteral("点击输入框后直接按下要设置的键。开始与停止可以使用同一个键。"), this);
    hint->setProperty("role", QStringLiteral("hint"));
    hint->setWordWrap(true);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(buildKeyRows());
    layout->addWidget(hint);
    layout->addWidget(buildDelayRow());
    layout->addLayout(buttons);

    load();
    connect(cmdSave, &QPushButton::clicked, this, &HotkeySettingsDialog::onSave);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    setMinimumWidth(420);
    adjustSize();
    centerForm(this);
}

QWidget *HotkeySettingsDialog::buildKeyRows() {
    auto *box = new QGroupBox(QStringLiteral("抽奖快捷键"), this);
    auto *grid = new QGridLayout(box);
    grid->setColumnStretch(1, 1);
    for (int i = 0; i < hotkeys::kRowCount; ++i) {
        auto *caption = new QLabel(QString::fromUtf8(kCaptions[i]), box);
        auto *edit = new QLineEdit(hotkeys::kNone, box);
        edit->setToolTip(QStringLiteral("直接按下您需要设置的键"));
        edit->setMinimumWidth(190);
        edit->setContextMenuPolicy(Qt::NoContextMenu);
        edit->installEventFilter(this);
        auto *code = new QLabel(QStringLiteral("0"), box);
        code->hide();
        auto *tick = new QLabel(QStringLiteral("√ "), box);
        tick->setStyleSheet(QStringLiteral("color: rgb(30,140,60); font-weight: bold;"));
        tick->setMinimumWidth(20);
        tick->setVisible(false);
        grid->addWidget(caption, i, 0);
        grid->addWidget(edit, i, 1);
        grid->addWidget(tick, i, 2);
        labT << caption;
        txtKey << edit;
        labCode << code;
        labS << tick;
    }
    return box;
}

QWidget *HotkeySettingsDialog::buildDelayRow() {
    auto *box = new QGroupBox(QStringLiteral("防误操作"), this);
    chkDelay = new QCheckBox(QStringLiteral("开始/停止按键间隔时间(单位∶秒)"), box);
    chkDelay->setToolTip(QStringLiteral("启用后在开始抽奖后的指定时间内无法按停止键"));
    sldDelay = new QSlider(Qt::Horizontal, box);
    sldDelay->setRange(1, 100);
    sldDelay->setSingleStep(1);
    sldDelay->setPageStep(5);
    sldDelay->setValue(1);
    labDelay = new QLabel(box);
    labDelay->setMinimumWidth(48);
    labDelay->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto *row = new QHBoxLayout;
    row->addWidget(sldDelay, 1);
    row->addWidget(labDelay);
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(chkDelay);
    layout->addLayout(row);
    connect(chkDelay, &QCheckBox::toggled, sldDelay, &QSlider::setEnabled);
    connect(chkDelay, &QCheckBox::toggled, labDelay, &QLabel::setEnabled);
    connect(sldDelay, &QSlider::valueChanged, labDelay, [this](int value) {
        labDelay->setText(QString::number(value) + QStringLiteral(" 秒"));
    });
    return box;
}

void HotkeySettingsDialog::load() {
    const QList<int> codes = hotkeys::loadKeys(store::mainConn());
    for (int i = 0; i < hotkeys::kRowCount; ++i) {
        const QString name = hotkeys::keyName(codes.at(i));
        setKeyText(i, name, name == hotkeys::kUnsupported);
        labS.at(i)->setVisible(false);
        labCode.at(i)->setText(QString::number(codes.at(i)));
    }
    const AppState &state = appState();
    chkDelay->setChecked(state.isTimeProtect == 1);
    sldDelay->setValue(state.timeProtectNum);
    labDelay->setText(QString::number(sldDelay->value()) + QStringLiteral(" 秒"));
    sldDelay->setEnabled(chkDelay->isChecked());
    labDelay->setEnabled(chkDelay->isChecked());
}

void HotkeySettingsDialog::setKeyText(int row, const QString &text, bool bad) {
    QLineEdit *edit = txtKey.at(row);
    edit->setText(text);
    edit->setStyleSheet(bad ? QStringLiteral("color: rgb(220,0,0);")
                            : QStringLiteral("color: rgb(0,60,220);"));
    edit->setCursorPosition(text.size());
}

void HotkeySettingsDialog::keyPressed(int row, int code) {
    const QString name = hotkeys::keyName(code);
    setKeyText(row, name, name == hotkeys::kUnsupported);
    // An unsupported key is kept as its code all the same: saving writes it.
    labCode.at(row)->setText(QString::number(code));
}

bool HotkeySettingsDialog::eventFilter(QObject *watched, QEvent *event) {
    const int row = txtKey.indexOf(static_cast<QLineEdit *>(watched));
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
            QLineEdit *edit = txtKey.at(row);
            if (edit->text() == hotkeys::kClash || edit->text() == hotkeys::kNone) edit->clear();
            labS.at(row)->setVisible(false);
            return false;
        }
        case QEvent::FocusOut:
            if (txtKey.at(row)->text().isEmpty()) setKeyText(row, hotkeys::kNone, false);
            return false;
        default:
            return false;
    }
}

void HotkeySettingsDialog::onSave() {
    QList<int> codes;
    for (QLabel *code : labCode)
        codes << code->text().toInt();
    const QList<hotkeys::SaveOutcome> outcomes = hotkeys::saveKeys(codes, store::mainConn());
    for (int i = 0; i < outcomes.size(); ++i) {
        if (outcomes.at(i) == hotkeys::SaveOutcome::Saved) labS.at(i)->setVisible(true);
        if (outcomes.at(i) == hotkeys::SaveOutcome::Clash) setKeyText(i, hotkeys::kClash, true);
    }
    settings::write(QStringLiteral("isTimeProtect"), chkDelay->isChecked() ? 1 : 0);
    settings::write(QStringLiteral("timeProtectNum"), sldDelay->value());
    Q_EMIT events().settingsChanged();
}
