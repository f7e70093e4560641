/// Main anti-ice panel (overhead): the wing anti-ice switches, and around them a lever, four valve
/// knobs, two guarded switches and six lights that shine only when tested.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constinit u32 lever;
constinit Guarded left, right;
constinit u32 knob_upper_left, knob_upper_right, knob_lower_left, knob_lower_right;

constinit TestClock test_clock;

/// On each side of the panel the top light, and at the bottom an upper and a lower one.
constinit u32 testing_left_top, testing_left_upper, testing_left_lower;
constinit u32 testing_right_top, testing_right_upper, testing_right_lower;

}  // namespace

constinit Gauge<35, 18> aimain{
    Face{.name = "Aimain", .width_mm = 189, .background = 1190},
    {
        icon(2160, {109, 66}, 2, guard_image<right>),
        icon(2220, {109, 66}, 4, guarded_image<right>),
        icon(2160, {53, 66}, 2, guard_image<left>),
        icon(2220, {53, 66}, 4, guarded_image<left>),
        lamp(2110, {151, 202}, test_light<test_clock, testing_right_lower>),
        lamp(2110, {153, 169}, test_light<test_clock, testing_right_upper>),
        lamp(2110, {1, 196}, test_light<test_clock, testing_left_lower>),
        lamp(2110, {2, 164}, test_light<test_clock, testing_left_upper>),
        lamp(2110, {161, 39}, test_light<test_clock, testing_right_top>),
        lamp(2110, {6, 33}, test_light<test_clock, testing_left_top>),
        icon(2140, {115, 196}, 2, shows<knob_lower_right>),
        icon(2140, {38, 193}, 2, shows<knob_lower_left>),
        icon(2140, {133, 11}, 2, shows<knob_upper_right>),
        icon(2140, {36, 8}, 2, shows<knob_upper_left>),
        icon(1210, {109, 142}, 2, shows<aircraft.wing_antiice_right>),
        icon(1210, {64, 142}, 2, shows<aircraft.wing_antiice_left>),
        icon(2080, {92, 10}, 3, shows<lever>),
    },
    {
        click({85, 5, 25, 25}, lever_up<lever>),
        click({85, 31, 25, 25}, lever_down<lever>),
        click({34, 6, 30, 30}, pushes<knob_upper_left>),
        click({131, 9, 30, 30}, pushes<knob_upper_right>),
        click({36, 191, 30, 30}, pushes<knob_lower_left>),
        click({113, 194, 30, 30}, pushes<knob_lower_right>),
        click({58, 140, 23, 46}, toggles<aircraft.wing_antiice_left>),
        click({103, 140, 23, 46}, toggles<aircraft.wing_antiice_right>),
        click({53, 66, 27, 20}, moves_guard<left>),
        click({109, 66, 27, 20}, moves_guard<right>),
        click({53, 88, 27, 40}, works_guarded<left, 3>),
        click({109, 88, 27, 40}, works_guarded<right, 3>),
        click({6, 34, 23, 27}, tests<test_clock, testing_left_top>),
        click({164, 40, 22, 24}, tests<test_clock, testing_right_top>),
        click({2, 165, 25, 25}, tests<test_clock, testing_left_upper>),
        click({2, 198, 25, 25}, tests<test_clock, testing_left_lower>),
        click({153, 170, 25, 25}, tests<test_clock, testing_right_upper>),
        click({152, 203, 25, 25}, tests<test_clock, testing_right_lower>),
    },
};

}  // namespace tarnvale
