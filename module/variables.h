/// Names variables to the kit's templates: `shows<&Aircraft::dc_power_on>` for one of the shared state,
/// `shows<&lever>` for one of the gauge's own.
#pragma once

#include <type_traits>

#include "module/aircraft.h"

namespace tarnvale {

/// The variable that `place` points to: a member of the shared state or an object with static storage.
template <auto place>
constexpr auto& variable() {
  if constexpr (std::is_member_object_pointer_v<decltype(place)>) {
    return aircraft.*place;
  } else {
    return *place;
  }
}

/// The other way round: 0 becomes 1, everything else 0.
inline void flip(u32& flag) { flag = flag == 0; }

/// The positions of a three-position lever.
enum Lever : u32 { centre, up, down };

}  // namespace tarnvale
