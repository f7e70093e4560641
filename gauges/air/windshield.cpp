/// Windshield heat (overhead): a switch for both panes, a four-position switch for each, and two green
/// lights that shine only when tested.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit TestClock test_clock;
constinit u32 testing_left, testing_right;

template <u32& tested>
f64 green_light(Element*) {
  return test_goes_on(test_clock, tested);
}

}  // namespace

constinit Gauge<11, 5> windshield{
    Face{.name = "Windshield", .width_mm = 95, .background = 490},
    {
        icon(2190, {68, 43}, 4, shows<aircraft.windshield_right_selector>),
        icon(2190, {23, 43}, 4, shows<aircraft.windshield_left_selector>),
        lamp(1020, {68, 5}, green_light<testing_right>),
        lamp(1020, {5, 6}, green_light<testing_left>),
        icon(1010, {29, 15}, 2, shows<aircraft.windshield_switch>),
    },
    {
        click({35, 8, 28, 28}, toggles<aircraft.windshield_switch>),
        click({20, 41, 18, 46}, advances<aircraft.windshield_left_selector, 3>),
        click({65, 41, 18, 46}, advances<aircraft.windshield_right_selector, 3>),
        click({5, 6, 23, 23}, tests<test_clock, testing_left>),
        click({69, 6, 23, 23}, tests<test_clock, testing_right>),
    },
};

}  // namespace tarnvale
