#include "host/simulation/flight/lift_curve.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "host/simulation/base/numeric.h"
#include "host/simulation/base/units.h"

namespace host::simulation {
namespace {

struct FlapRow {
  double flap_deg;
  FlapEffect effect;
};

constexpr std::array<FlapRow, 6> flap_rows{{{0.0, {0.20, 1.74, 0.000, 0.000}},
                                            {6.0, {0.36, 1.90, 0.006, -0.010}},
                                            {11.0, {0.48, 2.05, 0.011, -0.018}},
                                            {18.0, {0.62, 2.22, 0.020, -0.028}},
                                            {25.0, {0.78, 2.40, 0.036, -0.042}},
                                            {42.0, {1.10, 2.72, 0.070, -0.075}}}};

constexpr CurvePoint greatest_lift_with_mach[] = {
    {0.30, 1.0}, {0.60, 0.86}, {0.80, 0.62}, {0.95, 0.45}};

constexpr double low_speed_slope = 5.4;  // per radian, aspect ratio 7.9
constexpr double half_rounding_rad = 2.5 * radians_per_degree;
constexpr double break_rad = 10.0 * radians_per_degree;
constexpr double lift_lost = 1.0 / 3.0;
constexpr double plate_lift = 1.1;
constexpr double inverted_ratio = 0.6;  // of CLmax, where the wing flies upside down

double between(double a, double b, double t) { return a + (b - a) * t; }

double smooth(double t) {
  const double x = std::clamp(t, 0.0, 1.0);
  return x * x * (3.0 - 2.0 * x);
}

/// Beyond CLmax: the break, then into the flat plate's lift.
double stalled_lift(double beyond_rad, double angle_of_attack_rad, double greatest) {
  const double broken = greatest * (1.0 - lift_lost * smooth(beyond_rad / break_rad));
  const double plate = plate_lift * std::sin(2.0 * angle_of_attack_rad);
  return between(broken, plate, smooth((beyond_rad - break_rad) / (1.5 * break_rad)));
}

/// The curve for one side of zero lift; `line` and `greatest` are of that side, positive.
Lift upright_lift(double line, double slope, double greatest, double angle_of_attack_rad) {
  const double start = greatest - slope * half_rounding_rad;
  const double into_rad = (line - start) / slope;
  if (into_rad <= 0.0) return {line, line, 0.0};
  const double rounding_rad = 2.0 * half_rounding_rad;
  if (into_rad <= rounding_rad) {
    const double t = into_rad / rounding_rad;
    return {start + slope * (into_rad - into_rad * t / 2.0), line, 0.5 * t};
  }
  const double beyond_rad = into_rad - rounding_rad;
  return {stalled_lift(beyond_rad, angle_of_attack_rad, greatest), line,
          0.5 + 0.5 * smooth(beyond_rad / break_rad)};
}

}  // namespace

FlapEffect flap_effect(double flap_deg) {
  std::size_t above = 1;
  while (above + 1 < flap_rows.size() && flap_rows[above].flap_deg < flap_deg) ++above;
  const auto& [from_deg, from] = flap_rows[above - 1];
  const auto& [to_deg, to] = flap_rows[above];
  const double t = std::clamp((flap_deg - from_deg) / (to_deg - from_deg), 0.0, 1.0);
  return {between(from.lift_at_zero, to.lift_at_zero, t),
          between(from.greatest_lift, to.greatest_lift, t), between(from.drag, to.drag, t),
          between(from.pitching_moment, to.pitching_moment, t)};
}

double lift_slope(double mach) {
  const double limited = std::min(mach, 0.9);
  return low_speed_slope / std::sqrt(1.0 - 0.5 * limited * limited);
}

double greatest_lift(double mach, const FlapEffect& flaps) {
  return flaps.greatest_lift * on_curve(greatest_lift_with_mach, mach);
}

double angle_of_attack_rad(double part_of_greatest, double mach, const FlapEffect& flaps) {
  return (part_of_greatest * greatest_lift(mach, flaps) - flaps.lift_at_zero) / lift_slope(mach);
}

Lift wing_lift(double angle_of_attack_rad, double mach, const FlapEffect& flaps) {
  const double slope = lift_slope(mach);
  const double line = flaps.lift_at_zero + slope * angle_of_attack_rad;
  const double greatest = greatest_lift(mach, flaps);
  if (line >= 0.0) return upright_lift(line, slope, greatest, angle_of_attack_rad);
  const Lift mirrored = upright_lift(-line, slope, inverted_ratio * greatest, -angle_of_attack_rad);
  return {-mirrored.coefficient, line, mirrored.separated};
}

}  // namespace host::simulation
