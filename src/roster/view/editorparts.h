#pragma once

#include <QLineEdit>
#include <QString>

class QFormLayout;
class QToolBar;
class PictureBox;
class QWidget;

// Pieces shared by the participant editors of the roster manager and the add dialog.
namespace editorparts {

// A box that takes digits only.
void makeDigitsOnly(QLineEdit *edit);

// A box for the distinction number: digits only, with a tip saying what the number is for.
void makeDiffNumEdit(QLineEdit *edit);

// The name, remark and distinction-number rows of a participant editor.
void addParticipantRows(QFormLayout *form, QLineEdit *name, QLineEdit *remark, QLineEdit *diffNum);

// Refusals shared by both editors.
QString missingNameMessage();
QString duplicateMessage();

// The picture toolbar: "拍照" (camera), "选择照片" (file), "清除照片". photoState is the hidden
// picture state ("no", "yes", "camre" or a chosen file), kept up to date by the toolbar; caller
// is the editor's name, told to the camera.
QToolBar *makePhotoToolbar(QWidget *owner, PictureBox *viewer, QLineEdit *photoState,
                           const QString &caller, const QString &fileFilter);

}  // namespace editorparts
