/// Flaps: the lever's detents in degrees.
#include "resources/art.h"

namespace artwork::panels::flapind {

constexpr Print detents[] = {
    Arc{0, 5, 0.8},
    Marks{0, 5, 1, 5, 1.6},
    Figures{{{0, -16}, {1, 0, "6"}, {2, 0, "11"}, {3, 0, "18"}, {4, 0, "25"}, {5, -4, "42"}}, 6, 8},
};

constexpr Item items[] = {
    Screw{{6, 7}, 24, 2.6},
    Screw{{-6, -7}, 71, 2.6},
    Dial{.radius = 33,
         .scales = {{.needle = "flaps", .print = detents, .per = 3276.8}},
         .words = {{"FLAPS", {-13.5, -3.5}, 6.5}, {"DEG", {-13.5, 7}, 6}},
         .boss = 0},
};

constexpr Art art[] = {
    plate(72, items),
    needle_art("flaps", {.length = 25, .tail = 6, .half_width = 1.9, .cap = 4}),
};

constinit Unit unit{"Flapind", art};

}  // namespace artwork::panels::flapind
