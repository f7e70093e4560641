/// Main anti-ice panel (overhead): the wing anti-ice switches, and around them a lever, four valve
/// knobs, two guarded switches and six lights that shine only when tested.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/guards.h"
#include "module/holds.h"

namespace tarnvale {
namespace {

constinit u32 lever;
constinit Guarded left, right;
constinit u32 knob_upper_left, knob_upper_right, knob_lower_left, knob_lower_right;

constinit HoldClock test_clock;

/// On each side of the panel the top light, and at the bottom an upper and a lower one.
constinit u32 testing_left_top, testing_left_upper, testing_left_lower;
constinit u32 testing_right_top, testing_right_upper, testing_right_lower;

constinit Body body{
    aimain,
    {
        icon("Standby 2 guard", bitmap::red_guard, {109, 66}, guard_image<&right>),
        icon("Standby 2 switch", bitmap::four_way_guarded_switch, {109, 66}, guarded_image<&right>),
        icon("Standby 1 guard", bitmap::red_guard, {53, 66}, guard_image<&left>),
        icon("Standby 1 switch", bitmap::four_way_guarded_switch, {53, 66}, guarded_image<&left>),
        lamp("Right lower overheat light", bitmap::round_light, {151, 202},
             test_light<&test_clock, &testing_right_lower>),
        lamp("Right upper overheat light", bitmap::round_light, {153, 169},
             test_light<&test_clock, &testing_right_upper>),
        lamp("Left lower overheat light", bitmap::round_light, {1, 196},
             test_light<&test_clock, &testing_left_lower>),
        lamp("Left upper overheat light", bitmap::round_light, {2, 164},
             test_light<&test_clock, &testing_left_upper>),
        lamp("Right valve light", bitmap::round_light, {161, 39},
             test_light<&test_clock, &testing_right_top>),
        lamp("Left valve light", bitmap::round_light, {6, 33},
             test_light<&test_clock, &testing_left_top>),
        icon("Duct 2 knob", bitmap::flow_knob, {115, 196}, shows<&knob_lower_right>),
        icon("Duct 1 knob", bitmap::flow_knob, {38, 193}, shows<&knob_lower_left>),
        icon("Shut-off valve 2 knob", bitmap::flow_knob, {133, 11}, shows<&knob_upper_right>),
        icon("Shut-off valve 1 knob", bitmap::flow_knob, {36, 8}, shows<&knob_upper_left>),
        icon("Right wing anti-ice switch", 1210, {109, 142}, shows<&Aircraft::wing_antiice_right>),
        icon("Left wing anti-ice switch", 1210, {64, 142}, shows<&Aircraft::wing_antiice_left>),
        icon("Tail anti-ice lever", bitmap::three_way_lever, {92, 10}, shows<&lever>),
    },
    {
        click("Tail anti-ice lever up", {85, 5, 25, 25}, lever_up<&lever>),
        click("Tail anti-ice lever down", {85, 31, 25, 25}, lever_down<&lever>),
        click("Shut-off valve 1 knob", {34, 6, 30, 30}, pushes<&knob_upper_left>),
        click("Shut-off valve 2 knob", {131, 9, 30, 30}, pushes<&knob_upper_right>),
        click("Duct 1 knob", {36, 191, 30, 30}, pushes<&knob_lower_left>),
        click("Duct 2 knob", {113, 194, 30, 30}, pushes<&knob_lower_right>),
        click("Left wing anti-ice switch", {58, 140, 23, 46}, toggles<&Aircraft::wing_antiice_left>),
        click("Right wing anti-ice switch", {103, 140, 23, 46}, toggles<&Aircraft::wing_antiice_right>),
        click("Standby 1 guard", {53, 66, 27, 20}, moves_guard<&left>),
        click("Standby 2 guard", {109, 66, 27, 20}, moves_guard<&right>),
        click("Standby 1 switch", {53, 88, 27, 40}, works_guarded<&left, 3>),
        click("Standby 2 switch", {109, 88, 27, 40}, works_guarded<&right, 3>),
        click("Left valve light test", {6, 34, 23, 27}, tests<&test_clock, &testing_left_top>),
        click("Right valve light test", {164, 40, 22, 24}, tests<&test_clock, &testing_right_top>),
        click("Left upper overheat light test", {2, 165, 25, 25},
              tests<&test_clock, &testing_left_upper>),
        click("Left lower overheat light test", {2, 198, 25, 25},
              tests<&test_clock, &testing_left_lower>),
        click("Right upper overheat light test", {153, 170, 25, 25},
              tests<&test_clock, &testing_right_upper>),
        click("Right lower overheat light test", {152, 203, 25, 25},
              tests<&test_clock, &testing_right_lower>),
    },
};

}  // namespace

constinit Gauge aimain{{.name = "Aimain", .width_mm = 189, .background = 1190}, body};

}  // namespace tarnvale
