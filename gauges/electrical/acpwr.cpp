/// AC power panel (overhead): a guarded bus switch on each side with an indicator that latches when
/// the switch is thrown and can be pressed to test, two toggle switches and two push buttons.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

/// One side's guarded switch with its indicator. The latch stays after the guard has forced the
/// switch off, until the switch itself is worked again.
struct BusSwitch {
  Guarded control;
  u32 latched;
  u32 testing;
};

constinit BusSwitch left{};
constinit BusSwitch right{};
constinit TestClock test_clock;

template <BusSwitch& side>
i32 works_bus_switch(PanelPoint point, u32 flags) {
  works_guarded<side.control>(point, flags);
  side.latched = side.control.position;
  return 0;
}

/// Image 0 is the lit one.
template <BusSwitch& side>
f64 indicator(Element*) {
  const bool tested = test_goes_on(test_clock, side.testing);
  return tested || side.latched == 1 ? 0 : 1;
}

f64 apu_feeds_buses(Element*) { return aircraft.apu_gen_switch == 1 && aircraft.ext_power_switch == 0; }

}  // namespace

constinit Gauge<27, 10> acpwr{
    Face{.name = "Acpwr", .width_mm = 180, .background = 70},
    {
        lamp(110, {67, 49}, lit_at<aircraft.apu_gen_switch>),
        lamp(90, {110, 10}, apu_feeds_buses),
        lamp(80, {21, 10}, apu_feeds_buses),
        icon(2160, {142, 34}, 2, guard_image<right.control>),
        icon(2150, {142, 34}, 2, guarded_image<right.control>),
        icon(2160, {11, 36}, 2, guard_image<left.control>),
        icon(2150, {11, 36}, 2, guarded_image<left.control>),
        lamp(2110, {147, 118}, indicator<right>),
        lamp(2110, {13, 121}, indicator<left>),
        icon(2130, {107, 111}, 2, shows<aircraft.acpwr_switch_right_on>),
        icon(2130, {67, 111}, 2, shows<aircraft.acpwr_switch_left_on>),
        icon(2140, {123, 158}, 2, shows<aircraft.acpwr_button_right_on>),
        icon(2140, {40, 159}, 2, shows<aircraft.acpwr_button_left_on>),
    },
    {
        click({38, 157, 30, 30}, pushes<aircraft.acpwr_button_left_on>),
        click({121, 156, 30, 30}, pushes<aircraft.acpwr_button_right_on>),
        click({64, 110, 18, 43}, toggles<aircraft.acpwr_switch_left_on>),
        click({104, 110, 18, 43}, toggles<aircraft.acpwr_switch_right_on>),
        click({11, 60, 27, 40}, works_bus_switch<left>),
        click({11, 36, 27, 22}, moves_guard<left.control>),
        click({141, 58, 27, 40}, works_bus_switch<right>),
        click({141, 34, 27, 22}, moves_guard<right.control>),
        click({13, 122, 25, 25}, tests<test_clock, left.testing>),
        click({148, 119, 25, 25}, tests<test_clock, right.testing>),
    },
};

}  // namespace tarnvale
