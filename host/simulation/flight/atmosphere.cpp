#include "host/simulation/flight/atmosphere.h"

#include <algorithm>
#include <cmath>

#include "host/simulation/base/units.h"

namespace host::simulation {
namespace {

constexpr double sea_level_kelvin = 288.15;
constexpr double lapse_kelvin_per_m = 0.0065;
constexpr double tropopause_m = 11000.0;
constexpr double tropopause_kelvin = sea_level_kelvin - lapse_kelvin_per_m * tropopause_m;
constexpr double gravity_over_gas_constant = gravity_mps2 / air_gas_constant;  // kelvin per metre
constexpr double pressure_exponent = gravity_over_gas_constant / lapse_kelvin_per_m;
constexpr double stratosphere_scale_m = tropopause_kelvin / gravity_over_gas_constant;

double troposphere_pressure_hpa(double altitude_m) {
  const double temperature_ratio = 1.0 - lapse_kelvin_per_m * altitude_m / sea_level_kelvin;
  return standard_pressure_hpa * std::pow(temperature_ratio, pressure_exponent);
}

double pressure_altitude_m(double pressure_hpa) {
  const double tropopause_hpa = troposphere_pressure_hpa(tropopause_m);
  if (pressure_hpa < tropopause_hpa) {
    return tropopause_m + stratosphere_scale_m * std::log(tropopause_hpa / pressure_hpa);
  }
  const double ratio = pressure_hpa / standard_pressure_hpa;
  return sea_level_kelvin / lapse_kelvin_per_m * (1.0 - std::pow(ratio, 1.0 / pressure_exponent));
}

}  // namespace

double standard_temperature_at(double altitude_ft) {
  const double altitude_m = std::min(altitude_ft * metres_per_foot, tropopause_m);
  return standard_temperature_celsius - lapse_kelvin_per_m * altitude_m;
}

double standard_pressure_at(double altitude_ft) {
  const double altitude_m = altitude_ft * metres_per_foot;
  if (altitude_m <= tropopause_m) return troposphere_pressure_hpa(altitude_m);
  return troposphere_pressure_hpa(tropopause_m) *
         std::exp((tropopause_m - altitude_m) / stratosphere_scale_m);
}

double pressure_altitude_ft(double pressure_hpa) {
  return pressure_altitude_m(pressure_hpa) / metres_per_foot;
}

}  // namespace host::simulation
