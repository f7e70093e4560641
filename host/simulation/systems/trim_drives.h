/// What moves the trims: the pitch trim wheel, and a motor each for rudder and ailerons.
///
/// A notch of the wheel trims the stabiliser by 0.05 degrees, so that a held wheel makes half a degree
/// a second. A motor runs for two seconds at half a degree a second for each press of its switch;
/// presses add up, opposite ones take back.
#pragma once

#include "host/simulation/flight/flight_controls.h"

namespace host::simulation {

struct TrimMotor {
  double seconds_to_run = 0.0;  ///< to the right; negative: to the left

  /// -1: left, 1: right.
  void press(double side);
  void update(double dt_s, double& trim, double full_trim_deg);
};

struct TrimDrives {
  TrimMotor aileron, rudder;

  void update(double dt_s, FlightControls& controls);
};

/// By so many notches of the wheel; nose up positive.
void turn_pitch_trim(FlightControls& controls, double notches);

}  // namespace host::simulation
