#pragma once

#include "core/ui.h"

// The dialogs of Qt Widgets, parented to the active window. File dialogs open where the file is
// likely to be (dialogfolders), remembering the folder of the last file opened.
class WidgetUi : public Ui {
public:
    void message(const QString &text, MsgStyle style, const QString &title) override;
    bool question(const QString &text, const QString &title) override;
    QString inputText(const QString &prompt, const QString &title, const QString &initial) override;
    QString openFile(const QString &title, const QString &dir, const QString &filter) override;
    QStringList openFiles(const QString &title, const QString &dir, const QString &filter) override;
    QString saveFile(const QString &title, const QString &suggested,
                     const QString &filter) override;
    QString chooseDirectory(const QString &title, const QString &dir) override;
    QColor chooseColor(const QColor &initial, const QString &title) override;
    bool openUrl(const QUrl &url) override;

private:
    QString openFolder(const QString &requested) const;
    void rememberFolder(const QString &file);

    QString m_lastOpenFolder;
};
