/// What both throttle levers have in common.
#pragma once

#include "module/catalogue.h"
#include "module/host.h"

namespace tarnvale {

inline constexpr Bitmaps throttle_lever_bitmaps(i32 first) { return {first, 11}; }

/// How many of the steps, in ascending order, a reading has passed; none for what is no number.
template <std::size_t count>
constexpr u32 steps_passed(const f64 (&steps)[count], f64 reading) {
  u32 passed = 0;
  for (const f64 step : steps) passed += reading > step;
  return passed;
}

/// The picture of a throttle lever, 0 at idle to 10. No lever stands beyond the end of its travel.
constexpr u32 throttle_lever_image(f64 throttle) {
  constexpr f64 steps[] = {1000, 2000, 4000, 6000, 8000, 10000, 12000, 14000, 15000, 16000};
  constexpr f64 end_of_travel = 17000;
  return throttle < end_of_travel ? steps_passed(steps, throttle) : 0;
}

/// The lever follows the hand: 74 of the throttle's travel for each pixel, 170 pixels below the top of
/// its area it is closed, and below that it pulls against its stop.
template <u32 throttle_set>
i32 drags_throttle(PanelPoint hand, u32) {
  constexpr u32 closed_at = 170, travel_a_pixel = 74;
  send(throttle_set, (closed_at - static_cast<u32>(hand.y)) * travel_a_pixel);
  return 0;
}

}  // namespace tarnvale
