#include "host/drawing/affine.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>
#include <optional>

namespace host {
namespace {

constexpr double farthest = 1e6;  // pixels; nothing beyond is on any canvas
constexpr int fraction_bits = 16;

int whole(double value) { return static_cast<int>(std::clamp(value, -farthest, farthest)); }

// Rounded; the library's rounding is a call too slow for every row.
std::int64_t fixed(double value) {
  constexpr double above_all = 1ll << 40;
  const double scaled = std::clamp(value, -farthest, farthest) * (1 << fraction_bits);
  return static_cast<std::int64_t>(scaled + 0.5 + above_all) - static_cast<std::int64_t>(above_all);
}

struct WholeShift {
  int x;
  int y;
};

std::optional<WholeShift> whole_shift(const Affine& map) {
  const auto near = [](double a, double b) { return std::abs(a - b) < 1e-6; };
  if (!near(map.xx, 1) || !near(map.yy, 1) || !near(map.xy, 0) || !near(map.yx, 0)) return {};
  if (!near(map.dx, std::round(map.dx)) || !near(map.dy, std::round(map.dy))) return {};
  return WholeShift{whole(std::round(map.dx)), whole(std::round(map.dy))};
}

std::optional<Affine> inverse(const Affine& map) {
  const double determinant = map.xx * map.yy - map.xy * map.yx;
  if (!(std::abs(determinant) > 1e-9)) return std::nullopt;
  const double scale = 1 / determinant;
  Affine back{map.yy * scale, -map.xy * scale, 0, -map.yx * scale, map.xx * scale, 0};
  back.dx = -(back.xx * map.dx + back.xy * map.dy);
  back.dy = -(back.yx * map.dx + back.yy * map.dy);
  return back;
}

// Steps along a row, from 0.
struct Range {
  std::int64_t first;
  std::int64_t last;
};

// Narrows the steps to those where 0 <= start + step * k < end.
void keep_inside(std::int64_t start, std::int64_t step, std::int64_t end, Range& range) {
  const auto outside = [&](std::int64_t k) {
    const std::int64_t at = start + step * k;
    return at < 0 || at >= end;
  };
  if (step != 0) {
    const double per_step = 1.0 / static_cast<double>(step);
    const auto [low, high] = std::minmax(
        {static_cast<double>(-start) * per_step, static_cast<double>(end - start) * per_step});
    range.first = std::max(range.first, static_cast<std::int64_t>(std::clamp(low, 0.0, farthest)));
    range.last = std::min(range.last, static_cast<std::int64_t>(std::clamp(high + 1, -1.0, farthest)));
  }
  while (range.first <= range.last && outside(range.first)) ++range.first;
  while (range.first <= range.last && outside(range.last)) --range.last;
}

// The eight channels of two neighbours, in a vector that the compiler makes of what a machine has.
typedef std::uint8_t Bytes __attribute__((vector_size(16)));
typedef std::uint64_t Words __attribute__((vector_size(16)));
typedef std::int16_t Channels __attribute__((vector_size(16)));

inline Channels two_pixels(const std::uint32_t* pixels) {
  std::uint64_t two;
  std::memcpy(&two, pixels, sizeof two);
  const Bytes packed = reinterpret_cast<Bytes>(Words{two, 0});
  return reinterpret_cast<Channels>(
      __builtin_shufflevector(packed, Bytes{}, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23));
}

// From `a` towards `b` by so many parts of 128.
inline Channels mixed(Channels a, Channels b, std::int16_t part) { return a + ((b - a) * part >> 7); }

// The pixel between four, of which the lower two stand `stride` pixels further on.
inline std::uint32_t between(const std::uint32_t* upper, std::ptrdiff_t stride, std::int16_t across,
                             std::int16_t down) {
  const Channels column = mixed(two_pixels(upper), two_pixels(upper + stride), down);
  const Channels right = __builtin_shufflevector(column, column, 4, 5, 6, 7, 4, 5, 6, 7);
  const std::uint64_t spread = reinterpret_cast<Words>(mixed(column, right, across))[0];
  const std::uint64_t pairs = spread | spread >> 8;
  return static_cast<std::uint32_t>((pairs & 0xFFFF) | (pairs >> 16 & 0xFFFF0000));
}

std::int16_t part_of_128(std::uint32_t at) { return static_cast<std::int16_t>(at >> 9 & 127); }

struct Stepper {
  std::int64_t u, v, du, dv;
};

template <typename NextPixel>
inline void lay_pixels(std::uint32_t* target, std::int64_t count, NextPixel next_pixel) {
  for (; count > 0; --count, ++target) {
    const std::uint32_t pixel = next_pixel();
    const std::uint32_t opacity = pixel >> 24;
    if (opacity == 255)
      *target = pixel;
    else if (opacity != 0)
      *target = over(*target, pixel);
  }
}

// Draws the steps of `range`; `target` is the pixel of the first. Where the picture is only shifted,
// the four weights are the same for the whole row.
void blend_row(std::uint32_t* target, const PixelView& picture, const Stepper& start,
               const Range& range) {
  auto u = static_cast<std::uint32_t>(start.u + start.du * range.first);
  auto v = static_cast<std::uint32_t>(start.v + start.dv * range.first);
  const std::int64_t count = range.last - range.first + 1;
  if (start.du == 1 << fraction_bits && start.dv == 0) {
    const std::uint32_t* upper = picture.at(u >> fraction_bits, v >> fraction_bits);
    const std::int16_t across = part_of_128(u), down = part_of_128(v);
    lay_pixels(target, count, [&] { return between(upper++, picture.stride, across, down); });
    return;
  }
  lay_pixels(target, count, [&] {
    const std::uint32_t* upper = picture.at(u >> fraction_bits, v >> fraction_bits);
    const std::uint32_t pixel = between(upper, picture.stride, part_of_128(u), part_of_128(v));
    u += static_cast<std::uint32_t>(start.du);
    v += static_cast<std::uint32_t>(start.dv);
    return pixel;
  });
}

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

void blend_turned(Surface target, const Rect& clip, PixelView picture, const Affine& map) {
  if (const auto shift = whole_shift(map))
    return blend_pixels(target, clip, picture, shift->x, shift->y);
  const auto back = inverse(map);
  if (!back) return;
  const Rect box = bounds_of(map, picture.width, picture.height);
  const Rect part = intersection(clip, box);
  const std::int64_t end_u = std::int64_t{picture.width - 1} << fraction_bits;
  const std::int64_t end_v = std::int64_t{picture.height - 1} << fraction_bits;
  Stepper at{0, 0, fixed(back->xx), fixed(back->yx)};
  for (int y = part.y; y < part.y + part.height; ++y) {
    // From the middle of a target pixel to the middle of a picture pixel. Rows start at the picture
    // and not at the clip, so that a pixel does not depend on what else is drawn with it.
    const double px = box.x + 0.5, py = y + 0.5;
    at.u = fixed(back->xx * px + back->xy * py + back->dx - 0.5);
    at.v = fixed(back->yx * px + back->yy * py + back->dy - 0.5);
    Range range{part.x - box.x, part.x - box.x + part.width - 1};
    keep_inside(at.u, at.du, end_u, range);
    keep_inside(at.v, at.dv, end_v, range);
    if (range.first > range.last) continue;
    blend_row(target.at(box.x + static_cast<int>(range.first), y), picture, at, range);
  }
}

}  // namespace host
