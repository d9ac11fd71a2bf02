#include "roster/view/textimportdialog.h"

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

#include "core/appstate.h"
#include "core/ui.h"

TextImportDialog::TextImportDialog(QWidget *parent)
    : ImportDialog(QStringLiteral("文件正在导入中，确认要退出么？"), parent) {
    setWindowTitle(QStringLiteral("导入txt文件"));
    resize(560, 420);
    labFileName = new QLabel(appState().txtFile, this);
    labFileName->setWordWrap(true);
    txtJG = new QLineEdit(QStringLiteral(","), this);
    txtJG->setMaxLength(1);
    txtJG->setFixedWidth(40);
    txtJG->installEventFilter(this);
    opt1 = new QRadioButton(QStringLiteral("导入的名单追加到原有名单之后"), this);
    opt2 = new QRadioButton(QStringLiteral("完全替换原有名单"), this);
    opt2->setChecked(true);
    frame = new QGroupBox(QStringLiteral("导入信息"), this);
    txtSame = new QPlainTextEdit(frame);
    txtSame->setReadOnly(true);
    txtSame->hide();
    auto *hint = new QLabel(QStringLiteral("提示：\"间隔符号\"是用来将文本中一行信息前后分开\n"
                                           "分别导入到 抽奖名单 和 备注栏中"),
                            frame);
    hint->setStyleSheet(QStringLiteral("color:#8a5a00;"));
    auto *frameLayout = new QVBoxLayout(frame);
    frameLayout->addWidget(hint);
    frameLayout->addWidget(txtSame, 1);
    labMsg = new QLabel(this);
    labMsg->hide();
    cmdStart = new QPushButton(QStringLiteral("开始导入"), this);
    cmdCancel = new QPushButton(QStringLiteral("取消"), this);
    cmdOK = new QPushButton(QStringLiteral("确定"), this);
    cmdOK->hide();

    auto *form = new QFormLayout;
    form->addRow(QStringLiteral("文件："), labFileName);
    form->addRow(QStringLiteral("Txt文件中信息间隔符号："), txtJG);
    auto *choice = new QHBoxLayout;
    choice->addWidget(opt1);
    choice->addWidget(opt2);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(labMsg, 1);
    buttons->addWidget(cmdStart);
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdOK);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addLayout(choice);
    layout->addWidget(frame, 1);
    layout->addWidget(pBar);
    layout->addLayout(buttons);
    connect(cmdStart, &QPushButton::clicked, this, &TextImportDialog::cmdStartClicked);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
}

bool TextImportDialog::eventFilter(QObject *watched, QEvent *event) {
    if (watched == txtJG && event->type() == QEvent::FocusIn)
        QTimer::singleShot(0, txtJG, &QLineEdit::selectAll);
    return ImportDialog::eventFilter(watched, event);
}

void TextImportDialog::setInputsEnabled(bool enabled) {
    for (QWidget *w : QList<QWidget *>{txtJG, opt1, opt2, cmdStart, cmdCancel})
        w->setEnabled(enabled);
}

void TextImportDialog::cmdStartClicked() {
    setInputsEnabled(false);
    QStringList lines;
    QString error;
    if (!TxtImport::readLines(appState().txtFile, &lines, &error)) {
        showFailure(error);
        setInputsEnabled(true);
        return;
    }
    if (!runJob(std::make_unique<TxtImport>(lines, txtJG->text(), opt2->isChecked())))
        setInputsEnabled(true);
}

void TextImportDialog::jobFinished(RosterImport::Outcome outcome) {
    if (outcome != RosterImport::Outcome::Finished) {
        setInputsEnabled(true);
        return;
    }
    if (job()->duplicates() > 0) {
        frame->setTitle(QStringLiteral("重复数据"));
        txtSame->setPlainText(job()->log().mid(1));
        txtSame->show();
    }
    labMsg->setText(QStringLiteral("共导入数据%1条，屏蔽重复数据%2条")
                        .arg(job()->imported())
                        .arg(job()->duplicates()));
    labMsg->show();
    cmdOK->show();
    cmdStart->hide();
    cmdCancel->hide();
}
