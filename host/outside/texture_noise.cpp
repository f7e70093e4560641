#include "host/outside/texture_noise.h"

#include <cmath>

namespace host::outside {
namespace {

double eased(double t) { return t * t * (3.0 - 2.0 * t); }

double lattice(double x, double y, unsigned cells, std::uint32_t seed) {
  const double column = std::floor(x), row = std::floor(y);
  const auto left = static_cast<unsigned>(column) % cells, top = static_cast<unsigned>(row) % cells;
  const unsigned right = (left + 1) % cells, bottom = (top + 1) % cells;
  const double tx = eased(x - column), ty = eased(y - row);
  const auto mix = [](double a, double b, double t) { return a + (b - a) * t; };
  return mix(mix(scattered(left, top, seed), scattered(right, top, seed), tx),
             mix(scattered(left, bottom, seed), scattered(right, bottom, seed), tx), ty);
}

}  // namespace

SoftNoise::SoftNoise(unsigned bits, unsigned cells, int octaves, double fade, std::uint32_t seed)
    : bits_(bits), mask_((1u << bits) - 1), values_(std::size_t(1) << 2 * bits) {
  double total = 0.0, weight = 1.0;
  for (int octave = 0; octave < octaves; ++octave, weight *= fade, cells *= 2) {
    total += weight;
    const double step = static_cast<double>(cells) / (mask_ + 1.0);
    for (unsigned y = 0; y <= mask_; ++y)
      for (unsigned x = 0; x <= mask_; ++x)
        values_[y << bits_ | x] += static_cast<float>(
            weight * lattice(x * step, y * step, cells, seed + static_cast<std::uint32_t>(octave)));
  }
  for (float& value : values_) value /= static_cast<float>(total);
}

double SoftNoise::between(double x, double y) const {
  const double column = std::floor(x), row = std::floor(y);
  const auto left = static_cast<unsigned>(static_cast<long>(column));
  const auto top = static_cast<unsigned>(static_cast<long>(row));
  const double tx = x - column, ty = y - row;
  const auto mix = [](double a, double b, double t) { return a + (b - a) * t; };
  return mix(mix(at(left, top), at(left + 1, top), tx),
             mix(at(left, top + 1), at(left + 1, top + 1), tx), ty);
}

}  // namespace host::outside
