#include "host/drawing/resample.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace host {
namespace {

// Blue, green, red, opacity; premultiplied, 0 to 255. One register: at the start a screen of artwork is resampled.
using Colour = float __attribute__((vector_size(16)));
using Channels = std::uint8_t __attribute__((vector_size(4)));

// Mitchell and Netravali, "Reconstruction Filters in Computer Graphics" (1988), B = C = 1/3.
double mitchell(double x) {
  x = std::abs(x);
  if (x < 1) return (7 * x * x * x - 12 * x * x + 16.0 / 3) / 6;
  if (x < 2) return (-7.0 / 3 * x * x * x + 12 * x * x - 20 * x + 32.0 / 3) / 6;
  return 0;
}

// The source pixels that one target pixel is made of.
struct Taps {
  int first;
  std::vector<float> weights;
};

Taps taps_at(double centre, double widening, int source) {
  const double reach = 2 * widening;
  const int first = std::max(0, static_cast<int>(std::ceil(centre - reach - 0.5)));
  const int last = std::min(source - 1, static_cast<int>(std::floor(centre + reach - 0.5)));
  std::vector<double> weights;
  double sum = 0;
  for (int i = first; i <= last; ++i) {
    weights.push_back(mitchell((i + 0.5 - centre) / widening));
    sum += weights.back();
  }
  Taps taps{first, {}};
  for (const double weight : weights) taps.weights.push_back(static_cast<float>(weight / sum));
  return taps;
}

std::vector<Taps> all_taps(int source, int target) {
  const double step = static_cast<double>(source) / target;
  std::vector<Taps> taps;
  for (int i = 0; i < target; ++i)
    taps.push_back(taps_at((i + 0.5) * step, std::max(1.0, step), source));
  return taps;
}

Colour colour_of(std::uint32_t pixel) {
  return __builtin_convertvector(std::bit_cast<Channels>(pixel), Colour);
}

// One row of the target's height but still the source's width.
void add_rows(const Bitmap& source, const Taps& taps, std::vector<Colour>& row) {
  std::ranges::fill(row, Colour{});
  for (std::size_t i = 0; i < taps.weights.size(); ++i) {
    const std::uint32_t* from = source.pixels.data() + std::size_t(taps.first + i) * source.width;
    for (int x = 0; x < source.width; ++x) row[x] += taps.weights[i] * colour_of(from[x]);
  }
}

// The filter overshoots at hard edges: no colour may be stronger than its opacity.
std::uint32_t packed(const Colour& colour) {
  const auto whole = [](float value, std::uint32_t most) {
    return std::min(static_cast<std::uint32_t>(std::max(value + 0.5f, 0.0f)), most);
  };
  const std::uint32_t opacity = whole(colour[3], 255);
  return opacity << 24 | whole(colour[2], opacity) << 16 | whole(colour[1], opacity) << 8 |
         whole(colour[0], opacity);
}

std::uint32_t sum_of(const std::vector<Colour>& row, const Taps& taps) {
  Colour sum{};
  for (std::size_t i = 0; i < taps.weights.size(); ++i)
    sum += taps.weights[i] * row[static_cast<std::size_t>(taps.first) + i];
  return packed(sum);
}

}  // namespace

Bitmap resampled(const Bitmap& source, int width, int height) {
  Bitmap target{width, height, source.opaque, source.empty, {}};
  target.pixels.resize(std::size_t(width) * height);
  if (source.empty) return target;
  const std::vector<Taps> columns = all_taps(source.width, width);
  const std::vector<Taps> rows = all_taps(source.height, height);
  std::vector<Colour> row(source.width);
  for (int y = 0; y < height; ++y) {
    add_rows(source, rows[y], row);
    std::uint32_t* out = target.pixels.data() + std::size_t(y) * width;
    for (int x = 0; x < width; ++x) out[x] = sum_of(row, columns[x]);
  }
  return target;
}

}  // namespace host
