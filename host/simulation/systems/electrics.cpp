#include "host/simulation/systems/electrics.h"

#include <algorithm>

namespace host::simulation {
namespace {

// The constant-speed drive holds 400 Hz from just below ground idle.
constexpr double drive_engages_percent = 46.0;
constexpr double drive_drops_percent = 43.0;

constexpr double generator_volts = 115.6;
constexpr double droop_volts_per_percent = 0.03;
constexpr double inverter_volts = 114.0;
constexpr double rectified_volts = 28.2;

// Below this the relays chatter open.
constexpr double flat_battery_ratio = 0.03;

bool drive_up(bool was_up, double core_speed_percent) {
  return core_speed_percent > (was_up ? drive_drops_percent : drive_engages_percent);
}

/// What one AC bus draws, percent of a generator's rating.
double bus_load_percent(const Electrics& electrics, const ElectricsInputs& inputs) {
  return 13.0 + (electrics.avionics_on ? 1.5 : 0.0) + (inputs.engine_antiice ? 2.0 : 0.0) +
         0.4 * inputs.lights_on;
}

}  // namespace

bool Electrics::main_bus_powered() const {
  if (failed) return false;
  return generator_on_line[0] || generator_on_line[1] || apu_generator_on_line || external_power;
}

bool Electrics::has_dc() const {
  return main_bus_powered() || (battery_on && !failed && battery.charge_ratio > flat_battery_ratio);
}

void Electrics::connect_sources(const ElectricsInputs& inputs) {
  for (std::size_t i = 0; i < 2; ++i) {
    generator_on_line[i] = alternators_on && alternator_on[i] && !inputs.generator_failed[i] &&
                           drive_up(generator_on_line[i], inputs.core_speed_percent[i]);
  }
  apu_generator_on_line = alternators_on && alternator_on[2] && inputs.apu_at_speed;
  // The cart's contactor falls out as soon as an engine's generator takes the buses.
  if (generator_on_line[0] || generator_on_line[1] || !inputs.on_ground) external_power = false;
}

void Electrics::share_loads(const ElectricsInputs& inputs) {
  // Alone, a generator takes both buses less the galleys, which are shed.
  constexpr double alone_factor = 1.4;
  const double load = bus_load_percent(*this, inputs);
  const bool both = generator_on_line[0] && generator_on_line[1];
  const bool engines = generator_on_line[0] || generator_on_line[1];
  for (std::size_t i = 0; i < 2; ++i) {
    generator_load_percent[i] = generator_on_line[i] ? load * (both ? 1.0 : alone_factor) : 0.0;
  }
  const bool auxiliary = !engines && (apu_generator_on_line || external_power);
  auxiliary_load_percent = auxiliary ? load * alone_factor : 0.0;
}

double Electrics::battery_drain_amperes(const ElectricsInputs& inputs) const {
  constexpr double relays_and_instruments = 10.0;
  constexpr double inverter = 8.0;
  return relays_and_instruments + inverter + (avionics_on ? 7.0 : 0.0) + 1.5 * inputs.lights_on +
         (inputs.apu_cranking ? 80.0 : 0.0);
}

void Electrics::update(double dt_s, const ElectricsInputs& inputs) {
  failed = inputs.all_failed;
  connect_sources(inputs);
  share_loads(inputs);

  const bool main = main_bus_powered();
  const double load =
      std::max({generator_load_percent[0], generator_load_percent[1], auxiliary_load_percent});
  const double tied_volts = main ? generator_volts - droop_volts_per_percent * load : 0.0;
  bus_volts = {main ? tied_volts : has_dc() ? inverter_volts : 0.0, tied_volts};

  const double amperes = main ? battery.charging_amperes() : -battery_drain_amperes(inputs);
  battery.update(dt_s, battery_on ? amperes : 0.0);
  dc_volts = !battery_on || failed ? 0.0 : main ? rectified_volts : battery.volts();
}

}  // namespace host::simulation
