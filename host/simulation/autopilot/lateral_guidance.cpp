#include "host/simulation/autopilot/lateral_guidance.h"

#include <algorithm>
#include <cmath>

#include "host/simulation/base/angle.h"
#include "host/simulation/base/numeric.h"

namespace host::simulation {
namespace {

constexpr double greatest_bank_rad = 25.0 * radians_per_degree;
constexpr double bank_rate_rad_per_s = 5.0 * radians_per_degree;
constexpr double heading_s = 8.0;

/// How a course is flown: the two lags and the steepest way toward it.
struct CourseLaw {
  double full_scale_deg;
  double track_s, ahead_s;
  double steepest_deg;
};
constexpr CourseLaw vor_law{vor_full_scale_deg, 8.0, 24.0, 45.0};
constexpr CourseLaw localizer_law{localizer_full_scale_deg, 5.0, 15.0, 40.0};

const CourseLaw& law_of(const NavReceiver& nav) { return nav.localizer ? localizer_law : vor_law; }

double ground_speed_mps(const FlightState& flight) {
  return std::max(std::hypot(flight.velocity_mps.x, flight.velocity_mps.y), 30.0);
}

double track_deg(const FlightState& flight) {
  return std::atan2(flight.velocity_mps.y, flight.velocity_mps.x) * degrees_per_radian -
         magnetic_variation_deg;
}

double course_deg(const NavReceiver& nav) {
  return nav.localizer ? landing_system().course_true_deg - magnetic_variation_deg : nav.course_deg;
}

/// Without a distance measured it is taken for a short one: loose far out rather than restless near.
double distance_m(const NavReceiver& nav) {
  const double usual_nm = nav.localizer ? 4.0 : 8.0;
  return (nav.distance_nm > 0.0 ? nav.distance_nm : usual_nm) * metres_per_nautical_mile;
}

/// Above the station needles swing; the course itself is the best thing to go by there.
bool in_cone_of_confusion(const Sensed& sensed) {
  const double up_m = sensed.flight.height_ft * metres_per_foot;
  return !sensed.nav.localizer && distance_m(sensed.nav) < std::max(1500.0, 1.6 * up_m);
}

/// The course's distance to the right.
double aside_m(const Sensed& sensed) {
  const NavReceiver& nav = sensed.nav;
  if (!nav.received || in_cone_of_confusion(sensed)) return 0.0;
  return std::sin(nav.course_deviation * law_of(nav).full_scale_deg * radians_per_degree) *
         distance_m(nav);
}

/// By how much the track should lead to the right of the course.
double cut_deg(const Sensed& sensed) {
  const CourseLaw& law = law_of(sensed.nav);
  const double ahead_m = law.ahead_s * ground_speed_mps(sensed.flight);
  return std::clamp(aside_m(sensed) / ahead_m * degrees_per_radian, -law.steepest_deg,
                    law.steepest_deg);
}

/// A course is captured once its beam is alive and the aircraft need not turn any further toward it.
bool captures(const Sensed& sensed) {
  const NavReceiver& nav = sensed.nav;
  if (!nav.received || std::abs(nav.course_deviation) >= 1.0) return false;
  constexpr double closing_deg = 10.0;
  const double cut = cut_deg(sensed);
  const double present = turn_degrees(track_deg(sensed.flight) - course_deg(nav));
  const double toward = cut < 0.0 ? -present : present;
  return toward < closing_deg || std::abs(cut) <= toward;
}

}  // namespace

void LateralGuidance::start(const Sensed& sensed) {
  enter(LateralMode::level);
  bank_rad = std::clamp(sensed.flight.attitude.bank_rad, -greatest_bank_rad, greatest_bank_rad);
  standing_bank_rad_ = 0.0;
}

void LateralGuidance::enter(LateralMode mode) {
  mode_ = mode;
  wings_level_ = on_course = false;
}

LateralGuidance::Turn LateralGuidance::level_turn(const Sensed& sensed) {
  constexpr double level_rad = 2.0 * radians_per_degree;
  const double heading_deg = magnetic_heading_deg(sensed.flight);
  if (!wings_level_) {
    wings_level_ = std::abs(sensed.flight.attitude.bank_rad - standing_bank_rad_) < level_rad;
    kept_heading_deg_ = heading_deg;
  }
  return {kept_heading_deg_ - heading_deg, heading_s};
}

LateralGuidance::Turn LateralGuidance::navigation_turn(const Sensed& sensed, double heading_bug_deg) {
  const NavReceiver& nav = sensed.nav;
  const double track = track_deg(sensed.flight);
  if (sensed.area_navigation) return {kept_track_deg_ - track, vor_law.track_s};
  if (nav.tuning.active_khz != frequency_khz_) on_course = false;
  frequency_khz_ = nav.tuning.active_khz;
  on_course = on_course || captures(sensed);
  if (!on_course) return {heading_bug_deg - magnetic_heading_deg(sensed.flight), heading_s};
  return {course_deg(nav) + cut_deg(sensed) - track, law_of(nav).track_s};
}

LateralGuidance::Turn LateralGuidance::wanted_turn(const Sensed& sensed, double heading_bug_deg) {
  if (mode_ == LateralMode::navigation) return navigation_turn(sensed, heading_bug_deg);
  if (mode_ == LateralMode::level) return level_turn(sensed);
  return {heading_bug_deg - magnetic_heading_deg(sensed.flight), heading_s};
}

/// The bank at which it does not turn, from the bank and the turn that it has.
void LateralGuidance::learn_standing_bank(double dt_s, const Sensed& sensed) {
  constexpr double learned_s = 15.0, most_rad = 6.0 * radians_per_degree;
  if (sensed.flight.on_ground) {
    standing_bank_rad_ = 0.0;
    return;
  }
  const EulerAngles& attitude = sensed.flight.attitude;
  const Vector& rate = sensed.flight.rate_rad_per_s;
  const double turn_rad_per_s =
      (rate.y * std::sin(attitude.bank_rad) + rate.z * std::cos(attitude.bank_rad)) /
      std::max(std::cos(attitude.pitch_rad), 0.5);
  const double speed_mps = std::max(sensed.flight.true_airspeed_mps, 30.0);
  const double idle_rad = attitude.bank_rad - std::atan(turn_rad_per_s * speed_mps / gravity_mps2);
  standing_bank_rad_ =
      std::clamp(lag(standing_bank_rad_, idle_rad, learned_s, dt_s), -most_rad, most_rad);
}

void LateralGuidance::update(double dt_s, LateralMode mode, const Sensed& sensed,
                             double heading_bug_deg) {
  if (mode != mode_) enter(mode);
  if (!sensed.area_navigation || mode != LateralMode::navigation) {
    kept_track_deg_ = track_deg(sensed.flight);
  }
  learn_standing_bank(dt_s, sensed);
  const Turn turn = wanted_turn(sensed, heading_bug_deg);
  const double gain = ground_speed_mps(sensed.flight) / (gravity_mps2 * turn.time_s);
  const double wanted =
      std::clamp(std::atan(gain * turn_degrees(turn.deg) * radians_per_degree) + standing_bank_rad_,
                 -greatest_bank_rad, greatest_bank_rad);
  bank_rad = approach(bank_rad, lag(bank_rad, wanted, 0.5, dt_s), bank_rate_rad_per_s, dt_s);
}

}  // namespace host::simulation
