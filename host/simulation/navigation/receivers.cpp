#include "host/simulation/navigation/receivers.h"

#include <algorithm>
#include <cmath>

#include "host/simulation/base/angle.h"

namespace host::simulation {
namespace {

constexpr double mast_ft = 50.0;

/// The station as seen from the aircraft.
struct Sight {
  double ground_m, slant_nm, bearing_true_deg;
};

Sight sight_of(const Vector& station_m, const FlightState& flight) {
  const Vector to = station_m - flight.position_m;
  return {std::hypot(to.x, to.y), length(to) / metres_per_nautical_mile,
          compass_degrees(std::atan2(to.y, to.x) * degrees_per_radian)};
}

double magnetic_deg(double true_deg) { return compass_degrees(true_deg - magnetic_variation_deg); }

bool tuned_to(const VhfTuning& tuning, double station_mhz) {
  return tuning.active_khz == std::lround(station_mhz * 1000.0);
}

}  // namespace

double radio_horizon_nm(const FlightState& flight) {
  return 1.23 * (std::sqrt(std::max(flight.height_ft, 10.0)) + std::sqrt(mast_ft));
}

void NavReceiver::forget() {
  received = localizer = glide_slope = false;
  ident = {};
  distance_nm = -1.0;
  course_deviation = slope_deviation = 0.0;
  to_from = ToFrom::off;
}

void NavReceiver::update(const FlightState& flight, bool powered) {
  forget();
  if (!powered) return;
  if (tuned_to(tuning, landing_system().frequency_mhz)) {
    update_landing_system(flight, landing_system());
  }
  for (const VorStation& station : vor_stations()) {
    if (tuned_to(tuning, station.frequency_mhz)) update_vor(flight, station);
  }
}

void NavReceiver::update_landing_system(const FlightState& flight, const LandingSystem& station) {
  const Sight sight = sight_of(station.localizer_m, flight);
  const double off_course_deg = turn_degrees(sight.bearing_true_deg - station.course_true_deg);
  const double behind_deg = std::abs(off_course_deg);
  if (sight.slant_nm > std::min(25.0, radio_horizon_nm(flight)) || behind_deg > 35.0) return;
  received = localizer = true;
  ident = station.ident;
  distance_nm = sight.slant_nm;
  bearing_deg = magnetic_deg(sight.bearing_true_deg);
  course_deviation = std::clamp(off_course_deg / localizer_full_scale_deg, -1.0, 1.0);
  update_glide_slope(flight, station);
}

void NavReceiver::update_glide_slope(const FlightState& flight, const LandingSystem& station) {
  const Sight sight = sight_of(station.glide_slope_m, flight);
  const double up_m = station.glide_slope_m.z - flight.position_m.z;
  const double elevation_deg = std::atan2(up_m, sight.ground_m) * degrees_per_radian;
  const double aside_deg = std::abs(turn_degrees(sight.bearing_true_deg - station.course_true_deg));
  if (sight.slant_nm > 12.0 || aside_deg > 8.0) return;
  if (elevation_deg < 0.45 * station.slope_deg || elevation_deg > 1.75 * station.slope_deg) return;
  glide_slope = true;
  slope_deviation = std::clamp((elevation_deg - station.slope_deg) / slope_full_scale_deg, -1.0, 1.0);
}

void NavReceiver::update_vor(const FlightState& flight, const VorStation& station) {
  const Sight sight = sight_of(station.position_m, flight);
  if (sight.slant_nm > std::min(100.0, radio_horizon_nm(flight))) return;
  received = true;
  ident = station.ident;
  distance_nm = sight.slant_nm;
  bearing_deg = magnetic_deg(sight.bearing_true_deg);
  const double off_deg = turn_degrees(bearing_deg - course_deg);
  const bool inbound = std::abs(off_deg) <= 90.0;
  to_from = inbound ? ToFrom::to : ToFrom::from;
  // Behind the station the course still lies on the same side: to the right of an aircraft that is left
  // of it.
  const double to_course_deg = inbound ? off_deg : turn_degrees(180.0 - off_deg);
  course_deviation = std::clamp(to_course_deg / vor_full_scale_deg, -1.0, 1.0);
}

void AdfReceiver::update(const FlightState& flight, bool powered) {
  const NdbStation& station = ndb_station();
  const Sight sight = sight_of(station.position_m, flight);
  received = powered && tuning.tenths_khz == std::lround(station.frequency_khz * 10.0) &&
             sight.slant_nm < 130.0;
  ident = received ? station.ident : std::string_view();
  if (received) bearing_deg = magnetic_deg(sight.bearing_true_deg);
}

int marker_overhead(const FlightState& flight) {
  constexpr double half_width_m = 1000.0, spread = 0.5, least_m = 40.0, ceiling_ft = 5000.0;
  const RunwayAxes at = runway_axes(flight.position_m);
  if (std::abs(at.right_m) > half_width_m || flight.height_ft > ceiling_ft) return 0;
  const double reach_m = std::max(least_m, spread * flight.height_ft * metres_per_foot);
  for (const MarkerBeacon& marker : marker_beacons) {
    const double along_m = threshold_along_m - marker.before_threshold_m;
    if (std::abs(at.along_m - along_m) < reach_m) return marker.number;
  }
  return 0;
}

double on_instrument_deg(double bearing_deg, double heading_deg) {
  return compass_degrees(bearing_deg - heading_deg);
}

double magnetic_heading_deg(const FlightState& flight) {
  return magnetic_deg(flight.attitude.heading_rad * degrees_per_radian);
}

}  // namespace host::simulation
