#include "host/simulation/rows/meter_scales.h"

namespace host::simulation {
namespace {

constexpr double dc_divisions_per_volt = 66.0 / 28.0;
constexpr double ac_divisions_per_volt = 270.0 / 115.0;

}  // namespace

double dc_voltmeter_source(double volts, bool main_bus_powered) {
  if (volts <= 0.0) return 0.0;
  return dc_divisions_per_volt * volts + (main_bus_powered ? 19.0 : -4.0);
}

double ac_voltmeter_source(double volts) { return ac_divisions_per_volt * volts - 90.0; }

}  // namespace host::simulation
