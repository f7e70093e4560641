/// Cabin differential pressure, with the aircraft's altitude on the inner scale.
#include "resources/art.h"

namespace artwork::panels::diffpress {

constexpr Print pounds[] = {
    Band{2, 7.6, palette::range_green},
    Band{8.2, 10, palette::range_red},
    Marks{1, 10, 1, 7, 1.6},
    Marks{1, 10, 0.5, 4.5, 1},
    Figures{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, 8, 10},
};
constexpr Print thousands[] = {
    Arc{0, 50, 0.7},
    Marks{0, 50, 10, 4, 1.3},
    Marks{0, 50, 2.5, 2.2, 0.7},
    Figures{{0, 10, 20, 30, 40}, 5, 7.5},
};

constexpr Item items[] = {
    CornerScrews{8, 3.4},
    Dial{.radius = 52,
         .scales =
             {{.needle = "differential_pressure", .print = pounds, .per = 10, .rim = 46.5, .band = 2.8},
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
