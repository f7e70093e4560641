/// Radio altimeter: hundreds of feet, close below 500; the decision height's bug and light.
#include "resources/art.h"
#include "resources/kit/lamp.h"
#include "resources/rows/board.h"

namespace artwork::panels::radalt {

constexpr Print hundreds[] = {
    Marks{0, 5, 1, 5, 1.6},     Marks{0, 5, 0.5, 4, 1},
    Marks{0, 5, 0.1, 2.4, 0.6}, MarksAt{{10, 15, 20, 25}, 5, 1.6},
    Marks{5, 25, 1, 2.8, 0.7},  Figures{{0, 1, 2, 3, 4, 5, 10, 15, {20, -4}, {25, 3}}, 6, 7.5},
};

void draw_dark_light(const Board& board) {
  round_light(board.canvas, hub_of(board.gauge, "decision_height_light"), 5.4, palette::lamp_amber,
              false);
}

constexpr Spot knob = between("decision_height_knob_down", "decision_height_knob_up", 1, 2);

constexpr Item items[] = {
    Screw{{-7, 7}, 40, 3},
    Dial{.radius = 39.5,
         .scales = {{.needle = "radio_altitude", .print = hundreds, .per = 100, .rim = 34}},
         .words = {{"RAD ALT", {4.5, -12}, 5.5}, {"FT \u00d7100", {0, 12}, 5.5}},
         .boss = 5},
    Ornament{draw_dark_light},
    Legend{{22, 5.5}, "DH", 6.5},
    FixedKnob{knob, 7.8, 8.8, 25},
    Legend{{56, 90}, "DH", 6.5},
    FixedButton{at("test_button"), 5.6, palette::mould_light},
    Legend{{13, 90}, "TEST", 6.5},
};

void draw_decision_height_light(const Canvas& canvas, int) {
  round_light(canvas, whole(canvas.size()).centre(), 5.4, palette::lamp_amber, true);
}

constexpr Art art[] = {
    plate(96, items),
    drawn_art("decision_height_light", {14, 14}, draw_decision_height_light),
    bug_art("decision_height_bug", {.from = 27.5, .to = 35, .half_width = 2.4, .colour = palette::bug}),
    needle_art("radio_altitude", {.length = 30, .tail = 6, .half_width = 1.9, .cap = 4.4}),
};

constinit Unit unit{"Radalt", art};

}  // namespace artwork::panels::radalt
