/// Wheels on the ground, and what else may touch it.
///
/// Each leg is one spring and damper, oleo and tyre together: 650 kN/m and 100 kN s/m a main leg, 155
/// and 25 at the nose, so that the aircraft heaves about once a second, well damped. Past the stroke it
/// bottoms.
///
/// A tyre holds by its carcass, modelled as bristles (Canudas de Wit et al., "A new model for control
/// of systems with friction", 1995; lateral relaxation as in Pacejka, Tyre and Vehicle Dynamics, ch.
/// 1):
///
///   along:  deflection grows with the slip of a held wheel up to what brake and rolling resistance hold
///   across: s' = v - |u| s / 0.7 m, force k s, at most 0.7 of the load; k is 6 of the load a metre for the
///           main wheels and 3 for the nose wheel, which makes the aircraft run straight by itself
///
/// so that a standing aircraft is held by springs and does not creep, and a rolling one corners by its
/// slip angle. A braked wheel holds 0.5 of its load at most: the antiskid keeps it there, without it
/// the wheel locks and slides on 0.3. Without gear the fuselage, tail and wing tips slide on friction
/// alone.
#pragma once

#include <array>

#include "host/simulation/base/vector.h"

namespace host::simulation {

struct GroundMotion {
  Vector centre_m;      ///< of gravity, from 25 % of the mean chord
  double height_m;      ///< of the centre of gravity above the ground
  Vector down;          ///< the earth's down along the aircraft's axes
  Vector velocity_mps;  ///< over the ground, along the aircraft's axes
  Vector rate_rad_per_s;
  std::array<double, 3> gear;   ///< nose, left, right: 0 up .. 1 locked
  std::array<double, 2> brake;  ///< left, right: 0..1
  double steering_rad;
  bool antiskid = true;
};

struct GroundForces {
  Vector force_n;
  Vector moment_nm;  ///< about the centre of gravity
  bool main_wheel_down = false;
};

struct Tyre {
  double along_m = 0.0, across_m = 0.0;  ///< how far its carcass is pushed out of shape
};

struct LandingGear {
  std::array<Tyre, 3> tyres;
  std::array<double, 3> load_n{};    ///< nose, left, right
  std::array<double, 2> braked_j{};  ///< heat in the left and right brakes, until someone takes it

  GroundForces update(double dt_s, const GroundMotion& motion);
};

/// How an aircraft at rest stands on its springs.
struct Stance {
  double height_m;  ///< of the centre of gravity
  double pitch_rad;
};
Stance standing(double mass_kg, const Vector& centre_m);

/// Where the wheels stand, from 25 % of the mean chord; their tyres end with the legs extended.
inline constexpr double wheel_depth_m = 2.6;
inline constexpr double nose_wheel_ahead_m = 10.5, main_wheels_behind_m = 1.2;

}  // namespace host::simulation
