#include "host/outside/texture_noise.h"

#include <cmath>
#include <utility>

namespace host::outside {
namespace {

double eased(double t) { return t * t * (3.0 - 2.0 * t); }

double mix(double a, double b, double t) { return a + (b - a) * t; }

// Where a value lies among the bumps of an octave.
struct Between {
  unsigned low, high;
  double part;
};

std::vector<Between> places(unsigned side, unsigned cells) {
  const double step = static_cast<double>(cells) / side;
  std::vector<Between> all(side);
  for (unsigned i = 0; i < side; ++i) {
    const double at = i * step, floor = std::floor(at);
    const unsigned low = static_cast<unsigned>(floor) % cells;
    all[i] = {low, (low + 1) % cells, eased(at - floor)};
  }
  return all;
}

// One octave, row by row: the heights of a row's bumps are the same all along it.
void add_octave(std::vector<float>& values, unsigned side, unsigned cells, double weight,
                std::uint32_t seed) {
  const std::vector<Between> along = places(side, cells);
  std::vector<double> heights(cells);
  for (unsigned y = 0; y < side; ++y) {
    const Between& down = along[y];
    for (unsigned i = 0; i < cells; ++i)
      heights[i] = weight * mix(scattered(i, down.low, seed), scattered(i, down.high, seed), down.part);
    float* row = &values[std::size_t(y) * side];
    for (unsigned x = 0; x < side; ++x) {
      const auto& [left, right, part] = along[x];
      row[x] += static_cast<float>(mix(heights[left], heights[right], part));
    }
  }
}

}  // namespace

SoftNoise::SoftNoise(unsigned bits, unsigned cells, int octaves, double fade, std::uint32_t seed)
    : bits_(bits), mask_((1u << bits) - 1), values_(std::size_t(1) << 2 * bits) {
  double total = 0.0, weight = 1.0;
  for (int octave = 0; octave < octaves; ++octave, weight *= fade, cells *= 2) {
    total += weight;
    add_octave(values_, mask_ + 1, cells, weight, seed + static_cast<std::uint32_t>(octave));
  }
  for (float& value : values_) value /= static_cast<float>(total);
}

std::vector<double> SoftNoise::row_between(double y, unsigned count, unsigned steps) const {
  const double row = std::floor(y), ty = y - row;
  const auto top = static_cast<unsigned>(static_cast<long>(row));
  const float* above = &values_[std::size_t(top & mask_) << bits_];
  const float* below = &values_[std::size_t((top + 1) & mask_) << bits_];
  const auto height = [&](unsigned x) { return mix(above[x & mask_], below[x & mask_], ty); };
  std::vector<double> values(count);
  double right = height(0);
  for (unsigned x = 0; x < count;) {
    const double left = std::exchange(right, height(x / steps + 1));
    for (unsigned step = 0; step < steps && x < count; ++step, ++x)
      values[x] = mix(left, right, static_cast<double>(step) / steps);
  }
  return values;
}

}  // namespace host::outside
