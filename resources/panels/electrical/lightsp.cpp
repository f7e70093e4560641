/// Light switches with the fire test, on the pedestal.
#include "resources/art.h"

namespace artwork::panels::lightsp {

constexpr Item items[] = {
    Screw{{-5, 5}, 31, 2.2},
    Screw{{-5, -5}, 76, 2.2},
    Screw{{5, -5}, 12, 2.2},
    Legend{at("fire_test_button", 0, -19.5), "FIRE\nTEST"},
    // The fire test has no picture of its own.
    FixedButton{at("fire_test_button"), 9, palette::guard},
    Recess{"left_landing_light_lever", "right_landing_light_lever"},
    Legend{at("left_landing_light_lever", 0, -17), "L", 7},
    Legend{at("middle_landing_light_lever", 0, -17), "NOSE", 7},
    Legend{at("right_landing_light_lever", 0, -17), "R", 7},
    Legend{at("middle_landing_light_lever", 0, 21.5), "LANDING"},
    left_of("recognition_lights_switch", {.reach = 9}, 9),
    below("navigation_lights_switch", "NAV", {0, -1}),
    below("recognition_lights_switch", "RECG", {0, -1}),
};

constexpr Art art[] = {plate(54, items)};

constinit Unit unit{"Lightsp", art};

}  // namespace artwork::panels::lightsp
