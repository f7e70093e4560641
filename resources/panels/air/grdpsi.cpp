/// Duct pressure.
#include "resources/art.h"

namespace artwork::panels::grdpsi {

constexpr Print psi[] = {
    Band{20, 60, palette::range_green},
    Band{70, 100, palette::range_red},
    Marks{0, 70, 10, 5, 1.4},
    Marks{0, 70, 5, 2.8, 0.7},
    MarksAt{{100}, 5, 1.4},
    Figures{{20, 40, 60}},
};

constexpr Item items[] = {
    CornerScrews{6, 2.4},
    Dial{.radius = 33,
         .scales = {{.needle = "duct_pressure", .print = psi, .per = 10}},
         .words = {{"DUCT", {1, 15.5}, 8}, {"PSI", {1, 24}}},
         .boss = 0},
};

constexpr Art art[] = {
    plate(74, items),
    needle_art("duct_pressure", {.length = 24, .tail = 7, .half_width = 1.7, .cap = 4.6}),
};

constinit Unit unit{"Grdpsi", art};

}  // namespace artwork::panels::grdpsi
