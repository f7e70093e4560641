/// Outside air temperature. Nothing lies between -40 and -20: both stand at one mark.
#include "resources/art.h"

namespace artwork::panels::oat {

constexpr Print celsius[] = {
    MarksAt{{-60, -20, 0, 20, 40, 60}, 5, 1.6},
    Marks{-60, -40, 10, 3.6, 1},
    Marks{-20, 60, 10, 3.6, 1},
    Marks{-20, 60, 5, 2.4, 0.6},
    Figures{{-60, {-40, -15}, {-20, 15}, 0, 20, 40, 60}, 6, 7},
};

constexpr Item items[] = {
    CornerScrews{5.2, 2},
    Dial{.radius = 31.5,
         .scales = {{.needle = "outside_air_temperature", .print = celsius}},
         .words = {{"OAT", {0, 20.5}, 6.5}, {"\u00b0C", {0, 12}, 7}},
         .boss = 0},
};

constexpr Art art[] = {
    plate(66, items),
    needle_art("outside_air_temperature", {.length = 23, .tail = 6, .half_width = 1.7, .cap = 4.4}),
};

constinit Unit unit{"Oat", art};

}  // namespace artwork::panels::oat
