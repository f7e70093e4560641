/// What an element shows while a system of the aircraft has failed. Keys are the host's.
#pragma once

#include "interface/panel_interface.h"

namespace tarnvale::failure {

inline constexpr u32 key_electrical = 20;  ///< no electrical power at the panel

inline constexpr FailureEntry end_of_table{0, 0, 0};

/// Parts that work by hand.
inline constexpr const FailureEntry* never = nullptr;

/// Lamps, lighting and electrical read-outs: dark without power.
inline constexpr FailureEntry dark[] = {{key_electrical, FAILURE_HIDE, 0}, end_of_table};

/// Electrical meters and indicators: the needle falls to rest without power.
inline constexpr FailureEntry at_rest[] = {{key_electrical, FAILURE_ZERO, 0}, end_of_table};

}  // namespace tarnvale::failure
