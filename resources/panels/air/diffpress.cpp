/// Cabin differential pressure, with the aircraft's altitude on the inner scale.
#include "resources/art.h"
#include "resources/kit/legend.h"
#include "resources/rows/board.h"

namespace artwork::panels::diffpress {

// The pressure's counter runs from 10 at sea level over 22 on every other airfield to 100: the scale has its nought
// where the cabin begins to hold, and the needle rests below it.
constexpr double counts_per_psi = 78 / 9.0, counts_at_nought = 22;
constexpr Print pounds[] = {
    Band{1, 7.5, palette::range_green},
    Band{8, 9, palette::range_red},
    Marks{0, 9, 1, 7, 1.6},
    Marks{0, 9, 0.5, 4.5, 1},
    Figures{{{0, -13}, 1, 2, 3, 4, 5, 6, 7, 8, {9, -3}}, 8, 10},
};
constexpr Print thousands[] = {
    Arc{0, 50, 0.7},
    Marks{0, 50, 10, 4, 1.3},
    Marks{0, 50, 2.5, 2.2, 0.7},
    Figures{{0, 10, 20, 30, 40}, 5, 7.5},
};

/// Each needle's name in its own colour, in the plate's lower corners.
void draw_names(const Board& board) {
  const Size plate = board.canvas.size();
  const double y = plate.height - 10.0;
  engrave(board.canvas, {5, y}, "DIFF\nPSI", {.size = 7}, Anchor::left);
  engrave(board.canvas, {plate.width - 5.0, y}, "ALT\n\u00d71000",
          {.size = 7, .colour = mixed(palette::legend_amber, palette::white, 0.45)}, Anchor::right);
}

constexpr Item items[] = {
    Screw{{8, 8}, 20, 3.4},
    Screw{{-8, 8}, 63, 3.4},
    Ornament{draw_names},
    Dial{.radius = 52,
         .scales = {{.needle = "differential_pressure",
                     .print = pounds,
                     .per = counts_per_psi,
                     .zero = -counts_at_nought / counts_per_psi,
                     .rim = 46.5,
                     .band = 2.8},
                    {.needle = "aircraft_altitude", .print = thousands, .per = 1000, .rim = 23.5}},
         .boss = 0,
         .bezel = 4},
};

constexpr Art art[] = {
    plate(112, items),
    needle_art("differential_pressure", {.length = 43, .tail = 9, .half_width = 2, .cap = 5.5}),
    needle_art("aircraft_altitude", {.length = 20, .half_width = 1.4, .colour = palette::legend_amber}),
};

constinit Unit unit{"Diffpress", art};

}  // namespace artwork::panels::diffpress
