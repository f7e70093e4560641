/// Altitude preselector: five figures and their knob.
#include "resources/art.h"
#include "resources/kit/window.h"

namespace artwork::panels::apalt {

constexpr Item items[] = {
    DrumFrame{"power_flag", "power_flag"},
    Legend{at("power_flag", 0, 16), "ALT SEL FT", 6.5},
    FixedKnob{between("selected_altitude_knob_down", "selected_altitude_knob_up"), 12.6, 14, -35},
    Screw{{9.5, 9}, 35, 3},
    Screw{{9.5, -9}, 80, 3},
};

/// Without power a flag stands before the figures.
void draw_power_flag(const Canvas& canvas, int image) {
  const Box box = whole(canvas.size());
  if (image == 1) return drum_shade(canvas, box);
  striped_flag(canvas, box, palette::flag_red);
}

constexpr Drum drum{.figure_size = 11.5};

constexpr Art art[] = {
    plate(42, items),
    drum_art("thousands_of_feet", {9, 16}, drum),
    drum_art("hundreds_of_feet", {27, 18}, {.figure_size = 11.5, .tail = "00"}),
    drawn_art("power_flag", {45, 18}, draw_power_flag),
};

constinit Unit unit{"Apalt", art};

}  // namespace artwork::panels::apalt
