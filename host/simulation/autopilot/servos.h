/// The servos: surfaces that hold an attitude, beside whatever the pilot's hand does.
///
///   elevator = 1.9 (wanted pitch - pitch) - 1.6 (pitch rate - that of a level turn)
///   aileron  = 1.5 (wanted bank - bank) + 0.2 of that summed - 0.8 roll rate
/// in radians (rates per second) at 150 kt; the sum goes on within 3 degrees. At other speeds all of it
/// falls as the speed's square rises, with which the surfaces' power grows: so the loops keep their
/// pace of about 1.7 and 1.4 radians a second (the roots of 1.9 and 1.5 times the power: see
/// aerodynamics.h). The elevator's servo moves at most 10 degrees, the aileron's 15.
///
/// The stabiliser follows until the elevator stands in its middle: by 0.12 of its deflection a
/// second, at most 0.3 degrees a second. What the servo lets go of has no force on it then.
///
/// The yaw damper turns the rudder against what yaw a steady turn at that bank does not need:
///   rudder = -2.8 (r - g sin(bank) cos(pitch) / V) b / 2V, at most 5 degrees,
/// which gives the airframe another 0.25 of damping per radian of r b / 2V.
#pragma once

#include "host/simulation/autopilot/sensed.h"
#include "host/simulation/flight/surfaces.h"

namespace host::simulation {

struct Servos {
  ServoDeflections deflections;

  /// Holds the attitude, and turns the trim wheel.
  void hold(double dt_s, double pitch_rad, double bank_rad, const Sensed& sensed, double& pitch_trim);

  /// Lets go: in a second or two the surfaces are the hand's alone.
  void release(double dt_s);

  void damp_yaw(bool on, const FlightState& flight);

 private:
  double aileron_sum_rad_ = 0.0;
};

}  // namespace host::simulation
