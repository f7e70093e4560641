/// Battery panel (overhead): battery and external power switches, and which source feeds the buses.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/host.h"

namespace tarnvale {
namespace {

/// 0 dark, 1 external power available, 2 in use.
f64 external_power_light(Element*) {
  if (aircraft.ground_power_connected != 1) return 0;
  return aircraft.ext_power_switch == 0 ? 1 : 2;
}

f64 apu_feeds_buses(Element*) { return aircraft.apu_gen_switch == 1 && aircraft.ext_power_switch == 0; }

/// The battery takes the alternators with it; the host's battery state is what stays.
i32 press_battery(PanelPoint, u32) {
  aircraft.dc_power_on = aircraft.dc_power_on == 0;
  send(event::battery_toggle);
  send(event::alternators_toggle);
  send(event::alternator1_toggle);
  send(event::alternator2_toggle);
  send(event::alternator3_toggle);
  request(toggle_click_sound_request);
  return 0;
}

}  // namespace

constinit Gauge<15, 3> masterbat{
    Face{.name = "Masterbat", .width_mm = 174, .background = 20},
    {
        icon(2130, {39, 78}, 2, mirrors<token::battery, aircraft.dc_power_on>),
        icon(2130, {111, 73}, 2, shows<aircraft.ext_power_switch>),
        lamp(30, {145, 80}, external_power_light, 3),
        icon(2140, {68, 80}, 2, shows<aircraft.battery_panel_button_on>),
        lamp(40, {12, 43}, lit_at<aircraft.dc_power_on>),
        lamp(50, {98, 43}, apu_feeds_buses),
        lamp(60, {54, 8}, lit_at<aircraft.apu_gen_switch>),
    },
    {
        click({36, 76, 22, 46}, press_battery),
        click({106, 70, 22, 46}, toggles<aircraft.ext_power_switch>),
        click({66, 78, 30, 30}, pushes<aircraft.battery_panel_button_on>),
    },
};

}  // namespace tarnvale
