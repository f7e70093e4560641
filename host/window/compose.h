/// Puts pictures over one another, within a rectangle.
#pragma once

#include <algorithm>
#include <optional>

#include "host/drawing/painter.h"
#include "host/window/sketch.h"

namespace host {

/// What two rectangles share; empty if nothing.
inline std::optional<Rect> shared(const Rect& a, const Rect& b) {
  const int x = std::max(a.x, b.x), y = std::max(a.y, b.y);
  const int width = std::min(a.x + a.width, b.x + b.width) - x;
  const int height = std::min(a.y + a.height, b.y + b.height) - y;
  if (width <= 0 || height <= 0) return std::nullopt;
  return Rect{x, y, width, height};
}

/// Fills `rect`, which lies on the canvas, with 0xFFRRGGBB.
void fill(Canvas& canvas, const Rect& rect, std::uint32_t color);

/// Copies the part of `picture`, standing at x,y of the canvas, that lies within `rect`.
void copy_within(Canvas& canvas, const Canvas& picture, int x, int y, const Rect& rect);

/// Blends the part of `overlay`, standing at x,y of the canvas, that lies within `rect`.
void blend_within(Canvas& canvas, const Overlay& overlay, int x, int y, const Rect& rect);

}  // namespace host
