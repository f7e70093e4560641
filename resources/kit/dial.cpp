#include "resources/kit/dial.h"

namespace artwork {
namespace {

void bezel(const Canvas& canvas, const DialFace& d) {
  const Point c = d.centre, way{d.radius * 0.72, d.radius * 0.72};
  soft(canvas, circle(c + Point{0.6, 1.0}, d.radius + 0.6), faded(palette::black, 0.5), 1.1);
  set_linear(canvas, c - way, c + way,
             {{0, palette::mould_light}, {0.5, palette::mould}, {1, palette::mould_dark}});
  fill(canvas, circle(c, d.radius));
  set_linear(canvas, c - way, c + way,
             {{0, faded(palette::white, 0.5)},
              {0.4, faded(palette::white, 0.08)},
              {1, faded(palette::black, 0.6)}});
  stroke(canvas, circle(c, d.radius - 0.4), 0.8);
  const double inner = d.face() + 0.9;
  set_linear(canvas, c - way, c + way,
             {{0, palette::well}, {0.55, palette::mould_dark}, {1, palette::steel}});
  fill(canvas, circle(c, inner));
}

/// Two filaments under the upper rim: the wash is strongest there and dies away toward the hub.
void wash(const Canvas& canvas, const DialFace& d, Lighting lighting) {
  const double p = power(lighting);
  if (p == 0) return;
  const Saved saved(canvas);
  circle(d.centre, d.face() + 0.9)(canvas.cr());
  cairo_clip(canvas.cr());
  const Colour warm = palette::filament_wash;
  set_radial(canvas, d.centre, d.centre, d.radius,
             {{0, faded(warm, 0.02 * p)},
              {0.6, faded(warm, 0.04 * p)},
              {0.9, faded(warm, 0.16 * p)},
              {1, faded(warm, 0.4 * p)}});
  cairo_paint(canvas.cr());
  for (const double side : {-128.0, -52.0}) {
    const Point lamp = polar(d.centre, d.face(), side);
    set_radial(
        canvas, lamp, lamp, d.radius * 0.95,
        {{0, faded(palette::filament, 0.42 * p)}, {0.3, faded(warm, 0.11 * p)}, {1, faded(warm, 0)}});
    cairo_paint(canvas.cr());
  }
}

}  // namespace

double power(Lighting lighting) {
  switch (lighting) {
    case Lighting::off: return 0;
    case Lighting::dim: return 0.34;
    case Lighting::bright: return 1;
  }
  return 0;
}

void case_face(const Canvas& canvas, Box box, double corner, Lighting lighting) {
  const Box face = box.grown(-3.2);
  soft(canvas, rounded({box.x + 0.6, box.y + 1, box.width, box.height}, corner),
       faded(palette::black, 0.5), 1.1);
  set_slope(canvas, box, {{0, palette::mould_light}, {0.5, palette::mould}, {1, palette::mould_dark}});
  fill(canvas, rounded(box, corner));
  set_slope(canvas, box,
            {{0, faded(palette::white, 0.5)},
             {0.4, faded(palette::white, 0.08)},
             {1, faded(palette::black, 0.6)}});
  stroke(canvas, rounded(box.grown(-0.4), corner - 0.4), 0.8);
  set_slope(canvas, face, {{0, palette::well}, {0.6, palette::mould_dark}, {1, palette::steel}});
  fill(canvas, rounded(face.grown(0.9), corner - 2.3));
  set_slope(canvas, face,
            {{0, palette::face_light},
             {0.5, mixed(palette::face_light, palette::face_dark, 0.5)},
             {1, palette::face_dark}});
  fill(canvas, rounded(face, corner - 3.2));
  const double p = power(lighting);
  if (p == 0) return;
  const Saved saved(canvas);
  rounded(face.grown(0.9), corner - 2.3)(canvas.cr());
  cairo_clip(canvas.cr());
  for (const double side : {0.2, 0.8}) {
    const Point lamp{face.x + side * face.width, face.y};
    set_radial(canvas, lamp, lamp, face.height,
               {{0, faded(palette::filament, 0.36 * p)},
                {0.25, faded(palette::filament_wash, 0.12 * p)},
                {1, faded(palette::filament_wash, 0.015 * p)}});
    cairo_paint(canvas.cr());
  }
}

Path ring(Point c, double radius, double from, double to) {
  return [=](cairo_t* cr) {
    cairo_new_sub_path(cr);
    const auto arc = from <= to ? cairo_arc : cairo_arc_negative;  // a scale may run either way
    arc(cr, c.x, c.y, radius, radians(from), radians(to));
  };
}

void dial(const Canvas& canvas, const DialFace& d, Lighting lighting) {
  bezel(canvas, d);
  const Point c = d.centre;
  set_radial(canvas, {c.x - d.radius * 0.25, c.y - d.radius * 0.35}, c, d.face(),
             {{0, palette::face_light},
              {0.8, mixed(palette::face_light, palette::face_dark, 0.6)},
              {1, palette::face_dark}});
  fill(canvas, circle(c, d.face()));
  wash(canvas, d, lighting);
  set_linear(canvas, c - Point{0, d.face()}, c + Point{0, d.face()},
             {{0, faded(palette::black, 0.75)}, {0.3, faded(palette::black, 0)}});
  stroke(canvas, circle(c, d.face() - 0.5), 1.2);
}

void dial_glass(const Canvas& canvas, const DialFace& d) {
  const Saved saved(canvas);
  cairo_t* cr = canvas.cr();
  circle(d.centre, d.face())(cr);
  cairo_clip(cr);
  const Point from{d.centre.x - d.face() * 0.8, d.centre.y - d.face()};
  set_linear(canvas, from, d.centre,
             {{0, faded(palette::white, 0.16)},
              {0.7, faded(palette::white, 0.05)},
              {1, faded(palette::white, 0.025)}});
  cairo_set_fill_rule(cr, CAIRO_FILL_RULE_EVEN_ODD);
  circle(d.centre, d.face())(cr);
  circle(d.centre + Point{d.face() * 0.42, d.face() * 0.52}, d.face() * 1.18)(cr);
  cairo_fill(cr);
}

void dial_hub(const Canvas& canvas, Point c, double radius) {
  cast_shadow(canvas, circle(c, radius), 0.9, 0.7);
  set_radial(canvas, {c.x - radius * 0.4, c.y - radius * 0.5}, c, radius,
             {{0, palette::mould_light}, {0.6, palette::mould}, {1, palette::mould_dark}});
  fill(canvas, circle(c, radius));
}

void inscribe(const Canvas& canvas, Lighting lighting, const std::function<void(Colour ink)>& draw) {
  const double p = power(lighting);
  const Colour glow = mixed(palette::filament_wash, palette::filament, p);
  const Colour ink = p == 0 ? palette::mark : mixed(glow, palette::white, 0.2 + 0.4 * p);
  if (p > 0) haze(canvas, 1.3, 0.15 + 0.7 * p, [&] { draw(palette::filament_wash); });
  draw(ink);
}

void meter(const Canvas& canvas, const DialFace& d, Lighting lighting,
           const std::function<void(Colour ink)>& print, double boss) {
  dial(canvas, d, lighting);
  inscribe(canvas, lighting, print);
  if (boss > 0) dial_hub(canvas, d.centre, boss);
  dial_glass(canvas, d);
}

void lit_overlay(Canvas& canvas, int image, const std::function<void(const Canvas&, Lighting)>& draw) {
  if (image == 0) return;
  const Canvas by_day(canvas.size(), canvas.density(), canvas.seed());
  draw(by_day, Lighting::off);
  draw(canvas, image == 1 ? Lighting::dim : Lighting::bright);
  const Pixels day = by_day.pixels(), lit = canvas.pixels();
  for (int y = 0; y < lit.height; ++y) {
    for (int x = 0; x < lit.width; ++x) {
      if (lit.at(x, y) == day.at(x, y)) lit.at(x, y) = 0;
    }
  }
  canvas.touched();
}

}  // namespace artwork
