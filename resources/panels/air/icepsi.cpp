/// Engine anti-ice pressures. The words stand clear of the needles at rest.
#include "resources/art.h"

namespace artwork::panels::icepsi {

constexpr Print psi[] = {
    Band{45, 60, palette::range_green},
    Band{90, 100, palette::range_red},
    Marks{0, 100, 10, 5, 1.3},
    Marks{0, 100, 5, 2.8, 0.7},
    Figures{{20, 40, 60}},
};

constexpr Dial pressure(std::string_view needle, std::string_view engine) {
  return {.radius = 31.5,
          .scales = {{.needle = needle, .print = psi, .per = 10}},
          .words = {{engine, {1.3, 20}, 6}, {"PSI", {2, 12}}}};
}

constexpr Item items[] = {
    Legend{{75.5, 11.5}, "ANTI\nICE", 7},
    Screw{{75.5, -8}, 70},
    pressure("left_engine_anti_ice_pressure", "ENG 1"),
    pressure("right_engine_anti_ice_pressure", "ENG 2"),
};

constexpr Art art[] = {
    plate(72, items),
    needle_art("left_engine_anti_ice_pressure", {.length = 23, .tail = 5, .half_width = 1.6, .cap = 4}),
};

constinit Unit unit{"Icepsi", art};

}  // namespace artwork::panels::icepsi
