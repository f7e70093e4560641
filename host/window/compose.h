/// Puts pictures over one another, within a rectangle.
#pragma once

#include <cstdint>

#include "host/drawing/painter.h"
#include "host/sketch/sketch.h"

namespace host {

/// Fills `rect`, which lies on the canvas, with 0xFFRRGGBB.
void fill(Canvas& canvas, const Rect& rect, std::uint32_t color);

/// Copies the part of `picture`, standing at x,y of the canvas, that lies within `rect`, which lies on
/// the canvas.
void copy_within(Canvas& canvas, const Canvas& picture, int x, int y, const Rect& rect);

/// Blends the part of `overlay`, standing at x,y of the canvas, that lies within `rect`.
void blend_within(Canvas& canvas, const Overlay& overlay, int x, int y, const Rect& rect);

}  // namespace host
