/// Forces and moments of the air on the airframe.
///
/// A wing of 79 m2 and 25 m, mean chord 3.4 m. Coefficients build up from the state, each derivative
/// per radian (rates per radian of p b/2V, q c/2V, r b/2V), in the classic small-angle form of Etkin
/// and Reid, Dynamics of Flight, 3rd ed., ch. 4 and 5; the figures are this aircraft's own, in the
/// range of its class:
///
///   CL = CLwing(alpha, flaps, M) + 6 q^ - 0.35 de - 0.9 ih - 0.8 dumpers, and 6 % more on the ground
///   CD = 0.0175 + k CL^2 G(h) + flaps + 0.020 gear + 0.035 speed brake + 0.06 dumpers + wave + stall
///        k = 1/(pi 7.9 0.80) = 0.0504, wave = 20 (M - 0.70)^4 (Lock), G = (16h/b)^2/(1 + (16h/b)^2) (McCormick)
///   Cm = 0.03 + flaps - 1.3 alpha + 1.6 de + 3.0 ih - 22 q^ - 0.45 stall, about 25 % of the mean chord;
///        the high tail loses half of the elevator in the stalled wing's wake
///   CY = -0.85 beta + 0.17 dr
///   Cl = -0.13 beta - 0.45 p^ + (0.10 + 0.15 CL) r^ + 0.068 da + 0.015 dr
///   Cn =  0.14 beta - (0.03 + 0.05 CL) p^ - 0.22 r^ - 0.004 da + 0.09 dr
///
/// Controls have the sign of the pilot's hand: de and ih pull the nose up, da rolls right, dr yaws
/// right.
#pragma once

#include "host/simulation/base/vector.h"
#include "host/simulation/flight/surfaces.h"

namespace host::simulation {

inline constexpr double wing_area_m2 = 79.0;
inline constexpr double wing_span_m = 25.0;
inline constexpr double mean_chord_m = 3.4;

struct AirMotion {
  Vector airspeed_mps;    ///< of the aircraft through the air, along its axes
  Vector rate_rad_per_s;  ///< about its axes
  double density_kg_per_m3 = 1.225;
  double sound_mps = 340.294;
  double height_m = 1000.0;  ///< of the wing above the ground
};

struct AirForces {
  Vector force_n;
  Vector moment_nm;  ///< about 25 % of the mean chord
  double angle_of_attack_rad = 0.0;
  double sideslip_rad = 0.0;
  double lift_coefficient = 0.0;
  double drag_coefficient = 0.0;
  double separated = 0.0;  ///< of the wing: 0 .. 1; the airframe buffets from 0.2 on
};

inline constexpr double buffet_separation = 0.2;

AirForces air_forces(const AirMotion& motion, const Surfaces& surfaces);

}  // namespace host::simulation
