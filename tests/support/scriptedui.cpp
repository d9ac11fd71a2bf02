#include "support/scriptedui.h"

void ScriptedUi::message(const QString &text, MsgStyle style, const QString &title) {
    records.append({QStringLiteral("message"), text, title, style});
    if (onMessage) onMessage(records.last());
}

bool ScriptedUi::question(const QString &text, const QString &title) {
    records.append({QStringLiteral("question"), text, title, MsgStyle::Information});
    if (answers.isEmpty()) {
        ++unanswered;
        return false;
    }
    return answers.dequeue();
}

QString ScriptedUi::inputText(const QString &prompt, const QString &title, const QString &) {
    records.append({QStringLiteral("input"), prompt, title, MsgStyle::Information});
    return inputs.isEmpty() ? QString() : inputs.dequeue();
}

QString ScriptedUi::openFile(const QString &title, const QString &, const QString &) {
    records.append({QStringLiteral("file"), QString(), title, MsgStyle::Information});
    return files.isEmpty() ? QString() : files.dequeue();
}

QStringList ScriptedUi::openFiles(const QString &title, const QString &, const QString &) {
    records.append({QStringLiteral("file"), QString(), title, MsgStyle::Information});
    return fileLists.isEmpty() ? QStringList() : fileLists.dequeue();
}

QString ScriptedUi::saveFile(const QString &title, const QString &, const QString &) {
    records.append({QStringLiteral("file"), QString(), title, MsgStyle::Information});
    return files.isEmpty() ? QString() : files.dequeue();
}

QString ScriptedUi::chooseDirectory(const QString &title, const QString &) {
    records.append({QStringLiteral("file"), QString(), title, MsgStyle::Information});
    return files.isEmpty() ? QString() : files.dequeue();
}

QColor ScriptedUi::chooseColor(const QColor &, const QString &title) {
    records.append({QStringLiteral("color"), QString(), title, MsgStyle::Information});
    return colors.isEmpty() ? QColor() : colors.dequeue();
}

bool ScriptedUi::openUrl(const QUrl &url) {
    records.append({QStringLiteral("url"), url.toString(), QString(), MsgStyle::Information});
    openedUrls.append(url);
    return true;
}

QStringList ScriptedUi::texts() const {
    QStringList result;
    for (const Record &record : records) {
        if (record.kind == QLatin1String("message") || record.kind == QLatin1String("question"))
            result << record.text;
    }
    return result;
}

ScriptedUi::Record ScriptedUi::last() const {
    return records.isEmpty() ? Record() : records.last();
}

void ScriptedUi::clear() {
    records.clear();
    answers.clear();
    inputs.clear();
    files.clear();
    fileLists.clear();
    colors.clear();
    openedUrls.clear();
    unanswered = 0;
}

ScriptedUi *installScriptedUi() {
    auto service = std::make_unique<ScriptedUi>();
    ScriptedUi *raw = service.get();
    setUi(std::move(service));
    return raw;
}
