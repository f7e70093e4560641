/// Engine 2 column (main panel): oil pressure, oil temperature, fuel pressure.
#include "gauges/engines/engine_column.h"

namespace tarnvale {
namespace {

constexpr EngineColumn engine{
    .overlay = 10480,
    .oil_pressure = token::engine_2_oil_pressure,
    .oil_temperature = token::engine_2_oil_temperature,
    .fuel_pressure = fuel_pressure<&Aircraft::fuel_pump2_switch>,
};

constinit Body body{eng2ins, engine_column_rows(engine)};

}  // namespace

constinit Gauge eng2ins{{.name = "Eng2ins", .width_mm = 74, .background = 10470}, body};

}  // namespace tarnvale
