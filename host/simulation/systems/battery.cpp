#include "host/simulation/systems/battery.h"

#include <algorithm>

#include "host/simulation/base/numeric.h"

namespace host::simulation {
namespace {

constexpr double capacity_ampere_seconds = 80.0 * 3600.0;
constexpr double internal_ohms = 0.02;

// A nickel-cadmium cell holds near 1.25 V over most of its charge and drops at the end.
constexpr CurvePoint open_circuit_volts[] = {{0.0, 16.0}, {0.1, 23.2}, {0.5, 24.4}, {1.0, 25.4}};

}  // namespace

double Battery::volts() const {
  return on_curve(open_circuit_volts, charge_ratio) + internal_ohms * amperes;
}

double Battery::charging_amperes() const { return std::min(80.0, 6.0 + 500.0 * (1.0 - charge_ratio)); }

void Battery::update(double dt_s, double new_amperes) {
  amperes = new_amperes;
  charge_ratio = std::clamp(charge_ratio + amperes * dt_s / capacity_ampere_seconds, 0.0, 1.0);
}

}  // namespace host::simulation
