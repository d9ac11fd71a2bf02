#include "roster/view/importdialog.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
#include <QRadioButton>

#include "core/appstate.h"
#include "core/events.h"
#include "core/store.h"
#include "core/ui.h"
#include "roster/replaceguard.h"

ImportDialog::ImportDialog(const QString &closeQuestion, QWidget *parent)
    : QDialog(parent), m_closeQuestion(closeQuestion) {
    m_progressBar = new QProgressBar(this);
    m_progressBar->setObjectName(QStringLiteral("progressBar"));
    m_progressBar->setTextVisible(true);
    m_progressBar->hide();
    m_resultLabel = new QLabel(this);
    m_resultLabel->setObjectName(QStringLiteral("resultLabel"));
    // Wrapped, so a long count does not widen the dialog when it appears.
    m_resultLabel->setWordWrap(true);
    m_resultLabel->hide();
}

ImportDialog::~ImportDialog() {
    // The derived dialog is gone already: the job must not call back into it while it rolls back.
    if (m_job) {
        m_job->disconnect(this);
        m_job->cancel();
    }
}

bool ImportDialog::runJob(std::unique_ptr<RosterImport> job) {
    m_job = std::move(job);
    connect(m_job.get(), &RosterImport::progress, this, [this](qint64 done, qint64 total) {
        // The bar counts in thousandths, so a million rows fit its int range.
        m_progressBar->setValue(total > 0 ? static_cast<int>(done * 1000 / total) : 1000);
    });
    connect(m_job.get(), &RosterImport::finished, this, [this](RosterImport::Outcome outcome) {
        m_progressBar->setValue(m_progressBar->maximum());
        if (outcome == RosterImport::Outcome::Finished) emit events().rosterChanged();
        if (outcome == RosterImport::Outcome::Failed)
            showFailure(tr("导入发生错误,错误原因如下\n") + m_job->errorText());
        jobFinished(outcome);
    });
    m_progressBar->setRange(0, 1000);
    m_progressBar->setValue(0);
    m_progressBar->show();
    QString error;
    if (!m_job->start(&error)) {
        showFailure(error);
        return false;
    }
    return true;
}

QString ImportDialog::fileImportQuestion() {
    return tr("文件正在导入中，确认要退出么？");
}

QString ImportDialog::appendCaption() {
    return tr("导入的名单追加到原有名单之后");
}

QString ImportDialog::replaceCaption() {
    return tr("完全替换原有名单");
}

void ImportDialog::waitForJob() {
    if (!isImporting()) return;
    QEventLoop loop;
    connect(m_job.get(), &RosterImport::finished, &loop, &QEventLoop::quit);
    loop.exec();
}

void ImportDialog::showFailure(const QString &text) {
    ui().message(text, MsgStyle::Critical, titles::error);
}

void ImportDialog::closeEvent(QCloseEvent *event) {
    if (!isImporting()) {
        QDialog::closeEvent(event);
        return;
    }
    m_job->pause();
    if (ui().question(m_closeQuestion, titles::notice)) {
        m_job->cancel();
        QDialog::closeEvent(event);
        return;
    }
    m_job->resume();
    event->ignore();
}

void ImportDialog::reject() {
    if (isImporting())
        close();
    else
        QDialog::reject();
}

void ImportDialog::checkDefaultMode(QRadioButton *append, QRadioButton *replace) {
    if (roster::importOpensOnAppend(store::mainConn()))
        append->setChecked(true);
    else
        replace->setChecked(true);
}

bool ImportDialog::confirmReplace(const QString &title) {
    return roster::confirmReplace(store::mainConn(), appState().appPath, title);
}

void ImportDialog::showResult(const QString &text) {
    m_resultLabel->setText(text);
    m_resultLabel->show();
}

QString ImportDialog::resultText() const {
    QString text =
        tr("共导入数据%1条，屏蔽重复数据%2条").arg(m_job->imported()).arg(m_job->duplicates());
    if (m_job->skipped() > 0) text += tr("，跳过空白或无法识别的数据%1条").arg(m_job->skipped());
    return text;
}
