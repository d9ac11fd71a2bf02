#include "sound/builtinsounds.h"

#include <QDir>
#include <QFile>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <random>

namespace sound {

namespace {

constexpr double kPi = 3.14159265358979323846;

std::vector<float> silence(double seconds) {
    return std::vector<float>(static_cast<size_t>(seconds * kSampleRate), 0.0f);
}

// Lets the tail die away smoothly instead of ending in a click.
void fadeOut(std::vector<float> &samples, double seconds) {
    const size_t length = std::min(samples.size(), static_cast<size_t>(seconds * kSampleRate));
    for (size_t i = 0; i < length; ++i)
        samples[samples.size() - 1 - i] *= static_cast<float>(i) / length;
}

// Scales the sound so that its loudest sample reaches peak.
void normalise(std::vector<float> &samples, float peak) {
    float loudest = 0.0f;
    for (float s : samples)
        loudest = std::max(loudest, std::abs(s));
    if (loudest <= 0.0f) return;
    for (float &s : samples)
        s *= peak / loudest;
}

// A struck bell: a few partials, the upper ones slightly out of tune and dying faster.
void addBell(std::vector<float> &out, double start, double frequency, double gain) {
    struct Partial {
        double ratio, level, decay;
    };
    const Partial partials[] = {
        {1.0, 1.0, 0.9}, {2.0, 0.35, 0.5}, {2.76, 0.18, 0.35}, {4.07, 0.08, 0.2}};
    const size_t first = static_cast<size_t>(start * kSampleRate);
    for (size_t i = first; i < out.size(); ++i) {
        const double t = double(i - first) / kSampleRate;
        const double attack = std::min(1.0, t / 0.004);
        double value = 0.0;
        for (const Partial &p : partials)
            value += p.level * std::exp(-t / p.decay) * std::sin(2 * kPi * frequency * p.ratio * t);
        out[i] += static_cast<float>(gain * attack * value);
    }
}

// One stroke of a snare: a short burst of noise over a low knock.
void addSnare(std::vector<float> &out, double start, double gain, std::minstd_rand &noise) {
    std::uniform_real_distribution<float> white(-1.0f, 1.0f);
    const size_t first = static_cast<size_t>(start * kSampleRate);
    const size_t length = static_cast<size_t>(0.12 * kSampleRate);
    float previous = 0.0f;
    for (size_t i = first; i < std::min(out.size(), first + length); ++i) {
        const double t = double(i - first) / kSampleRate;
        const float n = white(noise);
        const float bright = n - 0.6f * previous;  // tilt the noise towards the top
        previous = n;
        const double body = std::sin(2 * kPi * 185.0 * t) * std::exp(-t / 0.03);
        out[i] += static_cast<float>(gain * (0.7 * bright * std::exp(-t / 0.035) + 0.5 * body));
    }
}

// A cymbal crash: bright noise with a long tail.
void addCymbal(std::vector<float> &out, double start, double gain, std::minstd_rand &noise) {
    std::uniform_real_distribution<float> white(-1.0f, 1.0f);
    float previous = 0.0f;
    for (size_t i = static_cast<size_t>(start * kSampleRate); i < out.size(); ++i) {
        const double t = i / double(kSampleRate) - start;
        const float n = white(noise);
        out[i] += static_cast<float>(gain * (n - previous) * std::exp(-t / 0.7));
        previous = n;
    }
}

// A brass note: odd and even harmonics falling off, a soft attack and a little vibrato.
void addBrass(std::vector<float> &out, double start, double length, double frequency, double gain) {
    const size_t first = static_cast<size_t>(start * kSampleRate);
    const size_t count = static_cast<size_t>((length + 0.25) * kSampleRate);
    double phase = 0.0;
    for (size_t i = first; i < std::min(out.size(), first + count); ++i) {
        const double t = double(i - first) / kSampleRate;
        const double attack = std::min(1.0, t / 0.03);
        const double release = t < length ? 1.0 : std::exp(-(t - length) / 0.06);
        const double vibrato = 1.0 + 0.004 * std::sin(2 * kPi * 5.5 * t) * std::min(1.0, t / 0.3);
        phase += 2 * kPi * frequency * vibrato / kSampleRate;
        double value = 0.0;
        for (int h = 1; h <= 8; ++h)
            value += std::sin(h * phase) / (h * (1.0 + 0.15 * h));
        out[i] += static_cast<float>(gain * attack * release * value);
    }
}

bool writeFile(const QString &path, const std::vector<float> &samples) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(wavFile(samples)) > 0;
}

}  // namespace

std::vector<float> winChime() {
    std::vector<float> out = silence(2.2);
    // A rising C major arpeggio, then the octave again, softer, for a sparkle.
    const double notes[] = {1046.50, 1318.51, 1567.98, 2093.00};
    for (int i = 0; i < 4; ++i)
        addBell(out, 0.09 * i, notes[i], 1.0 - 0.1 * i);
    addBell(out, 0.45, 2637.02, 0.25);
    fadeOut(out, 0.4);
    normalise(out, 0.8f);
    return out;
}

std::vector<float> drumRoll() {
    std::vector<float> out = silence(3.6);
    std::minstd_rand noise(20261123);
    // Strokes at 18 a second, growing louder, then one accent with the crash.
    const double rollEnd = 2.4;
    for (double t = 0.0; t < rollEnd; t += 1.0 / 18.0) {
        const double swell = 0.25 + 0.75 * (t / rollEnd) * (t / rollEnd);
        addSnare(out, t, swell * (0.85 + 0.15 * std::sin(t * 40.0)), noise);
    }
    addSnare(out, rollEnd + 0.06, 1.4, noise);
    addCymbal(out, rollEnd + 0.06, 0.5, noise);
    fadeOut(out, 0.5);
    normalise(out, 0.85f);
    return out;
}

std::vector<float> fanfare() {
    std::vector<float> out = silence(3.0);
    const double g4 = 392.00, c5 = 523.25, e5 = 659.26, g5 = 783.99, c6 = 1046.50;
    struct Note {
        double start, length, frequency;
    };
    const Note melody[] = {{0.00, 0.12, g4}, {0.16, 0.12, g4}, {0.32, 0.12, g4},
                           {0.48, 0.40, c5}, {0.92, 0.16, g4}, {1.10, 1.30, c5}};
    for (const Note &n : melody)
        addBrass(out, n.start, n.length, n.frequency, 1.0);
    // The last note opens into a full chord.
    for (double f : {e5, g5, c6})
        addBrass(out, 1.10, 1.30, f, 0.55);
    fadeOut(out, 0.4);
    normalise(out, 0.8f);
    return out;
}

QByteArray wavFile(const std::vector<float> &samples, int sampleRate) {
    const quint32 dataBytes = static_cast<quint32>(samples.size() * 2);
    QByteArray out;
    out.reserve(static_cast<int>(44 + dataBytes));
    const auto u32 = [&out](quint32 v) {
        char bytes[4];
        qToLittleEndian(v, bytes);
        out.append(bytes, 4);
    };
    const auto u16 = [&out](quint16 v) {
        char bytes[2];
        qToLittleEndian(v, bytes);
        out.append(bytes, 2);
    };
    out.append("RIFF", 4);
    u32(36 + dataBytes);
    out.append("WAVEfmt ", 8);
    u32(16);
    u16(1);  // PCM
    u16(1);  // mono
    u32(static_cast<quint32>(sampleRate));
    u32(static_cast<quint32>(sampleRate * 2));
    u16(2);
    u16(16);
    out.append("data", 4);
    u32(dataBytes);
    for (float s : samples)
        u16(static_cast<quint16>(
            static_cast<qint16>(std::lround(std::clamp(s, -1.0f, 1.0f) * 32767.0f))));
    return out;
}

bool writeBuiltInSounds(const QString &programFolder) {
    QDir().mkpath(programFolder + QStringLiteral("sys"));
    return writeFile(programFolder + kWinSound, winChime()) &&
           writeFile(programFolder + kRollSound, drumRoll()) &&
           writeFile(programFolder + kFanfareSound, fanfare());
}

}  // namespace sound
