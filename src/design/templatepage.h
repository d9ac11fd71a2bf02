#pragma once

#include <QString>
#include <QStringList>

// What the console's interface page does to templates, without its controls.
namespace design {

// The templates of the program folder: skin/*.jsk without ".jsk", in the folder's order.
QStringList listTemplates(const QString &appPath);
QString templatePath(const QString &appPath, const QString &name);

// The first fault of a stage size typed on the console, checked in order: width not a number,
// height not a number, width below 257, height below 177, width or height past the 16-bit
// limit of 32767. Empty when both pass; `widthField`
// tells which field gets the focus.
struct SizeCheck {
    QString message;
    bool widthField = true;
    bool ok() const { return message.isEmpty(); }
};
SizeCheck checkStageSize(const QString &width, const QString &height);

// Stores the page size and, when backgroundFile names an existing file, copies it to
// skin/sPhoto/<template name><ext> and makes it the page's background.
bool saveTemplatePage(const QString &appPath, const QString &templateName, int width, int height,
                      const QString &backgroundFile, QString *error = nullptr);

// The designer works on a copy: skin/sdb.tmp, overwritten from the template.
bool copyToWorkingFile(const QString &appPath, const QString &templateName);

}  // namespace design

namespace design {

// Putting a template back to its factory state, in the steps the restore dialog shows. The
// designer has deleted its working copy before; restoring copies skin/bak/<file> over the
// template and over the working copy. Without a factory copy nothing changes.
struct RestoreResult {
    bool restored = false;
    QString notice;  // what the dialog says last
};
RestoreResult restoreFactoryTemplate(const QString &appPath, const QString &templateFile);

}  // namespace design
