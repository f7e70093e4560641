/// Light-switch panel with the fire test (pedestal): landing, recognition and navigation lights.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/holds.h"
#include "module/numbers.h"

namespace tarnvale {
namespace {

/// Starts the fire test with DC power; a second press, or one without power, ends it.
void press_fire_test() {
  SharedHoldClock clock{aircraft.fire_test_deadline, aircraft.fire_test_clock};
  if (aircraft.dc_power_on == 1 && aircraft.fire_test_active == 0) {
    start_hold(clock, aircraft.fire_test_active);
  } else {
    aircraft.fire_test_active = 0;
  }
}

constinit Body body{
    lightsp,
    {
        icon("Navigation lights switch", bitmap::light_lever, {157, 5}).from(token::navigation_lights),
        icon("Recognition lights switch", bitmap::light_lever, {131, 5})
            .from(token::recognition_lights),
        icon("Right landing light lever", bitmap::landing_light_lever, {57, 12})
            .from(token::landing_lights),
        icon("Middle landing light lever", bitmap::landing_light_lever, {33, 12})
            .from(token::landing_lights),
        icon("Left landing light lever", bitmap::landing_light_lever, {9, 12})
            .from(token::landing_lights),
    },
    {
        click("Landing lights levers", {1, 9, 80, 28}, switch_sends<event::landing_lights_toggle>),
        click("Recognition lights switch", {127, 2, 20, 40},
              switch_sends<event::recognition_lights_toggle>),
        click("Navigation lights switch", {154, 2, 20, 40},
              switch_sends<event::navigation_lights_toggle>),
        click("Fire test button", {88, 21, 23, 23}, does<press_fire_test>),
    },
};

}  // namespace

constinit Gauge lightsp{{.name = "Lightsp", .width_mm = 178, .background = 4280}, body};

}  // namespace tarnvale
