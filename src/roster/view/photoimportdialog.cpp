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

PhotoImportDialog::PhotoImportDialog(QWidget *parent)
    : ImportDialog(QStringLiteral("文件正在导入中，确认要退出么？"), parent) {
    setWindowTitle(QStringLiteral("导入照片"));
    resize(560, 440);
    auto *frm1 = new QGroupBox(QStringLiteral("选择照片目录"), this);
    cmdOpen = new QPushButton(QStringLiteral("选择.."), frm1);
    auto *label1 = new QLabel(QStringLiteral("可以按CTRL+A全选要导入的照片"), frm1);
    auto *label3 = new QLabel(QStringLiteral("参考格式：(张三.jpg 或 张三,宣传部.jpg) "), frm1);
    label3->setStyleSheet(QStringLiteral("color:#8a5a00;"));
    auto *open = new QGridLayout(frm1);
    open->addWidget(cmdOpen, 0, 0);
    open->addWidget(label1, 0, 1);
    open->addWidget(label3, 1, 1);

    chkYS = new QCheckBox(QStringLiteral("启用智能图片压缩"), this);
    chkYS->setChecked(true);
    auto *lab = new QLabel(QStringLiteral("(如果您的图片较大,建议启用)"), this);
    sld = new QSlider(Qt::Horizontal, this);
    sld->setRange(1, 10);
    sld->setValue(8);
    labFW = new QLabel(QStringLiteral("像素范围(800x800)内"), this);
    auto *label2 = new QLabel(QStringLiteral("如果您导入的照片未经处理,建议启用压缩"), this);
    label2->setStyleSheet(QStringLiteral("color:#8a5a00;"));
    opt1 = new QRadioButton(QStringLiteral("追加名单"), this);
    opt1->setToolTip(QStringLiteral("导入的名单将追加到原有名单之后"));
    opt1->setChecked(true);
    opt2 = new QRadioButton(QStringLiteral("覆盖名单"), this);
    opt2->setToolTip(QStringLiteral("导入的名单将完全替换原有名单"));
    txtInfo = new QPlainTextEdit(this);
    txtInfo->setReadOnly(true);
    txtInfo->hide();
    labmsg = new QLabel(QStringLiteral("请选择照片"), this);
    cmdStart = new QPushButton(QStringLiteral("开始"), this);
    cmdExit = new QPushButton(QStringLiteral("取消"), this);
    cmdOk = new QPushButton(QStringLiteral("确定"), this);
    cmdOk->hide();
    cmdStart->setEnabled(false);

    auto *compress = new QGridLayout;
    compress->addWidget(chkYS, 0, 0);
    compress->addWidget(lab, 0, 1);
    compress->addWidget(sld, 1, 0);
    compress->addWidget(labFW, 1, 1);
    compress->addWidget(label2, 2, 0, 1, 2);
    auto *choice = new QHBoxLayout;
    choice->addWidget(opt1);
    choice->addWidget(opt2);
    choice->addStretch();
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(labmsg, 1);
    buttons->addWidget(cmdStart);
    buttons->addWidget(cmdExit);
    buttons->addWidget(cmdOk);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(frm1);
    layout->addLayout(compress);
    layout->addLayout(choice);
    layout->addWidget(txtInfo, 1);
    layout->addStretch();
    layout->addWidget(pBar);
    layout->addLayout(buttons);

    connect(chkYS, &QCheckBox::toggled, sld, &QSlider::setEnabled);
    connect(sld, &QSlider::valueChanged, this, [this](int value) {
        labFW->setText(QStringLiteral("像素范围(%1x%1)内").arg(value * 100));
    });
    connect(cmdOpen, &QPushButton::clicked, this, &PhotoImportDialog::cmdOpenClicked);
    connect(cmdStart, &QPushButton::clicked, this, &PhotoImportDialog::cmdStartClicked);
    connect(cmdExit, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdOk, &QPushButton::clicked, this, &QDialog::accept);
}

void PhotoImportDialog::cmdOpenClicked() {
    const QStringList files = ui().openFiles(
        QStringLiteral("导入照片"), QString(),
        QStringLiteral("所有图片文件 (*.jpg *.gif *.jpeg *.png);;JPG Files(*.jpg *.jpeg);;"
                       "GIF Files(*.gif);;PNG Files(*.png)"));
    if (!files.isEmpty()) setFiles(files);
}

void PhotoImportDialog::setFiles(const QStringList &files) {
    m_files = files;
    labmsg->setText(QStringLiteral("共加载图片%1张，请点开始导入。").arg(files.size()));
    cmdStart->setEnabled(!files.isEmpty());
}

void PhotoImportDialog::cmdStartClicked() {
    cmdStart->hide();
    cmdExit->hide();
    cmdOpen->hide();
    cmdOk->show();
    cmdOk->setEnabled(false);
    txtInfo->show();
    chkYS->setEnabled(false);
    sld->setEnabled(false);
    opt1->setEnabled(false);
    opt2->setEnabled(false);
    auto photos =
        std::make_unique<PhotoImport>(m_files, chkYS->isChecked(), sld->value(), opt2->isChecked());
    connect(photos.get(), &RosterImport::progress, this, [this](qint64 done, qint64 total) {
        labmsg->setText(QStringLiteral("导入数据中......,完成%1/%2").arg(done).arg(total));
        txtInfo->setPlainText(job()->log().mid(1));
    });
    runJob(std::move(photos));
}

void PhotoImportDialog::jobFinished(RosterImport::Outcome outcome) {
    cmdOk->setEnabled(true);
    if (outcome != RosterImport::Outcome::Finished) return;
    QString text = job()->log().mid(1);
    if (!text.isEmpty()) text += QLatin1Char('\n');
    text += QStringLiteral("导入名单%1条\n重复%2条,请点确定按钮刷新")
                .arg(job()->imported())
                .arg(job()->duplicates());
    txtInfo->setPlainText(text);
    txtInfo->verticalScrollBar()->setValue(txtInfo->verticalScrollBar()->maximum());
    labmsg->hide();
}
