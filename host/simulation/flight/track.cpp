#include "host/simulation/flight/track.h"

#include <cmath>

namespace host::simulation {
namespace {

constexpr std::size_t most_points = 4000;

}  // namespace

void Track::follow(const Vector& position_m) {
  if (!points_.empty()) {
    const Vector& last = points_.back();
    if (std::hypot(position_m.x - last.x, position_m.y - last.y) < spacing_m_) return;
  }
  points_.push_back(position_m);
  if (points_.size() < most_points) return;
  for (std::size_t i = 0; i < most_points / 2; ++i) points_[i] = points_[2 * i];
  points_.resize(most_points / 2);
  spacing_m_ *= 2.0;
}

}  // namespace host::simulation
