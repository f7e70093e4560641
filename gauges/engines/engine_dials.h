/// Both engines' instruments read alike: what their dials have in common.
#pragma once

#include "module/catalogue.h"
#include "module/needles.h"
#include "module/variables.h"

namespace tarnvale {

/// The end of the fan-speed and core-speed dials, percent.
inline constexpr i32 speed_full_scale = 120;

/// The pressure-ratio pointer shows twice what the ratio is above 1, up to the end of its small scale.
inline f64 expanded_pressure_ratio(Element* needle) {
  return limited(2 * (needle->needle.source.value - 1) + 1, 1.0, 1.78);
}

/// Fuel pressure behind the engine's own pump: a counter that the panels make up themselves.
template <auto pump_switch>
f64 fuel_pressure(Element*) {
  constexpr u32 pumped = 950, by_gravity = 850;
  if (aircraft.dc_power_on == 0) return 0;
  return variable<pump_switch>() == 1 ? pumped : by_gravity;
}

}  // namespace tarnvale
