/// The ICAO standard atmosphere up to 65,000 ft (ICAO Doc 7488).
#pragma once

namespace host::simulation {

inline constexpr double standard_pressure_hpa = 1013.25;
inline constexpr double standard_temperature_celsius = 15.0;

/// Check values: 15 °C at 0 ft, -56.5 °C at 36,089 ft and above.
double standard_temperature_at(double altitude_ft);

/// Check values: 1013.25 hPa at 0 ft, 226.32 hPa at 36,089 ft.
double standard_pressure_at(double altitude_ft);

/// The altitude at which the standard atmosphere has this pressure; pressure above 0.
double pressure_altitude_ft(double pressure_hpa);

}  // namespace host::simulation
