/// The positions of the autopilot's mode selector, which several panels go by.
#pragma once

#include "module/aircraft.h"

namespace tarnvale::autopilot_mode {

inline constexpr u32 manual = 0, turbulence = 1, heading = 2, localizer = 3, glide_slope = 4,
                     navigation = 5;

}  // namespace tarnvale::autopilot_mode
