#include "host/drawing/affine.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace host {
namespace {

constexpr double farthest = 1e6;  // pixels; nothing beyond is on any canvas

int whole(double value) { return static_cast<int>(std::clamp(value, -farthest, farthest)); }

}  // namespace

Affine shifted_by(double x, double y) { return {.dx = x, .dy = y}; }

Affine scaled_by(double x, double y) { return {.xx = x, .yy = y}; }

Affine turned_by(double degrees) {
  const double angle = degrees * std::numbers::pi / 180;
  const double c = std::cos(angle), s = std::sin(angle);
  return {c, -s, 0, s, c, 0};
}

Affine operator*(const Affine& b, const Affine& a) {
  return {b.xx * a.xx + b.xy * a.yx, b.xx * a.xy + b.xy * a.yy, b.xx * a.dx + b.xy * a.dy + b.dx,
          b.yx * a.xx + b.yy * a.yx, b.yx * a.xy + b.yy * a.yy, b.yx * a.dx + b.yy * a.dy + b.dy};
}

Rect bounds_of(const Affine& map, int width, int height) {
  const double w = width, h = height;
  const auto [left, right] = std::minmax({0.0, map.xx * w, map.xy * h, map.xx * w + map.xy * h});
  const auto [top, bottom] = std::minmax({0.0, map.yx * w, map.yy * h, map.yx * w + map.yy * h});
  const int x = whole(std::floor(left + map.dx + 1e-6)), y = whole(std::floor(top + map.dy + 1e-6));
  return {x, y, whole(std::ceil(right + map.dx - 1e-6)) - x,
          whole(std::ceil(bottom + map.dy - 1e-6)) - y};
}

std::optional<Affine> inverse(const Affine& map) {
  constexpr double most_shrunk = 1000;
  const double determinant = map.xx * map.yy - map.xy * map.yx;
  if (!(std::abs(determinant) > 1e-9)) return std::nullopt;
  const double scale = 1 / determinant;
  Affine back{map.yy * scale, -map.xy * scale, 0, -map.yx * scale, map.xx * scale, 0};
  const double most =
      std::max({std::abs(back.xx), std::abs(back.xy), std::abs(back.yx), std::abs(back.yy)});
  if (!(most < most_shrunk)) return std::nullopt;
  back.dx = -(back.xx * map.dx + back.xy * map.dy);
  back.dy = -(back.yx * map.dx + back.yy * map.dy);
  return back;
}

}  // namespace host
