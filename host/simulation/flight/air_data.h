/// The air around the aircraft and what the altimeter makes of it.
#pragma once

#include "host/simulation/flight/atmosphere.h"
#include "host/simulation/flight/flight_state.h"

namespace host::simulation {

/// Differences from the standard day.
struct Weather {
  double sea_level_pressure_hpa = standard_pressure_hpa;  ///< QNH
  double warmer_by_celsius = 0.0;
};

struct AirData {
  Weather weather;
  double pressure_setting_hpa = standard_pressure_hpa;  ///< both altimeters
  double temperature_celsius = standard_temperature_at(airfield_elevation_ft);
  double pressure_hpa = standard_pressure_at(airfield_elevation_ft);
  double indicated_altitude_ft = airfield_elevation_ft;

  void update(const FlightState& flight);

  /// Sets the altimeters to the field's QNH, as if copied from the tower's report.
  void set_altimeters_to_qnh() { pressure_setting_hpa = weather.sea_level_pressure_hpa; }
};

}  // namespace host::simulation
