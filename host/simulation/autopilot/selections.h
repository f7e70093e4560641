/// What the crew has dialled on the autopilot's panels.
#pragma once

namespace host::simulation {

/// The crew's targets, for the flight director and for the autopilot.
struct Selections {
  double heading_bug_deg = 70.0;    ///< magnetic
  double altitude_ft = 3000.0;      ///< 0 .. 45,000
  double airspeed_kt = 150.0;       ///< 80 .. 400
  double vertical_speed_fpm = 0.0;  ///< -6,000 .. 6,000

  void turn_heading(double by_deg);
  void turn_altitude(double by_ft);
  void turn_airspeed(double by_kt);
  void turn_vertical_speed(double by_fpm);
};

}  // namespace host::simulation
