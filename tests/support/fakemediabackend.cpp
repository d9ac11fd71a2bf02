#include "support/fakemediabackend.h"

void FakeMediaBackend::load(const QString &path) {
    calls << QStringLiteral("load ") + path;
    if (current != State::Stopped) setState(State::Stopped);
    source = path;
    finished = false;
    position = 0;
    duration = 0;
    if (!deferLength) reportLength();
}

void FakeMediaBackend::reportLength() {
    duration = m_lengths.value(source, 0);
    if (duration > 0) Q_EMIT durationChanged();
}

void FakeMediaBackend::play() {
    calls << QStringLiteral("play");
    if (duration <= 0 && !deferLength) return;
    finished = false;
    setState(State::Playing);
}

void FakeMediaBackend::pause() {
    calls << QStringLiteral("pause");
    if (current == State::Playing) setState(State::Paused);
}

void FakeMediaBackend::stop() {
    calls << QStringLiteral("stop");
    if (current != State::Stopped) setState(State::Stopped);
}

void FakeMediaBackend::setPositionMs(qint64 value) {
    calls << QStringLiteral("seek %1").arg(value);
    position = value;
    finished = false;
}

void FakeMediaBackend::setVolume(float value) {
    calls << QStringLiteral("volume %1").arg(value);
    volume = value;
}

void FakeMediaBackend::finish() {
    position = duration;
    finished = true;
    setState(State::Stopped);
    Q_EMIT ended();
}

void FakeMediaBackend::setState(State state) {
    current = state;
    Q_EMIT stateChanged();
}

FakeMedia *installFakeMedia() {
    static FakeMedia *media = nullptr;
    delete media;
    media = new FakeMedia;
    FakeMedia *registry = media;
    setMediaBackendFactory([registry]() -> std::unique_ptr<MediaBackend> {
        auto backend = std::make_unique<FakeMediaBackend>(registry->lengths);
        registry->players << backend.get();
        return backend;
    });
    return registry;
}
