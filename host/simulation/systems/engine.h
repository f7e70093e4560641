/// One low-bypass turbofan: speeds, gas temperature, fuel flow and oil.
///
/// The figures are those of a twin-jet of 36 tonnes with 48 kN a side: ground idle at 52 % N2 with
/// 410 °C and 330 kg/h, take-off at 96 % N2 with 700 °C and 2,500 kg/h, 48 kN at rest at sea level.
///
/// Thrust goes with the air's pressure d, the Mach number and the fan's speed corrected for the
/// intake's temperature, n = N1/96 % / sqrt(theta): F = 48 kN d (n^2 - 0.55 n M + 0.45 n^2 M^2). The
/// first term is the jet, the second the ram drag, the third the gain of ram pressure (fitted to the
/// shape of the low-bypass curves in Mattingly, Elements of Propulsion, ch. 8). Fuel flow goes with the
/// intake's total pressure. Check values at take-off speed: 12.6 kN at Mach 0.75 and 33,000 ft, where
/// 940 kg/h burn.
///
/// In flight the ram turns a dead engine: a windmill of 7 % N2 per 100 kt, from some 220 kt on enough
/// for fuel and sparks to light it again. Flight idle is kept at 58 % so that the generators stay on.
#pragma once

namespace host::simulation {

struct EngineInputs {
  bool fuel_lever_open = false;
  bool ignition = false;
  /// Core speed to which the starter would turn the engine by itself; 0 without a starter.
  double crank_speed_percent = 0.0;
  bool fuel_available = true;   ///< at the engine's own pump, from a tank
  double throttle_ratio = 0.0;  ///< 0 idle .. 1 take-off
  bool antiice_bleed = false;
  double air_temperature_celsius = 15.0;
  double air_pressure_hpa = 1013.25;
  double mach = 0.0;
  double airspeed_kt = 0.0;  ///< calibrated
  bool in_flight = false;
};

struct Engine {
  double core_speed_percent = 0.0;        ///< N2
  double fan_speed_percent = 0.0;         ///< N1
  double pressure_ratio = 1.0;            ///< 1 at rest .. 1.38 at take-off
  double gas_temperature_celsius = 15.0;  ///< TGT
  double fuel_flow_kg_per_h = 0.0;
  double oil_pressure_psi = 0.0;
  double oil_temperature_celsius = 15.0;
  double thrust_n = 0.0;  ///< net; a windmill's is negative

  bool lit = false;
  double fuel_without_flame_s = 0.0;  ///< how long fuel and sparks have been waiting for a flame

  void update(double dt_s, const EngineInputs& inputs);

  /// Runs as if it had been left alone like this for a long time.
  void settle(const EngineInputs& inputs);

 private:
  void update_flame(double dt_s, const EngineInputs& inputs);
  double core_acceleration(const EngineInputs& inputs) const;
  void update_gas(double dt_s, double core_acceleration, const EngineInputs& inputs);
  void update_oil(double dt_s, const EngineInputs& inputs);
  void update_thrust(const EngineInputs& inputs);
};

}  // namespace host::simulation
