#pragma once

#include <QObject>

// Upward and sideways notices between screens: a screen that changes data emits, the console and
// any open screen refresh. No screen reaches into another screen's controls.
class Events : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

Q_SIGNALS:
    void rosterChanged();
    void awardsChanged();
    void resultsChanged();
    void templateSaved();
    void settingsChanged();
};

Events &events();
