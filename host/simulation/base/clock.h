/// Simulated time, counted in whole steps so that it never drifts.
#pragma once

#include <cmath>
#include <cstdint>

namespace host::simulation {

inline constexpr int usual_steps_per_second = 60;

/// What the running clock shows when the aircraft comes into being. Press-to-test lights compare
/// it with a moment 16 s earlier, so it must not start near zero.
inline constexpr double clock_start_s = 60.0;

/// Local time at that moment unless somebody sets it: ten in the morning.
inline constexpr double day_start_s = 10.0 * 3600.0;

inline constexpr double day_s = 24.0 * 3600.0;

/// A day of the year, which has no leap day.
struct Date {
  int months_past;  ///< since the year began, 0..11
  int day;          ///< of the month, 1..31
};

/// The date on which a flight begins.
inline constexpr Date first_date{4, 16};

struct Clock {
  int steps_per_second = usual_steps_per_second;
  std::uint64_t steps = 0;
  double local_start_s = day_start_s;  ///< local time when it began
  double panel_clock_offset_s = 0.0;   ///< by which the crew has set the panel's clock

  double step_s() const { return 1.0 / steps_per_second; }

  /// Seconds simulated so far.
  double elapsed_s() const { return static_cast<double>(steps) / steps_per_second; }
  double reading_s() const { return clock_start_s + elapsed_s(); }

  /// Seconds since midnight, of the world and of the panel's clock.
  double time_of_day_s() const { return std::fmod(local_start_s + elapsed_s(), day_s); }
  double panel_clock_s() const { return std::fmod(time_of_day_s() + panel_clock_offset_s, day_s); }

  /// The date, which changes at midnight.
  Date date() const;

  /// Makes it that time of the day in the world, 0 to a day; the panel's clock follows.
  void set_time_of_day(double local_s) {
    local_start_s = std::fmod(local_s - std::fmod(elapsed_s(), day_s) + day_s, day_s);
  }

  /// Sets the panel's clock forward (or back); it goes round at midnight.
  void set_panel_clock(double by_s) {
    panel_clock_offset_s = std::fmod(panel_clock_offset_s + by_s + day_s, day_s);
  }
};

}  // namespace host::simulation
