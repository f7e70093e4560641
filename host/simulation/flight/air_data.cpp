#include "host/simulation/flight/air_data.h"

#include <algorithm>
#include <cmath>

namespace host::simulation {
namespace {

constexpr double heat_ratio = 1.4;
constexpr double sea_level_sound_mps = 340.294;

/// Pressure that the air's stop in the pitot tube adds, as a part of the still air's.
double impact_ratio(double mach) { return std::pow(1.0 + 0.2 * mach * mach, 3.5) - 1.0; }

double mach_of_impact(double ratio) {
  return std::sqrt(5.0 * (std::pow(ratio + 1.0, 2.0 / 7.0) - 1.0));
}

}  // namespace

double calibrated_airspeed_kt(double mach, double pressure_hpa) {
  const double ratio = impact_ratio(mach) * pressure_hpa / standard_pressure_hpa;
  return sea_level_sound_mps * mach_of_impact(ratio) / mps_per_knot;
}

double mach_at(double calibrated_kt, double pressure_hpa) {
  const double sea_level_mach = calibrated_kt * mps_per_knot / sea_level_sound_mps;
  return mach_of_impact(impact_ratio(sea_level_mach) * standard_pressure_hpa / pressure_hpa);
}

double speed_of_sound_mps(double temperature_celsius) {
  return std::sqrt(heat_ratio * air_gas_constant * (temperature_celsius + kelvin_at_0_celsius));
}

void AirData::update(const FlightState& flight, Blockages blockages) {
  // QNH is by definition the setting with which an altimeter reads the true altitude.
  const double pressure_altitude =
      flight.altitude_ft + pressure_altitude_ft(weather.sea_level_pressure_hpa);
  pressure_hpa = standard_pressure_at(pressure_altitude);
  temperature_celsius = standard_temperature_at(flight.altitude_ft) + weather.warmer_by_celsius;
  if (!blockages.static_blocked) static_altitude_ft = pressure_altitude;
  indicated_altitude_ft = static_altitude_ft - pressure_altitude_ft(pressure_setting_hpa);
  density_kg_per_m3 =
      pressure_hpa * pascals_per_hpa / (air_gas_constant * (temperature_celsius + kelvin_at_0_celsius));
  sound_mps = speed_of_sound_mps(temperature_celsius);
  mach = flight.true_airspeed_mps / sound_mps;
  if (!blockages.pitot_blocked) indicated_airspeed_kt = calibrated_airspeed_kt(mach, pressure_hpa);
  maximum_airspeed_kt =
      std::min(greatest_airspeed_kt, calibrated_airspeed_kt(greatest_mach, pressure_hpa));
}

void AirData::turn_pressure_setting(double by_hpa) {
  pressure_setting_hpa = std::clamp(pressure_setting_hpa + by_hpa, 948.0, 1084.0);
}

}  // namespace host::simulation
