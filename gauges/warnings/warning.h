/// The two warnings that the aircraft raises. The warning panel switches and tests them, a light of its
/// own shows each.
#pragma once

#include "module/host.h"
#include "module/numbers.h"
#include "module/variables.h"

namespace tarnvale {

struct Warning {
  u32 token;  ///< 1 while the aircraft raises it
  u32 Aircraft::*switched_on;
  u32 Aircraft::*tested;
  SoundRequest sound;

  bool given() const { return aircraft.*switched_on == 1 && whole_u32(read(token)) == 1; }
};

inline constexpr Warning stall_warning{token::stall_warning, &Aircraft::stall_warning_switch_on,
                                       &Aircraft::stall_test_active, stall_sound_request};
inline constexpr Warning ground_proximity{token::ground_proximity_warning, &Aircraft::gpws_switch_on,
                                          &Aircraft::gpws_test_active, gpws_sound_request};

}  // namespace tarnvale
