/// One engine's column: a placard of its limits over three dials.
#pragma once

#include "resources/art.h"
#include "resources/kit/legend.h"
#include "resources/kit/metal.h"
#include "resources/rows/board.h"

namespace artwork::panels {

inline constexpr Print oil_pressure_psi[] = {
    Band{0, 25, palette::range_red},
    Band{25, 40, palette::range_amber},
    Band{40, 85, palette::range_green},
    Marks{0, 100, 20, 5.2, 1.5},
    Marks{0, 100, 10, 3.8, 1},
    Marks{0, 100, 5, 2.4, 0.6},
    Limit{25},
    Figures{{0, 20, 40, 60, 80, 100}, 6.4, 8},
};
inline constexpr Print oil_celsius[] = {
    Band{-40, 30, palette::range_amber},     Band{30, 105, palette::range_green},
    Band{105, 120, palette::range_amber},    Marks{-40, 140, 20, 5.2, 1.5},
    Marks{-40, 140, 10, 2.8, 0.7},           Limit{120},
    Figures{{0, 40, 80, {120, -2}}, 6.4, 8},
};
inline constexpr Print fuel_psi[] = {
    Band{0, 10, palette::range_red},
    Band{10, 15, palette::range_amber},
    Band{15, 25, palette::range_green},
    Marks{0, 30, 10, 5.2, 1.5},
    Marks{0, 30, 5, 3.8, 1},
    Marks{0, 34, 1, 2.4, 0.6},
    Limit{10},
    Figures{{0, 10, 20, 30}, 6.4, 8},
};

constexpr Dial column_dial(Scale scale, std::string_view name, std::string_view unit) {
  scale.rim = 28.4;
  return {
      .radius = 33, .scales = {scale}, .words = {{name, {0, 15}}, {unit, {0, 23}, 6.5}}, .bezel = 3};
}

/// Printed in two columns: what, and how much.
inline void draw_limits(const Board& board) {
  constexpr Box placard{5, 23, 64, 46};
  constexpr std::string_view lines[][2] = {{"OIL PSI", "40-85"},
                                           {"MIN", "25"},
                                           {"OIL \u00b0C", "30-105"},
                                           {"MAX", "120"},
                                           {"FUEL PSI", "15-25"}};
  constexpr Lettering small{.size = 6.5, .colour = palette::mark};
  const Canvas& canvas = board.canvas;
  sunk_field(canvas, placard, 1.5, palette::mould_dark);
  double y = placard.y + 6.6;
  for (const auto& line : lines) {
    print(canvas, {placard.x + 4, y}, line[0], small, Anchor::left);
    print(canvas, {placard.right() - 4, y}, line[1], small, Anchor::right);
    y += 8.2;
  }
}

inline constexpr Dial column_dials[] = {
    column_dial({.needle = "oil_pressure", .print = oil_pressure_psi, .per = 327.68}, "OIL", "PSI"),
    column_dial({.needle = "oil_temperature", .print = oil_celsius, .per = 4681 / 40.0}, "OIL",
                "\u00b0C"),
    column_dial({.needle = "fuel_pressure", .print = fuel_psi, .per = 50}, "FUEL", "PSI"),
};

}  // namespace artwork::panels
