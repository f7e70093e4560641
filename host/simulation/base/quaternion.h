/// Attitudes: the turn from the aircraft's frame into the earth's.
///
/// A unit quaternion has no gimbal lock and stays a rotation after one division a step (Stevens, Lewis
/// and Johnson, Aircraft Control and Simulation, 3rd ed., section 1.4).
#pragma once

#include "host/simulation/base/vector.h"

namespace host::simulation {

/// Bank right, pitch up and heading clockwise from north are positive. Check value: heading 90 degrees
/// alone points the aircraft's x axis east.
struct EulerAngles {
  double bank_rad = 0.0;
  double pitch_rad = 0.0;
  double heading_rad = 0.0;
};

struct Quaternion {
  double w = 1.0, x = 0.0, y = 0.0, z = 0.0;

  static Quaternion from(const EulerAngles& angles);
  EulerAngles angles() const;

  Vector to_earth(const Vector& body) const;
  Vector to_body(const Vector& earth) const;

  /// After turning at `rate_rad_per_s`, given about the aircraft's own axes, for `dt_s`.
  Quaternion turned(const Vector& rate_rad_per_s, double dt_s) const;
};

}  // namespace host::simulation
