/// Fire handles: in, pulled, turned. What lights a handle is behind it, so a pulled one shines.
#include "resources/art.h"
#include "resources/kit/dial.h"
#include "resources/kit/legend.h"
#include "resources/kit/metal.h"

namespace artwork::panels::firesw {

constexpr Size picture{36, 45};
constexpr double pulled_by = 3, turned_by = 25;  // pixels toward the pilot, degrees
constexpr Point grip_by{0, 3};                   // from the middle of the seat

/// The well in which a handle lies, with the way it turns.
void draw_seat(const Canvas& canvas) {
  const Box seat = whole(picture).grown(-1);
  constexpr double up = -90, arrow_radius = 17.5;
  const Colour ink = faded(palette::legend, 0.8);
  sunk_field(canvas, seat, 3, palette::mould_dark);
  const Point hub = seat.centre() + grip_by;
  for (const double side : {-1.0, 1.0}) {
    const double from = up + side * 10, to = up + side * 34;
    const Point tip = polar(hub, arrow_radius, to);
    stroke(canvas, ring(hub, arrow_radius, from, to), 1.1, ink);
    for (const double barb : {145.0, 215.0}) {
      line(canvas, tip, polar(tip, 3.6, to + side * 90 + barb), 1.1, ink);
    }
  }
}

/// The grip: a red lens all over, thick at its ends.
void draw_grip(const Canvas& canvas, Point c, std::string_view text, bool lit) {
  const Box grip{c.x - 14, c.y - 9.5, 28, 19};
  if (lit) soft(canvas, rounded(grip, 4), faded(palette::lamp_red, 0.9), 2);
  cast_shadow(canvas, rounded(grip, 4), lit ? 2.4 : 1.2, 0.7);
  const Colour colour = lit ? palette::lamp_red : mixed(palette::guard_dark, palette::guard, 0.35);
  set_radial(canvas, c - Point{lit ? 0.0 : 5.0, lit ? 0.0 : 6.0}, c, 19,
             {{0, mixed(colour, palette::white, lit ? 0.55 : 0.12)},
              {0.55, colour},
              {1, mixed(colour, palette::black, 0.45)}});
  fill(canvas, rounded(grip, 4));
  set_slope(canvas, grip,
            {{0, faded(palette::white, 0.6)},
             {0.4, faded(palette::white, 0.1)},
             {1, faded(palette::black, 0.6)}});
  stroke(canvas, rounded(grip.grown(-0.5), 3.5), 1);
  const Colour ink = lit ? rgb(0x260400) : mixed(palette::legend, palette::guard, 0.25);
  print(canvas, c, text, {.size = 8, .colour = ink});
}

/// What comes out of the panel behind a pulled grip.
void draw_shaft(const Canvas& canvas) {
  fill(canvas, rounded({-6, -10.5, 12, 12}, 5), palette::black);
  set_linear(canvas, {-4, 0}, {4, 0},
             {{0, palette::steel_dark}, {0.35, palette::steel_light}, {1, palette::steel_deep}});
  fill(canvas, rounded({-4, -9.5, 8, 10}, 2));
}

void draw_handle(const Canvas& canvas, int image, std::string_view text) {
  draw_seat(canvas);
  const Point c = whole(picture).centre() + grip_by;
  const Saved saved(canvas);
  cairo_translate(canvas.cr(), c.x, c.y);
  if (image == 2) cairo_rotate(canvas.cr(), radians(turned_by));
  if (image > 0) draw_shaft(canvas);
  draw_grip(canvas, {0, image > 0 ? pulled_by : 0}, text, image > 0);
}

void draw_engine_1(const Canvas& canvas, int image) { draw_handle(canvas, image, "ENG 1\nFIRE"); }
void draw_apu(const Canvas& canvas, int image) { draw_handle(canvas, image, "APU\nFIRE"); }
void draw_engine_2(const Canvas& canvas, int image) { draw_handle(canvas, image, "ENG 2\nFIRE"); }

constexpr Item items[] = {
    Screw{{6, 28}, 12, 2.8},
    Screw{{-6, 28}, 57, 2.8},
};

constexpr Art art[] = {
    plate(56, items),
    drawn_art("left_fire_handle", picture, draw_engine_1),
    drawn_art("apu_fire_handle", picture, draw_apu),
    drawn_art("right_fire_handle", picture, draw_engine_2),
};

constinit Unit unit{"Firesw", art};

}  // namespace artwork::panels::firesw
