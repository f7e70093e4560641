#include "host/simulation/systems/hydraulics.h"

#include <algorithm>
#include <cmath>

namespace host::simulation {
namespace {

constexpr double rated_psi = 3000.0, shut_off_psi = 150.0;
constexpr double pump_l_per_s_percent = 0.4 / 100.0;
constexpr double accumulator_l_per_psi = 0.4 / 1000.0;
constexpr double leak_l_per_s_psi = 0.002 / rated_psi;
constexpr double reservoir_l = 10.0;

// What a jack's piston sweeps on its whole way, and what its longer side holds more than its shorter
// one.
constexpr double gear_leg_swept_l = 1.0, gear_leg_held_l = 0.2;
constexpr double flaps_swept_l = 1.5, flaps_held_l = 0.5;
constexpr double speed_brake_swept_l = 0.6, speed_brake_held_l = 0.15;
constexpr double lift_dumpers_swept_l = 0.5, lift_dumpers_held_l = 0.1;
// The control surfaces' jacks are even on both sides.
constexpr double control_swept_l_per_rad = 0.5;

double pumps_l_per_s(const std::array<double, 2>& core_speed_percent) {
  return pump_l_per_s_percent * (core_speed_percent[0] + core_speed_percent[1]);
}

double legs_down(const Surfaces& s) { return s.gear[0] + s.gear[1] + s.gear[2]; }

double held_l(const Surfaces& s) {
  return gear_leg_held_l * legs_down(s) + flaps_held_l * s.flap_deg / full_flap_deg +
         speed_brake_held_l * s.speed_brake + lift_dumpers_held_l * s.lift_dumpers;
}

double swept_by_controls_l(const Surfaces& from, const Surfaces& to) {
  return control_swept_l_per_rad *
         (std::abs(to.elevator_rad - from.elevator_rad) + std::abs(to.aileron_rad - from.aileron_rad) +
          std::abs(to.rudder_rad - from.rudder_rad));
}

double swept_by_utilities_l(const Surfaces& from, const Surfaces& to) {
  return gear_leg_swept_l * std::abs(legs_down(to) - legs_down(from)) +
         flaps_swept_l * std::abs(to.flap_deg - from.flap_deg) / full_flap_deg +
         speed_brake_swept_l * std::abs(to.speed_brake - from.speed_brake) +
         lift_dumpers_swept_l * std::abs(to.lift_dumpers - from.lift_dumpers);
}

}  // namespace

// Implicit, since the pump's shut-off is far stiffer than a step is short.
void HydraulicSystem::update(double dt_s, double pumps_l_per_s, double swept_l) {
  const auto after = [&](double delivered_l_per_s, double per_psi) {
    const double gained_l = dt_s * delivered_l_per_s - swept_l;
    return (pressure_psi + gained_l / accumulator_l_per_psi) /
           (1.0 + dt_s * (per_psi + leak_l_per_s_psi) / accumulator_l_per_psi);
  };
  const double shutting_off_per_psi = pumps_l_per_s / shut_off_psi;
  const double regulated_psi = after(shutting_off_per_psi * rated_psi, shutting_off_per_psi);
  const bool all_out = regulated_psi < rated_psi - shut_off_psi;
  pressure_psi = std::max(0.0, all_out ? after(pumps_l_per_s, 0.0) : regulated_psi);
}

double HydraulicSystem::quantity_ratio() const {
  return (reservoir_l - accumulator_l_per_psi * pressure_psi - jacks_l) / reservoir_l;
}

void Hydraulics::update(double dt_s, const std::array<double, 2>& core_speed_percent,
                        const Surfaces& surfaces) {
  const double pumps = pumps_l_per_s(core_speed_percent);
  flight.update(dt_s, pumps, swept_by_controls_l(last_, surfaces));
  utility.update(dt_s, pumps, swept_by_utilities_l(last_, surfaces));
  utility.jacks_l = held_l(surfaces);
  last_ = surfaces;
}

void Hydraulics::settle(const std::array<double, 2>& core_speed_percent, const Surfaces& surfaces) {
  constexpr double long_enough_s = 600.0;
  last_ = surfaces;
  update(long_enough_s, core_speed_percent, surfaces);
}

}  // namespace host::simulation
