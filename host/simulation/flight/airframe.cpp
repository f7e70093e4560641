#include "host/simulation/flight/airframe.h"

#include <algorithm>
#include <cmath>

#include "host/simulation/world/terrain.h"

namespace host::simulation {
namespace {

constexpr double slices_per_second = 240.0;

/// How high the centre of gravity of a standing aircraft of usual weight is: the altimeters are set so
/// that they read the ground's elevation there.
double datum_height_m() {
  static const MassProperties usual = mass_properties(usual_fuel);
  static const double height_m = standing(usual.mass_kg, usual.centre_m).height_m;
  return height_m;
}

Vector thrust_moment_nm(const std::array<double, 2>& thrust_n, const Vector& centre_m) {
  const Vector left{0.0, -engine_out_m, -engine_up_m}, right{0.0, engine_out_m, -engine_up_m};
  return cross(left - centre_m, {thrust_n[0], 0.0, 0.0}) +
         cross(right - centre_m, {thrust_n[1], 0.0, 0.0});
}

Vector angular_acceleration(const Vector& moment_nm, const Vector& rate, const Vector& inertia) {
  const Vector momentum{inertia.x * rate.x, inertia.y * rate.y, inertia.z * rate.z};
  const Vector free = moment_nm - cross(rate, momentum);
  return {free.x / inertia.x, free.y / inertia.y, free.z / inertia.z};
}

}  // namespace

Loads Airframe::flying_loads(const AirframeInputs& inputs) {
  AirMotion motion;
  motion.airspeed_mps = attitude.to_body(velocity_mps - inputs.wind_mps) - inputs.gust_mps;
  motion.rate_rad_per_s = rate_rad_per_s;
  motion.density_kg_per_m3 = inputs.density_kg_per_m3;
  motion.sound_mps = inputs.sound_mps;
  motion.height_m = -position_m.z - ground_elevation_m(position_m);
  // A pitot tube feels what comes from ahead and below, not a wind from the side or from behind.
  airspeed_mps =
      motion.airspeed_mps.x > 0.0 ? std::hypot(motion.airspeed_mps.x, motion.airspeed_mps.z) : 0.0;
  air = air_forces(motion, surfaces);
  return {air.force_n + Vector{inputs.thrust_n[0] + inputs.thrust_n[1], 0.0, 0.0},
          air.moment_nm - cross(inputs.mass.centre_m, air.force_n) +
              thrust_moment_nm(inputs.thrust_n, inputs.mass.centre_m)};
}

GroundForces Airframe::ground_forces(double dt_s, const AirframeInputs& inputs) {
  const double height_m = -position_m.z - ground_elevation_m(position_m);
  constexpr double nothing_reaches_m = 30.0;
  if (height_m > nothing_reaches_m) {
    gear = {};
    return {};
  }
  return gear.update(dt_s, {inputs.mass.centre_m, height_m, attitude.to_body({0.0, 0.0, 1.0}),
                            attitude.to_body(velocity_mps), rate_rad_per_s, surfaces.gear, inputs.brake,
                            surfaces.steering_rad, inputs.antiskid});
}

void Airframe::slice(double dt_s, const AirframeInputs& inputs) {
  const Loads flying = flying_loads(inputs);
  const GroundForces ground = ground_forces(dt_s, inputs);
  main_wheel_down = ground.main_wheel_down;
  specific_force_mps2 = (flying.force_n + ground.force_n) * (1.0 / inputs.mass.mass_kg);
  velocity_mps += (attitude.to_earth(specific_force_mps2) + Vector{0.0, 0.0, gravity_mps2}) * dt_s;
  rate_rad_per_s += angular_acceleration(flying.moment_nm + ground.moment_nm, rate_rad_per_s,
                                         inputs.mass.inertia_kg_m2) *
                    dt_s;
  position_m += velocity_mps * dt_s;
  attitude = attitude.turned(rate_rad_per_s, dt_s);
}

void Airframe::update(double dt_s, const AirframeInputs& inputs) {
  const int slices = std::max(1, static_cast<int>(std::ceil(dt_s * slices_per_second - 1e-6)));
  for (int i = 0; i < slices; ++i) slice(dt_s / slices, inputs);
}

void Airframe::stand_at(const Vector& place_m, double heading_rad, const MassProperties& mass) {
  const Stance stance = standing(mass.mass_kg, mass.centre_m);
  position_m = {place_m.x, place_m.y, -ground_elevation_m(place_m) - stance.height_m};
  velocity_mps = rate_rad_per_s = {};
  attitude = Quaternion::from({0.0, stance.pitch_rad, heading_rad});
  gear = {};
  main_wheel_down = true;
}

void Airframe::roll(double dt_s, double speed_mps, double yaw_rad_per_s, const MassProperties& mass) {
  const double ahead_m = main_wheels_behind_m + mass.centre_m.x;  // of the main wheels
  const auto forward = [](double heading_rad) {
    return Vector{std::cos(heading_rad), std::sin(heading_rad), 0.0};
  };
  const double from_rad = attitude.angles().heading_rad, to_rad = from_rad + yaw_rad_per_s * dt_s;
  const Vector way = forward((from_rad + to_rad) / 2.0);
  stand_at(position_m + way * (speed_mps * dt_s) + (forward(to_rad) - forward(from_rad)) * ahead_m,
           to_rad, mass);
  rate_rad_per_s = {0.0, 0.0, yaw_rad_per_s};
  const Vector across{-std::sin(to_rad), std::cos(to_rad), 0.0};
  velocity_mps = forward(to_rad) * speed_mps + across * (yaw_rad_per_s * ahead_m);
}

void Airframe::put_at_altitude(const Vector& place_m, double altitude_ft) {
  position_m = {place_m.x, place_m.y, -altitude_ft * metres_per_foot - datum_height_m()};
}

double Airframe::datum_altitude_m() const { return -position_m.z - datum_height_m(); }

void Airframe::report(FlightState& state) const {
  const double altitude_m = datum_altitude_m();
  const double height_m = std::max(0.0, altitude_m - ground_elevation_m(position_m));
  state.position_m = {position_m.x, position_m.y, -altitude_m};
  state.attitude = attitude.angles();
  state.velocity_mps = velocity_mps;
  state.rate_rad_per_s = rate_rad_per_s;
  state.specific_force_mps2 = specific_force_mps2;
  state.angle_of_attack_rad = air.angle_of_attack_rad;
  state.sideslip_rad = air.sideslip_rad;
  state.altitude_ft = altitude_m / metres_per_foot;
  state.height_ft = main_wheel_down ? 0.0 : height_m / metres_per_foot;
  state.vertical_speed_fpm = 0.0 - velocity_mps.z * feet_per_minute_per_mps;
  state.true_airspeed_mps = airspeed_mps;
  state.on_ground = main_wheel_down;
  state.buffeting = airspeed_mps > 30.0 && air.separated > buffet_separation;
}

}  // namespace host::simulation
