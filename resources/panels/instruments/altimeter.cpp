/// Altimeter: pointer for the hundreds, drums for the altitude, the pressure setting in hectopascals and
/// inches, the altitude alert above.
#include <cmath>

#include "resources/art.h"
#include "resources/kit/flight.h"
#include "resources/kit/lamp.h"
#include "resources/kit/legend.h"
#include "resources/kit/needle.h"
#include "resources/kit/window.h"
#include "resources/rows/board.h"

namespace artwork::panels::altimeter {

constexpr Print hundreds[] = {
    Marks{0, 9, 1, 5.6, 1.9},
    Marks{0, 10, 0.5, 4.4, 1.1},
    Marks{0, 10, 0.1, 2.8, 0.6},
    Figures{{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, 6.2, 9.5},
};

/// The lens behind the frame; the lit one lies over it.
void draw_alert_lens(const Board& board) {
  lamp_lens(board.canvas, part_box(board.gauge, "alert_lamp_frame").grown(-2.6), {palette::lamp_amber},
            false);
}

constexpr Item items[] = {
    Screw{{10, 14}, 25, 3.2},
    Screw{{-10, 14}, 70, 3.2},
    Dial{.radius = 55,
         .scales = {{.needle = "pointer", .print = hundreds, .rim = 49.8}},
         .words = {{"HPA", {-15, 8.8}, 6}, {"IN HG", {16, 8.8}, 6}},
         .boss = 5},
    DrumFrame{"ten_thousands_of_feet", "feet"},
    DrumFrame{"thousands_of_the_hectopascals", "units_of_the_hectopascals"},
    DrumFrame{"inches_of_the_pressure_setting", "hundredths_of_the_inches"},
    Ornament{draw_alert_lens},
    FixedKnob{between("pressure_setting_knob_down", "pressure_setting_knob_up", 0, -3), 7, 8, -30},
    FixedKnob{between("altitude_bug_knob_down", "altitude_bug_knob_up", 0, -2), 7, 8, 20},
    Legend{between("pressure_setting_knob_down", "pressure_setting_knob_up", -3, 9.5), "BARO", 6.5},
    Legend{between("altitude_bug_knob_down", "altitude_bug_knob_up", 3, 10.5), "BUG", 6.5},
};

/// Figures that stand still: as on a drum.
void figures(const Canvas& canvas, std::string_view text) {
  const Box box = whole(canvas.size());
  fill(canvas, rounded(box, 0), palette::face_dark);
  print(canvas, box.centre(), text, {.size = 7.6, .colour = palette::mark});
}

void draw_inches(const Canvas& canvas, int image) {
  constexpr std::string_view words[] = {"27", "28", "29", "30", "31", "32"};
  figures(canvas, words[image]);
}

void draw_thousands(const Canvas& canvas, int image) { figures(canvas, image == 0 ? "9" : "10"); }

/// Dark, a frame with the words alone, since it stands over the lit ones.
void draw_alert(const Canvas& canvas, int image) {
  const Box frame = whole(canvas.size()).grown(-1), lens = whole(canvas.size()).grown(-2.6);
  if (image == 1) {
    lamp_housing(canvas, frame);
    return lamp_lens(canvas, lens, {palette::lamp_amber, "ALT", 8}, true);
  }
  set_linear(canvas, {frame.x, frame.y}, {frame.right(), frame.bottom()},
             {{0, palette::mould_dark}, {0.5, palette::mould}, {1, palette::steel}});
  stroke(canvas, rounded(frame.grown(-0.8), 1.8), 1.6);
  print(canvas, frame.centre(), "ALT",
        {.size = 8, .colour = mixed(palette::well, palette::lamp_amber, 0.66)});
}

void draw_pointer(const Canvas& canvas, int) {
  const Point pivot{10.5, 3.5};
  edged(canvas,
        {{pivot.x - 9, pivot.y - 2.2},
         {pivot.x + 30, pivot.y - 1.6},
         {pivot.x + 47, pivot.y},
         {pivot.x + 30, pivot.y + 1.6},
         {pivot.x - 9, pivot.y + 2.2}},
        palette::mark);
  needle_cap(canvas, pivot, 3.4);
}

void draw_power_flag(const Canvas& canvas, int image) {
  const Box box = whole(canvas.size());
  if (image == 1) return drum_shade(canvas, box);
  striped_flag(canvas, box, palette::flag_red);
}

void draw_below_sea_flag(const Canvas& canvas, int image) {
  const Box box = whole(canvas.size());
  if (image == 0) return line(canvas, {box.right(), 0}, {box.right(), box.bottom()}, 1, rgb(0x101213));
  striped_flag(canvas, box, palette::legend_amber);
}

constexpr Drum feet{.figure_size = 13};
constexpr Drum pressure{.figure_size = 7.6};

constexpr Art art[] = {
    plate(142, items),
    drawn_art("alert_lamp_frame", {41, 17}, draw_alert),
    drawn_art("inches_of_the_pressure_setting", {14, 12}, draw_inches),
    drum_art("hundredths_of_the_inches", {14, 12}, {.figure_size = 7.6, .ticks = 5}),
    drawn_art("thousands_of_the_hectopascals", {14, 12}, draw_thousands),
    drum_art("tens_of_the_hectopascals", {7, 12}, pressure),
    drum_art("units_of_the_hectopascals", {7, 12}, pressure),
    bug_art("altitude_bug", {.from = 41.5, .to = 51, .half_width = 2.5, .colour = palette::bug}),
    drum_art("ten_thousands_of_feet", {10, 17}, feet),
    drum_art("thousands_of_feet", {10, 17}, feet),
    drum_art("feet", {16, 17}, {.figure_size = 9.5, .tail = "0"}),
    drawn_art("below_sea_level_flag", {10, 17}, draw_below_sea_flag),
    drawn_art("power_flag", {47, 17}, draw_power_flag),
    drawn_art("pointer", {59, 7}, draw_pointer),
};

constinit Unit unit{"Altimeter", art};

}  // namespace artwork::panels::altimeter
