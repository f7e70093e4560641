/// Cabin rate of climb. The needle rests at zero, between UP and DN.
#include "resources/art.h"

namespace artwork::panels::cabvs {

constexpr Print thousands[] = {
    Marks{-2, 2, 0.5, 5.5, 1.5},
    Marks{-1, 1, 0.1, 3, 0.7},
    Figures{{-2, -1, -0.5, 0.5, 1, 2}, 6.5, 9},
};

constexpr Item items[] = {
    CornerScrews{6, 2.4},
    Dial{.radius = 36,
         .scales = {{.needle = "cabin_rate_of_climb", .print = thousands, .per = 1000}},
         .words = {{"UP", {-3, -9.5}, 7.5},
                   {"DN", {-3, 9.5}, 7.5},
                   {"CAB", {20, -4.2}, 6.5},
                   {"V/S", {20, 4.2}, 6.5}}},
};

constexpr Art art[] = {
    plate(78, items),
    needle_art("cabin_rate_of_climb", {.length = 27, .tail = 5, .half_width = 1.6}),
};

constinit Unit unit{"Cabvs", art};

}  // namespace artwork::panels::cabvs
