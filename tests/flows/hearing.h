/// What is heard in a recording, and when.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include "tests/app/program.h"

/// The loudness of each hundredth of a second of a recording, 0 to 1.
inline std::vector<double> loudness(const std::string& file) {
  const std::string bytes = file_text(file);
  std::vector<double> levels;
  constexpr std::size_t header = 44, step = 441 * 4;
  for (std::size_t at = header; at + step <= bytes.size(); at += step) {
    double sum = 0;
    for (std::size_t i = at; i < at + step; i += 2) {
      std::int16_t sample = 0;
      std::memcpy(&sample, bytes.data() + i, sizeof sample);
      sum += sample / 32768.0 * (sample / 32768.0);
    }
    levels.push_back(std::sqrt(sum / (step / 2)));
  }
  return levels;
}

/// The times at which a sound stands out from the 0.2 s before it, in seconds.
inline std::vector<double> onsets(const std::vector<double>& levels) {
  constexpr double audible = 0.002;
  std::vector<double> times;
  for (std::size_t i = 0; i < levels.size(); ++i) {
    double before = 0;
    for (std::size_t k = i < 20 ? 0 : i - 20; k < i; ++k) before = std::max(before, levels[k]);
    const double seconds = static_cast<double>(i) / 100;
    const bool goes_on = !times.empty() && seconds < times.back() + 0.2;
    if (levels[i] > audible && levels[i] > 3 * before && !goes_on) times.push_back(seconds);
  }
  return times;
}
