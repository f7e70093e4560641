/// Two hydraulic systems of 3,000 psi: one for the flight controls, one for gear, flaps, speed brake
/// and lift dumpers. Both engines turn a pump of each.
///
/// A pump delivers up to 0.4 l/s at 100 % N2, in proportion to the speed, and shuts itself off in the
/// last 150 psi. What jacks take beyond that comes out of the accumulator, which yields 0.4 l for 1,000
/// psi:
///
///   C p' = q(p) - swept - leak,   q = q0 min(1, (3000 - p) / 150),   leak = 2 ml/s at 3,000 psi
///
/// so that a parked system keeps its pressure for some minutes. What fills accumulator and jacks is
/// missing in the reservoir, which holds 10 l. Check values, both engines at idle: 3,000 psi and 88 %
/// with the gear up.
#pragma once

#include <array>

#include "host/simulation/flight/surfaces.h"

namespace host::simulation {

struct HydraulicSystem {
  double pressure_psi = 0.0;
  double jacks_l = 0.0;  ///< fluid that extended jacks hold

  /// `pumps_l_per_s` can be delivered; `swept_l` went through the jacks.
  void update(double dt_s, double pumps_l_per_s, double swept_l);

  /// What stands in the reservoir: 1 full.
  double quantity_ratio() const;
};

struct Hydraulics {
  HydraulicSystem flight, utility;

  void update(double dt_s, const std::array<double, 2>& core_speed_percent, const Surfaces& surfaces);

  /// As after some minutes at these speeds, with nothing moving.
  void settle(const std::array<double, 2>& core_speed_percent, const Surfaces& surfaces);

 private:
  Surfaces last_;
};

}  // namespace host::simulation
