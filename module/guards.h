/// Switches under a guard: the value routines that show guard and switch, and the mouse routines that
/// work them. Both click like a toggle switch.
#pragma once

#include "module/controls.h"

namespace tarnvale {

/// A switch under a guard: it moves off its rest only while the guard is open, and a closed guard
/// holds it at rest.
struct Guarded {
  u32 open = 0;      ///< 1: the guard stands open
  u32 position = 0;  ///< 0 off, 1..last
};

/// A guarded switch that other gauges read, so that its position is part of the shared state.
struct GuardedShared {
  u32 open = 0;
  u32& position;
};

template <auto control>
f64 guard_image(Element*) {
  return control->open;
}

/// The switch under its guard, which forces it to rest whenever it is closed.
template <auto control>
f64 guarded_image(Element*) {
  if (control->open == 0) control->position = 0;
  return control->position;
}

template <auto control>
void move_guard() {
  flip(control->open);
  request(toggle_click_sound_request);
}
template <auto control>
inline constexpr MouseRoutine moves_guard = does<move_guard<control>>;

/// One step on while the guard is open, from the last position and under a closed guard to rest.
template <auto control, u32 last = 1>
void work_guarded() {
  control->position = control->open != 0 && control->position < last ? control->position + 1 : 0;
  request(toggle_click_sound_request);
}
template <auto control, u32 last = 1>
inline constexpr MouseRoutine works_guarded = does<work_guarded<control, last>>;

}  // namespace tarnvale
