/// Autopilot control panel (pedestal): master, yaw damper, channel, trims and the test; below them the
/// cabin door.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/holds.h"

namespace tarnvale {
namespace {

constinit u32 channel_2 = 0, yaw_damper_on = 0;

// ---- Test

constinit HoldClock test_clock;
constinit u32 channel_under_test = 0;  ///< 0 none, 1, 2

template <u32 channel>
void press_test() {
  start_hold(test_clock, channel_under_test);
  channel_under_test = channel;
  request(click_sound_request);
}

f64 show_test(Element*) {
  hold_goes_on(test_clock, channel_under_test);
  return channel_under_test;
}

constinit Body body{
    apcon,
    {
        icon("Test switch", {3390, 3}, {22, 23}, show_test),
        icon("Channel switch", 3360, {89, 34}, shows<&channel_2>),
        icon("Stabiliser trim switch", 3380, {176, 13}, shows<&Aircraft::apcon_switch_b_on>),
        icon("Mach trim switch", 3370, {139, 13}, shows<&Aircraft::apcon_switch_a_on>),
        icon("Yaw damper switch", bitmap::pump_switch, {170, 67}, shows<&yaw_damper_on>),
        icon("Autopilot master switch", bitmap::pump_switch, {126, 67},
             mirrors<token::autopilot, &Aircraft::ap_master_on>),
        icon("Door open light", 3350, {160, 127}, lit_at<&Aircraft::apcon_switch_c_on>)
            .failing(failure::dark),
        icon("Door switch", bitmap::pump_switch, {126, 120}, shows<&Aircraft::apcon_switch_c_on>),
    },
    {
        click("Door switch", {124, 118, 22, 30},
              toggles<&Aircraft::apcon_switch_c_on, event::cabin_door_toggle>),
        click("Autopilot master switch", {124, 65, 22, 30},
              toggles<&Aircraft::ap_master_on, event::autopilot_toggle>),
        click("Yaw damper switch", {168, 65, 22, 30},
              toggles<&yaw_damper_on, event::yaw_damper_toggle>),
        click("Mach trim switch", {133, 13, 20, 32}, toggles<&Aircraft::apcon_switch_a_on>),
        click("Stabiliser trim switch", {171, 13, 20, 32}, toggles<&Aircraft::apcon_switch_b_on>),
        click("Channel switch", {86, 31, 25, 35}, toggles<&channel_2>),
        click("Test switch 1", {15, 21, 30, 52}, does<press_test<1>>),
        click("Test switch 2", {46, 21, 30, 52}, does<press_test<2>>),
    },
};

}  // namespace

constinit Gauge apcon{{.name = "Apcon", .width_mm = 206, .background = 3340}, body};

}  // namespace tarnvale
