#include "design/view/templaterestoredialog.h"

#include <QCloseEvent>
#include <QFile>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "core/appstate.h"
#include "design/templatepage.h"

TemplateRestoreDialog::TemplateRestoreDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(tr("还原模板"));
    m_statusLabel = new QLabel(tr("正在清空临时数据..."), this);
    m_statusLabel->setObjectName(QStringLiteral("statusLabel"));
    m_statusLabel->setMinimumWidth(300);
    m_statusLabel->setAlignment(Qt::AlignCenter);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_statusLabel);
    m_stepTimer = new QTimer(this);
    m_stepTimer->setObjectName(QStringLiteral("stepTimer"));
    m_stepTimer->setInterval(300);
    connect(m_stepTimer, &QTimer::timeout, this, &TemplateRestoreDialog::advance);
    m_stepTimer->start();
    adjustSize();
    centerForm(this);
}

void TemplateRestoreDialog::advance() {
    const AppState &state = appState();
    switch (m_step) {
        case Step::AwaitWorkingCopyGone:
            // The designer deletes its working copy before it opens this dialog.
            if (!QFile::exists(state.skinTmpConnStr)) m_step = Step::Restore;
            break;
        case Step::Restore: {
            m_statusLabel->setText(tr("正在还原备份文件..."));
            const design::RestoreResult result =
                design::restoreFactoryTemplate(state.appPath, state.skinFile);
            m_statusLabel->setText(result.notice);
            if (!result.restored)
                m_statusLabel->setStyleSheet(QStringLiteral("color: rgb(220,0,0);"));
            m_step = result.restored ? Step::AwaitWorkingCopyBack : Step::Finish;
            break;
        }
        case Step::AwaitWorkingCopyBack:
            if (QFile::exists(state.skinTmpConnStr)) m_step = Step::Finish;
            break;
        case Step::Finish:
            m_stepTimer->stop();
            Q_EMIT reloadRequested();
            m_step = Step::Done;
            accept();
            break;
        case Step::Done:
            break;
    }
}

void TemplateRestoreDialog::closeEvent(QCloseEvent *event) {
    if (m_step != Step::Done) {
        event->ignore();
        return;
    }
    QDialog::closeEvent(event);
}

void TemplateRestoreDialog::reject() {
    if (m_step == Step::Done) QDialog::reject();
}
