#include "design/view/templaterestoredialog.h"

#include <QCloseEvent>
#include <QFile>
#include <QLabel>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "core/appstate.h"
#include "design/templatepage.h"

TemplateRestoreDialog::TemplateRestoreDialog(QWidget *parent) : QDialog(parent) {
    setWindowTitle(QStringLiteral("还原模板"));
    labInfo = new QLabel(QStringLiteral("正在清空临时数据..."), this);
    labInfo->setMinimumWidth(300);
    labInfo->setAlignment(Qt::AlignCenter);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(labInfo);
    tm.setInterval(300);
    connect(&tm, &QTimer::timeout, this, &TemplateRestoreDialog::tm_Timer);
    tm.start();
    adjustSize();
    centerForm(this);
}

void TemplateRestoreDialog::tm_Timer() {
    const AppState &state = appState();
    switch (step) {
        case 1:
            if (!QFile::exists(state.skinTmpConnStr)) step = 2;
            break;
        case 2: {
            labInfo->setText(QStringLiteral("正在还原备份文件..."));
            const design::RestoreResult result =
                design::restoreFactoryTemplate(state.appPath, state.skinFile);
            restored = result.restored;
            labInfo->setText(result.notice);
            if (!restored) labInfo->setStyleSheet(QStringLiteral("color: rgb(220,0,0);"));
            step = restored ? 3 : 0;
            break;
        }
        case 3:
            if (QFile::exists(state.skinTmpConnStr)) step = 0;
            break;
        default:
            tm.stop();
            Q_EMIT reloadRequested();
            step = kClosable;
            accept();
            break;
    }
}

void TemplateRestoreDialog::closeEvent(QCloseEvent *event) {
    if (step < kClosable) {
        event->ignore();
        return;
    }
    QDialog::closeEvent(event);
}

void TemplateRestoreDialog::reject() {
    if (step >= kClosable) QDialog::reject();
}
