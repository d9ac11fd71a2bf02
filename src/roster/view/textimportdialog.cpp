#include "roster/view/textimportdialog.h"

#include <algorithm>

#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>

#include "core/ui.h"

TextImportDialog::TextImportDialog(const QString &path, QWidget *parent)
    : ImportDialog(fileImportQuestion(), parent), m_path(path) {
    setWindowTitle(tr("导入txt文件"));
    resize(560, 420);
    auto *fileLabel = new QLabel(path, this);
    fileLabel->setWordWrap(true);
    m_separatorEdit = new QLineEdit(QStringLiteral(","), this);
    m_separatorEdit->setObjectName(QStringLiteral("separatorEdit"));
    m_separatorEdit->setMaxLength(1);
    m_separatorEdit->setFixedWidth(40);
    m_separatorEdit->installEventFilter(this);
    m_appendButton = new QRadioButton(appendCaption(), this);
    m_appendButton->setObjectName(QStringLiteral("appendButton"));
    m_replaceButton = new QRadioButton(replaceCaption(), this);
    m_replaceButton->setObjectName(QStringLiteral("replaceButton"));
    checkDefaultMode(m_appendButton, m_replaceButton);
    m_resultBox = new QGroupBox(tr("导入信息"), this);
    m_duplicatesEdit = new QPlainTextEdit(m_resultBox);
    m_duplicatesEdit->setObjectName(QStringLiteral("duplicatesEdit"));
    m_duplicatesEdit->setReadOnly(true);
    m_duplicatesEdit->hide();
    auto *hint = new QLabel(tr("提示：\"间隔符号\"是用来将文本中一行信息前后分开\n"
                               "分别导入到 抽奖名单 和 备注栏中"),
                            m_resultBox);
    hint->setStyleSheet(QStringLiteral("color:#8a5a00;"));
    auto *resultLayout = new QVBoxLayout(m_resultBox);
    resultLayout->addWidget(hint);
    resultLayout->addWidget(m_duplicatesEdit, 1);
    m_startButton = new QPushButton(tr("开始导入"), this);
    m_startButton->setObjectName(QStringLiteral("startButton"));
    m_cancelButton = new QPushButton(tr("取消"), this);
    m_okButton = new QPushButton(tr("确定"), this);
    m_okButton->hide();

    auto *form = new QFormLayout;
    form->addRow(tr("文件："), fileLabel);
    form->addRow(tr("Txt文件中信息间隔符号："), m_separatorEdit);
    auto *choice = new QHBoxLayout;
    choice->addWidget(m_appendButton);
    choice->addWidget(m_replaceButton);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(resultLabel(), 1);
    buttons->addWidget(m_startButton);
    buttons->addWidget(m_cancelButton);
    buttons->addWidget(m_okButton);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(choice);
    layout->addWidget(m_resultBox, 1);
    layout->addWidget(progressBar());
    layout->addLayout(buttons);
    connect(m_startButton, &QPushButton::clicked, this, &TextImportDialog::startImport);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_okButton, &QPushButton::clicked, this, &QDialog::accept);
}

bool TextImportDialog::eventFilter(QObject *watched, QEvent *event) {
    // The separator is one character: focusing the box selects it, so typing replaces it.
    if (watched == m_separatorEdit && event->type() == QEvent::FocusIn)
        QTimer::singleShot(0, m_separatorEdit, &QLineEdit::selectAll);
    return ImportDialog::eventFilter(watched, event);
}

void TextImportDialog::setInputsEnabled(bool enabled) {
    for (QWidget *w : QList<QWidget *>{m_separatorEdit, m_appendButton, m_replaceButton,
                                       m_startButton, m_cancelButton})
        w->setEnabled(enabled);
}

void TextImportDialog::startImport() {
    setInputsEnabled(false);
    QStringList lines;
    QString error;
    if (!TxtImport::readLines(m_path, &lines, &error)) {
        showFailure(error);
        setInputsEnabled(true);
        return;
    }
    const bool anyText = std::any_of(lines.cbegin(), lines.cend(),
                                     [](const QString &line) { return !line.trimmed().isEmpty(); });
    if (m_replaceButton->isChecked() && anyText && !confirmReplace()) {
        setInputsEnabled(true);
        return;
    }
    if (!runJob(std::make_unique<TxtImport>(lines, m_separatorEdit->text(),
                                            m_replaceButton->isChecked())))
        setInputsEnabled(true);
}

void TextImportDialog::jobFinished(RosterImport::Outcome outcome) {
    if (outcome != RosterImport::Outcome::Finished) {
        setInputsEnabled(true);
        return;
    }
    if (job()->duplicates() > 0) m_resultBox->setTitle(tr("重复数据"));
    if (!job()->log().isEmpty()) {
        m_duplicatesEdit->setPlainText(job()->log().mid(1));
        m_duplicatesEdit->show();
    }
    showResult(resultText());
    m_okButton->show();
    m_startButton->hide();
    m_cancelButton->hide();
}
