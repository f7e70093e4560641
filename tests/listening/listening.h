/// Listens with figures: how loud something is to the ear, and in which band.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace listening {

constexpr double rate = 44100;

using Wave = std::vector<double>;  ///< 1 is full scale

std::string contents(const std::filesystem::path& path);

/// The samples of a mono WAV file of 16 bits.
Wave samples(const std::filesystem::path& path);

double decibels(double amplitude);
double peak(const Wave& wave);

/// Only what lies between two frequencies: eighth order each side, flat within.
Wave between(Wave wave, double low_hertz, double high_hertz);

/// What a telephone carries, and a voice needs.
inline Wave speech_band(const Wave& wave) { return between(wave, 300, 3400); }

/// Mean level of the parts that sound: 20 ms frames within 25 dB of the loudest.
double level_db(const Wave& wave);

/// The same as the ear weighs it: with the filters of ITU-R BS.1770 at 44.1 kHz.
double loudness(const Wave& wave);

}  // namespace listening
