/// The speed-brake switch of the left pedestal, and the throttle that closes the brake.
#pragma once

#include "module/catalogue.h"
#include "module/controls.h"

namespace tarnvale {

/// From here on the throttle stands at take-off thrust, which no speed brake is meant for.
inline constexpr f64 take_off_throttle = 15000;

/// Arms the speed brake, or disarms it; at take-off thrust it can only be disarmed.
inline void press_speed_brake(f64 throttle) {
  const bool arms = aircraft.speedbrake_armed == 0 && throttle < take_off_throttle;
  aircraft.speedbrake_armed = arms;
  send(event::speed_brake_toggle);
  request(sbrake_sound_request);
}

/// An armed speed brake is shut when the throttle goes to take-off thrust.
inline void shut_speed_brake(f64 throttle) {
  if (aircraft.speedbrake_armed == 1 && throttle > take_off_throttle) send(event::speed_brake_toggle);
}

/// The flag falls while the lever passes the first notch of take-off thrust; a lever thrown past it
/// skips that.
inline void disarm_speed_brake(f64 throttle) {
  constexpr f64 notch_ends = 16000;
  if (throttle > take_off_throttle && throttle < notch_ends) aircraft.speedbrake_armed = 0;
}

template <auto last_throttle>
void work_speed_brake() {
  press_speed_brake(*last_throttle);
}

constexpr Row speed_brake_row() {
  return icon("Speed brake switch", 4050, {232, 100}, shows<&Aircraft::speedbrake_armed>);
}

template <auto last_throttle>
constexpr Area speed_brake_area() {
  return click("Speed brake switch", {227, 143, 34, 100}, does<work_speed_brake<last_throttle>>);
}

}  // namespace tarnvale
