/// The two push-button timers: a lamp that shines while the timer counts frames, and a blank window.
/// A press starts the count, a second one stops it, and at its limit it stops by itself.
#pragma once

#include "module/catalogue.h"
#include "module/controls.h"
#include "module/readout.h"

namespace tarnvale {

struct FrameTimer {
  u32 divisor;  ///< frames, times the rate, to one unit of the limit
  u32 limit;
  const char* blank;  ///< what the window shows
  u32 running = 0;
  u32 stop_asked = 0;
  u32 count = 0;
  char window[3] = "";
};

/// One frame: counts at twice the rate of the simulation, which is 256 in real time.
template <auto timer>
f64 count_frame(Element* readout) {
  FrameTimer& t = *timer;
  const u32 rate = whole_u32(2 * readout->string.source[1].value);
  const bool counting = t.running == 1 && t.stop_asked == 0;
  const bool worked = counting || t.stop_asked == 1;
  if (counting) {
    ++t.count;
  } else if (t.stop_asked == 1) {
    t.count = t.stop_asked = t.running = 0;
  }
  if (t.count * rate / t.divisor > t.limit) t.running = t.stop_asked = t.count = 0;
  write(t.window, t.blank);
  return worked ? readout->string.source[0].value : 0;
}

template <auto timer>
f64 timer_lamp(Element*) {
  return timer->running == 1 ? 0 : 1;
}

template <auto timer>
void press_timer() {
  timer->stop_asked = timer->running;
  flip(timer->running);
  request(click_sound_request);
}

template <auto timer>
constexpr Rows<2> frame_timer_rows() {
  return {
      text("Timer window", {6, 36}, {48, 18}, {"Quartz", 0x000000}, timer->window, count_frame<timer>)
          .from(token::time_of_day, token::simulation_rate),
      lamp("Timer lamp", bitmap::round_light, {6, 1}, timer_lamp<timer>),
  };
}

template <auto timer>
constexpr Area timer_button() {
  return click("Timer button", {4, 54, 22, 23}, does<press_timer<timer>>);
}

}  // namespace tarnvale
