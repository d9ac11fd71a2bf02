#include "chrome/widgetui.h"

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

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
    box.button(QMessageBox::Ok)->setText(QStringLiteral("确定"));
    box.exec();
}

bool WidgetUi::question(const QString &text, const QString &title) {
    QMessageBox box(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No,
                    dialogParent());
    box.button(QMessageBox::Yes)->setText(QStringLiteral("是(&Y)"));
    box.button(QMessageBox::No)->setText(QStringLiteral("否(&N)"));
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

QString WidgetUi::inputText(const QString &prompt, const QString &title, const QString &initial) {
    bool ok = false;
    const QString text =
        QInputDialog::getText(dialogParent(), title, prompt, QLineEdit::Normal, initial, &ok);
    return ok ? text : QString();
}

QString WidgetUi::openFile(const QString &title, const QString &dir, const QString &filter) {
    return QFileDialog::getOpenFileName(dialogParent(), title, dir, filter);
}

QStringList WidgetUi::openFiles(const QString &title, const QString &dir, const QString &filter) {
    return QFileDialog::getOpenFileNames(dialogParent(), title, dir, filter);
}

QString WidgetUi::saveFile(const QString &title, const QString &suggested, const QString &filter) {
    return QFileDialog::getSaveFileName(dialogParent(), title, suggested, filter);
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
