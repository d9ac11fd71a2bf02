#pragma once

#include <QCoreApplication>
#include <QString>

// The language the program speaks. Every text in the code is Chinese and goes through tr() or
// QCoreApplication::translate; English comes from the translation compiled into the program.
// In Chinese, Qt's own dialogs (file dialogs, message-box buttons) get Qt's Chinese texts.
namespace language {

enum class Language { Chinese, English };

// The language for a system locale name (LC_ALL, LC_MESSAGES or LANG, e.g. "en_US.UTF-8") and
// the key language of config.ini: "en..." or "zh..." there decides; empty or anything else
// follows the system, where only an English locale gives English.
Language choose(const QString &systemLocale, const QString &configured);

// The locale the system names for messages: LC_ALL, else LC_MESSAGES, else LANG.
QString systemLocale();

// Puts the translators of language in place, replacing those of an earlier call. False when a
// translation could not be loaded (the program then shows the Chinese source texts).
bool install(Language language);

}  // namespace language

// A text kept as its Chinese source and translated each time it is read, for constants made
// before the translators are installed. Mark the source with QT_TRANSLATE_NOOP so lupdate
// finds it: TranslatedText{"titles", QT_TRANSLATE_NOOP("titles", "提示")}.
struct TranslatedText {
    const char *context;
    const char *source;
    operator QString() const { return QCoreApplication::translate(context, source); }
};
