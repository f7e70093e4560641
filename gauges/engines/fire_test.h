/// The fire warning test, which lights the handles and both pilots' warning strips together.
#pragma once

#include "module/variables.h"

namespace tarnvale {

inline bool fire_tested() { return aircraft.fire_test_active == 1; }

/// An engine's fire light. No sensor reports to it: it lights for the test alone.
inline f64 engine_fire_light(Element*) { return fire_tested(); }

/// The APU's fire light rings the bell whenever it is lit. The APU's generator switched down, where
/// nothing governs it, counts as fire.
inline f64 apu_fire_light(Element*) {
  const bool lit = aircraft.apu_gen_switch == down || fire_tested();
  if (lit) request(fire_sound_request);
  return lit;
}

}  // namespace tarnvale
