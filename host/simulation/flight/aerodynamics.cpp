#include "host/simulation/flight/aerodynamics.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "host/simulation/flight/lift_curve.h"

namespace host::simulation {
namespace {

constexpr double aspect_ratio = wing_span_m * wing_span_m / wing_area_m2;
constexpr double induced_factor = 1.0 / (std::numbers::pi * aspect_ratio * 0.80);

/// What the coefficients are made of.
struct Flow {
  double speed_mps, mach;
  double alpha, beta;
  double roll, pitch, yaw;  // rates, made dimensionless
  double induced_ratio;     // 1 in free air, less near the ground
  FlapEffect flaps;
  Lift wing;
};

double ground_ratio(double height_m) {
  const double x = 16.0 * std::max(height_m, 0.5) / wing_span_m;
  return x * x / (1.0 + x * x);
}

Flow flow_of(const AirMotion& motion, const Surfaces& surfaces) {
  const Vector& v = motion.airspeed_mps;
  Flow flow{};
  // Below walking pace there is no pressure to speak of, and no direction either.
  flow.speed_mps = std::max(length(v), 1.0);
  flow.mach = flow.speed_mps / motion.sound_mps;
  flow.alpha = std::atan2(v.z, std::abs(v.x) < 1e-9 ? 1e-9 : v.x);
  flow.beta = std::asin(std::clamp(v.y / flow.speed_mps, -1.0, 1.0));
  const double span_s = wing_span_m / (2.0 * flow.speed_mps);
  const double chord_s = mean_chord_m / (2.0 * flow.speed_mps);
  flow.roll = motion.rate_rad_per_s.x * span_s;
  flow.pitch = motion.rate_rad_per_s.y * chord_s;
  flow.yaw = motion.rate_rad_per_s.z * span_s;
  flow.induced_ratio = ground_ratio(motion.height_m);
  flow.flaps = flap_effect(surfaces.flap_deg);
  flow.wing = wing_lift(flow.alpha, flow.mach, flow.flaps);
  return flow;
}

double lift_coefficient(const Flow& flow, const Surfaces& s) {
  const double ground_gain = 1.0 + 0.06 * (1.0 - flow.induced_ratio);
  return flow.wing.coefficient * ground_gain + 6.0 * flow.pitch - 0.35 * s.elevator_rad -
         0.9 * s.stabiliser_rad - 0.8 * s.lift_dumpers;
}

double drag_coefficient(const Flow& flow, const Surfaces& s, double lift) {
  const double gear = (s.gear[0] + s.gear[1] + s.gear[2]) / 3.0;
  const double wave = std::pow(std::max(0.0, std::min(flow.mach, 1.0) - 0.70), 4);
  const double sine = std::sin(flow.alpha);
  return 0.0175 + induced_factor * lift * lift * flow.induced_ratio + flow.flaps.drag + 0.020 * gear +
         0.035 * s.speed_brake + 0.06 * s.lift_dumpers + 20.0 * wave +
         1.2 * flow.wing.separated * sine * sine;
}

double pitch_coefficient(const Flow& flow, const Surfaces& s) {
  // The tail meets a falling effectiveness at angles that no trim asks for.
  const double alpha = std::clamp(flow.alpha, -0.8, 0.8);
  const double stall = std::max(0.0, flow.wing.separated - 0.3) * (alpha < 0.0 ? -1.0 : 1.0);
  const double in_wake = 1.0 - 0.5 * flow.wing.separated;
  return 0.03 + flow.flaps.pitching_moment - 1.3 * alpha + 1.6 * in_wake * s.elevator_rad +
         3.0 * s.stabiliser_rad - 22.0 * flow.pitch - 0.45 * stall;
}

double roll_coefficient(const Flow& flow, const Surfaces& s, double lift) {
  return -0.13 * flow.beta - 0.45 * flow.roll + (0.10 + 0.15 * lift) * flow.yaw +
         0.068 * s.aileron_rad + 0.015 * s.rudder_rad;
}

double yaw_coefficient(const Flow& flow, const Surfaces& s, double lift) {
  return 0.14 * flow.beta - (0.03 + 0.05 * lift) * flow.roll - 0.22 * flow.yaw - 0.004 * s.aileron_rad +
         0.09 * s.rudder_rad;
}

}  // namespace

AirForces air_forces(const AirMotion& motion, const Surfaces& surfaces) {
  const Flow flow = flow_of(motion, surfaces);
  const double true_speed_mps = length(motion.airspeed_mps);
  const double force_n =
      0.5 * motion.density_kg_per_m3 * true_speed_mps * true_speed_mps * wing_area_m2;
  const double lift = lift_coefficient(flow, surfaces);
  const double drag = drag_coefficient(flow, surfaces, lift);
  const double side = -0.85 * flow.beta + 0.17 * surfaces.rudder_rad;
  const double sine = std::sin(flow.alpha), cosine = std::cos(flow.alpha);
  return {Vector{lift * sine - drag * cosine, side, -lift * cosine - drag * sine} * force_n,
          {roll_coefficient(flow, surfaces, lift) * force_n * wing_span_m,
           pitch_coefficient(flow, surfaces) * force_n * mean_chord_m,
           yaw_coefficient(flow, surfaces, lift) * force_n * wing_span_m},
          flow.alpha,
          flow.beta,
          lift,
          drag,
          flow.wing.separated};
}

}  // namespace host::simulation
