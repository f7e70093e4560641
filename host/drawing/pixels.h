/// Copying and blending rows of pixels: premultiplied ARGB32, top row first.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "host/drawing/painter.h"

namespace host {

inline bool is_empty(const Rect& rect) { return rect.width <= 0 || rect.height <= 0; }

/// The part that two rectangles share; {0, 0, 0, 0} if none.
inline Rect intersection(const Rect& a, const Rect& b) {
  const int left = std::max(a.x, b.x), top = std::max(a.y, b.y);
  const int right = std::min(a.x + a.width, b.x + b.width);
  const int bottom = std::min(a.y + a.height, b.y + b.height);
  if (right <= left || bottom <= top) return {};
  return {left, top, right - left, bottom - top};
}

/// The smallest rectangle around both; an empty one adds nothing.
inline Rect around(const Rect& a, const Rect& b) {
  if (is_empty(a)) return b;
  if (is_empty(b)) return a;
  const int left = std::min(a.x, b.x), top = std::min(a.y, b.y);
  const int right = std::max(a.x + a.width, b.x + b.width);
  const int bottom = std::max(a.y + a.height, b.y + b.height);
  return {left, top, right - left, bottom - top};
}

/// Pixels of somebody else's, to draw on, in coordinates of a gauge whose corner stands at (left,
/// top) and may lie outside.
struct Surface {
  std::uint32_t* pixels = nullptr;
  std::ptrdiff_t stride = 0;  ///< pixels from row to row
  int left = 0;
  int top = 0;
  std::uint32_t* at(int x, int y) const { return pixels + (y + top) * stride + (x + left); }
};

/// A canvas, in its own coordinates.
inline Surface surface_of(Canvas& canvas) { return {canvas.pixels.data(), canvas.width, 0, 0}; }
inline Rect whole_of(const Canvas& canvas) { return {0, 0, canvas.width, canvas.height}; }

/// Pixels of somebody else's, to draw from.
struct PixelView {
  const std::uint32_t* pixels = nullptr;
  int width = 0;
  int height = 0;
  std::ptrdiff_t stride = 0;
  const std::uint32_t* at(int x, int y) const { return pixels + y * stride + x; }
};

inline PixelView view_of(const Canvas& canvas) {
  return {canvas.pixels.data(), canvas.width, canvas.height, canvas.width};
}

/// Lays `count` source pixels over the target's.
void over_row(std::uint32_t* target, const std::uint32_t* source, std::size_t count);

/// Multiplies `count` pixels by the opacity of as many mask pixels.
void mask_row(std::uint32_t* target, const std::uint32_t* mask, std::size_t count);

/// One channel-wise product: `pixel` times `opacity` / 255, rounded.
constexpr std::uint32_t faded(std::uint32_t pixel, std::uint32_t opacity) {
  std::uint32_t even = (pixel & 0xFF00FF) * opacity + 0x800080;
  std::uint32_t odd = (pixel >> 8 & 0xFF00FF) * opacity + 0x800080;
  even = (even + (even >> 8 & 0xFF00FF)) >> 8 & 0xFF00FF;
  odd = (odd + (odd >> 8 & 0xFF00FF)) & 0xFF00FF00;
  return odd | even;
}

/// One pixel over another.
constexpr std::uint32_t over(std::uint32_t target, std::uint32_t source) {
  return source + faded(target, 255 - (source >> 24));
}

/// Paints a rectangle in one colour.
void fill_pixels(Surface target, const Rect& part, std::uint32_t colour);

/// Copies `source`, whose first pixel goes to (x, y), as far as it lies in `clip`.
void copy_pixels(Surface target, const Rect& clip, PixelView source, int x, int y);

/// The same, laid over what is there.
void blend_pixels(Surface target, const Rect& clip, PixelView source, int x, int y);

}  // namespace host
