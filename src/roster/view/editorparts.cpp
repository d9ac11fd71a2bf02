#include "roster/view/editorparts.h"

#include <QAction>
#include <QCoreApplication>
#include <QFormLayout>
#include <QRegularExpressionValidator>
#include <QToolBar>

#include "core/ui.h"
#include "roster/view/cameracapturedialog.h"
#include "roster/view/picturebox.h"

namespace editorparts {

void makeDigitsOnly(QLineEdit *edit) {
    edit->setValidator(
        new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), edit));
}

void makeDiffNumEdit(QLineEdit *edit) {
    edit->setToolTip(
        QCoreApplication::translate("editorparts", "用于对抽奖条件进行筛选的标识号码"));
    makeDigitsOnly(edit);
}

void addParticipantRows(QFormLayout *form, QLineEdit *name, QLineEdit *remark, QLineEdit *diffNum) {
    form->addRow(QCoreApplication::translate("editorparts", "抽奖名单："), name);
    form->addRow(QCoreApplication::translate("editorparts", "备注信息："), remark);
    form->addRow(QCoreApplication::translate("editorparts", "区分编号："), diffNum);
}

QString missingNameMessage() {
    return QCoreApplication::translate("editorparts", "请输入抽奖名单!");
}

QString duplicateMessage() {
    return QCoreApplication::translate("editorparts", "名单重复,已经存在同样的人员信息");
}

QToolBar *makePhotoToolbar(QWidget *owner, PictureBox *viewer, QLineEdit *photoState,
                           const QString &caller, const QString &fileFilter) {
    auto *bar = new QToolBar(owner);
    bar->setObjectName(QStringLiteral("photoToolbar"));
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    QObject::connect(bar->addAction(QCoreApplication::translate("editorparts", "拍照")),
                     &QAction::triggered, owner, [owner, viewer, photoState, caller] {
                         const QString path = CameraCaptureDialog::takePhoto(owner, caller);
                         if (path.isEmpty()) return;
                         viewer->showPicture(path);
                         photoState->setText(QStringLiteral("camre"));
                     });
    QObject::connect(bar->addAction(QCoreApplication::translate("editorparts", "选择照片")),
                     &QAction::triggered, owner, [viewer, photoState, fileFilter] {
                         const QString file =
                             ui().openFile(QCoreApplication::translate("editorparts", "添加照片"),
                                           QString(), fileFilter);
                         if (file.isEmpty()) return;
                         viewer->showPicture(file);
                         photoState->setText(file);
                     });
    QObject::connect(bar->addAction(QCoreApplication::translate("editorparts", "清除照片")),
                     &QAction::triggered, owner, [viewer, photoState] {
                         viewer->clearPicture();
                         photoState->setText(QStringLiteral("no"));
                     });
    return bar;
}

}  // namespace editorparts
