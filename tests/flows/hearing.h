/// What is heard in a recording, and when.
#pragma once

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

/// The times at which a sound starts after at least 0.2 s of silence, in seconds.
inline std::vector<double> onsets(const std::vector<double>& levels) {
  constexpr double audible = 0.002;
  std::vector<double> times;
  int silent_steps = 20;
  for (std::size_t i = 0; i < levels.size(); ++i) {
    if (levels[i] <= audible) {
      ++silent_steps;
      continue;
    }
    if (silent_steps >= 20) times.push_back(static_cast<double>(i) / 100);
    silent_steps = 0;
  }
  return times;
}
