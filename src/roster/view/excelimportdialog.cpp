#include "roster/view/excelimportdialog.h"

#include <QCheckBox>
#include <QEventLoop>
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
#include "core/logging.h"
#include "core/ui.h"

ExcelImportDialog::ExcelImportDialog(const QString &path, QWidget *parent)
    : ImportDialog(fileImportQuestion(), parent) {
    setWindowTitle(tr("导入Excel"));
    resize(760, 560);
    m_fileLabel = new QLabel(path, this);
    m_fileLabel->setWordWrap(true);
    m_sheetList = new QListWidget(this);
    m_sheetList->setObjectName(QStringLiteral("sheetList"));
    m_columnList = new QTreeWidget(this);
    m_columnList->setObjectName(QStringLiteral("columnList"));
    m_columnList->setHeaderLabels({tr("选择"), tr("字段")});
    m_columnList->setRootIsDecorated(false);
    m_headerRowBox = new QCheckBox(tr("导入的表格中第一行包含了标题"), this);
    m_headerRowBox->setObjectName(QStringLiteral("headerRowBox"));
    m_headerRowHint = new QLabel(tr("（勾选后将从Excel第2行开始导入）"), this);
    m_separatorEdit = new QLineEdit(QStringLiteral(" "), this);
    m_separatorEdit->setMaxLength(3);
    m_separatorEdit->setFixedWidth(60);
    m_appendButton = new QRadioButton(appendCaption(), this);
    m_appendButton->setObjectName(QStringLiteral("appendButton"));
    m_replaceButton = new QRadioButton(replaceCaption(), this);
    m_replaceButton->setObjectName(QStringLiteral("replaceButton"));
    checkDefaultMode(m_appendButton, m_replaceButton);
    m_previewBox = new QGroupBox(tr("导入后信息样式（演示前3条记录）"), this);
    m_previewBox->setObjectName(QStringLiteral("previewBox"));
    m_previewList = new QTreeWidget(m_previewBox);
    m_previewList->setObjectName(QStringLiteral("previewList"));
    m_previewList->setHeaderLabels({tr("排序"), tr("抽奖名单(抽奖时滚动的内容)"), tr("备注")});
    m_previewList->setRootIsDecorated(false);
    m_previewList->setColumnWidth(0, 50);
    m_previewList->setColumnWidth(1, 260);
    m_duplicatesEdit = new QPlainTextEdit(m_previewBox);
    m_duplicatesEdit->setObjectName(QStringLiteral("duplicatesEdit"));
    m_duplicatesEdit->setReadOnly(true);
    m_duplicatesEdit->hide();
    m_startButton = new QPushButton(tr("开始导入"), this);
    m_startButton->setObjectName(QStringLiteral("startButton"));
    m_cancelButton = new QPushButton(tr("取消"), this);
    m_cancelButton->setObjectName(QStringLiteral("cancelButton"));
    m_okButton = new QPushButton(tr("确定"), this);
    m_okButton->setObjectName(QStringLiteral("okButton"));
    m_okButton->hide();
    m_templateButton = new QPushButton(tr("打开excel模板"), this);
    m_templateButton->setObjectName(QStringLiteral("templateButton"));
    m_startButton->setEnabled(false);
    buildLayout();

    connect(m_sheetList, &QListWidget::currentRowChanged, this, &ExcelImportDialog::chooseSheet);
    connect(m_columnList, &QTreeWidget::itemChanged, this, &ExcelImportDialog::preview);
    connect(m_headerRowBox, &QCheckBox::toggled, this, &ExcelImportDialog::preview);
    connect(m_separatorEdit, &QLineEdit::textChanged, this, &ExcelImportDialog::preview);
    connect(m_startButton, &QPushButton::clicked, this, &ExcelImportDialog::startImport);
    connect(m_cancelButton, &QPushButton::clicked, this, [this] {
        if (isReadingSheet())
            cancelRead();
        else
            reject();
    });
    connect(m_okButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_templateButton, &QPushButton::clicked, this, [] {
        const QUrl demo = QUrl::fromLocalFile(appState().path(QStringLiteral("demo.xlsx")));
        if (!ui().openUrl(demo)) qCWarning(lcRoster) << "cannot open the workbook template" << demo;
    });
    openWorkbook(path);
}

void ExcelImportDialog::buildLayout() {
    auto *grid = new QGridLayout;
    grid->addWidget(new QLabel(tr("工作表："), this), 0, 0);
    grid->addWidget(new QLabel(tr("勾选组成抽奖名单的列（其余列合并为备注）："), this), 0, 1);
    grid->addWidget(m_sheetList, 1, 0);
    grid->addWidget(m_columnList, 1, 1);
    grid->setColumnStretch(1, 2);
    auto *options = new QGridLayout;
    options->addWidget(m_headerRowBox, 0, 0);
    options->addWidget(m_headerRowHint, 0, 1);
    options->addWidget(new QLabel(tr("多列信息合并后中间穿插字符："), this), 1, 0);
    options->addWidget(m_separatorEdit, 1, 1, Qt::AlignLeft);
    options->addWidget(m_appendButton, 2, 0);
    options->addWidget(m_replaceButton, 2, 1);
    auto *previewLayout = new QVBoxLayout(m_previewBox);
    previewLayout->addWidget(m_previewList);
    previewLayout->addWidget(m_duplicatesEdit);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_templateButton);
    buttons->addWidget(resultLabel(), 1);
    buttons->addStretch();
    buttons->addWidget(m_startButton);
    buttons->addWidget(m_cancelButton);
    buttons->addWidget(m_okButton);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_fileLabel);
    layout->addLayout(grid, 2);
    layout->addLayout(options);
    layout->addWidget(m_previewBox, 3);
    layout->addWidget(progressBar());
    layout->addLayout(buttons);
}

void ExcelImportDialog::openWorkbook(const QString &path) {
    QString error;
    if (!m_book.open(path, &error)) {
        ui().message(error, MsgStyle::Critical, titles::error);
        m_sheetList->setEnabled(false);
        m_columnList->setEnabled(false);
        return;
    }
    m_sheetList->addItems(m_book.sheetNames());
    if (m_sheetList->count() == 0) {
        m_sheetList->setEnabled(false);
        m_columnList->setEnabled(false);
    } else {
        m_sheetList->setCurrentRow(0);
    }
}

ExcelImportDialog::~ExcelImportDialog() {
    cancelRead();
}

void ExcelImportDialog::chooseSheet(int index) {
    cancelRead();
    // Whatever was read before goes first: a sheet that fails must leave nothing to import.
    m_sheet = workbook::Sheet();
    m_columnList->clear();
    m_previewList->clear();
    m_startButton->setEnabled(false);
    if (index < 0) return;
    m_readSheet = workbook::Sheet();
    m_readError.clear();
    m_readOk = false;
    m_cancelRead = false;
    const int generation = ++m_readGeneration;
    workbook::ReadControl control;
    control.cancel = &m_cancelRead;
    control.progress = [this, generation](qint64 done, qint64 total) {
        QMetaObject::invokeMethod(
            this,
            [this, generation, done, total] {
                if (generation == m_readGeneration && total > 0)
                    progressBar()->setValue(static_cast<int>(done * 1000 / total));
            },
            Qt::QueuedConnection);
    };
    m_readThread.reset(QThread::create([this, index, control] {
        m_readOk = m_book.readSheet(index, -1, &m_readSheet, &m_readError, control);
    }));
    connect(m_readThread.get(), &QThread::finished, this, [this, generation] {
        if (generation == m_readGeneration) sheetRead();
    });
    progressBar()->setRange(0, 1000);
    progressBar()->setValue(0);
    progressBar()->show();
    m_readThread->start();
}

void ExcelImportDialog::cancelRead() {
    if (!m_readThread) return;
    ++m_readGeneration;  // a finish already on its way is stale
    m_cancelRead = true;
    m_readThread->wait();
    m_readThread.reset();
    progressBar()->hide();
}

void ExcelImportDialog::waitForSheet() {
    if (!isReadingSheet()) return;
    QEventLoop loop;
    connect(this, &ExcelImportDialog::sheetReadFinished, &loop, &QEventLoop::quit);
    loop.exec();
}

void ExcelImportDialog::sheetRead() {
    m_readThread->wait();
    m_readThread.reset();
    progressBar()->hide();
    if (!m_readOk) {
        if (!m_readError.isEmpty()) ui().message(m_readError, MsgStyle::Critical, titles::error);
        emit sheetReadFinished(false);
        return;
    }
    m_sheet = std::move(m_readSheet);
    m_readSheet = workbook::Sheet();
    if (m_sheet.columns > 10)
        ui().message(tr("Excel中存在过多的列，这样会导致导入速度十分缓慢\n"
                        "建议您修改Excel文件删除无用列再进行导入！"),
                     MsgStyle::Exclamation, titles::warning);
    listColumns();
    emit sheetReadFinished(true);
}

void ExcelImportDialog::listColumns() {
    const QSignalBlocker blocker(m_columnList);
    m_columnList->clear();
    for (int column = 0; column < m_sheet.columns; ++column) {
        auto *item = new QTreeWidgetItem(m_columnList);
        item->setCheckState(0, Qt::Unchecked);
        item->setText(1, QStringLiteral("F%1").arg(column + 1));
        item->setData(0, Qt::UserRole, QStringLiteral("K%1").arg(column));
    }
}

QList<bool> ExcelImportDialog::nameColumns() const {
    QList<bool> ticks;
    for (int i = 0; i < m_columnList->topLevelItemCount(); ++i)
        ticks << (m_columnList->topLevelItem(i)->checkState(0) == Qt::Checked);
    return ticks;
}

void ExcelImportDialog::preview() {
    m_previewList->clear();
    const int skip = m_headerRowBox->isChecked() ? 1 : 0;
    const QList<bool> ticks = nameColumns();
    bool anyName = false;
    for (int i = skip; i < qMin<qsizetype>(m_sheet.rows.size(), 3 + skip); ++i) {
        QString name;
        QString part;
        ExcelImport::mergeRow(m_sheet.rows.at(i), ticks, m_separatorEdit->text(), &name, &part);
        anyName = anyName || !name.trimmed().isEmpty();
        auto *item = new QTreeWidgetItem(m_previewList);
        item->setText(0, QString::number(i - skip + 1));
        item->setText(1, name);
        item->setText(2, part);
    }
    auto *more = new QTreeWidgetItem(m_previewList);
    more->setText(1, tr("以下省略更多内容..."));
    m_startButton->setEnabled(anyName);
}

void ExcelImportDialog::setInputsEnabled(bool enabled) {
    for (QWidget *w : QList<QWidget *>{m_sheetList, m_columnList, m_headerRowBox, m_separatorEdit,
                                       m_appendButton, m_replaceButton, m_startButton,
                                       m_cancelButton, m_templateButton})
        w->setEnabled(enabled);
}

void ExcelImportDialog::startImport() {
    if (m_replaceButton->isChecked() && !confirmReplace()) return;
    setInputsEnabled(false);
    if (!runJob(std::make_unique<ExcelImport>(m_sheet.rows, nameColumns(), m_separatorEdit->text(),
                                              m_headerRowBox->isChecked(),
                                              m_replaceButton->isChecked())))
        setInputsEnabled(true);
}

void ExcelImportDialog::jobFinished(RosterImport::Outcome outcome) {
    if (outcome != RosterImport::Outcome::Finished) {
        setInputsEnabled(true);
        return;
    }
    if (!job()->log().isEmpty()) {
        m_duplicatesEdit->setPlainText(job()->log().mid(1));
        m_duplicatesEdit->show();
        m_previewList->hide();
    }
    if (job()->duplicates() > 0) m_previewBox->setTitle(tr("重复数据"));
    showResult(resultText());
    m_okButton->show();
    m_startButton->hide();
    m_cancelButton->hide();
}
