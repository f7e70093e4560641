/// The light of an hour: sun, sky, haze and what the land looks like in it.
#pragma once

#include "host/simulation/base/vector.h"

namespace host::outside {

/// 0 to 255, not limited while light is added up.
struct Rgb {
  double r = 0.0, g = 0.0, b = 0.0;

  constexpr Rgb operator+(const Rgb& o) const { return {r + o.r, g + o.g, b + o.b}; }
  constexpr Rgb operator*(const Rgb& o) const { return {r * o.r, g * o.g, b * o.b}; }
  constexpr Rgb operator*(double by) const { return {r * by, g * by, b * by}; }
};

constexpr Rgb mixed(const Rgb& a, const Rgb& b, double share_of_b) {
  return a * (1.0 - share_of_b) + b * share_of_b;
}

struct Daylight {
  simulation::Vector sun;  ///< its direction: north, east, down; length 1
  double sun_up_deg;       ///< above the horizon
  Rgb zenith;              ///< the sky overhead
  Rgb horizon;             ///< the sky over the horizon, across from the sun
  Rgb sunward;             ///< the sky over the horizon, below the sun
  Rgb haze;                ///< what the land far away fades into
  Rgb land;                ///< what colours by day are multiplied by: 1 is noon
  double lamps;            ///< how bright lamps look: 1 by night
  double stars;            ///< 0 to 1
};

/// A day early in May at 48 degrees north: sunrise at five, sunset at seven in the evening.
Daylight daylight_at(double time_of_day_s);

}  // namespace host::outside
