/// Engine 1 column (main panel): oil pressure, oil temperature, fuel pressure.
#include "gauges/engines/engine_column.h"

namespace tarnvale {
namespace {

constexpr EngineColumn engine{
    .overlay = 10460,
    .oil_pressure = token::engine_1_oil_pressure,
    .oil_temperature = token::engine_1_oil_temperature,
    .fuel_pressure = fuel_pressure<&Aircraft::fuel_pump1_switch>,
};

constinit Body body{eng1ins, engine_column_rows(engine)};

}  // namespace

constinit Gauge eng1ins{{.name = "Eng1ins", .width_mm = 74, .background = 10420}, body};

}  // namespace tarnvale
