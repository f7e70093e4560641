/// Weight and balance.
///
/// 30,000 kg without fuel, balanced at 25 % of the mean chord, up to 10,300 kg of fuel. The wing tanks
/// lie 4.2 m out and 0.8 m behind that point (the wing is swept), the centre tank on it. Radii of
/// gyration are 3.1, 5.7 and 6.4 m about the three axes (Roskam, Airplane Design, volume V, table B:
/// jet transports); fuel in the wings adds to roll and yaw what it weighs there.
#pragma once

#include "host/simulation/base/vector.h"

namespace host::simulation {

struct FuelLoad {
  double left_kg = 0.0, right_kg = 0.0, centre_kg = 0.0;
};

/// What the aircraft is found with: both wing tanks filled to 1,000 US gallons. It weighs 36.1 t then.
inline constexpr FuelLoad usual_fuel{3040.0, 3040.0, 0.0};

inline constexpr double zero_fuel_mass_kg = 30000.0;

struct MassProperties {
  double mass_kg = zero_fuel_mass_kg;
  Vector centre_m;  ///< of gravity, from 25 % of the mean chord
  Vector inertia_kg_m2{288300.0, 974700.0, 1228800.0};
};

MassProperties mass_properties(const FuelLoad& fuel);

}  // namespace host::simulation
