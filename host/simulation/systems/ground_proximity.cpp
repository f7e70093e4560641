#include "host/simulation/systems/ground_proximity.h"

#include <algorithm>

#include "host/simulation/base/numeric.h"

namespace host::simulation {
namespace {

constexpr double least_height_ft = 30.0, greatest_height_ft = 2450.0;
constexpr double take_off_ends_ft = 700.0, go_around_begins_ft = 245.0;
constexpr double smoothing_s = 1.0, patience_s = 0.8;
constexpr double dots_per_scale = 2.0;

constexpr CurvePoint closure_ceiling_ft[] = {{220.0, 1650.0}, {310.0, 2450.0}};

bool set_for_landing(bool gear_down, bool landing_flaps) { return gear_down && landing_flaps; }

bool sinks(const ProximityPicture& p) {
  constexpr double least_ft = 10.0;
  return p.height_ft >= least_ft && p.height_ft <= greatest_height_ft &&
         p.height_ft < 0.6035 * p.sink_fpm - 572.0;
}

bool closes(const ProximityPicture& p) {
  const double low_ft = p.landing_flaps ? 200.0 : least_height_ft;
  const double high_ft = p.landing_flaps ? 789.0 : on_curve(closure_ceiling_ft, p.airspeed_kt);
  return p.height_ft >= low_ft && p.height_ft <= high_ft &&
         p.height_ft < std::min(0.7895 * p.closure_fpm - 1579.0, 0.1968 * p.closure_fpm + 522.0);
}

bool loses_altitude(const ProximityPicture& p) {
  return p.taking_off && p.height_ft >= least_height_ft &&
         !set_for_landing(p.gear_down, p.landing_flaps) &&
         p.altitude_loss_ft > 5.4 + 0.092 * p.height_ft;
}

bool lacks_clearance(const ProximityPicture& p) {
  if (p.taking_off || set_for_landing(p.gear_down, p.landing_flaps)) return false;
  const double slow_ft = p.gear_down ? 245.0 : 500.0;
  const double fast_ft = std::min(8.333 * p.airspeed_kt - 1083.0, 1000.0);
  return p.height_ft >= least_height_ft && p.height_ft < std::max(slow_ft, fast_ft);
}

bool is_below_slope(const ProximityPicture& p) {
  const double allowed_dots = 1.3 + std::max(0.0, 150.0 - p.height_ft) * 1.4 / 120.0;
  return p.gear_down && p.height_ft >= least_height_ft && p.height_ft < 1000.0 &&
         p.dots_below_slope > allowed_dots;
}

}  // namespace

ProximityMode broken_mode(const ProximityPicture& picture) {
  if (sinks(picture)) return ProximityMode::sink_rate;
  if (closes(picture)) return ProximityMode::closure;
  if (loses_altitude(picture)) return ProximityMode::altitude_loss;
  if (lacks_clearance(picture)) return ProximityMode::clearance;
  return is_below_slope(picture) ? ProximityMode::glide_slope : ProximityMode::none;
}

void GroundProximity::follow_phase(const GroundProximityInputs& inputs) {
  const bool landing = set_for_landing(inputs.gear_down, inputs.landing_flaps);
  if (inputs.on_ground || (landing && inputs.height_ft < go_around_begins_ft)) {
    taking_off = true;
    highest_altitude_ft_ = inputs.altitude_ft;
  }
  if (inputs.height_ft > take_off_ends_ft) taking_off = false;
  highest_altitude_ft_ = std::max(highest_altitude_ft_, inputs.altitude_ft);
}

void GroundProximity::follow_ground(double dt_s, double height_ft) {
  if (height_ft > greatest_height_ft) {
    last_height_ft_.reset();
    closure_fpm_ = 0.0;
    return;
  }
  if (last_height_ft_ && dt_s > 0.0) {
    const double closing_fpm = 60.0 * (*last_height_ft_ - height_ft) / dt_s;
    closure_fpm_ = lag(closure_fpm_, closing_fpm, smoothing_s, dt_s);
  }
  last_height_ft_ = height_ft;
}

ProximityPicture GroundProximity::picture(const GroundProximityInputs& inputs) const {
  return {
      .height_ft = inputs.height_ft,
      .sink_fpm = -inputs.vertical_speed_fpm,
      .closure_fpm = closure_fpm_,
      .altitude_loss_ft = highest_altitude_ft_ - inputs.altitude_ft,
      .airspeed_kt = inputs.airspeed_kt,
      .dots_below_slope = -dots_per_scale * inputs.slope_deviation.value_or(0.0),
      .taking_off = taking_off,
      .gear_down = inputs.gear_down,
      .landing_flaps = inputs.landing_flaps,
  };
}

void GroundProximity::update(double dt_s, const GroundProximityInputs& inputs) {
  if (!inputs.powered) {
    *this = {};
    return;
  }
  follow_phase(inputs);
  follow_ground(dt_s, inputs.height_ft);
  const ProximityMode broken = inputs.on_ground ? ProximityMode::none : broken_mode(picture(inputs));
  broken_s_ = broken == ProximityMode::none ? 0.0 : broken_s_ + dt_s;
  warning = broken_s_ >= patience_s ? broken : ProximityMode::none;
}

}  // namespace host::simulation
