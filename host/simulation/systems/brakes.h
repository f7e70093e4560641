/// Wheel brakes: pressure at the wheels, antiskid, and the heat of stopping.
///
/// A side's two wheels share a steel heat sink of 120 kg, 60 kJ/K. Standing it loses 30 W/K, in the
/// slipstream 3 W/K more for each m/s, so that it cools by half in 23 minutes on the ground and in
/// three with the gear hanging out on approach. Above 450 degrees Celsius the linings fade, to 60 % of
/// their torque at 800. Check values: stops at 36 t leave 160 degrees from 60 kt and 470 from 110 kt
/// (half of m V^2 / 2 for each side).
#pragma once

#include <array>
#include <cstddef>

namespace host::simulation {

struct BrakeInputs {
  std::array<double, 2> pedal{};  ///< left and right: 0..1
  bool parking_brake_set = false;
  std::array<double, 2> energy_j{};  ///< that the wheels turned into heat in this step
  double air_temperature_celsius = 15.0;
  double slipstream_mps = 0.0;  ///< past the wheels; none while they are stowed
};

/// Of both sides: left, right.
struct Brakes {
  bool antiskid_on = true;
  std::array<double, 2> pressure_ratio{};  ///< 0..1 in 0.3 s
  std::array<double, 2> temperature_celsius{15.0, 15.0};

  void update(double dt_s, const BrakeInputs& inputs);

  /// How hard each side brakes, of its torque when cold.
  std::array<double, 2> torque_ratio() const;
};

}  // namespace host::simulation
