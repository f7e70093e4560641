/// Brushes that all parts share: gradients, paths, soft shadows and glows, even noise.
#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <span>

#include "resources/kit/canvas.h"
#include "resources/kit/palette.h"

namespace artwork {

inline constexpr double pi = 3.14159265358979323846;

constexpr double radians(double degrees) { return degrees * pi / 180; }

/// The point `radius` away from `centre` in the direction `degrees`, clockwise from the right.
Point polar(Point centre, double radius, double degrees);

/// A colour of a gradient, at 0 its start and at 1 its end.
struct Stop {
  double at;
  Colour colour;
};

using Stops = std::initializer_list<Stop>;

void set_colour(const Canvas& canvas, Colour colour);
/// Along the line from `from` to `to`.
void set_linear(const Canvas& canvas, Point from, Point to, Stops stops);
/// As light from above left falls on the box's bevel: from its upper left corner to its lower right one, the
/// middle at both others, so that an edge is lit or in shade over its whole length.
void set_slope(const Canvas& canvas, Box box, Stops stops);
/// From `focus`, the brightest spot, out to the circle of `radius` about `centre`.
void set_radial(const Canvas& canvas, Point focus, Point centre, double radius, Stops stops);

using Path = std::function<void(cairo_t*)>;

Path rounded(Box box, double radius);
Path circle(Point centre, double radius);
Path polygon(std::span<const Point> corners);
/// A bar with round ends.
Path capsule(Point from, Point to, double from_radius, double to_radius);

void fill(const Canvas& canvas, const Path& path, Colour colour);
/// Fills with the source set last.
void fill(const Canvas& canvas, const Path& path);
void stroke(const Canvas& canvas, const Path& path, double width, Colour colour);
void stroke(const Canvas& canvas, const Path& path, double width);
void line(const Canvas& canvas, Point from, Point to, double width, Colour colour);
/// A level mark about `y`, on whole device pixels so that it is as bright as its paint.
void level_mark(const Canvas& canvas, double from, double to, double y, double width, Colour colour);

/// The shape filled with `colour` and softened by `blur` gauge pixels.
void soft(const Canvas& canvas, const Path& path, Colour colour, double blur);

/// What the light from above left leaves dark: the shape's shadow, fallen to the lower right by
/// `height` gauge pixels.
void cast_shadow(const Canvas& canvas, const Path& path, double height, double strength = 0.55);

/// Softens everything that `draw` draws and lays it down in its own colours.
void haze(const Canvas& canvas, double blur, double strength, const std::function<void()>& draw);

/// Even noise, 0 to 1, the same for the same numbers on every machine.
double noise(std::uint32_t x, std::uint32_t y, std::uint32_t seed);
/// Noise in clouds of about `span` device pixels.
double clouds(double x, double y, double span, std::uint32_t seed);

}  // namespace artwork
