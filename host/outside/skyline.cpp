#include "host/outside/skyline.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "host/simulation/world/terrain.h"

namespace host::outside {
namespace {

/// Hills from one distance to another, seen as one ridge.
struct Ridge {
  double from_m, to_m, step_m;
};

constexpr std::array<Ridge, 3> ridges{
    {{24000, 44000, 2500}, {14000, 24000, 1600}, {6000, 14000, 1000}}};
constexpr Rgb forest{74, 96, 76};
constexpr int directions = 240;

/// The highest slope at which the ridge is seen in a direction.
double slope(const Ridge& ridge, const Vector& eye_m, double north, double east) {
  double highest = -1.0;
  for (double away = ridge.from_m; away < ridge.to_m; away += ridge.step_m) {
    const Vector at{eye_m.x + north * away, eye_m.y + east * away, 0.0};
    highest = std::max(highest, (simulation::ground_elevation_m(at) + eye_m.z) / away);
  }
  return highest;
}

// A direction from the eye, and the slope at which the ridge is seen there.
struct Edge {
  double north, east, slope;
};

Edge edge_at(const Ridge& ridge, const Vector& eye_m, int direction) {
  const double angle = 2.0 * std::numbers::pi * direction / directions;
  const double north = std::cos(angle), east = std::sin(angle);
  return {north, east, slope(ridge, eye_m, north, east)};
}

// The piece of a ridge between two directions, as an upright surface at that distance.
std::array<Vector, 4> piece_between(const Edge& left, const Edge& right, const Vector& eye_m,
                                    double away_m) {
  // It reaches under the next one: no sky shows between them.
  const Edge beyond{right.north + 0.1 * (right.north - left.north),
                    right.east + 0.1 * (right.east - left.east),
                    right.slope + 0.1 * (right.slope - left.slope)};
  const auto corner = [&](const Edge& e, double rise) {
    return eye_m + Vector{e.north, e.east, -rise} * away_m;
  };
  constexpr double below_horizon = -0.002;
  return {corner(left, below_horizon), corner(left, std::max(left.slope, 0.0)),
          corner(beyond, std::max(beyond.slope, 0.0)), corner(beyond, below_horizon)};
}

void paint_ridge(const Ridge& ridge, SurfacePainter& painter, const Camera& camera, const Air& air) {
  const Vector& eye = camera.eye_m();
  const double middle_m = 0.5 * (ridge.from_m + ridge.to_m);
  const std::uint32_t colour = packed(air.seen(forest, {middle_m, 0.0, 0.0}));
  Edge left = edge_at(ridge, eye, 0);
  for (int i = 1; i <= directions; ++i) {
    const Edge right = edge_at(ridge, eye, i);
    if (std::max(left.slope, right.slope) > 0.0)
      painter.paint(piece_between(left, right, eye, middle_m), colour);
    left = right;
  }
}

}  // namespace

void paint_skyline(SurfacePainter& painter, const Camera& camera, const Air& air) {
  constexpr double above_all_hills_m = 320.0;
  if (-camera.eye_m().z > above_all_hills_m) return;
  for (const Ridge& ridge : ridges) paint_ridge(ridge, painter, camera, air);
}

}  // namespace host::outside
