/// The pressures, temperatures and speeds that the systems panels make up themselves: counters in the
/// units of the needle's scale, moved by whole steps once a frame and held between limits. They are
/// unsigned: a counter is held before it steps down, which keeps it clear of 0.
#pragma once

#include "interface/panel_interface.h"

namespace tarnvale {

/// `counter` held between `low` and `high`.
constexpr u32 held(u32 counter, u32 low, u32 high) {
  if (counter < low) return low;
  return counter < high ? counter : high;
}

/// One step up, and then no further than `limit`: a counter above it falls back to it.
constexpr u32 raised(u32 counter, u32 limit) { return counter < limit ? counter + 1 : limit; }

/// One step down, and then no further than `limit`: a counter below it rises to it.
constexpr u32 lowered(u32 counter, u32 limit) { return counter > limit ? counter - 1 : limit; }

}  // namespace tarnvale
