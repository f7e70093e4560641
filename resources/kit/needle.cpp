#include "resources/kit/needle.h"

#include <array>

namespace artwork {

void blade(const Canvas& canvas, const Blade& b) {
  const Point p = b.pivot;
  const std::array<Point, 5> outline{
      Point{p.x - b.tail, p.y - b.half_width}, Point{p.x + b.length * 0.82, p.y - b.half_width * 0.62},
      Point{p.x + b.length, p.y}, Point{p.x + b.length * 0.82, p.y + b.half_width * 0.62},
      Point{p.x - b.tail, p.y + b.half_width}};
  // A shadow all round, as it turns with the needle, where the picture has the room.
  if (p.y - b.half_width >= 2.4) soft(canvas, polygon(outline), faded(palette::black, 0.6), 1);
  fill(canvas, polygon(outline), b.colour);
  const std::array<Point, 4> shade{Point{p.x - b.tail, p.y}, Point{p.x + b.length, p.y},
                                   Point{p.x + b.length * 0.82, p.y + b.half_width * 0.62},
                                   Point{p.x - b.tail, p.y + b.half_width}};
  fill(canvas, polygon(shade), faded(palette::black, 0.22));
}

void needle_cap(const Canvas& canvas, Point c, double radius) {
  set_radial(canvas, {c.x - radius * 0.3, c.y - radius * 0.3}, c, radius,
             {{0, palette::mould_light}, {0.6, palette::mould}, {1, palette::mould_dark}});
  fill(canvas, circle(c, radius));
  stroke(canvas, circle(c, radius - 0.3), 0.5, faded(palette::black, 0.6));
}

}  // namespace artwork
