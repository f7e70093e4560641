/// Angles that go round.
#pragma once

#include <cmath>

namespace host::simulation {

/// The same direction in 0 (included) to 360 degrees.
inline double compass_degrees(double degrees) {
  const double turned = std::fmod(degrees, 360.0);
  const double positive = turned < 0.0 ? turned + 360.0 : turned;
  return positive < 360.0 ? positive : 0.0;
}

/// The same direction in -180 to 180 degrees: the shorter way from 0.
inline double turn_degrees(double degrees) { return std::remainder(degrees, 360.0); }

}  // namespace host::simulation
