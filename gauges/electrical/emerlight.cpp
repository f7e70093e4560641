/// Emergency light switch (overhead): four positions that go round, and three lamps that say which.
#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {
namespace {

constexpr auto position = &Aircraft::emergency_light_switch;

f64 at_odd_position(Element*) { return aircraft.emergency_light_switch % 2 == 1; }
f64 at_even_position(Element*) { return aircraft.emergency_light_switch % 2 == 0; }

constinit Body body{
    emerlight,
    {
        icon("Emergency lights switch", {1230, 4}, {12, 9}, shows<position>),
        lamp("Emergency lights on bar", 1240, {12, 6}, lit_at<position, 2>),
        lamp("Armed lamp", 1250, {32, 24}, at_odd_position),
        lamp("Not armed lamp", 1260, {7, 61}, at_even_position),
    },
    {
        click("Emergency lights switch", {8, 8, 21, 43}, advances<position, 3>),
    },
};

}  // namespace

constinit Gauge emerlight{{.name = "Emerlight", .width_mm = 64, .background = 1220}, body};

}  // namespace tarnvale
