/// The way that the aircraft has come over the ground, for a map.
#pragma once

#include <span>
#include <vector>

#include "host/simulation/base/vector.h"

namespace host::simulation {

/// A point every 50 m to begin with. When there are 4,000 of them every other one goes and the distance
/// doubles, so that no flight is too long for it.
class Track {
 public:
  /// Called every step with the place of the wheels.
  void follow(const Vector& position_m);

  /// The oldest first.
  std::span<const Vector> points() const { return points_; }

 private:
  std::vector<Vector> points_;
  double spacing_m_ = 50.0;
};

}  // namespace host::simulation
