/// Airspeed indicator: the card is close at landing speeds and wide at cruise; the Mach disc turns behind
/// a window.
#include <cstdio>

#include "resources/art.h"
#include "resources/kit/flight.h"
#include "resources/kit/legend.h"
#include "resources/kit/window.h"
#include "resources/rows/board.h"

namespace artwork::panels::airspeed {

constexpr Print knots[] = {
    Marks{60, 300, 20, 7, 1.8},
    Marks{60, 300, 10, 5, 1.1},
    Marks{80, 200, 5, 3, 0.6},
    MarksAt{{350, 400}, 7, 1.8},
    MarksAt{{320, 340, 360, 380, 420}, 4.4, 1},
    Marks{300, 430, 10, 3, 0.6},
    Figures{{60, 80, 100, 120, 140, 160, 180, 200, 250, 300, 350, 400}, 8.5, 9},
};

/// The disc's scale runs along the upper edge of its window.
constexpr double mach_radius = 36;
constexpr Point window_by{0, -30};

void draw_mach_index(const Board& board) {
  const Point hub = hub_of(board.gauge, "mach_disc");
  const Point index[] = {{hub.x, hub.y - 35.5}, {hub.x - 2.6, hub.y - 40}, {hub.x + 2.6, hub.y - 40}};
  fill_hard(board.canvas, polygon(index), symbol_paint(board.lighting));
}

constexpr Item items[] = {
    Dial{.radius = 66,
         .scales = {{.needle = "airspeed", .print = knots, .rim = 60.5}},
         .words = {{"MACH", {0, -16.5}, 6.5}, {"KNOTS", {0, 17}, 7.5}},
         .boss = 6},
    Opening{at("mach_disc", window_by.x, window_by.y), {30, 15}, 2},
    Ornament{draw_mach_index},
    FixedKnob{at("set_airspeed_bug_1"), 5.6, 6.6, -40},
    FixedKnob{at("set_airspeed_bug_2"), 5.6, 6.6, 25},
    FixedKnob{at("set_airspeed_bug_3"), 5.6, 6.6, -70},
    FixedKnob{at("set_airspeed_bug_4"), 5.6, 6.6, 50},
    FixedKnob{between("selected_speed_knob_down", "selected_speed_knob_up", 2, 1.5), 9, 10.2, 30},
};

void draw_mach_disc(const Canvas& canvas, int) {
  const Point hub{70.5, 71.5};
  constexpr double degrees_per_hundredth = 2;
  fill(canvas, circle(hub, 50), palette::face_light);
  const Saved saved(canvas);
  cairo_translate(canvas.cr(), hub.x, hub.y);
  for (int hundredths = 0; hundredths <= 100; ++hundredths) {
    const double length = hundredths % 10 == 0 ? 5.5 : hundredths % 5 == 0 ? 4.2 : 2.4;
    const double width = hundredths % 10 == 0 ? 1.4 : hundredths % 5 == 0 ? 1 : 0.6;
    line(canvas, {0, -mach_radius - 1}, {0, -mach_radius - 1 + length}, width, palette::mark);
    if (hundredths % 10 == 0) {
      char text[8];
      std::snprintf(text, sizeof text, hundredths == 100 ? "1" : ".%d", hundredths / 10);
      print(canvas, {0, -mach_radius + 9.2}, text, {.size = 6.8, .colour = palette::mark});
    }
    cairo_rotate(canvas.cr(), radians(degrees_per_hundredth));
  }
}

constexpr Art art[] = {
    plate(142, items),
    drawn_art("mach_disc", {141, 143}, draw_mach_disc),
    bug_art("selected_speed", {.from = 50, .to = 61, .half_width = 2.4, .colour = palette::lamp_green}),
    bug_art("speed_bug_1", {.from = 55, .to = 62.5, .half_width = 2.4, .colour = palette::bug}),
    drawn_art("maximum_speed", {62, 13},
              [](const Canvas& canvas, int) {
                // A barber pole: white with red bands across.
                const Box pole{5.5 + 8, 6.5 - 1.8, 46, 3.6};
                fill(canvas, rounded(pole, 1), palette::mark);
                const Saved saved(canvas);
                rounded(pole, 1)(canvas.cr());
                cairo_clip(canvas.cr());
                for (double x = pole.x - 2; x < pole.right(); x += 6) {
                  line(canvas, {x, pole.bottom() + 1}, {x + 4, pole.y - 1}, 2.8, palette::flag_red);
                }
              }),
    needle_art("airspeed", {.length = 55, .tail = 5, .half_width = 2.3, .cap = 5}),
};

constinit Unit unit{"Airspeed", art};

}  // namespace artwork::panels::airspeed
