/// Small calculations that several models share.
#pragma once

#include <span>

namespace host::simulation {

struct CurvePoint {
  double x;
  double y;
};

/// The curve's value at x, straight between the points; the end points hold beyond the ends.
/// The points stand in ascending order of x, at least one of them.
double on_curve(std::span<const CurvePoint> curve, double x);

/// A first-order lag: one step of `value` toward `target`.
double lag(double value, double target, double time_constant_s, double dt_s);

/// One step of `value` toward `target` at a constant rate.
double approach(double value, double target, double rate_per_s, double dt_s);

}  // namespace host::simulation
