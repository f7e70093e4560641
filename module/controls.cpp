#include "module/controls.h"

#include "module/numbers.h"

namespace tarnvale {

void mirror(u32 token, u32& flag) { flag = whole_u32(read(token)) == 1; }

void start_test(TestClock& clock, u32& flag) {
  flag = 1;
  clock.reading = whole_u32(read(token::clock_seconds));
  clock.deadline = clock.reading + 2;
}

bool test_goes_on(TestClock& clock, u32& flag, u32 margin) {
  clock.reading = whole_u32(read(token::clock_seconds));
  if (clock.reading > clock.deadline || clock.deadline - margin > clock.reading) flag = 0;
  return flag != 0;
}

}  // namespace tarnvale
