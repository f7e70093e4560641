/// Places and sizes, in gauge pixels.
#pragma once

namespace artwork {

/// A place.
struct Point {
  double x = 0;
  double y = 0;
};

constexpr Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
constexpr Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }

/// An upright rectangle.
struct Box {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  constexpr Point centre() const { return {x + width / 2, y + height / 2}; }
  constexpr double right() const { return x + width; }
  constexpr double bottom() const { return y + height; }
  constexpr Box grown(double by) const { return {x - by, y - by, width + 2 * by, height + 2 * by}; }
};

/// A bitmap's size.
struct Size {
  int width = 0;
  int height = 0;

  friend constexpr bool operator==(Size, Size) = default;
};

constexpr Box whole(Size size) {
  return {0, 0, static_cast<double>(size.width), static_cast<double>(size.height)};
}

/// A line from one place to another.
struct Segment {
  Point from, to;
};

}  // namespace artwork
