#include "host/simulation/autopilot/modes.h"

namespace host::simulation {

void AutopilotModes::hold(LateralMode mode, bool on) {
  if (on) {
    lateral = mode;
  } else if (lateral == mode) {
    lateral = LateralMode::level;
  }
}

void AutopilotModes::arm_approach(bool on) {
  approach_armed = on;
  if (!on) approach = false;
}

void AutopilotModes::hold_approach(bool on, bool received) { approach = on && received; }

void AutopilotModes::toggle_autothrottle() {
  autothrottle_armed = !autothrottle_armed;
  if (!autothrottle_armed) airspeed_hold = false;
}

}  // namespace host::simulation
