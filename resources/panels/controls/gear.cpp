/// The landing gear lever: a wheel on a stalk, in its gate.
#include "resources/art.h"
#include "resources/kit/metal.h"
#include "resources/rows/board.h"

namespace artwork::panels::gear {

constexpr Size picture{36, 210};
constexpr double x = 18, down_y = 176, neutral_y = 102, up_y = 35;

void draw_gate(const Board& board) {
  const Canvas& canvas = board.canvas;
  const Box slot{x - 4, up_y - 10, 8, down_y - up_y + 20};
  sunk_field(canvas, slot.grown(4), 6, palette::mould_dark);
  fill(canvas, rounded(slot, 4), palette::well);
  set_linear(canvas, {slot.x, 0}, {slot.right(), 0},
             {{0, faded(palette::black, 0.8)}, {1, faded(palette::white, 0.3)}});
  stroke(canvas, rounded(slot, 4), 0.8);
}

/// The stalk comes out of the middle of the gate and leans to where the wheel stands.
void draw_stalk(const Canvas& canvas, double y) {
  const Point foot{x, neutral_y + (y - neutral_y) * 0.45}, head{x, y};
  const Path stalk = capsule(foot, head, 2.6, 4);
  cast_shadow(canvas, stalk, 2, 0.7);
  set_linear(canvas, {x - 4, 0}, {x + 4, 0},
             {{0, palette::steel_dark},
              {0.3, palette::steel_bright},
              {0.55, palette::steel_light},
              {1, palette::steel_deep}});
  fill(canvas, stalk);
  set_linear(canvas, foot - Point{0, y < neutral_y ? -3.0 : 3.0}, head,
             {{0, palette::well}, {0.6, faded(palette::well, 0.2)}, {1, faded(palette::well, 0)}});
  fill(canvas, stalk);
}

void draw_tyre(const Canvas& canvas, Point c) {
  constexpr double radius = 14;
  cast_shadow(canvas, circle(c, radius), 3, 0.75);
  set_radial(canvas, c - Point{4, 6}, c, radius,
             {{0, palette::mould_light}, {0.7, palette::mould}, {1, palette::mould_dark}});
  fill(canvas, circle(c, radius));
  for (int block = 0; block < 24; ++block) {
    const double at = block * 15;
    line(canvas, polar(c, radius - 2.6, at), polar(c, radius - 0.6, at), 1.1, palette::well);
  }
  stroke(canvas, circle(c, radius - 3.2), 0.8, faded(palette::black, 0.6));
  stroke(canvas, circle(c, radius - 4), 0.7, faded(palette::white, 0.22));
}

void draw_rim(const Canvas& canvas, Point c) {
  constexpr double radius = 7.6;
  set_linear(canvas, c - Point{radius, radius}, c + Point{radius, radius},
             {{0, palette::steel_bright}, {0.5, palette::steel}, {1, palette::steel_dark}});
  fill(canvas, circle(c, radius));
  for (int hole = 0; hole < 6; ++hole) fill(canvas, circle(polar(c, 5, hole * 60), 1.3), palette::well);
  set_radial(canvas, c - Point{0.8, 1}, c, 2.8,
             {{0, palette::white}, {0.5, palette::steel_light}, {1, palette::steel_dark}});
  fill(canvas, circle(c, 2.8));
}

/// Down, neutral, up.
void draw_handle(const Canvas& canvas, int image) {
  constexpr double places[] = {down_y, neutral_y, up_y};
  const double y = places[image];
  draw_stalk(canvas, y);
  draw_tyre(canvas, {x, y});
  draw_rim(canvas, {x, y});
}

constexpr Item items[] = {
    Screw{{6, 6.5}, 33, 2.4},   Screw{{-6, 6.5}, 78, 2.4},   Ornament{draw_gate},
    Legend{{6, 62}, "U\nP", 7}, Legend{{6, 142}, "D\nN", 7}, Legend{{18, 199.5}, "LDG GEAR", 6},
};

constexpr Art art[] = {
    plate(picture.height, items),
    drawn_art("gear_handle", picture, draw_handle),
};

constinit Unit unit{"Gear", art};

}  // namespace artwork::panels::gear
