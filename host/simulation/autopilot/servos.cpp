#include "host/simulation/autopilot/servos.h"

#include <algorithm>
#include <cmath>

#include "host/simulation/base/numeric.h"
#include "host/simulation/flight/aerodynamics.h"

namespace host::simulation {
namespace {

constexpr double elevator_reach_rad = 10.0 * radians_per_degree;
constexpr double aileron_reach_rad = 15.0 * radians_per_degree;
constexpr double rudder_reach_rad = 5.0 * radians_per_degree;

double within(double angle_rad, double reach_rad) {
  return std::clamp(angle_rad, -reach_rad, reach_rad);
}

double speed_mps(const FlightState& flight) { return std::max(flight.true_airspeed_mps, 50.0); }

/// 1 at 150 kt, less where the air's pressure gives the surfaces more power.
double by_pressure(const Sensed& sensed) {
  const double ratio = 150.0 / std::max(sensed.air.indicated_airspeed_kt, 100.0);
  return ratio * ratio;
}

double turning_pitch_rate(const FlightState& flight) {
  const double bank = within(flight.attitude.bank_rad, 60.0 * radians_per_degree);
  return gravity_mps2 / speed_mps(flight) * std::tan(bank) * std::sin(bank);
}

}  // namespace

void Servos::hold(double dt_s, double pitch_rad, double bank_rad, const Sensed& sensed,
                  double& pitch_trim) {
  constexpr double trim_per_s = 0.12, trim_rate_rad_per_s = 0.3 * radians_per_degree;
  constexpr double nearly_there_rad = 3.0 * radians_per_degree;
  const FlightState& flight = sensed.flight;
  const double gain = by_pressure(sensed);
  const double elevator = 1.9 * (pitch_rad - flight.attitude.pitch_rad) -
                          1.6 * (flight.rate_rad_per_s.y - turning_pitch_rate(flight));
  const double bank_missing_rad = bank_rad - flight.attitude.bank_rad;
  // Only what remains counts: a turn's beginning and end are no lack of aileron.
  if (std::abs(bank_missing_rad) < nearly_there_rad) {
    aileron_sum_rad_ = within(aileron_sum_rad_ + 0.2 * bank_missing_rad * dt_s, aileron_reach_rad);
  }
  const double aileron = 1.5 * bank_missing_rad + aileron_sum_rad_ - 0.8 * flight.rate_rad_per_s.x;
  deflections.elevator_rad = within(gain * elevator, elevator_reach_rad);
  deflections.aileron_rad = within(gain * aileron, aileron_reach_rad);
  const double trim_rad = within(trim_per_s * deflections.elevator_rad, trim_rate_rad_per_s) * dt_s;
  pitch_trim = std::clamp(pitch_trim + trim_rad / stabiliser_travel_rad, -1.0, 1.0);
}

void Servos::release(double dt_s) {
  constexpr double gone_s = 0.5;
  aileron_sum_rad_ = 0.0;
  deflections.elevator_rad = lag(deflections.elevator_rad, 0.0, gone_s, dt_s);
  deflections.aileron_rad = lag(deflections.aileron_rad, 0.0, gone_s, dt_s);
}

void Servos::damp_yaw(bool on, const FlightState& flight) {
  const double turn_rate = gravity_mps2 * std::sin(flight.attitude.bank_rad) *
                           std::cos(flight.attitude.pitch_rad) / speed_mps(flight);
  const double unwanted =
      (flight.rate_rad_per_s.z - turn_rate) * wing_span_m / (2.0 * speed_mps(flight));
  deflections.rudder_rad = on ? within(-2.8 * unwanted, rudder_reach_rad) : 0.0;
}

}  // namespace host::simulation
