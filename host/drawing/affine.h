/// Maps from a picture to the canvas: shifts, scales and turns.
#pragma once

#include <optional>

#include "host/drawing/pixels.h"

namespace host {

/// Where the point (x, y) of a picture goes: (xx x + xy y + dx, yx x + yy y + dy). Whole numbers
/// are the corners of pixels.
struct Affine {
  double xx = 1, xy = 0, dx = 0;
  double yx = 0, yy = 1, dy = 0;
};

Affine shifted_by(double x, double y);
Affine scaled_by(double x, double y);

/// Clockwise, as y points down.
Affine turned_by(double degrees);

/// `second` after `first`.
Affine operator*(const Affine& second, const Affine& first);

/// The whole pixels around a picture of that size.
Rect bounds_of(const Affine& map, int width, int height);

/// The way back; none from a picture drawn out of all proportion.
std::optional<Affine> inverse(const Affine& map);

}  // namespace host
