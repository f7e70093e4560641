/// The figures of drums, out of the source of the drum's own element.
#pragma once

#include <cmath>

#include "interface/panel_interface.h"

namespace tarnvale {

inline f64 drum_source(const Element* drum) { return drum->moving_image.y.source.value; }

/// The decimal digit at `place` (1, 10, 100 ...) of `value`; negative values give negative digits.
inline f64 digit_at(f64 value, f64 place) {
  return std::fmod((value - std::fmod(value, place)) / place, 10);
}

/// A drum that steps from figure to figure.
template <u32 place>
f64 digit(Element* drum) {
  return digit_at(drum_source(drum), place);
}

/// A drum that rolls on with what lies below `range`.
template <u32 range>
f64 rolling(Element* drum) {
  return std::fmod(drum_source(drum), range);
}

}  // namespace tarnvale
