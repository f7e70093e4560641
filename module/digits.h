/// The figures of drums, taken from the source of the drum's own element.
#pragma once

#include <cmath>

#include "module/numbers.h"

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

/// A drum that rolls without steps: the part of the value below `range`.
template <u32 range>
f64 rolling(Element* drum) {
  return std::fmod(drum_source(drum), range);
}

/// A drum of a number that the host packs four bits to a figure; `place` 0 is the last figure.
template <u32 place>
f64 packed_digit(Element* drum) {
  return low_word(drum_source(drum)) >> (4 * place) & 0xF;
}

}  // namespace tarnvale
