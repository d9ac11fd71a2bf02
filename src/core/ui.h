#pragma once

#include <QColor>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <memory>

#include "core/language.h"

enum class MsgStyle { Information, Exclamation, Critical };

// Every message box, question, input box, file and colour dialog of the program goes through
// this service. The program installs WidgetUi (chrome/widgetui.h); tests install a scripted one
// that records each message and answers from a queue.
class Ui {
public:
    virtual ~Ui() = default;

    // A notice with one OK button. Titles are "提示", "警告", "错误" and the like.
    virtual void message(const QString &text, MsgStyle style, const QString &title) = 0;
    // A Yes/No question; true for Yes.
    virtual bool question(const QString &text, const QString &title) = 0;
    // A line of text; a null string when cancelled.
    virtual QString inputText(const QString &prompt, const QString &title,
                              const QString &initial) = 0;
    // File dialogs; an empty result (or list) when cancelled.
    virtual QString openFile(const QString &title, const QString &dir, const QString &filter) = 0;
    virtual QStringList openFiles(const QString &title, const QString &dir,
                                  const QString &filter) = 0;
    virtual QString saveFile(const QString &title, const QString &suggested,
                             const QString &filter) = 0;
    virtual QString chooseDirectory(const QString &title, const QString &dir) = 0;
    // An invalid colour when cancelled.
    virtual QColor chooseColor(const QColor &initial, const QString &title) = 0;
    // Opens a file or address with the desktop's default program.
    virtual bool openUrl(const QUrl &url) = 0;
};

Ui &ui();
// "text|patterns|text|patterns", the filters as the settings and dialogs write them, to a file
// dialog's "text (patterns);;text (patterns)".
QString dialogFilter(const QString &pairs);
// Where a file dialog opens, whatever the Ui. An open dialog the caller gives no folder starts
// in the last folder the operator opened from, else in the documents folder; a save dialog
// offered a bare file name puts it in the program's record/ folder.
namespace dialogfolders {
QString openStart(const QString &requested, const QString &lastUsed, const QString &documents);
QString saveStart(const QString &suggested, const QString &recordFolder);
}  // namespace dialogfolders

// Installs the service; the previous one is destroyed. With none installed, messages go to the
// log and every question is answered No.
void setUi(std::unique_ptr<Ui> service);

// Common titles.
namespace titles {
inline const TranslatedText notice{"titles", QT_TRANSLATE_NOOP("titles", "提示")};
inline const TranslatedText warning{"titles", QT_TRANSLATE_NOOP("titles", "警告")};
inline const TranslatedText error{"titles", QT_TRANSLATE_NOOP("titles", "错误")};
}  // namespace titles
