/// Where small badges go that stand for boxes in a picture.
#pragma once

#include <span>
#include <vector>

#include "host/drawing/painter.h"

namespace host {

/// A place for a badge of each size, next to the box with the same number: inside the picture and on
/// none of the boxes or of the other badges, near its box and where the picture has the least to read.
/// Where there is no room at all it is the box's upper left corner. All in pixels of the picture.
std::vector<Rect> place_badges(std::span<const Rect> boxes, std::span<const PanelSize> sizes,
                               const Canvas& picture);

}  // namespace host
