#include "resources/kit/flight.h"

#include "resources/kit/dial.h"
#include "resources/kit/window.h"

namespace artwork {

void bank_scale(const Canvas& canvas, Point centre, double radius, double length, Colour ink) {
  for (const int bank : {10, 20, 30, 45, 60}) {
    const bool major = bank % 30 == 0;
    for (const int side : {-1, 1}) {
      const double at = -90 + side * bank;
      line(canvas, polar(centre, radius, at),
           polar(centre, radius + (major ? length : length * 0.6), at), major ? 1.7 : 1, ink);
    }
  }
  const Point top[] = {polar(centre, radius - 0.5, -90), polar(centre, radius + length, -94.5),
                       polar(centre, radius + length, -85.5)};
  fill(canvas, polygon(top), ink);
}

Colour symbol_paint(Lighting lighting) {
  return mixed(palette::symbol, palette::filament, 0.4 * power(lighting));
}

void aircraft_symbol(const Canvas& canvas, Point centre, const AircraftSymbol& s, Colour paint) {
  const double half = s.thick / 2;
  const auto draw = [&](double grow, Colour colour) {
    for (const int side : {-1, 1}) {
      const double inner = centre.x + side * s.from, outer = centre.x + side * s.to;
      const double left = side < 0 ? outer : inner;
      fill_hard(canvas, rounded(Box{left, centre.y - half, s.to - s.from, s.thick}.grown(grow), 0),
                colour);
      const double stem = side < 0 ? inner - s.thick : inner;
      fill_hard(canvas, rounded(Box{stem, centre.y - half, s.thick, s.drop}.grown(grow), 0), colour);
    }
    fill_hard(canvas, rounded(Box{centre.x - half, centre.y - half, s.thick, s.thick}.grown(grow), 0),
              colour);
  };
  draw(1, palette::well);
  draw(0, paint);
}

void deviation_dots(const Canvas& canvas, Point middle, double pitch, Colour ink) {
  for (const int dot : {-2, -1, 1, 2}) {
    stroke(canvas, circle({middle.x, middle.y + dot * pitch}, 1.7), 0.9, ink);
  }
  line(canvas, {middle.x - 2.8, middle.y}, {middle.x + 2.8, middle.y}, 1.5, ink);
}

void command_bar(const Canvas& canvas, Box box, Colour colour) {
  fill(canvas, rounded(box, 1.2), mixed(colour, palette::black, 0.6));
  const bool level = box.width > box.height;
  const Box core{box.x + 0.5, box.y + 0.5, box.width - 1, box.height - 1};
  set_linear(canvas, {core.x, core.y},
             level ? Point{core.x, core.bottom()} : Point{core.right(), core.y},
             {{0, mixed(colour, palette::white, 0.4)},
              {0.5, colour},
              {1, mixed(colour, palette::black, 0.2)}});
  fill(canvas, rounded(core, 0.8));
}

void side_pointer(const Canvas& canvas, Box box, int tip, Colour colour) {
  const double point = tip < 0 ? box.x : box.right(), back = tip < 0 ? box.right() : box.x;
  const double neck = back + (point - back) * 0.45;
  const double y = box.centre().y;
  edged(canvas, {{point, y}, {neck, box.y}, {back, box.y}, {back, box.bottom()}, {neck, box.bottom()}},
        colour);
}

void edged(const Canvas& canvas, std::initializer_list<Point> corners, Colour colour) {
  const Path shape = polygon(std::span(corners.begin(), corners.size()));
  fill(canvas, shape, colour);
  const Saved saved(canvas);
  shape(canvas.cr());
  cairo_clip(canvas.cr());
  cairo_set_line_join(canvas.cr(), CAIRO_LINE_JOIN_ROUND);
  stroke(
      canvas, [&](cairo_t* cr) { shape(cr), cairo_close_path(cr); }, 1.2,
      mixed(colour, palette::black, 0.65));
}

}  // namespace artwork
