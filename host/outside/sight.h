/// Where the captain's eye is and where it looks: all that the view out of the window needs to know.
#pragma once

#include "host/simulation/aircraft_model.h"

namespace host::outside {

/// A turn of the head.
struct Look {
  double right_deg = 0.0;
  double up_deg = 0.0;
};

struct Sight {
  simulation::Vector eye_m{0.0, 0.0, -simulation::airfield_elevation_m};  ///< north, east, down
  simulation::EulerAngles attitude;                                       ///< of the aircraft
  Look look;
  double time_of_day_s = 12.0 * 3600.0;  ///< local, since midnight; flashing lights follow it too
  bool landing_lights = false;
};

/// The captain's sight from an aircraft that flies on for `ahead_s` as it moves now.
Sight captains_sight(const AircraftModel& aircraft, double ahead_s = 0.0);

/// Whether two sights look the same: nothing has moved by a good part of a pixel, and no lamp has
/// flashed. An aircraft at rest is seen from by day without drawing.
bool look_alike(const Sight& one, const Sight& other);

/// How far the captain's eye is above the wheels' path on a three-degree slope, and ahead of them, with
/// the nose at the three degrees that the aircraft has there.
inline constexpr double approach_eye_up_m = 4.1, approach_eye_ahead_m = 11.9;

}  // namespace host::outside
