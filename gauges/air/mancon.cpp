/// Manual pressurisation control (overhead): one push button with its light, which a right click tests
/// while the control is on.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/holds.h"

namespace tarnvale {
namespace {

constinit u32 manual_on;
constinit HoldClock test_clock;
constinit u32 testing;

/// 0 dark, 1 lit, 2 tested.
f64 button_light(Element*) {
  const bool tested = hold_goes_on(test_clock, testing);
  if (manual_on == 0) return 0;
  return tested ? 2 : 1;
}

void press_button(u32 buttons) {
  if (is_left(buttons)) return push<&manual_on>();
  request(click_sound_request);
  test<&test_clock, &testing>();
}

constinit Body body{
    mancon,
    {
        lamp("Manual control button", {1440, 3}, {13, 13}, button_light),
    },
    {
        click("Manual control button", {13, 13, 38, 38}, does<press_button>, Press::either),
    },
};

}  // namespace

constinit Gauge mancon{{.name = "Mancon", .width_mm = 56, .background = 1430}, body};

}  // namespace tarnvale
