/// Things that go on for a few seconds after a press and then end by themselves: press-to-test lights,
/// transfer lights, readings that are shown for a moment.
///
/// A hold is a flag and a clock. Whoever shows the flag reads the clock again at each showing and drops
/// the flag when the time is over. Holds that share a clock prolong each other.
#pragma once

#include "module/controls.h"

namespace tarnvale {

/// How long a hold lasts. It also ends when the running clock has been set back so far that the end of
/// the hold lies more than `margin` ahead. Whole seconds.
struct HoldTimes {
  u32 seconds;
  u32 margin;
};

inline constexpr HoldTimes press_to_test{.seconds = 2, .margin = 18};

/// The clock of a hold: whole seconds of the host's running clock.
struct HoldClock {
  u32 deadline = 0;  ///< the last second of the hold
  u32 reading = 0;   ///< the clock when last looked at
};

/// A hold's clock whose two words stand in the shared state.
struct SharedHoldClock {
  u32& deadline;
  u32& reading;
};

/// Starts a hold, or prolongs it.
template <typename Clock>
void start_hold(Clock& timer, u32& flag, HoldTimes times = press_to_test) {
  flag = 1;
  timer.reading = whole_u32(read(token::clock_seconds));
  timer.deadline = timer.reading + times.seconds;
}

/// Reads the clock, ends the hold when its time is over, and returns whether it goes on. The sums are
/// unsigned: within the first `margin` seconds of the clock no hold outlasts its press.
template <typename Clock>
bool hold_goes_on(Clock& timer, u32& flag, HoldTimes times = press_to_test) {
  timer.reading = whole_u32(read(token::clock_seconds));
  if (timer.reading > timer.deadline || timer.deadline - times.margin > timer.reading) flag = 0;
  return flag != 0;
}

/// Whether the hold goes on, for a picture that shows it as image 1.
template <auto clock, auto flag, HoldTimes times = press_to_test>
f64 held_lit(Element*) {
  return hold_goes_on(*clock, variable<flag>(), times);
}

/// The round test light (image 0 lit, 1 dark) that shines only while it is tested.
template <auto clock, auto flag>
f64 test_light(Element*) {
  return hold_goes_on(*clock, variable<flag>()) ? 0 : 1;
}

/// Starts the test that `clock` times and `flag` stands for. A test button is silent.
template <auto clock, auto flag>
void test() {
  start_hold(*clock, variable<flag>());
}
template <auto clock, auto flag>
inline constexpr MouseRoutine tests = does<test<clock, flag>>;

}  // namespace tarnvale
