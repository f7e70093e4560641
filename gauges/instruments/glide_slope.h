/// The glide slope on the two instruments that show it: a pointer and its flag.
#pragma once

#include "module/aircraft.h"
#include "module/elements.h"
#include "module/receivers.h"

namespace tarnvale {

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
  return full_glide_slope_signal() ? withdrawn : in_view;
}

}  // namespace tarnvale
