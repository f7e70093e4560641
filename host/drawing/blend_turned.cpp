#include "host/drawing/blend_turned.h"

#include "host/drawing/turned_rows.h"

namespace host {
namespace {

struct WholeShift {
  int x;
  int y;
};

std::optional<WholeShift> whole_shift(const Affine& map) {
  const auto near = [](double a, double b) { return std::abs(a - b) < 1e-6; };
  if (!near(map.xx, 1) || !near(map.yy, 1) || !near(map.xy, 0) || !near(map.yx, 0)) return {};
  const double x = std::round(map.dx), y = std::round(map.dy);
  if (!near(map.dx, x) || !near(map.dy, y) || !(std::abs(x) < 1e6) || !(std::abs(y) < 1e6)) return {};
  return WholeShift{static_cast<int>(x), static_cast<int>(y)};
}

// One channel between four neighbours: across in 1/64, then down in 1/32768.
std::uint32_t between(const std::uint32_t* upper, std::ptrdiff_t stride, int channel, int across,
                      int down) {
  const auto level = [&](const std::uint32_t* pixel) {
    return static_cast<int>(*pixel >> channel & 0xFF);
  };
  const auto row = [&](const std::uint32_t* left) {
    return level(left) * (64 - across) + level(left + 1) * across;
  };
  const int above = row(upper), below = row(upper + stride);
  const int mixed = above + (((below - above) * down + (1 << 14)) >> 15);
  return static_cast<std::uint32_t>((mixed + 32) >> 6) << channel;
}

std::uint32_t sampled(const PixelView& picture, std::uint32_t u, std::uint32_t v) {
  const std::uint32_t* upper =
      picture.at(static_cast<int>(u >> place_bits), static_cast<int>(v >> place_bits));
  const int across = static_cast<int>(u >> 10 & 63), down = static_cast<int>(v >> 1 & 32767);
  std::uint32_t pixel = 0;
  for (const int channel : {0, 8, 16, 24})
    pixel |= between(upper, picture.stride, channel, across, down);
  return pixel;
}

bool has_wide_vectors() {
#if defined(__x86_64__)
  return __builtin_cpu_supports("avx2");
#else
  return false;
#endif
}

}  // namespace

void blend_plainly(const TurnedRows& rows) {
  rows.each([&](std::uint32_t* target, int count, PictureWay way) {
    for (; count > 0; --count, ++target, way.u += way.du, way.v += way.dv)
      *target = over(*target, sampled(rows.picture(), way.u, way.v));
  });
}

#if !defined(__x86_64__)
void blend_four_at_once(const TurnedRows& rows) { blend_plainly(rows); }
#endif

void blend_turned(Surface target, const Rect& clip, PixelView picture, const Affine& map,
                  const std::vector<RowPart>* seen) {
  if (const auto shift = whole_shift(map)) {
    if (seen == nullptr) return blend_pixels(target, clip, picture, shift->x, shift->y);
    for (const RowPart& part : *seen)
      blend_pixels(target, intersection(clip, {part.first, part.y, part.end - part.first, 1}), picture,
                   shift->x, shift->y);
    return;
  }
  const auto back = inverse(map);
  if (!back) return;
  const Rect part = intersection(clip, bounds_of(map, picture.width, picture.height));
  static const auto blend = has_wide_vectors() ? blend_four_at_once : blend_plainly;
  blend(TurnedRows(target, part, picture, *back, seen));
}

}  // namespace host
