/// Manual pressurisation control (overhead): one push button with its light, which a right click tests
/// while the control is on.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit u32 manual_on;
constinit TestClock test_clock;
constinit u32 testing;

/// 0 dark, 1 lit, 2 tested.
f64 button_light(Element*) {
  const bool tested = test_goes_on(test_clock, testing);
  if (manual_on == 0) return 0;
  return tested ? 2 : 1;
}

i32 press_button(PanelPoint point, u32 flags) {
  if (is_left(flags)) return pushes<manual_on>(point, flags);
  request(click_sound_request);
  return tests<test_clock, testing>(point, flags);
}

}  // namespace

constinit Gauge<3, 1> mancon{
    Face{.name = "Mancon", .width_mm = 56, .background = 1430},
    {
        lamp(1440, {13, 13}, button_light, 3),
    },
    {
        click({13, 13, 38, 38}, press_button, Press::either),
    },
};

}  // namespace tarnvale
