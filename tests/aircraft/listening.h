/// Listens with figures: how loud something is to the ear, and in which band.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numbers>
#include <string>
#include <vector>

namespace listening {

constexpr double rate = 44100;

using Wave = std::vector<double>;  ///< 1 is full scale

inline std::string contents(const std::filesystem::path& path) {
  std::ifstream in{path, std::ios::binary};
  return {std::istreambuf_iterator<char>{in}, {}};
}

/// The samples of a mono WAV file of 16 bits, or one side of a stereo one.
inline Wave samples(const std::filesystem::path& path, std::size_t channels = 1) {
  const std::string bytes = contents(path);
  Wave wave;
  for (std::size_t at = 44; at + 1 < bytes.size(); at += 2 * channels) {
    std::int16_t sample;
    std::memcpy(&sample, &bytes[at], 2);
    wave.push_back(sample / 32768.0);
  }
  return wave;
}

inline double decibels(double amplitude) { return 20 * std::log10(amplitude + 1e-9); }

inline double peak(const Wave& wave) {
  double most = 0;
  for (const double v : wave) most = std::max(most, std::abs(v));
  return most;
}

struct Biquad {
  double b0, b1, b2, a1, a2;

  Wave operator()(Wave wave) const {
    double s1 = 0, s2 = 0;
    for (double& v : wave) {
      const double out = b0 * v + s1;
      s1 = b1 * v - a1 * out + s2;
      s2 = b2 * v - a2 * out;
      v = out;
    }
    return wave;
  }
};

/// Second order: what is above `hertz`, or below it.
inline Biquad pass(double hertz, bool above, double quality) {
  const double turn = 2 * std::numbers::pi * hertz / rate, alpha = std::sin(turn) / 2 / quality;
  const double side = above ? 1 + std::cos(turn) : 1 - std::cos(turn), a0 = 1 + alpha;
  return {side / 2 / a0, (above ? -side : side) / a0, side / 2 / a0, -2 * std::cos(turn) / a0,
          (1 - alpha) / a0};
}

/// Only what lies between two frequencies: eighth order each side, flat within (Butterworth).
inline Wave between(Wave wave, double low, double high) {
  for (const double quality : {0.5098, 0.6013, 0.9000, 2.5629})
    wave = pass(high, false, quality)(pass(low, true, quality)(std::move(wave)));
  return wave;
}

/// What a telephone carries, and a voice needs.
inline Wave speech_band(const Wave& wave) { return between(wave, 300, 3400); }

/// Mean level of the parts that sound: 20 ms frames within 25 dB of the loudest.
inline double level_db(const Wave& wave) {
  constexpr std::size_t frame = 882;
  std::vector<double> powers;
  for (std::size_t at = 0; at + frame <= wave.size(); at += frame) {
    double sum = 0;
    for (std::size_t i = at; i < at + frame; ++i) sum += wave[i] * wave[i];
    powers.push_back(sum / frame);
  }
  if (powers.empty()) return decibels(0);
  const double floor = *std::max_element(powers.begin(), powers.end()) * std::pow(10, -2.5);
  double sum = 1e-18, count = 1e-9;
  for (const double power : powers)
    if (power >= floor) sum += power, ++count;
  return 10 * std::log10(sum / count);
}

/// As the ear weighs it: the filters of ITU-R BS.1770 at 44.1 kHz.
inline double loudness(const Wave& wave) {
  constexpr Biquad head{1.5308412, -2.6509800, 1.1690791, -1.6636551, 0.7125954};
  constexpr Biquad low_end{1, -2, 1, -1.9891697, 0.9891990};
  return level_db(low_end(head(wave))) - 0.691;
}

}  // namespace listening
