/// Noise that is the same on every machine and goes on without a seam at its edges.
#pragma once

#include <cstdint>
#include <vector>

namespace host::outside {

/// An even spread of 0 to 1 over whole numbers.
constexpr double scattered(std::uint32_t x, std::uint32_t y, std::uint32_t seed) {
  std::uint32_t h = x * 0x9E3779B1u ^ y * 0x85EBCA77u ^ seed * 0xC2B2AE3Du;
  h = (h ^ h >> 15) * 0x2C1B3C6Du;
  h = (h ^ h >> 12) * 0x297A2D39u;
  return static_cast<double>((h ^ h >> 15) >> 8) / 16777216.0;
}

/// A square of soft noise in octaves: `cells` bumps along a side in the first, twice as many and weaker
/// by `fade` in each further one. Values about 0.5, between 0 and 1.
class SoftNoise {
 public:
  /// `bits`: a side has 2^bits values.
  SoftNoise(unsigned bits, unsigned cells, int octaves, double fade, std::uint32_t seed);

  double at(unsigned x, unsigned y) const { return values_[(y & mask_) << bits_ | (x & mask_)]; }

  /// A row between the values, at 0, 1 / steps, 2 / steps and so on, `count` of them; whole numbers are
  /// theirs.
  std::vector<double> row_between(double y, unsigned count, unsigned steps) const;

 private:
  unsigned bits_, mask_;
  std::vector<float> values_;
};

}  // namespace host::outside
