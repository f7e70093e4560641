#include "host/simulation/systems/brakes.h"

#include "host/simulation/base/numeric.h"

namespace host::simulation {
namespace {

constexpr double full_pressure_s = 0.3;
constexpr double heat_sink_j_per_k = 60e3;
constexpr double standing_loss_w_per_k = 30.0;
constexpr double slipstream_loss_w_s_per_k_m = 3.0;
constexpr CurvePoint fading[] = {{450.0, 1.0}, {800.0, 0.6}};

}  // namespace

void Brakes::update(double dt_s, const BrakeInputs& inputs) {
  const double loss_w_per_k =
      standing_loss_w_per_k + slipstream_loss_w_s_per_k_m * inputs.slipstream_mps;
  for (std::size_t side = 0; side < pressure_ratio.size(); ++side) {
    const double asked = inputs.parking_brake_set ? 1.0 : inputs.pedal[side];
    pressure_ratio[side] = approach(pressure_ratio[side], asked, 1.0 / full_pressure_s, dt_s);
    double& celsius = temperature_celsius[side];
    celsius = lag(celsius + inputs.energy_j[side] / heat_sink_j_per_k, inputs.air_temperature_celsius,
                  heat_sink_j_per_k / loss_w_per_k, dt_s);
  }
}

std::array<double, 2> Brakes::torque_ratio() const {
  return {pressure_ratio[0] * on_curve(fading, temperature_celsius[0]),
          pressure_ratio[1] * on_curve(fading, temperature_celsius[1])};
}

}  // namespace host::simulation
