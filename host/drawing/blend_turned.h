/// Draws pictures turned, or shifted by parts of a pixel.
#pragma once

#include <vector>

#include "host/drawing/affine.h"

namespace host {

/// A part of a row of pixels.
struct RowPart {
  int y;
  int first;
  int end;  ///< the column after its last one
};

/// Lays a picture over the target. Its outermost pixels must be clear: edges are smoothed into
/// them. Where the map is a shift by whole pixels, pixels are blended exactly. Where `seen` is
/// given, rows from the top down, nothing is drawn beside it.
void blend_turned(Surface target, const Rect& clip, PixelView picture, const Affine& map,
                  const std::vector<RowPart>* seen = nullptr);

}  // namespace host
