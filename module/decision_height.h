/// The decision height: one setting, which two panels show and set, and the radio altitude against it.
#pragma once

#include "module/host.h"
#include "module/numbers.h"

namespace tarnvale {

inline constexpr f64 feet_per_metre = 3.2808;
inline constexpr u32 highest_decision_height = 500, decision_height_step = 10;

inline void set_decision_height(u32 feet) {
  aircraft.dh_setting_ft = feet;
  aircraft.dh_setting_ft_int = feet;
  request(click_sound_request);
}

inline void lower_decision_height() {
  const u32 now = aircraft.dh_setting_ft_int;
  set_decision_height(now < decision_height_step ? 0 : now - decision_height_step);
}

inline void raise_decision_height() {
  constexpr u32 highest = highest_decision_height, step = decision_height_step;
  const u32 now = aircraft.dh_setting_ft_int;
  set_decision_height(now > highest - step ? highest : now + step);
}

/// Whether the aircraft, in whole feet, is at or below a height that has been set.
inline bool at_decision_height() {
  const u32 height = whole_u32(read(token::radio_altitude) * feet_per_metre);
  return aircraft.dh_setting_ft > 0 && height <= aircraft.dh_setting_ft;
}

}  // namespace tarnvale
