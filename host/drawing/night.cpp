#include "host/drawing/night.h"

#include <algorithm>
#include <cmath>

namespace host {
namespace {

// What is left of the paint, a little bluer than by day as the eye sees little red in the dark; and of
// the legends, whose lamps are warm.
constexpr double paint[] = {0.40, 0.42, 0.46};
constexpr double legend[] = {1.0, 0.94, 0.82};

// Between these brightnesses paint passes over into legend; edges and worn metal stay below.
struct Passage {
  double paint_ends, legend_begins;
};
constexpr Passage on_plates{0.60, 0.85}, on_parts{0.88, 0.92};

double brightness(double red, double green, double blue) {
  return 0.30 * red + 0.59 * green + 0.11 * blue;
}

double strongest(double red, double green, double blue) { return std::max({red, green, blue}); }

std::uint32_t seen(std::uint32_t colour, double (*light_of)(double, double, double),
                   const Passage& passage) {
  const double alpha = colour >> 24;
  if (alpha == 0) return colour;
  const double day[] = {double(colour >> 16 & 255), double(colour >> 8 & 255), double(colour & 255)};
  const double light = light_of(day[0], day[1], day[2]) / alpha;
  const double t =
      std::clamp((light - passage.paint_ends) / (passage.legend_begins - passage.paint_ends), 0.0, 1.0);
  const double shine = t * t * (3 - 2 * t);
  std::uint32_t night = colour & 0xFF000000u;
  for (int i = 0; i < 3; ++i) {
    const double kept = paint[i] + (legend[i] - paint[i]) * shine;
    night |= static_cast<std::uint32_t>(std::lround(day[i] * kept)) << (16 - 8 * i);
  }
  return night;
}

}  // namespace

std::uint32_t by_night(std::uint32_t colour) { return seen(colour, brightness, on_plates); }

std::uint32_t part_by_night(std::uint32_t colour) { return seen(colour, strongest, on_parts); }

void dim(Bitmap& bitmap, std::uint32_t (*of)(std::uint32_t)) {
  std::ranges::transform(bitmap.pixels, bitmap.pixels.begin(), of);
}

}  // namespace host
