/// Wind and turbulence.
///
/// Gusts follow Dryden's spectra at medium intensity's scale lengths (MIL-F-8785C, section 3.7): along
/// the path and across it 530 m, vertical 265 m, taken as first-order noise whose steps keep the
/// spectrum at any step size: g' = a g + s sqrt(1 - a^2) n, a = exp(-V dt / L). Off unless an intensity
/// is set.
#pragma once

#include "host/simulation/base/noise.h"
#include "host/simulation/base/vector.h"

namespace host::simulation {

struct Wind {
  double from_true_deg = 0.0;
  double speed_kt = 0.0;
  double gust_mps = 0.0;  ///< standard deviation: 1 light, 2 moderate, 4 severe

  /// Over the ground: north, east, down.
  Vector velocity_mps() const;
};

struct Turbulence {
  Noise noise;
  Vector gust_mps;  ///< along the aircraft's axes

  void update(double dt_s, double deviation_mps, double airspeed_mps);
};

}  // namespace host::simulation
