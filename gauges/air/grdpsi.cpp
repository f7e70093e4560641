/// Duct-pressure gauge (overhead): the pressure of the air that turns the starters, from the APU or
/// from running engines. What it reads decides the bleed panel's light and whether an engine can be
/// started.
#include "module/catalogue.h"
#include "module/counters.h"
#include "module/host.h"
#include "module/systems.h"

namespace tarnvale {
namespace {

constexpr u32 rest = 10, full_scale = 1000;
constexpr u32 one_engine = 60, both_engines = 80;

/// The APU gives a little less while the ground unit carries the buses and it idles.
constexpr u32 apu_on_ground_power = 420, apu_on_its_own = 440;

constinit u32 pressure = rest;

/// What the engines give without help. An engine just at the edge of running has not decided yet, and
/// the duct stays empty until it has.
u32 engine_bleed() {
  const f64 eng1 = read(token::engine_1_core_speed);
  const f64 eng2 = read(token::engine_2_core_speed);
  const bool runs1 = eng1 > running_percent, stands1 = eng1 < running_percent;
  const bool runs2 = eng2 > running_percent, stands2 = eng2 < running_percent;
  if (runs1 && runs2) return both_engines;
  return (runs1 && stands2) || (stands1 && runs2) ? one_engine : rest;
}

/// The APU fills the duct two steps a frame; the second one goes past its limit, where it settles. An
/// APU at speed shuts the engines' check valves, and with its bleed valve closed the duct leaks empty.
void fill_duct() {
  pressure = held(pressure, rest, full_scale);
  if (aircraft.apu_at_speed == 0) pressure = engine_bleed();
  if (aircraft.apu_bleed_switch == 0) {
    --pressure;
  } else if (aircraft.apu_at_speed == 1) {
    const bool ground_power = aircraft.ext_power_switch == 1;
    pressure = raised(pressure, ground_power ? apu_on_ground_power : apu_on_its_own);
    ++pressure;
  }
}

/// Green between the limits of a good start, amber outside them, dark on an empty duct. At a limit the
/// light does not flicker: it stays as it is.
void switch_light() {
  constexpr u32 empty = 60, low = 200, high = 600;
  if (pressure < empty) aircraft.duct_pressure_light = 0;
  if (pressure > empty && pressure < low) aircraft.duct_pressure_light = 2;
  if (pressure > low && pressure < high) aircraft.duct_pressure_light = 1;
  if (pressure > high) aircraft.duct_pressure_light = 2;
}

/// Start air comes and goes with the APU's pressure while its path to the starters is open. Closing the
/// path traps what there is.
void watch_start_air() {
  constexpr u32 enough = 220;
  if (aircraft.apu_bleed_switch != 1 || aircraft.bleed_lineup_ok != 1) return;
  if (pressure > enough) aircraft.start_air_available = 1;
  if (pressure < enough) aircraft.start_air_available = 0;
}

f64 duct_pressure(Element*) {
  fill_duct();
  switch_light();
  watch_start_air();
  return pressure;
}

constexpr Scale<4> scale{{{15, 59}, 0}, {{13, 57}, 10}, {{63, 59}, 700}, {{50, 63}, full_scale}};

constinit Body body{
    grdpsi,
    {
        lighting_overlay(1080),
        needle("Duct pressure", 1070, {36, 37}, {7, 7}, scale, duct_pressure),
    },
};

}  // namespace

constinit Gauge grdpsi{{.name = "Grdpsi", .width_mm = 70, .background = 1060}, body};

}  // namespace tarnvale
