#include "host/simulation/autopilot/modes.h"

namespace host::simulation {

void AutopilotModes::hold_heading(bool on) {
  if (on) {
    lateral = LateralMode::heading;
    arm_approach(false);
  } else if (lateral == LateralMode::heading) {
    lateral = LateralMode::level;
  }
}

void AutopilotModes::hold_navigation(bool on) {
  lateral = on ? LateralMode::navigation : LateralMode::level;
  if (!on) arm_approach(false);
}

void AutopilotModes::arm_approach(bool on) {
  approach_armed = on;
  if (on) {
    lateral = LateralMode::navigation;
  } else {
    approach = false;
  }
}

void AutopilotModes::hold_approach(bool on, bool received) {
  arm_approach(on && received);
  approach = on && received;
}

void AutopilotModes::toggle_autothrottle() {
  autothrottle_armed = !autothrottle_armed;
  if (!autothrottle_armed) airspeed_hold = false;
}

void AutopilotModes::forget() {
  lateral = LateralMode::level;
  altitude_hold = false;
  arm_approach(false);
}

}  // namespace host::simulation
