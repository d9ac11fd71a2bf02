#include "roster/view/editorparts.h"

#include <QAction>
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

QToolBar *makePhotoToolbar(QWidget *owner, PictureBox *viewer, QLineEdit *photoState,
                           const QString &caller, const QString &fileFilter) {
    auto *bar = new QToolBar(owner);
    bar->setObjectName(QStringLiteral("photoToolbar"));
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    QObject::connect(bar->addAction(QStringLiteral("拍照")), &QAction::triggered, owner,
                     [owner, viewer, photoState, caller] {
                         const QString path = CameraCaptureDialog::takePhoto(owner, caller);
                         if (path.isEmpty()) return;
                         viewer->showPicture(path);
                         photoState->setText(QStringLiteral("camre"));
                     });
    QObject::connect(bar->addAction(QStringLiteral("选择照片")), &QAction::triggered, owner,
                     [viewer, photoState, fileFilter] {
                         const QString file =
                             ui().openFile(QStringLiteral("添加照片"), QString(), fileFilter);
                         if (file.isEmpty()) return;
                         viewer->showPicture(file);
                         photoState->setText(file);
                     });
    QObject::connect(bar->addAction(QStringLiteral("清除照片")), &QAction::triggered, owner,
                     [viewer, photoState] {
                         viewer->clearPicture();
                         photoState->setText(QStringLiteral("no"));
                     });
    return bar;
}

}  // namespace editorparts
