/// Vertical speed indicator, thousands of feet a minute.
#include "resources/art.h"

namespace artwork::panels::vsitcas {

constexpr Print thousands[] = {
    MarksAt{{-4, -2, 0, 2, 4}, 6.5, 1.8},
    MarksAt{{-6, -1, 1, 6}, 6.5, 1.8},
    MarksAt{{-3, -1.5, 1.5, 3}, 4, 1.1},
    MarksAt{{-0.5, 0.5}, 5, 1.3},
    Marks{-1, 1, 0.1, 2.6, 0.6},
    Marks{-2, 2, 0.5, 3, 0.8},
    Marks{2, 6, 0.5, 2.2, 0.6},
    Marks{-6, -2, 0.5, 2.2, 0.6},
    Figures{{-6, -4, -2, -1, -0.5, 0, 0.5, 1, 2, 4, 6}, 8, 8.5},
};

constexpr Item items[] = {
    CornerScrews{7, 3},
    Dial{.radius = 47.5,
         .scales = {{.needle = "vertical_speed", .print = thousands, .per = 1000, .rim = 41.5}},
         .words = {{"UP", {-13, -8.5}, 6},
                   {"DN", {-13, 9.5}, 6},
                   {"FPM", {5, 11}, 6.5},
                   {"\u00d71000", {3, 18.2}, 6}},
         .boss = 5},
};

constexpr Art art[] = {
    plate(104, items),
    needle_art("vertical_speed", {.length = 36, .tail = -4.2, .half_width = 2}),
    flag_art("power_flag", {18, 9}, {"OFF", InView::first, 5.8}),
    flush_lamp_art(spare(14480, 2), {24, 14}, lens::red, "TFC", 6.5),
};

constinit Unit unit{"Vsitcas", art};

}  // namespace artwork::panels::vsitcas
