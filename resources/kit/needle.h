/// Needles. Their pictures point to the right from the pivot; nothing of a needle lies left of or
/// above its picture, so the pivot's place in the record says how much tail and width it may have.
#pragma once

#include "resources/kit/paint.h"

namespace artwork {

/// A straight blade that tapers toward its tip.
struct Blade {
  Point pivot;
  double length;      ///< from the pivot to the tip
  double tail;        ///< from the pivot back
  double half_width;  ///< at the pivot
  double half_tip = 0.35;
  Colour colour = palette::mark;
};

void blade(const Canvas& canvas, const Blade& blade);

/// The cap over the pivot.
void needle_cap(const Canvas& canvas, Point pivot, double radius);

}  // namespace artwork
