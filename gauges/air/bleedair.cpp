/// Bleed-air panel (overhead): four switches and six valve knobs that lead air from the APU or the
/// engines to the starters, the duct-pressure light, and four lights that shine only when tested.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/holds.h"

namespace tarnvale {
namespace {

constinit HoldClock test_clock;
constinit u32 testing_valve_1, testing_valve_2, testing_isolation_1, testing_isolation_2;

/// Whether the valves stand for an engine start. The APU's own two, the lower left switch and the
/// middle right knob, break the line-up as soon as one closes; the others are needed to make it, and an
/// already filled duct bears one of them closed. The lower right switch and the bottom right knob feed
/// the other side's air-conditioning pack, which takes no part in a start: they stand as they like.
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

constinit Body body{
    bleedair,
    {
        lamp("Duct pressure lamp", {150, 3}, {181, 132}, shows<&Aircraft::duct_pressure_light>),
        icon("Manifold 2 knob", 160, {119, 131}, bottom_right_knob),
        icon("Manifold 1 knob", 160, {63, 129}, shows<&Aircraft::bleed_valve_bottom_left>),
        lamp("Isolation 2 light", bitmap::round_light, {176, 75},
             test_light<&test_clock, &testing_isolation_2>),
        lamp("Isolation 1 light", bitmap::round_light, {10, 76},
             test_light<&test_clock, &testing_isolation_1>),
        icon("Isolation 2 knob", bitmap::flow_knob, {149, 96}, shows<&Aircraft::bleed_valve_mid_right>),
        icon("Isolation 1 knob", bitmap::flow_knob, {36, 97}, shows<&Aircraft::bleed_valve_mid_left>),
        lamp("Valve 2 light", bitmap::round_light, {180, 42},
             test_light<&test_clock, &testing_valve_2>),
        lamp("Valve 1 light", bitmap::round_light, {10, 41}, test_light<&test_clock, &testing_valve_1>),
        icon("Shut-off valve 2 knob", bitmap::flow_knob, {156, 11},
             shows<&Aircraft::bleed_valve_top_right>),
        icon("Shut-off valve 1 knob", bitmap::flow_knob, {38, 8},
             shows<&Aircraft::bleed_valve_top_left>),
        icon("Crossfeed 2 switch", bitmap::toggle_switch, {123, 78},
             shows<&Aircraft::bleed_switch_lower_right>),
        icon("Crossfeed 1 switch", bitmap::toggle_switch, {78, 78},
             shows<&Aircraft::bleed_switch_lower_left>),
        icon("Engine 2 bleed switch", bitmap::toggle_switch, {125, 22},
             shows<&Aircraft::bleed_switch_upper_right>),
        icon("Engine 1 bleed switch", bitmap::toggle_switch, {80, 22},
             shows<&Aircraft::bleed_switch_upper_left>),
    },
    {
        click("Engine 1 bleed switch", {77, 21, 20, 43}, toggles<&Aircraft::bleed_switch_upper_left>),
        click("Engine 2 bleed switch", {121, 21, 20, 43}, toggles<&Aircraft::bleed_switch_upper_right>),
        click("Crossfeed 1 switch", {74, 77, 20, 43}, toggles<&Aircraft::bleed_switch_lower_left>),
        click("Crossfeed 2 switch", {119, 77, 20, 43}, toggles<&Aircraft::bleed_switch_lower_right>),
        click("Shut-off valve 1 knob", {36, 7, 30, 30}, pushes<&Aircraft::bleed_valve_top_left>),
        click("Shut-off valve 2 knob", {154, 9, 30, 30}, pushes<&Aircraft::bleed_valve_top_right>),
        click("Isolation 1 knob", {34, 95, 30, 30}, pushes<&Aircraft::bleed_valve_mid_left>),
        click("Isolation 2 knob", {147, 94, 30, 30}, pushes<&Aircraft::bleed_valve_mid_right>),
        click("Manifold 1 knob", {61, 127, 30, 30}, pushes<&Aircraft::bleed_valve_bottom_left>),
        click("Manifold 2 knob", {117, 129, 30, 30}, pushes<&Aircraft::bleed_valve_bottom_right>),
        click("Valve 1 light test", {10, 42, 25, 25}, tests<&test_clock, &testing_valve_1>),
        click("Valve 2 light test", {181, 43, 25, 25}, tests<&test_clock, &testing_valve_2>),
        click("Isolation 1 light test", {8, 74, 25, 28}, tests<&test_clock, &testing_isolation_1>),
        click("Isolation 2 light test", {179, 74, 25, 28}, tests<&test_clock, &testing_isolation_2>),
    },
};

}  // namespace

constinit Gauge bleedair{{.name = "Bleedair", .width_mm = 215, .background = 130}, body};

}  // namespace tarnvale
