/// How the anti-ice supplies of engines and wings keep their pressure.
#pragma once

#include "module/aircraft.h"
#include "module/counters.h"

namespace tarnvale {

/// The pressure that a supply starts a frame with: what it has built up, or none (10 in the needle's
/// scale) while it is off or its valve has no power. The frame's own steps come on top.
inline u32 supply_kept(u32 pressure, u32 full_scale, bool on) {
  constexpr u32 none = 10;
  return on && aircraft.dc_power_on != 0 ? held(pressure, none, full_scale) : none;
}

/// The steps of one frame under a regulator: two up, of which the second goes one past the limit; one
/// down while the supply is off.
inline u32 supply_regulated(u32 pressure, u32 limit, bool on) {
  return on ? raised(pressure, limit) + 1 : pressure - 1;
}

}  // namespace tarnvale
