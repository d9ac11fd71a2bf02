#pragma once

#include <QHash>
#include <QList>
#include <QPointer>
#include <QStringList>

#include "sound/mediabackend.h"

// A media player without sound: it opens the files it was told the length of, keeps a log of
// every call, and plays to the end only when a test says so.
class FakeMediaBackend : public MediaBackend {
public:
    explicit FakeMediaBackend(const QHash<QString, qint64> &lengths) : m_lengths(lengths) {}

    QStringList calls;  // "load path", "play", "pause", "stop", "seek ms", "volume v"
    QString source;
    State current = State::Stopped;
    bool finished = false;
    qint64 position = 0;
    qint64 duration = 0;
    float volume = 1.0f;
    // When set, a load leaves the length unknown until reportLength(), as a real player does.
    bool deferLength = false;

    void load(const QString &path) override;
    void play() override;
    void pause() override;
    void stop() override;
    State state() const override { return current; }
    bool atEnd() const override { return finished; }
    qint64 positionMs() const override { return position; }
    void setPositionMs(qint64 value) override;
    qint64 durationMs() const override { return duration; }
    void setVolume(float value) override;

    // The file plays to its end: the position reaches the length and the player stops.
    void finish();
    void reportLength();

private:
    void setState(State state);
    QHash<QString, qint64> m_lengths;
};

// The fakes handed out to every new MusicPlayer, and the files they can open.
struct FakeMedia {
    QHash<QString, qint64> lengths;  // path -> length in ms
    QList<QPointer<FakeMediaBackend>> players;
    FakeMediaBackend *last() const { return players.isEmpty() ? nullptr : players.last().data(); }
};

// Makes every new MusicPlayer use a fake; the returned registry lives until the next install.
FakeMedia *installFakeMedia();
