#include "host/outside/sight.h"

namespace host::outside {
namespace {

using simulation::Quaternion;
using simulation::Vector;

/// The captain's eye from the centre of gravity: forward, right, down.
constexpr Vector eye_in_aircraft_m{12.0, -0.5, -1.1};

/// The centre of gravity above the wheels' datum.
constexpr double above_wheels_m = 2.4;

}  // namespace

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
