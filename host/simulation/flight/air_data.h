/// The air around the aircraft and what the pitot-static instruments make of it.
///
/// Calibrated airspeed and Mach number from the compressible pitot equation (Anderson, Introduction to
/// Flight, ch. 4): qc = p ((1 + M^2/5)^3.5 - 1), CAS = a0 sqrt(5 ((qc/p0 + 1)^(2/7) - 1)). Check
/// values: 250 kt at sea level is Mach 0.378; Mach 0.75 at 33,000 ft is 265 kt CAS.
#pragma once

#include "host/simulation/flight/atmosphere.h"
#include "host/simulation/flight/flight_state.h"
#include "host/simulation/flight/wind.h"

namespace host::simulation {

/// Differences from the standard day.
struct Weather {
  double sea_level_pressure_hpa = standard_pressure_hpa;  ///< QNH
  double warmer_by_celsius = 0.0;
  Wind wind;
};

/// The limits that the airframe was built for.
inline constexpr double greatest_airspeed_kt = 330.0;
inline constexpr double greatest_mach = 0.80;

/// Ice or insects: what is blocked keeps its last pressure, and its instruments their last reading.
struct Blockages {
  bool pitot_blocked = false;
  bool static_blocked = false;
};

struct AirData {
  Weather weather;
  double pressure_setting_hpa = standard_pressure_hpa;  ///< both altimeters
  double temperature_celsius = standard_temperature_at(airfield_elevation_ft);
  double pressure_hpa = standard_pressure_at(airfield_elevation_ft);
  double static_altitude_ft = airfield_elevation_ft;  ///< what the static ports make of the pressure
  double indicated_altitude_ft = airfield_elevation_ft;
  double density_kg_per_m3 = 1.225;
  double sound_mps = 340.294;
  double mach = 0.0;
  double indicated_airspeed_kt = 0.0;                 ///< calibrated: the system has no position error
  double maximum_airspeed_kt = greatest_airspeed_kt;  ///< the lower of 330 kt and Mach 0.80

  void update(const FlightState& flight, Blockages blockages = {});

  /// Sets the altimeters to the field's QNH, as if copied from the tower's report.
  void set_altimeters_to_qnh() { pressure_setting_hpa = weather.sea_level_pressure_hpa; }

  /// Turns the setting knob, within the 948 to 1084 hPa of its window.
  void turn_pressure_setting(double by_hpa);
};

double calibrated_airspeed_kt(double mach, double pressure_hpa);
double mach_at(double calibrated_kt, double pressure_hpa);
double speed_of_sound_mps(double temperature_celsius);

}  // namespace host::simulation
