/// The aircraft as a rigid body: six degrees of freedom over a flat earth.
///
///   v' = F/m + g  (earth axes)      w' = (M - w x I w)/I  (aircraft axes, principal)      q' = q w / 2
///
/// Rates first, then what they move (semi-implicit Euler), in at least 240 slices a second whatever the
/// step, so that springs and short period are the same at any pace of the simulation. Gravity is
/// 9.80665 m/s2; the principal axes are taken along the aircraft's.
#pragma once

#include <array>

#include "host/simulation/base/quaternion.h"
#include "host/simulation/flight/aerodynamics.h"
#include "host/simulation/flight/flight_state.h"
#include "host/simulation/flight/landing_gear.h"
#include "host/simulation/flight/mass.h"

namespace host::simulation {

/// What surrounds and drives the airframe during a step.
struct AirframeInputs {
  MassProperties mass;
  std::array<double, 2> thrust_n{};
  std::array<double, 2> brake{};  ///< left and right: 0..1
  bool antiskid = true;
  double density_kg_per_m3 = 1.225;
  double sound_mps = 340.294;
  Vector wind_mps;  ///< over the ground: north, east, down
  Vector gust_mps;  ///< along the aircraft's axes
};

/// All forces at one moment.
struct Loads {
  Vector force_n;    ///< along the aircraft's axes, without gravity
  Vector moment_nm;  ///< about the centre of gravity
};

struct Airframe {
  Vector position_m{0.0, 0.0, -airfield_elevation_m};  ///< of the centre of gravity: north, east, down
  Vector velocity_mps;                                 ///< over the ground: north, east, down
  Quaternion attitude;
  Vector rate_rad_per_s;
  Surfaces surfaces;
  LandingGear gear;

  // Of the last step.
  AirForces air;
  double airspeed_mps = 0.0;
  Vector specific_force_mps2{0.0, 0.0, -gravity_mps2};
  bool main_wheel_down = true;

  void update(double dt_s, const AirframeInputs& inputs);

  /// Forces of air and engines in the present state, without the ground's.
  Loads flying_loads(const AirframeInputs& inputs);

  /// Puts it at rest on its wheels at that place of the field.
  void stand_at(const Vector& place_m, double heading_rad, const MassProperties& mass);

  /// Rolls it on its wheels as a tug moves it, without slip: ahead (back if negative) at the main
  /// wheels, about which it turns.
  void roll(double dt_s, double speed_mps, double yaw_rad_per_s, const MassProperties& mass);

  /// Moves it to an altitude above that place.
  void put_at_altitude(const Vector& place_m, double altitude_ft);

  /// Writes where it is and how it moves, without the air data.
  void report(FlightState& state) const;

 private:
  void slice(double dt_s, const AirframeInputs& inputs);
  GroundForces ground_forces(double dt_s, const AirframeInputs& inputs);
  double datum_altitude_m() const;
};

/// Of the engines' thrust lines, from 25 % of the mean chord: beside the tail, a little high.
inline constexpr double engine_out_m = 2.2, engine_up_m = 0.5;

}  // namespace host::simulation
