/// Facts of the aircraft's systems that several panels go by.
#pragma once

#include "module/host.h"
#include "module/variables.h"

namespace tarnvale {

/// Above this core speed, in percent, an engine runs by itself and gives bleed air.
inline constexpr f64 running_percent = 25.0;

/// Below this the fuel on board, in gallons, is low.
inline constexpr f64 low_fuel_gallons = 250.0;

/// Below this core speed, in percent, an engine does not turn its generator.
inline constexpr f64 generator_turning_percent = 10.0;

inline bool no_engine_runs() {
  return read(token::engine_1_core_speed) < running_percent &&
         read(token::engine_2_core_speed) < running_percent;
}

/// The APU's generator feeds the buses when its switch is up, unless the ground unit does.
inline bool apu_feeds_buses() {
  return aircraft.apu_gen_switch == up && aircraft.ext_power_switch == 0;
}

/// The image of the lamps that show it.
inline f64 apu_on_bus(Element*) { return apu_feeds_buses(); }

}  // namespace tarnvale
