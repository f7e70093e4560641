/// Dials of pressures up to 4,000 psi.
#pragma once

#include "resources/art.h"

namespace artwork::panels {

/// Thousands of psi.
inline constexpr Print thousands_of_psi[] = {
    Band{2.8, 3.4, palette::range_green},
    Marks{0, 4, 1, 5.2, 1.5},
    Marks{0, 4, 0.5, 4, 1},
    Marks{0, 4, 0.1, 2.4, 0.6},
    Figures{{{0, 20}, 1, 2, 3, {4, -20}}, 6.4, 8},
};

/// `per`: the needle's value for 1,000 psi.
constexpr Dial thousands_dial(std::string_view needle, std::string_view word, double per = 1000,
                              double radius = 32.5) {
  return {.radius = radius,
          .scales = {{.needle = needle, .print = thousands_of_psi, .per = per}},
          .words = {{word, {0, 13.5}, 6.5}, {"PSI\u00d71000", {0, 20.5}, 5}},
          .boss = 4.2,
          .bezel = 3};
}

}  // namespace artwork::panels
