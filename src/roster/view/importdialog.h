#pragma once

#include <QDialog>
#include <memory>

#include "core/ui.h"
#include "roster/rosterimport.h"

class QLabel;
class QProgressBar;
class QRadioButton;

// What the four bulk imports share: the job on the event loop, the progress bar, and the close
// question while the job runs (Yes cancels it, and the roster stays as it was before).
class ImportDialog : public QDialog {
    Q_OBJECT
public:
    ImportDialog(const QString &closeQuestion, QWidget *parent);
    ~ImportDialog() override;

    RosterImport *job() const { return m_job.get(); }
    bool isImporting() const { return m_job && m_job->isRunning(); }
    // Waits on the event loop until the running job ends (tests, screenshots).
    void waitForJob();

protected:
    // The job's progress, for the derived dialog's layout (hidden until a job starts).
    QProgressBar *progressBar() const { return m_progressBar; }
    // The line that tells the outcome beside the buttons (hidden until showResult).
    QLabel *resultLabel() const { return m_resultLabel; }
    void showResult(const QString &text);
    // Starts the job; a job that cannot start shows its message and returns false.
    bool runJob(std::unique_ptr<RosterImport> job);
    virtual void jobFinished(RosterImport::Outcome outcome) = 0;
    void closeEvent(QCloseEvent *event) override;
    void reject() override;
    // The message of a failed job, in a box titled "错误".
    void showFailure(const QString &text);
    // "共导入数据N条，屏蔽重复数据M条", and how many rows were passed over when any were.
    QString resultText() const;
    // Checks "append" when someone is on the roster, else "replace": a late import during the
    // party must not wipe the evening's results by default.
    static void checkDefaultMode(QRadioButton *append, QRadioButton *replace);
    // The close question of the file imports, and their append and replace captions.
    static QString fileImportQuestion();
    static QString appendCaption();
    static QString replaceCaption();
    // Before a replace: asks with what would go and writes the snapshot; false stops the job.
    static bool confirmReplace(const QString &title = titles::notice);

private:
    QProgressBar *m_progressBar = nullptr;
    QLabel *m_resultLabel = nullptr;
    std::unique_ptr<RosterImport> m_job;
    QString m_closeQuestion;
};
