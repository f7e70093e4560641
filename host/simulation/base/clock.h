/// Simulated time, counted in whole steps so that it never drifts.
#pragma once

#include <cstdint>

namespace host::simulation {

inline constexpr int steps_per_second = 60;
inline constexpr double step_s = 1.0 / steps_per_second;

/// What the running clock shows when the aircraft comes into being. Press-to-test lights compare
/// it with a moment 16 s earlier, so it must not start near zero.
inline constexpr double clock_start_s = 60.0;

struct Clock {
  std::uint64_t steps = 0;

  /// Seconds simulated so far.
  double elapsed_s() const { return static_cast<double>(steps) / steps_per_second; }
  double reading_s() const { return clock_start_s + elapsed_s(); }
};

}  // namespace host::simulation
