/// Warning and decision height panel. A button that can be tested turns blue.
#include "resources/art.h"
#include "resources/kit/lamp.h"
#include "resources/kit/legend.h"
#include "resources/rows/board.h"

namespace artwork::panels::dhgpws {

constexpr std::string_view stall = "stall_warning_button", ground = "ground_proximity_button",
                           test = "test_switch", light = "decision_height_light";

void draw_test_cover(const Canvas& canvas, int) {
  push_button(canvas, whole(canvas.size()), {lens::blue, "TST", 6.4}, true);
}

/// The button about its lamp.
void draw_test_button(const Board& board) {
  const Canvas& canvas = board.canvas;
  const Box face = part_box(board.gauge, test).grown(-1.5);
  lamp_housing(canvas, face);
  set_slope(canvas, face, {{0, palette::mould_light}, {0.5, palette::mould}, {1, palette::mould_dark}});
  fill(canvas, rounded(face.grown(-1.2), 1.4));
}

void draw_hundreds(const Canvas& canvas, int image) {
  const Box box = whole(canvas.size());
  fill(canvas, rounded(box, 0), palette::face_dark);
  print(canvas, box.centre(), std::to_string(image), {.size = 13, .colour = palette::mark});
  line(canvas, {box.right(), 0}, {box.right(), box.bottom()}, 1, faded(palette::black, 0.7));
}

constexpr Spot knob = between("decision_height_knob_down", "decision_height_knob_up");

constexpr Item items[] = {
    Screw{{-7.5, 7.5}, 57, 3.4},
    Screw{{-7.5, -7.5}, 12, 3.4},
    Legend{at(stall, 0, -18), "STALL", 7.5},
    Legend{at(ground, 0, -18), "GPWS", 7.5},
    Bracket{at(stall, 0, 17), at(ground), 3},
    Legend{between(stall, ground, 0, 22), "WARNING", 7.5},
    Ornament{draw_test_button},
    beginning(at(test, 14), "TEST"),
    FixedKnob{knob, 10.2, 11.5, -30},
    Legend{knob.moved(0, 18), "SET"},
    DrumFrame{"decision_height_hundreds", "decision_height_tens"},
    Legend{between("decision_height_hundreds", "decision_height_tens", 2, 17), "FT"},
    heading({136, -9}, "DECISION HT", 8),
};

constexpr Art art[] = {
    plate(93, items),
    lamp_art("decision_height_light", {28, 22}, lens::amber, "DH"),
    drawn_art("decision_height_hundreds", {10, 17}, draw_hundreds),
    masked_drum_art("decision_height_tens", {19, 817}, {.figure_size = 13, .step = 10, .tail = "0"}),
    mask_art("decision_height_tens", {19, 17}, {.corner = 0}),
    drawn_art("ground_proximity_test_cover", {24, 24}, draw_test_cover),
};

constinit Unit unit{"Dhgpws", art};

}  // namespace artwork::panels::dhgpws
