/// Windshield heat (overhead): a switch for both panes, a four-position switch for each, and two green
/// lights that shine only when tested.
#include "module/catalogue.h"
#include "module/controls.h"
#include "module/holds.h"

namespace tarnvale {
namespace {

constinit HoldClock test_clock;
constinit u32 testing_left, testing_right;

constinit Body body{
    windshield,
    {
        icon("Right windshield switch", {2190, 4}, {68, 43},
             shows<&Aircraft::windshield_right_selector>),
        icon("Left windshield switch", {2190, 4}, {23, 43}, shows<&Aircraft::windshield_left_selector>),
        lamp("Right windshield light", 1020, {68, 5}, held_lit<&test_clock, &testing_right>),
        lamp("Left windshield light", 1020, {5, 6}, held_lit<&test_clock, &testing_left>),
        icon("Windshield heat knob", 1010, {29, 15}, shows<&Aircraft::windshield_switch>),
    },
    {
        click("Windshield heat knob", {35, 8, 28, 28}, toggles<&Aircraft::windshield_switch>),
        click("Left windshield switch", {20, 41, 18, 46},
              advances<&Aircraft::windshield_left_selector, 3>),
        click("Right windshield switch", {65, 41, 18, 46},
              advances<&Aircraft::windshield_right_selector, 3>),
        click("Left windshield light test", {5, 6, 23, 23}, tests<&test_clock, &testing_left>),
        click("Right windshield light test", {69, 6, 23, 23}, tests<&test_clock, &testing_right>),
    },
};

}  // namespace

constinit Gauge windshield{{.name = "Windshield", .width_mm = 95, .background = 490}, body};

}  // namespace tarnvale
