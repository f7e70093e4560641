/// Engine anti-ice pressures (overhead): a needle for each engine. The pressures are made up here.
#include "gauges/air/antiice_supply.h"
#include "module/catalogue.h"
#include "module/variables.h"

namespace tarnvale {
namespace {

constexpr u32 full_scale = 1000;

/// One engine's supply: its knob, and the position of the panel's lever that takes its regulator out of
/// the line.
struct Supply {
  u32& knob;
  Lever lever;
  u32 pressure;
};

constinit Supply left{aircraft.engine_antiice_left, up, 10};
constinit Supply right{aircraft.engine_antiice_right, down, 10};

/// Each position has a regulator of its own. Without one, position 1 keeps its two steps a frame up to
/// full scale, and position 3 rises by single steps.
u32 built_up(const Supply& supply, u32 pressure, bool on) {
  constexpr u32 limit_at_1 = 540, limit_at_3 = 520;
  const bool regulated = aircraft.antiice_upper_switch != supply.lever;
  if (supply.knob == 3) return regulated ? supply_regulated(pressure, limit_at_3, on) : pressure + 1;
  return supply_regulated(pressure, regulated ? limit_at_1 : full_scale, on);
}

template <auto engine>
f64 engine_pressure(Element*) {
  Supply& supply = *engine;
  const bool on = supply.knob == 1 || supply.knob == 3;
  supply.pressure = built_up(supply, supply_kept(supply.pressure, full_scale, on), on);
  return supply.pressure;
}

constexpr PanelPoint pivot{5, 5};
constexpr Scale<5> left_scale{
    {{20, 56}, 0}, {{18, 55}, 10}, {{34, 5}, 400}, {{62, 41}, 700}, {{52, 56}, full_scale}};
constexpr Scale<5> right_scale{
    {{101, 59}, 0}, {{99, 58}, 10}, {{115, 8}, 400}, {{142, 45}, 700}, {{132, 59}, full_scale}};

constinit Body body{
    icepsi,
    {
        lighting_overlay(1120),
        needle("Left engine anti-ice pressure", 1110, {35, 33}, pivot, left_scale,
               engine_pressure<&left>),
        needle("Right engine anti-ice pressure", 1110, {116, 36}, pivot, right_scale,
               engine_pressure<&right>),
    },
};

}  // namespace

constinit Gauge icepsi{{.name = "Icepsi", .width_mm = 149, .background = 1090}, body};

}  // namespace tarnvale
