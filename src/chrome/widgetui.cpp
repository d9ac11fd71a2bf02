#include "chrome/widgetui.h"

#include <QApplication>
#include <QColorDialog>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>

#include "core/appstate.h"

namespace {

QWidget *dialogParent() {
    return QApplication::activeWindow();
}

QMessageBox::Icon iconFor(MsgStyle style) {
    switch (style) {
        case MsgStyle::Exclamation:
            return QMessageBox::Warning;
        case MsgStyle::Critical:
            return QMessageBox::Critical;
        case MsgStyle::Information:
            break;
    }
    return QMessageBox::Information;
}

}  // namespace

void WidgetUi::message(const QString &text, MsgStyle style, const QString &title) {
    QMessageBox box(iconFor(style), title, text, QMessageBox::Ok, dialogParent());
    box.button(QMessageBox::Ok)->setText(QCoreApplication::translate("chrome", "确定"));
    box.exec();
}

bool WidgetUi::question(const QString &text, const QString &title) {
    QMessageBox box(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No,
                    dialogParent());
    box.button(QMessageBox::Yes)->setText(QCoreApplication::translate("chrome", "是(&Y)"));
    box.button(QMessageBox::No)->setText(QCoreApplication::translate("chrome", "否(&N)"));
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

QString WidgetUi::inputText(const QString &prompt, const QString &title, const QString &initial) {
    bool ok = false;
    const QString text =
        QInputDialog::getText(dialogParent(), title, prompt, QLineEdit::Normal, initial, &ok);
    return ok ? text : QString();
}

QString WidgetUi::openFolder(const QString &requested) const {
    return dialogfolders::openStart(
        requested, m_lastOpenFolder,
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

void WidgetUi::rememberFolder(const QString &file) {
    if (!file.isEmpty()) m_lastOpenFolder = QFileInfo(file).absolutePath();
}

QString WidgetUi::openFile(const QString &title, const QString &dir, const QString &filter) {
    const QString file =
        QFileDialog::getOpenFileName(dialogParent(), title, openFolder(dir), filter);
    rememberFolder(file);
    return file;
}

QStringList WidgetUi::openFiles(const QString &title, const QString &dir, const QString &filter) {
    const QStringList files =
        QFileDialog::getOpenFileNames(dialogParent(), title, openFolder(dir), filter);
    if (!files.isEmpty()) rememberFolder(files.first());
    return files;
}

QString WidgetUi::saveFile(const QString &title, const QString &suggested, const QString &filter) {
    const QString start =
        dialogfolders::saveStart(suggested, appState().path(QStringLiteral("record")));
    return QFileDialog::getSaveFileName(dialogParent(), title, start, filter);
}

QString WidgetUi::chooseDirectory(const QString &title, const QString &dir) {
    return QFileDialog::getExistingDirectory(dialogParent(), title, dir);
}

QColor WidgetUi::chooseColor(const QColor &initial, const QString &title) {
    return QColorDialog::getColor(initial, dialogParent(), title);
}

bool WidgetUi::openUrl(const QUrl &url) {
    return QDesktopServices::openUrl(url);
}
