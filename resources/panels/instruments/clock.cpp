/// Clock.
#include "resources/art.h"

namespace artwork::panels::clock {

constexpr Print minutes[] = {
    Marks{0, 45, 15, 5.4, 2},
    Marks{0, 55, 5, 4.6, 1.3},
    Marks{0, 59, 1, 2.4, 0.6},
};
constexpr Print hours[] = {
    Figures{{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, 6, 7.6},
};

constexpr Item items[] = {
    Screw{{7, 7}, 65, 3},
    Screw{{-7, 7}, 15, 3},
    Screw{{7, -8}, 30, 3},
    Dial{.radius = 40,
         .scales = {{.needle = "minutes_hand", .print = minutes, .rim = 35},
                    {.needle = "hours_hand", .print = hours, .rim = 35}},
         .words = {{"LOCAL", {0, 12}, 6}},
         .boss = 0},
    FixedKnob{between("setting_knob_down", "setting_knob_up", 3, 2), 7.6, 8.8, -20},
};

constexpr Art art[] = {
    plate(92, items),
    needle_art("hours_hand", {.length = 20, .tail = 5, .half_width = 2.4, .cap = 4.6}),
    needle_art("minutes_hand", {.length = 30, .tail = 6, .half_width = 1.8, .cap = 4}),
    needle_art("seconds_hand",
               {.length = 33, .tail = 7, .half_width = 0.8, .cap = 3, .colour = palette::bug}),
};

constinit Unit unit{"Clock", art};

}  // namespace artwork::panels::clock
