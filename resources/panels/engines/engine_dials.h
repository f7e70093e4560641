/// What the dials of both engines have in common.
#pragma once

#include "resources/art.h"

namespace artwork::panels {

/// Marks and limits of both speeds. From 100 to 120 percent the scale is squeezed into its last tenth.
inline constexpr Print engine_speed[] = {
    Band{60, 97, palette::range_green},
    Band{97, 100, palette::range_amber},
    Band{100, 120, palette::range_red},
    Marks{0, 100, 20, 5.2, 1.5},
    Marks{0, 100, 10, 4.2, 1.1},
    Marks{0, 100, 2, 2.4, 0.6},
    Limit{100},
    Figures{{{0, 20}, 20, 40, 60, 80, {100, -20}}, 6.2, 7.5},
};

inline constexpr Print pressure_ratio[] = {
    Marks{1, 1.4, 0.1, 2.6, 0.9},
    Marks{1, 1.4, 0.05, 1.6, 0.5},
    Figures{{{1, 40}, {1.2, 0, ".2"}, {1.4, -35, ".4"}}, 2.8, 6.2},
};

constexpr Dial engine_speed_dial(std::string_view needle) {
  return {.radius = 33,
          .scales = {{.needle = needle, .print = engine_speed, .rim = 28.4}},
          .boss = 4.2,
          .bezel = 3};
}

/// The pointer counts twice what the ratio is above 1.
constexpr Dial pressure_ratio_dial(std::string_view needle) {
  return {.radius = 13.2,
          .scales = {{.needle = needle, .print = pressure_ratio, .per = 2, .zero = 0.5, .rim = 11.3}},
          .boss = 1.5,
          .bezel = 1.3};
}

}  // namespace artwork::panels
