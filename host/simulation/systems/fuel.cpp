#include "host/simulation/systems/fuel.h"

#include <algorithm>

namespace host::simulation {
namespace {

constexpr double wing_capacity_kg = wing_tank_gallons * kg_per_gallon;
constexpr double transfer_kg_per_s =
    0.6;  // an engine takes 0.7 at take-off and half of that in the climb
constexpr double truck_kg_per_s = 15.0;

}  // namespace

std::size_t FuelControls::tank_of(std::size_t engine) const {
  if (!crossfeed_open) return engine;
  if (feed == FuelFeed::tank_1_both) return 0;
  if (feed == FuelFeed::tank_2_both) return 1;
  const auto gives = [this](std::size_t tank) { return pumps(tank) && wing_kg[tank] > 0.0; };
  if (gives(0) == gives(1)) return wing_kg[engine] > 0.0 ? engine : 1 - engine;
  return gives(0) ? 0 : 1;
}

void FuelControls::burn(double dt_s, const FuelInputs& inputs) {
  for (std::size_t engine = 0; engine < 2; ++engine) {
    const std::size_t tank = tank_of(engine);
    wing_kg[tank] = std::max(0.0, wing_kg[tank] - inputs.flow_kg_per_h[engine] / 3600.0 * dt_s);
  }
}

void FuelControls::transfer(double dt_s, const FuelInputs& inputs) {
  for (std::size_t tank = 0; tank < 2; ++tank) {
    if (!pumps(tank) || !inputs.has_dc) continue;
    const double moved_kg = std::min(
        {transfer_kg_per_s * dt_s, centre_kg, std::max(0.0, wing_capacity_kg - wing_kg[tank])});
    wing_kg[tank] += moved_kg;
    centre_kg -= moved_kg;
  }
}

void FuelControls::refuel(double dt_s, const FuelInputs& inputs) {
  refuelling = refuelling && inputs.standing && std::min(wing_kg[0], wing_kg[1]) < wing_capacity_kg;
  if (!refuelling) return;
  for (double& tank_kg : wing_kg) tank_kg = std::min(wing_capacity_kg, tank_kg + truck_kg_per_s * dt_s);
}

void FuelControls::update(double dt_s, const FuelInputs& inputs) {
  burn(dt_s, inputs);
  transfer(dt_s, inputs);
  refuel(dt_s, inputs);
  for (std::size_t engine = 0; engine < 2; ++engine) {
    const std::size_t tank = tank_of(engine);
    const bool pumped = pumps(tank) && inputs.has_dc;
    at_engine[engine] = wing_kg[tank] > 0.0 && (pumped || inputs.altitude_ft < suction_ceiling_ft);
  }
}

}  // namespace host::simulation
