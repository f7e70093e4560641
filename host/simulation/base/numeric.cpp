#include "host/simulation/base/numeric.h"

#include <algorithm>

namespace host::simulation {

double on_curve(std::span<const CurvePoint> curve, double x) {
  if (x <= curve.front().x) return curve.front().y;
  if (x >= curve.back().x) return curve.back().y;
  const auto above =
      std::find_if(curve.begin(), curve.end(), [x](const CurvePoint& point) { return point.x > x; });
  const auto below = above - 1;
  return below->y + (above->y - below->y) * (x - below->x) / (above->x - below->x);
}

double lag(double value, double target, double time_constant_s, double dt_s) {
  return value + (target - value) * std::min(1.0, dt_s / time_constant_s);
}

}  // namespace host::simulation
