#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

// The sounds that come with the program, synthesised when the program folder is built, so the
// repository holds no recordings: a bright chime for each win, and a drum roll and a fanfare the
// operator can pick in the music settings.
namespace sound {

inline const QString kWinSound = QStringLiteral("sys/win.wav");
inline const QString kRollSound = QStringLiteral("sys/roll.wav");
inline const QString kFanfareSound = QStringLiteral("sys/fanfare.wav");

constexpr int kSampleRate = 44100;

// Mono samples in -1..1 at kSampleRate.
std::vector<float> winChime();
std::vector<float> drumRoll();
std::vector<float> fanfare();

// A 16-bit mono PCM WAV file of the samples, clipped to -1..1.
QByteArray wavFile(const std::vector<float> &samples, int sampleRate = kSampleRate);

// Writes the three sounds into the program folder (appPath with a trailing "/").
bool writeBuiltInSounds(const QString &programFolder);

}  // namespace sound
