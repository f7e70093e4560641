/// Battery panel (overhead): battery and external power switches, and which source feeds the buses.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/systems.h"

namespace tarnvale {
namespace {

/// 0 dark, 1 external power available, 2 in use.
f64 external_power_light(Element*) {
  if (aircraft.ground_power_connected != 1) return 0;
  return aircraft.ext_power_switch == 0 ? 1 : 2;
}

/// The battery takes the alternators with it; the host's battery state is what stays.
constexpr MouseRoutine press_battery =
    toggles<&Aircraft::dc_power_on, event::battery_toggle, event::alternators_with_battery,
            event::alternator_1_with_battery, event::alternator_2_with_battery,
            event::apu_alternator_with_battery>;

constinit Body body{
    masterbat,
    {
        icon("Battery switch", bitmap::toggle_switch, {39, 78},
             mirrors<token::battery, &Aircraft::dc_power_on>),
        icon("External power switch", bitmap::toggle_switch, {111, 73},
             shows<&Aircraft::ext_power_switch>),
        lamp("External power lamp", {30, 3}, {145, 80}, external_power_light),
        icon("Bus tie button", bitmap::flow_knob, {68, 80}, shows<&Aircraft::battery_panel_button_on>),
        lamp("Battery lamp", 40, {12, 43}, lit_at<&Aircraft::dc_power_on>),
        lamp("APU on bus lamp", 50, {98, 43}, apu_on_bus),
        lamp("APU generator lamp", 60, {54, 8}, lit_at<&Aircraft::apu_gen_switch>),
    },
    {
        click("Battery switch", {36, 76, 22, 46}, press_battery),
        click("External power switch", {106, 70, 22, 46}, toggles<&Aircraft::ext_power_switch>),
        click("Bus tie button", {66, 78, 30, 30}, pushes<&Aircraft::battery_panel_button_on>),
    },
};

}  // namespace

constinit Gauge masterbat{{.name = "Masterbat", .width_mm = 174, .background = 20}, body};

}  // namespace tarnvale
