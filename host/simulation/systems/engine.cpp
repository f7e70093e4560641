#include "host/simulation/systems/engine.h"

#include <algorithm>
#include <cmath>

#include "host/simulation/base/numeric.h"
#include "host/simulation/base/units.h"

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

constexpr CurvePoint lit_fuel_flow[] = {{15.0, 130.0},  {30.0, 220.0},  {52.0, 330.0},  {75.0, 850.0},
                                        {86.0, 1500.0}, {96.0, 2500.0}, {102.0, 3000.0}};
constexpr double unlit_fuel_flow_kg_per_h = 120.0;

// Temperature and pressure rise where the intake stops the air.
double ram_temperature_ratio(double mach) { return 1.0 + 0.2 * mach * mach; }
double ram_pressure_ratio(double mach) { return std::pow(ram_temperature_ratio(mach), 3.5); }

double temperature_correction(const EngineInputs& inputs) {
  const double kelvin = inputs.air_temperature_celsius + kelvin_at_0_celsius;
  return std::sqrt(kelvin * ram_temperature_ratio(inputs.mach) / 288.15);
}

// Idle follows the temperature of the air; the take-off rating is a governed speed of the shaft.
constexpr double flight_idle_percent = 58.0;
double wanted_core_speed(const EngineInputs& inputs) {
  const double throttle = std::clamp(inputs.throttle_ratio, 0.0, 1.0);
  const double correction = throttle + (1.0 - throttle) * temperature_correction(inputs);
  return std::max(on_curve(throttle_speed, throttle) * correction,
                  inputs.in_flight ? flight_idle_percent : 0.0);
}

// A draught on the apron turns nothing.
constexpr double least_wind_kt = 60.0;
double windmill_core_percent(const EngineInputs& inputs) {
  return inputs.airspeed_kt > least_wind_kt ? 0.07 * inputs.airspeed_kt : 0.0;
}
double windmill_fan_percent(const EngineInputs& inputs) {
  return inputs.airspeed_kt > least_wind_kt ? 0.06 * inputs.airspeed_kt : 0.0;
}

bool has_fuel(const EngineInputs& inputs) { return inputs.fuel_lever_open && inputs.fuel_available; }

}  // namespace

void Engine::update_flame(double dt_s, const EngineInputs& inputs) {
  if (lit) {
    lit = has_fuel(inputs) && core_speed_percent > flame_out_speed_percent;
    fuel_without_flame_s = 0.0;
    return;
  }
  const bool fuel = has_fuel(inputs) && core_speed_percent > fuel_speed_percent;
  fuel_without_flame_s = fuel && inputs.ignition ? fuel_without_flame_s + dt_s : 0.0;
  lit = fuel_without_flame_s > light_off_delay_s;
}

double Engine::core_acceleration(const EngineInputs& inputs) const {
  const double turned_to = std::max(inputs.crank_speed_percent, windmill_core_percent(inputs));
  const double crank_room = turned_to - core_speed_percent;
  if (!lit) {
    const double run_down = -0.15 - 0.05 * core_speed_percent;
    return crank_room > 0.0 ? crank_room / starter_spool_s : run_down;
  }
  const bool assisted = inputs.crank_speed_percent > 0.0 || turned_to > fuel_speed_percent;
  const double limit =
      on_curve(acceleration_limit, core_speed_percent) + (assisted ? starter_assist : 0.0);
  return std::clamp((wanted_core_speed(inputs) - core_speed_percent) / governor_s, -deceleration_limit,
                    std::max(limit, -deceleration_limit));
}

void Engine::update_gas(double dt_s, double acceleration, const EngineInputs& inputs) {
  const double ambient = inputs.air_temperature_celsius;
  const double density = inputs.air_pressure_hpa / 1013.25 * ram_pressure_ratio(inputs.mach);
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
  const bool fuel = has_fuel(inputs) && core_speed_percent > fuel_speed_percent;
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
  const double fan_target =
      std::max(on_curve(fan_speed, core_speed_percent), windmill_fan_percent(inputs));
  const double fan_s = fan_target > fan_speed_percent ? 0.9 : lit ? 1.5 : 6.0;
  fan_speed_percent = lag(fan_speed_percent, fan_target, fan_s, dt_s);
  const double fan_ratio = fan_speed_percent / 96.0;
  pressure_ratio = 1.0 + 0.38 * fan_ratio * fan_ratio;
  update_gas(dt_s, acceleration, inputs);
  update_oil(dt_s, inputs);
  update_thrust(inputs);
}

void Engine::update_thrust(const EngineInputs& inputs) {
  constexpr double rated_n = 48000.0, rated_fan_percent = 96.0;
  const double pressure = inputs.air_pressure_hpa / 1013.25;
  const double n = fan_speed_percent / rated_fan_percent / temperature_correction(inputs);
  const double m = inputs.mach;
  thrust_n = rated_n * pressure * (n * n - 0.55 * n * m + 0.45 * n * n * m * m);
}

void Engine::settle(const EngineInputs& inputs) {
  constexpr double long_s = 1e6;
  lit = has_fuel(inputs);
  core_speed_percent = lit ? wanted_core_speed(inputs)
                           : std::max(inputs.crank_speed_percent, windmill_core_percent(inputs));
  fan_speed_percent = std::max(on_curve(fan_speed, core_speed_percent), windmill_fan_percent(inputs));
  const double fan_ratio = fan_speed_percent / 96.0;
  pressure_ratio = 1.0 + 0.38 * fan_ratio * fan_ratio;
  update_gas(long_s, 0.0, inputs);
  update_oil(long_s, inputs);
  update_thrust(inputs);
}

}  // namespace host::simulation
