/// Warning and decision height panel (pedestal): a button each for the stall warning and the ground
/// proximity warning, with the switch that makes them testable; the decision height with its light.
#include "gauges/warnings/warning.h"
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/decision_height.h"
#include "module/holds.h"

namespace tarnvale {
namespace {

constinit u32 test_switch;

/// Both tests share it: starting one prolongs the other.
constinit HoldClock test_clock;

/// The left button of the mouse switches a warning, which the host hears of by `events`; the right one
/// tests it.
template <Warning warning, u32... events>
void press(u32 mouse_flags) {
  if (is_left(mouse_flags)) {
    flip(aircraft.*warning.switched_on);
    (send(events), ...);
  } else if (test_switch == 1) {
    start_hold(test_clock, aircraft.*warning.tested);
    request(warning.sound);
  }
  request(click_sound_request);
}

template <Warning warning>
f64 button(Element*) {
  const bool tested = hold_goes_on(test_clock, aircraft.*warning.tested);
  return tested && test_switch == 1 ? 1 : aircraft.*warning.switched_on;
}

/// Lies over a button that can be tested, until it is.
template <Warning warning>
f64 test_cover(Element*) {
  return test_switch == 1 && aircraft.*warning.tested == 0 ? 0 : -1;
}

void press_test_switch() { flip(test_switch); }

/// While the radio altimeter is tested, what other panels know of the light is left alone.
f64 decision_height_light(Element*) {
  if (aircraft.radalt_test_active == 1) return 1;
  aircraft.dh_light_on = at_decision_height();
  return aircraft.dh_light_on;
}

/// The first hundred comes in past 90 feet, each of the others with its own.
f64 hundreds(Element*) {
  const u32 height = aircraft.dh_setting_ft_int;
  if (height <= 90) return 0;
  for (u32 image = 1; image <= 4; ++image) {
    if (height < 100 * (image + 1)) return image;
  }
  return 5;
}

f64 setting(Element*) { return aircraft.dh_setting_ft_int; }

constinit Body body{
    dhgpws,
    {
        lamp("Decision height light", 3040, {103, 16}, decision_height_light),
        icon("Decision height hundreds", {3030, 6}, {138, 29}, hundreds),
        // Turned by the knob, without any power.
        drum("Decision height tens", 3050, {148, 29}, {0, highest_decision_height}, setting)
            .behind(3051)
            .failing(failure::never),
        lamp("Ground proximity button", bitmap::warning_button, {38, 18}, button<ground_proximity>),
        lamp("Ground proximity test cover", {3410, 1}, {38, 18}, test_cover<ground_proximity>),
        lamp("Stall warning button", bitmap::warning_button, {10, 18}, button<stall_warning>),
        lamp("Stall warning test cover", {3410, 1}, {10, 18}, test_cover<stall_warning>),
        lamp("Test lamp", bitmap::test_lamp, {28, 67}, lit_at<&test_switch>),
    },
    {
        click("Stall warning button", {9, 17, 26, 26}, does<press<stall_warning>>, Press::either),
        click("Ground proximity button", {37, 17, 26, 26},
              does<press<ground_proximity, event::ground_proximity_switched>>, Press::either),
        click("Test switch", {23, 63, 20, 20}, does<press_test_switch>),
        decrease("Decision height knob down", {90, 44, 16, 24}, does<lower_decision_height>),
        increase("Decision height knob up", {107, 44, 16, 24}, does<raise_decision_height>),
    },
};

}  // namespace

constinit Gauge dhgpws{{.name = "Dhgpws", .width_mm = 185, .background = 3010}, body};

}  // namespace tarnvale
