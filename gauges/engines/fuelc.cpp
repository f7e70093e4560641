/// Centre tank quantity (main panel), with a switch that tests the dial by driving it to mid-scale.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/holds.h"
#include "module/needles.h"

namespace tarnvale {
namespace {

constexpr i32 full_tank = 830;
constexpr HoldTimes dial_test{.seconds = 5, .margin = 5};

constinit HoldClock test_clock;
constinit u32 testing;

f64 quantity(Element* needle) {
  constexpr f64 mid_scale = full_tank / 2.0;
  return testing != 0 ? mid_scale : shows_within<0, full_tank>(needle);
}

void press_test() { start_hold(test_clock, testing, dial_test); }

constexpr Scale<2> scale{{{23, 62}, 0}, {{59, 50}, full_tank}};

constinit Body body{
    fuelc,
    {
        lighting_overlay(12390),
        needle("Centre tank quantity", 12350, {34, 33}, {3, 2}, scale, quantity)
            .from(token::centre_tank_quantity)
            .fails_with(failure::fuel_quantity),
        icon("Quantity test switch", 12380, {92, 4}, held_lit<&test_clock, &testing, dial_test>),
    },
    {
        click("Quantity test switch", {88, 5, 22, 38}, does<press_test>),
    },
};

}  // namespace

constinit Gauge fuelc{{.name = "Fuelc", .width_mm = 111, .background = 12370}, body};

}  // namespace tarnvale
