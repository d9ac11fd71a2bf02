#pragma once

#include <QList>
#include <QQueue>

#include <functional>

#include "core/ui.h"

// A Ui for tests: every message and question is recorded with its title, text and style, and
// questions, file names, inputs and colours are answered from queues. A question with an empty
// queue is answered No and counted in `unanswered`, so a test notices an unexpected question.
class ScriptedUi : public Ui {
public:
    struct Record {
        QString kind;  // "message", "question", "input", "file", "color", "url"
        QString text;
        QString title;
        MsgStyle style = MsgStyle::Information;
    };

    QList<Record> records;
    QQueue<bool> answers;
    QQueue<QString> inputs;
    QQueue<QString> files;
    QQueue<QStringList> fileLists;
    QQueue<QColor> colors;
    QList<QUrl> openedUrls;
    int unanswered = 0;
    // Called as each message is shown, while the program waits for its OK.
    std::function<void(const Record &)> onMessage;

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

    // The texts of the messages and questions, in order.
    QStringList texts() const;
    // The last message or question; an empty record when none.
    Record last() const;
    void clear();
};

// Installs a fresh ScriptedUi as the program's Ui service and returns it (owned by the service).
ScriptedUi *installScriptedUi();
