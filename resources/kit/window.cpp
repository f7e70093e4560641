#include "resources/kit/window.h"

#include <algorithm>

#include "resources/kit/dial.h"

namespace artwork {

void display_window(const Canvas& canvas, Box box) {
  const Box frame = box.grown(2);
  set_slope(canvas, frame, {{0, palette::mould_dark}, {0.5, palette::mould}, {1, palette::steel}});
  fill(canvas, rounded(frame, 2));
  fill(canvas, rounded(box.grown(0.8), 1.2), palette::well);
  set_linear(canvas, {box.x, box.y}, {box.x, box.bottom()},
             {{0, rgb(0x050607)}, {0.4, rgb(0x0D1011)}, {1, rgb(0x14181A)}});
  fill(canvas, rounded(box, 0.8));
  set_linear(canvas, {box.x, box.y}, {box.x + box.width * 0.6, box.bottom()},
             {{0, faded(palette::white, 0.13)},
              {0.45, faded(palette::white, 0.03)},
              {0.46, faded(palette::white, 0)}});
  fill(canvas, rounded(box, 0.8));
}

void opening(const Canvas& canvas, Point centre, Size size, double corner, Lighting lighting) {
  const Box hole{centre.x - size.width / 2.0, centre.y - size.height / 2.0,
                 static_cast<double>(size.width), static_cast<double>(size.height)};
  const Box frame = hole.grown(1.6);
  set_slope(canvas, frame, {{0, palette::mould_dark}, {0.5, palette::mould}, {1, palette::steel}});
  fill(canvas, rounded(frame, corner + 1.6));
  stroke(canvas, rounded(hole.grown(1), corner + 1), 0.9,
         faded(palette::filament_wash, 0.5 * power(lighting)));
  const Saved saved(canvas);
  cairo_set_operator(canvas.cr(), CAIRO_OPERATOR_CLEAR);
  fill_hard(canvas, rounded(hole, corner), palette::black);
}

void drum_frame(const Canvas& canvas, Box box, Lighting lighting) {
  const Box frame = box.grown(1.8);
  set_slope(canvas, frame, {{0, palette::well}, {0.5, palette::mould}, {1, palette::steel}});
  fill(canvas, rounded(frame, 1.6));
  stroke(canvas, rounded(frame.grown(-0.4), 1.4), 0.8,
         faded(palette::filament_wash, 0.5 * power(lighting)));
  fill(canvas, rounded(box.grown(0.6), 0.6), palette::well);
}

void drum_shade(const Canvas& canvas, Box box) {
  set_linear(canvas, {0, box.y}, {0, box.bottom()},
             {{0, faded(palette::black, 0.75)},
              {0.3, faded(palette::black, 0)},
              {0.45, faded(palette::white, 0.08)},
              {0.7, faded(palette::black, 0)},
              {1, faded(palette::black, 0.75)}});
  fill(canvas, rounded(box, 0));
}

void striped_flag(const Canvas& canvas, Box box, Colour colour) {
  fill(canvas, rounded(box, 0), palette::mark);
  const Saved saved(canvas);
  rounded(box, 0)(canvas.cr());
  cairo_clip(canvas.cr());
  for (double x = box.x - box.height; x < box.right(); x += 7) {
    line(canvas, {x, box.bottom() + 1}, {x + box.height + 2, box.y - 1}, 2.6, colour);
  }
}

void fill_hard(const Canvas& canvas, const Path& path, Colour colour) {
  const Saved saved(canvas);
  cairo_set_antialias(canvas.cr(), CAIRO_ANTIALIAS_NONE);
  fill(canvas, path, colour);
}

void fixed_button(const Canvas& canvas, Point c, double radius, Colour cap) {
  cast_shadow(canvas, circle(c, radius), 1, 0.5);
  set_linear(canvas, c - Point{radius, radius}, c + Point{radius, radius},
             {{0, palette::steel_light}, {0.5, palette::steel}, {1, palette::steel_deep}});
  fill(canvas, circle(c, radius));
  fill(canvas, circle(c, radius - 1.4), palette::steel_deep);
  set_radial(canvas, {c.x - radius * 0.25, c.y - radius * 0.35}, c, radius - 2,
             {{0, mixed(cap, palette::white, 0.35)}, {0.6, cap}, {1, mixed(cap, palette::black, 0.5)}});
  fill(canvas, circle(c, radius - 2));
}

void opening_shade(const Canvas& canvas, Point centre, Size size, double corner) {
  const double width = size.width, height = size.height, depth = std::min(width * 0.11, height * 0.3);
  const Box hole{centre.x - width / 2, centre.y - height / 2, width, height};
  const Saved saved(canvas);
  rounded(hole, corner)(canvas.cr());
  cairo_clip(canvas.cr());
  if (width != height) {
    set_linear(canvas, {0, hole.y}, {0, hole.y + depth},
               {{0, faded(palette::well, 0.7)}, {1, faded(palette::well, 0)}});
    return fill(canvas, rounded(hole, corner));
  }
  // The circle in the light lies toward the lower right: the shade is widest at the upper left.
  const Point lit = centre + Point{depth * 0.16, depth * 0.24};
  const double far = width / 2 + depth * 0.3, near = width / 2 - depth;
  set_radial(canvas, lit, lit, far,
             {{0, faded(palette::well, 0)},
              {near / far, faded(palette::well, 0)},
              {(near + far) / 2 / far, faded(palette::well, 0.24)},
              {1, faded(palette::well, 0.86)}});
  fill(canvas, circle(centre, width / 2));
  set_linear(canvas, {hole.x, hole.y}, {hole.right(), hole.bottom()},
             {{0.55, faded(palette::white, 0)}, {0.9, faded(palette::white, 0.3)}});
  stroke(canvas, circle(centre, width / 2 - 0.5), 0.8);
}

}  // namespace artwork
