/// A place on a plate, told by the parts that stand there, so that what belongs to a part moves with
/// it. Parts go by their names; where no part has the name, it is that of a click area.
#pragma once

#include <string_view>

#include "resources/kit/geometry.h"

namespace artwork {

struct Spot {
  /// From the plate's upper left corner; a negative coordinate counts from the right or lower edge.
  constexpr Spot(double x, double y) : by{x, y} {}
  constexpr Spot(std::string_view name, std::string_view with, Point off)
      : part(name), other(with), by(off) {}

  std::string_view part = {};   ///< its hub: where a lever or needle turns, else the picture's middle
  std::string_view other = {};  ///< the middle between both, where there is another
  std::string_view level = {};  ///< whose height counts, where it is not the part's
  bool middle = false;          ///< across from the plate's middle, where there is no part
  Point by;

  constexpr Spot moved(double right, double below) const {
    Spot spot = *this;
    spot.by = spot.by + Point{right, below};
    return spot;
  }

  /// The same at another part's height.
  constexpr Spot level_with(std::string_view name) const {
    Spot spot = *this;
    spot.level = name;
    return spot;
  }
};

/// So far right of and below a part.
constexpr Spot at(std::string_view part, double right = 0, double below = 0) {
  return {part, {}, {right, below}};
}

/// So far right of and below the middle between two parts.
constexpr Spot between(std::string_view one, std::string_view other, double right = 0,
                       double below = 0) {
  return {one, other, {right, below}};
}

/// On the plate's middle line, so far from its upper edge, or from its lower one if negative.
constexpr Spot middle(double y, double right = 0) {
  Spot spot(right, y);
  spot.middle = true;
  return spot;
}

}  // namespace artwork
