/// Emergency light switch (overhead): four positions that go round, and three lamps that say which.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constexpr u32& position = aircraft.emergency_light_switch;

f64 at_1_or_3(Element*) { return position == 1 || position == 3; }
f64 at_0_or_2(Element*) { return position == 0 || position == 2; }

}  // namespace

constinit Gauge<9, 1> emerlight{
    Face{.name = "Emerlight", .width_mm = 64, .background = 1220},
    {
        icon(1230, {12, 9}, 4, shows<position>),
        lamp(1240, {12, 6}, lit_at<position, 2>),
        lamp(1250, {32, 24}, at_1_or_3),
        lamp(1260, {7, 61}, at_0_or_2),
    },
    {
        click({8, 8, 21, 43}, advances<position, 3>),
    },
};

}  // namespace tarnvale
