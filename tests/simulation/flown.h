/// What the tests of flight share.
#pragma once

#include <gtest/gtest.h>

#include <cmath>

#include "host/simulation/aircraft.h"

namespace host::simulation {

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
