#include "support/recordingstage.h"
#include "stage/view/stagefactory.h"

#include <QWidget>

bool RecordingStage::loadMovie(const QString &path) {
    movie = path;
    return true;
}

void RecordingStage::setVariable(const QString &name, const QString &value) {
    calls.append({name, value});
    if (onVariable) onVariable(*this, name, value);
}

void RecordingStage::reply(const QString &command, const QString &args) {
    Q_EMIT commandReceived(command, args);
}

QStringList RecordingStage::values(const QString &name) const {
    QStringList result;
    for (const auto &call : calls) {
        if (call.first == name) result << call.second;
    }
    return result;
}

QStringList RecordingStage::names() const {
    QStringList result;
    for (const auto &call : calls)
        result << call.first;
    return result;
}

QStringList RecordingStage::lines() const {
    QStringList result;
    for (const auto &call : calls)
        result << call.first + QLatin1Char('=') + call.second;
    return result;
}

QList<QPointer<RecordingStage>> &installRecordingStages() {
    static QList<QPointer<RecordingStage>> created;
    created.clear();
    setStageFactory([](QWidget *parent) {
        auto stage = std::make_unique<RecordingStage>(parent);
        created.append(stage.get());
        return stage;
    });
    return created;
}
