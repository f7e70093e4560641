/// One low-bypass turbofan: speeds, gas temperature, fuel flow and oil.
///
/// The figures are those of a twin-jet of 30 tonnes with some 44 kN a side: ground idle at 52 % N2
/// with 410 °C and 330 kg/h, take-off at 96 % N2 with 700 °C and 2,500 kg/h.
#pragma once

namespace host::simulation {

struct EngineInputs {
  bool fuel_lever_open = false;
  bool ignition = false;
  /// Core speed to which the starter would turn the engine by itself; 0 without a starter.
  double crank_speed_percent = 0.0;
  double throttle_ratio = 0.0;  ///< 0 idle .. 1 take-off
  bool antiice_bleed = false;
  double air_temperature_celsius = 15.0;
  double air_pressure_hpa = 1013.25;
};

struct Engine {
  double core_speed_percent = 0.0;        ///< N2
  double fan_speed_percent = 0.0;         ///< N1
  double pressure_ratio = 1.0;            ///< 1 at rest .. 1.38 at take-off
  double gas_temperature_celsius = 15.0;  ///< TGT
  double fuel_flow_kg_per_h = 0.0;
  double oil_pressure_psi = 0.0;
  double oil_temperature_celsius = 15.0;

  bool lit = false;
  double fuel_without_flame_s = 0.0;  ///< how long fuel and sparks have been waiting for a flame

  void update(double dt_s, const EngineInputs& inputs);

 private:
  void update_flame(double dt_s, const EngineInputs& inputs);
  double core_acceleration(const EngineInputs& inputs) const;
  void update_gas(double dt_s, double core_acceleration, const EngineInputs& inputs);
  void update_oil(double dt_s, const EngineInputs& inputs);
};

}  // namespace host::simulation
