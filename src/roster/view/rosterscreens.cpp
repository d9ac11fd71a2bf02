#include "roster/view/rosterscreens.h"

#include <QCoreApplication>

#include "awards/view/camerahook.h"
#include "core/ui.h"
#include "roster/view/cameracapturedialog.h"
#include "roster/view/excelimportdialog.h"
#include "roster/view/numbergeneratordialog.h"
#include "roster/view/photoimportdialog.h"
#include "roster/view/rostermanagerdialog.h"
#include "roster/view/textimportdialog.h"

namespace rosterscreens {

void openManager(QWidget *parent) {
    RosterManagerDialog::showManager(parent);
}

namespace {

// An import started from the console shows the roster it made once the operator confirms it.
void runImport(ImportDialog &form, QWidget *parent, bool fromConsole) {
    if (form.exec() == QDialog::Accepted && fromConsole) openManager(parent);
}

}  // namespace

bool importExcel(QWidget *parent, bool fromConsole) {
    const QString file =
        ui().openFile(QCoreApplication::translate("rosterscreens", "导入Excel文件"), QString(),
                      QCoreApplication::translate("rosterscreens", "Excel文件 (*.xls *.xlsx)"));
    if (file.trimmed().isEmpty()) return false;
    ExcelImportDialog form(file, parent);
    runImport(form, parent, fromConsole);
    return true;
}

bool importText(QWidget *parent, bool fromConsole) {
    const QString file =
        ui().openFile(QCoreApplication::translate("rosterscreens", "导入Txt文件"), QString(),
                      QCoreApplication::translate("rosterscreens", "文本文件 (*.txt)"));
    if (file.trimmed().isEmpty()) return false;
    TextImportDialog form(file, parent);
    runImport(form, parent, fromConsole);
    return true;
}

void importPhotos(QWidget *parent, bool fromConsole) {
    PhotoImportDialog form(parent);
    runImport(form, parent, fromConsole);
}

void generateNumbers(QWidget *parent, bool fromConsole) {
    NumberGeneratorDialog form(parent);
    runImport(form, parent, fromConsole);
}

void installCamera() {
    awardcamera::setShot(&CameraCaptureDialog::takePhoto);
}

void openRosterAction(int index, QWidget *parent) {
    switch (index) {
        case 0:
            openManager(parent);
            break;
        case 1:
            importExcel(parent, true);
            break;
        case 2:
            importText(parent, true);
            break;
        case 3:
            importPhotos(parent, true);
            break;
        case 4:
            generateNumbers(parent, true);
            break;
        default:
            break;
    }
}

}  // namespace rosterscreens
