/// The crew's fuel controls.
#pragma once

#include <array>

namespace host::simulation {

/// Whose tank feeds the engines while the crossfeed valve is open.
enum class FuelFeed { each_its_own, tank_1_both, tank_2_both };

struct FuelControls {
  std::array<bool, 2> lever_open{};  ///< fuel levers: shut-off valves of engines 1 and 2
  /// Electric boost pumps. The engines' own pumps draw without them, so they start no matter.
  std::array<bool, 2> boost_pump_on{};
  bool crossfeed_open = false;
  FuelFeed feed = FuelFeed::each_its_own;

  void toggle_crossfeed() {
    crossfeed_open = !crossfeed_open;
    if (!crossfeed_open) feed = FuelFeed::each_its_own;
  }
};

}  // namespace host::simulation
