/// Three figures on drums that show what the autopilot has been told to fly.
#pragma once

#include "module/bitmaps.h"
#include "module/digits.h"
#include "module/elements.h"

namespace tarnvale {

/// `words` are those of the hundreds, tens and units; the drums stand `pitch` pixels apart.
constexpr Rows<3> selected_figures(const char* const (&words)[3], u32 token, PanelPoint first,
                                   i32 pitch) {
  constexpr Range figures{0, 9};
  constexpr ValueRoutine values[] = {digit<100>, digit<10>, rolling<10>};
  Rows<3> drums{};
  for (i32 i = 0; i < 3; ++i) {
    const PanelPoint at{first.x + i * pitch, first.y};
    drums[i] = drum(words[i], bitmap::selector_figures.id, at, figures, values[i]).from(token);
  }
  return drums;
}

}  // namespace tarnvale
