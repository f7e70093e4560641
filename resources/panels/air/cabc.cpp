/// Cabin temperature.
#include "resources/art.h"

namespace artwork::panels::cabc {

constexpr Print celsius[] = {
    Band{18, 26, palette::range_green},
    Marks{0, 60, 10, 5, 1.4},
    Marks{20, 40, 2, 2.8, 0.7},
    Figures{{{0, -18}, 20, 40, 60}},
};

constexpr Item items[] = {
    CornerScrews{6, 2.4},
    Dial{.radius = 32.5,
         .scales = {{.needle = "cabin_temperature", .print = celsius}},
         .words = {{"CABIN", {0, 14}, 8}, {"\u00b0C", {0, 22.5}}},
         .boss = 0},
};

constexpr Art art[] = {
    plate(69, items),
    needle_art("cabin_temperature", {.length = 24, .tail = 7, .half_width = 1.7, .cap = 4.6}),
};

constinit Unit unit{"Cabc", art};

}  // namespace artwork::panels::cabc
