#include "draw/view/makeupdrawdialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QTabWidget>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "chrome/widgets.h"
#include "core/events.h"
#include "core/store.h"
#include "core/ui.h"
#include "draw/makeup.h"
#include "draw/winners.h"

namespace {

QLineEdit *numberBox(QWidget *parent) {
    auto *box = new QLineEdit(parent);
    // Digits only, at most five: the slot and batch counts are 16-bit numbers.
    box->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("\\d{0,5}")), box));
    box->setMaximumWidth(110);
    return box;
}

QLabel *hintLabel(const QString &text, QWidget *parent) {
    auto *label = new QLabel(text, parent);
    label->setProperty("role", "hint");
    return label;
}

}  // namespace

MakeUpDrawDialog::MakeUpDrawDialog(int currentAward, QWidget *parent) : QDialog(parent) {
    setWindowTitle(tr("补奖"));
    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("tabs"));
    m_tabs->addTab(buildQuickTab(), tr("快速补奖"));
    m_tabs->addTab(buildAwardTab(), tr("奖项设置"));
    m_okButton = new QPushButton(tr("确定"), this);
    m_okButton->setObjectName(QStringLiteral("okButton"));
    m_okButton->setDefault(true);
    m_cancelButton = new QPushButton(tr("取消"), this);
    m_cancelButton->setObjectName(QStringLiteral("cancelButton"));
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_okButton);
    buttons->addWidget(m_cancelButton);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 16, 18, 16);
    layout->setSpacing(14);
    layout->addWidget(m_tabs);
    layout->addLayout(buttons);
    connect(m_okButton, &QPushButton::clicked, this, &MakeUpDrawDialog::save);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_tabs, &QTabWidget::currentChanged, this,
            [this](int tab) { (tab == 0 ? m_addedSlotsEdit : m_awardNameEdit)->setFocus(); });
    fillAwardList(currentAward);
    setFixedSize(440, 330);
    centerForm(this);
    m_addedSlotsEdit->setFocus();
}

QWidget *MakeUpDrawDialog::buildQuickTab() {
    auto *page = new QWidget(this);
    m_awardCombo = new ChevronCombo(page);
    m_awardCombo->setObjectName(QStringLiteral("awardCombo"));
    m_awardCombo->setMinimumWidth(250);
    m_addedSlotsEdit = numberBox(page);
    m_addedSlotsEdit->setObjectName(QStringLiteral("addedSlotsEdit"));
    auto *slotsRow = new QHBoxLayout;
    slotsRow->addWidget(m_addedSlotsEdit);
    slotsRow->addWidget(new QLabel(tr("(名额)"), page));
    slotsRow->addStretch();
    auto *form = new QFormLayout;
    form->setHorizontalSpacing(10);
    form->setVerticalSpacing(14);
    form->addRow(tr("奖项："), m_awardCombo);
    form->addRow(tr("追加："), slotsRow);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(22, 22, 22, 16);
    m_awardInfoLabel = new QLabel(page);
    m_awardInfoLabel->setObjectName(QStringLiteral("awardInfoLabel"));
    layout->addLayout(form);
    layout->addSpacing(4);
    layout->addWidget(m_awardInfoLabel);
    layout->addWidget(hintLabel(tr("追加奖项名额必须为正整数!!"), page));
    layout->addStretch();
    connect(m_awardCombo, &QComboBox::currentIndexChanged, this, &MakeUpDrawDialog::showAwardInfo);
    return page;
}

QWidget *MakeUpDrawDialog::buildAwardTab() {
    auto *page = new QWidget(this);
    m_awardNameEdit = new QLineEdit(page);
    m_awardNameEdit->setObjectName(QStringLiteral("awardNameEdit"));
    m_awardNameEdit->setMaxLength(50);
    m_slotCountEdit = numberBox(page);
    m_slotCountEdit->setObjectName(QStringLiteral("slotCountEdit"));
    m_batchCountEdit = numberBox(page);
    m_batchCountEdit->setObjectName(QStringLiteral("batchCountEdit"));
    m_prizeNameEdit = new QLineEdit(page);
    m_prizeNameEdit->setObjectName(QStringLiteral("prizeNameEdit"));
    m_prizeNameEdit->setMaxLength(50);
    m_excludeWinnersCheck = new QCheckBox(tr("排除已中奖的人"), page);
    m_excludeWinnersCheck->setObjectName(QStringLiteral("excludeWinnersCheck"));
    m_excludeWinnersCheck->setChecked(true);
    auto *reLuck = new QHBoxLayout;
    reLuck->addWidget(m_excludeWinnersCheck);
    reLuck->addWidget(hintLabel(tr("(禁止重复中奖)"), page));
    reLuck->addStretch();
    auto *form = new QFormLayout;
    form->setHorizontalSpacing(10);
    form->setVerticalSpacing(10);
    form->addRow(tr("奖项名称："), m_awardNameEdit);
    form->addRow(tr("奖品名额："), m_slotCountEdit);
    form->addRow(tr("分几次抽："), m_batchCountEdit);
    form->addRow(tr("奖品名称："), m_prizeNameEdit);
    form->addRow(QString(), reLuck);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(22, 16, 22, 12);
    layout->addLayout(form);
    layout->addStretch();
    return page;
}

void MakeUpDrawDialog::fillAwardList(int selectId) {
    m_awardCombo->clear();
    const QList<draw::MakeupChoice> choices = draw::makeupChoices(store::mainConn());
    for (const draw::MakeupChoice &choice : choices)
        // The operator reads the award and its prize; the number stays with the item.
        m_awardCombo->addItem(choice.text.section(QLatin1Char('|'), 1), choice.id);
    if (choices.isEmpty()) {
        m_awardCombo->addItem(tr("无任何奖项"), 0);
        return;
    }
    const int index = m_awardCombo->findData(selectId);
    m_awardCombo->setCurrentIndex(index >= 0 ? index : 0);
    showAwardInfo();
}

void MakeUpDrawDialog::showAwardInfo() {
    const int id = m_awardCombo->currentData().toInt();
    const int slotCount = draw::slotsOf(store::mainConn(), id);
    if (id == 0 || slotCount < 0) {
        m_awardInfoLabel->clear();
        return;
    }
    const int have = draw::countAwardWinners(store::mainConn(), id);
    m_awardInfoLabel->setText(tr("该奖项现有名额 %1 个，已中奖 %2 人，剩余 %3 个")
                                  .arg(slotCount)
                                  .arg(have)
                                  .arg(qMax(slotCount - have, 0)));
}

void MakeUpDrawDialog::save() {
    if (m_tabs->currentIndex() == 0)
        saveSlots();
    else
        saveNewAward();
}

void MakeUpDrawDialog::saveSlots() {
    const int id = m_awardCombo->currentData().toInt();
    const draw::MakeupFault fault =
        draw::checkAddedSlots(m_addedSlotsEdit->text(), draw::slotsOf(store::mainConn(), id));
    if (fault.failed()) {
        ui().message(fault.message, MsgStyle::Information, titles::notice);
        selectAllText(m_addedSlotsEdit);
        m_addedSlotsEdit->setFocus();
        return;
    }
    if (id == 0) return;
    QString error;
    if (!draw::addSlots(store::mainConn(), id, m_addedSlotsEdit->text().trimmed().toInt(),
                        &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    finish(id);
}

void MakeUpDrawDialog::saveNewAward() {
    const draw::NewAward award{m_awardNameEdit->text(), m_slotCountEdit->text(),
                               m_batchCountEdit->text(), m_prizeNameEdit->text(),
                               m_excludeWinnersCheck->isChecked()};
    const draw::MakeupFault fault = draw::checkNewAward(award);
    if (fault.failed()) {
        ui().message(fault.message, MsgStyle::Information, titles::notice);
        QLineEdit *field = fault.field == draw::MakeupField::AwardName    ? m_awardNameEdit
                           : fault.field == draw::MakeupField::SlotCount  ? m_slotCountEdit
                           : fault.field == draw::MakeupField::BatchCount ? m_batchCountEdit
                                                                          : m_prizeNameEdit;
        field->setFocus();
        return;
    }
    QString error;
    const int id = draw::insertAward(store::mainConn(), award, &error);
    if (id == 0) {
        if (error == QString(draw::kAwardsFullMessage))
            ui().message(error, MsgStyle::Information, titles::notice);
        else
            ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    finish(id);
}

void MakeUpDrawDialog::finish(int id) {
    Q_EMIT events().awardsChanged();
    Q_EMIT awardChanged(id);
    accept();
}
