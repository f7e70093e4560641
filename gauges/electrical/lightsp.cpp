/// Light-switch panel with the fire test (pedestal): landing, recognition and navigation lights.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/host.h"
#include "module/numbers.h"

namespace tarnvale {
namespace {

/// Starts the fire test with DC power; a second press, or one without power, ends it.
i32 press_fire_test(PanelPoint, u32) {
  if (aircraft.dc_power_on != 1 || aircraft.fire_test_active != 0) {
    aircraft.fire_test_active = 0;
    return 0;
  }
  aircraft.fire_test_active = 1;
  aircraft.fire_test_clock = whole_u32(read(token::clock_seconds));
  aircraft.fire_test_deadline = aircraft.fire_test_clock + 2;
  return 0;
}

}  // namespace

constinit Gauge<11, 4> lightsp{
    Face{.name = "Lightsp", .width_mm = 178, .background = 4280},
    {
        icon(4260, {157, 5}, 2, nullptr, {.source = token::navigation_lights}),
        icon(4260, {131, 5}, 2, nullptr, {.source = token::recognition_lights}),
        icon(4310, {57, 12}, 2, nullptr, {.source = token::landing_lights}),
        icon(4310, {33, 12}, 2, nullptr, {.source = token::landing_lights}),
        icon(4310, {9, 12}, 2, nullptr, {.source = token::landing_lights}),
    },
    {
        click({1, 9, 80, 28}, switch_sends<event::landing_lights_toggle>),
        click({127, 2, 20, 40}, switch_sends<event::recognition_lights_toggle>),
        click({154, 2, 20, 40}, switch_sends<event::navigation_lights_toggle>),
        click({88, 21, 23, 23}, press_fire_test),
    },
};

}  // namespace tarnvale
