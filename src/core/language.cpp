#include "core/language.h"

#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

#include "core/logging.h"

namespace language {

namespace {

std::unique_ptr<QTranslator> &installed() {
    static std::unique_ptr<QTranslator> translator;
    return translator;
}

bool startsWithLanguage(const QString &name, const char *code) {
    return name.trimmed().startsWith(QLatin1String(code), Qt::CaseInsensitive);
}

}  // namespace

Language choose(const QString &systemLocale, const QString &configured) {
    if (startsWithLanguage(configured, "en")) return Language::English;
    if (startsWithLanguage(configured, "zh")) return Language::Chinese;
    return startsWithLanguage(systemLocale, "en") ? Language::English : Language::Chinese;
}

QString systemLocale() {
    for (const char *name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const QString value = qEnvironmentVariable(name);
        if (!value.isEmpty()) return value;
    }
    return QString();
}

bool install(Language language) {
    if (installed()) QCoreApplication::removeTranslator(installed().get());
    auto translator = std::make_unique<QTranslator>();
    // English is the program's own translation; Chinese needs one only for Qt's own dialogs.
    const bool loaded = language == Language::English
                            ? translator->load(QStringLiteral(":/i18n/quellio_en.qm"))
                            : translator->load(QStringLiteral("qtbase_zh_CN"),
                                               QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (!loaded) {
        qCWarning(lcCore) << "no translation for"
                          << (language == Language::English ? "en" : "zh_CN");
        installed().reset();
        return false;
    }
    QCoreApplication::installTranslator(translator.get());
    installed() = std::move(translator);
    return true;
}

}  // namespace language
