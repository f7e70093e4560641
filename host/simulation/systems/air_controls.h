/// The air switches whose state the aircraft keeps.
#pragma once

namespace host::simulation {

struct AirControls {
  bool engine_antiice_on = false;  ///< hot bleed air to both engines' intakes
  bool ram_air_open = false;       ///< outside air to the cabin, instead of the packs
};

}  // namespace host::simulation
