/// The home airfield and where everything on it stands.
///
/// The world is a flat patch: x north, y east in metres from the middle of the runway, altitudes above
/// mean sea level. 60 miles out a real earth would have fallen away by a degree of arc, which no
/// instrument of this cockpit would show.
#pragma once

#include "host/simulation/base/units.h"
#include "host/simulation/base/vector.h"

namespace host::simulation {

inline constexpr double airfield_elevation_ft = 364.0;
inline constexpr double airfield_elevation_m = airfield_elevation_ft * metres_per_foot;
inline constexpr double airfield_latitude_deg = 48.0;
inline constexpr double airfield_longitude_deg = 11.0;

/// East is positive: magnetic = true - variation, here and as far as the patch goes.
inline constexpr double magnetic_variation_deg = 2.0;

/// Runway 07: 3,000 m by 45 m, landed on toward 070 degrees magnetic.
inline constexpr double runway_length_m = 3000.0;
inline constexpr double runway_true_deg = 70.0 + magnetic_variation_deg;

/// A place on the ground: along the runway's direction from its middle, and to its right.
Vector on_runway_axes(double along_m, double right_m);

/// A place on the ground as metres along the runway's direction from its middle, and to its right.
struct RunwayAxes {
  double along_m;
  double right_m;
};
RunwayAxes runway_axes(const Vector& position_m);

/// Where the aircraft is found in the morning, nose parallel to the runway.
inline constexpr double stand_along_m = 200.0, stand_right_m = 350.0;

/// Where it lines up for take-off: wheels well on the runway.
inline constexpr double line_up_along_m = -runway_length_m / 2.0 + 60.0;

double latitude_deg(const Vector& position_m);
double longitude_deg(const Vector& position_m);

}  // namespace host::simulation
