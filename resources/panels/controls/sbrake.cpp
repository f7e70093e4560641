/// Stabiliser and speed brake, in degrees.
#include "resources/art.h"

namespace artwork::panels::sbrake {

constexpr Print stabiliser[] = {
    Marks{-3, 9, 3, 5.2, 1.5},
    Marks{-3, 9, 1, 3.2, 0.8},
    Figures{{-3, 0, 3, 6, 9}, 6.4, 7.5},
};

constexpr Print speed_brake[] = {
    Band{0, 60, palette::range_amber},
    Marks{0, 60, 30, 5.2, 1.5},
    Marks{0, 60, 10, 3.6, 0.9},
    Figures{{{0, 12}, 30, 60}, 6.4, 7.5},
};

constexpr Item items[] = {
    Dial{.radius = 33,
         .scales = {{.needle = "stabiliser_position", .print = stabiliser}},
         .words = {{"STAB", {14.5, -9}, 6.5},
                   {"DEG", {14.5, 0}, 6},
                   {"ND", {-7, 21.5}, 6},
                   {"NU", {12, -21.5}, 6}},
         .boss = 4.2,
         .bezel = 3},
    Dial{.radius = 33,
         .scales = {{.needle = "speed_brake_position", .print = speed_brake}},
         .words = {{"SPEED", {-15.5, -4}, 6.5},
                   {"BRAKE", {-15.5, 4}, 6.5},
                   {"IN", {-9, -20}, 6},
                   {"OUT", {7, 21.5}, 6}},
         .boss = 4.2,
         .bezel = 3},
    Screw{{6.5, 70.5}, 20, 2.8},
    Screw{{-6.5, 70.5}, 70, 2.8},
};

constexpr Art art[] = {
    plate(144, items),
    // Both dials have this pointer.
    needle_art("speed_brake_position", {.length = 25.5, .tail = 6, .half_width = 1.6}),
};

constinit Unit unit{"Sbrake", art};

}  // namespace artwork::panels::sbrake
