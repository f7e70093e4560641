#include "host/simulation/systems/engine.h"

#include <algorithm>
#include <cmath>

#include "host/simulation/base/numeric.h"

namespace host::simulation {
namespace {

// Below this the fuel unit's pump gives no pressure, and a flame goes out.
constexpr double fuel_speed_percent = 15.0;
constexpr double flame_out_speed_percent = 12.0;
constexpr double light_off_delay_s = 2.5;

// Core speed that each throttle position asks for on a standard day.
constexpr CurvePoint throttle_speed[] = {{0.0, 52.0}, {0.5, 80.0}, {1.0, 96.0}};

// Fuel-driven acceleration in percent a second: too little to go on alone below 20 %, slow to
// idle, quick above it (idle to take-off in about 8 s).
constexpr CurvePoint acceleration_limit[] = {{12.0, -1.0}, {20.0, 0.3}, {30.0, 0.5}, {42.0, 0.9},
                                             {52.0, 2.0},  {70.0, 7.0}, {90.0, 8.0}, {100.0, 4.0}};
constexpr double deceleration_limit = 7.0;  // percent a second
constexpr double governor_s = 0.9;

constexpr double starter_spool_s = 6.5;
constexpr double starter_assist = 0.6;  // percent a second on top of the burning fuel

constexpr CurvePoint fan_speed[] = {{0.0, 0.0},   {25.0, 4.0},  {52.0, 24.0},  {70.0, 46.0},
                                    {85.0, 74.0}, {96.0, 96.0}, {102.0, 106.0}};

// Steady temperatures. A start runs hot while little air goes through the core.
constexpr CurvePoint lit_temperature[] = {{15.0, 430.0}, {22.0, 545.0}, {30.0, 590.0},
                                          {38.0, 560.0}, {45.0, 480.0}, {52.0, 410.0},
                                          {75.0, 480.0}, {96.0, 700.0}, {102.0, 780.0}};
constexpr double degrees_per_acceleration = 12.0;  // above idle, per percent a second
constexpr double bleed_degrees = 15.0;

constexpr CurvePoint lit_fuel_flow[] = {{15.0, 130.0}, {30.0, 220.0},  {52.0, 330.0},
                                        {75.0, 850.0}, {96.0, 2500.0}, {102.0, 3000.0}};
constexpr double unlit_fuel_flow_kg_per_h = 120.0;

double idle_correction(double air_temperature_celsius) {
  return std::sqrt((air_temperature_celsius + 273.15) / 288.15);
}

}  // namespace

void Engine::update_flame(double dt_s, const EngineInputs& inputs) {
  if (lit) {
    lit = inputs.fuel_lever_open && core_speed_percent > flame_out_speed_percent;
    fuel_without_flame_s = 0.0;
    return;
  }
  const bool fuel = inputs.fuel_lever_open && core_speed_percent > fuel_speed_percent;
  fuel_without_flame_s = fuel && inputs.ignition ? fuel_without_flame_s + dt_s : 0.0;
  lit = fuel_without_flame_s > light_off_delay_s;
}

double Engine::core_acceleration(const EngineInputs& inputs) const {
  const double crank_room = inputs.crank_speed_percent - core_speed_percent;
  if (!lit) {
    const double run_down = -0.15 - 0.05 * core_speed_percent;
    return crank_room > 0.0 ? crank_room / starter_spool_s : run_down;
  }
  const double wanted =
      on_curve(throttle_speed, inputs.throttle_ratio) * idle_correction(inputs.air_temperature_celsius);
  const double limit = on_curve(acceleration_limit, core_speed_percent) +
                       (inputs.crank_speed_percent > 0.0 ? starter_assist : 0.0);
  return std::clamp((wanted - core_speed_percent) / governor_s, -deceleration_limit,
                    std::max(limit, -deceleration_limit));
}

void Engine::update_gas(double dt_s, double acceleration, const EngineInputs& inputs) {
  const double ambient = inputs.air_temperature_celsius;
  const double density = inputs.air_pressure_hpa / 1013.25;
  if (lit) {
    const double surge = core_speed_percent > 52.0 ? std::max(0.0, acceleration) : 0.0;
    const double target = on_curve(lit_temperature, core_speed_percent) + (ambient - 15.0) +
                          degrees_per_acceleration * surge +
                          (inputs.antiice_bleed ? bleed_degrees : 0.0);
    gas_temperature_celsius = lag(gas_temperature_celsius, target, 2.5, dt_s);
    fuel_flow_kg_per_h =
        lag(fuel_flow_kg_per_h, density * on_curve(lit_fuel_flow, core_speed_percent), 0.5, dt_s);
    return;
  }
  // Air drawn through a turning engine cools it; one that stands cools for minutes.
  const double cooling_s = core_speed_percent > 5.0 ? 25.0 : 300.0;
  gas_temperature_celsius = lag(gas_temperature_celsius, ambient, cooling_s, dt_s);
  const bool fuel = inputs.fuel_lever_open && core_speed_percent > fuel_speed_percent;
  fuel_flow_kg_per_h = fuel ? unlit_fuel_flow_kg_per_h : 0.0;
}

void Engine::update_oil(double dt_s, const EngineInputs& inputs) {
  // The pump sits on the core's gearbox; a relief valve holds the pressure at 55 psi.
  const double pump_psi = std::min(55.0, 0.75 * core_speed_percent);
  oil_pressure_psi = lag(oil_pressure_psi, pump_psi, 1.0, dt_s);
  const double warm_celsius = 35.0 + 0.6 * core_speed_percent;
  oil_temperature_celsius =
      lit ? lag(oil_temperature_celsius, warm_celsius, 90.0, dt_s)
          : lag(oil_temperature_celsius, inputs.air_temperature_celsius, 1500.0, dt_s);
}

void Engine::update(double dt_s, const EngineInputs& inputs) {
  update_flame(dt_s, inputs);
  const double acceleration = core_acceleration(inputs);
  core_speed_percent = std::max(0.0, core_speed_percent + acceleration * dt_s);
  // The fan is carried up by the gas but runs down by itself, long after the core.
  const double fan_target = on_curve(fan_speed, core_speed_percent);
  const double fan_s = fan_target > fan_speed_percent ? 0.9 : lit ? 1.5 : 6.0;
  fan_speed_percent = lag(fan_speed_percent, fan_target, fan_s, dt_s);
  const double fan_ratio = fan_speed_percent / 96.0;
  pressure_ratio = 1.0 + 0.38 * fan_ratio * fan_ratio;
  update_gas(dt_s, acceleration, inputs);
  update_oil(dt_s, inputs);
}

}  // namespace host::simulation
