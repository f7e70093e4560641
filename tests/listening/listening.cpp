#include "tests/listening/listening.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <numbers>

namespace listening {
namespace {

struct Biquad {
  double b0, b1, b2, a1, a2;

  void run(Wave& wave) const {
    double s1 = 0, s2 = 0;
    for (double& v : wave) {
      const double out = b0 * v + s1;
      s1 = b1 * v - a1 * out + s2;
      s2 = b2 * v - a2 * out;
      v = out;
    }
  }
};

/// Second order: what is above `hertz`, or below it.
Biquad pass(double hertz, bool above, double quality) {
  const double turn = 2 * std::numbers::pi * hertz / rate, alpha = std::sin(turn) / 2 / quality;
  const double side = above ? 1 + std::cos(turn) : 1 - std::cos(turn), a0 = 1 + alpha;
  return {side / 2 / a0, (above ? -side : side) / a0, side / 2 / a0, -2 * std::cos(turn) / a0,
          (1 - alpha) / a0};
}

}  // namespace

std::string contents(const std::filesystem::path& path) {
  std::ifstream in{path, std::ios::binary};
  return {std::istreambuf_iterator<char>{in}, {}};
}

Wave samples(const std::filesystem::path& path) {
  const std::string bytes = contents(path);
  Wave wave;
  for (std::size_t at = 44; at + 1 < bytes.size(); at += 2) {
    std::int16_t sample;
    std::memcpy(&sample, &bytes[at], 2);
    wave.push_back(sample / 32768.0);
  }
  return wave;
}

double decibels(double amplitude) { return 20 * std::log10(amplitude + 1e-9); }

double peak(const Wave& wave) {
  double most = 0;
  for (const double v : wave) most = std::max(most, std::abs(v));
  return most;
}

Wave between(Wave wave, double low_hertz, double high_hertz) {
  for (const double quality : {0.5098, 0.6013, 0.9000, 2.5629}) {  // Butterworth's
    pass(low_hertz, true, quality).run(wave);
    pass(high_hertz, false, quality).run(wave);
  }
  return wave;
}

double level_db(const Wave& wave) {
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

double loudness(const Wave& wave) {
  constexpr Biquad head{1.5308412, -2.6509800, 1.1690791, -1.6636551, 0.7125954};
  constexpr Biquad low_end{1, -2, 1, -1.9891697, 0.9891990};
  Wave weighed = wave;
  head.run(weighed);
  low_end.run(weighed);
  return level_db(weighed) - 0.691;
}

}  // namespace listening
