/// Pitch trim wheel, seen on its edge; rudder trim pointer over its two buttons.
#include <cmath>

#include "resources/art.h"
#include "resources/kit/dial.h"
#include "resources/kit/flight.h"
#include "resources/kit/lamp.h"
#include "resources/kit/legend.h"
#include "resources/kit/metal.h"
#include "resources/kit/records.h"
#include "resources/kit/window.h"
#include "resources/rows/board.h"

namespace artwork::panels::trim {

constexpr std::string_view forward = "pitch_trim_wheel_up", back = "pitch_trim_wheel_down";
constexpr std::string_view left = "rudder_trim_left", right = "rudder_trim_right";

/// The rim's flutes stand closer where it curves away.
void draw_wheel(const Board& board) {
  const Canvas& canvas = board.canvas;
  const Box upper = click_box(board.gauge, forward), lower = click_box(board.gauge, back);
  const Box slot{upper.x + 5, upper.y - 2, upper.width - 10, lower.bottom() - upper.y + 4};
  sunk_field(canvas, slot, 3, palette::well);
  const Box rim = slot.grown(-3);
  set_linear(canvas, {0, rim.y}, {0, rim.bottom()},
             {{0, palette::well},
              {0.2, palette::mould},
              {0.42, palette::mould_light},
              {0.7, palette::mould},
              {1, palette::well}});
  fill(canvas, rounded(rim, 2));
  const double radius = rim.height / 2, middle = rim.centre().y;
  for (double turned = -78; turned <= 78; turned += 9.75) {
    const double y = middle + radius * std::sin(radians(turned)), facing = std::cos(radians(turned));
    line(canvas, {rim.x, y}, {rim.right(), y}, 0.6 + 1.4 * facing, faded(palette::black, 0.75));
    line(canvas, {rim.x + 1, y + 1.2 * facing}, {rim.right() - 1, y + 1.2 * facing}, 0.7,
         faded(palette::white, 0.3 * facing));
  }
  const double y = middle - 3.2;
  line(canvas, {rim.x + 1, y}, {rim.right() - 1, y}, 1.6, palette::legend);
}

/// The pointer's scale, a mark for each degree.
void print_scale(const Board& board, Colour ink) {
  const Canvas& canvas = board.canvas;
  const Element& pointer = part(board.gauge, "rudder_trim_pointer");
  const double zero = part_box(board.gauge, "rudder_trim_pointer").centre().x;
  const double per_degree = pointer.slider.x_scale * 10 / 100;
  for (int degrees = -7; degrees <= 7; ++degrees) {
    const double x = zero + degrees * per_degree, length = degrees == 0       ? 5
                                                           : degrees % 7 == 0 ? 4
                                                                              : 2.6;
    const Segment mark{{x, 22.5 - length}, {x, 22.5}};
    line(canvas, mark.from, mark.to, degrees % 7 == 0 ? 1.4 : 0.8, ink);
    canvas.note_mark(mark);
  }
}

void draw_button(const Board& board, std::string_view area) {
  fixed_button(board.canvas, click_box(board.gauge, area).centre(), 15.5, palette::mould_light);
}
void draw_buttons(const Board& board) {
  draw_button(board, left);
  draw_button(board, right);
}

constexpr Item items[] = {
    Ornament{draw_wheel},
    Legend{{64, 17}, "NOSE DN", 7.5},
    heading({64, 40.5}, "PITCH\nTRIM", 9),
    Legend{{64, 65}, "NOSE UP", 7.5},
    Face{{94.5, 2.5, 86, 24}, 5, print_scale},
    Ornament{draw_buttons},
    Legend{at(left, -1, -19.5), "LEFT", 7},
    Legend{at(right, 1, -19.5), "RIGHT", 7},
    heading(between(left, right, 0, 24.5), "RUDDER TRIM", 8),
    Screw{{-6.5, -7}, 40, 2.8},
    Screw{{91, -7}, 110, 2.8},
};

void draw_pointer(const Canvas& canvas, int) {
  edged(canvas, {{3.5, 11}, {0, 5}, {0, 0.5}, {7, 0.5}, {7, 5}}, palette::command);
}

/// An arrow lens in each cap, toward its side.
void draw_lens(const Canvas& canvas, Point c, double side, bool lit) {
  const Box lens{c.x - 6, c.y - 6, 12, 12};
  if (lit) soft(canvas, rounded(lens, 2), faded(palette::lamp_green, 0.8), 1.6);
  lamp_lens(canvas, lens, {palette::lamp_green, ""}, lit);
  const Colour ink = lit ? rgb(0x14120C) : mixed(palette::well, palette::lamp_green, 0.62);
  const Point arrow[] = {{c.x + side * 4, c.y}, {c.x - side * 3, c.y - 4}, {c.x - side * 3, c.y + 4}};
  fill(canvas, polygon(arrow), ink);
}

/// Dark, left, right.
void draw_lights(const Canvas& canvas, int image) {
  const Box picture = whole(canvas.size());
  const double y = picture.centre().y;
  draw_lens(canvas, {6.5, y}, -1, image == 1);
  draw_lens(canvas, {picture.right() - 6.5, y}, 1, image == 2);
}

constexpr Art art[] = {
    plate(84, items),
    drawn_art("rudder_trim_buttons", {51, 49}, draw_lights),
    drawn_art("rudder_trim_pointer", {7, 12}, draw_pointer),
};

constinit Unit unit{"Trim", art};

}  // namespace artwork::panels::trim
