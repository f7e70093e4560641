/// What the tests of flight share.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <initializer_list>
#include <string_view>

#include "host/simulation/aircraft.h"
#include "host/simulation/aircraft_model.h"
#include "host/simulation/table.h"

namespace host::simulation {

inline double token(const Aircraft& aircraft, std::uint32_t number) {
  return find_token(number)->read(aircraft);
}

inline void send(Aircraft& aircraft, std::uint32_t event, std::uint32_t value = 0) {
  find_event(event)->apply(aircraft, value);
}
inline void send(Aircraft& aircraft, std::string_view event, int times = 1) {
  const TableRow* row = find_row(AircraftModel::events(), event);
  ASSERT_NE(row, nullptr) << event;
  for (int i = 0; i < times; ++i) send(aircraft, row->number);
}

inline Aircraft flying(const InFlight& where, int steps_per_second = usual_steps_per_second) {
  Aircraft aircraft(steps_per_second);
  EXPECT_TRUE(aircraft.place_in_flight(where))
      << where.altitude_ft << " ft " << where.airspeed_kt << " kt";
  return aircraft;
}

/// Both engines at idle, lined up, parking brake set.
inline Aircraft on_the_runway(int steps_per_second = usual_steps_per_second) {
  Aircraft aircraft(steps_per_second);
  aircraft.make_ready();
  aircraft.place_on_runway();
  return aircraft;
}

/// Runs the aircraft; `each` is called before every step.
template <typename Each>
void run(Aircraft& aircraft, double seconds, Each each) {
  const auto steps = std::lround(seconds * aircraft.clock.steps_per_second);
  for (long i = 0; i < steps; ++i) {
    each();
    aircraft.step();
  }
}

inline void run(Aircraft& aircraft, double seconds) {
  run(aircraft, seconds, [] {});
}

/// Runs the aircraft and returns the greatest that each of the signals has been.
template <typename... Signals>
std::array<double, sizeof...(Signals)> greatest(Aircraft& aircraft, double seconds,
                                                Signals... signals) {
  std::array<double, sizeof...(Signals)> found;
  found.fill(-1e9);
  run(aircraft, seconds, [&] {
    std::size_t i = 0;
    ((found[i] = std::fmax(found[i], signals()), ++i), ...);
  });
  return found;
}

inline double degrees(double radians) { return radians * 180.0 / M_PI; }
inline double bank_deg(const Aircraft& a) { return degrees(a.flight.attitude.bank_rad); }
inline double pitch_deg(const Aircraft& a) { return degrees(a.flight.attitude.pitch_rad); }
inline double mass_kg(const Aircraft& a) { return mass_properties(a.fuel.load()).mass_kg; }
inline double speed_mps(const Aircraft& a) { return length(a.flight.velocity_mps); }

/// A pilot's hand on the stick: the attitude that it should hold.
inline void hold_attitude(Aircraft& a, double wanted_pitch_deg, double wanted_bank_deg) {
  const Vector& rate = a.flight.rate_rad_per_s;
  const auto stick = [](double wish) { return std::fmin(1.0, std::fmax(-1.0, wish)); };
  a.controls.elevator = stick(0.1 * (wanted_pitch_deg - pitch_deg(a)) - 3.0 * rate.y);
  a.controls.aileron = stick(0.03 * (wanted_bank_deg - bank_deg(a)) - 1.0 * rate.x);
}

}  // namespace host::simulation
