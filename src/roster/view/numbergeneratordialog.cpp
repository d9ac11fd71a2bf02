#include "roster/view/numbergeneratordialog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "core/ui.h"
#include "roster/view/editorparts.h"

NumberGeneratorDialog::NumberGeneratorDialog(QWidget *parent)
    : ImportDialog(QStringLiteral("编号正在生成当中...，确认要退出么？"), parent) {
    setWindowTitle(QStringLiteral("编号生成"));
    resize(520, 480);
    auto *Frame1 = new QGroupBox(QStringLiteral("编号选项参数"), this);
    txtS1 = new QLineEdit(QStringLiteral("ST"), Frame1);
    txtS1->setToolTip(QStringLiteral("如不需前缀可不填写，保留为空"));
    txtS2 = new QLineEdit(QStringLiteral("E"), Frame1);
    txtS2->setToolTip(QStringLiteral("如不需后缀可不填写，保留为空"));
    txtStart = new QLineEdit(QStringLiteral("1"), Frame1);
    txtEnd = new QLineEdit(QStringLiteral("1000"), Frame1);
    for (QLineEdit *edit : {txtStart, txtEnd}) {
        edit->setMaxLength(5);
        editorparts::makeDigitsOnly(edit);
    }
    chkB = new QCheckBox(QStringLiteral("编号位数不足则补充字符"), Frame1);
    chkB->setChecked(true);
    txtB = new QLineEdit(QStringLiteral("0"), Frame1);
    txtB->setMaxLength(1);
    txtB->setFixedWidth(40);
    txtMsk = new QLineEdit(Frame1);
    txtMsk->setToolTip(QStringLiteral("生成的编号中将不包含此处录入的数字"));
    auto *label7 = new QLabel(QStringLiteral("提示：多组屏蔽数字可以用逗号隔开 如(4,13)"), Frame1);
    label7->setStyleSheet(QStringLiteral("color:#8a5a00;"));
    labYS = new QLabel(Frame1);
    labYS->setStyleSheet(QStringLiteral("font-weight:bold; color:#1d4f91;"));
    auto *pad = new QHBoxLayout;
    pad->addWidget(chkB);
    pad->addWidget(txtB);
    pad->addStretch();
    auto *form = new QFormLayout(Frame1);
    form->addRow(QStringLiteral("编号前缀："), txtS1);
    form->addRow(QStringLiteral("编号后缀："), txtS2);
    form->addRow(QStringLiteral("开始数值："), txtStart);
    form->addRow(QStringLiteral("结束数值："), txtEnd);
    form->addRow(pad);
    form->addRow(QStringLiteral("屏蔽数字："), txtMsk);
    form->addRow(label7);
    form->addRow(QStringLiteral("效果演示："), labYS);

    picShow = new QWidget(this);
    txtTJ = new QPlainTextEdit(picShow);
    txtTJ->setReadOnly(true);
    auto *show = new QVBoxLayout(picShow);
    show->setContentsMargins(0, 0, 0, 0);
    show->addWidget(txtTJ);
    show->addWidget(pBar);
    picShow->hide();
    labMsg = new QLabel(this);
    labMsg->hide();
    cmdStart = new QPushButton(QStringLiteral("开始生成"), this);
    cmdExit = new QPushButton(QStringLiteral("取消"), this);
    cmdOk = new QPushButton(QStringLiteral("确定"), this);
    cmdOk->hide();
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(labMsg, 1);
    buttons->addWidget(cmdStart);
    buttons->addWidget(cmdExit);
    buttons->addWidget(cmdOk);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(Frame1);
    layout->addWidget(picShow, 1);
    layout->addStretch();
    layout->addLayout(buttons);

    for (QLineEdit *edit : {txtS1, txtS2, txtB})
        connect(edit, &QLineEdit::textEdited, this, &NumberGeneratorDialog::showPreview);
    connect(txtStart, &QLineEdit::textEdited, this,
            [this] { boundEdited(txtStart, QStringLiteral("起始数值不能为空")); });
    connect(txtEnd, &QLineEdit::textEdited, this,
            [this] { boundEdited(txtEnd, QStringLiteral("终止数值不能为空！")); });
    connect(chkB, &QCheckBox::toggled, txtB, &QLineEdit::setEnabled);
    connect(cmdStart, &QPushButton::clicked, this, &NumberGeneratorDialog::cmdStartClicked);
    connect(cmdExit, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
    showPreview();
}

numbergen::Options NumberGeneratorDialog::options() const {
    numbergen::Options o;
    o.prefix = txtS1->text();
    o.suffix = txtS2->text();
    o.startText = txtStart->text();
    o.endText = txtEnd->text();
    o.pad = chkB->isChecked();
    o.padText = txtB->text();
    o.mask = txtMsk->text();
    return o;
}

void NumberGeneratorDialog::boundEdited(QLineEdit *edit, const QString &emptyMessage) {
    if (edit->text().trimmed().isEmpty()) {
        ui().message(emptyMessage, MsgStyle::Exclamation, titles::warning);
        edit->setFocus();
        return;
    }
    showPreview();
}

bool NumberGeneratorDialog::showPreview() {
    const QString text = numbergen::previewText(options());
    labYS->setText(text);
    if (text.isEmpty()) {
        ui().message(QStringLiteral("开始数值只能小于终止数值!"), MsgStyle::Critical,
                     titles::error);
        return false;
    }
    return true;
}

void NumberGeneratorDialog::cmdStartClicked() {
    if (numbergen::previewText(options()).isEmpty()) {
        showPreview();
        return;
    }
    if (!ui().question(QStringLiteral("生成数字编号将会完全覆盖原来名单\n您确认要生成编号么？"),
                       QStringLiteral("重要提示")))
        return;
    for (QWidget *w : QList<QWidget *>{txtS1, txtS2, txtStart, txtEnd, chkB, txtB, txtMsk})
        w->setEnabled(false);
    cmdStart->hide();
    cmdExit->hide();
    cmdOk->show();
    cmdOk->setEnabled(false);
    txtTJ->setPlainText(QStringLiteral("屏蔽数据如下：\n"));
    picShow->show();
    auto generation = std::make_unique<NumberGeneration>(options());
    connect(generation.get(), &RosterImport::progress, this, [this] {
        txtTJ->setPlainText(QStringLiteral("屏蔽数据如下：\n") + job()->log());
        txtTJ->verticalScrollBar()->setValue(txtTJ->verticalScrollBar()->maximum());
    });
    runJob(std::move(generation));
}

void NumberGeneratorDialog::jobFinished(RosterImport::Outcome outcome) {
    cmdOk->setEnabled(true);
    if (outcome != RosterImport::Outcome::Finished) return;
    txtTJ->setPlainText(QStringLiteral("屏蔽数据如下：\n") + job()->log());
    labMsg->setText(
        QStringLiteral("共导入%1条，屏蔽%2条").arg(job()->imported()).arg(job()->duplicates()));
    labMsg->show();
}
