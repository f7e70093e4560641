/// Autopilot engage panel (glareshield): five lit buttons, and lamps of the two trims.
#include "module/autopilot_modes.h"
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

bool coupled(u32 mode) { return aircraft.ap_master_on == 1 && aircraft.ap_mode_selector == mode; }

/// A press engages it where it can be engaged; any other press lets it go.
void engage(u32& flag, bool possible, u32 on_event, u32 off_event) {
  flag = flag == 0 && possible;
  send(flag == 1 ? on_event : off_event);
}

/// The autothrottle does not go without its speed hold.
void press_autothrottle() {
  flip(aircraft.apset_button_a_on);
  if (aircraft.apset_button_a_on == 0) {
    aircraft.apset_button_b_on = 0;
    send(event::airspeed_hold_off);
  }
  send_and_click<click_sound_request, event::autothrottle_arm_toggle>();
}

void press_airspeed_hold() {
  engage(aircraft.apset_button_b_on, aircraft.apset_button_a_on == 1, event::airspeed_hold_on,
         event::airspeed_hold_off);
  request(click_sound_request);
}

void press_approach() {
  engage(aircraft.ap_sel3_arm_on, coupled(autopilot_mode::localizer), event::approach_arm_on,
         event::approach_arm_off);
  request(click_sound_request);
}

void press_heading_hold() {
  engage(aircraft.ap_sel2_hold_on, coupled(autopilot_mode::heading), event::heading_hold_on,
         event::heading_hold_off);
  request(click_sound_request);
}

/// Shines too while the category II panel tests the speed.
f64 airspeed_hold(Element*) {
  return aircraft.cat2_speed_test_active == 1 ? 1 : aircraft.apset_button_b_on;
}

f64 approach_armed(Element*) {
  return aircraft.ap_mode_selector == autopilot_mode::localizer ? aircraft.ap_sel3_arm_on : 0;
}

constinit Body body{
    apset,
    {
        lamp("Mach trim lamp", 14430, {89, 62}, lit_at<&Aircraft::apcon_switch_a_on>),
        lamp("Airspeed hold button", 14420, {61, 62}, airspeed_hold),
        lamp("Heading hold button", 14410, {34, 62},
             mirrors<token::heading_hold, &Aircraft::ap_sel2_hold_on>),
        lamp("Stabiliser trim lamp", 14390, {7, 62}, lit_at<&Aircraft::apcon_switch_b_on>),
        lamp("Approach button", 14380, {76, 15}, approach_armed),
        lamp("Autopilot master button", 14370, {48, 15},
             mirrors<token::autopilot, &Aircraft::ap_master_on>),
        lamp("Autothrottle button", 14360, {20, 15}, shows<&Aircraft::apset_button_a_on>),
    },
    {
        click("Autothrottle button", {18, 12, 26, 26}, does<press_autothrottle>),
        click("Autopilot master button", {46, 12, 26, 26},
              pushes<&Aircraft::ap_master_on, event::autopilot_toggle>),
        click("Approach button", {74, 12, 26, 26}, does<press_approach>),
        click("Heading hold button", {32, 59, 26, 26}, does<press_heading_hold>),
        click("Airspeed hold button", {60, 59, 26, 26}, does<press_airspeed_hold>),
    },
};

}  // namespace

constinit Gauge apset{{.name = "Apset", .width_mm = 120, .background = 14350}, body};

}  // namespace tarnvale
