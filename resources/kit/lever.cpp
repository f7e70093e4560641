#include "resources/kit/lever.h"

#include <array>

namespace artwork {
namespace {

std::array<Point, 6> hexagon(Point centre, double radius, double turned) {
  std::array<Point, 6> corners;
  for (std::size_t i = 0; i < 6; ++i) {
    corners[i] = polar(centre, radius, turned + 60.0 * static_cast<double>(i));
  }
  return corners;
}

/// Polished all round, bright where it faces the light.
void across(const Canvas& canvas, double left, double right) {
  set_linear(canvas, {left, 0}, {right, 0},
             {{0, palette::steel_dark},
              {0.16, palette::steel},
              {0.36, palette::steel_bright},
              {0.52, palette::steel_light},
              {0.8, palette::steel},
              {1, palette::steel_deep}});
}

void ball(const Canvas& canvas, Point c, double radius) {
  set_radial(canvas, {c.x - radius * 0.35, c.y - radius * 0.45}, c, radius,
             {{0, palette::white},
              {0.3, palette::steel_bright},
              {0.65, palette::steel_light},
              {0.88, palette::steel},
              {1, palette::steel_dark}});
  fill(canvas, circle(c, radius));
}

/// Seen from its end the handle is a ball over its own narrow shaft.
void end_on(const Canvas& canvas, Point hub, double radius) {
  const Point tip = hub + Point{0, -0.6};
  soft(canvas, circle(tip + Point{1.0, 1.6}, radius * 1.02), faded(palette::black, 0.6), 0.9);
  ball(canvas, tip, radius * 1.12);
  stroke(canvas, circle(tip, radius * 1.12), 0.4, faded(palette::steel_deep, 0.6));
}

}  // namespace

void lever_mount(const Canvas& canvas, Point hub, double radius) {
  set_radial(canvas, hub, hub, radius + 3.5,
             {{0, faded(palette::black, 0.5)},
              {0.7, faded(palette::black, 0.3)},
              {1, faded(palette::black, 0)}});
  fill(canvas, circle(hub + Point{0.4, 0.8}, radius + 3.5));
  set_linear(canvas, hub - Point{radius, radius}, hub + Point{radius, radius},
             {{0, palette::steel_light}, {0.45, palette::steel}, {1, palette::steel_dark}});
  fill(canvas, circle(hub, radius));
  set_linear(canvas, hub - Point{radius, radius}, hub + Point{radius, radius},
             {{0, palette::steel_dark}, {0.5, palette::mould}, {1, palette::steel}});
  fill(canvas, circle(hub, radius - 1.1));
}

void lever_nut(const Canvas& canvas, Point hub, double radius) {
  const auto outline = hexagon(hub, radius, 0);
  cast_shadow(canvas, polygon(outline), 0.7, 0.5);
  set_linear(canvas, hub - Point{radius, radius}, hub + Point{radius, radius},
             {{0, palette::steel_light}, {0.4, palette::steel}, {1, palette::steel_dark}});
  fill(canvas, polygon(outline));
  stroke(canvas, polygon(hexagon(hub, radius - 0.4, 0)), 0.5, faded(palette::white, 0.3));
  set_radial(canvas, hub, hub, radius * 0.66,
             {{0, palette::well}, {0.7, palette::steel_deep}, {1, palette::steel_dark}});
  fill(canvas, circle(hub, radius * 0.62));
}

void lever_handle(const Canvas& canvas, Point hub, double reach, Throw thrown, double ball_radius) {
  if (thrown == Throw::centre) return end_on(canvas, hub, ball_radius);
  const double way = thrown == Throw::up ? -1 : 1;
  const Point tip = hub + Point{0, way * reach};
  const double root = ball_radius * 0.5, neck = ball_radius * 0.86;
  cast_shadow(canvas, capsule(hub, tip, root, ball_radius), 1.5, 0.6);
  fill(canvas, capsule(hub, tip, root + 0.35, ball_radius + 0.3), faded(palette::steel_deep, 0.75));
  across(canvas, hub.x - neck, hub.x + neck);
  fill(canvas, capsule(hub, tip, root, neck));
  ball(canvas, tip, ball_radius);
}

}  // namespace artwork
