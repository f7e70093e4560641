#include "host/simulation/autopilot/selections.h"

#include <algorithm>

#include "host/simulation/base/angle.h"

namespace host::simulation {

void Selections::turn_heading(double by_deg) {
  heading_bug_deg = compass_degrees(heading_bug_deg + by_deg);
}

void Selections::turn_altitude(double by_ft) {
  altitude_ft = std::clamp(altitude_ft + by_ft, 0.0, 45000.0);
}

void Selections::turn_airspeed(double by_kt) {
  airspeed_kt = std::clamp(airspeed_kt + by_kt, 80.0, 400.0);
}

void Selections::turn_vertical_speed(double by_fpm) {
  vertical_speed_fpm = std::clamp(vertical_speed_fpm + by_fpm, -6000.0, 6000.0);
}

}  // namespace host::simulation
