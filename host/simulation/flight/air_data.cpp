#include "host/simulation/flight/air_data.h"

namespace host::simulation {

void AirData::update(const FlightState& flight) {
  // QNH is by definition the setting with which an altimeter reads the true altitude.
  const double pressure_altitude =
      flight.altitude_ft + pressure_altitude_ft(weather.sea_level_pressure_hpa);
  pressure_hpa = standard_pressure_at(pressure_altitude);
  temperature_celsius = standard_temperature_at(flight.altitude_ft) + weather.warmer_by_celsius;
  indicated_altitude_ft = pressure_altitude - pressure_altitude_ft(pressure_setting_hpa);
}

}  // namespace host::simulation
