/// Weather radar: a dark tube with its range rings, and two keys in the bezel.
#include "module/catalogue.h"
#include "resources/kit/window.h"
#include "resources/panels/windows/label_plate.h"

namespace artwork::panels::caradar {

constexpr std::string_view atc = "open_close_atc_window", map = "open_close_flightmap_window";

constexpr Box tube{14, 27, 134, 96};

/// The sweep of a radar that is not transmitting: rings and a fan of bearings, in phosphor.
void draw_scope(const Canvas& canvas, bool lit) {
  const Saved saved(canvas);
  rounded(tube, 7)(canvas.cr());
  cairo_clip(canvas.cr());
  const Point apex{tube.centre().x, tube.bottom() - 8};
  const Colour phosphor = lit ? rgb(0x4FE08A) : rgb(0x2B5A41);
  const double strength = lit ? 0.85 : 0.8;
  if (lit) {
    set_radial(canvas, apex, apex, 92, {{0, rgb(0x1F7A48, 0.5)}, {1, rgb(0x0A2A1A, 0.15)}});
    fill(canvas, rounded(tube, 7));
  }
  cairo_set_line_width(canvas.cr(), 0.9);
  for (const double radius : {22.0, 44.0, 66.0}) {
    set_colour(canvas, faded(phosphor, strength));
    cairo_new_path(canvas.cr());
    cairo_arc(canvas.cr(), apex.x, apex.y, radius, radians(210), radians(330));
    cairo_stroke(canvas.cr());
    const Point label = polar(apex, radius - 6, 225);
    print(canvas, label,
          radius < 30   ? "10"
          : radius < 50 ? "20"
                        : "30",
          {.size = 6, .colour = faded(phosphor, strength)});
  }
  for (const double bearing : {210.0, 240.0, 270.0, 300.0, 330.0}) {
    line(canvas, polar(apex, 4, bearing), polar(apex, 74, bearing), 0.7, faded(phosphor, strength));
  }
  print(canvas, {tube.x + 19, tube.y + 9}, "STBY", {.size = 7, .colour = phosphor});
}

void draw_glass(const Canvas& canvas) {
  const Saved saved(canvas);
  rounded(tube, 7)(canvas.cr());
  cairo_clip(canvas.cr());
  set_linear(canvas, {tube.x, tube.y}, {tube.x + 60, tube.bottom()},
             {{0, faded(palette::white, 0.16)},
              {0.35, faded(palette::white, 0.02)},
              {1, faded(palette::white, 0)}});
  cairo_paint(canvas.cr());
}

void draw_keys(const Board& board) {
  label_key(board.canvas, part_box(board.gauge, atc).grown(-0.7), 1.5);
  label_key(board.canvas, part_box(board.gauge, map).grown(-0.7), 1.5);
  display_window(board.canvas, tube);
}

/// Dark, lit: the tube, and the words over the plate.
void draw_face(const Canvas& canvas, int image) {
  const Colour ink = image == 1 ? palette::filament : palette::legend;
  fill(canvas, rounded(tube, 7), palette::face_dark);
  draw_scope(canvas, image == 1);
  draw_glass(canvas);
  const GaugeHeader& gauge = tarnvale::caradar.header;
  print(canvas, part_box(gauge, atc).centre(), "A", {.size = 7, .colour = ink});
  print(canvas, part_box(gauge, map).centre(), "M", {.size = 7, .colour = ink});
  print(canvas, {32, 14}, "ATC", {.size = 7, .colour = ink});
  print(canvas, {87, 14}, "MAP", {.size = 7, .colour = ink});
  print(canvas, {124, 14}, "WX RADAR", {.size = 7.5, .colour = ink});
}

constexpr Item items[] = {CornerScrews{7, 3}, Ornament{draw_keys}};

constexpr Art art[] = {
    plate(136, items),
    drawn_art("screen_lighting", {162, 136}, draw_face),
};

constinit Unit unit{"Caradar", art};

}  // namespace artwork::panels::caradar
