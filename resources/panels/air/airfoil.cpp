/// Wing anti-ice pressures, and the switch that raises them.
#include "resources/art.h"

namespace artwork::panels::airfoil {

constexpr Print psi[] = {
    Band{45, 65, palette::range_green}, Band{105, 120, palette::range_red}, Marks{0, 120, 10, 5, 1.3},
    Marks{0, 120, 5, 2.8, 0.7},         Figures{{20, 40, 60, 80, 100}},
};

constexpr Dial pressure(std::string_view needle, std::string_view wing) {
  return {.radius = 34,
          .scales = {{.needle = needle, .print = psi, .per = 10}},
          .words = {{wing, {3, 21}, 6.5}, {"PSI", {3, 12.5}}}};
}

constexpr Item items[] = {
    Legend{{82.5, 12}, "ANTI\nICE", 7},
    Screw{{-8, -8}, 70},
    pressure("left_wing_anti_ice_pressure", "WING 1"),
    pressure("right_wing_anti_ice_pressure", "WING 2"),
    ending(at("high_pressure_switch", -22), "OFF"),
    beginning(at("high_pressure_switch", 22), "ON"),
    Line{at("high_pressure_switch", 40), at("high_pressure_switch", 53)},
    beginning(at("high_pressure_switch", 57), "HI SUPPLY"),
};

constexpr Art art[] = {
    plate(104, items),
    needle_art("left_wing_anti_ice_pressure", {.length = 25, .tail = 7, .half_width = 1.7, .cap = 4.6}),
    lever_art("high_pressure_switch", {40, 14}, {Throw::down, Throw::up},
              {.ball = 3.2, .sideways = true, .polish = 16}),
};

constinit Unit unit{"Airfoil", art};

}  // namespace artwork::panels::airfoil
