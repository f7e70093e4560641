/// Where the aircraft is and how it moves, as the rest of the aircraft reads it.
#pragma once

#include "host/simulation/base/quaternion.h"
#include "host/simulation/world/airfield.h"

namespace host::simulation {

struct FlightState {
  Vector position_m;  ///< north, east, down from mean sea level, of the wheels' datum
  EulerAngles attitude;
  Vector velocity_mps;         ///< over the ground: north, east, down
  Vector rate_rad_per_s;       ///< about the aircraft's axes
  Vector specific_force_mps2;  ///< what an accelerometer feels, along the aircraft's axes
  double angle_of_attack_rad = 0.0;
  double sideslip_rad = 0.0;  ///< wind from the right positive

  double altitude_ft = airfield_elevation_ft;  ///< true, above mean sea level
  double height_ft = 0.0;                      ///< of the main wheels above the ground below
  double vertical_speed_fpm = 0.0;
  double true_airspeed_mps = 0.0;
  bool on_ground = true;  ///< a main wheel carries weight
  bool buffeting = false;
};

}  // namespace host::simulation
