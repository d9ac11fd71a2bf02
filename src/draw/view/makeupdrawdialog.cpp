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
#include "draw/engine.h"
#include "draw/makeup.h"

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
    setWindowTitle(QStringLiteral("补奖"));
    sTab = new QTabWidget(this);
    sTab->addTab(buildQuickTab(), QStringLiteral("快速补奖"));
    sTab->addTab(buildAwardTab(), QStringLiteral("奖项设置"));
    cmdSave = new QPushButton(QStringLiteral("确定"), this);
    cmdSave->setDefault(true);
    cmdExit = new QPushButton(QStringLiteral("取消"), this);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdSave);
    buttons->addWidget(cmdExit);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 16, 18, 16);
    layout->setSpacing(14);
    layout->addWidget(sTab);
    layout->addLayout(buttons);
    connect(cmdSave, &QPushButton::clicked, this, &MakeUpDrawDialog::save);
    connect(cmdExit, &QPushButton::clicked, this, &QDialog::reject);
    connect(sTab, &QTabWidget::currentChanged, this,
            [this](int tab) { (tab == 0 ? txtNum : txtJxName)->setFocus(); });
    rdJXLst(currentAward);
    setFixedSize(440, 330);
    centerForm(this);
    txtNum->setFocus();
}

QWidget *MakeUpDrawDialog::buildQuickTab() {
    auto *page = new QWidget(this);
    ComboJX = new ChevronCombo(page);
    ComboJX->setMinimumWidth(250);
    txtNum = numberBox(page);
    auto *slotsRow = new QHBoxLayout;
    slotsRow->addWidget(txtNum);
    slotsRow->addWidget(new QLabel(QStringLiteral("(名额)"), page));
    slotsRow->addStretch();
    auto *form = new QFormLayout;
    form->setHorizontalSpacing(10);
    form->setVerticalSpacing(14);
    form->addRow(QStringLiteral("奖项："), ComboJX);
    form->addRow(QStringLiteral("追加："), slotsRow);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(22, 22, 22, 16);
    labJxInfo = new QLabel(page);
    layout->addLayout(form);
    layout->addSpacing(4);
    layout->addWidget(labJxInfo);
    layout->addWidget(hintLabel(QStringLiteral("追加奖项名额必须为正整数!!"), page));
    layout->addStretch();
    connect(ComboJX, &QComboBox::currentIndexChanged, this, &MakeUpDrawDialog::showAwardInfo);
    return page;
}

QWidget *MakeUpDrawDialog::buildAwardTab() {
    auto *page = new QWidget(this);
    txtJxName = new QLineEdit(page);
    txtJxName->setMaxLength(50);
    txtJxNum = numberBox(page);
    txtJxGroup = numberBox(page);
    txtJpName = new QLineEdit(page);
    txtJpName->setMaxLength(50);
    chkIsReLuck = new QCheckBox(QStringLiteral("排除已中奖的人"), page);
    chkIsReLuck->setChecked(true);
    auto *reLuck = new QHBoxLayout;
    reLuck->addWidget(chkIsReLuck);
    reLuck->addWidget(hintLabel(QStringLiteral("(禁止重复中奖)"), page));
    reLuck->addStretch();
    auto *form = new QFormLayout;
    form->setHorizontalSpacing(10);
    form->setVerticalSpacing(10);
    form->addRow(QStringLiteral("奖项名称："), txtJxName);
    form->addRow(QStringLiteral("奖品名额："), txtJxNum);
    form->addRow(QStringLiteral("分几次抽："), txtJxGroup);
    form->addRow(QStringLiteral("奖品名称："), txtJpName);
    form->addRow(QString(), reLuck);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(22, 16, 22, 12);
    layout->addLayout(form);
    layout->addStretch();
    return page;
}

void MakeUpDrawDialog::rdJXLst(int selectId) {
    ComboJX->clear();
    const QList<draw::MakeupChoice> choices = draw::makeupChoices(store::mainConn());
    for (const draw::MakeupChoice &choice : choices)
        ComboJX->addItem(choice.text, choice.id);
    if (choices.isEmpty()) {
        ComboJX->addItem(QStringLiteral("无任何奖项"), 0);
        return;
    }
    const int index = ComboJX->findData(selectId);
    ComboJX->setCurrentIndex(index >= 0 ? index : 0);
    showAwardInfo();
}

void MakeUpDrawDialog::showAwardInfo() {
    const int id = draw::choiceId(ComboJX->currentText());
    const int slotCount = draw::slotsOf(store::mainConn(), id);
    if (id == 0 || slotCount < 0) {
        labJxInfo->clear();
        return;
    }
    const int have = draw::countAwardWinners(store::mainConn(), id);
    labJxInfo->setText(QStringLiteral("该奖项现有名额 %1 个，已中奖 %2 人，剩余 %3 个")
                           .arg(slotCount)
                           .arg(have)
                           .arg(qMax(slotCount - have, 0)));
}

void MakeUpDrawDialog::save() {
    if (sTab->currentIndex() == 0)
        saveSlots();
    else
        saveNewAward();
}

void MakeUpDrawDialog::saveSlots() {
    const int id = draw::choiceId(ComboJX->currentText());
    const draw::MakeupFault fault =
        draw::checkAddedSlots(txtNum->text(), draw::slotsOf(store::mainConn(), id));
    if (fault.failed()) {
        ui().message(fault.message, MsgStyle::Information, titles::notice);
        selectAllText(txtNum);
        txtNum->setFocus();
        return;
    }
    if (id == 0) return;
    QString error;
    if (!draw::addSlots(store::mainConn(), id, txtNum->text().trimmed().toInt(), &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    finish(id);
}

void MakeUpDrawDialog::saveNewAward() {
    const draw::NewAward award{txtJxName->text(), txtJxNum->text(), txtJxGroup->text(),
                               txtJpName->text(), chkIsReLuck->isChecked()};
    const draw::MakeupFault fault = draw::checkNewAward(award);
    if (fault.failed()) {
        ui().message(fault.message, MsgStyle::Information, titles::notice);
        QLineEdit *field = fault.field == draw::MakeupField::JxName    ? txtJxName
                           : fault.field == draw::MakeupField::JxNum   ? txtJxNum
                           : fault.field == draw::MakeupField::JxGroup ? txtJxGroup
                                                                       : txtJpName;
        field->setFocus();
        return;
    }
    QString error;
    const int id = draw::insertAward(store::mainConn(), award, &error);
    if (id == 0) {
        if (error == draw::kAwardsFullMessage)
            ui().message(error, MsgStyle::Information, titles::notice);
        else
            ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    finish(id);
}

void MakeUpDrawDialog::finish(int id) {
    m_awardToLoad = id;
    Q_EMIT events().awardsChanged();
    Q_EMIT loadAward(id);
    accept();
}
