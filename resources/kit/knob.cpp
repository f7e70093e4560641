#include "resources/kit/knob.h"

#include <cmath>

namespace artwork {
namespace {

constexpr double up = -90;  // straight up, as `polar` counts

/// Fluting round the skirt: each tooth lit as it faces the light.
void knurl(const Canvas& canvas, Point c, double outer, double inner, int teeth) {
  fill(canvas, circle(c, outer), palette::mould_dark);
  const double step = 360.0 / teeth;
  for (int i = 0; i < teeth; ++i) {
    const double at = step * i;
    const double facing = 0.5 + 0.5 * std::cos(radians(at + 125));
    const Colour tooth = mixed(palette::mould_dark, palette::steel, 0.12 + 0.75 * facing * facing);
    fill(
        canvas,
        [=](cairo_t* cr) {
          cairo_arc(cr, c.x, c.y, outer, radians(at), radians(at + step * 0.55));
          cairo_arc_negative(cr, c.x, c.y, inner, radians(at + step * 0.55), radians(at));
          cairo_close_path(cr);
        },
        tooth);
  }
}

void cap(const Canvas& canvas, Point c, double radius) {
  set_radial(canvas, {c.x - radius * 0.35, c.y - radius * 0.5}, c, radius,
             {{0, mixed(palette::mould_light, palette::steel, 0.35)},
              {0.5, palette::mould},
              {1, palette::mould_dark}});
  fill(canvas, circle(c, radius));
  set_linear(canvas, c - Point{radius, radius}, c + Point{radius, radius},
             {{0, faded(palette::white, 0.45)},
              {0.5, faded(palette::white, 0.04)},
              {1, faded(palette::black, 0.5)}});
  stroke(canvas, circle(c, radius - 0.3), 0.7);
}

void white_line(const Canvas& canvas, Point c, double from, double to, double mark, double width) {
  const Point a = polar(c, from, up + mark), b = polar(c, to, up + mark);
  fill(canvas, capsule(a, b, width / 2 + 0.35, width / 2 + 0.35), faded(palette::black, 0.6));
  fill(canvas, capsule(a, b, width / 2, width / 2), palette::legend);
}

/// The grip across the knob, wide in the middle, blunt at the pointing end.
Path grip(Point c, double radius, double mark) {
  return [=](cairo_t* cr) {
    const auto corner = [&](double along, double aside) {
      const Point ahead = polar(c, along, up + mark);
      const Point at = polar(ahead, aside, mark);
      cairo_line_to(cr, at.x, at.y);
    };
    cairo_new_sub_path(cr);
    corner(radius, -radius * 0.20);
    corner(radius, radius * 0.20);
    corner(-radius * 0.1, radius * 0.40);
    corner(-radius * 0.92, radius * 0.26);
    corner(-radius * 0.92, -radius * 0.26);
    corner(-radius * 0.1, -radius * 0.40);
    cairo_close_path(cr);
  };
}

}  // namespace

void knob_seat(const Canvas& canvas, Point c, double radius) {
  set_radial(canvas, c, c, radius + 3,
             {{0, faded(palette::black, 0.55)},
              {0.75, faded(palette::black, 0.35)},
              {1, faded(palette::black, 0)}});
  fill(canvas, circle(c + Point{0.4, 0.8}, radius + 3));
  set_linear(canvas, c - Point{radius, radius}, c + Point{radius, radius},
             {{0, palette::steel_deep}, {0.5, palette::steel_dark}, {1, palette::steel}});
  fill(canvas, circle(c, radius));
  fill(canvas, circle(c, radius - 0.9), palette::steel_deep);
}

void pointer_knob(const Canvas& canvas, Point c, double radius, double mark) {
  cast_shadow(canvas, circle(c, radius), 1.6, 0.6);
  knurl(canvas, c, radius, radius * 0.8, static_cast<int>(radius * 3));
  cap(canvas, c, radius * 0.78);
  white_line(canvas, c, radius * 0.2, radius * 0.7, mark, 1.7);
}

void bar_knob(const Canvas& canvas, Point c, double radius, double mark) {
  cast_shadow(canvas, circle(c, radius), 1.5, 0.6);
  knurl(canvas, c, radius, radius * 0.84, static_cast<int>(radius * 3));
  cap(canvas, c, radius * 0.82);
  const Path bar = grip(c, radius * 1.02, mark);
  cast_shadow(canvas, bar, 1.3, 0.7);
  set_linear(canvas, c - Point{radius, radius}, c + Point{radius, radius},
             {{0, palette::steel}, {0.35, palette::mould_light}, {1, palette::mould_dark}});
  fill(canvas, bar);
  set_linear(canvas, c - Point{radius, radius}, c + Point{radius, radius},
             {{0, faded(palette::white, 0.6)},
              {0.5, faded(palette::white, 0.1)},
              {1, faded(palette::black, 0.6)}});
  stroke(canvas, bar, 0.6);
  white_line(canvas, c, radius * 0.25, radius * 0.9, mark, 1.7);
}

void plain_knob(const Canvas& canvas, Point c, double radius) {
  cast_shadow(canvas, circle(c, radius), 1.2, 0.6);
  knurl(canvas, c, radius, radius * 0.84, static_cast<int>(radius * 3));
  cap(canvas, c, radius * 0.8);
}

void thumb_wheel(const Canvas& canvas, Box slot) {
  const Box frame = slot.grown(2);
  set_slope(canvas, frame, {{0, palette::mould_dark}, {0.5, palette::mould}, {1, palette::steel}});
  fill(canvas, rounded(frame, 3));
  fill(canvas, rounded(slot, 1.6), palette::black);
  const Saved saved(canvas);
  rounded(slot.grown(-0.8), 1.6)(canvas.cr());
  cairo_clip(canvas.cr());
  constexpr int ribs = 26;  // about half the rim, of which the outer ones are foreshortened
  const double radius = slot.height / 2 - 0.8, y = slot.centre().y;
  for (int i = 0; i < ribs; ++i) {
    const double from = 180.0 * i / ribs - 90, to = from + 110.0 / ribs;
    const double top = y + radius * std::sin(radians(from)),
                 bottom = y + radius * std::sin(radians(to));
    const double facing = std::cos(radians(from + 28));  // the light comes from above
    const Colour rib =
        mixed(palette::mould_dark, palette::steel_light, 0.05 + 0.8 * facing * facing * facing);
    fill(canvas, rounded({slot.x, top, slot.width, bottom - top}, 0), rib);
  }
  set_linear(canvas, {slot.x, 0}, {slot.right(), 0},
             {{0, faded(palette::black, 0.75)},
              {0.25, faded(palette::black, 0)},
              {0.4, faded(palette::white, 0.12)},
              {0.7, faded(palette::black, 0.05)},
              {1, faded(palette::black, 0.8)}});
  fill(canvas, rounded(slot, 1.6));
}

void flow_switch(const Canvas& canvas, Point c, double radius, bool on) {
  plain_knob(canvas, c, radius);
  const double reach = radius * 0.56, way = on ? 0 : 90;
  const Point a = polar(c, reach, up + way), b = polar(c, reach, up + way + 180);
  const Path bar = capsule(a, b, 1.5, 1.5);
  fill(canvas, capsule(a, b, 2.1, 2.1), palette::well);
  if (on) {
    soft(canvas, bar, faded(palette::lamp_green, 0.85), 1.6);
    fill(canvas, bar, mixed(palette::lamp_green, palette::white, 0.55));
  } else {
    fill(canvas, bar, mixed(palette::steel, palette::legend, 0.2));
  }
}

}  // namespace artwork
