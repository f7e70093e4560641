#include "resources/kit/metal.h"

#include <algorithm>
#include <cmath>

namespace artwork {
namespace {

constexpr double seam = 1;  // the dark gap between two plates, shared by both
constexpr double corner = 2.5;

void enamel(const Canvas& canvas, const Path& shape) {
  const Box box = whole(canvas.size());
  set_linear(canvas, {0, 0}, {box.width * 0.35, box.height},
             {{0, palette::plate_light}, {0.45, palette::plate}, {1, palette::plate_dark}});
  fill(canvas, shape);
}

std::uint32_t lightened(std::uint32_t pixel, double by) {
  const auto part = [&](int shift) {
    const double value = ((pixel >> shift) & 0xFF) + by;
    return static_cast<std::uint32_t>(std::clamp(value + 0.5, 0.0, 255.0)) << shift;
  };
  return (pixel & 0xFF000000u) | part(16) | part(8) | part(0);
}

/// Sprayed enamel: a fine orange peel, and clouds where the coat is thicker.
void grain(const Canvas& canvas) {
  const Pixels pixels = canvas.pixels();
  const double density = canvas.density();
  for (int y = 0; y < pixels.height; ++y) {
    for (int x = 0; x < pixels.width; ++x) {
      const auto u = static_cast<std::uint32_t>(x), v = static_cast<std::uint32_t>(y);
      double by = (noise(u, v, canvas.seed()) - 0.5) * 7;
      by += (clouds(x, y, 1.6 * density, canvas.seed() + 1) - 0.5) * 7;
      by += (clouds(x, y, 37 * density, canvas.seed() + 2) - 0.5) * 7;
      std::uint32_t& pixel = pixels.at(x, y);
      if (pixel >> 24 == 0xFF) pixel = lightened(pixel, by);
    }
  }
  canvas.touched();
}

double chance(const Canvas& canvas, std::uint32_t what, std::uint32_t which) {
  return noise(what, which, canvas.seed() ^ 0xA11C0DEu);
}

/// Hair scratches, mostly along the sweep of a sleeve.
void scratches(const Canvas& canvas) {
  const Box box = whole(canvas.size());
  const auto count = static_cast<std::uint32_t>(box.width * box.height / 4200) + 1;
  for (std::uint32_t i = 0; i < count; ++i) {
    const Point from{chance(canvas, i, 1) * box.width, chance(canvas, i, 2) * box.height};
    const double length = 3 + 9 * chance(canvas, i, 3);
    const Point to = polar(from, length, -30 + 110 * (chance(canvas, i, 4) - 0.5));
    const double strength = 0.03 + 0.07 * chance(canvas, i, 5);
    line(canvas, from, to, 0.45, faded(palette::white, strength));
    line(canvas, from + Point{0.4, 0.5}, to + Point{0.4, 0.5}, 0.4,
         faded(palette::black, strength * 0.8));
  }
}

/// Along the rim the paint is chipped to the alloy here and there.
void chips(const Canvas& canvas) {
  const Box rim = whole(canvas.size()).grown(-seam - 0.2);
  const auto count = static_cast<std::uint32_t>((rim.width + rim.height) / 26);
  for (std::uint32_t i = 0; i < count; ++i) {
    const double along = chance(canvas, i, 11), length = 0.8 + 2.6 * chance(canvas, i, 12);
    const double strength = 0.18 + 0.4 * chance(canvas, i, 13);
    const bool level = chance(canvas, i, 14) < rim.width / (rim.width + rim.height);
    const bool far = chance(canvas, i, 15) < 0.5;
    const Point at = level ? Point{rim.x + along * (rim.width - 4), far ? rim.bottom() : rim.y}
                           : Point{far ? rim.right() : rim.x, rim.y + along * (rim.height - 4)};
    const Point to = level ? at + Point{length, 0} : at + Point{0, length};
    line(canvas, at, to, 0.9, faded(palette::alloy, strength));
  }
}

/// Light on the upper and left bevel, shade on the lower and right one.
void bevel(const Canvas& canvas, const Box& box) {
  const Saved saved(canvas);
  cairo_t* cr = canvas.cr();
  rounded(box, corner)(cr);
  cairo_clip(cr);
  const double width = 1.1;
  set_slope(canvas, box,
            {{0, faded(palette::white, 0.42)},
             {0.42, faded(palette::white, 0.20)},
             {0.5, faded(palette::black, 0.12)},
             {1, faded(palette::black, 0.5)}});
  stroke(canvas, rounded(box.grown(-width / 2), corner), width);
}

}  // namespace

void painted_plate(const Canvas& canvas) {
  const Box box = whole(canvas.size());
  set_colour(canvas, palette::plate_seam);
  cairo_paint(canvas.cr());
  const Box face = box.grown(-seam / 2);
  enamel(canvas, rounded(face, corner));
  grain(canvas);
  scratches(canvas);
  bevel(canvas, face);
  chips(canvas);
}

void screw(const Canvas& canvas, Point c, double radius, double turned) {
  soft(canvas, circle({c.x + 0.3, c.y + 0.5}, radius + 1), faded(palette::black, 0.45), 0.7);
  fill(canvas, circle(c, radius + 0.9), palette::steel_deep);
  stroke(canvas, circle({c.x + 0.2, c.y + 0.25}, radius + 0.95), 0.35, faded(palette::white, 0.22));
  set_radial(canvas, {c.x - radius * 0.4, c.y - radius * 0.5}, c, radius * 1.15,
             {{0, palette::steel_light}, {0.55, palette::steel}, {1, palette::steel_dark}});
  fill(canvas, circle(c, radius));
  for (const double arm : {turned, turned + 90}) {
    const Point from = polar(c, radius * 0.66, arm), to = polar(c, radius * 0.66, arm + 180);
    const Point lip{0.25, 0.35};
    line(canvas, from + lip, to + lip, radius * 0.42, faded(palette::white, 0.35));
    line(canvas, from, to, radius * 0.42, palette::steel_deep);
  }
}

void corner_screws(const Canvas& canvas, double inset, double radius) {
  const Box box = whole(canvas.size()).grown(-inset);
  std::uint32_t which = 0;
  for (const Point at : {Point{box.x, box.y}, Point{box.right(), box.y}, Point{box.x, box.bottom()},
                         Point{box.right(), box.bottom()}}) {
    screw(canvas, at, radius, 90 * noise(which++, 77, canvas.seed()));
  }
}

void sunk_field(const Canvas& canvas, Box box, double corner_radius, Colour floor) {
  fill(canvas, rounded(box.grown(0.8), corner_radius + 0.8), faded(palette::black, 0.35));
  set_linear(canvas, {box.x, box.y}, {box.x, box.bottom()},
             {{0, mixed(floor, palette::black, 0.35)}, {0.3, floor}, {1, floor}});
  fill(canvas, rounded(box, corner_radius));
  set_slope(canvas, box,
            {{0, faded(palette::black, 0.65)},
             {0.5, faded(palette::black, 0.1)},
             {1, faded(palette::white, 0.3)}});
  stroke(canvas, rounded(box.grown(0.4), corner_radius), 0.8);
}

namespace {

/// What is cut into the plate has a dark edge above and a light one below, a device pixel wide.
void engrave(const Canvas& canvas, const Path& path) {
  constexpr double width = 1;
  const double edge = canvas.hairline(), aside = (width + edge) / 2;
  const auto shifted = [&](double by) {
    return [&path, by](cairo_t* cr) {
      cairo_translate(cr, by, by);
      path(cr);
      cairo_translate(cr, -by, -by);
    };
  };
  stroke(canvas, shifted(-aside), edge, faded(palette::black, 0.5));
  stroke(canvas, shifted(aside), edge, faded(palette::white, 0.2));
  stroke(canvas, path, width, palette::legend);
}

}  // namespace

void engraved_line(const Canvas& canvas, Point from, Point to) {
  engrave(canvas, [=](cairo_t* cr) {
    cairo_move_to(cr, from.x, from.y);
    cairo_line_to(cr, to.x, to.y);
  });
}

void engraved_bracket(const Canvas& canvas, Point from, double length, double rise) {
  const double x1 = canvas.snapped(from.x) + 0.5, x2 = canvas.snapped(from.x + length) + 0.5;
  const double y = canvas.snapped(from.y) + 0.5;
  engrave(canvas, [=](cairo_t* cr) {
    cairo_move_to(cr, x1, y - rise);
    cairo_line_to(cr, x1, y);
    cairo_line_to(cr, x2, y);
    cairo_line_to(cr, x2, y - rise);
  });
}

void polish(const Canvas& canvas, Point centre, double radius) {
  set_radial(canvas, {centre.x - radius * 0.2, centre.y - radius * 0.2}, centre, radius,
             {{0, faded(palette::white, 0.10)}, {1, faded(palette::white, 0)}});
  fill(canvas, circle(centre, radius));
}

}  // namespace artwork
