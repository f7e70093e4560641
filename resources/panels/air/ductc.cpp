/// Duct temperatures, left and right.
#include "resources/art.h"

namespace artwork::panels::ductc {

constexpr Print celsius[] = {
    Band{15, 40, palette::range_green}, Band{55, 60, palette::range_red}, Marks{0, 60, 10, 5, 1.4},
    Marks{0, 60, 2, 2.8, 0.7},          Figures{{{0, -18}, 20, 40, 60}},
};

constexpr Dial temperature(std::string_view needle, std::string_view duct) {
  return {.radius = 32.5,
          .scales = {{.needle = needle, .print = celsius}},
          .words = {{duct, {0, 12.5}, 7.5}, {"\u00b0C", {0, 20.5}}}};
}

constexpr Item items[] = {
    Screw{{79, 8}, 25},
    Screw{{79, -8}, 70},
    temperature("left_duct_temperature", "DUCT 1"),
    temperature("right_duct_temperature", "DUCT 2"),
};

constexpr Art art[] = {
    plate(71, items),
    needle_art("left_duct_temperature", {.length = 24, .tail = 7, .half_width = 1.6}),
};

constinit Unit unit{"Ductc", art};

}  // namespace artwork::panels::ductc
