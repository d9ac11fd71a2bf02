#include "awards/view/awardmanagerdialog.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "awards/view/addawarddialog.h"
#include "awards/view/awardeditor.h"
#include "chrome/widgethelpers.h"
#include "core/events.h"
#include "core/ui.h"

namespace {

const TranslatedText kFilter{
    "AwardManagerDialog",
    QT_TRANSLATE_NOOP(
        "AwardManagerDialog",
        "图片文件(*.png,*.jpg,*.gif,*.bmp)|*.png;*.jpg;*.jpej;*.gif;*.bmp|PNG Files(*.png)|*.png|"
        "JPG Files(*.jpg)|*.jpg;jpeg|GIF Files(*.gif)|*.gif|BMP Files(*.bmp)|*.bmp")};

QString keyOf(int id) {
    return QStringLiteral("K") + QString::number(id);
}

int idOf(const QTreeWidgetItem *item) {
    return item ? item->data(AwardManagerDialog::ColCheck, Qt::UserRole).toString().mid(1).toInt()
                : 0;
}

QPushButton *toolButton(const QString &caption, const QString &name, QWidget *parent) {
    auto *button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setCursor(Qt::PointingHandCursor);
    return button;
}

}  // namespace

AwardManagerDialog::AwardManagerDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(tr("奖项设置"));
    buildList();
    auto *editorBox = new QGroupBox(tr("奖项编辑"), this);
    m_editor = new AwardEditor(QStringLiteral("AwardManagerDialog"), kFilter, editorBox);
    m_editor->setObjectName(QStringLiteral("awardEditor"));
    m_saveButton = new QPushButton(tr("保存编辑"), editorBox);
    m_saveButton->setObjectName(QStringLiteral("saveEditButton"));
    m_saveButton->setProperty("role", "primary");
    m_saveButton->setAutoDefault(false);
    auto *save = new QHBoxLayout;
    save->addStretch();
    save->addWidget(m_saveButton);
    auto *frame = new QVBoxLayout(editorBox);
    frame->setContentsMargins(14, 14, 14, 12);
    frame->addWidget(m_editor);
    frame->addLayout(save);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 14, 16, 16);
    layout->setSpacing(10);
    layout->addWidget(buildToolbar());
    layout->addWidget(m_awardList, 1);
    layout->addWidget(editorBox);

    connect(m_deleteButton, &QPushButton::clicked, this, &AwardManagerDialog::deleteTicked);
    connect(m_moveDownButton, &QPushButton::clicked, this, [this] { moveSelected(1); });
    connect(m_moveUpButton, &QPushButton::clicked, this, [this] { moveSelected(-1); });
    connect(m_saveButton, &QPushButton::clicked, this, &AwardManagerDialog::saveEdit);
    connect(m_awardList, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) {
        if (!m_filling) loadEditor(item);
    });

    resize(940, 680);
    showAwards();
    centerForm(this);
}

QWidget *AwardManagerDialog::buildToolbar() {
    auto *toolbar = new QWidget(this);
    auto *add = toolButton(tr("＋ 增加奖项"), QStringLiteral("addAwardButton"), toolbar);
    add->setProperty("role", "primary");
    connect(add, &QPushButton::clicked, this, &AwardManagerDialog::addAward);
    m_deleteButton = toolButton(tr("✕ 删除奖项"), QStringLiteral("deleteAwardsButton"), toolbar);
    m_moveDownButton = toolButton(tr("↓ 向下移动"), QStringLiteral("moveDownButton"), toolbar);
    m_moveUpButton = toolButton(tr("↑ 向上移动"), QStringLiteral("moveUpButton"), toolbar);
    for (QPushButton *button : {add, m_deleteButton, m_moveDownButton, m_moveUpButton})
        button->setAutoDefault(false);
    auto *hint = new QLabel(tr("勾选奖项后点“删除奖项”；抽奖按列表顺序进行"), toolbar);
    hint->setProperty("role", "hint");
    auto *layout = new QHBoxLayout(toolbar);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(add);
    layout->addWidget(m_deleteButton);
    layout->addSpacing(14);
    layout->addWidget(m_moveDownButton);
    layout->addWidget(m_moveUpButton);
    layout->addStretch();
    layout->addWidget(hint);
    return toolbar;
}

void AwardManagerDialog::buildList() {
    m_awardList = new QTreeWidget(this);
    m_awardList->setObjectName(QStringLiteral("awardList"));
    m_awardList->setColumnCount(ColumnCount);
    m_awardList->setHeaderLabels({QString(), tr("排序"), tr("奖项名称"), tr("名额"), tr("批次"),
                                  tr("奖品名称"), tr("奖品图片"), tr("重复中奖"),
                                  tr("区分编号范围")});
    m_awardList->headerItem()->setToolTip(ColCheck, tr("选择"));
    m_awardList->setRootIsDecorated(false);
    m_awardList->setUniformRowHeights(true);
    m_awardList->setAlternatingRowColors(true);
    m_awardList->setAllColumnsShowFocus(true);
    m_awardList->setSelectionMode(QAbstractItemView::SingleSelection);
    m_awardList->setStyleSheet(QStringLiteral(
        "QTreeWidget { background: white; alternate-background-color: rgb(255,247,247);"
        " border: 1px solid rgb(230,190,194); border-radius: 6px; }"
        "QTreeWidget::item { height: 30px; border: none; }"
        "QTreeWidget::item:selected { background: rgb(251,214,218); color: rgb(128,23,25); }"
        "QHeaderView::section { background: rgb(250,225,227); border: none;"
        " border-right: 1px solid rgb(236,200,203); border-bottom: 1px solid rgb(230,190,194);"
        " padding: 6px 6px; font-weight: bold; }"));
    const int widths[] = {40, 52, 150, 64, 64, 160, 150, 78, 0};
    for (int column = 0; column < ColRange; ++column)
        m_awardList->setColumnWidth(column, widths[column]);
    m_awardList->header()->setStretchLastSection(true);
    m_awardList->header()->setSectionsMovable(false);
}

QTreeWidgetItem *AwardManagerDialog::addRow(const AwardRow &row) {
    auto *item = new QTreeWidgetItem(m_awardList);
    item->setData(ColCheck, Qt::UserRole, keyOf(row.ID));
    item->setCheckState(ColCheck, Qt::Unchecked);
    item->setText(ColOrder, QString::number(row.OrderNum));
    item->setText(ColName, row.JXName);
    item->setText(ColSlots, QString::number(row.JXNum));
    item->setText(ColBatches, QString::number(row.JXGroup));
    item->setText(ColPrize, row.JPName);
    item->setText(ColPhoto, row.JPPhoto);
    item->setText(ColRepeatWins, awardtext::reLuck(row.isReLuck));
    item->setForeground(ColRepeatWins, awardtext::reLuckColor(row.isReLuck));
    item->setText(ColRange, awardtext::range(row.RangeType, row.RangeNum1, row.RangeNum2));
    if (const QColor color = awardtext::rangeColor(row.RangeType); color.isValid())
        item->setForeground(ColRange, color);
    for (int column : {ColOrder, ColSlots, ColBatches, ColRepeatWins})
        item->setTextAlignment(column, Qt::AlignCenter);
    return item;
}

void AwardManagerDialog::showAwards(int awardId) {
    m_filling = true;
    m_awardList->clear();
    QString error;
    const QList<AwardRow> rows = m_book.list(&error);
    if (!error.isEmpty()) ui().message(error, MsgStyle::Critical, titles::error);
    QTreeWidgetItem *chosen = nullptr;
    for (const AwardRow &row : rows) {
        QTreeWidgetItem *item = addRow(row);
        if (awardId > 0 && row.ID == awardId) chosen = item;
    }
    if (rows.isEmpty()) {
        m_filling = false;
        m_editor->clear();
        setEditable(false);
        return;
    }
    if (!chosen) chosen = m_awardList->topLevelItem(m_awardList->topLevelItemCount() - 1);
    setEditable(true);
    m_awardList->setCurrentItem(chosen);
    m_awardList->scrollToItem(chosen);
    m_filling = false;
    loadEditor(chosen);
}

void AwardManagerDialog::setEditable(bool editable) {
    m_editor->setEnabled(editable);
    m_editor->setPictureToolsEnabled(editable);
    m_saveButton->setEnabled(editable);
    for (QPushButton *button : {m_deleteButton, m_moveDownButton, m_moveUpButton})
        button->setEnabled(editable);
}

void AwardManagerDialog::loadEditor(QTreeWidgetItem *item) {
    if (!item) return;
    const std::optional<AwardRow> row = m_book.find(idOf(item));
    if (!row) {
        ui().message(tr("找不到对应的名单"), MsgStyle::Critical, titles::error);
        return;
    }
    m_editor->fill(*row);
}

int AwardManagerDialog::selectedId() const {
    return idOf(m_awardList->currentItem());
}

void AwardManagerDialog::saveEdit() {
    const int id = selectedId();
    if (id <= 0) return;
    const AwardInput input = m_editor->input();
    const AwardFault fault = AwardBook::validate(input);
    if (fault.failed()) {
        ui().message(fault.message, MsgStyle::Information, titles::notice);
        m_editor->focusField(fault.field);
        return;
    }
    if (m_book.hasWinners(id) &&
        !ui().question(tr("注意：当前编辑奖项已经存在中奖记录\n"
                          "本操作将清除所有与之对应的中奖记录!\n确认要编辑么?"),
                       titles::warning))
        return;
    QString error;
    if (!m_book.save(id, input, &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    showAwards(id);
    Q_EMIT events().awardsChanged();
    ui().message(tr("奖项数据更新成功！"), MsgStyle::Information, titles::notice);
}

void AwardManagerDialog::deleteTicked() {
    QList<int> ids;
    for (int i = 0; i < m_awardList->topLevelItemCount(); ++i)
        if (m_awardList->topLevelItem(i)->checkState(ColCheck) == Qt::Checked)
            ids << idOf(m_awardList->topLevelItem(i));
    if (ids.isEmpty()) {
        ui().message(tr("请选择需要删除的奖项!"), MsgStyle::Critical, tr("删除失败"));
        return;
    }
    if (!ui().question(tr("“删除奖项”将清除与之对应的中奖记录\n确认要删除么?"), titles::warning))
        return;
    QString error;
    if (!m_book.remove(ids, &error)) ui().message(error, MsgStyle::Critical, titles::error);
    showAwards();
    Q_EMIT events().awardsChanged();
}

void AwardManagerDialog::moveSelected(int step) {
    const int id = selectedId();
    if (id <= 0) return;
    if (m_book.move(id, step)) Q_EMIT events().awardsChanged();
    showAwards(id);
}

void AwardManagerDialog::addAward() {
    AddAwardDialog dialog(this);
    if (dialog.exec() != QDialog::Accepted) return;
    showAwards();
    Q_EMIT events().awardsChanged();
}

void AwardManagerDialog::done(int result) {
    // The console's award totals follow whatever happened here.
    Q_EMIT events().awardsChanged();
    QDialog::done(result);
}
