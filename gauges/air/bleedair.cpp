/// Bleed-air panel (overhead): four switches and six valve knobs that lead air from the APU or the
/// engines to the starters, the duct-pressure light, and four lights that shine only when tested.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit TestClock test_clock;
constinit u32 testing[4];

/// Whether the valves stand for an engine start. The APU's own two, the lower left switch and the
/// middle right knob, break the line-up as soon as one closes; the others are needed to make it, and
/// an already filled duct bears one of them closed. The lower right switch and the bottom right knob
/// feed the other side's air-conditioning pack, which takes no part in a start: they stand as they like.
void watch_lineup() {
  const Aircraft& a = aircraft;
  if (a.bleed_switch_lower_left != 1 || a.bleed_valve_mid_right != 1) {
    aircraft.bleed_lineup_ok = 0;
  } else if (a.bleed_switch_upper_left == 1 && a.bleed_switch_upper_right == 1 &&
             a.bleed_valve_top_left == 1 && a.bleed_valve_top_right == 1 &&
             a.bleed_valve_mid_left == 1 && a.bleed_valve_bottom_left == 1) {
    aircraft.bleed_lineup_ok = 1;
  }
}

f64 bottom_right_knob(Element*) {
  watch_lineup();
  return aircraft.bleed_valve_bottom_right;
}

}  // namespace

constinit Gauge<31, 14> bleedair{
    Face{.name = "Bleedair", .width_mm = 215, .background = 130},
    {
        lamp(150, {181, 132}, shows<aircraft.duct_pressure_light>, 3),
        icon(160, {119, 131}, 2, bottom_right_knob),
        icon(160, {63, 129}, 2, shows<aircraft.bleed_valve_bottom_left>),
        lamp(2110, {176, 75}, test_light<test_clock, testing[3]>),
        lamp(2110, {10, 76}, test_light<test_clock, testing[2]>),
        icon(2140, {149, 96}, 2, shows<aircraft.bleed_valve_mid_right>),
        icon(2140, {36, 97}, 2, shows<aircraft.bleed_valve_mid_left>),
        lamp(2110, {180, 42}, test_light<test_clock, testing[1]>),
        lamp(2110, {10, 41}, test_light<test_clock, testing[0]>),
        icon(2140, {156, 11}, 2, shows<aircraft.bleed_valve_top_right>),
        icon(2140, {38, 8}, 2, shows<aircraft.bleed_valve_top_left>),
        icon(2130, {123, 78}, 2, shows<aircraft.bleed_switch_lower_right>),
        icon(2130, {78, 78}, 2, shows<aircraft.bleed_switch_lower_left>),
        icon(2130, {125, 22}, 2, shows<aircraft.bleed_switch_upper_right>),
        icon(2130, {80, 22}, 2, shows<aircraft.bleed_switch_upper_left>),
    },
    {
        click({77, 21, 20, 43}, toggles<aircraft.bleed_switch_upper_left>),
        click({121, 21, 20, 43}, toggles<aircraft.bleed_switch_upper_right>),
        click({74, 77, 20, 43}, toggles<aircraft.bleed_switch_lower_left>),
        click({119, 77, 20, 43}, toggles<aircraft.bleed_switch_lower_right>),
        click({36, 7, 30, 30}, pushes<aircraft.bleed_valve_top_left>),
        click({154, 9, 30, 30}, pushes<aircraft.bleed_valve_top_right>),
        click({34, 95, 30, 30}, pushes<aircraft.bleed_valve_mid_left>),
        click({147, 94, 30, 30}, pushes<aircraft.bleed_valve_mid_right>),
        click({61, 127, 30, 30}, pushes<aircraft.bleed_valve_bottom_left>),
        click({117, 129, 30, 30}, pushes<aircraft.bleed_valve_bottom_right>),
        click({10, 42, 25, 25}, tests<test_clock, testing[0]>),
        click({181, 43, 25, 25}, tests<test_clock, testing[1]>),
        click({8, 74, 25, 28}, tests<test_clock, testing[2]>),
        click({179, 74, 25, 28}, tests<test_clock, testing[3]>),
    },
};

}  // namespace tarnvale
