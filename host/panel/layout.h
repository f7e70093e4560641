/// Arranges panel windows side by side so that they fill an area as large as they can.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "host/drawing/painter.h"

namespace host {

/// The area to fill, in target pixels.
struct LayoutArea {
  int width = 0;
  int height = 0;
  int gap = 0;      ///< around and between the windows
  int caption = 0;  ///< a strip above each window
};

/// Where the windows stand, all at one zoom so that a switch has the same size everywhere.
struct Layout {
  double zoom = 1;
  int width = 0;  ///< of everything, gaps included; larger than the area if the zoom was given
  int height = 0;
  std::vector<Rect> places;  ///< in the order of the sizes, without the captions
};

/// Tries every way to divide the windows, in their order, into rows or into columns (for more than a
/// dozen only those with lines of one length) and takes the one with the greatest zoom, up to `most`. A
/// given `zoom` is kept. Sizes are panel pixels.
Layout arrange(std::span<const PanelSize> sizes, const LayoutArea& area, std::optional<double> zoom,
               double most = 3.0);

}  // namespace host
