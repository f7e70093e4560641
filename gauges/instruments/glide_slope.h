/// The glide slope on the two instruments that show it: a pointer and its flag.
#pragma once

#include "module/aircraft.h"
#include "module/elements.h"
#include "module/host.h"
#include "module/numbers.h"

namespace tarnvale {

/// What the first navigation receiver receives.
inline bool receives(u32 bit) { return (whole_u32(read(token::nav1_flags)) & bit) != 0; }
inline constexpr u32 receives_glide_slope = 0x40, receives_localizer = 0x80;

/// Without a glide slope the pointer stands hidden in the middle.
inline f64 glide_slope_pointer(Element* pointer) {
  const bool shown = receives(receives_glide_slope);
  show_picture(*pointer, shown);
  return shown ? read(token::glide_slope_deviation) : 0;
}

/// In view while the receivers are tested, and while a glide slope is there but not its full signal.
inline f64 glide_slope_flag(Element*) {
  constexpr f64 in_view = 0, withdrawn = -1;
  if (aircraft.nav_test_switch > 0) return in_view;
  if (!receives(receives_glide_slope)) return withdrawn;
  return read(token::glide_slope_signal) == 1.0 ? withdrawn : in_view;
}

}  // namespace tarnvale
