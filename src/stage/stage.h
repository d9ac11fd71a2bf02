#pragma once

#include <QObject>
#include <QString>

class QWidget;

// A stage shows what the program decides. The program sends it variables, one text each; the
// stage answers with commands. Screens never talk to a movie any other way, so a recording
// stage can stand in for the real one in tests.
class Stage : public QObject {
    Q_OBJECT
public:
    explicit Stage(QObject *parent = nullptr) : QObject(parent) {}
    ~Stage() override = default;

    // Loads the movie at an absolute path; false when it cannot be loaded.
    virtual bool loadMovie(const QString &path) = 0;
    // Sends one variable. Delivered synchronously: the stage may answer before this returns.
    virtual void setVariable(const QString &name, const QString &value) = 0;
    // The widget to place on a screen, or null for a stage without one.
    virtual QWidget *widget() { return nullptr; }

Q_SIGNALS:
    void commandReceived(const QString &command, const QString &args);
};

// A stage that shows nothing and answers nothing, for tools that need no picture.
class SilentStage : public Stage {
    Q_OBJECT
public:
    explicit SilentStage(QObject *parent = nullptr) : Stage(parent) {}
    bool loadMovie(const QString &) override { return true; }
    void setVariable(const QString &, const QString &) override {}
};
