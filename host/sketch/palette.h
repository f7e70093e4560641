/// The colours of the program's own pictures: quiet, so that the cockpit is what one sees.
#pragma once

#include "host/sketch/sketch.h"

namespace host::palette {

inline constexpr Color ink{0.93, 0.92, 0.88};
inline constexpr Color soft_ink{0.66, 0.68, 0.70};
inline constexpr Color paper{0.08, 0.088, 0.10, 0.96};
inline constexpr Color strip{0.13, 0.14, 0.155};
inline constexpr Color edge{1, 1, 1, 0.15};
inline constexpr Color accent{0.98, 0.71, 0.24};
inline constexpr Color key_face{0.21, 0.225, 0.25};
inline constexpr Color key_edge{1, 1, 1, 0.22};

}  // namespace host::palette
