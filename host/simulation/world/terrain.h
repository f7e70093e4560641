/// The ground: level on and around the airfield and below the approach, hills further out.
#pragma once

#include "host/simulation/base/vector.h"

namespace host::simulation {

/// Metres above mean sea level. The airfield's elevation within 6 km of the runway's middle, then
/// rolling hills that reach 150 m above it from 20 km on.
double ground_elevation_m(const Vector& position_m);

}  // namespace host::simulation
