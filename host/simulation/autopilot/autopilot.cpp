#include "host/simulation/autopilot/autopilot.h"

#include <algorithm>
#include <cmath>

namespace host::simulation {
namespace {

bool stick_moved(const FlightControls& hand) {
  constexpr double force = 0.25;
  return std::max(std::abs(hand.elevator), std::abs(hand.aileron)) >= force;
}

bool can_fly(const Sensed& sensed, const FlightControls& hand, double bank_limit_deg,
             double pitch_limit_deg) {
  const EulerAngles& attitude = sensed.flight.attitude;
  return sensed.powered && sensed.gyros_true && !sensed.flight.on_ground && !sensed.flight.buffeting &&
         !stick_moved(hand) && std::abs(attitude.bank_rad) < bank_limit_deg * radians_per_degree &&
         std::abs(attitude.pitch_rad) < pitch_limit_deg * radians_per_degree;
}

}  // namespace

void Autopilot::toggle(const Sensed& sensed, const FlightControls& hand) {
  modes.engaged = !modes.engaged && can_fly(sensed, hand, 35.0, 20.0);
  if (!modes.engaged) return;
  director.start(sensed);
  selections.set_vertical_speed(sensed.flight.vertical_speed_fpm);
}

void Autopilot::reset(const Sensed& sensed) {
  modes.engaged = false;
  servos = {};
  autothrottle.start(sensed);
  director.start(sensed);
}

void Autopilot::keep_what_can_go_on(const Sensed& sensed, const FlightControls& hand) {
  if (!can_fly(sensed, hand, 50.0, 30.0)) modes.engaged = false;
  const bool beam = sensed.nav.localizer && sensed.nav.glide_slope;
  modes.approach = beam && (modes.approach || modes.approach_armed);
  if (sensed.flight.on_ground) modes.arm_approach(false);
  if (!sensed.powered) modes.forget();
}

void Autopilot::update(double dt_s, const Sensed& sensed, FlightControls& controls) {
  keep_what_can_go_on(sensed, controls);
  if (sensed.powered) director.update(dt_s, modes, selections, sensed);
  if (modes.engaged) {
    servos.hold(dt_s, director.vertical.pitch_rad, director.lateral.bank_rad, sensed,
                controls.pitch_trim);
  } else {
    servos.release(dt_s);
  }
  servos.damp_yaw(sensed.powered && (modes.engaged || modes.yaw_damper_on), sensed.flight);
  autothrottle.update(dt_s, sensed.powered && modes.airspeed_hold && !sensed.flight.on_ground,
                      selections.airspeed_kt, modes.engaged ? director.vertical.missing_rad : 0.0,
                      sensed, controls.throttle);
}

}  // namespace host::simulation
