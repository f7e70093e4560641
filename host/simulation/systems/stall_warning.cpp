#include "host/simulation/systems/stall_warning.h"

#include <algorithm>

#include "host/simulation/base/numeric.h"
#include "host/simulation/base/units.h"
#include "host/simulation/flight/lift_curve.h"

namespace host::simulation {
namespace {

constexpr double speed_margin = 1.08;
constexpr double lead_s = 0.4, vane_lag_s = 0.1;
constexpr double least_airspeed_kt = 60.0;
constexpr double release_rad = 0.5 * radians_per_degree;

}  // namespace

double stall_warning_angle_rad(double flap_deg, double mach) {
  const FlapEffect flaps = flap_effect(flap_deg);
  const double lift = greatest_lift(mach, flaps) / (speed_margin * speed_margin);
  return (lift - flaps.lift_at_zero) / lift_slope(mach);
}

void StallWarning::update(double dt_s, const StallWarningInputs& inputs) {
  if (!inputs.powered || inputs.on_ground || inputs.airspeed_kt < least_airspeed_kt) {
    *this = {};
    return;
  }
  const double before_rad = vane_rad_.value_or(inputs.angle_of_attack_rad);
  const double now_rad = lag(before_rad, inputs.angle_of_attack_rad, vane_lag_s, dt_s);
  const double growth_rad_per_s = dt_s > 0.0 ? std::max(0.0, now_rad - before_rad) / dt_s : 0.0;
  vane_rad_ = now_rad;
  const double limit_rad = stall_warning_angle_rad(inputs.flap_deg, inputs.mach);
  shaking = now_rad + lead_s * growth_rad_per_s >= limit_rad - (shaking ? release_rad : 0.0);
}

}  // namespace host::simulation
