/// Cabin altitude controller: the selected altitude's dial and knob, and the two displays.
#include "resources/art.h"
#include "resources/kit/needle.h"

namespace artwork::panels::cabalt {

constexpr Print thousands[] = {
    Marks{0, 15, 1, 5, 1.4},
    Marks{0, 15, 0.5, 3, 0.8},
    Figures{{{0, -8}, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12, {15, -5}}, 6.5, 7.6},
};

constexpr Spot knob = between("cabin_altitude_knob_down", "cabin_altitude_knob_up");

constexpr Item items[] = {
    Screw{{-8, 8}, 20, 3.4},
    Screw{{-8, -8}, 75, 3.4},
    Window{"pressure_warning"},
    Window{"pressure_setting"},
    Legend{at("pressure_warning", 0, -15), "SCHED"},
    Legend{at("pressure_setting", 0, -13.5), "BARO"},
    Dial{.radius = 38.5,
         .scales = {{.needle = "selected_cabin_altitude", .print = thousands, .per = 1000, .rim = 33}},
         .words = {{"1000", {0, -10.5}}, {"FT", {0, 10}}}},
    FixedKnob{knob, 10.2, 11.5, -35},
    Legend{knob.moved(0, -18), "SET"},
    Legend{knob.moved(24, 17), "CABIN ALT"},
    FixedButton{at("standard_pressure_button"), 7, palette::mould_light},
    Legend{at("standard_pressure_button", 0, -12.5), "STD"},
};

void draw_cabin_pointer(const Canvas& canvas, int) {
  blade(canvas,
        {.pivot = {11.5, 2.5}, .length = 33, .tail = 6, .half_width = 1.1, .colour = palette::bug});
}

constexpr Art art[] = {
    plate(112, items),
    needle_art("selected_cabin_altitude", {.length = 29, .tail = 11, .half_width = 1.7}),
    // A second pointer for the altitude that the cabin has, and a lamp in the button.
    drawn_art(spare(1480), {48, 5}, draw_cabin_pointer),
    flush_lamp_art(spare(1490, 2), {20, 12}, lens::green, "STD", 6),
};

constinit Unit unit{"Cabalt", art};

}  // namespace artwork::panels::cabalt
