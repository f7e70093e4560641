#include "host/simulation/navigation/flight_director.h"

#include <algorithm>
#include <cmath>

#include "host/simulation/base/angle.h"
#include "host/simulation/base/numeric.h"

namespace host::simulation {
namespace {

double wanted_heading_deg(const NavReceiver& nav, const Selections& selections) {
  const bool captured = nav.localizer && std::abs(nav.course_deviation) < 1.0;
  if (!captured) return selections.heading_bug_deg;
  const double course_deg = landing_system().course_true_deg - magnetic_variation_deg;
  const double aside_m = nav.course_deviation * localizer_full_scale_deg * radians_per_degree *
                         nav.distance_nm * metres_per_nautical_mile;
  return course_deg + std::clamp(0.045 * aside_m, -30.0, 30.0);
}

/// On the localizer what counts is where the aircraft goes, not where it points in a crosswind.
double present_direction_deg(const FlightState& flight, const NavReceiver& nav) {
  constexpr double slow_mps = 20.0;
  const double over_ground_mps = std::hypot(flight.velocity_mps.x, flight.velocity_mps.y);
  if (!nav.localizer || over_ground_mps < slow_mps) return magnetic_heading_deg(flight);
  return std::atan2(flight.velocity_mps.y, flight.velocity_mps.x) * degrees_per_radian -
         magnetic_variation_deg;
}

double wanted_path_rad(const FlightState& flight, double indicated_altitude_ft, const NavReceiver& nav,
                       const Selections& selections) {
  if (nav.glide_slope && std::abs(nav.slope_deviation) < 1.0) {
    return -(landing_system().slope_deg + 4.0 * nav.slope_deviation) * radians_per_degree;
  }
  const double climb_fpm =
      std::clamp(5.0 * (selections.altitude_ft - indicated_altitude_ft), -1500.0, 1500.0);
  return std::atan2(climb_fpm / feet_per_minute_per_mps, std::max(flight.true_airspeed_mps, 50.0));
}

}  // namespace

void FlightDirector::update(double dt_s, const FlightState& flight, double indicated_altitude_ft,
                            const NavReceiver& nav, const Selections& selections) {
  const double turn_deg =
      turn_degrees(wanted_heading_deg(nav, selections) - present_direction_deg(flight, nav));
  const double path_rad = std::atan2(
      -flight.velocity_mps.z, std::max(std::hypot(flight.velocity_mps.x, flight.velocity_mps.y), 50.0));
  const double error_rad = wanted_path_rad(flight, indicated_altitude_ft, nav, selections) - path_rad;
  const double pitch = (flight.attitude.pitch_rad + error_rad) * degrees_per_radian;
  pitch_deg = lag(pitch_deg, std::clamp(pitch, -10.0, 15.0), 1.0, dt_s);
  bank_deg = lag(bank_deg, std::clamp(1.3 * turn_deg, -25.0, 25.0), 1.0, dt_s);
}

}  // namespace host::simulation
