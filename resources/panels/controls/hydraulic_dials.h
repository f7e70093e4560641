/// The plate of a hydraulic system's two dials.
#pragma once

#include <array>

#include "resources/panels/controls/accumulator_dial.h"

namespace artwork::panels {

inline constexpr std::string_view hydraulic_pressure = "hydraulic_pressure",
                                  hydraulic_quantity = "hydraulic_quantity";

/// Percent of a full reservoir. A warm one reads a little more.
inline constexpr Print quantity_percent[] = {
    Band{0, 30, palette::range_amber}, Band{70, 100, palette::range_green},
    Marks{0, 100, 25, 5.2, 1.5},       Marks{0, 100, 5, 2.6, 0.7},
    Marks{100, 120, 10, 3.6, 0.9},     Figures{{{0, 20}, 50, 100}, 6.4, 7.5},
};

constexpr std::array<Item, 6> hydraulic_items(std::string_view system) {
  return {
      Legend{between(hydraulic_quantity, hydraulic_pressure, 0, -28), "HYD"},
      Screw{between(hydraulic_quantity, hydraulic_pressure, 0, -16), 30, 3},
      Screw{between(hydraulic_quantity, hydraulic_pressure, 0, 16), 74, 3},
      Legend{between(hydraulic_quantity, hydraulic_pressure, 0, 30), system, 7},
      Dial{.radius = 32.5,
           .scales = {{.needle = hydraulic_quantity, .print = quantity_percent, .per = 163.84}},
           .words = {{"QTY", {0, 13.5}, 6.5}, {"%", {0, 21}, 6.5}},
           .boss = 4.2,
           .bezel = 3},
      thousands_dial(hydraulic_pressure, "PRESS", 3625000),
  };
}

}  // namespace artwork::panels
