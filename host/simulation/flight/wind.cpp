#include "host/simulation/flight/wind.h"

#include <algorithm>
#include <cmath>

#include "host/simulation/base/units.h"

namespace host::simulation {

Vector Wind::velocity_mps() const {
  const double to_rad = (from_true_deg + 180.0) * radians_per_degree;
  const double speed_mps = speed_kt * mps_per_knot;
  return {speed_mps * std::cos(to_rad), speed_mps * std::sin(to_rad), 0.0};
}

void Turbulence::update(double dt_s, double deviation_mps, double airspeed_mps) {
  if (deviation_mps <= 0.0) {
    gust_mps = {};
    return;
  }
  const auto next = [&](double gust, double scale_m) {
    const double kept = std::exp(-std::max(airspeed_mps, 1.0) * dt_s / scale_m);
    return kept * gust + deviation_mps * std::sqrt(1.0 - kept * kept) * noise.normal();
  };
  gust_mps.x = next(gust_mps.x, 530.0);
  gust_mps.y = next(gust_mps.y, 530.0);
  gust_mps.z = next(gust_mps.z, 265.0);
}

}  // namespace host::simulation
