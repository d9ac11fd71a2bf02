#include "roster/view/importdialog.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QProgressBar>

#include "core/events.h"
#include "core/ui.h"

ImportDialog::ImportDialog(const QString &closeQuestion, QWidget *parent)
    : QDialog(parent), m_closeQuestion(closeQuestion) {
    pBar = new QProgressBar(this);
    pBar->setTextVisible(true);
    pBar->hide();
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
        pBar->setValue(total > 0 ? static_cast<int>(done * 1000 / total) : 1000);
    });
    connect(m_job.get(), &RosterImport::finished, this, [this](RosterImport::Outcome outcome) {
        pBar->setValue(pBar->maximum());
        if (outcome == RosterImport::Outcome::Finished) emit events().rosterChanged();
        if (outcome == RosterImport::Outcome::Failed)
            showFailure(QStringLiteral("导入发生错误,错误原因如下\n") + m_job->errorText());
        jobFinished(outcome);
    });
    pBar->setRange(0, 1000);
    pBar->setValue(0);
    pBar->show();
    QString error;
    if (!m_job->start(&error)) {
        showFailure(error);
        return false;
    }
    return true;
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
