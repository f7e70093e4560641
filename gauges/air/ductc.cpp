/// Duct temperatures (overhead): a needle for each side. The ducts' temperatures are made up here, and
/// with them what the air-conditioning panel's overheat lights show.
#include "module/aircraft.h"
#include "module/catalogue.h"
#include "module/counters.h"

namespace tarnvale {
namespace {

constexpr u32 cold = 2, full_scale = 60;

/// One side of the air conditioning: its switches and selector, and the duct they heat.
struct Side {
  u32& supply_on;
  u32& automatic;
  u32& selector;
  u32& temperature_normal;
  u32 temperature;
};

constinit Side left{aircraft.aircon_left_on, aircraft.aircon_left_auto, aircraft.temp_selector_left,
                    aircraft.duct_left_temp_normal, cold};
constinit Side right{aircraft.aircon_right_on, aircraft.aircon_right_auto, aircraft.temp_selector_right,
                     aircraft.duct_right_temp_normal, cold};

/// Exactly at its threshold the overheat light stays as it is.
void watch_for_overheat(const Side& side) {
  constexpr u32 overheat = 55;
  if (side.temperature > overheat) side.temperature_normal = 0;
  if (side.temperature < overheat) side.temperature_normal = 1;
}

/// Supplied and controlled, the duct stands at its selector's temperature, or heats up by a degree a
/// frame while the override keeps the control away. Otherwise it holds what uncontrolled air has.
u32 heated(const Side& side) {
  constexpr u32 selected[] = {10, 15, 18, 22, 25, 27, 35, 40, 55, 60}, uncontrolled = 10;
  if (side.supply_on != 1 || side.automatic != 1) return uncontrolled;
  return aircraft.temp_override_switch == 0 ? selected[side.selector] : side.temperature + 1;
}

/// The overheat light follows one frame behind the needle. The needle's last step under the override
/// goes one past its scale.
template <auto duct>
f64 duct_temperature(Element*) {
  Side& side = *duct;
  side.temperature = held(side.temperature, cold, full_scale);
  watch_for_overheat(side);
  side.temperature = aircraft.dc_power_on == 0 ? cold : heated(side);
  return side.temperature;
}

constexpr PanelPoint pivot{7, 2};
constexpr Scale<2> left_scale{{{5, 36}, 0}, {{66, 36}, full_scale}};
constexpr Scale<2> right_scale{{{89, 35}, 0}, {{150, 35}, full_scale}};

constinit Body body{
    ductc,
    {
        lighting_overlay(290),
        needle("Left duct temperature", 280, {37, 35}, pivot, left_scale, duct_temperature<&left>),
        needle("Right duct temperature", 280, {121, 35}, pivot, right_scale, duct_temperature<&right>),
    },
};

}  // namespace

constinit Gauge ductc{{.name = "Ductc", .width_mm = 158, .background = 270}, body};

}  // namespace tarnvale
