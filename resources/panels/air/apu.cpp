/// The control panel of the auxiliary power unit.
#include "resources/art.h"

namespace artwork::panels::apu {

constexpr Item items[] = {
    Screw{{8, -8}, 12, 3.4},
    Screw{{-8, 8}, 57, 3.4},
    Legend{at("generator_switch", 0, -27).level_with("master_switch"), "GEN"},
    right_of("generator_switch", {.up = "ON", .centre = "OFF", .down = "TEST"}),
    above("master_switch", "MASTER", {0, -1}),
    above("bleed_switch", "BLEED", {0, -1}),
    words_between("master_switch", "bleed_switch"),
    below("start_button", "START", {0, -2}),
    below("test_light", "TEST"),
    below("low_speed_light", "LO SPD"),
    Legend{at("armed_light", 0, -27).level_with("bleed_switch"), "ARMED"},
    heading({82, 8}, "AUX POWER UNIT"),
};

constexpr Art art[] = {
    plate(112, items),
    round_light_art("start_button", {18, 18}, {.colour = lens::green, .radius = 7.6, .centre = 9}),
};

constinit Unit unit{"Apu", art};

}  // namespace artwork::panels::apu
