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

#include "core/store.h"
#include "core/ui.h"
#include "roster/replaceguard.h"
#include "roster/view/editorparts.h"

namespace {
const TranslatedText kMaskedHeading{"NumberGeneratorDialog",
                                    QT_TRANSLATE_NOOP("NumberGeneratorDialog", "屏蔽数据如下：\n")};
}  // namespace

NumberGeneratorDialog::NumberGeneratorDialog(QWidget *parent)
    : ImportDialog(tr("编号正在生成当中...，确认要退出么？"), parent) {
    setWindowTitle(tr("编号生成"));
    resize(520, 480);
    QWidget *optionsBox = buildOptions();

    m_progressPanel = new QWidget(this);
    m_maskedCodesEdit = new QPlainTextEdit(m_progressPanel);
    m_maskedCodesEdit->setObjectName(QStringLiteral("maskedCodesEdit"));
    m_maskedCodesEdit->setReadOnly(true);
    auto *progress = new QVBoxLayout(m_progressPanel);
    progress->setContentsMargins(0, 0, 0, 0);
    progress->addWidget(m_maskedCodesEdit);
    progress->addWidget(progressBar());
    m_progressPanel->hide();
    m_startButton = new QPushButton(tr("开始生成"), this);
    m_startButton->setObjectName(QStringLiteral("startButton"));
    m_cancelButton = new QPushButton(tr("取消"), this);
    m_okButton = new QPushButton(tr("确定"), this);
    m_okButton->setObjectName(QStringLiteral("okButton"));
    m_okButton->hide();
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(resultLabel(), 1);
    buttons->addWidget(m_startButton);
    buttons->addWidget(m_cancelButton);
    buttons->addWidget(m_okButton);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(optionsBox);
    layout->addWidget(m_progressPanel, 1);
    layout->addStretch();
    layout->addLayout(buttons);

    for (QLineEdit *edit : {m_prefixEdit, m_suffixEdit, m_padEdit})
        connect(edit, &QLineEdit::textEdited, this, &NumberGeneratorDialog::showSample);
    connect(m_startEdit, &QLineEdit::textEdited, this,
            [this] { boundEdited(m_startEdit, tr("起始数值不能为空")); });
    connect(m_endEdit, &QLineEdit::textEdited, this,
            [this] { boundEdited(m_endEdit, tr("终止数值不能为空！")); });
    connect(m_padBox, &QCheckBox::toggled, m_padEdit, &QLineEdit::setEnabled);
    connect(m_startButton, &QPushButton::clicked, this, &NumberGeneratorDialog::startGenerating);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_okButton, &QPushButton::clicked, this, &QDialog::accept);
    showSample();
}

QWidget *NumberGeneratorDialog::buildOptions() {
    auto *box = new QGroupBox(tr("编号选项参数"), this);
    m_prefixEdit = new QLineEdit(QStringLiteral("ST"), box);
    m_prefixEdit->setToolTip(tr("如不需前缀可不填写，保留为空"));
    m_suffixEdit = new QLineEdit(QStringLiteral("E"), box);
    m_suffixEdit->setToolTip(tr("如不需后缀可不填写，保留为空"));
    m_startEdit = new QLineEdit(QStringLiteral("1"), box);
    m_startEdit->setObjectName(QStringLiteral("startEdit"));
    m_endEdit = new QLineEdit(QStringLiteral("1000"), box);
    m_endEdit->setObjectName(QStringLiteral("endEdit"));
    for (QLineEdit *edit : {m_startEdit, m_endEdit}) {
        edit->setMaxLength(5);
        editorparts::makeDigitsOnly(edit);
    }
    m_padBox = new QCheckBox(tr("编号位数不足则补充字符"), box);
    m_padBox->setChecked(true);
    m_padEdit = new QLineEdit(QStringLiteral("0"), box);
    m_padEdit->setMaxLength(1);
    m_padEdit->setFixedWidth(40);
    m_maskEdit = new QLineEdit(box);
    m_maskEdit->setObjectName(QStringLiteral("maskEdit"));
    m_maskEdit->setToolTip(tr("生成的编号中将不包含此处录入的数字"));
    auto *maskHint = new QLabel(tr("提示：多组屏蔽数字可以用逗号隔开 如(4,13)"), box);
    maskHint->setStyleSheet(QStringLiteral("color:#8a5a00;"));
    m_sampleLabel = new QLabel(box);
    m_sampleLabel->setObjectName(QStringLiteral("sampleLabel"));
    m_sampleLabel->setStyleSheet(QStringLiteral("font-weight:bold; color:#1d4f91;"));
    auto *pad = new QHBoxLayout;
    pad->addWidget(m_padBox);
    pad->addWidget(m_padEdit);
    pad->addStretch();
    auto *form = new QFormLayout(box);
    form->addRow(tr("编号前缀："), m_prefixEdit);
    form->addRow(tr("编号后缀："), m_suffixEdit);
    form->addRow(tr("开始数值："), m_startEdit);
    form->addRow(tr("结束数值："), m_endEdit);
    form->addRow(pad);
    form->addRow(tr("屏蔽数字："), m_maskEdit);
    form->addRow(maskHint);
    form->addRow(tr("效果演示："), m_sampleLabel);
    return box;
}

numbergen::Options NumberGeneratorDialog::options() const {
    numbergen::Options o;
    o.prefix = m_prefixEdit->text();
    o.suffix = m_suffixEdit->text();
    o.startText = m_startEdit->text();
    o.endText = m_endEdit->text();
    o.pad = m_padBox->isChecked();
    o.padText = m_padEdit->text();
    o.mask = m_maskEdit->text();
    return o;
}

void NumberGeneratorDialog::boundEdited(QLineEdit *edit, const QString &emptyMessage) {
    if (edit->text().trimmed().isEmpty()) {
        ui().message(emptyMessage, MsgStyle::Exclamation, titles::warning);
        edit->setFocus();
        return;
    }
    showSample();
}

bool NumberGeneratorDialog::showSample() {
    const QString text = numbergen::previewText(options());
    m_sampleLabel->setText(text);
    if (text.isEmpty()) {
        ui().message(tr("开始数值只能小于终止数值!"), MsgStyle::Critical, titles::error);
        return false;
    }
    return true;
}

bool NumberGeneratorDialog::confirmGenerating() {
    if (!numbergen::keepsAnyCode(options())) {
        ui().message(numbergen::kNoCodeLeftMessage, MsgStyle::Exclamation, titles::warning);
        m_maskEdit->setFocus();
        return false;
    }
    const QString title = tr("重要提示");
    if (roster::storedRecords(store::mainConn()).isEmpty())
        return ui().question(tr("生成数字编号将会完全覆盖原来名单\n您确认要生成编号么？"), title);
    return confirmReplace(title);
}

void NumberGeneratorDialog::showGenerating(bool generating) {
    for (QWidget *w :
         QList<QWidget *>{m_prefixEdit, m_suffixEdit, m_startEdit, m_endEdit, m_padBox, m_maskEdit})
        w->setEnabled(!generating);
    m_padEdit->setEnabled(!generating && m_padBox->isChecked());
    m_startButton->setVisible(!generating);
    m_cancelButton->setVisible(!generating);
    m_okButton->setVisible(generating);
    m_okButton->setEnabled(false);
    m_progressPanel->setVisible(generating);
}

void NumberGeneratorDialog::startGenerating() {
    if (numbergen::previewText(options()).isEmpty()) {
        showSample();
        return;
    }
    if (!confirmGenerating()) return;
    showGenerating(true);
    m_maskedCodesEdit->setPlainText(kMaskedHeading);
    auto generation = std::make_unique<NumberGeneration>(options());
    connect(generation.get(), &RosterImport::progress, this, [this] {
        showMaskedCodes();
        m_maskedCodesEdit->verticalScrollBar()->setValue(
            m_maskedCodesEdit->verticalScrollBar()->maximum());
    });
    // A job that could not start has said why; the operator may change the options.
    if (!runJob(std::move(generation))) showGenerating(false);
}

void NumberGeneratorDialog::showMaskedCodes() {
    m_maskedCodesEdit->setPlainText(kMaskedHeading + job()->log());
}

void NumberGeneratorDialog::jobFinished(RosterImport::Outcome outcome) {
    m_okButton->setEnabled(true);
    if (outcome != RosterImport::Outcome::Finished) return;
    showMaskedCodes();
    showResult(tr("共导入%1条，屏蔽%2条").arg(job()->imported()).arg(job()->duplicates()));
}
