/// Start page: the aircraft on the apron before sunrise, and a column of keys for each pilot.
#include <algorithm>
#include <cmath>

#include "resources/art.h"
#include "resources/kit/legend.h"
#include "resources/rows/board.h"

namespace artwork::panels::intro {

constexpr double horizon = 318;
constexpr Colour night = rgb(0x070D1C), dusk = rgb(0x1C2F55), glow = rgb(0xB8624A), sun = rgb(0xFFC98A);
constexpr Colour ground = rgb(0x0C1015), silhouette = rgb(0x05080D);

void draw_sky(const Canvas& canvas) {
  const Box all = whole(canvas.size());
  set_linear(canvas, {0, 0}, {0, horizon},
             {{0, night}, {0.45, dusk}, {0.78, rgb(0x5C4A6E)}, {0.93, glow}, {1, sun}});
  fill(canvas, [&](cairo_t* cr) { cairo_rectangle(cr, 0, 0, all.width, horizon); });
  set_radial(canvas, {640, horizon}, {640, horizon}, 520,
             {{0, faded(sun, 0.75)}, {0.25, faded(glow, 0.4)}, {1, faded(glow, 0)}});
  fill(canvas, [&](cairo_t* cr) { cairo_rectangle(cr, 0, 0, all.width, horizon); });
  for (std::uint32_t star = 0; star < 190; ++star) {
    const double x = noise(star, 1, 77) * all.width, y = std::pow(noise(star, 2, 77), 1.6) * 210;
    const double bright = (0.2 + 0.8 * noise(star, 3, 77)) * (1 - y / 230);
    fill(canvas, circle({x, y}, 0.5 + 0.5 * noise(star, 4, 77)), faded(palette::white, bright));
  }
}

/// Hills along the horizon, `height` at most.
void draw_hills(const Canvas& canvas, double height, double span, std::uint32_t seed, Colour colour) {
  fill(
      canvas,
      [&](cairo_t* cr) {
        cairo_move_to(cr, 0, horizon + 2);
        for (double x = 0; x <= 1280; x += 4) {
          cairo_line_to(cr, x, horizon - height * clouds(x, 0.5, span, seed));
        }
        cairo_line_to(cr, 1280, horizon + 2);
        cairo_close_path(cr);
      },
      colour);
}

/// A lamp and its halo.
void draw_lamp(const Canvas& canvas, Point at, double radius, Colour colour) {
  set_radial(canvas, at, at, radius * 6, {{0, faded(colour, 0.5)}, {1, faded(colour, 0)}});
  fill(canvas, circle(at, radius * 6));
  fill(canvas, circle(at, radius), mixed(colour, palette::white, 0.6));
}

/// The apron, and the runway's lamps behind it in perspective.
void draw_field(const Canvas& canvas) {
  const Box all = whole(canvas.size());
  set_linear(canvas, {0, horizon}, {0, all.height},
             {{0, rgb(0x2A2430)}, {0.25, rgb(0x161A22)}, {1, ground}});
  fill(canvas, [&](cairo_t* cr) { cairo_rectangle(cr, 0, horizon, all.width, all.height - horizon); });
  set_radial(canvas, {640, horizon}, {640, horizon + 30}, 420,
             {{0, faded(sun, 0.28)}, {1, faded(sun, 0)}});
  fill(canvas, [&](cairo_t* cr) { cairo_rectangle(cr, 0, horizon, all.width, all.height - horizon); });
  for (const double side : {-1.0, 1.0}) {
    for (int row = 1; row < 26; ++row) {
      const double depth = 26.0 / (27 - row);
      const Point at{640 + side * (30 + 52 * depth) * 1.15, horizon + 4 + 9 * depth};
      if (at.y < all.height - 6) draw_lamp(canvas, at, 0.5 + 0.12 * depth, rgb(0xFFE0A0));
    }
  }
  for (int lamp = 0; lamp < 34; ++lamp) {
    const double x = 20 + 1240 * noise(static_cast<std::uint32_t>(lamp), 9, 5);
    draw_lamp(canvas, {x, horizon + 1.5 + 3 * noise(static_cast<std::uint32_t>(lamp), 8, 5)}, 0.55,
              lamp % 5 == 0 ? rgb(0x64A8FF) : rgb(0xFFC070));
  }
}

using Corners = std::initializer_list<Point>;

void shape(const Canvas& canvas, Point c, Corners corners, Colour colour) {
  fill(
      canvas,
      [&](cairo_t* cr) {
        for (const Point& p : corners) cairo_line_to(cr, c.x + p.x, c.y + p.y);
        cairo_close_path(cr);
      },
      colour);
}

/// One side of the aircraft from ahead; `side` mirrors it.
void draw_side(const Canvas& canvas, Point c, double side, Colour body) {
  shape(canvas, c,
        {{side * 18, 12},
         {side * 205, -6},
         {side * 208, -9},
         {side * 206, -3},
         {side * 60, 24},
         {side * 14, 27}},
        body);                                                                        // wing
  shape(canvas, c, {{0, -96}, {side * 74, -101}, {side * 75, -98}, {0, -89}}, body);  // tailplane
  fill(canvas, circle(c + Point{side * 44, -2}, 17), body);                           // engine
  fill(canvas, circle(c + Point{side * 44, -2}, 12), rgb(0x10151C));
  fill(canvas, circle(c + Point{side * 44, -2}, 3.5), rgb(0x39424E));
  shape(canvas, c, {{side * 20, -8}, {side * 34, -6}, {side * 34, 2}, {side * 20, 4}}, body);
  shape(canvas, c, {{side * 40, 20}, {side * 43, 20}, {side * 44, 54}, {side * 40, 54}}, body);
  fill(canvas, rounded({c.x + side * 42 - 7, c.y + 46, 14, 18}, 4), silhouette);  // main wheels
}

/// The twin-jet from ahead, its nose to the viewer.
void draw_aircraft(const Canvas& canvas) {
  const Point c{640, 352};
  const Colour body = rgb(0x121A24);
  soft(canvas, capsule({c.x - 190, c.y + 66}, {c.x + 190, c.y + 66}, 7, 7), faded(palette::black, 0.8),
       6);
  shape(canvas, c, {{-3.5, -30}, {-2.5, -104}, {2.5, -104}, {3.5, -30}}, body);  // fin
  draw_side(canvas, c, -1, body);
  draw_side(canvas, c, 1, body);
  shape(canvas, c, {{-1.6, 26}, {1.6, 26}, {2, 58}, {-2, 58}}, body);
  fill(canvas, rounded({c.x - 6, c.y + 50, 5, 14}, 2), silhouette);
  fill(canvas, rounded({c.x + 1, c.y + 50, 5, 14}, 2), silhouette);
  const Path fuselage = circle(c, 33);
  set_radial(canvas, c + Point{-6, -20}, c, 34, {{0, rgb(0x3A4859)}, {0.6, rgb(0x1D2733)}, {1, body}});
  fill(canvas, fuselage);
  stroke(
      canvas, [&](cairo_t* cr) { cairo_arc(cr, c.x, c.y, 32.6, radians(200), radians(340)); }, 0.9,
      faded(sun, 0.75));
  // The cockpit's windows, lit from within.
  for (const double side : {-1.0, 1.0}) {
    shape(canvas, c, {{side * 1, -16}, {side * 12, -15}, {side * 10.5, -8}, {side * 1, -8.5}},
          rgb(0xFFD08A));
    shape(canvas, c, {{side * 13.5, -14.5}, {side * 21, -11}, {side * 18, -6}, {side * 12, -7.6}},
          rgb(0xE8A75A));
  }
}

/// The last light lies along what looks up.
void draw_rim_light(const Canvas& canvas) {
  const Point c{640, 352};
  const Colour warm = faded(sun, 0.5);
  for (const double side : {-1.0, 1.0}) {
    line(canvas, c + Point{side * 62, 8}, c + Point{side * 204, -6.5}, 0.9, warm);
    line(canvas, c + Point{side * 4, -95.6}, c + Point{side * 74, -100.6}, 0.9, warm);
    const Point engine = c + Point{side * 44, -2};
    stroke(
        canvas,
        [&](cairo_t* cr) { cairo_arc(cr, engine.x, engine.y, 16.6, radians(205), radians(335)); }, 0.9,
        faded(sun, 0.45));
  }
}

/// What the landing lights throw on the apron before the nose.
void draw_light_on_apron(const Canvas& canvas) {
  for (const double side : {-1.0, 1.0}) {
    const Saved saved(canvas);
    cairo_translate(canvas.cr(), 640 + side * 46, 446);
    cairo_scale(canvas.cr(), 1, 0.2);
    set_radial(canvas, {0, 0}, {0, 0}, 170,
               {{0, rgb(0xFFF2D8, 0.30)}, {0.5, rgb(0xFFE8C0, 0.10)}, {1, rgb(0xFFE8C0, 0)}});
    fill(canvas, circle({0, 0}, 170));
  }
}

void draw_lights(const Canvas& canvas) {
  const Point c{640, 352};
  draw_lamp(canvas, c + Point{-206, -7}, 1.6, rgb(0x38E070));  // its right wing
  draw_lamp(canvas, c + Point{206, -7}, 1.6, rgb(0xFF4030));
  draw_lamp(canvas, c + Point{0, -105}, 1.3, rgb(0xFF5040));
  draw_lamp(canvas, c + Point{-27, 17}, 1.7, rgb(0xFFF2D8));
  draw_lamp(canvas, c + Point{27, 17}, 1.7, rgb(0xFFF2D8));
}

/// So fine that it only keeps the sky's colours from forming bands.
void add_grain(const Canvas& canvas) {
  const Pixels pixels = canvas.pixels();
  for (int y = 0; y < pixels.height; ++y) {
    for (int x = 0; x < pixels.width; ++x) {
      std::uint32_t& pixel = pixels.at(x, y);
      const int by = static_cast<int>(
                         noise(static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y), 31) * 7) -
                     3;
      std::uint32_t grained = 0xFF000000u;
      for (int shift = 0; shift <= 16; shift += 8) {
        const int part = static_cast<int>((pixel >> shift) & 0xFF) + by;
        grained |= static_cast<std::uint32_t>(std::clamp(part, 0, 255)) << shift;
      }
      pixel = grained;
    }
  }
  canvas.touched();
}

void draw_title(const Canvas& canvas) {
  const Point at{640, 74};
  soft(canvas, capsule({470, 82}, {810, 82}, 34, 34), faded(palette::black, 0.35), 26);
  print(canvas, at, "T A R N V A L E", {.size = 46, .colour = rgb(0xF6EFE0)});
  line(canvas, {500, 108}, {780, 108}, 1, faded(sun, 0.8));
  print(canvas, {640, 126}, "TWIN-JET COCKPIT", {.size = 15, .colour = rgb(0xE9C79B), .bold = false});
}

struct Choice {
  std::string_view area, title, meaning;
  Colour lamp;
};

constexpr Choice captain[] = {
    {"captain_cold_and_dark", "COLD AND DARK", "everything off", palette::lamp_blue},
    {"captain_ready_to_start", "READY TO START", "APU and power on", palette::lamp_amber},
    {"captain_running", "RUNNING", "both engines idle", palette::lamp_green},
};
constexpr Choice first_officer[] = {
    {"first_officer_cold_and_dark", "COLD AND DARK", "everything off", palette::lamp_blue},
    {"first_officer_ready_to_start", "READY TO START", "APU and power on", palette::lamp_amber},
    {"first_officer_running", "RUNNING", "both engines idle", palette::lamp_green},
};

void draw_key(const Board& board, const Choice& choice) {
  const Canvas& canvas = board.canvas;
  const Box box = part_box(board.gauge, choice.area).grown(-1);
  const Path key = rounded(box, 6);
  cast_shadow(canvas, key, 2, 0.5);
  set_linear(canvas, {box.x, box.y}, {box.x, box.bottom()},
             {{0, rgb(0x2B3A52, 0.94)}, {0.5, rgb(0x1A2438, 0.94)}, {1, rgb(0x121A2A, 0.94)}});
  fill(canvas, key);
  stroke(canvas, rounded(box.grown(-0.6), 5.4), 1.1, faded(rgb(0xC9D6E8), 0.55));
  draw_lamp(canvas, {box.x + 18, box.centre().y}, 3, choice.lamp);
  print(canvas, {box.x + 36, box.y + 12.5}, choice.title, {.size = 13, .colour = rgb(0xF4F1E6)},
        Anchor::left);
  print(canvas, {box.x + 36, box.y + 25.5}, choice.meaning,
        {.size = 9.5, .colour = rgb(0xB9C4D4), .bold = false}, Anchor::left);
}

/// Its ground reaches out to the page's nearer side.
void draw_column(const Board& board, std::string_view who, std::span<const Choice, 3> choices) {
  const Box top = part_box(board.gauge, choices.front().area);
  const double page = board.canvas.size().width, corner = 8;
  const bool left = top.centre().x < page / 2;
  const double from = left ? -corner : top.x - 14, to = left ? top.right() + 14 : page + corner;
  const Box panel{from, top.y - 46, to - from, 174};
  fill(board.canvas, rounded(panel, corner), faded(rgb(0x060A12), 0.5));
  print(board.canvas, {top.centre().x, top.y - 21}, who, {.size = 17, .colour = rgb(0xF6EFE0)});
  for (const Choice& choice : choices) draw_key(board, choice);
}

void draw_page(const Board& board) {
  const Canvas& canvas = board.canvas;
  draw_sky(canvas);
  draw_hills(canvas, 46, 150, 3, rgb(0x3A3048));
  draw_hills(canvas, 24, 60, 9, rgb(0x1A1C28));
  draw_field(canvas);
  draw_light_on_apron(canvas);
  draw_aircraft(canvas);
  draw_rim_light(canvas);
  draw_lights(canvas);
  add_grain(canvas);
  draw_title(canvas);
  draw_column(board, "CAPTAIN", captain);
  draw_column(board, "FIRST OFFICER", first_officer);
  print(canvas, {640, 476}, "Choose a seat and how you find the aircraft",
        {.size = 13, .colour = rgb(0xD8CFC0), .bold = false});
}

constexpr Item items[] = {Ornament{draw_page}};

constexpr Art art[] = {plate(497, items).in_full_colour()};

constinit Unit unit{"Intro", art};

}  // namespace artwork::panels::intro
