#pragma once

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

// The program's command line: --help, --version, --home FOLDER, --fresh-demo FOLDER and the
// developers' --draw.
class CommandLine {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    CommandLine();

    // True when the arguments only ask for text (help, version): then no window is needed, and
    // the program must not ask for a display it may not have.
    static bool wantsTextOnly(const QStringList &arguments);

    // Reads the application's arguments; help, version and errors print and end the process.
    void process();

    // The program folder the arguments name (--home or --fresh-demo), empty for the usual one.
    QString home() const;
    // The empty folder to turn into a demo folder before starting, or empty.
    QString freshDemo() const;
    bool drawOnly() const;

private:
    void define();

    QCommandLineParser m_parser;
};
