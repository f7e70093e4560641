/// Tanks, pumps, valves, and what reaches the engines.
///
/// Tank 1 in the left wing feeds engine 1, tank 2 in the right wing engine 2; 1,280 US gallons each.
/// The centre tank's 830 are moved into a wing tank by the stream of its running boost pump, as long as
/// there is room. With the crossfeed valve open either wing tank can feed both engines: the one that
/// the crew chose, else the only one under pump pressure. The engines' own pumps draw from a tank
/// without its boost pump, but above 20,000 ft the fuel boils in the pipe. A gallon weighs 3.04 kg
/// (kerosene of 0.803 kg/l).
#pragma once

#include <array>
#include <cstddef>

#include "host/simulation/flight/mass.h"

namespace host::simulation {

/// Whose tank feeds the engines while the crossfeed valve is open.
enum class FuelFeed { each_its_own, tank_1_both, tank_2_both };

inline constexpr double kg_per_gallon = 3.04;
inline constexpr double wing_tank_gallons = 1280.0, centre_tank_gallons = 830.0;
inline constexpr double suction_ceiling_ft = 20000.0;

struct FuelInputs {
  std::array<double, 2> flow_kg_per_h{};
  double altitude_ft = 0.0;
  bool has_dc = false;   ///< the boost pumps' relays
  bool standing = true;  ///< on the ground, not moving: the truck can come
};

struct FuelControls {
  std::array<bool, 2> lever_open{};     ///< fuel levers: shut-off valves of engines 1 and 2
  std::array<bool, 2> boost_pump_on{};  ///< the switches
  std::array<bool, 2> boost_pump_failed{};
  bool crossfeed_open = false;
  FuelFeed feed = FuelFeed::each_its_own;

  std::array<double, 2> wing_kg{usual_fuel.left_kg, usual_fuel.right_kg};
  double centre_kg = usual_fuel.centre_kg;
  bool refuelling = false;  ///< the truck fills the wing tanks, 15 kg a second each

  std::array<bool, 2> at_engine{true, true};  ///< fuel reaches the engine's own pump

  void toggle_crossfeed() {
    crossfeed_open = !crossfeed_open;
    if (!crossfeed_open) feed = FuelFeed::each_its_own;
  }

  /// Calls the fuel truck, or sends it away.
  void toggle_refuelling() { refuelling = !refuelling; }

  void update(double dt_s, const FuelInputs& inputs);

  bool pumps(std::size_t tank) const { return boost_pump_on[tank] && !boost_pump_failed[tank]; }

  /// The tank that feeds an engine.
  std::size_t tank_of(std::size_t engine) const;

  FuelLoad load() const { return {wing_kg[0], wing_kg[1], centre_kg}; }
  double total_kg() const { return wing_kg[0] + wing_kg[1] + centre_kg; }

 private:
  void burn(double dt_s, const FuelInputs& inputs);
  void transfer(double dt_s, const FuelInputs& inputs);
  void refuel(double dt_s, const FuelInputs& inputs);
};

}  // namespace host::simulation
