#include "host/simulation/flight/mass.h"

namespace host::simulation {

MassProperties mass_properties(const FuelLoad& fuel) {
  constexpr double tank_aft_m = 0.8, tank_out_m = 4.2;
  const double wings_kg = fuel.left_kg + fuel.right_kg;
  const double mass_kg = zero_fuel_mass_kg + wings_kg + fuel.centre_kg;
  MassProperties mass;
  mass.mass_kg = mass_kg;
  mass.centre_m = {-tank_aft_m * wings_kg / mass_kg,
                   tank_out_m * (fuel.right_kg - fuel.left_kg) / mass_kg, 0.0};
  const double span_share = wings_kg * tank_out_m * tank_out_m;
  mass.inertia_kg_m2.x += span_share;
  mass.inertia_kg_m2.z += span_share;
  return mass;
}

}  // namespace host::simulation
