#include "host/outside/papi.h"

#include <algorithm>
#include <cmath>

#include "host/outside/sight.h"
#include "host/simulation/world/stations.h"

namespace host::outside {

using simulation::Vector;

double papi_beyond_threshold_m() {
  const double antenna_m = simulation::runway_axes(simulation::landing_system().glide_slope_m).along_m -
                           simulation::threshold_along_m;
  const double slope = std::tan(slope_deg * simulation::radians_per_degree);
  return antenna_m + approach_eye_ahead_m + approach_eye_up_m / slope;
}

Vector papi_place_m(const PapiUnit& unit) {
  return simulation::on_runway_axes(simulation::threshold_along_m + papi_beyond_threshold_m(),
                                    -unit.left_m);
}

double papi_white(const PapiUnit& unit, const Vector& eye_m) {
  constexpr double pink_deg = 0.05;
  const Vector from = eye_m - papi_place_m(unit);
  const double angle_deg =
      std::atan2(-from.z, std::hypot(from.x, from.y)) / simulation::radians_per_degree;
  return std::clamp((angle_deg - unit.angle_deg) / pink_deg + 0.5, 0.0, 1.0);
}

}  // namespace host::outside
