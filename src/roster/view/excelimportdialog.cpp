#include "roster/view/excelimportdialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QUrl>
#include <QVBoxLayout>

#include "core/appstate.h"
#include "core/ui.h"

ExcelImportDialog::ExcelImportDialog(QWidget *parent)
    : ImportDialog(QStringLiteral("文件正在导入中，确认要退出么？"), parent) {
    setWindowTitle(QStringLiteral("导入Excel"));
    resize(760, 560);
    labFileName = new QLabel(this);
    labFileName->setWordWrap(true);
    lstTable = new QListWidget(this);
    lstTitle = new QTreeWidget(this);
    lstTitle->setHeaderLabels({QStringLiteral("选择"), QStringLiteral("字段")});
    lstTitle->setRootIsDecorated(false);
    chkIsTitleLine = new QCheckBox(QStringLiteral("导入的表格中第一行包含了标题"), this);
    auto *titleHint = new QLabel(QStringLiteral("（勾选后将从Excel第2行开始导入）"), this);
    txtAndKey = new QLineEdit(QStringLiteral(" "), this);
    txtAndKey->setMaxLength(3);
    txtAndKey->setFixedWidth(60);
    opt1 = new QRadioButton(QStringLiteral("导入的名单追加到原有名单之后"), this);
    opt2 = new QRadioButton(QStringLiteral("完全替换原有名单"), this);
    opt2->setChecked(true);
    Frame2 = new QGroupBox(QStringLiteral("导入后信息样式（演示前3条记录）"), this);
    lstUser = new QTreeWidget(Frame2);
    lstUser->setHeaderLabels({QStringLiteral("排序"), QStringLiteral("抽奖名单(抽奖时滚动的内容)"),
                              QStringLiteral("备注")});
    lstUser->setRootIsDecorated(false);
    lstUser->setColumnWidth(0, 50);
    lstUser->setColumnWidth(1, 260);
    txtSame = new QPlainTextEdit(Frame2);
    txtSame->setReadOnly(true);
    txtSame->hide();
    auto *frameLayout = new QVBoxLayout(Frame2);
    frameLayout->addWidget(lstUser);
    frameLayout->addWidget(txtSame);
    labMsg = new QLabel(this);
    labMsg->hide();
    cmdStart = new QPushButton(QStringLiteral("开始导入"), this);
    cmdCancel = new QPushButton(QStringLiteral("取消"), this);
    cmdOK = new QPushButton(QStringLiteral("确定"), this);
    cmdOK->hide();
    cmdMB = new QPushButton(QStringLiteral("打开excel模板"), this);
    cmdStart->setEnabled(false);

    auto *grid = new QGridLayout;
    grid->addWidget(new QLabel(QStringLiteral("工作表："), this), 0, 0);
    grid->addWidget(new QLabel(QStringLiteral("勾选组成抽奖名单的列（其余列合并为备注）："), this),
                    0, 1);
    grid->addWidget(lstTable, 1, 0);
    grid->addWidget(lstTitle, 1, 1);
    grid->setColumnStretch(1, 2);
    auto *options = new QGridLayout;
    options->addWidget(chkIsTitleLine, 0, 0);
    options->addWidget(titleHint, 0, 1);
    options->addWidget(new QLabel(QStringLiteral("多列信息合并后中间穿插字符："), this), 1, 0);
    options->addWidget(txtAndKey, 1, 1, Qt::AlignLeft);
    options->addWidget(opt1, 2, 0);
    options->addWidget(opt2, 2, 1);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(cmdMB);
    buttons->addWidget(labMsg, 1);
    buttons->addStretch();
    buttons->addWidget(cmdStart);
    buttons->addWidget(cmdCancel);
    buttons->addWidget(cmdOK);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(labFileName);
    layout->addLayout(grid, 2);
    layout->addLayout(options);
    layout->addWidget(Frame2, 3);
    layout->addWidget(pBar);
    layout->addLayout(buttons);

    connect(lstTable, &QListWidget::currentRowChanged, this, &ExcelImportDialog::chooseSheet);
    connect(lstTitle, &QTreeWidget::itemChanged, this, &ExcelImportDialog::preview);
    connect(chkIsTitleLine, &QCheckBox::toggled, this, &ExcelImportDialog::preview);
    connect(txtAndKey, &QLineEdit::textChanged, this, &ExcelImportDialog::preview);
    connect(cmdStart, &QPushButton::clicked, this, &ExcelImportDialog::cmdStartClicked);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdMB, &QPushButton::clicked, this, [] {
        ui().openUrl(QUrl::fromLocalFile(appState().path(QStringLiteral("demo.xlsx"))));
    });

    const QString path = appState().excelFile;
    labFileName->setText(path);
    QString error;
    if (!m_book.open(path, &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        lstTable->setEnabled(false);
        lstTitle->setEnabled(false);
        return;
    }
    lstTable->addItems(m_book.sheetNames());
    if (lstTable->count() == 0) {
        lstTable->setEnabled(false);
        lstTitle->setEnabled(false);
    } else {
        lstTable->setCurrentRow(0);
    }
}

void ExcelImportDialog::chooseSheet(int index) {
    if (index < 0) return;
    QString error;
    if (!m_book.readSheet(index, -1, &m_sheet, &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        return;
    }
    if (m_sheet.columns > 10)
        ui().message(QStringLiteral("Excel中存在过多的列，这样会导致导入速度十分缓慢\n"
                                    "建议您修改Excel文件删除无用列再进行导入！"),
                     MsgStyle::Exclamation, titles::warning);
    const QSignalBlocker blocker(lstTitle);
    lstTitle->clear();
    for (int column = 0; column < m_sheet.columns; ++column) {
        auto *item = new QTreeWidgetItem(lstTitle);
        item->setCheckState(0, Qt::Unchecked);
        item->setText(1, QStringLiteral("F%1").arg(column + 1));
        item->setData(0, Qt::UserRole, QStringLiteral("K%1").arg(column));
    }
    lstUser->clear();
    cmdStart->setEnabled(false);
}

QList<bool> ExcelImportDialog::nameColumns() const {
    QList<bool> ticks;
    for (int i = 0; i < lstTitle->topLevelItemCount(); ++i)
        ticks << (lstTitle->topLevelItem(i)->checkState(0) == Qt::Checked);
    return ticks;
}

void ExcelImportDialog::preview() {
    lstUser->clear();
    const int skip = chkIsTitleLine->isChecked() ? 1 : 0;
    const QList<bool> ticks = nameColumns();
    bool anyName = false;
    for (int i = skip; i < qMin<qsizetype>(m_sheet.rows.size(), 3 + skip); ++i) {
        QString name;
        QString part;
        ExcelImport::mergeRow(m_sheet.rows.at(i), ticks, txtAndKey->text(), &name, &part);
        anyName = anyName || !name.trimmed().isEmpty();
        auto *item = new QTreeWidgetItem(lstUser);
        item->setText(0, QString::number(i - skip + 1));
        item->setText(1, name);
        item->setText(2, part);
    }
    auto *more = new QTreeWidgetItem(lstUser);
    more->setText(1, QStringLiteral("以下省略更多内容..."));
    cmdStart->setEnabled(anyName);
}

void ExcelImportDialog::setInputsEnabled(bool enabled) {
    for (QWidget *w : QList<QWidget *>{lstTable, lstTitle, chkIsTitleLine, txtAndKey, opt1, opt2,
                                       cmdStart, cmdCancel, cmdMB})
        w->setEnabled(enabled);
}

void ExcelImportDialog::cmdStartClicked() {
    setInputsEnabled(false);
    if (!runJob(std::make_unique<ExcelImport>(m_sheet.rows, nameColumns(), txtAndKey->text(),
                                              chkIsTitleLine->isChecked(), opt2->isChecked())))
        setInputsEnabled(true);
}

void ExcelImportDialog::jobFinished(RosterImport::Outcome outcome) {
    if (outcome != RosterImport::Outcome::Finished) {
        setInputsEnabled(true);
        return;
    }
    if (!job()->log().isEmpty()) {
        txtSame->setPlainText(job()->log().mid(1));
        txtSame->show();
        lstUser->hide();
    }
    if (job()->duplicates() > 0) Frame2->setTitle(QStringLiteral("重复数据"));
    labMsg->setText(QStringLiteral("共导入数据%1条，屏蔽重复数据%2条")
                        .arg(job()->imported())
                        .arg(job()->duplicates()));
    labMsg->show();
    cmdOK->show();
    cmdStart->hide();
    cmdCancel->hide();
}
