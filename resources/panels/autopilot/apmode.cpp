/// Autopilot modes: selected speed on the left, the mode selector, altitude hold on the right.
#include "resources/art.h"
#include "resources/kit/paint.h"
#include "resources/rows/draw.h"

namespace artwork::panels::apmode {

constexpr std::string_view speed = "selected_speed_tens", mode = "mode_selector",
                           altitude = "altitude_hold_switch";

constexpr Spot speed_knob = between("selected_speed_knob_down", "selected_speed_knob_up");

constexpr Item items[] = {
    CornerScrews{},
    DrumFrame{"selected_speed_hundreds", "selected_speed_units"},
    Legend{at(speed, 0, -16), "SPEED"},
    FixedKnob{speed_knob, 12.6, 14, 30},
    ending(at(mode, -21, 19), "MAN", 7.5),
    ending(at(mode, -26, -7), "TURB", 7.5),
    Legend{at(mode, -13, -29), "HDG", 7.5},
    Legend{at(mode, 13, -29), "LOC", 7.5},
    beginning(at(mode, 26, -7), "GS", 7.5),
    beginning(at(mode, 21, 19), "NAV", 7.5),
    Line{at(mode, -36, 34), at(mode, 36)},
    heading(at(mode, 0, 44), "AUTOPILOT"),
    left_of(altitude, {}),
    below(altitude, "ALT HOLD"),
};

void draw_mach_drum(const Canvas& canvas, int) {
  const Drum drum{.figure_size = 11.5, .ink = palette::well, .ground = palette::mark};
  MovingAxis tenths{};
  tenths.maximum = 9;
  draw_drum(canvas, drum, tenths, 16);
}

void draw_point(const Canvas& canvas, int) {
  fill(canvas, rounded(whole(canvas.size()), 0), palette::mark);
}

constexpr Art art[] = {
    plate(98, items),
    drum_art("selected_speed_hundreds", {9, 16}, {.figure_size = 11.5}),
    // A selected Mach number: the drum behind the point, and the point.
    drawn_art(spare(13480), {9, 160}, draw_mach_drum),
    drawn_art(spare(14160), {2, 2}, draw_point).in_16_colours(),
    knob_art("mode_selector", {40, 43}, {-125, -75, -25, 25, 75, 125},
             {.radius = 16, .seat = 1.5, .ticks = {2.6, 5.4}}),
};

constinit Unit unit{"Apmode", art};

}  // namespace artwork::panels::apmode
