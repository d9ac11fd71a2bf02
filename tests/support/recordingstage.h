#pragma once

#include <QList>
#include <QPair>
#include <QPointer>
#include <functional>

#include "stage/view/stagefactory.h"

// A stage that writes down every variable it is sent, so a test can compare the protocol as text,
// and that answers with commands when the test says so (or through `onVariable`).
class RecordingStage : public Stage {
    Q_OBJECT
public:
    explicit RecordingStage(QObject *parent = nullptr) : Stage(parent) {}

    QString movie;
    QList<QPair<QString, QString>> calls;
    // Called after each variable is recorded; may call reply() to answer like a movie would.
    std::function<void(RecordingStage &, const QString &, const QString &)> onVariable;

    bool loadMovie(const QString &path) override;
    void setVariable(const QString &name, const QString &value) override;

    // Raises a command as the movie would.
    void reply(const QString &command, const QString &args = QString());
    // The values sent under one name, in order.
    QStringList values(const QString &name) const;
    // The names sent, in order.
    QStringList names() const;
    // "name=value" for every call, in order: handy for comparing whole conversations.
    QStringList lines() const;
    void clear() { calls.clear(); }
};

// Makes createStage() hand out RecordingStages; returns the list that collects them.
QList<QPointer<RecordingStage>> &installRecordingStages();
