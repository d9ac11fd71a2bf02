#pragma once

#include <QDialog>

class QLabel;
class QTimer;

// Restores the edited template to its factory copy, one step per tick so the operator sees each
// one; the dialog cannot be closed while a step is under way. On the way out it tells the
// designer to reload its working copy (reloadRequested()).
class TemplateRestoreDialog : public QDialog {
    Q_OBJECT
public:
    explicit TemplateRestoreDialog(QWidget *parent = nullptr);

Q_SIGNALS:
    void reloadRequested();

protected:
    void closeEvent(QCloseEvent *event) override;
    void reject() override;

private:
    enum class Step { AwaitWorkingCopyGone, Restore, AwaitWorkingCopyBack, Finish, Done };

    void advance();

    QLabel *m_statusLabel = nullptr;
    QTimer *m_stepTimer = nullptr;
    Step m_step = Step::AwaitWorkingCopyGone;
};
