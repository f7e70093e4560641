/// Radio altimeter (main panel): height over the ground with the decision-height bug, its light, and a
/// test. It owns the decision height that other panels show.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/decision_height.h"
#include "module/holds.h"

namespace tarnvale {
namespace {

constinit HoldClock test_clock;

void press_test() {
  start_hold(test_clock, aircraft.radalt_test_active);
  request(radalt_sound_request);
}

/// At and below the decision height, and for a test, which leaves what other panels know of the light
/// alone.
f64 decision_height_light(Element*) {
  constexpr f64 lit = 0, dark = -1;
  const bool reached = at_decision_height();
  if (!reached && aircraft.radalt_test_active == 1) return lit;
  aircraft.dh_light_on = reached;
  return reached ? lit : dark;
}

f64 show_setting(Element*) { return aircraft.dh_setting_ft_int; }

/// The test drives the needle to 100 feet.
f64 show_height(Element* needle) {
  constexpr f64 test_reading = 100, full_scale = 2500;
  const bool tested = hold_goes_on(test_clock, aircraft.radalt_test_active);
  const f64 height = limited(needle->needle.source.value * feet_per_metre, 0, full_scale);
  return tested ? test_reading : height;
}

constexpr PanelPoint centre_of_dial{45, 44};
constexpr Scale<15> scale{{{44, 8}, 0},    {{56, 10}, 50},   {{66, 15}, 100}, {{74, 22}, 150},
                          {{80, 31}, 200}, {{82, 42}, 250},  {{81, 54}, 300}, {{76, 65}, 350},
                          {{69, 73}, 400}, {{57, 77}, 450},  {{46, 80}, 500}, {{13, 62}, 1000},
                          {{7, 39}, 1500}, {{13, 24}, 2000}, {{21, 16}, 2500}};
constexpr Scale<11> bug_scale{scale[0], scale[1], scale[2], scale[3], scale[4], scale[5],
                              scale[6], scale[7], scale[8], scale[9], scale[10]};

constinit Body body{
    radalt,
    {
        lighting_overlay(12450),
        lamp("Decision height light", {12440, 1}, {5, 10}, decision_height_light),
        needle("Decision height bug", 12430, centre_of_dial, {5, 2}, bug_scale, show_setting),
        needle("Radio altitude", 12420, centre_of_dial, {6, 5}, scale, show_height)
            .from(token::radio_altitude)
            .rate(1),
    },
    {
        click("Test button", {4, 72, 14, 14}, does<press_test>),
        decrease("Decision height knob down", {62, 72, 13, 20}, does<lower_decision_height>,
                 Press::left_held),
        increase("Decision height knob up", {76, 72, 13, 20}, does<raise_decision_height>,
                 Press::left_held),
    },
};

}  // namespace

constinit Gauge radalt{{.name = "Radalt", .width_mm = 90, .background = 12410}, body};

}  // namespace tarnvale
