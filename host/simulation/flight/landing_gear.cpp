#include "host/simulation/flight/landing_gear.h"

#include <algorithm>
#include <cmath>

#include "host/simulation/base/units.h"

namespace host::simulation {
namespace {

struct Leg {
  Vector foot_m;  // of the extended wheel, from 25 % of the mean chord
  double spring_n_per_m, damper_n_s_per_m, stroke_m;
  double brake_n;
  int pedal;               // -1: no brake
  double cornering_per_m;  // sideways stiffness as a part of the load
};

constexpr std::array<Leg, 3> legs{
    {{{nose_wheel_ahead_m, 0.0, wheel_depth_m}, 155e3, 25e3, 0.40, 0.0, -1, 3.0},
     {{-main_wheels_behind_m, -2.5, wheel_depth_m}, 650e3, 100e3, 0.45, 75e3, 0, 6.0},
     {{-main_wheels_behind_m, 2.5, wheel_depth_m}, 650e3, 100e3, 0.45, 75e3, 1, 6.0}}};

// Belly, nose, tail and wing tips.
constexpr std::array<Vector, 5> bare_points{
    {{0.0, 0.0, 1.6}, {14.0, 0.0, 1.2}, {-13.0, 0.0, -0.4}, {-2.0, -12.5, 0.2}, {-2.0, 12.5, 0.2}}};
constexpr double bare_spring_n_per_m = 1.5e6, bare_damper_n_s_per_m = 150e3, bare_friction = 0.4;

constexpr double bottom_spring_n_per_m = 4e6;
constexpr double carcass_spring_n_per_m = 1.0e6;  // along the wheel
constexpr double carcass_damping_s = 0.06;        // damper to spring
constexpr double relaxation_m = 0.7;
constexpr double grip = 0.7, braking_grip = 0.5, sliding_grip = 0.3, rolling_resistance = 0.015;

/// A point of the aircraft against the ground.
struct Contact {
  Vector arm_m;         // from the centre of gravity
  Vector velocity_mps;  // along the aircraft's axes
  double depth_m;       // below the ground's surface
  double sink_mps;
};

Contact contact_of(const Vector& point_m, const GroundMotion& m) {
  Contact c{};
  c.arm_m = point_m - m.centre_m;
  c.velocity_mps = m.velocity_mps + cross(m.rate_rad_per_s, c.arm_m);
  c.depth_m = dot(c.arm_m, m.down) - m.height_m;
  c.sink_mps = dot(c.velocity_mps, m.down);
  return c;
}

/// The wheel's own directions, level with the ground.
struct Rolling {
  Vector along, across;
};

Rolling rolling_of(const Vector& down, double steering_rad) {
  const Vector nose{std::cos(steering_rad), std::sin(steering_rad), 0.0};
  const Vector level = nose - down * dot(nose, down);
  const Vector along = level * (1.0 / std::max(length(level), 1e-6));
  return {along, cross(down, along)};
}

double leg_load_n(const Leg& leg, const Contact& c) {
  const double bottomed_m = std::max(0.0, c.depth_m - leg.stroke_m);
  return std::max(0.0, leg.spring_n_per_m * c.depth_m + leg.damper_n_s_per_m * c.sink_mps +
                           bottom_spring_n_per_m * bottomed_m);
}

/// A bristle's force against its stretch, at most `most_n`; the stretch keeps to what the force holds.
double bristle_n(double& stretch_m, double slip_mps, double spring_n_per_m, double most_n) {
  const double reach_m = most_n / spring_n_per_m;
  stretch_m = std::clamp(stretch_m, -reach_m, reach_m);
  return std::clamp(-spring_n_per_m * (stretch_m + carcass_damping_s * slip_mps), -most_n, most_n);
}

/// What the brake can hold.
double brake_limit_n(const Leg& leg, double load_n, const GroundMotion& m) {
  if (leg.pedal < 0) return 0.0;
  const double wanted_n = leg.brake_n * m.brake[static_cast<std::size_t>(leg.pedal)];
  if (wanted_n <= braking_grip * load_n) return wanted_n;
  return (m.antiskid ? braking_grip : sliding_grip) * load_n;
}

Vector tyre_force_n(double dt_s, Tyre& tyre, const Leg& leg, const Contact& c, const Rolling& wheel,
                    double load_n, double along_most_n) {
  const double roll_mps = dot(c.velocity_mps, wheel.along);
  const double slip_mps = dot(c.velocity_mps, wheel.across);
  tyre.along_m += roll_mps * dt_s;
  tyre.across_m = (tyre.across_m + slip_mps * dt_s) / (1.0 + std::abs(roll_mps) * dt_s / relaxation_m);
  const double along_n = bristle_n(tyre.along_m, roll_mps, carcass_spring_n_per_m, along_most_n);
  // The damping is the standing carcass's; a rolling one relaxes instead.
  const double standing_slip_mps = slip_mps / (1.0 + std::abs(roll_mps));
  const double across_most_n =
      std::sqrt(std::max(0.0, grip * grip * load_n * load_n - along_n * along_n));
  const double across_n =
      bristle_n(tyre.across_m, standing_slip_mps, leg.cornering_per_m * load_n, across_most_n);
  return wheel.along * along_n + wheel.across * across_n;
}

void add(GroundForces& sum, const Contact& c, const Vector& force_n) {
  sum.force_n += force_n;
  sum.moment_nm += cross(c.arm_m, force_n);
}

void add_bare_points(GroundForces& sum, const GroundMotion& m) {
  for (const Vector& point_m : bare_points) {
    const Contact c = contact_of(point_m, m);
    if (c.depth_m <= 0.0) continue;
    const double load_n =
        std::max(0.0, bare_spring_n_per_m * c.depth_m + bare_damper_n_s_per_m * c.sink_mps);
    const Vector slide_mps = c.velocity_mps - m.down * c.sink_mps;
    const double friction_n = -bare_friction * load_n / std::max(length(slide_mps), 0.5);
    add(sum, c, m.down * -load_n + slide_mps * friction_n);
  }
}

}  // namespace

GroundForces LandingGear::update(double dt_s, const GroundMotion& m) {
  GroundForces sum;
  for (std::size_t i = 0; i < legs.size(); ++i) {
    const Leg& leg = legs[i];
    const Contact c = contact_of(leg.foot_m, m);
    load_n[i] = m.gear[i] >= 1.0 && c.depth_m > 0.0 ? leg_load_n(leg, c) : 0.0;
    if (load_n[i] <= 0.0) {
      tyres[i] = {};
      continue;
    }
    const Rolling wheel = rolling_of(m.down, i == 0 ? m.steering_rad : 0.0);
    const double brake_n = brake_limit_n(leg, load_n[i], m);
    const double along_most_n = brake_n + rolling_resistance * load_n[i];
    const Vector tyre_n = tyre_force_n(dt_s, tyres[i], leg, c, wheel, load_n[i], along_most_n);
    if (leg.pedal >= 0) {
      const double slowed_w = -dot(tyre_n, wheel.along) * dot(c.velocity_mps, wheel.along);
      braked_j[static_cast<std::size_t>(leg.pedal)] +=
          std::max(0.0, slowed_w) * brake_n / along_most_n * dt_s;
    }
    add(sum, c, m.down * -load_n[i] + tyre_n);
    sum.main_wheel_down = sum.main_wheel_down || i > 0;
  }
  if (m.height_m < 20.0) add_bare_points(sum, m);
  return sum;
}

Stance standing(double mass_kg, const Vector& centre_m) {
  const Leg& nose = legs[0];
  const Leg& main = legs[1];
  const double weight_n = mass_kg * gravity_mps2;
  double pitch_rad = 0.0, height_m = 0.0;
  // The arms change a little with the pitch that they cause; this settles far below a hair's width.
  for (int round = 0; round < 30; ++round) {
    const double sine = std::sin(pitch_rad), cosine = std::cos(pitch_rad);
    const auto ahead_m = [&](const Leg& leg) {
      return (leg.foot_m.x - centre_m.x) * cosine + leg.foot_m.z * sine;
    };
    const double nose_n = weight_n * -ahead_m(main) / (ahead_m(nose) - ahead_m(main));
    const double nose_depth_m = nose_n / nose.spring_n_per_m;
    const double main_depth_m = (weight_n - nose_n) / 2.0 / main.spring_n_per_m;
    height_m = -(main.foot_m.x - centre_m.x) * sine + main.foot_m.z * cosine - main_depth_m;
    pitch_rad = std::asin((main_depth_m - nose_depth_m) / (nose.foot_m.x - main.foot_m.x));
  }
  return {height_m, pitch_rad};
}

}  // namespace host::simulation
