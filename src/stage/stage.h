#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

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
    virtual void SetVariable(const QString &name, const QString &value) = 0;
    // The widget to place on a screen, or null for a stage without one.
    virtual QWidget *widget() { return nullptr; }

Q_SIGNALS:
    void FSCommand(const QString &command, const QString &args);
};

// Screens get their stages here; tests replace the factory with one that makes recording stages.
using StageFactory = std::function<std::unique_ptr<Stage>(QWidget *parent)>;
void setStageFactory(StageFactory factory);
std::unique_ptr<Stage> createStage(QWidget *parent);

// A stage that shows nothing and answers nothing, for tools that need no picture.
// createStage() hands out a QmlStage unless a factory is set.
class SilentStage : public Stage {
    Q_OBJECT
public:
    explicit SilentStage(QObject *parent = nullptr) : Stage(parent) {}
    bool loadMovie(const QString &) override { return true; }
    void SetVariable(const QString &, const QString &) override {}
};
