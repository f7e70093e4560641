/// What the first navigation receiver receives.
#pragma once

#include "module/host.h"
#include "module/numbers.h"

namespace tarnvale {

/// Bits of the receiver's flags.
inline constexpr u32 receives_glide_slope = 0x40, receives_localizer = 0x80;

inline bool receives(u32 bit) { return (whole_u32(read(token::nav1_flags)) & bit) != 0; }

/// Whether the glide slope comes in at full strength; nobody flies by anything less.
inline bool full_glide_slope_signal() { return read(token::glide_slope_signal) == 1.0; }

}  // namespace tarnvale
