/// Schedules: a value for each band of something that varies.
#pragma once

#include <span>

#include "interface/panel_interface.h"

namespace tarnvale {

/// One row of a schedule, whose rows stand in ascending order: `value` holds below `to` and above the
/// row before.
template <typename Value>
struct Band {
  f64 to;
  Value value;
};

/// The band that `at` lies in. There is none exactly on an edge, beyond the last band and for what is
/// not a number: what the schedule gave before then stays, so that nothing flickers on an edge.
template <typename Value>
constexpr const Band<Value>* band_at(std::span<const Band<Value>> schedule, f64 at) {
  for (const Band<Value>& band : schedule) {
    if (at < band.to) return &band;
    if (at == band.to) return nullptr;
  }
  return nullptr;
}

}  // namespace tarnvale
