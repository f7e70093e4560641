#include "host/simulation/autopilot/autothrottle.h"

#include <algorithm>

#include "host/simulation/base/numeric.h"

namespace host::simulation {
namespace {

/// What a difference in indicated airspeed is in true airspeed, this high up.
double true_mps(double indicated_kt, const Sensed& sensed) {
  const double now_kt = std::max(sensed.air.indicated_airspeed_kt, 50.0);
  return indicated_kt * std::max(sensed.flight.true_airspeed_mps, 25.0) / now_kt;
}

}  // namespace

void Autothrottle::start(const Sensed& sensed) {
  airspeed_mps_ = sensed.flight.true_airspeed_mps;
  ground_speed_mps_ = length(sensed.flight.velocity_mps);
}

void Autothrottle::update(double dt_s, bool on, double selected_kt, double steeper_rad,
                          const Sensed& sensed, std::array<double, 2>& levers) {
  constexpr double drawn_s = 5.0, approach_s = 10.0, most_mps2 = 0.07 * gravity_mps2;
  constexpr double lever_per_mps2_s = 0.10, quickest_per_s = 0.08;
  if (dt_s <= 0.0) return;
  const double ground_speed_mps = length(sensed.flight.velocity_mps);
  const double gained_mps = ground_speed_mps - ground_speed_mps_;
  ground_speed_mps_ = ground_speed_mps;
  airspeed_mps_ = lag(airspeed_mps_ + gained_mps, sensed.flight.true_airspeed_mps, drawn_s, dt_s);
  if (!on) return;
  const double missing_kt = selected_kt - sensed.air.indicated_airspeed_kt;
  const double missing_mps =
      true_mps(missing_kt, sensed) + sensed.flight.true_airspeed_mps - airspeed_mps_;
  const double wanted_mps2 = std::clamp(missing_mps / approach_s, -most_mps2, most_mps2);
  const double rate_per_s = std::clamp(
      lever_per_mps2_s * (wanted_mps2 - gained_mps / dt_s + 2.0 * gravity_mps2 * steeper_rad),
      -quickest_per_s, quickest_per_s);
  for (double& lever : levers) lever = std::clamp(lever + rate_per_s * dt_s, 0.0, 1.0);
}

}  // namespace host::simulation
