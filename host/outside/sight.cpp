#include "host/outside/sight.h"

#include <cmath>

#include "host/outside/airfield_lamps.h"

namespace host::outside {
namespace {

using simulation::Quaternion;
using simulation::Vector;

/// The captain's eye from the centre of gravity: forward, right, down.
constexpr Vector eye_in_aircraft_m{12.0, -0.5, -1.1};

/// The centre of gravity above the wheels' datum.
constexpr double above_wheels_m = 2.4;

bool near_by(double one, double other, double tolerance) { return std::abs(one - other) <= tolerance; }

}  // namespace

bool look_alike(const Sight& one, const Sight& other) {
  constexpr double still_m = 0.002, still_rad = 2e-5, still_deg = 1e-3;
  constexpr double sky_s = 5.0, flash_s = 0.015;
  const simulation::EulerAngles &a = one.attitude, &b = other.attitude;
  return near_by(length(one.eye_m - other.eye_m), 0.0, still_m) &&
         near_by(a.bank_rad, b.bank_rad, still_rad) && near_by(a.pitch_rad, b.pitch_rad, still_rad) &&
         near_by(a.heading_rad, b.heading_rad, still_rad) &&
         near_by(one.look.right_deg, other.look.right_deg, still_deg) &&
         near_by(one.look.up_deg, other.look.up_deg, still_deg) &&
         near_by(one.time_of_day_s, other.time_of_day_s, sees_flashes(one.eye_m) ? flash_s : sky_s) &&
         one.landing_lights == other.landing_lights;
}

Sight captains_sight(const AircraftModel& aircraft, double ahead_s) {
  const simulation::FlightState& flight = aircraft.flight();
  const Quaternion attitude = Quaternion::from(flight.attitude).turned(flight.rate_rad_per_s, ahead_s);
  Sight sight;
  sight.eye_m = flight.position_m + flight.velocity_mps * ahead_s + Vector{0.0, 0.0, -above_wheels_m} +
                attitude.to_earth(eye_in_aircraft_m);
  sight.attitude = attitude.angles();
  sight.time_of_day_s = aircraft.time_of_day_s() + ahead_s;
  sight.landing_lights = aircraft.token(token::landing_lights) != 0;
  return sight;
}

}  // namespace host::outside
