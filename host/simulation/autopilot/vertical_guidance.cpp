#include "host/simulation/autopilot/vertical_guidance.h"

#include <algorithm>
#include <cmath>

#include "host/simulation/base/numeric.h"
#include "host/simulation/flight/lift_curve.h"

namespace host::simulation {
namespace {

constexpr double usual_climb_fpm = 1500.0, least_climb_fpm = 100.0;
constexpr double lowest_rad = -10.0 * radians_per_degree, highest_rad = 20.0 * radians_per_degree;

double climb_now_mps(const Sensed& sensed) { return -sensed.flight.velocity_mps.z; }

double speed_mps(const Sensed& sensed) { return std::max(sensed.flight.true_airspeed_mps, 50.0); }

/// The climb with which what is left to go runs out smoothly.
double climb_for_m(double to_go_m) {
  constexpr double end_s = 6.0, slowing_mps2 = 0.05 * gravity_mps2;
  const double far = std::abs(to_go_m);
  return std::copysign(std::min(far / end_s, std::sqrt(2.0 * slowing_mps2 * far)), to_go_m);
}

/// At most `most_mps` more or less than the slope's own.
double climb_for_slope_mps(const Sensed& sensed, double most_mps) {
  constexpr double end_s = 4.5, least_m = 600.0, most_m = 20000.0;
  const double down_slope = std::tan(landing_system().slope_deg * radians_per_degree);
  const double away_m =
      std::clamp(sensed.flight.height_ft * metres_per_foot / down_slope, least_m, most_m);
  const double above_m =
      sensed.nav.slope_deviation * slope_full_scale_deg * radians_per_degree * away_m;
  const double over_ground_mps = std::hypot(sensed.flight.velocity_mps.x, sensed.flight.velocity_mps.y);
  return -over_ground_mps * down_slope - std::clamp(above_m / end_s, -most_mps, most_mps);
}

/// From above at once, from below when the slope has come down to the aircraft.
bool captures_slope(const Sensed& sensed, double climb_mps) {
  constexpr double nearly = -0.1;
  const double above = sensed.nav.slope_deviation;
  return std::abs(above) < 1.0 && (above > nearly || climb_for_slope_mps(sensed, 100.0) < climb_mps);
}

/// What a turn adds to the angle of attack.
double turn_pitch_rad(const Sensed& sensed) {
  constexpr double lift_rad = 0.22, at_kt = 150.0, steepest_rad = 40.0 * radians_per_degree;
  const double bank = std::min(std::abs(sensed.flight.attitude.bank_rad), steepest_rad);
  const double ratio = at_kt / std::max(sensed.air.indicated_airspeed_kt, 100.0);
  return lift_rad * ratio * ratio * (1.0 / std::cos(bank) - 1.0);
}

/// Never higher than what keeps the wing an eighth faster than its stall.
double highest_pitch_rad(const Sensed& sensed) {
  constexpr double part_of_greatest = 0.78, cautious = 0.5;
  const double most_rad =
      angle_of_attack_rad(part_of_greatest, sensed.air.mach, flap_effect(sensed.flap_deg));
  const double room_rad = most_rad - sensed.flight.angle_of_attack_rad;
  return std::max(sensed.flight.attitude.pitch_rad + cautious * room_rad, lowest_rad);
}

}  // namespace

void VerticalGuidance::choose_again() {
  mode = VerticalMode::vertical_speed;
  captured = false;
  goal_ft_ = -1.0;
}

void VerticalGuidance::start(const Sensed& sensed) {
  choose_again();
  climb_mps_ = climb_now_mps(sensed);
  pitch_rad = std::clamp(sensed.flight.attitude.pitch_rad, lowest_rad, highest_rad);
  pitch_sum_rad_ = pitch_rad - climb_mps_ / speed_mps(sensed) - turn_pitch_rad(sensed);
}

void VerticalGuidance::choose_mode(AutopilotModes& modes, Selections& selections, const Sensed& sensed,
                                   bool on_course) {
  const VerticalMode before = mode;
  const bool slope = modes.approach && sensed.nav.glide_slope && on_course &&
                     (before == VerticalMode::slope || captures_slope(sensed, climb_mps_));
  if (slope) modes.altitude_hold = false;
  mode = slope                 ? VerticalMode::slope
         : modes.altitude_hold ? VerticalMode::altitude
                               : VerticalMode::vertical_speed;
  if (mode == before) return;
  captured = false;
  goal_ft_ = -1.0;
  if (before == VerticalMode::slope) {
    selections.set_vertical_speed(sensed.flight.vertical_speed_fpm);
  }
}

/// Turns the wheel toward the altitude; one that stands at zero goes to the usual climb.
void VerticalGuidance::aim(Selections& selections, double to_go_ft) {
  double& wheel_fpm = selections.vertical_speed_fpm;
  const double turned_fpm = std::abs(wheel_fpm);
  const bool fresh = goal_ft_ != selections.altitude_ft && turned_fpm < least_climb_fpm;
  goal_ft_ = selections.altitude_ft;
  wheel_fpm = std::copysign(fresh ? usual_climb_fpm : std::max(turned_fpm, least_climb_fpm), to_go_ft);
}

double VerticalGuidance::climb_to_altitude_mps(Selections& selections, const Sensed& sensed) {
  const double to_go_ft = selections.altitude_ft - sensed.air.indicated_altitude_ft;
  const double law_mps = climb_for_m(to_go_ft * metres_per_foot);
  if (captured && selections.altitude_ft != goal_ft_) captured = false;
  if (!captured) {
    aim(selections, to_go_ft);
    const double wheel_mps = selections.vertical_speed_fpm / feet_per_minute_per_mps;
    captured = std::abs(law_mps) <= std::max(std::abs(wheel_mps), std::abs(climb_now_mps(sensed)));
    if (!captured) return wheel_mps;
  }
  selections.vertical_speed_fpm = 0.0;
  return law_mps;
}

double VerticalGuidance::wanted_climb_mps(Selections& selections, const Sensed& sensed) {
  switch (mode) {
    case VerticalMode::altitude: return climb_to_altitude_mps(selections, sensed);
    case VerticalMode::slope: return climb_for_slope_mps(sensed, 4.0);
    case VerticalMode::vertical_speed: break;
  }
  return selections.vertical_speed_fpm / feet_per_minute_per_mps;
}

void VerticalGuidance::follow(double dt_s, const Sensed& sensed) {
  constexpr double at_once = 1.1, sum_per_s = 0.3;
  // A sum that runs away from the pitch really flown would have to run back first.
  constexpr double follows_s = 4.0, loose_rad = 1.0 * radians_per_degree;
  const double path_rad = climb_mps_ / speed_mps(sensed);
  missing_rad = path_rad - climb_now_mps(sensed) / speed_mps(sensed);
  const double unflown_rad = sensed.flight.attitude.pitch_rad - pitch_rad;
  const double apart_rad = unflown_rad - std::clamp(unflown_rad, -loose_rad, loose_rad);
  pitch_sum_rad_ += (sum_per_s * missing_rad + apart_rad / follows_s) * dt_s;
  pitch_sum_rad_ = std::clamp(pitch_sum_rad_, lowest_rad, highest_rad);
  const double wanted_rad = path_rad + pitch_sum_rad_ + at_once * missing_rad + turn_pitch_rad(sensed);
  const double most_rad = std::min(highest_rad, highest_pitch_rad(sensed));
  pitch_rad = lag(pitch_rad, std::clamp(wanted_rad, lowest_rad, most_rad), 0.3, dt_s);
}

void VerticalGuidance::update(double dt_s, AutopilotModes& modes, Selections& selections,
                              const Sensed& sensed, bool on_course) {
  constexpr double quickest_mps2 = 0.08 * gravity_mps2;
  choose_mode(modes, selections, sensed, on_course);
  climb_mps_ = approach(climb_mps_, wanted_climb_mps(selections, sensed), quickest_mps2, dt_s);
  follow(dt_s, sensed);
}

}  // namespace host::simulation
