/// Batteries, generators, external power and the buses between them.
///
/// Each engine drives a 115 V, 400 Hz generator on its own AC bus; either of them, the APU's
/// generator or a ground cart feeds both buses when it must. Rectifiers make 28 V for the main DC
/// bus. With no AC source the battery carries the DC load and, through an inverter, AC bus 1.
#pragma once

#include <array>

#include "host/simulation/systems/battery.h"

namespace host::simulation {

struct ElectricsInputs {
  std::array<double, 2> core_speed_percent{};
  bool apu_at_speed = false;
  bool apu_cranking = false;  ///< its electric starter is drawing current
  bool on_ground = true;
  bool engine_antiice = false;
  int lights_on = 0;
  std::array<bool, 2> generator_failed{};
  bool all_failed = false;  ///< a short circuit: no bus holds its voltage
};

struct Electrics {
  bool battery_on = false;
  bool avionics_on = false;     ///< the switch, powered or not
  bool external_power = false;  ///< a ground cart is plugged in and feeds the AC buses
  bool alternators_on = true;   ///< master control of all three
  std::array<bool, 3> alternator_on{true, true, true};  ///< engine 1, engine 2, APU
  Battery battery;

  // Outputs.
  bool failed = false;
  std::array<bool, 2> generator_on_line{};
  bool apu_generator_on_line = false;
  std::array<double, 2> bus_volts{};               ///< AC
  std::array<double, 2> generator_load_percent{};  ///< of the engines' generators
  double auxiliary_load_percent = 0.0;             ///< carried by the APU generator or the cart
  double dc_volts = 0.0;                           ///< of the bus that the battery switch connects

  void update(double dt_s, const ElectricsInputs& inputs);

  /// The rectifiers have an AC source.
  bool main_bus_powered() const;

  /// There is current for valves, relays and igniters.
  bool has_dc() const;

  /// The battery switch works the alternators' control relays too: their lines take its position.
  void align_alternators() { alternators_on = battery_on; }
  void align_alternator(std::size_t index) { alternator_on[index] = battery_on; }

 private:
  void connect_sources(const ElectricsInputs& inputs);
  void share_loads(const ElectricsInputs& inputs);
  double battery_drain_amperes(const ElectricsInputs& inputs) const;
};

}  // namespace host::simulation
