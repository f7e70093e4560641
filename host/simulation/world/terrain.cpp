#include "host/simulation/world/terrain.h"

#include <algorithm>
#include <cmath>

#include "host/simulation/world/airfield.h"

namespace host::simulation {

double ground_elevation_m(const Vector& position_m) {
  constexpr double level_m = 6000.0, rise_m = 14000.0;
  constexpr double hill_m = 150.0, north_wave_m = 1700.0, east_wave_m = 2300.0;
  const double distance_m = std::hypot(position_m.x, position_m.y);
  if (distance_m <= level_m) return airfield_elevation_m;
  const double t = std::min(1.0, (distance_m - level_m) / rise_m);
  const double blend = t * t * (3.0 - 2.0 * t);
  const double roll =
      0.5 + 0.25 * std::sin(position_m.x / north_wave_m) + 0.25 * std::sin(position_m.y / east_wave_m);
  return airfield_elevation_m + hill_m * blend * roll;
}

}  // namespace host::simulation
