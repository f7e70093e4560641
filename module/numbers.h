/// Numbers from the host: any double may arrive, and none may do harm.
#pragma once

#include <cstdint>

#include "interface/panel_interface.h"

namespace tarnvale {

/// `value` truncated toward zero. Below 0 and not a number give 0, above the range its greatest value.
constexpr u32 whole_u32(f64 value) {
  if (!(value > 0.0)) return 0;
  return value >= 4294967295.0 ? 4294967295u : static_cast<u32>(value);
}

/// The low 32 bits of `value` truncated toward zero; 0 for what 64 bits do not hold.
constexpr u32 low_word(f64 value) {
  constexpr f64 beyond = 9223372036854775808.0;
  return value > -beyond && value < beyond ? static_cast<u32>(static_cast<std::int64_t>(value)) : 0;
}

/// `value` truncated toward zero and limited to the range of i32; not a number gives 0.
constexpr i32 whole_i32(f64 value) {
  if (value != value) return 0;
  if (value <= -2147483648.0) return -2147483647 - 1;
  return value >= 2147483647.0 ? 2147483647 : static_cast<i32>(value);
}

/// `value` limited to low..high; not a number gives `low`.
constexpr f64 limited(f64 value, f64 low, f64 high) {
  if (!(value > low)) return low;
  return value < high ? value : high;
}

}  // namespace tarnvale
