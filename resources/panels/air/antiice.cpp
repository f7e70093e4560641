/// Engine anti-ice: a knob for each engine, and the pressure lever.
#include "resources/art.h"

namespace artwork::panels::antiice {

constexpr Item items[] = {
    Screw{{-5.5, 5.5}, 31, 2.3},
    Screw{{5.5, -5.5}, 76, 2.3},
    left_of("pressure_lever", {.up = "HI 1", .down = "HI 2"}, 12),
    beginning(at("pressure_lever", 11), "NRM"),
    Legend{at("left_engine_anti_ice_knob", 1, -14.5), "ENG 1"},
    Legend{at("right_engine_anti_ice_knob", -1, -14.5), "ENG 2"},
    heading(middle(-10), "ANTI-ICE"),
};

// The bar lies in line while the valve is open, at every other position.
constexpr Art art[] = {
    plate(98, items),
    knob_art("left_engine_anti_ice_knob", {17, 40}, {-90, 0, 90, 180}, {.radius = 8.2, .seat = 1}),
};

constinit Unit unit{"Antiice", art};

}  // namespace artwork::panels::antiice
