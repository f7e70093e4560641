/// The four lights beside the runway that show the slope of an approach: each is white seen from above
/// its own angle and red seen from below.
#pragma once

#include <array>

#include "host/outside/daylight.h"

namespace host::outside {

inline constexpr double slope_deg = 3.0;

struct PapiUnit {
  double left_m;     ///< of the runway's middle line
  double angle_deg;  ///< above the ground, where red turns to white
};

/// From the runway outward. Two white and two red: on the slope.
inline constexpr std::array<PapiUnit, 4> papi_units{{
    {37.5, slope_deg + 0.5},
    {46.5, slope_deg + 1.0 / 6.0},
    {55.5, slope_deg - 1.0 / 6.0},
    {64.5, slope_deg - 0.5},
}};

/// Beyond the threshold: where an eye sees three degrees while the wheels follow the glide path.
double papi_beyond_threshold_m();

/// Its place and what it shows an eye; 0 red to 1 white, pink within three minutes of arc between.
simulation::Vector papi_place_m(const PapiUnit& unit);
double papi_white(const PapiUnit& unit, const simulation::Vector& eye_m);

}  // namespace host::outside
