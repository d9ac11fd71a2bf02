#include "core/ui.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>

#include "core/logging.h"

namespace {

std::unique_ptr<Ui> &service() {
    static std::unique_ptr<Ui> instance;
    return instance;
}

// What a program without windows (the factory tool, a benchmark) gets: every message goes to the
// log, every question is answered No, every dialog is cancelled.
class LoggingUi : public Ui {
public:
    void message(const QString &text, MsgStyle, const QString &title) override {
        qCWarning(lcCore).noquote() << title << text;
    }
    bool question(const QString &text, const QString &title) override {
        qCWarning(lcCore).noquote() << title << text << "-> No";
        return false;
    }
    QString inputText(const QString &, const QString &, const QString &) override { return {}; }
    QString openFile(const QString &, const QString &, const QString &) override { return {}; }
    QStringList openFiles(const QString &, const QString &, const QString &) override { return {}; }
    QString saveFile(const QString &, const QString &, const QString &) override { return {}; }
    QString chooseDirectory(const QString &, const QString &) override { return {}; }
    QColor chooseColor(const QColor &, const QString &) override { return {}; }
    bool openUrl(const QUrl &url) override { return QDesktopServices::openUrl(url); }
};

}  // namespace

Ui &ui() {
    if (!service()) service() = std::make_unique<LoggingUi>();
    return *service();
}

void setUi(std::unique_ptr<Ui> replacement) {
    service() = std::move(replacement);
}

QString dialogFilter(const QString &pairs) {
    const QStringList parts = pairs.split(QLatin1Char('|'));
    QStringList filters;
    for (int i = 0; i + 1 < parts.size(); i += 2)
        filters << parts.at(i) + QStringLiteral(" (") +
                       QString(parts.at(i + 1)).replace(QLatin1Char(';'), QLatin1Char(' ')) +
                       QLatin1Char(')');
    return filters.join(QStringLiteral(";;"));
}

namespace dialogfolders {

QString openStart(const QString &requested, const QString &lastUsed, const QString &documents) {
    if (!requested.isEmpty()) return requested;
    if (!lastUsed.isEmpty() && QFileInfo(lastUsed).isDir()) return lastUsed;
    return documents;
}

QString saveStart(const QString &suggested, const QString &recordFolder) {
    if (suggested.isEmpty() || suggested.contains(QLatin1Char('/'))) return suggested;
    return QDir(recordFolder).filePath(suggested);
}

}  // namespace dialogfolders
