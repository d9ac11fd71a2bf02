#include "roster/view/photoimportdialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QVBoxLayout>

#include "core/ui.h"

PhotoImportDialog::PhotoImportDialog(QWidget *parent) : ImportDialog(fileImportQuestion(), parent) {
    setWindowTitle(tr("导入照片"));
    resize(560, 440);
    auto *chooseBox = new QGroupBox(tr("选择照片目录"), this);
    m_chooseButton = new QPushButton(tr("选择.."), chooseBox);
    m_chooseButton->setObjectName(QStringLiteral("chooseButton"));
    auto *selectAllHint = new QLabel(tr("可以按CTRL+A全选要导入的照片"), chooseBox);
    auto *namingHint = new QLabel(tr("参考格式：(张三.jpg 或 张三,宣传部.jpg) "), chooseBox);
    namingHint->setStyleSheet(QStringLiteral("color:#8a5a00;"));
    auto *choose = new QGridLayout(chooseBox);
    choose->addWidget(m_chooseButton, 0, 0);
    choose->addWidget(selectAllHint, 0, 1);
    choose->addWidget(namingHint, 1, 1);

    m_shrinkBox = new QCheckBox(tr("启用智能图片压缩"), this);
    m_shrinkBox->setChecked(true);
    m_shrinkHint = new QLabel(tr("(如果您的图片较大,建议启用)"), this);
    m_sizeSlider = new QSlider(Qt::Horizontal, this);
    m_sizeSlider->setObjectName(QStringLiteral("sizeSlider"));
    m_sizeSlider->setRange(1, 10);
    m_sizeSlider->setValue(8);
    m_sizeLabel = new QLabel(tr("像素范围(800x800)内"), this);
    m_sizeLabel->setObjectName(QStringLiteral("sizeLabel"));
    m_rawPhotosHint = new QLabel(tr("如果您导入的照片未经处理,建议启用压缩"), this);
    m_rawPhotosHint->setStyleSheet(QStringLiteral("color:#8a5a00;"));
    m_appendButton = new QRadioButton(tr("追加名单"), this);
    m_appendButton->setToolTip(tr("导入的名单将追加到原有名单之后"));
    m_appendButton->setChecked(true);
    m_replaceButton = new QRadioButton(tr("覆盖名单"), this);
    m_replaceButton->setToolTip(tr("导入的名单将完全替换原有名单"));
    m_logEdit = new QPlainTextEdit(this);
    m_logEdit->setObjectName(QStringLiteral("logEdit"));
    m_logEdit->setReadOnly(true);
    m_logEdit->hide();
    m_statusLabel = new QLabel(tr("请选择照片"), this);
    m_statusLabel->setObjectName(QStringLiteral("statusLabel"));
    m_startButton = new QPushButton(tr("开始"), this);
    m_startButton->setObjectName(QStringLiteral("startButton"));
    m_cancelButton = new QPushButton(tr("取消"), this);
    m_okButton = new QPushButton(tr("确定"), this);
    m_okButton->hide();
    m_startButton->setEnabled(false);
    buildLayout(chooseBox);

    connect(m_shrinkBox, &QCheckBox::toggled, m_sizeSlider, &QSlider::setEnabled);
    connect(m_sizeSlider, &QSlider::valueChanged, this,
            [this](int value) { m_sizeLabel->setText(tr("像素范围(%1x%1)内").arg(value * 100)); });
    connect(m_chooseButton, &QPushButton::clicked, this, &PhotoImportDialog::chooseFiles);
    connect(m_startButton, &QPushButton::clicked, this, &PhotoImportDialog::startImport);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_okButton, &QPushButton::clicked, this, &QDialog::accept);
}

void PhotoImportDialog::buildLayout(QWidget *chooseBox) {
    auto *shrink = new QGridLayout;
    shrink->addWidget(m_shrinkBox, 0, 0);
    shrink->addWidget(m_shrinkHint, 0, 1);
    shrink->addWidget(m_sizeSlider, 1, 0);
    shrink->addWidget(m_sizeLabel, 1, 1);
    shrink->addWidget(m_rawPhotosHint, 2, 0, 1, 2);
    auto *choice = new QHBoxLayout;
    choice->addWidget(m_appendButton);
    choice->addWidget(m_replaceButton);
    choice->addStretch();
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_statusLabel, 1);
    buttons->addWidget(m_startButton);
    buttons->addWidget(m_cancelButton);
    buttons->addWidget(m_okButton);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(chooseBox);
    layout->addLayout(shrink);
    layout->addLayout(choice);
    layout->addWidget(m_logEdit, 1);
    layout->addStretch();
    layout->addWidget(progressBar());
    layout->addLayout(buttons);
}

void PhotoImportDialog::chooseFiles() {
    const QStringList files =
        ui().openFiles(tr("导入照片"), QString(),
                       tr("所有图片文件 (*.jpg *.gif *.jpeg *.png);;JPG Files(*.jpg *.jpeg);;"
                          "GIF Files(*.gif);;PNG Files(*.png)"));
    if (files.isEmpty()) return;
    m_files = files;
    m_statusLabel->setText(tr("共加载图片%1张，请点开始导入。").arg(files.size()));
    m_startButton->setEnabled(true);
}

void PhotoImportDialog::showImporting(bool importing) {
    m_startButton->setVisible(!importing);
    m_cancelButton->setVisible(!importing);
    m_chooseButton->setVisible(!importing);
    m_okButton->setVisible(importing);
    m_okButton->setEnabled(false);
    if (importing) m_logEdit->show();
    for (QWidget *w : QList<QWidget *>{m_shrinkBox, m_sizeSlider, m_appendButton, m_replaceButton})
        w->setEnabled(!importing);
    m_sizeSlider->setEnabled(!importing && m_shrinkBox->isChecked());
}

void PhotoImportDialog::startImport() {
    if (m_replaceButton->isChecked() && !confirmReplace()) return;
    showImporting(true);
    auto photos = std::make_unique<PhotoImport>(
        m_files, m_shrinkBox->isChecked(), m_sizeSlider->value(), m_replaceButton->isChecked());
    connect(photos.get(), &RosterImport::progress, this, [this](qint64 done, qint64 total) {
        m_statusLabel->setText(tr("导入数据中......,完成%1/%2").arg(done).arg(total));
        m_logEdit->setPlainText(job()->log().mid(1));
    });
    // A job that could not start has said why; the operator may try again.
    if (!runJob(std::move(photos))) showImporting(false);
}

void PhotoImportDialog::jobFinished(RosterImport::Outcome outcome) {
    m_okButton->setEnabled(true);
    if (outcome != RosterImport::Outcome::Finished) return;
    QString text = job()->log().mid(1);
    if (!text.isEmpty()) text += QLatin1Char('\n');
    text += tr("导入名单%1条\n重复%2条,请点确定按钮刷新")
                .arg(job()->imported())
                .arg(job()->duplicates());
    if (job()->skipped() > 0) text += tr("\n文件名中没有姓名,跳过%1张").arg(job()->skipped());
    m_logEdit->setPlainText(text);
    m_logEdit->verticalScrollBar()->setValue(m_logEdit->verticalScrollBar()->maximum());
    m_statusLabel->hide();
}
