#include "host/simulation/aircraft.h"
#include "host/simulation/table.h"

namespace host::simulation {
namespace {

// One token serves the oil temperature of the engine instruments, with a scale that starts at
// -4681, and the generator-drive meter, from 0: 16384 is 140 degrees on both, so -4681 is -40.
// The drives share the engines' oil.
constexpr double oil_temperature_units_per_celsius = 16384.0 / 140.0;
constexpr double oil_pressure_units_per_psi = 32768.0 / 100.0;

// The gas temperature dial ends at 3800; in quarter degrees that is 950 °C, with a start's peak
// and take-off in the upper half of the dial.
constexpr double gas_temperature_units_per_celsius = 4.0;

// The fuel computer drops three digits: 12,345 kg/h would fill its window.
constexpr double fuel_flow_units_per_kg_per_h = 100.0;

template <std::size_t engine, double Engine::*reading>
double pass(const Aircraft& aircraft) {
  return aircraft.engines[engine].*reading;
}

template <std::size_t engine>
double fuel_flow(const Aircraft& aircraft) {
  return fuel_flow_units_per_kg_per_h * aircraft.engines[engine].fuel_flow_kg_per_h;
}

template <std::size_t engine>
double gas_temperature(const Aircraft& aircraft) {
  return gas_temperature_units_per_celsius * aircraft.engines[engine].gas_temperature_celsius;
}

template <std::size_t engine>
double oil_temperature(const Aircraft& aircraft) {
  return oil_temperature_units_per_celsius * aircraft.engines[engine].oil_temperature_celsius;
}

template <std::size_t engine>
double oil_pressure(const Aircraft& aircraft) {
  return oil_pressure_units_per_psi * aircraft.engines[engine].oil_pressure_psi;
}

constexpr TokenRow tokens[] = {
    {{139, "engine_1_fuel_flow", "1/100 kg/h"}, fuel_flow<0>},
    {{147, "engine_1_oil_temperature", "140/16384 degrees Celsius"}, oil_temperature<0>},
    {{148, "engine_1_oil_pressure", "100/32768 psi"}, oil_pressure<0>},
    {{624, "engine_1_fan_speed", "percent"}, pass<0, &Engine::fan_speed_percent>},
    {{625, "engine_1_core_speed", "percent"}, pass<0, &Engine::core_speed_percent>},
    {{630, "engine_1_pressure_ratio", "ratio"}, pass<0, &Engine::pressure_ratio>},
    {{631, "engine_1_gas_temperature", "1/4 degrees Celsius"}, gas_temperature<0>},
    {{174, "engine_2_fuel_flow", "1/100 kg/h"}, fuel_flow<1>},
    {{182, "engine_2_oil_temperature", "140/16384 degrees Celsius"}, oil_temperature<1>},
    {{183, "engine_2_oil_pressure", "100/32768 psi"}, oil_pressure<1>},
    {{643, "engine_2_fan_speed", "percent"}, pass<1, &Engine::fan_speed_percent>},
    {{644, "engine_2_core_speed", "percent"}, pass<1, &Engine::core_speed_percent>},
    {{649, "engine_2_pressure_ratio", "ratio"}, pass<1, &Engine::pressure_ratio>},
    {{650, "engine_2_gas_temperature", "1/4 degrees Celsius"}, gas_temperature<1>},
};

}  // namespace

constinit const SystemRows engine_rows{tokens, {}};

}  // namespace host::simulation
