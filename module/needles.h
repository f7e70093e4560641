/// Needles that show what the host measures.
#pragma once

#include "module/numbers.h"

namespace tarnvale {

/// The needle's source, held between the ends of its dial.
template <i32 low, i32 high>
f64 shows_within(Element* needle) {
  return limited(needle->needle.source.value, low, high);
}

}  // namespace tarnvale
