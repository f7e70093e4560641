/// Finds straight and level flight: the angle of attack, stabiliser and thrust with which nothing
/// moves.
#pragma once

#include "host/simulation/flight/airframe.h"

namespace host::simulation {

struct Trim {
  bool found = false;
  double angle_of_attack_rad = 0.0;
  double stabiliser_rad = 0.0;
  double thrust_n = 0.0;  ///< of both engines
};

/// For the airframe where it is, with its surfaces as they are, at that speed through the air. Newton's
/// method on the two forces in the plane of symmetry and the pitching moment. Leaves the airframe
/// trimmed, without turn rates; not found beyond the stall or the stabiliser's travel.
Trim trim_level(Airframe& airframe, AirframeInputs inputs, double airspeed_mps, double heading_rad);

}  // namespace host::simulation
