#include "host/simulation/flight/trim.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace host::simulation {
namespace {

constexpr double newtons_per_unit = 1e5;  // so that all unknowns are of a size

// Near the stall, where lift hardly grows any more, a full step would leap over it.
constexpr double longest_rad = 0.01;

/// The unknowns: angle of attack, stabiliser (radians), thrust of both engines (100 kN).
using Unknowns = Vector;

/// What is left over: forces forward and down as parts of the weight, moment as a part of weight times
/// chord.
Vector imbalance(Airframe& airframe, AirframeInputs inputs, double heading_rad,
                 const Unknowns& unknowns) {
  airframe.attitude = Quaternion::from({0.0, unknowns.x, heading_rad});
  airframe.surfaces.stabiliser_rad = unknowns.y;
  inputs.thrust_n.fill(unknowns.z * newtons_per_unit / 2.0);
  const Loads loads = airframe.flying_loads(inputs);
  const double weight_n = inputs.mass.mass_kg * gravity_mps2;
  const Vector level = Quaternion::from({0.0, unknowns.x, 0.0}).to_earth(loads.force_n);
  return {level.x / weight_n, level.z / weight_n + 1.0, loads.moment_nm.y / (weight_n * mean_chord_m)};
}

/// Solves a x = b for columns a (Cramer's rule).
Vector solved(const std::array<Vector, 3>& a, const Vector& b) {
  const double determinant = dot(a[0], cross(a[1], a[2]));
  return Vector{dot(b, cross(a[1], a[2])), dot(a[0], cross(b, a[2])), dot(a[0], cross(a[1], b))} *
         (1.0 / determinant);
}

}  // namespace

Trim trim_level(Airframe& airframe, AirframeInputs inputs, double airspeed_mps, double heading_rad) {
  airframe.rate_rad_per_s = {};
  airframe.velocity_mps =
      Vector{std::cos(heading_rad), std::sin(heading_rad), 0.0} * airspeed_mps + inputs.wind_mps;
  inputs.gust_mps = {};
  Unknowns at{0.03, 0.05, 0.4};
  const auto left_over = [&](const Unknowns& u) { return imbalance(airframe, inputs, heading_rad, u); };
  double miss = 1.0;
  for (int round = 0; round < 100 && miss > 1e-13; ++round) {
    constexpr double nudge = 1e-6;
    const Vector here = left_over(at);
    const auto slope = [&](const Vector& step) {
      return (left_over(at + step) - here) * (1.0 / nudge);
    };
    const Vector step =
        solved({slope({nudge, 0, 0}), slope({0, nudge, 0}), slope({0, 0, nudge})}, here);
    const double part = longest_rad / std::max({std::abs(step.x), std::abs(step.y), longest_rad});
    at = at - step * part;
    miss = length(left_over(at));
  }
  const bool reachable = std::abs(trim_for_stabiliser(at.y)) <= 1.0;
  return {miss < 1e-9 && reachable && airframe.air.separated < 0.5, at.x, at.y,
          at.z * newtons_per_unit};
}

}  // namespace host::simulation
